// The gadget catalogue: one row a gadget kind, from its tool index and toolbar entry to its
// defaults, and the making of a live gadget of a kind on a page with the next free item code.
#pragma once
#include "page/records.h"

// Tool indexes: a kind's place on the toolbar (0 the selector, which makes nothing), then the kinds
// that only come out of a page file. Named for what they make: the toolbar calls tool 4 "Vertical
// Slider" and tool 9 "Horizontal scrollbar".
enum {
    TOOL_SELECTOR = 0,
    TOOL_CHECK_BOX = 1,
    TOOL_LIST_BOX = 2,
    TOOL_RADIO_BUTTON = 3,
    TOOL_SLIDER_H = 4,
    TOOL_SLIDER_V = 5,
    TOOL_TEXT = 6,
    TOOL_STRING = 7,
    TOOL_TREE = 8,
    TOOL_SCROLLBAR_V = 9,
    TOOL_SCROLLBAR_H = 10,
    TOOL_GROUP = 11,
    TOOL_BUTTON = 12,
    TOOL_DROP_BOX = 13,  // the toolbar's last
    TOOL_FLAT_COLOUR = 14,
    TOOL_TEXTURE = 15,
    TOOL_SCENE = 16,
    TOOL_USER = 17,
    TOOL_COUNT,
    TOOL_FIRST = TOOL_CHECK_BOX,  // the first that makes a gadget
};

// Places of the toolbar's pictures in the application's icon bank, which the host draws; 1 and 8
// stay empty.
enum {
    TOOL_ICON_CHECK_BOX = 0,
    TOOL_ICON_LIST_BOX = 2,
    TOOL_ICON_SELECTOR = 3,
    TOOL_ICON_RADIO_BUTTON = 4,
    TOOL_ICON_VERTICAL_SLIDER = 5,
    TOOL_ICON_TEXT = 6,
    TOOL_ICON_STRING = 7,
    TOOL_ICON_TREE = 9,
    TOOL_ICON_HORIZONTAL_SCROLLBAR = 10,
    TOOL_ICON_VERTICAL_SCROLLBAR = 11,
    TOOL_ICON_GROUP = 12,
    TOOL_ICON_BUTTON = 13,
    TOOL_ICON_DROP_BOX = 14,
    TOOL_ICON_HORIZONTAL_SLIDER = 15,
};

// What sets a kind apart, beside its columns (traits of a row).
enum {
    KIND_TEXT_FROM_FILE = 0x001,     // a 256-byte buffer of its own is its name; the reader fills it
    KIND_SIZES_TO_CONTENTS = 0x002,  // "Size to contents" fits it to its text
    KIND_NO_ITEM_CODE = 0x004,       // takes no item code and reports nothing (the group)
    KIND_CLICKABLE = 0x008,          // GADGET_FLAGS_PASSIVE taken out, so that the editor can click it
    KIND_OWN_FLAGS = 0x010,          // takes none of the caller's flags (the tree)
    KIND_FLAGS_AS_GIVEN = 0x020,     // its design flags are the caller's with the orientation
    KIND_RANGE = 0x040,              // min, max, step from the caller; starts halfway; marks across
    KIND_NO_ICON_BANK = 0x080,
    KIND_NO_FONT = 0x100,   // neither font nor cursor goes in
    KIND_BRANCHES = 0x200,  // its sample entries are three levels of branches
};

// What a kind's creation record takes as its data.
enum {
    KIND_DATA_NONE,
    KIND_DATA_STRING_BUFFER,  // a 256-byte buffer, which becomes its user_data and holds the default text
    KIND_DATA_FLAT_COLOUR,    // the module-wide colour record
    KIND_DATA_TEXTURE,        // a zeroed texture record whose sixth word is 16
    KIND_DATA_SCENE,          // a zeroed scene record
};

// One gadget kind: a tool index is the place of its row. A row names only the fields it sets; the
// others are 0.
typedef struct T_CATALOGUE_ROW {
    u16 type = 0;                     // 0 for the selector
    u32 orientation = 0;              // added to the caller's flags
    const char *label = NULL;         // the toolbar entry's; null for a kind only a file makes
    u16 icon = 0;                     // the toolbar entry's picture, a TOOL_ICON_ place
    u32 item_code = 0;                // the toolbar entry's, which nothing reads
    const char *object_text = NULL;   // the text given to CreateObject
    const char *default_text = NULL;  // what the name buffer, or the string's buffer, starts with
    u32 extra_flags = 0;              // added to the caller's flags at creation
    u16 traits = 0;                   // KIND_ bits
    u8 data = KIND_DATA_NONE;         // KIND_DATA_
    u16 gadget_icon = 0;              // the creation record's icon
    i32 init_val = 0, max = 0;        // the creation record's, where not from the caller
    i16 mark_width = 0;
    u8 entry_count = 0;               // sample entries: of the list, or of each level of branches
    const char *entry_format = NULL;  // the text of a sample entry, with its number from 0
    u32 row_mask = 0;                 // the flag rows that the properties dialog shows
} T_CATALOGUE_ROW;

extern const T_CATALOGUE_ROW catalogue_rows[TOOL_COUNT];

// What CreateGadgetByTool takes from the caller's record for the kind.
typedef struct T_GADGET_TOOL_ARGS {
    t_Window *window;
    t_Gaget_Handler *gadget_handler;
    i16 x, y;
    i16 base_width, base_height;
    const char *font;
    const char *hover_text;
    u32 flags;  // the caller's flags with the tool's orientation
    i32 min, max, step;
    u16 cursor;
    u32 tab[2];
} T_GADGET_TOOL_ARGS;

// The new gadget, or null for a tool outside 1 to 17.
t_gadget *CreateGadgetByTool(t_Window *window, i16 tool, T_GADGETOBJECTINIT *init);
// The first row of this gadget type, null for a type that no tool makes.
const T_CATALOGUE_ROW *CatalogueRowOfType(u16 type);
// Whether this gadget type's kind has the KIND_ trait; no for a type that no tool makes.
int GadgetKindHas(u16 type, u16 trait);
// The tool that makes a gadget of this type and flags, 0 for none. Where two tools make the type,
// GADGET_FLAGS_HORIZONTAL in the flags picks the horizontal one.
i16 ToolOfType(u16 type, u32 flags);
// The action mask a new gadget of this type starts with: what a finished program's gadget reports.
u32 DesignActionOfType(u16 type);
// The smallest positive item code that no gadget of the list has; 1 for an empty list.
u32 NextFreeItemCode(t_gadget *first);
