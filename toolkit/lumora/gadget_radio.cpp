// Radio buttons: a round box with a dot when class_data is 1, the text to its right. A click (a
// release inside after a press on it), Space or Enter sets it and clears the other radio buttons
// of its run: the radio buttons next to it in its list with no other gadget between.
#include "lumora/lumora_internal.h"

// A disc of radius r around cx, cy, row by row.
static void FillDisc(i16 cx, i16 cy, i16 r, u32 colour)
{
    for (i16 dy = -r; dy <= r; dy++) {
        i16 dx = 0;
        while ((dx + 1) * (dx + 1) + dy * dy <= r * r)
            dx++;
        DrawLine(cx - dx, cy + dy, cx + dx, cy + dy, colour);
    }
}

static int IsRadio(t_gadget *g)
{
    return g->next && g->prev && g->type == GADGET_TYPE_RADIOBUTTON;
}

static void SetRadio(t_gadget *g)
{
    for (t_gadget *o = g->prev; IsRadio(o); o = o->prev)
        o->class_data = 0;
    for (t_gadget *o = g->next; IsRadio(o); o = o->next)
        o->class_data = 0;
    g->class_data = 1;
}

void DrawRadioGadget(t_gadget *g, int focused)
{
    T_DISPLAY_RECORD *rec = DISPLAY_RECORD;
    T_RPOS r = GadgetRect(g);
    i16 s = DrawMarkGround(g, r);
    i16 radius = (s - 1) / 2, cx = r.x + 2 + radius, cy = r.y + r.h / 2;
    FillDisc(cx, cy, radius, rec->gadget_dark_colour);
    u32 inside = (g->gadget_state & GSTATE_PRESSED) || (g->live_flags & GADGET_FLAGS_DEPRESSED) ? rec->gadget_colour
                                                                                                : rec->field_colour;
    FillDisc(cx, cy, radius - 1, inside);
    if (g->class_data)
        FillDisc(cx, cy, radius / 2, GadgetTextColour(g));
    DrawMarkLabel(g, r, (i16)(r.x + s + 6));
    if (focused)
        DrawGadgetFocus(g);
}

// Pressed as a button is; a click sets this one of its run.
u32 RadioMouse(t_gadget *g, const T_MOUSE_MSG *m, const T_RPOS *rect)
{
    u32 result = ButtonMouse(g, m, rect);
    if (result == ACT_LMOUSE_UP)
        SetRadio(g);
    return result;
}

u32 RadioKey(t_gadget *g, u16 key, u16 qualifiers)
{
    (void)qualifiers;
    if (key != ' ' && key != KEY_RETURN)
        return 0;
    SetRadio(g);
    return GADGET_KEY_TAKEN | ACT_LMOUSE_UP;
}
