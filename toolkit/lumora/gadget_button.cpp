// Button gadgets, and the look that all gadget types share: bevel, focus frame, text colour.
#include "lumora/lumora_internal.h"

#define ICON_GAP 2

void DrawGadgetBevel(T_RPOS r, int pressed)
{
    T_DISPLAY_RECORD *rec = DISPLAY_RECORD;
    u32 light = rec->gadget_light_colour, dark = rec->gadget_dark_colour;
    DrawBevelBox(r.x, r.y, r.w, r.h, pressed ? dark : light, pressed ? light : dark);
}

void DrawGadgetFocus(t_gadget *g)
{
    DrawDottedBox(g->screen_x + 2, g->screen_y + 2, g->base_width - 4, g->base_height - 4,
                  DISPLAY_RECORD->gadget_text_colour, 0);
}

u32 GadgetTextColour(t_gadget *g)
{
    return (g->live_flags & GADGET_FLAGS_DISABLED) ? DISPLAY_RECORD->disabled_text_colour : g->text_colour;
}

// Text at x, centred on the box's height, clipped to the box within the clip already set.
void DrawGadgetText(T_RPOS box, i16 x, const char *text, u32 colour)
{
    T_RPOS clip;
    GetClip(&clip);
    T_RPOS inner = box;
    if (!RectIntersect(&inner, &clip))
        return;
    ClipInsideWindow(inner.x, inner.y, inner.x + inner.w, inner.y + inner.h);
    DrawText(x, box.y + (box.h - (i16)GetActiveFontHeight()) / 2, text, colour);
    ClipInsideWindow(clip.x, clip.y, clip.x + clip.w, clip.y + clip.h);
}

// The name centred (or at the left with LEFT_JUSTIFY) in the box.
static void DrawBoxText(t_gadget *g, T_RPOS box, int left)
{
    i16 x = left ? box.x + 4 : box.x + (box.w - (i16)GetStringWidth(g->name)) / 2;
    DrawGadgetText(box, x, g->name, GadgetTextColour(g));
}

void DrawGenericGadget(t_gadget *g, int focused)
{
    T_RPOS r = GadgetRect(g);
    if (g->live_flags & GADGET_FLAGS_SOLID)
        DrawRectangle(r.x, r.y, r.w, r.h, g->back_colour);
    DrawOutLineBox(r.x, r.y, r.w, r.h, DISPLAY_RECORD->gadget_dark_colour);
    DrawBoxText(g, r, 1);
    if (focused)
        DrawGadgetFocus(g);
}

// A plain area: it reports each event on it as it comes.
u32 GenericGadgetMouse(t_gadget *g, const T_MOUSE_MSG *m, const T_RPOS *rect)
{
    (void)g;
    if (m->mouse_action == ACT_MOUSE_MOVE)
        return 0;
    if (m->mouse_action == ACT_LMOUSE_UP || m->mouse_action == ACT_RMOUSE_UP)
        return PointBoxColl(m->x, m->y, (T_RPOS *)rect) ? m->mouse_action : 0;
    return m->mouse_action;
}

void DrawButtonGadget(t_gadget *g, int focused)
{
    T_RPOS r = GadgetRect(g);
    u32 flags = g->live_flags;
    int pressed = (g->gadget_state & GSTATE_PRESSED) || (flags & GADGET_FLAGS_DEPRESSED);
    u32 back = g->back_colour;
    if ((flags & GADGET_FLAGS_HILIGHT) || ((flags & GADGET_FLAGS_PUSH) && pressed))
        back = MixColour(back, DISPLAY_RECORD->select_colour, 64);
    DrawRectangle(r.x, r.y, r.w, r.h, back);
    if (!(flags & GADGET_FLAGS_NO_BORDER))
        DrawGadgetBevel(r, pressed);
    T_RPOS text = r;
    if (pressed)
        text.x++, text.y++;
    if ((flags & GADGET_FLAGS_ICON) && g->icon_bank) {
        i16 side = r.h - 4;
        DrawIconScaled(g->icon_bank, g->icon, text.x + 2, text.y + 2, side, side);
        text.x += side + ICON_GAP, text.w -= side + ICON_GAP;
    }
    DrawBoxText(g, text, (flags & GADGET_FLAGS_LEFT_JUSTIFY) != 0);
    if (focused)
        DrawGadgetFocus(g);
}

int EndGadgetPress(t_gadget *g)
{
    int pressed = (g->gadget_state & GSTATE_DRAGGING) != 0;
    g->gadget_state &= ~GSTATE_DRAGGING;
    return pressed;
}

// Pressed while the left button is held over it; a release inside is a click.
u32 ButtonMouse(t_gadget *g, const T_MOUSE_MSG *m, const T_RPOS *rect)
{
    int inside = PointBoxColl(m->x, m->y, (T_RPOS *)rect);
    switch (m->mouse_action) {
    case ACT_LMOUSE_DOWN:
        g->gadget_state |= GSTATE_PRESSED | GSTATE_DRAGGING;
        return ACT_LMOUSE_DOWN;
    case ACT_MOUSE_MOVE:
        if (!(g->gadget_state & GSTATE_DRAGGING))
            return 0;
        if (inside)
            g->gadget_state |= GSTATE_PRESSED;
        else
            g->gadget_state &= ~GSTATE_PRESSED;
        return 0;
    case ACT_LMOUSE_UP:
        g->gadget_state &= ~GSTATE_PRESSED;
        return EndGadgetPress(g) && inside ? ACT_LMOUSE_UP : 0;
    default:
        return m->mouse_action & GADGET_PASSED_ON;
    }
}

// Space or Enter on the focused button is a click.
u32 ButtonKey(t_gadget *g, u16 key, u16 qualifiers)
{
    (void)g, (void)qualifiers;
    if (key == ' ' || key == KEY_RETURN)
        return GADGET_KEY_TAKEN | ACT_LMOUSE_UP;
    return 0;
}
