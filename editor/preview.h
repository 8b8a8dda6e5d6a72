// Preview: a copy of a page that behaves as the finished program will.
#pragma once
#include "page/records.h"

// Opens a preview of the page in front of the main window (a preview of it already open goes
// first), with the focus on the first gadget of its tab order. Null when there is no page or the
// window can't be made. Nothing of the page changes.
t_Window *OpenPreview(t_Window *page);
// The preview window's message function.
u32 PreviewMessage(t_Window *window, u32 item_code, u32 msg, void *data);
