// Hand-written lines: the lines of a page's file that the reader passed over and no save writes.
#pragma once
#include "page/records.h"

// How many of the lines that the reader passed over in the page's file `path` are hand-written
// (match no form of the writer's lines), with the first `max_numbers` of their line numbers
// (from 1) in `numbers`. 0 for a page that was never read, or a file that can't be read now.
u32 CountHandWrittenLines(const T_WINEDIT_HANDLER *record, const char *path, u32 *numbers, u32 max_numbers);
