// Scroll bars: the parts of a bar (arrows, track, thumb) for a range, their drawing and their
// mouse behaviour, shared by lists, trees and combos; and the scroll bar gadget, whose class_data
// is a T_SCROLLBAR_DATA: min, max, the value in init_val, the visible part in mark_width.
//
// The value runs from min to max - visible. An arrow moves it by the range's step, a press on the
// track beside the thumb by the visible part, and the thumb follows a drag. The gadget reports the
// press (ACT_LMOUSE_DOWN), each change while dragging under GADGET_FLAGS_REPORT_DRAG (again as
// ACT_LMOUSE_DOWN), and the release (ACT_LMOUSE_UP), as its action mask allows.
#include "knobkit/knobkit_internal.h"

#define THUMB_MIN 8  // the thumb never gets shorter than this

static i32 Top(const T_SCROLL_RANGE *r)
{
    i32 top = r->max - (r->visible > 0 ? r->visible : 0);
    return top < r->min ? r->min : top;
}

i32 ClampScroll(const T_SCROLL_RANGE *r, i32 value)
{
    if (value > Top(r))
        value = Top(r);
    return value < r->min ? r->min : value;
}

// Along the bar: the start and length of a rectangle.
static i32 Start(const T_SCROLL_PARTS *p, const T_RPOS &r)
{
    return p->horizontal ? r.x : r.y;
}
static i32 Len(const T_SCROLL_PARTS *p, const T_RPOS &r)
{
    return p->horizontal ? r.w : r.h;
}

void ScrollParts(T_RPOS r, int horizontal, const T_SCROLL_RANGE *range, T_SCROLL_PARTS *p)
{
    p->horizontal = horizontal;
    i32 length = horizontal ? r.w : r.h, thick = horizontal ? r.h : r.w;
    i32 arrow = thick < length / 3 ? thick : length / 3;
    i32 track = length - 2 * arrow;
    i32 total = range->max - range->min;
    i32 thumb = track;
    if (total > 0 && range->visible > 0 && range->visible < total)
        thumb = (i32)((i64)track * range->visible / total);
    else if (total > 0 && range->visible <= 0)
        thumb = thick;
    if (thumb < THUMB_MIN)
        thumb = THUMB_MIN;
    if (thumb > track)
        thumb = track;
    i32 span = Top(range) - range->min, at = 0;
    if (span > 0)
        at = (i32)((i64)(track - thumb) * (ClampScroll(range, range->value) - range->min) / span);
    if (horizontal) {
        p->less = T_RPOS{r.x, r.y, (i16)arrow, r.h};
        p->more = T_RPOS{(i16)(r.x + length - arrow), r.y, (i16)arrow, r.h};
        p->track = T_RPOS{(i16)(r.x + arrow), r.y, (i16)track, r.h};
        p->thumb = T_RPOS{(i16)(r.x + arrow + at), r.y, (i16)thumb, r.h};
    } else {
        p->less = T_RPOS{r.x, r.y, r.w, (i16)arrow};
        p->more = T_RPOS{r.x, (i16)(r.y + length - arrow), r.w, (i16)arrow};
        p->track = T_RPOS{r.x, (i16)(r.y + arrow), r.w, (i16)track};
        p->thumb = T_RPOS{r.x, (i16)(r.y + arrow + at), r.w, (i16)thumb};
    }
}

// An arrow or the thumb: a raised part with a dark outline, so that it reads against the track.
static void DrawButtonPart(T_RPOS r, u32 colour)
{
    T_DISPLAY_RECORD *rec = DISPLAY_RECORD;
    DrawRectangle(r.x, r.y, r.w, r.h, colour);
    DrawOutLineBox(r.x, r.y, r.w, r.h, rec->gadget_dark_colour);
    if (r.w > 2 && r.h > 2)
        DrawBevelBox(r.x + 1, r.y + 1, r.w - 2, r.h - 2, rec->gadget_light_colour, colour);
}

void DrawScrollParts(const T_SCROLL_PARTS *p, int disabled)
{
    T_DISPLAY_RECORD *rec = DISPLAY_RECORD;
    u32 glyph = disabled ? rec->disabled_text_colour : rec->gadget_text_colour;
    DrawRectangle(p->track.x, p->track.y, p->track.w, p->track.h,
                  MixColour(rec->gadget_colour, rec->gadget_dark_colour, 64));
    DrawButtonPart(p->less, rec->gadget_colour);
    DrawButtonPart(p->more, rec->gadget_colour);
    DrawArrow(p->less, p->horizontal ? ARROW_LEFT : ARROW_UP, glyph);
    DrawArrow(p->more, p->horizontal ? ARROW_RIGHT : ARROW_DOWN, glyph);
    if (!disabled && p->thumb.w > 0 && p->thumb.h > 0)
        DrawButtonPart(p->thumb, rec->gadget_colour);
}

i32 ScrollPress(const T_SCROLL_PARTS *p, const T_SCROLL_RANGE *r, i16 x, i16 y, i32 *grab)
{
    *grab = -1;
    i32 step = r->step > 0 ? r->step : 1, page = r->visible > 0 ? r->visible : step;
    i32 at = p->horizontal ? x : y;
    T_RPOS less = p->less, more = p->more, thumb = p->thumb, track = p->track;
    if (PointBoxColl(x, y, &less))
        return ClampScroll(r, r->value - step);
    if (PointBoxColl(x, y, &more))
        return ClampScroll(r, r->value + step);
    if (PointBoxColl(x, y, &thumb)) {
        *grab = at - Start(p, thumb);
        return ClampScroll(r, r->value);
    }
    if (!PointBoxColl(x, y, &track))
        return r->value;
    return ClampScroll(r, at < Start(p, thumb) ? r->value - page : r->value + page);
}

i32 ScrollDrag(const T_SCROLL_PARTS *p, const T_SCROLL_RANGE *r, i16 x, i16 y, i32 grab)
{
    i32 room = Len(p, p->track) - Len(p, p->thumb), span = Top(r) - r->min;
    if (room <= 0 || span <= 0)
        return ClampScroll(r, r->value);
    i32 pos = (p->horizontal ? x : y) - grab - Start(p, p->track);
    return ClampScroll(r, r->min + (i32)(((i64)pos * span + room / 2) / room));
}

int ScrollBarTrack(u16 *state, i32 *grab, const T_SCROLL_PARTS *p, T_SCROLL_RANGE *r, const T_MOUSE_MSG *m)
{
    i32 value = r->value;
    switch (m->mouse_action) {
    case ACT_LMOUSE_DOWN:
        *state |= GSTATE_ON_BAR;
        value = ScrollPress(p, r, m->x, m->y, grab);
        if (*grab >= 0)
            *state |= GSTATE_ON_MARK;
        break;
    case ACT_MOUSE_MOVE:
        if (*state & GSTATE_ON_MARK)
            value = ScrollDrag(p, r, m->x, m->y, *grab);
        break;
    case ACT_LMOUSE_UP:
        *state &= ~(GSTATE_ON_BAR | GSTATE_ON_MARK);
        break;
    default:
        break;
    }
    int changed = value != r->value;
    r->value = value;
    return changed;
}

// --- The scroll bar beside a list's rows -----------------------------------------------------------

static T_SCROLL_RANGE RowBarRange(const T_ROW_BAR *rows)
{
    T_SCROLL_RANGE r = {0, rows->count, rows->visible, *rows->top, 1};
    return r;
}

void DrawRowBar(const T_ROW_BAR *rows, int disabled)
{
    if (!rows->bar.w)
        return;
    T_SCROLL_RANGE range = RowBarRange(rows);
    T_SCROLL_PARTS parts;
    ScrollParts(rows->bar, 0, &range, &parts);
    DrawScrollParts(&parts, disabled);
}

int RowBarMouse(const T_ROW_BAR *rows, const T_MOUSE_MSG *m)
{
    T_RPOS bar = rows->bar;
    switch (m->mouse_action) {
    case ACT_LMOUSE_DOWN:  // a press on the bar takes it until the release
        if (!bar.w || !PointBoxColl(m->x, m->y, &bar))
            return 0;
        break;
    case ACT_LMOUSE_DBL:  // a double click on the bar is no row's
        return bar.w && PointBoxColl(m->x, m->y, &bar);
    case ACT_MOUSE_MOVE:  // the moves and the release after a press on the bar
    case 0:               // (a move with no button)
    case ACT_LMOUSE_UP:
        if (!(*rows->state & GSTATE_ON_BAR))
            return 0;
        break;
    default:
        return 0;
    }
    T_SCROLL_RANGE range = RowBarRange(rows);
    T_SCROLL_PARTS parts;
    ScrollParts(bar, 0, &range, &parts);
    ScrollBarTrack(rows->state, rows->grab, &parts, &range, m);
    *rows->top = range.value;
    return 1;
}

// --- The scroll bar gadget -------------------------------------------------------------------------

#define WHEEL_STEPS 1  // a wheel notch moves the value by this many steps

static T_SCROLL_RANGE BarRange(t_gadget *g)
{
    T_SCROLLBAR_DATA *d = (T_SCROLLBAR_DATA *)g->class_data;
    T_SCROLL_RANGE r = {d->min, d->max, d->mark_width, d->init_val, 1};
    return r;
}

static void SetBarValue(t_gadget *g, i32 value)
{
    T_SCROLLBAR_DATA *d = (T_SCROLLBAR_DATA *)g->class_data;
    T_SCROLL_RANGE r = BarRange(g);
    d->init_val = (u16)ClampScroll(&r, value);
}

static_assert(offsetof(T_SLIDER_DATA, min) == 0 && offsetof(T_SCROLLBAR_DATA, min) == 0 &&
                  offsetof(T_SLIDER_DATA, max) == offsetof(T_SCROLLBAR_DATA, max),
              "a slider's and a scroll bar's records begin with the same range");

void *NewRangeRecord(t_gadget *g, const T_GADGETOBJECTINIT *init, u32 size)
{
    T_SCROLLBAR_DATA *range = (T_SCROLLBAR_DATA *)AllocMemC(size);
    if (range) {
        range->min = init->min;
        range->max = init->max;
        g->class_data = (uintptr_t)range;
    }
    return range;
}

int ScrollBarInit(t_gadget *g, const T_GADGETOBJECTINIT *init)
{
    T_SCROLLBAR_DATA *d = (T_SCROLLBAR_DATA *)NewRangeRecord(g, init, sizeof(T_SCROLLBAR_DATA));
    if (d) {
        d->init_val = (u16)init->init_val;
        d->mark_width = init->mark_width;
    }
    return d != NULL;
}

void ScrollBarFree(t_gadget *g)
{
    FreeMem((void *)g->class_data, sizeof(T_SCROLLBAR_DATA));
    g->class_data = 0;
}

void DrawScrollBarGadget(t_gadget *g, int focused)
{
    if (!g->class_data)
        return;
    T_RPOS r = GadgetRect(g);
    T_SCROLL_RANGE range = BarRange(g);
    T_SCROLL_PARTS parts;
    ScrollParts(r, GadgetHorizontal(g), &range, &parts);
    DrawScrollParts(&parts, (g->live_flags & GADGET_FLAGS_DISABLED) != 0);
    if (!(g->live_flags & GADGET_FLAGS_NO_BORDER))
        DrawOutLineBox(r.x, r.y, r.w, r.h, DISPLAY_RECORD->gadget_dark_colour);
    if (focused)
        DrawGadgetFocus(g);
}

u32 ScrollBarMouse(t_gadget *g, const T_MOUSE_MSG *m, const T_RPOS *rect)
{
    if (!g->class_data)
        return 0;
    T_SCROLL_RANGE range = BarRange(g);
    T_SCROLL_PARTS parts;
    ScrollParts(*rect, GadgetHorizontal(g), &range, &parts);
    switch (m->mouse_action) {
    case ACT_LMOUSE_DOWN:  // an arrow, the track or the thumb
    case ACT_MOUSE_MOVE:
    case ACT_LMOUSE_UP: {
        int armed = (g->gadget_state & GSTATE_ON_BAR) != 0;
        int dragging = (g->gadget_state & GSTATE_ON_MARK) != 0;
        int changed = ScrollBarTrack(&g->gadget_state, &g->select_from, &parts, &range, m);
        SetBarValue(g, range.value);
        if (m->mouse_action == ACT_LMOUSE_DOWN)
            return ACT_LMOUSE_DOWN;
        if (m->mouse_action == ACT_LMOUSE_UP)
            return armed ? ACT_LMOUSE_UP : 0;
        return changed && dragging && (g->live_flags & GADGET_FLAGS_REPORT_DRAG) ? ACT_LMOUSE_DOWN : 0;
    }
    case ACT_MOUSE_WHEEL_UP:  // the wheel moves the value
    case ACT_MOUSE_WHEEL_DOWN:
        SetBarValue(g, range.value + (m->mouse_action == ACT_MOUSE_WHEEL_UP ? -WHEEL_STEPS : WHEEL_STEPS));
        return m->mouse_action;
    default:
        return m->mouse_action & GADGET_PASSED_ON;
    }
}

// The arrows step, the page keys move by the visible part, Home and End go to the ends.
u32 ScrollBarKey(t_gadget *g, u16 key, u16 qualifiers)
{
    (void)qualifiers;
    if (!g->class_data)
        return 0;
    T_SCROLL_RANGE r = BarRange(g);
    i32 page = r.visible > 0 ? r.visible : 1, value;
    switch (key) {
    case KEY_LEFT:
    case KEY_UP:
        value = r.value - 1;
        break;
    case KEY_RIGHT:
    case KEY_DOWN:
        value = r.value + 1;
        break;
    case KEY_PAGE_UP:
        value = r.value - page;
        break;
    case KEY_PAGE_DOWN:
        value = r.value + page;
        break;
    case KEY_HOME:
        value = r.min;
        break;
    case KEY_END:
        value = r.max;
        break;
    default:
        return 0;
    }
    SetBarValue(g, value);
    return GADGET_KEY_TAKEN | ACT_LMOUSE_UP;
}
