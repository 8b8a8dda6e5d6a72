// Tab-order mode's overlay: each gadget shows its number in a box at its top left, and lines run
// to the gadgets before (red) and after (green) it as the last BuildTabLinks left the links.
// Entering the mode is the main window's command; leaving it is Escape on the page.
#include "editor/tab_order.h"

#include <stdio.h>

#include "editor/page_painter.h"

#define TAB_TEXT_NO_CODE "X"   // shown by a gadget without an item code
#define TAB_BOX_PADDING 4      // the box is the text and this much more each way
#define TAB_LINE_BEFORE 0xFF   // red
#define TAB_LINE_AFTER 0xFF00  // green

// A line from the gadget's top left to the top left of the gadget with item code `code`, if any.
static void DrawTabLink(t_gadget *gadget, u32 code, u32 colour)
{
    if (code == 0 || !paint_window)
        return;
    t_gadget *other = FindGadgetByCode(paint_window, code);
    if (other)
        DrawLine(gadget->screen_x, gadget->screen_y, other->screen_x, other->screen_y, colour);
}

void DrawTabNumber(void *node, void *next)
{
    t_gadget *gadget = (t_gadget *)node;
    u32 next_number = (u32)(uintptr_t)next;
    char text[16];
    if (gadget->item_code != 0)
        snprintf(text, sizeof(text), "%d", (int)gadget->tab_index);
    else
        snprintf(text, sizeof(text), "%s", TAB_TEXT_NO_CODE);
    i16 x = gadget->screen_x, y = gadget->screen_y;
    T_DISPLAY_RECORD *colours = DISPLAY_RECORD;
    SetConsoleXY((i16)(x + 1), (i16)(y + 1));
    SetConsoleColour(colours->number_text_colour);
    // The gadget that holds the number the next click gives stands out.
    u32 box = gadget->item_code != 0 && gadget->tab_index == next_number ? colours->handle_colour
                                                                         : colours->number_back_colour;
    DrawRectangle(x, y, (i16)(GetStringWidth(text) + TAB_BOX_PADDING), (i16)(GetActiveFontHeight() + TAB_BOX_PADDING),
                  box);
    Print(text);
    if (gadget->item_code == 0)
        return;
    DrawTabLink(gadget, gadget->tab[0] & ~TAB_LINK_FIRST, TAB_LINE_BEFORE);
    DrawTabLink(gadget, gadget->tab[1], TAB_LINE_AFTER);
}
