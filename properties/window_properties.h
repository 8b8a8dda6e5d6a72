// The window properties dialog: the page window's flags and name, live on the page, with the
// doors to the message control and the source file information.
#pragma once
#include "page/records.h"

#define WINPROP_ITEM_COMBO 1
#define WINPROP_ITEM_BACKDROP 2
#define WINPROP_ITEM_FULLSCREEN 5
#define WINPROP_ITEM_BORDER 10
#define WINPROP_ITEM_TITLE_BAR 12
#define WINPROP_ITEM_SOURCE_FILE 20
#define WINPROP_ITEM_SET_IDCMP 21
#define WINPROP_ITEM_NAME 22  // the name field: a code of its own, so typing a name switches no flag

t_Window *OpenWindowProperties(t_Window *page);
u32 WindowPropertiesMsg(t_Window *window, u32 item_code, u32 msg, void *data);
// Greys the box after "Border" while it is off, and the six after "Title Bar" while it is off.
void UpdateFrameBoxes(t_Window *dialog);
// The window flag that a box shows (its item code), or 0.
u32 WindowBoxBit(u32 item_code);
