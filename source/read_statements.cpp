// The inside of a page file: the WINDOW block, from which the page window is made, and the GADGET
// blocks behind it; each statement is one line, known by a word it holds anywhere in the line.
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "editor/page_window.h"
#include "page/catalogue.h"
#include "source/name_tables.h"
#include "source/open_page.h"
#include "source/source_format.h"

// The gadget record of a read: cleared once per read, so each block starts with what the blocks
// before it left, which is what makes the optimised form readable.
static T_GADGETOBJECTINIT gadget_init;
static char hover_buffer[READER_HOVER_SIZE];
static char font_buffer[READER_NAME_SIZE];

static void MarkForeign(T_READING *reading, u32 index)
{
    if (reading->line_map && index < reading->lines_total)
        reading->line_map[index] = 1;
}

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
        if (length < 255)
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
    char token[256];
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

typedef struct T_WINDOW_READ {
    T_WINDOWOBJINIT init;
    char bitmap[READER_NAME_SIZE];
    int has_bitmap;
    u32 colour;  // 0xFFFFFFFF: none
} T_WINDOW_READ;

static int ParseWindowLine(const char *line, T_WINDOW_READ *window)
{
    if (LineHasWord(line, "win_init.flags"))
        window->init.flags = ReadNameList(line, window_flag_names);
    else if (LineHasWord(line, "win_init.x"))
        window->init.x = (i16)FieldValue(line, 1);
    else if (LineHasWord(line, "win_init.y"))
        window->init.y = (i16)FieldValue(line, 1);
    else if (LineHasWord(line, "win_init.w"))
        window->init.w = (i16)FieldValue(line, 1);
    else if (LineHasWord(line, "win_init.h"))
        window->init.h = (i16)FieldValue(line, 1);
    else if (LineHasWord(line, "win_init.icon"))  // also "win_init.icon_bank=NULL;", which gives 0
        window->init.icon = (u16)FieldValue(line, 1);
    else if (LineHasWord(line, "win_init.idcmp"))
        window->init.idcmp = ReadNameList(line, idcmp_names);
    else if (LineHasWord(line, "win_init.bitmap"))
        window->has_bitmap = ReadQuotedValue(line, window->bitmap, sizeof(window->bitmap));
    else if (LineHasWord(line, "UserAreaColour"))
        window->colour = FieldValue(line, 1);
    else
        return 0;
    return 1;
}

typedef struct T_GADGET_BLOCK {
    char name[READER_NAME_SIZE];
    u32 colours[2];
    int has_colours;
} T_GADGET_BLOCK;

// A number cut to a signed 16-bit value and widened, as the reader's fields hold it.
static i32 Cut16(u32 value)
{
    return (i32)(i16)value;
}

static int ParseGadgetLine(const char *line, T_GADGETOBJECTINIT *init, T_GADGET_BLOCK *block)
{
    if (LineHasWord(line, "gadinit.type"))
        init->type = (u16)ReadNameList(line, gadget_type_names);
    else if (LineHasWord(line, "gadinit.flags"))
        init->flags = ReadNameList(line, gadget_flag_names);
    else if (LineHasWord(line, "gadinit.x"))
        init->x = (i16)FieldValue(line, 1);
    else if (LineHasWord(line, "gadinit.y"))
        init->y = (i16)FieldValue(line, 1);
    else if (LineHasWord(line, "gadinit.base_width"))
        init->base_width = (i16)FieldValue(line, 1);
    else if (LineHasWord(line, "gadinit.base_height"))
        init->base_height = (i16)FieldValue(line, 1);
    else if (LineHasWord(line, "gadinit.cursor"))
        init->cursor = (u8)FieldValue(line, 1);
    else if (LineHasWord(line, "gadinit.icon"))
        init->icon = (u16)FieldValue(line, 1);
    else if (LineHasWord(line, "gadinit.action"))
        init->action = ReadNameList(line, mouse_action_names);
    else if (LineHasWord(line, "gadinit.item_code"))
        init->item_code = FieldValue(line, 1);
    else if (LineHasWord(line, "gadinit.tab[0]"))
        init->tab[0] = FieldValue(line, 1);
    else if (LineHasWord(line, "gadinit.tab[1]"))
        init->tab[1] = FieldValue(line, 1);
    else if (LineHasWord(line, "gadinit.mark_width"))
        init->mark_width = (i16)FieldValue(line, 1);
    else if (LineHasWord(line, "gadinit.mark_height"))
        init->mark_height = (i16)FieldValue(line, 1);
    else if (LineHasWord(line, "gadinit.min"))
        init->min = Cut16(FieldValue(line, 1));
    else if (LineHasWord(line, "gadinit.max"))
        init->max = Cut16(FieldValue(line, 1));
    else if (LineHasWord(line, "gadinit.step"))
        init->step = Cut16(FieldValue(line, 1));
    else if (LineHasWord(line, "gadinit.init_val"))
        init->init_val = Cut16(FieldValue(line, 1));
    else if (LineHasWord(line, "SetGadgetColours")) {
        block->colours[0] = FieldValue(line, 1);
        block->colours[1] = FieldValue(line, 2);
        block->has_colours = 1;
    } else if (LineHasWord(line, "gadinit.hover_text"))
        init->hover_text = ReadQuotedValue(line, hover_buffer, sizeof(hover_buffer)) ? hover_buffer : NULL;
    else if (LineHasWord(line, "gadinit.font"))
        init->font = ReadQuotedValue(line, font_buffer, sizeof(font_buffer)) ? font_buffer : NULL;
    else
        return 0;
    return 1;
}

//  type                       tool   (0: no tool; sliders and scroll bars go by orientation)
static const i16 tool_of_type[] = {
    0,   // 0
    12,  // 1 button
    -1,  // 2 slider: 4 horizontal, else 5
    0,   // 3 VU 16
    0,   // 4 VU 32
    1,   // 5 check box
    13,  // 6 drop box
    6,   // 7 text
    2,   // 8 list box
    11,  // 9 group
    7,   // 10 string
    3,   // 11 radio button
    14,  // 12 colour flat
    0,   // 13 colour bar
    0,   // 14 colour box
    17,  // 15 user
    8,   // 16 tree
    15,  // 17 texture
    -2,  // 18 scroll bar: 10 horizontal, else 9
    0,   // 19 combo
    0,   // 20
    16,  // 21 scene
};

i16 ToolOfType(u16 type, u32 flags)
{
    if (type >= sizeof(tool_of_type) / sizeof(tool_of_type[0]))
        return 0;
    i16 tool = tool_of_type[type];
    if (tool == -1)
        return (flags & GADGET_FLAGS_HORIZONTAL) ? 4 : 5;
    if (tool == -2)
        return (flags & GADGET_FLAGS_HORIZONTAL) ? 10 : 9;
    return tool;
}

const char *ReadGadgetsFromFile(t_Window *window, const char *position, const char *end, T_READING *reading)
{
    T_GADGET_BLOCK block;
    memset(&block, 0, sizeof(block));
    char line[READER_LINE_SIZE];
    while (u32 used = ReadLine(line, position, end)) {
        position += used;
        reading->lines_read++;
        if (LineHasWord(line, SRC_WORD_END))
            break;
        if (LineHasWord(line, "CreateGadget") || LineHasWord(line, "CreateObject"))
            ReadNameLine(line, block.name);
        else if (!ParseGadgetLine(line, &gadget_init, &block))
            MarkForeign(reading, reading->lines_read - 1);
    }
    i16 tool = ToolOfType((u16)gadget_init.type, gadget_init.flags);
    if (!tool)
        return position;
    t_gadget *gadget = CreateGadgetByTool(window, tool, &gadget_init);
    if (!gadget) {
        myprintf(0, "ReadGadgetsFromFile: Could not create gadget %s\n", block.name);
        return position;
    }
    if (block.has_colours)
        SetGadgetColours(gadget, block.colours[0], block.colours[1]);
    gadget->action = gadget_init.action;
    gadget->item_code = gadget_init.item_code;
    if (gadget->live_flags & GADGET_FLAGS_ICON)  // the icon chosen in the gadget's bank
        gadget->icon = gadget_init.icon;
    // The font stays from block to block, as the writer's optimised form counts on.
    switch (gadget->type) {
    case GADGET_TYPE_BUTTON:
    case GADGET_TYPE_CHECK_BOX:
    case GADGET_TYPE_TEXT:
    case GADGET_TYPE_GROUP:
    case GADGET_TYPE_RADIOBUTTON:
    case GADGET_TYPE_COLOUR_FLAT:
    case GADGET_TYPE_USER:
    case GADGET_TYPE_TEXTURE:
    case GADGET_TYPE_SCENE:  // the types with a text buffer take the name from the file
        if (gadget->user_data)
            memcpy(gadget->user_data, block.name, strlen(block.name) + 1);
        break;
    default:
        break;
    }
    return position;
}

const char *ReadWindowBlock(t_Window *parent, const char *position, const char *end, T_READING *reading)
{
    T_WINDOW_READ window;
    memset(&window, 0, sizeof(window));
    memset(&gadget_init, 0, sizeof(gadget_init));
    window.colour = 0xFFFFFFFF;
    char name[READER_NAME_SIZE] = "";
    char line[READER_LINE_SIZE];
    while (u32 used = ReadLine(line, position, end)) {
        position += used;
        reading->lines_read++;
        if (LineHasWord(line, SRC_WORD_END))
            break;
        if (LineHasWord(line, "ICreateWindow") || LineHasWord(line, "CreateObject"))
            ReadNameLine(line, name);
        else if (!ParseWindowLine(line, &window))
            MarkForeign(reading, reading->lines_read - 1);
    }

    // Only the size comes from the file; the place comes from the parent's cascade.
    i16 k = (i16)(parent->cascade_index * 16);
    t_Window *page = CreatePageWindow(parent, name, window.init.flags, k, k, (i16)(k + window.init.w),
                                      (i16)(k + window.init.h));
    if (!page)
        return position;
    page->idcmp = window.init.idcmp;
    if (window.colour != 0xFFFFFFFF)
        page->UserAreaColour = window.colour;
    SetWindowBitmap(page, window.has_bitmap ? window.bitmap : NULL);
    reading->window = page;

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
