// Pickett: the file, font and colour selectors, and the test for a text file.
#pragma once
#include "brushel.h"
#include "knobkit.h"

typedef struct T_FILE_REQUESTER_INIT {
    t_Window *parent;
    u32 item_code;
    const char *title;
    u32 single_file;  // 1: one file is chosen, the only way this selector knows
    const char *ok_text;
    const char *cancel_text;
    const char *path;
    const char *name;
    const char *pattern;
} T_FILE_REQUESTER_INIT;

// The data of the file selector's ACT_REQUESTER_OK: the directory and the name.
typedef struct T_FILE_REQUESTER_ANSWER {
    char directory[FILE_PATH_SIZE];
    char name[FILE_NAME_SIZE];
} T_FILE_REQUESTER_ANSWER;

t_Window *NewFileSelector(T_FILE_REQUESTER_INIT *init);

typedef struct T_FONTSEL_INIT {
    t_Window *parent;
    u32 item_code;
    const char *title;
    const char *path;
    const char *default_pattern;
    const char *button_text;
    t_List *patterns;
    const char *initial_font;
    void *user_data;
} T_FONTSEL_INIT;

// The font selector's record, the `user_data` of its window and the data of its answers.
typedef struct T_FONTSEL {
    t_Window *window;
    t_Window *parent;
    u32 item_code;
    void *user_data;
    char *initial_font;  // the name given at opening (own copy), or null
    char directory[FONT_PATH_SIZE];
    char chosen[FILE_NAME_SIZE];  // the file name picked, "" for none
    t_List patterns;
} T_FONTSEL;

t_Window *NewFontSelector(T_FONTSEL_INIT *init);
// The font picked in the selector (given as its window or its T_FONTSEL), loaded; null if none.
T_FONT *LoadFontFromSelector(void *selector, u32 flags);

typedef struct T_COLOURSEL_INIT {
    t_Window *parent;
    T_RGBA *rgba;
    T_HSIA *hsia;
    u16 mode;  // 3
    u32 item_code;
    const char *title;
    void *user_data;
} T_COLOURSEL_INIT;

// The colour selector's record: its window's user_data and the data of its answers.
typedef struct T_COLOURSEL {
    t_Window *window;
    T_RGBA *rgba;  // the caller's colour, changed in place
    T_HSIA *hsia;  // the same as hue, saturation, intensity (or null)
    u32 item_code;
    void *user_data;  // the caller's user pointer
} T_COLOURSEL;

t_Window *AddColourSelector(T_COLOURSEL_INIT *init);
int IsFileAscii(const void *data, u32 size);
