// A page window: its creation from a box, and its message function.
#pragma once
#include "editor/mouse_editing.h"
#include "page/records.h"

#define PAGE_HANDLER_NAME "WinEdit"
#define PAGE_HANDLER_PRIORITY -10
#define PAGE_MIN_WIDTH 32
#define PAGE_MIN_HEIGHT 12
#define FONT_PATTERN_NODE_SIZE 16  // the nodes of the font selector's pattern list

// Item codes of what answers a page.
#define PAGE_ITEM_SAVE_AS 0   // the "Save Source as" selector
#define PAGE_ITEM_QUERY 1     // the close query; with ACT_RECEIVE_OBJECT a colour
#define PAGE_ITEM_FONT 2      // the "Choose font" selector; with ACT_RECEIVE_OBJECT a bitmap

// Makes a page window from a box given by two corners relative to the parent's user area; null
// when the box is below 32 by 12, in which case nothing was created.
t_Window *CreatePageWindow(t_Window *parent, char *name, u32 flags, i16 x1, i16 y1, i16 x2, i16 y2);
u32 PageMessage(t_Window *window, u32 item_code, u32 msg, void *data);
// Removes a page: the main window forgets it as the active page first.
void RemovePage(t_Window *window, int second_refresh);
