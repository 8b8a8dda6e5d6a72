// What the gadget types of Knobkit share and no user of the toolkit sees: scroll bar parts, the
// list view of list boxes and trees, entry walks, the combo's placing and hit test, and the rows
// of the gadget class table that Knobkit provides.
#pragma once
#include "lumora/lumora_internal.h"

// Knobkit's own gadget_state bits, beside the GSTATE_ ones of lumora.h.
#define GSTATE_ON_BAR 0x200   // the press in progress is on the gadget's own scroll bar
#define GSTATE_ON_MARK 0x400  // ... and on its thumb, which is dragged

#define SCROLL_BAR_SIZE 14  // the thickness of the scroll bars that lists, trees and combos show

// Narrows the clip to `r` inside the present clip, keeping the present one in *saved; false
// when nothing of `r` is visible (the clip is then unchanged).
int PushClip(T_RPOS r, T_RPOS *saved);
void PopClip(const T_RPOS *saved);
i16 GadgetFontHeight(t_gadget *gadget);  // the gadget's font's line height
T_RPOS InsetRect(T_RPOS r, i16 by);
// A slider's or scroll bar's orientation: its flag, or with none or both, its longer side.
int GadgetHorizontal(t_gadget *gadget);
enum { ARROW_UP, ARROW_DOWN, ARROW_LEFT, ARROW_RIGHT };
void DrawArrow(T_RPOS box, int dir, u32 colour);

// --- Scroll bars (scrollbar.cpp) -----------------------------------------------------------------
// A range shown by a scroll bar: the value runs from min to max - visible.
typedef struct T_SCROLL_RANGE {
    i32 min, max;
    i32 visible;  // the part shown; the thumb's share of the track
    i32 value;
    i32 step;  // what an arrow moves
} T_SCROLL_RANGE;

typedef struct T_SCROLL_PARTS {
    T_RPOS less, more;  // the arrow buttons at the ends
    T_RPOS track;       // between them
    T_RPOS thumb;
    int horizontal;
} T_SCROLL_PARTS;

i32 ClampScroll(const T_SCROLL_RANGE *range, i32 value);
void ScrollParts(T_RPOS r, int horizontal, const T_SCROLL_RANGE *range, T_SCROLL_PARTS *parts);
void DrawScrollParts(const T_SCROLL_PARTS *parts, int disabled);
// A press at x, y: the new value. On the thumb *grab gets the offset of the point into the thumb
// and the value stays; elsewhere *grab is -1.
i32 ScrollPress(const T_SCROLL_PARTS *parts, const T_SCROLL_RANGE *range, i16 x, i16 y, i32 *grab);
i32 ScrollDrag(const T_SCROLL_PARTS *parts, const T_SCROLL_RANGE *range, i16 x, i16 y, i32 grab);

// A scroll bar's own mouse behaviour for a bar drawn inside another gadget (a list's, a combo's):
// press, drag and release on `parts`, changing range->value. The owner keeps GSTATE_ON_BAR and
// GSTATE_ON_MARK in its gadget_state and the grab in `*grab`. True when the value changed.
int ScrollBarTrack(u16 *state, i32 *grab, const T_SCROLL_PARTS *parts, T_SCROLL_RANGE *range, const T_MOUSE_MSG *msg);

// The vertical scroll bar beside a list's rows (a list box's, a tree's, a drop box's open list):
// at `bar`, w 0 when all the rows show and there is none, it scrolls `*top` through `count` rows
// of which `visible` show. The owner keeps the bar's press in *state and *grab, as above.
typedef struct T_ROW_BAR {
    T_RPOS bar;
    i32 count, visible;
    i32 *top;
    u16 *state;
    i32 *grab;
} T_ROW_BAR;
void DrawRowBar(const T_ROW_BAR *rows, int disabled);
// The bar's own events: a press or double click on it, and the moves and the release after a
// press on it, which scroll *top. True when the event was the bar's; the rows get the others.
int RowBarMouse(const T_ROW_BAR *rows, const T_MOUSE_MSG *msg);

// --- List entries (list_entries.cpp) -------------------------------------------------------------
// A walk over the rows that a list shows: its entries, or for a tree the entries whose parents
// are all open, depth first.
#define TREE_MAX_DEPTH 32

typedef struct T_ROW_WALK {
    T_LIST_ENTRY *entry;  // null past the last row
    u16 level;
    int tree;
    T_LIST_ENTRY *stack[TREE_MAX_DEPTH];  // the parents of `entry`
} T_ROW_WALK;

void FirstRow(T_ROW_WALK *walk, T_LIST_DATA *data, int tree);
void NextRow(T_ROW_WALK *walk);
i32 CountRows(T_LIST_DATA *data, int tree);
T_LIST_ENTRY *RowEntry(T_LIST_DATA *data, int tree, i32 row, u16 *level);
i32 RowOfEntry(T_LIST_DATA *data, int tree, T_LIST_ENTRY *entry);  // -1 when not shown
int HasChildren(T_LIST_ENTRY *entry);
T_LIST_DATA *NewListData(t_gadget *gadget);  // null when memory runs out
void FreeListData(t_gadget *gadget);         // the entries (or a combo's gadgets) and the record

// --- List boxes and trees (list_box.cpp, tree.cpp) -----------------------------------------------
typedef struct T_LIST_LAYOUT {
    T_RPOS inner;  // where the rows stand
    T_RPOS bar;    // the vertical scroll bar; w 0 when the rows fit
    i16 row_h;
    i32 count;  // rows in all
} T_LIST_LAYOUT;

// Measures the list (setting data->rows and clamping data->top), and clears the resize bit.
void ListLayout(t_gadget *gadget, T_LIST_LAYOUT *layout);
void DrawListRow(t_gadget *gadget, T_RPOS row, const char *text, int selected, int hot);
void ScrollRowIntoView(T_LIST_DATA *data, i32 row);
int TreeToggle(t_gadget *gadget, i32 row);  // opens or closes the row's branch; false: no children
i16 TreeIndent(t_gadget *gadget, u16 level);
T_RPOS TreeBoxRect(t_gadget *gadget, T_RPOS row, u16 level);  // the +/- box of a row

// --- Combos (combo.cpp) ---------------------------------------------------------------------------
T_RPOS ComboView(t_gadget *combo);  // the inside where the children show, bars excluded
i16 ComboInset(t_gadget *combo);

// --- Rows of the gadget class table ---------------------------------------------------------------
T_GADGET_INIT SliderInit, ScrollBarInit, ListBoxInit, DropBoxInit, ComboInit;
// A slider's or a scroll bar's record of `size` bytes, whose range (min and max, with which both
// begin) comes from `init`, hung on the gadget's class_data; null when there is no memory.
void *NewRangeRecord(t_gadget *g, const T_GADGETOBJECTINIT *init, u32 size);
T_GADGET_DRAW DrawSliderGadget, DrawScrollBarGadget, DrawListBoxGadget, DrawDropBoxGadget, DrawComboGadget;
T_GADGET_MOUSE SliderMouse, ScrollBarMouse, ListBoxMouse, DropBoxMouse, ComboMouse;
T_GADGET_KEY SliderKey, ScrollBarKey, ListBoxKey, DropBoxKey;
T_GADGET_FREE SliderFree, ScrollBarFree, DropBoxFree, ComboFree;
