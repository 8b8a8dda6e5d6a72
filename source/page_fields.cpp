// The field tables of the page format: for each statement of the WINDOW and GADGET blocks its
// word, its kind of value, where the value stands in the creation record and in the object, and
// its names; the writer walks them in their order, the reader through an index in its own.
#include <stddef.h>
#include <stdio.h>
#include <string.h>
#include <type_traits>

#include "source/name_tables.h"
#include "source/page_fields.h"
#include "source/source_format.h"

// A field's place in a record, its sign taken from its type.
// clang-format off
#define PLACE(type, field)                                                                         \
    {(u16)offsetof(type, field), (u8)sizeof(((type *)0)->field),                                   \
     (u8)std::is_signed<std::remove_cvref_t<decltype(((type *)0)->field)>>::value}
#define NOWHERE {0, 0, 0}
// clang-format on
#define REC(field) PLACE(T_GADGETOBJECTINIT, field)
#define GAD(field) PLACE(t_gadget, field)
#define SLD(field) PLACE(T_SLIDER_DATA, field)
#define BAR(field) PLACE(T_SCROLLBAR_DATA, field)
#define WREC(field) PLACE(T_WINDOWOBJINIT, field)
#define WIN(field) PLACE(t_Window, field)
#define GADINIT(name) SRC_GADGET_RECORD name
#define WININIT(name) SRC_WINDOW_RECORD name
#define TYPE_BIT(type) (1u << (type))
#define SLIDERS TYPE_BIT(GADGET_TYPE_SLIDER)
#define BARS TYPE_BIT(GADGET_TYPE_SCROLLBAR)

// One place serves the range of both class records, which begin alike.
static_assert(offsetof(T_SLIDER_DATA, min) == offsetof(T_SCROLLBAR_DATA, min) &&
                  offsetof(T_SLIDER_DATA, max) == offsetof(T_SCROLLBAR_DATA, max) &&
                  sizeof(((T_SLIDER_DATA *)0)->max) == sizeof(((T_SCROLLBAR_DATA *)0)->max),
              "the slider's and the scroll bar's records hold min and max alike");

// The program's record that a gadget of each type is made with.
static const T_VAL2STRING gadget_data_texts[] = {
    {GADGET_TYPE_STRING, "&PutStringName"},
    {GADGET_TYPE_COLOUR_FLAT, "&cb"},
    {GADGET_TYPE_COLOUR_BAR, "&cb"},
    {GADGET_TYPE_COLOUR_BOX, "&cb"},
    {GADGET_TYPE_TEXTURE, "&tg"},
    {GADGET_TYPE_SCENE, "&sg"},
    {0, ""},
};

// A string's text buffer size, the program's constant.
static const T_VAL2STRING string_max_texts[] = {
    {GADGET_TYPE_STRING, "STRINGS_MAX_SIZE"},
    {0, ""},
};

// clang-format off
//  word                   kind               decides from         flags               record                object            types         live_bit             names               fixed
const T_PAGE_FIELD window_fields[] = {
    {WININIT("flags"),       FIELD_NAMES,       1,  FROM_OBJECT, 0,                  WREC(flags),      WIN(flags),          0,            0,                   window_flag_names,  NULL},
    {WININIT("x"),           FIELD_DECIMAL,     2,  FROM_OBJECT, 0,                  WREC(x),          WIN(x),              0,            0,                   NULL,               NULL},
    {WININIT("y"),           FIELD_DECIMAL,     3,  FROM_OBJECT, 0,                  WREC(y),          WIN(y),              0,            0,                   NULL,               NULL},
    {WININIT("w"),           FIELD_DECIMAL,     4,  FROM_OBJECT, 0,                  WREC(w),          WIN(w),              0,            0,                   NULL,               NULL},
    {WININIT("h"),           FIELD_DECIMAL,     5,  FROM_OBJECT, 0,                  WREC(h),          WIN(h),              0,            0,                   NULL,               NULL},
    // The word stands in the icon bank's statement too, which so reads as an icon of 0.
    {WININIT("icon"),        FIELD_DECIMAL,     6,  FROM_OBJECT, 0,                  WREC(icon),       WIN(icon),           0,            0,                   NULL,               NULL},
    {WININIT("idcmp"),       FIELD_NAMES,       7,  FROM_OBJECT, 0,                  WREC(idcmp),      WIN(idcmp),          0,            0,                   idcmp_names,        NULL},
    {WININIT("bitmap"),      FIELD_RESOURCE,    8,  FROM_OBJECT, 0,                  WREC(bitmap),     WIN(bitmap),         0,            0,                   NULL,               NULL},
    {WININIT("message"),     FIELD_MESSAGE,     0,  FROM_NONE,   0,                  NOWHERE,          NOWHERE,             0,            0,                   NULL,               NULL},
    {WININIT("icon_bank"),   FIELD_NULL,        0,  FROM_NONE,   0,                  NOWHERE,          NOWHERE,             0,            0,                   NULL,               NULL},
    {"UserAreaColour",       FIELD_AREA_COLOUR, 9,  FROM_OBJECT, FIELD_AFTER_CREATE, NOWHERE,          WIN(UserAreaColour), 0,            0,                   NULL,               NULL},
    {NULL,                   0,                 0,  FROM_NONE,   0,                  NOWHERE,          NOWHERE,             0,            0,                   NULL,               NULL},
};

const T_PAGE_FIELD gadget_fields[] = {
    {GADINIT("x"),           FIELD_DECIMAL,     3,  FROM_OBJECT, 0,                  REC(x),           GAD(x),              0,            0,                   NULL,               NULL},
    {GADINIT("y"),           FIELD_DECIMAL,     4,  FROM_OBJECT, 0,                  REC(y),           GAD(y),              0,            0,                   NULL,               NULL},
    {GADINIT("base_width"),  FIELD_DECIMAL,     5,  FROM_OBJECT, 0,                  REC(base_width),  GAD(base_width),     0,            0,                   NULL,               NULL},
    {GADINIT("base_height"), FIELD_DECIMAL,     6,  FROM_OBJECT, 0,                  REC(base_height), GAD(base_height),    0,            0,                   NULL,               NULL},
    {GADINIT("item_code"),   FIELD_HEX,         10, FROM_OBJECT, 0,                  REC(item_code),   GAD(item_code),      0,            0,                   NULL,               NULL},
    // Flags and action compare the whole words, bits without a name too.
    {GADINIT("flags"),       FIELD_NAMES,       2,  FROM_OBJECT, 0,                  REC(flags),       GAD(flags),          0,            0,                   gadget_flag_names,  NULL},
    {GADINIT("action"),      FIELD_NAMES,       9,  FROM_OBJECT, 0,                  REC(action),      GAD(action),         0,            0,                   mouse_action_names, NULL},
    {GADINIT("tab[0]"),      FIELD_HEX,         11, FROM_OBJECT, 0,                  REC(tab[0]),      GAD(tab[0]),         0,            0,                   NULL,               NULL},
    {GADINIT("tab[1]"),      FIELD_HEX,         12, FROM_OBJECT, 0,                  REC(tab[1]),      GAD(tab[1]),         0,            0,                   NULL,               NULL},
    {GADINIT("hover_text"),  FIELD_TEXT,        20, FROM_OBJECT, 0,                  REC(hover_text),  GAD(hover_text),     0,            0,                   NULL,               NULL},
    {GADINIT("type"),        FIELD_TYPE,        1,  FROM_OBJECT, 0,                  REC(type),        GAD(type),           0,            0,                   gadget_type_names,  NULL},
    {GADINIT("font"),        FIELD_RESOURCE,    21, FROM_OBJECT, 0,                  REC(font),        GAD(font),           0,            0,                   NULL,               NULL},
    // The record's cursor is one byte: a number above 255 never equals it, and is written at
    // every gadget.
    {GADINIT("cursor"),      FIELD_DECIMAL,     7,  FROM_OBJECT, 0,                  REC(cursor),      GAD(cursor),         0,            GADGET_FLAGS_CURSOR, NULL,               NULL},
    {GADINIT("icon"),        FIELD_DECIMAL,     8,  FROM_OBJECT, 0,                  REC(icon),        GAD(icon),           0,            GADGET_FLAGS_ICON,   NULL,               NULL},
    {GADINIT("data"),        FIELD_DATA,        0,  FROM_NONE,   0,                  NOWHERE,          NOWHERE,             0,            0,                   NULL,               gadget_data_texts},
    {GADINIT("min"),         FIELD_DECIMAL,     15, FROM_CLASS,  FIELD_CUT16,        REC(min),         SLD(min),            SLIDERS|BARS, 0,                   NULL,               NULL},
    {GADINIT("max"),         FIELD_DECIMAL,     16, FROM_CLASS,  FIELD_CUT16,        REC(max),         SLD(max),            SLIDERS|BARS, 0,                   NULL,               string_max_texts},
    {GADINIT("step"),        FIELD_DECIMAL,     17, FROM_CLASS,  FIELD_CUT16,        REC(step),        SLD(step),           SLIDERS,      0,                   NULL,               NULL},
    // A slider's marks come from its size when it is made; they are written all the same.
    {GADINIT("mark_width"),  FIELD_DECIMAL,     13, FROM_CLASS,  0,                  REC(mark_width),  SLD(mark_width),     SLIDERS,      0,                   NULL,               NULL},
    {GADINIT("mark_height"), FIELD_DECIMAL,     14, FROM_CLASS,  0,                  REC(mark_height), SLD(mark_height),    SLIDERS,      0,                   NULL,               NULL},
    {GADINIT("init_val"),    FIELD_DECIMAL,     18, FROM_CLASS,  FIELD_CUT16,        REC(init_val),    BAR(init_val),       BARS,         0,                   NULL,               NULL},
    {"SetGadgetColours",     FIELD_COLOURS,     19, FROM_OBJECT, FIELD_AFTER_CREATE, NOWHERE,          NOWHERE,             0,            0,                   NULL,               NULL},
    {NULL,                   0,                 0,  FROM_NONE,   0,                  NOWHERE,          NOWHERE,             0,            0,                   NULL,               NULL},
};
// clang-format on

// The words of `table` that the reader reads, in their deciding order.
static T_FIELD_INDEX MakeIndex(const T_PAGE_FIELD *table, const char *prefix)
{
    T_FIELD_INDEX index = {};
    index.prefix = prefix;
    index.prefix_length = (u8)strlen(prefix);
    for (u8 rank = 1; index.count < FIELD_INDEX_MAX; rank++) {
        const T_PAGE_FIELD *row = table;
        while (row->word && row->decides != rank)
            row++;
        if (!row->word)
            break;
        size_t length = strlen(row->word);
        int prefixed = length > index.prefix_length && strncmp(row->word, prefix, index.prefix_length) == 0;
        index.rows[index.count] = row;
        index.tails[index.count] = prefixed ? row->word + index.prefix_length : NULL;
        index.tail_lengths[index.count++] = prefixed ? (u8)(length - index.prefix_length) : 0;
    }
    QF_EXPECT(index.count < FIELD_INDEX_MAX);  // a full index would leave rows unread
    return index;
}

const T_FIELD_INDEX window_field_index = MakeIndex(window_fields, SRC_WINDOW_RECORD);
const T_FIELD_INDEX gadget_field_index = MakeIndex(gadget_fields, SRC_GADGET_RECORD);

// The words with the prefix are found from the prefix's places in the line, so that a line is
// searched once for the prefix and once for each word without it.
const T_PAGE_FIELD *DecidingField(const char *line, const T_FIELD_INDEX *index)
{
    if (!line[0])
        return NULL;
    int best = -1;
    for (const char *at = strstr(line, index->prefix); at; at = strstr(at + 1, index->prefix)) {
        const char *rest = at + index->prefix_length;
        for (int i = 0; i < index->count && (best < 0 || i < best); i++) {
            const char *tail = index->tails[i];
            if (tail && tail[0] == rest[0] && strncmp(rest, tail, index->tail_lengths[i]) == 0)
                best = i;
        }
    }
    for (int i = 0; i < index->count && (best < 0 || i < best); i++)
        if (!index->tails[i] && strstr(line, index->rows[i]->word))
            best = i;
    return best < 0 ? NULL : index->rows[best];
}

// The writer's heads, made once: a row's place in its table is its place here.
#define FIELD_HEAD_SIZE 40
#define TABLE_ROWS(table) (sizeof(table) / sizeof(table[0]))
typedef struct T_FIELD_HEAD {
    char text[FIELD_HEAD_SIZE];
    u8 length;
} T_FIELD_HEAD;

static void MakeHeads(const T_PAGE_FIELD *table, T_FIELD_HEAD *heads)
{
    for (const T_PAGE_FIELD *field = table; field->word; field++, heads++) {
        snprintf(heads->text, sizeof(heads->text), "%s%s%s%s", SRC_INDENT,
                 field->kind == FIELD_AREA_COLOUR ? SRC_WIN_OWNER : "", field->word,
                 field->kind == FIELD_COLOURS ? SRC_GAD_COLOURS_OPEN : SRC_ASSIGN);
        heads->length = (u8)strlen(heads->text);
    }
}

static T_FIELD_HEAD window_heads[TABLE_ROWS(window_fields)];
static T_FIELD_HEAD gadget_heads[TABLE_ROWS(gadget_fields)];
static int heads_made;

const char *FieldHead(const T_PAGE_FIELD *field, size_t *length)
{
    if (!heads_made) {
        MakeHeads(window_fields, window_heads);
        MakeHeads(gadget_fields, gadget_heads);
        heads_made = 1;
    }
    const T_FIELD_HEAD *head = field >= gadget_fields && field < gadget_fields + TABLE_ROWS(gadget_fields)
                                   ? &gadget_heads[field - gadget_fields]
                                   : &window_heads[field - window_fields];
    *length = head->length;
    return head->text;
}

const void *PlacePointer(const void *base, T_FIELD_PLACE place)
{
    const void *pointer = NULL;
    if (place.width == sizeof(pointer))
        memcpy(&pointer, (const u8 *)base + place.offset, sizeof(pointer));
    return pointer;
}

void StorePlacePointer(void *base, T_FIELD_PLACE place, const void *pointer)
{
    if (place.width == sizeof(pointer))
        memcpy((u8 *)base + place.offset, &pointer, sizeof(pointer));
}

const char *FixedFieldText(const T_PAGE_FIELD *field, u16 type)
{
    return field->fixed ? FindV2SByCode(field->fixed, type) : NULL;
}

// Whether the `length` characters at `value` are `text` and the end of a statement.
static int IsValue(const char *value, size_t length, const char *text)
{
    size_t text_length = strlen(text);
    return length == text_length + 1 && strncmp(value, text, text_length) == 0 &&
           value[text_length] == SRC_END_STATEMENT[0];
}

// Whether the value of a statement of `field` is one of its fixed forms.
static int IsFixedValue(const T_PAGE_FIELD *field, const char *value, size_t length)
{
    switch (field->kind) {
    case FIELD_TEXT:  // the forms without a text
    case FIELD_RESOURCE:
    case FIELD_NULL:
        return IsValue(value, length, SRC_NULL);
    case FIELD_MESSAGE: {  // any plain name before the suffix
        size_t suffix = strlen(SRC_MESSAGE_SUFFIX) + 1;
        return length >= suffix && strncmp(value + length - suffix, SRC_MESSAGE_SUFFIX, suffix - 1) == 0 &&
               value[length - 1] == SRC_END_STATEMENT[0];
    }
    default:  // the texts by type
        for (const T_VAL2STRING *row = field->fixed; row && row->value; row++)
            if (IsValue(value, length, row->text))
                return 1;
        return 0;
    }
}

int IsFixedFieldLine(const char *line, size_t length)
{
    const T_PAGE_FIELD *const tables[] = {window_fields, gadget_fields};
    for (const T_PAGE_FIELD *table : tables) {
        for (const T_PAGE_FIELD *field = table; field->word; field++) {
            size_t word = strlen(field->word);
            if (length <= word || strncmp(line, field->word, word) != 0 || line[word] != SRC_ASSIGN[0])
                continue;
            if (IsFixedValue(field, line + word + 1, length - word - 1))
                return 1;
        }
    }
    return 0;
}
