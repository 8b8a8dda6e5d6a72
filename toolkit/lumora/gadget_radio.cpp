// Radio buttons: a round box with a dot when class_data is 1, the text to its right. A click (a
// release inside after a press on it), Space or Enter sets it and clears the other radio buttons
// of its run: the radio buttons next to it in its list with no other gadget between.
#include "lumora/lumora_internal.h"

// A disc of radius r around cx, cy, row by row.
static void FillDisc(i16 cx, i16 cy, i16 r, u32 colour) {
    for (i16 dy = -r; dy <= r; dy++) {
        i16 dx = 0;
        while ((dx + 1) * (dx + 1) + dy * dy <= r * r) dx++;
        DrawLine(cx - dx, cy + dy, cx + dx, cy + dy, colour);
    }
}

static int IsRadio(t_gadget *g) { return g->next && g->prev && g->type == GADGET_TYPE_RADIOBUTTON; }

static void SetRadio(t_gadget *g) {
    for (t_gadget *o = g->prev; IsRadio(o); o = o->prev) o->class_data = 0;
    for (t_gadget *o = g->next; IsRadio(o); o = o->next) o->class_data = 0;
    g->class_data = 1;
}

void DrawRadioGadget(t_gadget *g, int focused) {
    T_DISPLAY_RECORD *rec = DISPLAY_RECORD;
    T_RPOS r = GadgetRect(g);
    if (g->live_flags & GADGET_FLAGS_SOLID) DrawRectangle(r.x, r.y, r.w, r.h, g->back_colour);
    i16 s = CheckBoxSize();
    if (s > r.h) s = r.h;
    i16 radius = (s - 1) / 2, cx = r.x + 2 + radius, cy = r.y + r.h / 2;
    FillDisc(cx, cy, radius, rec->gadget_dark_colour);
    u32 inside = (g->gadget_state & GSTATE_PRESSED) || (g->live_flags & GADGET_FLAGS_DEPRESSED)
                     ? rec->gadget_colour : rec->field_colour;
    FillDisc(cx, cy, radius - 1, inside);
    if (g->class_data) FillDisc(cx, cy, radius / 2, GadgetTextColour(g));
    T_RPOS clip;
    GetClip(&clip);
    T_RPOS text = {(i16)(r.x + s + 6), r.y, (i16)(r.w - s - 8), r.h};
    if (RectIntersect(&text, &clip)) {
        ClipInsideWindow(text.x, text.y, text.x + text.w, text.y + text.h);
        DrawText(r.x + s + 6, r.y + (r.h - (i16)GetActiveFontHeight()) / 2, g->name, GadgetTextColour(g));
        ClipInsideWindow(clip.x, clip.y, clip.x + clip.w, clip.y + clip.h);
    }
    if (focused) DrawGadgetFocus(g);
}

u32 RadioMouse(t_gadget *g, const T_MOUSE_MSG *m, const T_RPOS *rect) {
    int inside = PointBoxColl(m->x, m->y, (T_RPOS *)rect);
    switch (m->mouse_action) {
    case ACT_LMOUSE_DOWN:
        g->gadget_state |= GSTATE_PRESSED | GSTATE_DRAGGING;
        return ACT_LMOUSE_DOWN;
    case ACT_MOUSE_MOVE:  // pressed while the pointer stays on it
        if (!(g->gadget_state & GSTATE_DRAGGING)) return 0;
        if (inside)
            g->gadget_state |= GSTATE_PRESSED;
        else
            g->gadget_state &= ~GSTATE_PRESSED;
        return 0;
    case ACT_LMOUSE_UP: {
        int armed = (g->gadget_state & GSTATE_DRAGGING) != 0;
        g->gadget_state &= ~(GSTATE_PRESSED | GSTATE_DRAGGING);
        if (!armed || !inside) return 0;
        SetRadio(g);
        return ACT_LMOUSE_UP;
    }
    default:
        return m->mouse_action & (ACT_LMOUSE_DBL | ACT_RMOUSE_DOWN | ACT_RMOUSE_UP);
    }
}

u32 RadioKey(t_gadget *g, u16 key, u16 qualifiers) {
    (void)qualifiers;
    if (key != ' ' && key != KEY_RETURN) return 0;
    SetRadio(g);
    return GADGET_KEY_TAKEN | ACT_LMOUSE_UP;
}
