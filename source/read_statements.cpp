// The inside of a page file: the WINDOW block, from which the page window is made, and the GADGET
// blocks behind it; each statement is one line, known by a word it holds anywhere in the line.
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "page/catalogue.h"
#include "source/name_tables.h"
#include "source/open_page.h"
#include "source/page_fields.h"
#include "source/source_format.h"

// The gadget record of a read: cleared once per read, so each block starts with what the blocks
// before it left, which is what makes the optimised form readable.
static T_GADGETOBJECTINIT gadget_init;
static char hover_buffer[READER_HOVER_SIZE];
static char font_buffer[READER_NAME_SIZE];

int LineHasWord(const char *line, const char *word)
{
    return line[0] != '\0' && strstr(line, word) != NULL;
}

const char *ValueText(const char *line)
{
    const char *equals = strchr(line, '=');
    return equals ? equals + 1 : line + strlen(line);
}

u32 FieldValue(const char *line, int n)
{
    int seen = 0;
    for (const char *at = line; *at; at++) {
        if (*at != '=' && *at != ',')
            continue;
        if (++seen < n)
            continue;
        const char *text = at + 1;
        if (text[0] == '0' && text[1] == 'x')
            return CalcHexNumber(text + 2);
        return (u32)atoi(text);
    }
    return 0;
}

const char *NextNameToken(const char *text, char *token)
{
    u32 length = 0;
    while (*text && *text != '|' && *text != ';') {
        if (length < READER_TOKEN_SIZE - 1)
            token[length++] = *text;
        text++;
    }
    token[length] = '\0';
    return text;
}

u32 ReadNameList(const char *line, const T_VAL2STRING *table)
{
    const char *equals = strchr(line, '=');
    if (!equals)
        return 0;
    u32 value = 0;
    char token[READER_TOKEN_SIZE];
    const char *at = equals + 1;
    while (*at) {
        at = NextNameToken(at, token);
        if (*at)
            at++;
        value |= FindV2SByString(table, token);
    }
    return value;
}

// A text statement's value: false when it says none; else the text into `text`, cut to its size.
static int ReadQuotedValue(const char *line, char *text, size_t size)
{
    const char *value = ValueText(line);
    if (strncmp(value, "NULL", 4) == 0 || strcmp(value, "0") == 0)
        return 0;
    size_t length = strlen(value);
    // The opening quote, and the closing quote with the semicolon, are cut without a look.
    size_t inner = length >= 3 ? length - 3 : 0;
    if (inner >= size)
        inner = size - 1;
    if (inner)
        memcpy(text, value + 1, inner);
    text[inner] = '\0';
    return 1;
}

// The name between the first two double quotes of a line, cut to 127 characters.
static void ReadNameLine(const char *line, char *name)
{
    name[0] = '\0';
    const char *open = strchr(line, '"');
    if (!open)
        return;
    const char *close = strchr(open + 1, '"');
    size_t length = close ? (size_t)(close - open - 1) : strlen(open + 1);
    if (length >= READER_NAME_SIZE)
        length = READER_NAME_SIZE - 1;
    memcpy(name, open + 1, length);
    name[length] = '\0';
}

// Reads the value of `field` from `line` into its place in `record`; a text goes into `text`, of
// `size` bytes, and the record points at it.
static void ReadField(const T_PAGE_FIELD *field, const char *line, void *record, char *text, size_t size)
{
    switch (field->kind) {
    case FIELD_NAMES:  // a name list; a type is read as one too
    case FIELD_TYPE:
        StorePlaceValue(record, field->record, ReadNameList(line, field->names));
        break;
    case FIELD_TEXT:  // a quoted text, or none
    case FIELD_RESOURCE:
        StorePlacePointer(record, field->record, ReadQuotedValue(line, text, size) ? text : NULL);
        break;
    default: {  // a number, cut to its place; some to a signed 16-bit value first
        i64 value = FieldValue(line, 1);
        if (field->flags & FIELD_CUT16)
            value = (i16)value;
        StorePlaceValue(record, field->record, value);
        break;
    }
    }
}

int ParseWindowLine(const char *line, T_WINDOW_READ *window)
{
    const T_PAGE_FIELD *field = DecidingField(line, &window_field_index);
    if (!field)
        return 0;
    if (field->kind == FIELD_AREA_COLOUR)  // set on the window once it exists
        window->colour = FieldValue(line, 1);
    else
        ReadField(field, line, &window->init, window->bitmap, sizeof(window->bitmap));
    return 1;
}

int ParseGadgetLine(const char *line, T_GADGETOBJECTINIT *init, T_GADGET_BLOCK *block)
{
    const T_PAGE_FIELD *field = DecidingField(line, &gadget_field_index);
    if (!field)
        return 0;
    if (field->kind == FIELD_COLOURS) {  // the block's own, set on the gadget once it exists
        block->colours[0] = FieldValue(line, 1);
        block->colours[1] = FieldValue(line, 2);
        block->has_colours = 1;
    } else if (field->kind == FIELD_TEXT) {
        ReadField(field, line, init, hover_buffer, sizeof(hover_buffer));
    } else {
        ReadField(field, line, init, font_buffer, sizeof(font_buffer));
    }
    return 1;
}

// The lines of a block up to its end marker: the line of its creation call (`create_call`, or
// CreateObject) gives `name`; `parse` takes each other line into `into`, and a line it doesn't take
// is marked foreign.
static const char *ReadBlockLines(const char *position, const char *end, T_READING *reading, const char *create_call,
                                  char *name, void *into, int (*parse)(const char *line, void *into))
{
    char line[READER_LINE_SIZE];
    while (u32 used = ReadLine(line, position, end)) {
        position += used;
        reading->lines_read++;
        if (LineHasWord(line, SRC_WORD_END))
            break;
        if (LineHasWord(line, create_call) || LineHasWord(line, SRC_WORD_CREATE_OBJECT))
            ReadNameLine(line, name);
        else if (!parse(line, into))
            MarkForeign(reading, reading->lines_read - 1);
    }
    return position;
}

const char *ReadGadgetsFromFile(t_Window *window, const char *position, const char *end, T_READING *reading)
{
    T_GADGET_BLOCK block;
    memset(&block, 0, sizeof(block));
    u32 marker_line = reading->lines_read;  // the block's start marker, counted by the caller
    position = ReadBlockLines(
        position, end, reading, SRC_WORD_CREATE_GADGET, block.name, &block,
        [](const char *line, void *into) { return ParseGadgetLine(line, &gadget_init, (T_GADGET_BLOCK *)into); });
    i16 tool = ToolOfType((u16)gadget_init.type, gadget_init.flags);
    if (!tool)
        return position;
    t_gadget *gadget = CreateGadgetByTool(window, tool, &gadget_init);
    if (!gadget) {
        myprintf(0, SRC_READ_NO_GADGET, ReadingSource(reading), (unsigned)marker_line, block.name);
        return position;
    }
    if (block.has_colours)
        SetGadgetColours(gadget, block.colours[0], block.colours[1]);
    gadget->action = gadget_init.action;
    SetGadgetItemCode(window, gadget, gadget_init.item_code);
    if (gadget->live_flags & GADGET_FLAGS_ICON)  // the icon chosen in the gadget's bank
        gadget->icon = gadget_init.icon;
    // The font stays from block to block, as the writer's optimised form counts on.
    if (GadgetKindHas(gadget->type, KIND_TEXT_FROM_FILE) && gadget->user_data)
        memcpy(gadget->user_data, block.name, strlen(block.name) + 1);  // its text buffer
    return position;
}

void BeginGadgetBlocks(void)
{
    memset(&gadget_init, 0, sizeof(gadget_init));
}

const char *ReadWindowBlock(t_Window *parent, const char *position, const char *end, T_READING *reading)
{
    T_WINDOW_READ window;
    memset(&window, 0, sizeof(window));
    memset(&gadget_init, 0, sizeof(gadget_init));
    window.colour = 0xFFFFFFFF;
    u32 marker_line = reading->lines_read;  // the WINDOW marker, counted by the caller
    char name[READER_NAME_SIZE] = "";
    position =
        ReadBlockLines(position, end, reading, SRC_WORD_CREATE_WINDOW, name, &window,
                       [](const char *line, void *into) { return ParseWindowLine(line, (T_WINDOW_READ *)into); });

    // Only the size comes from the file; the place comes from the parent's cascade. A size that
    // is no page's (zero, negative, below the smallest page) makes no window, which the opening
    // tells, rather than a page that nobody could see.
    if (window.init.w < PAGE_MIN_WIDTH || window.init.h < PAGE_MIN_HEIGHT) {
        myprintf(0, SRC_READ_SMALL_WINDOW, ReadingSource(reading), (unsigned)marker_line, window.init.w, window.init.h,
                 PAGE_MIN_WIDTH, PAGE_MIN_HEIGHT);
        return position;
    }
    i16 k = (i16)(parent->cascade_index * 16);
    if (!editor_hooks.make_page_window)
        return position;
    t_Window *page = editor_hooks.make_page_window(parent, name, window.init.flags, k, k, (i16)(k + window.init.w),
                                                   (i16)(k + window.init.h));
    if (!page)
        return position;
    page->idcmp = window.init.idcmp;
    if (window.colour != 0xFFFFFFFF)
        page->UserAreaColour = window.colour;
    SetWindowBitmap(page, window.init.bitmap);
    reading->window = page;

    char line[READER_LINE_SIZE];
    while (u32 used = ReadLine(line, position, end)) {
        position += used;
        reading->lines_read++;
        if (LineHasWord(line, SRC_WORD_END))
            return position;
        if (LineHasWord(line, SRC_WORD_START)) {
            if (LineHasWord(line, SRC_WORD_GADGET))
                position = ReadGadgetsFromFile(page, position, end, reading);
        } else {
            MarkForeign(reading, reading->lines_read - 1);
        }
    }
    return position;
}
