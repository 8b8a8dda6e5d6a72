// Sliders: a groove and a mark that moves along it, horizontal or vertical (the minimum at the
// left or top). class_data is a T_SLIDER_DATA made from the init record: min, max, step (kept as
// given, also 0 or negative, so that a page saves it back), the value (init_val, taken as it is),
// the mark's size and the slider's and track's size.
//
// Dragging the mark or pressing the track (which brings the mark's middle to the point) sets the
// value, rounded to the step from min and kept inside min..max. Reports: the press
// (ACT_LMOUSE_DOWN), each change of a drag under GADGET_FLAGS_REPORT_DRAG (ACT_LMOUSE_DOWN again),
// the release (ACT_LMOUSE_UP), as the action mask allows.
#include "knobkit/knobkit_internal.h"

#define MARK_ALONG 8   // the mark's default length along the slider
#define MARK_MARGIN 4  // ... and across it, the slider's thickness less this
#define GROOVE 4       // the groove's thickness

static T_SLIDER_DATA *Data(t_gadget *g)
{
    return (T_SLIDER_DATA *)g->class_data;
}

static i32 Lo(const T_SLIDER_DATA *d)
{
    return d->min < d->max ? d->min : d->max;
}
static i32 Hi(const T_SLIDER_DATA *d)
{
    return d->min < d->max ? d->max : d->min;
}

// The value on the step grid from min, inside the range.
static i32 Stepped(const T_SLIDER_DATA *d, i64 v)
{
    i64 step = d->step > 0 ? d->step : 1;
    i64 k = (v - d->min + (v >= d->min ? step / 2 : -step / 2)) / step;
    v = d->min + k * step;
    if (v < Lo(d))
        v = Lo(d);
    if (v > Hi(d))
        v = Hi(d);
    return (i32)v;
}

// The mark's rectangle for the value, and the room it travels in.
static T_RPOS MarkRect(t_gadget *g, const T_RPOS *r, i32 *room)
{
    T_SLIDER_DATA *d = Data(g);
    int horizontal = GadgetHorizontal(g);
    i16 mw = d->mark_width, mh = d->mark_height;
    if (mw <= 0)
        mw = horizontal ? MARK_ALONG : r->w - MARK_MARGIN;
    if (mh <= 0)
        mh = horizontal ? r->h - MARK_MARGIN : MARK_ALONG;
    if (mw > r->w)
        mw = r->w;
    if (mh > r->h)
        mh = r->h;
    *room = horizontal ? r->w - mw : r->h - mh;
    i64 span = (i64)Hi(d) - Lo(d), at = 0;
    i32 v = d->value < Lo(d) ? Lo(d) : d->value > Hi(d) ? Hi(d) : d->value;
    if (span > 0)
        at = (i64)*room * (v - Lo(d)) / span;
    if (d->max < d->min)
        at = *room - at;
    if (horizontal)
        return T_RPOS{(i16)(r->x + at), (i16)(r->y + (r->h - mh) / 2), mw, mh};
    return T_RPOS{(i16)(r->x + (r->w - mw) / 2), (i16)(r->y + at), mw, mh};
}

// The value that puts the mark's leading edge at `pos` along the slider.
static i32 ValueAt(t_gadget *g, const T_RPOS *r, i32 pos)
{
    T_SLIDER_DATA *d = Data(g);
    i32 room;
    MarkRect(g, r, &room);
    pos -= GadgetHorizontal(g) ? r->x : r->y;
    if (pos < 0)
        pos = 0;
    if (pos > room)
        pos = room;
    if (room <= 0)
        return Stepped(d, d->min);
    i64 span = (i64)d->max - d->min;
    return Stepped(d, d->min + (span * pos + (span >= 0 ? room / 2 : -room / 2)) / room);
}

int SliderInit(t_gadget *g, const T_GADGETOBJECTINIT *init)
{
    T_SLIDER_DATA *d = (T_SLIDER_DATA *)NewRangeRecord(g, init, sizeof(T_SLIDER_DATA));
    if (!d)
        return 0;
    d->step = init->step;  // kept as given: where the mark moves, a step below 1 counts as 1
    d->value = init->init_val;
    d->mark_width = init->mark_width;
    d->mark_height = init->mark_height;
    d->slider_width = d->track_width = init->base_width;
    d->slider_height = d->track_height = init->base_height;
    return 1;
}

void SliderFree(t_gadget *g)
{
    FreeMem(Data(g), sizeof(T_SLIDER_DATA));
    g->class_data = 0;
}

void DrawSliderGadget(t_gadget *g, int focused)
{
    if (!g->class_data)
        return;
    T_DISPLAY_RECORD *rec = DISPLAY_RECORD;
    T_RPOS r = GadgetRect(g);
    u32 flags = g->live_flags;
    if (flags & GADGET_FLAGS_SOLID)
        DrawRectangle(r.x, r.y, r.w, r.h, g->back_colour);
    if (!(flags & GADGET_FLAGS_NO_BORDER))
        DrawOutLineBox(r.x, r.y, r.w, r.h, rec->gadget_dark_colour);
    i32 room;
    T_RPOS mark = MarkRect(g, &r, &room);
    T_RPOS groove = GadgetHorizontal(g)
                        ? T_RPOS{(i16)(r.x + mark.w / 2), (i16)(r.y + (r.h - GROOVE) / 2), (i16)room, GROOVE}
                        : T_RPOS{(i16)(r.x + (r.w - GROOVE) / 2), (i16)(r.y + mark.h / 2), GROOVE, (i16)room};
    DrawRectangle(groove.x, groove.y, groove.w, groove.h, rec->field_colour);
    DrawBevelBox(groove.x, groove.y, groove.w, groove.h, rec->gadget_dark_colour, rec->gadget_light_colour);
    DrawRectangle(mark.x, mark.y, mark.w, mark.h, rec->gadget_colour);
    if (flags & GADGET_FLAGS_DISABLED) {
        DrawOutLineBox(mark.x, mark.y, mark.w, mark.h, rec->disabled_text_colour);
    } else {
        int pressed = (g->gadget_state & GSTATE_DRAGGING) || (flags & GADGET_FLAGS_DEPRESSED);
        DrawGadgetBevel(mark, pressed);
    }
    if (focused)
        DrawGadgetFocus(g);
}

u32 SliderMouse(t_gadget *g, const T_MOUSE_MSG *m, const T_RPOS *rect)
{
    T_SLIDER_DATA *d = Data(g);
    if (!d)
        return 0;
    int horizontal = GadgetHorizontal(g);
    i32 room, at = horizontal ? m->x : m->y;
    T_RPOS mark = MarkRect(g, rect, &room);
    switch (m->mouse_action) {
    case ACT_LMOUSE_DOWN: {  // on the mark it is taken as it lies; on the track it jumps
        T_RPOS hit = mark;
        i32 half = (horizontal ? mark.w : mark.h) / 2;
        if (PointBoxColl(m->x, m->y, &hit)) {
            g->select_from = at - (horizontal ? mark.x : mark.y);
        } else {
            g->select_from = half;
            d->value = ValueAt(g, rect, at - half);
        }
        g->gadget_state |= GSTATE_DRAGGING;
        return ACT_LMOUSE_DOWN;
    }
    case ACT_MOUSE_MOVE: {  // the mark follows
        if (!(g->gadget_state & GSTATE_DRAGGING))
            return 0;
        i32 before = d->value;
        d->value = ValueAt(g, rect, at - g->select_from);
        return d->value != before && (g->live_flags & GADGET_FLAGS_REPORT_DRAG) ? ACT_LMOUSE_DOWN : 0;
    }
    case ACT_LMOUSE_UP:
        return EndGadgetPress(g) ? ACT_LMOUSE_UP : 0;
    case ACT_MOUSE_WHEEL_UP:  // a step back or on
    case ACT_MOUSE_WHEEL_DOWN:
        d->value = Stepped(d, (i64)d->value +
                                  (m->mouse_action == ACT_MOUSE_WHEEL_UP ? -1 : 1) * (i64)(d->step > 0 ? d->step : 1));
        return m->mouse_action;
    default:
        return m->mouse_action & GADGET_PASSED_ON;
    }
}

// Left and Up step back, Right and Down step on, Home and End go to min and max.
u32 SliderKey(t_gadget *g, u16 key, u16 qualifiers)
{
    (void)qualifiers;
    T_SLIDER_DATA *d = Data(g);
    if (!d)
        return 0;
    i64 step = d->step > 0 ? d->step : 1;
    switch (key) {
    case KEY_LEFT:
    case KEY_UP:
        d->value = Stepped(d, d->value - step);
        break;
    case KEY_RIGHT:
    case KEY_DOWN:
        d->value = Stepped(d, d->value + step);
        break;
    case KEY_HOME:
        d->value = Stepped(d, d->min);
        break;
    case KEY_END:
        d->value = Stepped(d, d->max);
        break;
    default:
        return 0;
    }
    return GADGET_KEY_TAKEN | ACT_LMOUSE_UP;
}
