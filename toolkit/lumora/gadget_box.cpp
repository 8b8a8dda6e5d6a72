// Texture, scene and user gadgets: an area that the program fills in its own way, shown by the
// toolkit as a framed box with its name centred. It reports the mouse like a plain area.
#include "knobkit/knobkit_internal.h"

void DrawBoxGadget(t_gadget *g, int focused)
{
    T_RPOS r = GadgetRect(g), saved;
    if (g->live_flags & GADGET_FLAGS_SOLID)
        DrawRectangle(r.x, r.y, r.w, r.h, g->back_colour);
    if (!(g->live_flags & GADGET_FLAGS_NO_BORDER))
        DrawOutLineBox(r.x, r.y, r.w, r.h, DISPLAY_RECORD->gadget_dark_colour);
    if (PushClip(InsetRect(r, 1), &saved)) {
        const char *name = g->name ? g->name : "";
        i16 tw = (i16)GetStringWidth(name), th = (i16)GetActiveFontHeight();
        DrawText(r.x + (r.w - tw) / 2, r.y + (r.h - th) / 2, name, GadgetTextColour(g));
        PopClip(&saved);
    }
    if (focused)
        DrawGadgetFocus(g);
}
