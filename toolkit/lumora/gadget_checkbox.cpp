// Check box gadgets: a box with a tick when class_data is 1, the text to its right; a click
// (a release inside after a press on it) toggles class_data between 0 and 1.
#include "lumora/lumora_internal.h"

i16 CheckBoxSize(void) {
    T_FONT *f = DISPLAY_RECORD->system_font;
    return f ? (i16)GetFontHeight(f) - 2 : 12;
}

void DrawCheckBoxGadget(t_gadget *g, int focused) {
    T_DISPLAY_RECORD *rec = DISPLAY_RECORD;
    T_RPOS r = GadgetRect(g);
    if (g->live_flags & GADGET_FLAGS_SOLID) DrawRectangle(r.x, r.y, r.w, r.h, g->back_colour);
    i16 s = CheckBoxSize();
    if (s > r.h) s = r.h;
    i16 bx = r.x + 2, by = r.y + (r.h - s) / 2;
    DrawRectangle(bx, by, s, s, rec->field_colour);
    DrawBevelBox(bx, by, s, s, rec->gadget_dark_colour, rec->gadget_light_colour);
    if (g->gadget_state & GSTATE_PRESSED) DrawRectangle(bx + 2, by + 2, s - 4, s - 4, rec->gadget_colour);
    if (g->class_data) {  // a tick of two thick strokes
        u32 c = GadgetTextColour(g);
        i16 x0 = bx + 3, y0 = by + s / 2, x1 = bx + s / 2 - 1, y1 = by + s - 4, x2 = bx + s - 4, y2 = by + 3;
        for (i16 d = 0; d < 2; d++) {
            DrawLine(x0, y0 + d, x1, y1 + d, c);
            DrawLine(x1, y1 + d, x2, y2 + d, c);
        }
    }
    T_RPOS clip;
    GetClip(&clip);
    T_RPOS text = {(i16)(bx + s + 4), r.y, (i16)(r.w - s - 6), r.h};
    if (RectIntersect(&text, &clip)) {
        ClipInsideWindow(text.x, text.y, text.x + text.w, text.y + text.h);
        DrawText(bx + s + 4, r.y + (r.h - (i16)GetActiveFontHeight()) / 2, g->name,
                 GadgetTextColour(g));
        ClipInsideWindow(clip.x, clip.y, clip.x + clip.w, clip.y + clip.h);
    }
    if (focused) DrawGadgetFocus(g);
}

u32 CheckBoxMouse(t_gadget *g, const T_MOUSE_MSG *m, const T_RPOS *rect) {
    int inside = PointBoxColl(m->x, m->y, (T_RPOS *)rect);
    switch (m->mouse_action) {
    case ACT_LMOUSE_DOWN:
        g->gadget_state |= GSTATE_PRESSED | GSTATE_DRAGGING;
        return ACT_LMOUSE_DOWN;
    case ACT_MOUSE_MOVE:
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
        g->class_data = !g->class_data;
        return ACT_LMOUSE_UP;
    }
    default:
        return m->mouse_action & (ACT_LMOUSE_DBL | ACT_RMOUSE_DOWN | ACT_RMOUSE_UP);
    }
}

// Space or Enter on the focused box toggles it, as a click does.
u32 CheckBoxKey(t_gadget *g, u16 key, u16 qualifiers) {
    (void)qualifiers;
    if (key != ' ' && key != KEY_RETURN) return 0;
    g->class_data = !g->class_data;
    return GADGET_KEY_TAKEN | ACT_LMOUSE_UP;
}
