// The application's icon bank: one 24x24 icon for each gadget tool of the toolbar.
#pragma once
#include "toolkit.h"

// Places in the bank, as the toolbar's table names them; 1 and 8 are not used and stay empty.
enum {
    TOOL_ICON_CHECK_BOX = 0,
    TOOL_ICON_LIST_BOX = 2,
    TOOL_ICON_SELECTOR = 3,
    TOOL_ICON_RADIO_BUTTON = 4,
    TOOL_ICON_VERTICAL_SLIDER = 5,
    TOOL_ICON_TEXT = 6,
    TOOL_ICON_STRING = 7,
    TOOL_ICON_TREE = 9,
    TOOL_ICON_HORIZONTAL_SCROLLBAR = 10,
    TOOL_ICON_VERTICAL_SCROLLBAR = 11,
    TOOL_ICON_GROUP = 12,
    TOOL_ICON_BUTTON = 13,
    TOOL_ICON_DROP_BOX = 14,
    TOOL_ICON_HORIZONTAL_SLIDER = 15,
    TOOL_ICON_COUNT = 16,
    TOOL_ICON_SIZE = 24,
};

// Null, with a log line, when the bank can't be made. Freed with FreeTextureBank.
T_TEXTURE_BANK *MakeToolIconBank(void);
