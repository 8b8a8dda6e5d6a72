// One line per window and per gadget: what a generated page's program prints of the window it
// opened, and what the test prints of the editor's page, so that the two compare line by line.
#pragma once
#include <stdio.h>

#include "constants.h"
#include "types.h"

#define DESCRIPTION_LINE_SIZE 256
#define RUN_PAGE_SCREEN_W 1280  // the headless screen a page's program opens on
#define RUN_PAGE_SCREEN_H 800

static inline const char *DescribeWindow(char *line, i16 w, i16 h, u32 flags, u32 idcmp)
{
    snprintf(line, DESCRIPTION_LINE_SIZE, "window w=%d h=%d flags=0x%x idcmp=0x%x", w, h, flags, idcmp);
    return line;
}

// The icon counts only where the Icon flag shows it.
static inline const char *DescribeGadget(char *line, u16 type, i16 x, i16 y, i16 w, i16 h, u32 item_code, u32 flags,
                                         u32 back_colour, u32 text_colour, u32 action, u16 icon)
{
    snprintf(line, DESCRIPTION_LINE_SIZE,
             "gadget type=%u x=%d y=%d w=%d h=%d item_code=0x%x flags=0x%x back=0x%x text=0x%x action=0x%x "
             "icon=%u",
             type, x, y, w, h, item_code, flags, back_colour, text_colour, action,
             (flags & GADGET_FLAGS_ICON) ? icon : 0u);
    return line;
}

// The last line: whether the window was gone after ACT_TERMINATE went to it through the toolkit.
static inline const char *DescribeTermination(char *line, int removed)
{
    snprintf(line, DESCRIPTION_LINE_SIZE, "after ACT_TERMINATE: %s", removed ? "removed" : "open");
    return line;
}
