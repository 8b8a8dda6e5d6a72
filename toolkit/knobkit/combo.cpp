// Combos: a gadget that holds gadgets. Its class_data is a T_LIST_DATA whose entry list is the
// children's list, which CreateObject gives for a combo; gadgets created between
// SaveSetGadgetList and RestoreGadgetList go there. The children stand relative to the combo's
// inside, scrolled by `top_x`, `top` (pixels), are drawn clipped to it, found under a point
// through it and routed like any gadget. SetComboScrollBars measures them (content_w, content_h)
// and shows a vertical and a horizontal scroll bar, as GADGET_FLAGS_VERTICAL and
// GADGET_FLAGS_HORIZONTAL allow, where they don't fit. The bars are gadgets of the combo's own,
// on no list. The combo itself reports nothing. ScrollComboToGadget brings a child into view when
// the keyboard makes it the current gadget.
#include "knobkit/knobkit_internal.h"

#define CONTENT_MARGIN 4  // beyond the lowest and rightmost child
#define WHEEL_LINES 3     // a wheel notch scrolls this many lines of the combo's font

enum { BAR_NONE, BAR_V, BAR_H };  // the bar that the press in progress holds, in `scroll`

static T_LIST_DATA *Data(t_gadget *g)
{
    return (T_LIST_DATA *)g->class_data;
}

i16 ComboInset(t_gadget *g)
{
    return (g->live_flags & GADGET_FLAGS_NO_BORDER) ? 0 : 2;
}

T_RPOS ComboView(t_gadget *g)
{
    T_RPOS view = InsetRect(GadgetRect(g), ComboInset(g));
    T_LIST_DATA *d = Data(g);
    if (d && d->scroll_v)
        view.w -= SCROLL_BAR_SIZE;
    if (d && d->scroll_h)
        view.h -= SCROLL_BAR_SIZE;
    if (view.w < 0)
        view.w = 0;
    if (view.h < 0)
        view.h = 0;
    return view;
}

static i16 LineHeight(t_gadget *g)
{
    return GadgetFontHeight(g) + 4;
}

static T_SCROLL_RANGE BarRange(t_gadget *g, int which)
{
    T_LIST_DATA *d = Data(g);
    T_RPOS view = ComboView(g);
    T_SCROLL_RANGE r = {0, 0, 0, 0, LineHeight(g)};
    if (which == BAR_V)
        r.max = d->content_h, r.visible = view.h, r.value = d->top;
    else
        r.max = d->content_w, r.visible = view.w, r.value = d->top_x;
    return r;
}

// The bars' records follow the offsets, which stay inside the content.
static void SyncBars(t_gadget *g)
{
    T_LIST_DATA *d = Data(g);
    T_SCROLL_RANGE v = BarRange(g, BAR_V), h = BarRange(g, BAR_H);
    d->top = d->scroll_v ? ClampScroll(&v, d->top) : 0;
    d->top_x = d->scroll_h ? ClampScroll(&h, d->top_x) : 0;
    if (d->scroll_v) {
        T_SCROLLBAR_DATA *b = (T_SCROLLBAR_DATA *)d->scroll_v->class_data;
        b->min = 0, b->max = v.max, b->mark_width = (i16)v.visible, b->init_val = (u16)d->top;
    }
    if (d->scroll_h) {
        T_SCROLLBAR_DATA *b = (T_SCROLLBAR_DATA *)d->scroll_h->class_data;
        b->min = 0, b->max = h.max, b->mark_width = (i16)h.visible, b->init_val = (u16)d->top_x;
    }
}

void PlaceComboGadget(t_gadget *g)
{
    if (t_gadget *combo = g->parent_combo) {  // from the combo's inside, scrolled
        T_LIST_DATA *d = Data(combo);
        T_RPOS view = ComboView(combo);
        i32 top_x = d ? d->top_x : 0, top = d ? d->top : 0;
        if (g->live_flags & GADGET_FLAGS_FROM_RIGHT)
            g->screen_x = (i16)(view.x + view.w - g->pos_x - g->base_width - top_x);
        else
            g->screen_x = (i16)(view.x + g->pos_x - top_x);
        if (g->live_flags & GADGET_FLAGS_FROM_BOTTOM)
            g->screen_y = (i16)(view.y + view.h - g->pos_y - g->base_height - top);
        else
            g->screen_y = (i16)(view.y + g->pos_y - top);
    }
    if (g->type != GADGET_TYPE_COMBO || !Data(g))
        return;
    T_LIST_DATA *d = Data(g);
    T_RPOS r = GadgetRect(g), view = ComboView(g);
    i16 inset = ComboInset(g);
    if (t_gadget *v = d->scroll_v) {
        v->screen_x = (i16)(r.x + r.w - inset - SCROLL_BAR_SIZE), v->screen_y = view.y;
        v->base_width = v->pos_width = SCROLL_BAR_SIZE, v->base_height = v->pos_height = view.h;
    }
    if (t_gadget *h = d->scroll_h) {
        h->screen_x = view.x, h->screen_y = (i16)(r.y + r.h - inset - SCROLL_BAR_SIZE);
        h->base_width = h->pos_width = view.w, h->base_height = h->pos_height = SCROLL_BAR_SIZE;
    }
    for (t_gadget *c = (t_gadget *)d->entries.first; c->next; c = c->next)
        RecalcGadgetPosition(c->window, c, 0, 0, 0);
}

t_gadget *HitGadget(t_gadget *g, i16 x, i16 y)
{
    if (g->live_flags & GADGET_FLAGS_NO_DISPLAY)
        return NULL;
    T_RPOS r = GadgetRect(g);
    if (!PointBoxColl(x, y, &r))
        return NULL;
    if (g->type == GADGET_TYPE_GROUP && !g->action_fn)
        return NULL;  // a frame: its inside is free
    if (g->type == GADGET_TYPE_COMBO && Data(g)) {
        T_RPOS view = ComboView(g);
        if (PointBoxColl(x, y, &view))
            for (t_Node *n = Data(g)->entries.last; n->prev; n = n->prev)
                if (t_gadget *hit = HitGadget((t_gadget *)n, x, y))
                    return hit;
    }
    return g;
}

t_gadget *WheelTarget(t_gadget *g, const T_MOUSE_MSG *m)
{
    if (!(m->mouse_action & ACT_MOUSE_WHEEL) || !g->parent_combo)
        return g;
    switch (g->type) {
    case GADGET_TYPE_LIST_BOX:
    case GADGET_TYPE_TREE:
    case GADGET_TYPE_SLIDER:
    case GADGET_TYPE_SCROLLBAR:
    case GADGET_TYPE_COMBO:
        return g;
    default:
        return g->parent_combo;
    }
}

static t_gadget *MakeBar(t_gadget *combo, u32 orientation)
{
    t_gadget *bar = (t_gadget *)AllocMemC(sizeof(t_gadget));
    if (!bar)
        return NULL;
    T_GADGETOBJECTINIT init = {};
    bar->type = GADGET_TYPE_SCROLLBAR;
    bar->live_flags = bar->flags = orientation | GADGET_FLAGS_NO_BORDER;
    bar->handler = combo->handler;
    bar->window = combo->window;
    if (!ScrollBarInit(bar, &init)) {
        FreeMem(bar, sizeof(t_gadget));
        return NULL;
    }
    return bar;
}

// Makes or drops a bar as `need` says; false when it can't be made.
static int ShowBar(t_gadget *combo, t_gadget **bar, int need, u32 orientation)
{
    if (need && !*bar)
        *bar = MakeBar(combo, orientation);
    if (!need && *bar) {
        FreeGadget(*bar);
        *bar = NULL;
    }
    return !need || *bar;
}

void SetComboScrollBars(t_gadget *combo)
{
    if (!combo || combo->type != GADGET_TYPE_COMBO || !Data(combo))
        return;
    T_LIST_DATA *d = Data(combo);
    i32 right = 0, bottom = 0;
    for (t_gadget *c = (t_gadget *)d->entries.first; c->next; c = c->next) {
        if (c->live_flags & GADGET_FLAGS_NO_DISPLAY)
            continue;
        if (c->pos_x + c->base_width > right)
            right = c->pos_x + c->base_width;
        if (c->pos_y + c->base_height > bottom)
            bottom = c->pos_y + c->base_height;
    }
    d->content_w = right + CONTENT_MARGIN;
    d->content_h = bottom + CONTENT_MARGIN;
    T_RPOS inner = InsetRect(GadgetRect(combo), ComboInset(combo));
    int need_v = 0, need_h = 0;
    for (int pass = 0; pass < 3; pass++) {  // a bar takes room that the other may then need
        i32 vw = inner.w - (need_v ? SCROLL_BAR_SIZE : 0), vh = inner.h - (need_h ? SCROLL_BAR_SIZE : 0);
        need_v = (combo->live_flags & GADGET_FLAGS_VERTICAL) && d->content_h > vh;
        need_h = (combo->live_flags & GADGET_FLAGS_HORIZONTAL) && d->content_w > vw;
    }
    if (!ShowBar(combo, &d->scroll_v, need_v, GADGET_FLAGS_VERTICAL) ||
        !ShowBar(combo, &d->scroll_h, need_h, GADGET_FLAGS_HORIZONTAL))
        myprintf(0, "SetComboScrollBars: no memory for the scroll bars of %s\n", combo->name);
    SyncBars(combo);
    PlaceComboGadget(combo);
}

// The offset that brings [at, at + length) inside [view_at, view_at + view_length) by the least
// move; what is longer than the view shows its start.
static i32 OffsetToShow(i32 offset, i32 at, i32 length, i32 view_at, i32 view_length)
{
    i32 shift = 0;
    if (at + length > view_at + view_length)
        shift = at + length - (view_at + view_length);
    if (at - shift < view_at)
        shift = at - view_at;
    return offset + shift;
}

// Each combo from the gadget outwards scrolls to what must show of it: the gadget, or as much of
// it as the inner combo shows; across, only when its start is out of sight.
void ScrollComboToGadget(t_gadget *gadget)
{
    if (!gadget)
        return;
    T_RPOS want = GadgetRect(gadget);
    for (t_gadget *combo = gadget->parent_combo; combo; combo = combo->parent_combo) {
        T_LIST_DATA *d = Data(combo);
        if (!d)
            return;
        T_RPOS view = ComboView(combo);
        i32 top = d->top, top_x = d->top_x;
        d->top = OffsetToShow(d->top, want.y, want.h, view.y, view.h);
        // Across, a gadget whose start shows stays put: a row reads from its label on the left,
        // which a scroll to show the gadget's far end would hide.
        if (want.x < view.x || want.x >= view.x + view.w)
            d->top_x = OffsetToShow(d->top_x, want.x, want.w, view.x, view.w);
        SyncBars(combo);
        PlaceComboGadget(combo);
        want.x = (i16)(want.x - (d->top_x - top_x));
        want.y = (i16)(want.y - (d->top - top));
        if (!RectIntersect(&want, &view))
            want = GadgetRect(combo);
    }
}

void SaveSetGadgetList(t_Window *window, t_List *list)
{
    t_Gaget_Handler *gh = FindGadgetHandler(window);
    if (!gh || !list) {
        myprintf(0, "SaveSetGadgetList: no gadget handler or no list\n");
        return;
    }
    gh->saved_list = gh->list_in_use;
    gh->list_in_use = list;
}

void RestoreGadgetList(t_Window *window)
{
    t_Gaget_Handler *gh = FindGadgetHandler(window);
    if (!gh)
        return;
    gh->list_in_use = gh->saved_list ? gh->saved_list : &gh->gadget_list;
    gh->saved_list = NULL;
}

int ComboInit(t_gadget *g, const T_GADGETOBJECTINIT *init)
{
    (void)init;
    return NewListData(g) != NULL;
}

void ComboFree(t_gadget *g)
{
    T_LIST_DATA *d = Data(g);
    if (!d)
        return;
    t_Gaget_Handler *gh = g->handler;
    while (!LIST_EMPTY(&d->entries)) {
        t_gadget *c = (t_gadget *)d->entries.first;
        RemoveGadget(c, gh);
        SubNode((t_Node *)c);
        FreeGadget(c);
    }
    FreeGadget(d->scroll_v);
    FreeGadget(d->scroll_h);
    if (gh && gh->list_in_use == &d->entries)
        gh->list_in_use = &gh->gadget_list;
    if (gh && gh->saved_list == &d->entries)
        gh->saved_list = NULL;
    FreeMem(d, sizeof(T_LIST_DATA));
    g->class_data = 0;
}

void DrawComboGadget(t_gadget *g, int focused)
{
    (void)focused;
    T_LIST_DATA *d = Data(g);
    if (!d)
        return;
    T_DISPLAY_RECORD *rec = DISPLAY_RECORD;
    T_RPOS r = GadgetRect(g), view = ComboView(g), saved;
    if (g->live_flags & GADGET_FLAGS_SOLID)
        DrawRectangle(r.x, r.y, r.w, r.h, g->back_colour);
    if (!(g->live_flags & GADGET_FLAGS_NO_BORDER))
        DrawBevelBox(r.x, r.y, r.w, r.h, rec->gadget_dark_colour, rec->gadget_light_colour);
    if (PushClip(view, &saved)) {
        int dialog = FocusWindow() == g->window && DialogWindow(g->window);
        t_gadget *current = g->handler ? g->handler->current_gadget : NULL;
        for (t_gadget *c = (t_gadget *)d->entries.first; c->next; c = c->next) {
            T_RPOS cr = GadgetRect(c);
            if (c->live_flags & GADGET_FLAGS_NO_DISPLAY)
                continue;
            if (!RectIntersect(&cr, &view)) {  // scrolled away, a field still learns it was left
                if (c->type == GADGET_TYPE_STRING)
                    NoteStringFocus(c);
                continue;
            }
            GadgetTextFont(c);
            GadgetClass(c->type)->draw(c, dialog && current == c);
        }
        PopClip(&saved);
        GadgetTextFont(g);
    }
    if (d->scroll_v)
        DrawScrollBarGadget(d->scroll_v, 0);
    if (d->scroll_h)
        DrawScrollBarGadget(d->scroll_h, 0);
}

// Presses on the bars scroll, and so does the wheel (here also for children that don't use it).
u32 ComboMouse(t_gadget *g, const T_MOUSE_MSG *m, const T_RPOS *rect)
{
    (void)rect;
    T_LIST_DATA *d = Data(g);
    if (!d)
        return 0;
    if (m->mouse_action == ACT_LMOUSE_DOWN) {
        g->scroll = BAR_NONE;
        T_RPOS v = d->scroll_v ? GadgetRect(d->scroll_v) : T_RPOS{0, 0, 0, 0};
        T_RPOS h = d->scroll_h ? GadgetRect(d->scroll_h) : T_RPOS{0, 0, 0, 0};
        if (d->scroll_v && PointBoxColl(m->x, m->y, &v))
            g->scroll = BAR_V;
        if (d->scroll_h && PointBoxColl(m->x, m->y, &h))
            g->scroll = BAR_H;
    }
    i32 *offset = NULL;
    T_SCROLL_RANGE range;
    if (m->mouse_action & ACT_MOUSE_WHEEL) {
        int which = d->scroll_v ? BAR_V : d->scroll_h ? BAR_H : BAR_NONE;
        if (which == BAR_NONE)
            return 0;
        range = BarRange(g, which);
        offset = which == BAR_V ? &d->top : &d->top_x;
        *offset =
            ClampScroll(&range, *offset + (m->mouse_action == ACT_MOUSE_WHEEL_UP ? -1 : 1) * WHEEL_LINES * range.step);
    } else if (g->scroll != BAR_NONE) {
        t_gadget *bar = g->scroll == BAR_V ? d->scroll_v : d->scroll_h;
        if (!bar)
            return 0;
        range = BarRange(g, g->scroll);
        offset = g->scroll == BAR_V ? &d->top : &d->top_x;
        T_SCROLL_PARTS parts;
        ScrollParts(GadgetRect(bar), g->scroll == BAR_H, &range, &parts);
        ScrollBarTrack(&bar->gadget_state, &bar->select_from, &parts, &range, m);
        *offset = range.value;
        if (m->mouse_action == ACT_LMOUSE_UP)
            g->scroll = BAR_NONE;
    }
    if (offset) {
        SyncBars(g);
        PlaceComboGadget(g);
    }
    return 0;
}
