// Tab-order mode's overlay: each gadget's number and the links of the last BuildTabLinks.
#pragma once
#include "page/records.h"

// Draws a gadget's tab number in a box at its top left, highlighted when it holds the number
// that the next click gives (`next`, carried in the pointer), and lines to the gadgets before and
// after it. For ApplyFuncToListData; the window is paint_window.
void DrawTabNumber(void *gadget, void *next);
