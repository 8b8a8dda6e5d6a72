// Small drawing helpers that the gadget types of Knobkit and the later types of Lumora share:
// narrowing the clip to a part of a gadget, the gadget's line height, an inset rectangle.
#include "knobkit/knobkit_internal.h"

#define FALLBACK_FONT_HEIGHT 13  // when no font could be read

int PushClip(T_RPOS r, T_RPOS *saved)
{
    GetClip(saved);
    if (!RectIntersect(&r, saved))
        return 0;
    ClipInsideWindow(r.x, r.y, r.x + r.w, r.y + r.h);
    return 1;
}

void PopClip(const T_RPOS *saved)
{
    ClipInsideWindow(saved->x, saved->y, saved->x + saved->w, saved->y + saved->h);
}

i16 GadgetFontHeight(t_gadget *gadget)
{
    T_FONT *font = gadget->font ? FontOfResource(gadget->font) : NULL;
    if (!font)
        font = DISPLAY_RECORD->system_font;
    return font ? (i16)GetFontHeight(font) : FALLBACK_FONT_HEIGHT;
}

T_RPOS InsetRect(T_RPOS r, i16 by)
{
    T_RPOS inner = {(i16)(r.x + by), (i16)(r.y + by), (i16)(r.w - 2 * by), (i16)(r.h - 2 * by)};
    if (inner.w < 0)
        inner.w = 0;
    if (inner.h < 0)
        inner.h = 0;
    return inner;
}

int GadgetHorizontal(t_gadget *gadget)
{
    u32 xy = gadget->live_flags & GADGET_FLAGS_XY;
    if (xy == GADGET_FLAGS_HORIZONTAL)
        return 1;
    if (xy == GADGET_FLAGS_VERTICAL)
        return 0;
    return gadget->base_width > gadget->base_height;
}

// A small solid triangle in the middle of `box`, pointing the way of `dir`.
void DrawArrow(T_RPOS box, int dir, u32 colour)
{
    i16 s = (box.w < box.h ? box.w : box.h) / 4;
    if (s < 2)
        s = 2;
    i16 cx = box.x + box.w / 2, cy = box.y + box.h / 2;
    for (i16 i = 0; i <= s; i++) {  // rows from the tip
        switch (dir) {
        case ARROW_UP:
            DrawLine(cx - i, cy - s / 2 + i, cx + i, cy - s / 2 + i, colour);
            break;
        case ARROW_DOWN:
            DrawLine(cx - i, cy + s / 2 - i, cx + i, cy + s / 2 - i, colour);
            break;
        case ARROW_LEFT:
            DrawLine(cx - s / 2 + i, cy - i, cx - s / 2 + i, cy + i, colour);
            break;
        default:
            DrawLine(cx + s / 2 - i, cy - i, cx + s / 2 - i, cy + i, colour);
            break;
        }
    }
}
