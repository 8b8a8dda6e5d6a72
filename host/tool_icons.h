// The application's icon bank: one 24x24 icon for each gadget tool of the toolbar.
#pragma once
#include "page/catalogue.h"
#include "toolkit.h"

// The bank's size; the places in it are the catalogue's TOOL_ICON_ names.
enum {
    TOOL_ICON_COUNT = 16,
    TOOL_ICON_SIZE = 24,
};

// Null, with a log line, when the bank can't be made. Freed with FreeTextureBank.
T_TEXTURE_BANK *MakeToolIconBank(void);
