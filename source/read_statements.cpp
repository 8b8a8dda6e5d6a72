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

// The statement words of a block, in the order in which they decide when a line holds several.
typedef struct T_STATEMENT_WORD {
    const char *word;
    u8 length;
    u8 statement;
} T_STATEMENT_WORD;

#define WORD(text) text, (u8)(sizeof(text) - 1)

// Which word of `words` decides the line: the first in table order that the line holds anywhere.
// The words that begin with `prefix` are found from the prefix's places in the line, so that a line
// is searched once for the prefix and once for each word without it; -1 when none.
static int DecidingWord(const char *line, const T_STATEMENT_WORD *words, int count, const char *prefix)
{
    if (!line[0])
        return -1;
    size_t prefix_length = strlen(prefix);
    int best = -1;
    for (const char *at = strstr(line, prefix); at; at = strstr(at + 1, prefix)) {
        const char *rest = at + prefix_length;
        for (int i = 0; i < count && (best < 0 || i < best); i++) {
            const char *tail = words[i].word + prefix_length;
            if (words[i].length > prefix_length && tail[0] == rest[0] &&
                memcmp(words[i].word, prefix, prefix_length) == 0 &&
                strncmp(rest, tail, words[i].length - prefix_length) == 0)
                best = i;
        }
    }
    for (int i = 0; i < count && (best < 0 || i < best); i++)
        if (strncmp(words[i].word, prefix, prefix_length) != 0 && strstr(line, words[i].word))
            best = i;
    return best;
}

enum { WIN_FLAGS, WIN_X, WIN_Y, WIN_W, WIN_H, WIN_ICON, WIN_IDCMP, WIN_BITMAP, WIN_COLOUR };

//  word                  statement
static const T_STATEMENT_WORD window_words[] = {
    {WORD("win_init.flags"), WIN_FLAGS},
    {WORD("win_init.x"), WIN_X},
    {WORD("win_init.y"), WIN_Y},
    {WORD("win_init.w"), WIN_W},
    {WORD("win_init.h"), WIN_H},
    {WORD("win_init.icon"), WIN_ICON},  // also "win_init.icon_bank=NULL;", which gives 0
    {WORD("win_init.idcmp"), WIN_IDCMP},
    {WORD("win_init.bitmap"), WIN_BITMAP},
    {WORD("UserAreaColour"), WIN_COLOUR},
};

static int ParseWindowLine(const char *line, T_WINDOW_READ *window)
{
    int word = DecidingWord(line, window_words, (int)(sizeof(window_words) / sizeof(window_words[0])), "win_init.");
    if (word < 0)
        return 0;
    switch (window_words[word].statement) {
    case WIN_FLAGS:
        window->init.flags = ReadNameList(line, window_flag_names);
        break;
    case WIN_X:
        window->init.x = (i16)FieldValue(line, 1);
        break;
    case WIN_Y:
        window->init.y = (i16)FieldValue(line, 1);
        break;
    case WIN_W:
        window->init.w = (i16)FieldValue(line, 1);
        break;
    case WIN_H:
        window->init.h = (i16)FieldValue(line, 1);
        break;
    case WIN_ICON:
        window->init.icon = (u16)FieldValue(line, 1);
        break;
    case WIN_IDCMP:
        window->init.idcmp = ReadNameList(line, idcmp_names);
        break;
    case WIN_BITMAP:
        window->has_bitmap = ReadQuotedValue(line, window->bitmap, sizeof(window->bitmap));
        break;
    case WIN_COLOUR:
        window->colour = FieldValue(line, 1);
        break;
    }
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

enum {
    GAD_TYPE, GAD_FLAGS, GAD_X, GAD_Y, GAD_WIDTH, GAD_HEIGHT, GAD_CURSOR, GAD_ICON, GAD_ACTION, GAD_ITEM_CODE,
    GAD_TAB0, GAD_TAB1, GAD_MARK_WIDTH, GAD_MARK_HEIGHT, GAD_MIN, GAD_MAX, GAD_STEP, GAD_INIT_VAL, GAD_COLOURS,
    GAD_HOVER, GAD_FONT,
};

//  word                    statement
static const T_STATEMENT_WORD gadget_words[] = {
    {WORD("gadinit.type"), GAD_TYPE},
    {WORD("gadinit.flags"), GAD_FLAGS},
    {WORD("gadinit.x"), GAD_X},
    {WORD("gadinit.y"), GAD_Y},
    {WORD("gadinit.base_width"), GAD_WIDTH},
    {WORD("gadinit.base_height"), GAD_HEIGHT},
    {WORD("gadinit.cursor"), GAD_CURSOR},
    {WORD("gadinit.icon"), GAD_ICON},
    {WORD("gadinit.action"), GAD_ACTION},
    {WORD("gadinit.item_code"), GAD_ITEM_CODE},
    {WORD("gadinit.tab[0]"), GAD_TAB0},
    {WORD("gadinit.tab[1]"), GAD_TAB1},
    {WORD("gadinit.mark_width"), GAD_MARK_WIDTH},
    {WORD("gadinit.mark_height"), GAD_MARK_HEIGHT},
    {WORD("gadinit.min"), GAD_MIN},
    {WORD("gadinit.max"), GAD_MAX},
    {WORD("gadinit.step"), GAD_STEP},
    {WORD("gadinit.init_val"), GAD_INIT_VAL},
    {WORD("SetGadgetColours"), GAD_COLOURS},
    {WORD("gadinit.hover_text"), GAD_HOVER},
    {WORD("gadinit.font"), GAD_FONT},
};

static int ParseGadgetLine(const char *line, T_GADGETOBJECTINIT *init, T_GADGET_BLOCK *block)
{
    int word = DecidingWord(line, gadget_words, (int)(sizeof(gadget_words) / sizeof(gadget_words[0])), "gadinit.");
    if (word < 0)
        return 0;
    switch (gadget_words[word].statement) {
    case GAD_TYPE:
        init->type = (u16)ReadNameList(line, gadget_type_names);
        break;
    case GAD_FLAGS:
        init->flags = ReadNameList(line, gadget_flag_names);
        break;
    case GAD_X:
        init->x = (i16)FieldValue(line, 1);
        break;
    case GAD_Y:
        init->y = (i16)FieldValue(line, 1);
        break;
    case GAD_WIDTH:
        init->base_width = (i16)FieldValue(line, 1);
        break;
    case GAD_HEIGHT:
        init->base_height = (i16)FieldValue(line, 1);
        break;
    case GAD_CURSOR:
        init->cursor = (u8)FieldValue(line, 1);
        break;
    case GAD_ICON:
        init->icon = (u16)FieldValue(line, 1);
        break;
    case GAD_ACTION:
        init->action = ReadNameList(line, mouse_action_names);
        break;
    case GAD_ITEM_CODE:
        init->item_code = FieldValue(line, 1);
        break;
    case GAD_TAB0:
        init->tab[0] = FieldValue(line, 1);
        break;
    case GAD_TAB1:
        init->tab[1] = FieldValue(line, 1);
        break;
    case GAD_MARK_WIDTH:
        init->mark_width = (i16)FieldValue(line, 1);
        break;
    case GAD_MARK_HEIGHT:
        init->mark_height = (i16)FieldValue(line, 1);
        break;
    case GAD_MIN:
        init->min = Cut16(FieldValue(line, 1));
        break;
    case GAD_MAX:
        init->max = Cut16(FieldValue(line, 1));
        break;
    case GAD_STEP:
        init->step = Cut16(FieldValue(line, 1));
        break;
    case GAD_INIT_VAL:
        init->init_val = Cut16(FieldValue(line, 1));
        break;
    case GAD_COLOURS:
        block->colours[0] = FieldValue(line, 1);
        block->colours[1] = FieldValue(line, 2);
        block->has_colours = 1;
        break;
    case GAD_HOVER:
        init->hover_text = ReadQuotedValue(line, hover_buffer, sizeof(hover_buffer)) ? hover_buffer : NULL;
        break;
    case GAD_FONT:
        init->font = ReadQuotedValue(line, font_buffer, sizeof(font_buffer)) ? font_buffer : NULL;
        break;
    }
    return 1;
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
    SetGadgetItemCode(window, gadget, gadget_init.item_code);
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

    // Only the size comes from the file; the place comes from the parent's cascade. A size that
    // is no page's (zero, negative, below the smallest page) makes no window, which the opening
    // tells, rather than a page that nobody could see.
    if (window.init.w < PAGE_MIN_WIDTH || window.init.h < PAGE_MIN_HEIGHT) {
        myprintf(0, "\nOpenPage error, the window's size %dx%d is below the smallest page, %dx%d",
                 window.init.w, window.init.h, PAGE_MIN_WIDTH, PAGE_MIN_HEIGHT);
        return position;
    }
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
