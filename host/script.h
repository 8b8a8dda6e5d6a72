// Scripts of a person's actions, one action a line, played on the headless display.
#pragma once
#include "toolkit.h"

typedef enum {
    SCRIPT_MOVE,
    SCRIPT_PRESS,
    SCRIPT_RELEASE,
    SCRIPT_CLICK,
    SCRIPT_DCLICK,
    SCRIPT_RCLICK,
    SCRIPT_DRAG,
    SCRIPT_KEY,
    SCRIPT_TYPE,
    SCRIPT_TURNS,
    SCRIPT_SCREENSHOT,
    SCRIPT_CLICK_GADGET,
    SCRIPT_CLICK_TOOL,
    SCRIPT_EXPECT_WINDOW,
    SCRIPT_EXPECT_NO_WINDOW,
    SCRIPT_EXPECT_WINDOW_AT,
    SCRIPT_EXPECT_FILE_HAS,
} T_SCRIPT_VERB;

typedef struct T_SCRIPT_STEP {
    u16 verb;
    u32 line;
    i32 numbers[4];
    u16 key, qualifiers;
    char text[512];  // typed text, a file name, or a window's name
    char detail[512];  // what follows a quoted file name: the text it must hold
} T_SCRIPT_STEP;

typedef struct T_SCRIPT {
    T_SCRIPT_STEP *steps;
    u32 count;
    char error[600];  // "FILE:LINE: ..." when reading or playing failed
} T_SCRIPT;

// Reads a script from text; false with `error` set at the first line that can't be read.
int ParseScript(T_SCRIPT *script, const char *name, const char *text);
// Reads a script file; false with `error` set when it can't be read.
int LoadScript(T_SCRIPT *script, const char *path);
// Plays the steps in order; false with `error` set at the first step that failed (a screenshot
// that can't be written, a window or gadget that isn't there).
int PlayScript(T_SCRIPT *script, const char *name);
void FreeScript(T_SCRIPT *script);
