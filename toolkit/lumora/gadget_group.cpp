// Group gadgets: a frame with its title set into the top edge; passive, so that what stands
// inside takes the mouse (a group with an action_fn, on a page, still takes it). The frame is
// etched; under GADGET_FLAGS_NO_BORDER it is a flat line, which new groups of a page carry.
// The title stands centred, or at the left with LEFT_JUSTIFY; HILIGHT shows it in the selection
// colour.
#include "knobkit/knobkit_internal.h"

#define TITLE_INDENT 8  // a left-justified title's distance from the frame's corner
#define TITLE_GAP 3     // the frame stops this far before and after the title

void DrawGroupGadget(t_gadget *g, int focused)
{
    (void)focused;
    T_DISPLAY_RECORD *rec = DISPLAY_RECORD;
    T_RPOS r = GadgetRect(g);
    if (g->live_flags & GADGET_FLAGS_SOLID)
        DrawRectangle(r.x, r.y, r.w, r.h, g->back_colour);
    const char *title = g->name ? g->name : "";
    i16 th = (i16)GetActiveFontHeight(), tw = (i16)GetStringWidth(title);
    if (tw > r.w - 2 * TITLE_INDENT)
        tw = r.w - 2 * TITLE_INDENT;
    if (tw < 0)
        tw = 0;
    i16 tx = (g->live_flags & GADGET_FLAGS_LEFT_JUSTIFY) ? r.x + TITLE_INDENT : r.x + (r.w - tw) / 2;
    i16 top = r.y + th / 2;
    T_RPOS frame = {r.x, top, r.w, (i16)(r.h - th / 2)};
    i16 gap_from = title[0] ? tx - TITLE_GAP : frame.x, gap_to = title[0] ? tx + tw + TITLE_GAP : frame.x;
    int etched = !(g->live_flags & GADGET_FLAGS_NO_BORDER);
    for (int pass = 0; pass < 1 + etched; pass++) {  // the dark line, then the light one inside it
        u32 c = pass ? rec->gadget_light_colour : rec->gadget_dark_colour;
        i16 shrink = etched ? 1 - pass : 0;
        i16 x0 = frame.x + pass, y0 = frame.y + pass;
        i16 x1 = frame.x + frame.w - 1 - shrink, y1 = frame.y + frame.h - 1 - shrink;
        if (gap_from > x0)
            DrawLine(x0, y0, gap_from, y0, c);
        if (gap_to < x1)
            DrawLine(gap_to, y0, x1, y0, c);
        DrawLine(x0, y0, x0, y1, c);
        DrawLine(x0, y1, x1, y1, c);
        DrawLine(x1, y0, x1, y1, c);
    }
    u32 colour = GadgetTextColour(g);
    if ((g->live_flags & GADGET_FLAGS_HILIGHT) && !(g->live_flags & GADGET_FLAGS_DISABLED))
        colour = rec->select_colour;
    T_RPOS saved;
    if (PushClip(T_RPOS{tx, r.y, tw, th}, &saved)) {
        DrawText(tx, r.y, title, colour);
        PopClip(&saved);
    }
}
