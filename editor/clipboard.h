// Cut, Copy and Paste of a page's gadgets through the desktop clipboard, as GADGET blocks.
#pragma once
#include "page/records.h"

// The marked gadgets, or the current one when none is marked, go to the clipboard. Returns how
// many; 0 leaves the clipboard as it was.
u32 CopyGadgets(t_Window *page);
// Copy, then Delete (which has no undo record). Returns how many gadgets went.
u32 CutGadgets(t_Window *page);
// The clipboard's GADGET blocks become gadgets of the page, marked alone, one "Create gadget"
// record each. Returns how many were made; a text without a block changes nothing (logged).
u32 PasteGadgets(t_Window *page);
// Whether Cut and Copy have something to act on, and whether Paste has: for greying.
int CanCopyGadgets(t_Window *page);
int ClipboardHoldsGadgets(void);
// The page goes: a later paste of what was copied from it counts as foreign.
void ForgetClipboardPage(t_Window *page);
