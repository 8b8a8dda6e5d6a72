// The main menu's commands on a page: the selection, tab-order entry, the history's steps, the
// clipboard, flipping and centring. Each takes the page alone, so that the main window's command
// table names them.
#pragma once
#include "page/records.h"

// Set, clear or toggle the selection mark of every gadget, and nothing else.
void SelectAllGadgets(t_Window *page);
void SelectNoGadgets(t_Window *page);
void InvertGadgetSelection(t_Window *page);
// Enters tab-order mode: the next click gives number 1, and the gadgets without a number take
// the one after the gadget before them in the list.
void EnterTabOrder(t_Window *page);
// One step back or forth in the page's history; no gadget stays current. Undo down to the first
// record leaves the page clean, Redo marks it; the main window's menus follow.
void UndoPageStep(t_Window *page);
void RedoPageStep(t_Window *page);
// Cut, Copy, Paste and Flip Horizontal on the page (editor/clipboard.h, FlipMarkedGadgets); the
// main window's menus follow.
void CutToClipboard(t_Window *page);
void CopyToClipboard(t_Window *page);
void PasteFromClipboard(t_Window *page);
void FlipHorizontal(t_Window *page);
// CentreMarkedGadgets in each direction.
void CentreHorizontally(t_Window *page);
void CentreVertically(t_Window *page);
// Opens the page's preview (editor/preview.h).
void PreviewPage(t_Window *page);
