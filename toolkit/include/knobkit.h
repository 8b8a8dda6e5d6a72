// Knobkit: the records behind sliders, scroll bars, lists, drop boxes, trees and combos.
#pragma once
#include "lumora.h"

// A slider's `class_data`.
typedef struct T_SLIDER_DATA {
    i32 min, max, step;
    i32 value;
    i16 mark_width, mark_height;
    i16 slider_width, slider_height;
    i16 track_width, track_height;
} T_SLIDER_DATA;

// A scroll bar's `class_data`.
typedef struct T_SCROLLBAR_DATA {
    i32 min, max;
    u16 init_val;    // the value
    i16 mark_width;  // the visible part, in the scroll bar's units
} T_SCROLLBAR_DATA;

#define LIST_RESIZED 0x8   // resized_flags of a list or drop box
#define TREE_RESIZED 0x40  // resized_flags of a tree

// A list entry, or a tree entry with its children.
typedef struct T_LIST_ENTRY {
    T_NODE_FIELDS(struct T_LIST_ENTRY);  // name: the text (in the entry's own block)
    t_List children;                     // a tree's branches
    u16 open;                            // a tree entry shows its children
    u16 level;
    void *user_data;
} T_LIST_ENTRY;

// The object that holds a list box's, drop box's, tree's or combo's entries: what CreateObject
// returns for those types, and their gadget's `class_data`. Its first field is the entry list.
typedef struct T_LIST_DATA {
    t_List entries;  // T_LIST_ENTRY, or a combo's gadgets
    t_gadget *gadget;
    u8 resized_flags;
    i32 top;  // first visible row (lists), or scroll offset in pixels (combos, x in top_x)
    i32 top_x;
    i32 selected;                   // selected row, -1 for none
    i32 rows;                       // visible rows, worked out at each paint
    t_gadget *scroll_v, *scroll_h;  // a combo's scroll bars
    i32 content_w, content_h;
} T_LIST_DATA;

// The data of a colour gadget: the colour as RGBA and as HSIA, and a mode word.
typedef struct T_COLOUR_DATA {
    T_RGBA *rgba;
    T_HSIA *hsia;
    u16 mode;
} T_COLOUR_DATA;

// A colour dropped on a colour gadget: copied into its data's rgba (and hsia), then reported as
// ACT_LMOUSE_DROP to its action_fn, or else to the window, whatever its action mask.
void DropColourOnGadget(t_Window *window, t_gadget *gadget, T_RGBA *rgba);

// A string gadget given this buffer as its data makes a buffer of its own, with its name as the
// starting text: what a generated page's "gadinit.data=&PutStringName;" asks for.
#define STRINGS_MAX_SIZE 255
extern char PutStringName[STRINGS_MAX_SIZE + 1];

#define BRANCH_OPEN 0x1  // NewBranch: the entry starts open

// The height, at most `height`, at which a list box shows whole rows: no row is cut at its foot.
i16 ListHeightForWholeRows(t_gadget *list_box, i16 height);

T_LIST_ENTRY *NewBranch(t_List *list, T_LIST_ENTRY *after, const char *text, u32 flags);
// Frees every entry of the list with its children; the list is left empty.
void FreeListEntries(t_List *entries);
// Gadgets created between these two go into the combo whose list is `list`.
void SaveSetGadgetList(t_Window *window, t_List *list);
void RestoreGadgetList(t_Window *window);
void SetComboScrollBars(t_gadget *combo);
// Scrolls the combo that holds `gadget` (and the combos around that one) by the least move that
// shows the gadget whole, as far as the combos' bars allow; one longer than the view shows its
// start. Across, a gadget whose start shows is left where it is. A gadget outside any combo is
// left as it is.
void ScrollComboToGadget(t_gadget *gadget);
