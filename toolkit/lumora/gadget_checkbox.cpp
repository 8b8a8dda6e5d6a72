// Check box gadgets: a box with a tick when class_data is 1, the text to its right; a click
// (a release inside after a press on it) toggles class_data between 0 and 1.
#include "lumora/lumora_internal.h"

i16 CheckBoxSize(void)
{
    T_FONT *f = DISPLAY_RECORD->system_font;
    return f ? (i16)GetFontHeight(f) - 2 : 12;
}

// The text of a check box or radio button from `text_x` to the gadget's right edge, cut there.
void DrawMarkLabel(t_gadget *g, T_RPOS r, i16 text_x)
{
    T_RPOS text = {text_x, r.y, (i16)(r.x + r.w - text_x), r.h};
    DrawGadgetText(text, text_x, g->name, GadgetTextColour(g));
}

i16 DrawMarkGround(t_gadget *g, T_RPOS r)
{
    if (g->live_flags & GADGET_FLAGS_SOLID)
        DrawRectangle(r.x, r.y, r.w, r.h, g->back_colour);
    i16 s = CheckBoxSize();
    return s < r.h ? s : r.h;
}

void DrawCheckBoxGadget(t_gadget *g, int focused)
{
    T_DISPLAY_RECORD *rec = DISPLAY_RECORD;
    T_RPOS r = GadgetRect(g);
    i16 s = DrawMarkGround(g, r);
    i16 bx = r.x + 2, by = r.y + (r.h - s) / 2;
    DrawRectangle(bx, by, s, s, rec->field_colour);
    DrawBevelBox(bx, by, s, s, rec->gadget_dark_colour, rec->gadget_light_colour);
    if (g->gadget_state & GSTATE_PRESSED)
        DrawRectangle(bx + 2, by + 2, s - 4, s - 4, rec->gadget_colour);
    if (g->class_data) {  // a tick of two thick strokes
        u32 c = GadgetTextColour(g);
        i16 x0 = bx + 3, y0 = by + s / 2, x1 = bx + s / 2 - 1, y1 = by + s - 4, x2 = bx + s - 4, y2 = by + 3;
        for (i16 d = 0; d < 2; d++) {
            DrawLine(x0, y0 + d, x1, y1 + d, c);
            DrawLine(x1, y1 + d, x2, y2 + d, c);
        }
    }
    DrawMarkLabel(g, r, (i16)(bx + s + 4));
    if (focused)
        DrawGadgetFocus(g);
}

// Pressed as a button is; a click toggles the box.
u32 CheckBoxMouse(t_gadget *g, const T_MOUSE_MSG *m, const T_RPOS *rect)
{
    u32 result = ButtonMouse(g, m, rect);
    if (result == ACT_LMOUSE_UP)
        g->class_data = !g->class_data;
    return result;
}

// Space or Enter on the focused box toggles it, as a click does.
u32 CheckBoxKey(t_gadget *g, u16 key, u16 qualifiers)
{
    (void)qualifiers;
    if (key != ' ' && key != KEY_RETURN)
        return 0;
    g->class_data = !g->class_data;
    return GADGET_KEY_TAKEN | ACT_LMOUSE_UP;
}
