// The window message control "Window Message control": a check box for each message that the
// finished window can receive, live on the page's idcmp mask.
#pragma once
#include "page/records.h"

#define MSG_ITEM_COMBO 1
#define MSG_ITEM_FIRST_ROW 2  // row i of idcmp_names has item code i + 2

// Opens the page's message control, or brings its open one to the front.
t_Window *OpenMessageControl(t_Window *page);
u32 MessageControlMsg(t_Window *window, u32 item_code, u32 msg, void *data);
