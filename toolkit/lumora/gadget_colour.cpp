// Colour flat gadgets: a framed swatch of the colour that `data` (a T_COLOUR_DATA) holds, as
// GetConstantTRGBA gives it; without a colour record, of the gadget's back colour. A click
// reports as a button's does. A colour dropped on it is copied into its record and reported as
// ACT_LMOUSE_DROP whatever the action mask, since a drop is always meant for the swatch.
#include "knobkit/knobkit_internal.h"

#define DISABLED_VEIL 150  // how much of the back colour covers a disabled swatch

static T_COLOUR_DATA *ColourData(t_gadget *g)
{
    T_COLOUR_DATA *d = (T_COLOUR_DATA *)g->data;
    return d && d->rgba ? d : NULL;
}

void DrawColourGadget(t_gadget *g, int focused)
{
    T_DISPLAY_RECORD *rec = DISPLAY_RECORD;
    T_RPOS r = GadgetRect(g);
    int border = !(g->live_flags & GADGET_FLAGS_NO_BORDER);
    T_COLOUR_DATA *d = ColourData(g);
    T_RPOS swatch = InsetRect(r, border ? 2 : 0);
    if (border) {
        DrawRectangle(r.x, r.y, r.w, r.h, rec->gadget_colour);
        DrawBevelBox(r.x, r.y, r.w, r.h, rec->gadget_dark_colour, rec->gadget_light_colour);
    }
    DrawRectangle(swatch.x, swatch.y, swatch.w, swatch.h, d ? GetConstantTRGBA(d->rgba) : g->back_colour);
    if ((g->live_flags & GADGET_FLAGS_ICON) && g->icon_bank) {
        i16 side = swatch.w < swatch.h ? swatch.w : swatch.h;
        DrawIconScaled(g->icon_bank, g->icon, swatch.x + (swatch.w - side) / 2, swatch.y + (swatch.h - side) / 2, side,
                       side);
    }
    if (g->live_flags & GADGET_FLAGS_DISABLED)
        BlendRectangle(swatch.x, swatch.y, swatch.w, swatch.h, rec->gadget_colour, DISABLED_VEIL);
    if (focused)
        DrawGadgetFocus(g);
}

void DropColourOnGadget(t_Window *window, t_gadget *gadget, T_RGBA *rgba)
{
    if (!gadget || !rgba)
        return;
    if (!window)
        window = gadget->window;
    if (T_COLOUR_DATA *d = ColourData(gadget)) {
        *d->rgba = *rgba;
        if (d->hsia)
            RGBToHSI(d->rgba, d->hsia);
    }
    if (gadget->action_fn) {
        T_MOUSE_MSG m = {0, 0, 0, ACT_LMOUSE_DROP};
        if (window)
            m.x = window->mouse_x, m.y = window->mouse_y;
        gadget->action_fn(window, gadget, &m);
    } else {
        SendWindowMessage(window, gadget->live_item_code, ACT_LMOUSE_DROP, gadget);
    }
}
