// The operations on a page's gadgets as a group: delete, centre, size to contents, align, same
// size, font, the context menu's form of the size and alignment items, flip, nudge and the
// renumbering of item codes.
#pragma once
#include "page/records.h"

#define CENTRE_HORIZONTAL 0x400
#define CENTRE_VERTICAL 0x800
#define ALIGN_LEFT_EDGES 3
#define ALIGN_TOP_EDGES 1
#define FONT_NAME_SIZE 256  // a font's file name

// If nothing is marked, the current gadget (when there is one) is marked: commands then act on it.
void MarkCurrentIfNothingMarked(t_Window *window);
void DeleteMarkedGadgets(t_Window *window);
// direction CENTRE_HORIZONTAL, any other value vertical.
void CentreMarkedGadgets(t_Window *window, u32 direction);
void SizeMarkedToContents(t_Window *window);
// Fits a gadget to its text in its font and style; also used by the properties dialog.
void SizeGadgetToContents(t_Window *window, t_gadget *gadget);
// edge ALIGN_LEFT_EDGES or ALIGN_TOP_EDGES; the current gadget is the reference. Without a
// current gadget nothing changes, the marks neither.
void AlignMarkedGadgets(t_Window *window, u32 edge);
void SameSizeMarkedGadgets(t_Window *window);
// The font picked in the font selector `selector` goes to the marked gadgets (each its own
// resource). A selector that gives no font changes no gadget.
void ApplyFontToMarked(t_Window *window, t_Window *selector);
// The child window of the page that edits the gadget (its record begins with the gadget), or null.
t_Window *FindGadgetPropertyWindow(t_Window *window, t_gadget *gadget);
// Ends every dialog that edits the gadget (its properties, its action editors, their selectors)
// without applying anything; their records go with their windows.
void CloseGadgetDialogs(t_Window *window, t_gadget *gadget);
// The gadget context menu's items 0xE004 to 0xE007: the operation with a geometry record for each
// gadget it changed, the marks cleared, and the main window's menus refreshed.
void ApplyGadgetMenuCommand(t_Window *window, u32 item_code);
// Mirrors the marked gadgets inside the box that holds them all, left edge to right edge, with a
// geometry record for each ("Move gadget"); the marks stay. Nothing marked: nothing changes.
void FlipMarkedGadgets(t_Window *window);
// Moves the marked gadgets by dx, dy (against the mouse for those placed from the right or the
// bottom, as a drag moves them), with a geometry record for each. False when nothing is marked.
int NudgeMarkedGadgets(t_Window *window, i16 dx, i16 dy);
// Numbers item_code and live_item_code from 1 in list order; gadgets with code 0 (groups) keep
// it. The tab links follow the gadgets they named, and the page is marked as modified.
void ReorderItemCodes(t_Window *window);
