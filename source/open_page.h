// The source reader: a page file read line by line, by marker comments and fixed words, back into
// a page window with its gadgets; and OpenPageFile, the one door through which a page comes from
// a file.
#pragma once
#include "page/records.h"

#define READER_LINE_SIZE READ_LINE_SIZE  // a longer line is cut by ReadLine
#define READER_NAME_SIZE 128             // window and gadget names, bitmap and font names
#define READER_HOVER_SIZE 256
#define READER_TOKEN_SIZE 256  // a word of a name list; a longer one is cut and matches nothing

// The reading record, one for each file, handed down through all levels of the reader.
typedef struct T_READING {
    const char *source;  // the file's path, or what else the text comes from; named in the log
    t_Window *window;    // the page window once it exists
    u8 *line_map;        // a byte per line, 1 for a line the reader didn't take; 2 bytes per line
    u32 lines_read;
    u32 lines_total;
} T_READING;

// What the reader's log lines name as the text read.
static inline const char *ReadingSource(const T_READING *reading)
{
    return reading->source ? reading->source : "";
}

// Sets a line's byte in the line map: the reader didn't take the line.
static inline void MarkForeign(T_READING *reading, u32 index)
{
    if (reading->line_map && index < reading->lines_total)
        reading->line_map[index] = 1;
}

// What a WINDOW block said, gathered until the window is made.
typedef struct T_WINDOW_READ {
    T_WINDOWOBJINIT init;  // the bitmap points into `bitmap`, or is null
    char bitmap[READER_NAME_SIZE];
    u32 colour;  // 0xFFFFFFFF: none
} T_WINDOW_READ;

// What a GADGET block said beside the gadget record, which doesn't stay for the next block.
typedef struct T_GADGET_BLOCK {
    char name[READER_NAME_SIZE];
    u32 colours[2];
    int has_colours;
} T_GADGET_BLOCK;

// What the declarations of the PAGE block's head said.
typedef struct T_DECLARATIONS {
    STRING head_line;
    u16 saved;  // the declaration word
} T_DECLARATIONS;

// The declaration word's bits.
#define DECL_APP_CONFIG 0x1
#define DECL_WINDOW 0x2
#define DECL_WINDOW_INIT 0x4
#define DECL_HANDLER_CLEAR 0x8
#define DECL_GADGET 0x10
#define DECL_GADGET_INIT 0x20
#define DECL_MENU 0x40
#define DECL_MENU_INIT 0x80
#define DECL_WINDOW_INIT_CLEAR 0x100
#define DECL_GADGET_INIT_CLEAR 0x200
#define DECL_MENU_INIT_CLEAR 0x400

// The page window read from `path`, or null; OpenPageFile shows the message.
t_Window *OpenPage(t_Window *parent, const char *path);
const char *ReadPageBody(t_Window *parent, const char *position, const char *end, T_READING *reading,
                         T_DECLARATIONS *declarations);
int MatchDeclaration(T_DECLARATIONS *declarations, const char *line);
int MatchClearLine(T_DECLARATIONS *declarations, const char *line);

const char *ReadWindowBlock(t_Window *parent, const char *position, const char *end, T_READING *reading);
const char *ReadGadgetsFromFile(t_Window *window, const char *position, const char *end, T_READING *reading);
// The statements of a block: true when a word of the field table decided the line, whose value
// then went into the record.
int ParseWindowLine(const char *line, T_WINDOW_READ *window);
int ParseGadgetLine(const char *line, T_GADGETOBJECTINIT *init, T_GADGET_BLOCK *block);
// Clears the gadget record for GADGET blocks read outside a page file, as ReadWindowBlock does for
// those of a file.
void BeginGadgetBlocks(void);

// The scanners, which see nothing but one line.
int LineHasWord(const char *line, const char *word);
const char *ValueText(const char *line);
u32 FieldValue(const char *line, int n);
// The next word of a name list into `token` (READER_TOKEN_SIZE bytes), up to a '|' or ';'.
const char *NextNameToken(const char *text, char *token);
u32 ReadNameList(const char *line, const T_VAL2STRING *table);

// Opens a page from its file: refuses a file already open, reads it, repairs duplicate item codes
// and numbers the tab order. Null (after a message box) when nothing was opened.
t_Window *OpenPageFile(t_Window *main_window, const char *path);
