// The field tables of the page format: one row for each statement of the WINDOW and GADGET blocks,
// which the writer walks to write a block and the reader indexes to read one.
#pragma once
#include <string.h>

#include "page/records.h"

// Where a value stands in a record: offset and width in bytes, and whether it is signed. A width
// of 0 is nowhere.
typedef struct T_FIELD_PLACE {
    u16 offset;
    u8 width;
    u8 is_signed;
} T_FIELD_PLACE;

// The kinds of statement: how the value is written and read.
enum {
    FIELD_DECIMAL,      // a number, "%d"
    FIELD_HEX,          // a number, "0x%x"
    FIELD_NAMES,        // the names of the set bits in `names`, one bit at a time, joined by '|'
    FIELD_TYPE,         // the one row of `names` for the whole value
    FIELD_TEXT,         // a text between double quotes, or NULL
    FIELD_RESOURCE,     // the name of a font or bitmap resource, as a text, or NULL
    FIELD_DATA,         // the program's record for the gadget's type: only the `fixed` texts
    FIELD_MESSAGE,      // the page's message function: the plain name and "Msg"
    FIELD_NULL,         // always NULL
    FIELD_COLOURS,      // SetGadgetColours(gad,back,text): two numbers, not in the creation record
    FIELD_AREA_COLOUR,  // the window's user area colour, set on the window once it exists
};

// Where the writer finds the value.
enum {
    FROM_NONE,    // nowhere: the statement's text is fixed
    FROM_OBJECT,  // `object` in the gadget or window
    FROM_CLASS,   // `object` in the record behind the gadget's class_data, for the `types`
};

// Flags of a row.
#define FIELD_CUT16 0x1         // the reader cuts the number to a signed 16-bit value
#define FIELD_AFTER_CREATE 0x2  // written behind the line that creates the object

typedef struct T_PAGE_FIELD {
    const char *word;           // the statement's word, by which the reader knows the line
    u8 kind;                    // FIELD_
    u8 decides;                 // the reader's precedence when a line holds several words, 1 first;
                                // 0: the reader passes over the statement
    u8 from;                    // FROM_
    u8 flags;                   // FIELD_CUT16, FIELD_AFTER_CREATE
    T_FIELD_PLACE record;       // in the creation record (T_GADGETOBJECTINIT or T_WINDOWOBJINIT)
    T_FIELD_PLACE object;       // in t_gadget or t_Window, or in the class record
    u32 types;                  // FROM_CLASS: the gadget types (a bit each) whose class record holds it
    u32 live_bit;               // a gadget's statement has its turn only with this bit of live_flags
    const T_VAL2STRING *names;  // FIELD_NAMES and FIELD_TYPE: the name table
    const T_VAL2STRING *fixed;  // by gadget type: a text written in place of the value, in both
                                // forms, that leaves the record of the optimised form alone
} T_PAGE_FIELD;

// The statements in the writer's order; each table ends with a row whose word is null.
extern const T_PAGE_FIELD window_fields[];
extern const T_PAGE_FIELD gadget_fields[];

// The reader's index of a table: the words it reads in their deciding order, with their lengths,
// and the prefix that most of them share, so that a line is searched once for the prefix; for a
// word with the prefix, the rest of it behind the prefix.
#define FIELD_INDEX_MAX 32
typedef struct T_FIELD_INDEX {
    const char *prefix;
    u8 prefix_length;
    u8 count;
    const T_PAGE_FIELD *rows[FIELD_INDEX_MAX];
    const char *tails[FIELD_INDEX_MAX];  // null for a word without the prefix
    u8 tail_lengths[FIELD_INDEX_MAX];
} T_FIELD_INDEX;

extern const T_FIELD_INDEX window_field_index;
extern const T_FIELD_INDEX gadget_field_index;

// The row whose word decides the line: the first in deciding order that the line holds anywhere;
// null when none does.
const T_PAGE_FIELD *DecidingField(const char *line, const T_FIELD_INDEX *index);

// The writer's head of a statement: the indent, the word (behind its owner) and "=", with its
// length in `length`.
const char *FieldHead(const T_PAGE_FIELD *field, size_t *length);

// A number at `place` of `base`, widened by its sign; and stored there, cut to its width. Both
// stand here whole, since the writer and the reader use them for every statement.
static inline i64 PlaceValue(const void *base, T_FIELD_PLACE place)
{
    const u8 *at = (const u8 *)base + place.offset;
    u8 byte;
    u16 half;
    u32 word;
    switch (place.width) {
    case 1:
        memcpy(&byte, at, 1);
        return place.is_signed ? (i64)(int8_t)byte : (i64)byte;
    case 2:
        memcpy(&half, at, 2);
        return place.is_signed ? (i64)(i16)half : (i64)half;
    case 4:
        memcpy(&word, at, 4);
        return place.is_signed ? (i64)(i32)word : (i64)word;
    default:  // nowhere
        return 0;
    }
}

static inline void StorePlaceValue(void *base, T_FIELD_PLACE place, i64 value)
{
    u8 *at = (u8 *)base + place.offset;
    u8 byte = (u8)value;
    u16 half = (u16)value;
    u32 word = (u32)value;
    switch (place.width) {
    case 1:  // cut to a byte
        memcpy(at, &byte, 1);
        break;
    case 2:  // cut to 16 bits
        memcpy(at, &half, 2);
        break;
    case 4:
        memcpy(at, &word, 4);
        break;
    default:  // nowhere
        break;
    }
}
// A pointer at `place` of `base` (a text, a resource); and stored there.
const void *PlacePointer(const void *base, T_FIELD_PLACE place);
void StorePlacePointer(void *base, T_FIELD_PLACE place, const void *pointer);

// The fixed text that a gadget of `type` has for the statement, or null.
const char *FixedFieldText(const T_PAGE_FIELD *field, u16 type);

// Whether `line` (`length` characters, without the blanks around it) is one of the fixed forms
// the writer gives a statement of the tables: a NULL, the message function, a fixed text.
int IsFixedFieldLine(const char *line, size_t length);
