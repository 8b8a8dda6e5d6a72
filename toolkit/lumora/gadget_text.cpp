// Text gadgets: a label, filled with its back colour under GADGET_FLAGS_SOLID; a label has no
// frame, so GADGET_FLAGS_NO_BORDER leaves it as it is. HILIGHT shows the text
// in the selection colour.
#include "lumora/lumora_internal.h"

void DrawTextGadget(t_gadget *g, int focused)
{
    (void)focused;
    T_RPOS r = GadgetRect(g);
    if (g->live_flags & GADGET_FLAGS_SOLID)
        DrawRectangle(r.x, r.y, r.w, r.h, g->back_colour);
    u32 colour = GadgetTextColour(g);
    if ((g->live_flags & GADGET_FLAGS_HILIGHT) && !(g->live_flags & GADGET_FLAGS_DISABLED))
        colour = DISPLAY_RECORD->select_colour;
    DrawGadgetText(r, r.x + 2, g->name, colour);
}
