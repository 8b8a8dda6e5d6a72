// The main menu's commands on a page: the selection, tab-order entry, the history's steps, the
// clipboard and flipping, and the preview. The main window's command table names each with the
// page and, where a command has forms, the form it wants.
#pragma once
#include "page/records.h"

// Sets, clears or toggles the selection mark of every gadget, and nothing else.
enum { MARK_SET, MARK_CLEAR, MARK_TOGGLE };
void MarkAllGadgets(t_Window *page, u32 how);
// Enters tab-order mode: the next click gives number 1, and the gadgets without a number take
// the one after the gadget before them in the list.
void EnterTabOrder(t_Window *page);
// One step back or forth in the page's history; no gadget stays current. Undo down to the first
// record leaves the page clean, Redo marks it; the main window's menus follow.
enum { HISTORY_BACK, HISTORY_FORTH };
void StepHistory(t_Window *page, u32 direction);
// Cut, Copy, Paste (editor/clipboard.h) or Flip Horizontal (FlipMarkedGadgets) on the page; the
// main window's menus follow.
enum { EDIT_CUT, EDIT_COPY, EDIT_PASTE, EDIT_FLIP };
void EditMarkedGadgets(t_Window *page, u32 operation);
// Opens the page's preview (editor/preview.h).
void PreviewPage(t_Window *page);
