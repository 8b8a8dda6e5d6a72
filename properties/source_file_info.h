// The source file information window: what the page's file holds that the next save won't keep.
#pragma once
#include "page/records.h"

#define INFO_ITEM_LIST 1
#define INFO_ITEM_OK 2

t_Window *OpenSourceFileInfo(t_Window *page);
u32 SourceFileInfoMsg(t_Window *window, u32 item_code, u32 msg, void *data);
// Fills the list: the file's full path, size and time of change, the lines read, then each line
// that the reader passed over, with its number.
void FillSourceFileInfo(t_Window *page, t_List *entries);
