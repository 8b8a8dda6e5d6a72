// The event loop's turn and message delivery: input, mouse-move hooks, posted messages, the
// first-run message, repaint, present, and the freeing of removed windows.
#include <string.h>

#include <vector>

#include "lumora/lumora_internal.h"

#define FRAME_MS 16       // one turn per frame: about 60 a second
#define IDLE_WAIT_MS 500  // a turn with nothing to paint waits for input at most this long

u32 MessageMask(t_Window *window)
{
    return WINDOW_PRIVATE(window)->message_mask;
}

static int MaskAllows(t_Window *window, u32 msg)
{
    if (msg < 0x1000 || msg >= 0x1020 || msg == ACT_MENU_PICK)
        return 1;
    return (MessageMask(window) >> (msg - 0x1000)) & 1;
}

u32 DeliverMessage(t_Window *window, u32 item_code, u32 msg, void *data)
{
    if (!IsWindowLive(window) || !window->message || !MaskAllows(window, msg))
        return 0;
    return window->message(window, item_code, msg, data);
}

// A direct call of the message function, whatever the mask; a removed window gets nothing.
// A message sent from outside any turn counts as a turn of its own, so that a window removed
// while it runs (a nested turn may run inside) stays readable until it returns.
u32 SendWindowMessage(t_Window *window, u32 item_code, u32 msg, void *data)
{
    if (!IsWindowLive(window) || !window->message)
        return 0;
    T_LUMORA_BASE *base = _LumoraBase;
    if (!base || !CURRENT_DISPLAY->record)
        return window->message(window, item_code, msg, data);
    base->turn_depth++;
    u32 result = window->message(window, item_code, msg, data);
    base->turn_depth--;
    if (base->turn_depth == 0)
        FreeRemovedWindows();
    return result;
}

void PostWindowMessage(t_Window *window, u32 item_code, u32 msg, void *data)
{
    if (!IsWindowLive(window) || !MaskAllows(window, msg))
        return;
    T_POSTED_MESSAGE *m = (T_POSTED_MESSAGE *)AllocMemC(sizeof(T_POSTED_MESSAGE));
    m->window = window, m->item_code = item_code, m->msg = msg, m->data = data;
    AddTail(&lumora_state.posted, (t_Node *)m);
}

void KeepAnimating(void)
{
    lumora_state.animating = 1;
}

static void RepaintWhole(void)
{
    lumora_state.repaint_whole = 1;
}

// The smallest box round both; an empty one (w 0) adds nothing.
static T_RPOS UniteRects(T_RPOS a, T_RPOS b)
{
    if (a.w <= 0 || a.h <= 0)
        return b;
    if (b.w <= 0 || b.h <= 0)
        return a;
    i32 left = a.x < b.x ? a.x : b.x, top = a.y < b.y ? a.y : b.y;
    i32 right = a.x + a.w > b.x + b.w ? a.x + a.w : b.x + b.w;
    i32 bottom = a.y + a.h > b.y + b.h ? a.y + a.h : b.y + b.h;
    return T_RPOS{(i16)left, (i16)top, (i16)(right - left), (i16)(bottom - top)};
}

void LimitRepaint(i16 x, i16 y, i16 w, i16 h)
{
    T_LUMORA_STATE *st = &lumora_state;
    st->event_area = st->event_limited ? UniteRects(st->event_area, T_RPOS{x, y, w, h}) : T_RPOS{x, y, w, h};
    st->event_limited = 1;
}

// One input event: what it changed joins the turn's repaint.
static void RouteAndNoteDamage(T_INPUT_EVENT *event)
{
    T_LUMORA_STATE *st = &lumora_state;
    st->event_limited = 0;
    RouteInput(event);
    if (st->event_limited)
        st->repaint_area = UniteRects(st->repaint_area, st->event_area);
    else
        RepaintWhole();
    st->event_limited = 0;
}

// The rests after which a hover text shows: over a gadget or title, over a tool.
static const u32 hover_delays[] = {HOVER_DELAY_MS, TOOLBAR_HOVER_MS};

// The pointer's rest has just passed a hover text's delay: the text shows at this turn.
static int RestEnded(u32 now)
{
    T_LUMORA_STATE *st = &lumora_state;
    for (u32 delay : hover_delays)
        if (st->last_move_ms + delay > st->last_paint_ms && st->last_move_ms + delay <= now)
            return 1;
    return 0;
}

// How long a quiet turn may wait for input: until the next hover delay ends, at most IDLE_WAIT_MS.
static u32 QuietWait(u32 now)
{
    T_LUMORA_STATE *st = &lumora_state;
    u32 wait = IDLE_WAIT_MS;
    for (u32 delay : hover_delays)
        if (st->last_move_ms + delay > now && st->last_move_ms + delay - now < wait)
            wait = st->last_move_ms + delay - now;
    return wait;
}

// Delivers the messages posted before this point; those posted meanwhile wait for the next turn.
static void DeliverPosted(void)
{
    t_List *posted = &lumora_state.posted;
    if (LIST_EMPTY(posted))
        return;
    RepaintWhole();
    T_POSTED_MESSAGE *last = (T_POSTED_MESSAGE *)posted->last;
    for (;;) {
        if (LIST_EMPTY(posted))
            return;
        T_POSTED_MESSAGE *m = (T_POSTED_MESSAGE *)posted->first;
        T_POSTED_MESSAGE copy = *m;
        SubNode((t_Node *)m);
        FreeMem(m, sizeof(T_POSTED_MESSAGE));
        DeliverMessage(copy.window, copy.item_code, copy.msg, copy.data);
        if (m == last)
            return;
    }
}

static void CollectWindows(t_List *list, std::vector<t_Window *> &out)
{
    for (t_Node *n = list->first; n->next; n = n->next) {
        out.push_back((t_Window *)n);
        CollectWindows(&((t_Window *)n)->children, out);
    }
}

static std::vector<t_Window *> AllWindows(void)
{
    std::vector<t_Window *> all;
    CollectWindows(&CURRENT_DISPLAY->window_class->windows, all);
    return all;
}

// ACT_FIRSTTIME_RUN, once per window, in the first turn after its creation.
static void DeliverFirstRun(void)
{
    for (t_Window *w : AllWindows()) {
        if (!IsWindowLive(w) || (w->state_flags & WSF_FIRSTTIME_DONE))
            continue;
        w->state_flags |= WSF_FIRSTTIME_DONE;
        RepaintWhole();
        DeliverMessage(w, 0, ACT_FIRSTTIME_RUN, NULL);
    }
}

// After a mouse move: each window's hook, while it is set.
void CallMouseMoveHooks(void)
{
    for (t_Window *w : AllWindows())
        if (IsWindowLive(w) && w->mouse_move_fn)
            w->mouse_move_fn(w, w->mouse_move_data);
}

// The screen, or the area of it (null: all), painted and shown.
static void PaintAndPresent(const T_RPOS *area)
{
    PaintScreen(area);
    lumora_state.last_paint_ms = _LumoraBase->time_ms;
    display->present();
}

void RepaintScreen(void)
{
    if (display && CURRENT_DISPLAY->record)
        PaintAndPresent(NULL);
}

// What the turn changed, and only that: the whole screen, the area its events named, or nothing.
static int RepaintTurn(void)
{
    T_LUMORA_STATE *st = &lumora_state;
    int painted = st->repaint_whole || (st->repaint_area.w > 0 && st->repaint_area.h > 0);
    if (painted)
        PaintAndPresent(st->repaint_whole ? NULL : &st->repaint_area);
    st->repaint_whole = 0;
    st->repaint_area = T_RPOS{0, 0, 0, 0};
    return painted;
}

void RefreshHandlers(t_Handler *handler)
{
    (void)handler;
    if (!display || !CURRENT_DISPLAY->record)
        return;
    T_LUMORA_BASE *base = _LumoraBase;
    base->turn_depth++;
    u32 start = display->ticks();
    base->time_ms = start;
    FinishSaveFile();
    if (lumora_state.input_source)
        lumora_state.input_source();
    T_INPUT_EVENT event;
    while (display->poll(&event)) {
        base->time_ms = display->ticks();
        RouteAndNoteDamage(&event);
    }
    DeliverPosted();
    DeliverFirstRun();
    // A turn repaints what its input and messages changed. Beyond that a real display repaints
    // only for what moves by itself (KeepAnimating) and a hover text whose delay has ended, and else
    // waits for input; the headless one repaints the whole screen at a turn that changed nothing
    // it was told of, since a test may have changed the windows between turns.
    T_LUMORA_STATE *st = &lumora_state;
    if (st->animating || RestEnded(base->time_ms))
        RepaintWhole();
    st->animating = 0;
    if (display == &display_headless && st->repaint_area.w <= 0)
        RepaintWhole();
    int quiet = !RepaintTurn();
    base->turn_depth--;
    if (base->turn_depth == 0)
        FreeRemovedWindows();
    if (display == &display_headless) {
        display->wait(FRAME_MS);
    } else if (quiet) {
        display->wait_for_input(QuietWait(base->time_ms));
    } else {
        u32 spent = display->ticks() - start;
        if (spent < FRAME_MS)
            display->wait(FRAME_MS - spent);
    }
}
