// The outer layers of the source reader: from a file name to the page record, the declarations at
// the head of the PAGE block, and the line map of what wasn't taken.
#include <string.h>

#include "source/open_page.h"
#include "source/source_format.h"

// The first word of `words` that stands in the line decides: its bit, unless it is set already.
typedef struct T_DECLARATION_WORD {
    const char *word;
    u16 bit;
} T_DECLARATION_WORD;

//  word                  bit
static const T_DECLARATION_WORD declaration_words[] = {
    {"T_WINDOWOBJINIT", DECL_WINDOW_INIT},
    {"T_WINDOW *", DECL_WINDOW},
    {"T_GADGETOBJECTINIT", DECL_GADGET_INIT},
    {"T_GADGET", DECL_GADGET},  // also in T_GADGET_HANDLER, which is why the longer words come first
    {"T_MENUOBJECTINIT", DECL_MENU_INIT},
    {"T_MENU", DECL_MENU},
};

static const T_DECLARATION_WORD clear_words[] = {
    {"T_WINDOWOBJINIT", DECL_WINDOW_INIT_CLEAR},
    {"T_GADGETOBJECTINIT", DECL_GADGET_INIT_CLEAR},
    {"T_MENUOBJECTINIT", DECL_MENU_INIT_CLEAR},
    {"T_HANDLER *wh", DECL_HANDLER_CLEAR},
};

static int MatchFirstWord(T_DECLARATIONS *declarations, const char *line, const T_DECLARATION_WORD *words, u32 count)
{
    for (u32 i = 0; i < count; i++) {
        if (!LineHasWord(line, words[i].word))
            continue;
        if (declarations->saved & words[i].bit)
            return 0;
        declarations->saved |= words[i].bit;
        return 1;
    }
    return 0;
}

int MatchDeclaration(T_DECLARATIONS *declarations, const char *line)
{
    return MatchFirstWord(declarations, line, declaration_words,
                          sizeof(declaration_words) / sizeof(declaration_words[0]));
}

int MatchClearLine(T_DECLARATIONS *declarations, const char *line)
{
    if (!LineHasWord(line, "ZeroMem"))
        return 0;
    return MatchFirstWord(declarations, line, clear_words, sizeof(clear_words) / sizeof(clear_words[0]));
}

const char *ReadPageBody(t_Window *parent, const char *position, const char *end, T_READING *reading,
                         T_DECLARATIONS *declarations)
{
    char line[READER_LINE_SIZE];
    // The head of the open function, kept as it stands.
    u32 used = ReadLine(line, position, end);
    if (!used)
        return position;
    position += used;
    if (LineHasWord(line, "T_APP_CONFIG"))
        declarations->saved |= DECL_APP_CONFIG;
    reading->lines_read++;
    AllocString(line, &declarations->head_line);
    // The opening brace, not looked at.
    used = ReadLine(line, position, end);
    if (!used)
        return position;
    position += used;
    reading->lines_read++;

    while ((used = ReadLine(line, position, end)) != 0) {
        position += used;
        reading->lines_read++;
        if (LineHasWord(line, SRC_WORD_START)) {
            if (LineHasWord(line, SRC_WORD_WINDOW))
                position = ReadWindowBlock(parent, position, end, reading);
            else
                myprintf(0, SRC_READ_NO_WINDOW_MARKER, ReadingSource(reading), (unsigned)reading->lines_read);
        }
        if (!MatchDeclaration(declarations, line) && !MatchClearLine(declarations, line))
            MarkForeign(reading, reading->lines_read - 1);
    }
    return position;
}

// Releases what a read gathered when no page came of it.
static void DropRead(T_READING *reading, T_DECLARATIONS *declarations)
{
    if (reading->line_map)
        FreeMem(reading->line_map, reading->lines_total * 2);
    reading->line_map = NULL;
    FreeString(&declarations->head_line);
}

// The lines ReadLine will give: one per line feed, and a last one without a feed.
static u32 CountLines(const char *data, const char *end)
{
    u32 lines = 0;
    for (const char *at = data; at < end; lines++) {
        const char *feed = (const char *)memchr(at, '\n', (size_t)(end - at));
        at = feed ? feed + 1 : end;
    }
    return lines;
}

t_Window *OpenPage(t_Window *parent, const char *path)
{
    T_DECLARATIONS declarations;
    memset(&declarations, 0, sizeof(declarations));
    char *data = (char *)LoadFile(path);
    if (!data)
        return NULL;
    u32 size = GetLoadFileSize();
    if (!IsFileAscii(data, size)) {
        FreeMem(data, size);
        return NULL;
    }
    const char *end = data + size;
    char line[READER_LINE_SIZE];

    T_READING reading;
    memset(&reading, 0, sizeof(reading));
    reading.source = path;
    reading.lines_total = CountLines(data, end);
    reading.line_map = (u8 *)AllocMemC(reading.lines_total * 2);
    myprintf(3, "Lines in file %s : %d", path, (int)reading.lines_total);

    const char *position = data;
    while (u32 used = ReadLine(line, position, end)) {
        position += used;
        reading.lines_read++;
        if (!LineHasWord(line, SRC_WORD_START) || LineHasWord(line, SRC_WORD_MESSAGE))
            MarkForeign(&reading, reading.lines_read - 1);
        else if (LineHasWord(line, SRC_WORD_PAGE))
            position = ReadPageBody(parent, position, end, &reading, &declarations);
        else
            myprintf(0, SRC_READ_NO_PAGE_MARKER, ReadingSource(&reading), (unsigned)reading.lines_read);
    }
    FreeMem(data, size);

    if (!reading.window) {
        DropRead(&reading, &declarations);
        return NULL;
    }
    T_WINEDIT_HANDLER *record = (T_WINEDIT_HANDLER *)reading.window->user_data;
    record->source_window = reading.window;
    record->line_map = reading.line_map;
    record->lines_read = reading.lines_read;
    record->lines_total = reading.lines_total;
    record->head_line = declarations.head_line;
    record->saved = declarations.saved;
    return reading.window;
}
