// The event loop's turn and message delivery: input, mouse-move hooks, posted messages, the
// first-run message, repaint, present, and the freeing of removed windows.
#include <string.h>

#include <vector>

#include "lumora/lumora_internal.h"

#define FRAME_MS 16     // one turn per frame: about 60 a second
#define SETTLE_MS 1500  // after input the screen keeps repainting this long (hover texts show)
#define IDLE_WAIT_MS 500  // then a turn waits for input at most this long

u32 MessageMask(t_Window *window) { return WINDOW_PRIVATE(window)->message_mask; }

static int MaskAllows(t_Window *window, u32 msg) {
    if (msg < 0x1000 || msg >= 0x1020 || msg == ACT_MENU_PICK) return 1;
    return (MessageMask(window) >> (msg - 0x1000)) & 1;
}

u32 DeliverMessage(t_Window *window, u32 item_code, u32 msg, void *data) {
    if (!IsWindowLive(window) || !window->message || !MaskAllows(window, msg)) return 0;
    return window->message(window, item_code, msg, data);
}

// A direct call of the message function, whatever the mask; a removed window gets nothing.
// A message sent from outside any turn counts as a turn of its own, so that a window removed
// while it runs (a nested turn may run inside) stays readable until it returns.
u32 SendWindowMessage(t_Window *window, u32 item_code, u32 msg, void *data) {
    if (!IsWindowLive(window) || !window->message) return 0;
    T_LUMORA_BASE *base = _LumoraBase;
    if (!base || !CURRENT_DISPLAY->record) return window->message(window, item_code, msg, data);
    base->turn_depth++;
    u32 result = window->message(window, item_code, msg, data);
    base->turn_depth--;
    if (base->turn_depth == 0) FreeRemovedWindows();
    return result;
}

void PostWindowMessage(t_Window *window, u32 item_code, u32 msg, void *data) {
    if (!IsWindowLive(window) || !MaskAllows(window, msg)) return;
    T_POSTED_MESSAGE *m = (T_POSTED_MESSAGE *)AllocMemC(sizeof(T_POSTED_MESSAGE));
    m->window = window, m->item_code = item_code, m->msg = msg, m->data = data;
    AddTail(&lumora_state.posted, (t_Node *)m);
}

void KeepAnimating(void) { lumora_state.animating = 1; }

static void NoteActivity(void) { lumora_state.last_activity_ms = _LumoraBase->time_ms; }

// Delivers the messages posted before this point; those posted meanwhile wait for the next turn.
static void DeliverPosted(void) {
    t_List *posted = &lumora_state.posted;
    if (LIST_EMPTY(posted)) return;
    NoteActivity();
    T_POSTED_MESSAGE *last = (T_POSTED_MESSAGE *)posted->last;
    for (;;) {
        if (LIST_EMPTY(posted)) return;
        T_POSTED_MESSAGE *m = (T_POSTED_MESSAGE *)posted->first;
        T_POSTED_MESSAGE copy = *m;
        SubNode((t_Node *)m);
        FreeMem(m, sizeof(T_POSTED_MESSAGE));
        DeliverMessage(copy.window, copy.item_code, copy.msg, copy.data);
        if (m == last) return;
    }
}

static void CollectWindows(t_List *list, std::vector<t_Window *> &out) {
    for (t_Node *n = list->first; n->next; n = n->next) {
        out.push_back((t_Window *)n);
        CollectWindows(&((t_Window *)n)->children, out);
    }
}

static std::vector<t_Window *> AllWindows(void) {
    std::vector<t_Window *> all;
    CollectWindows(&CURRENT_DISPLAY->window_class->windows, all);
    return all;
}

// ACT_FIRSTTIME_RUN, once per window, in the first turn after its creation.
static void DeliverFirstRun(void) {
    for (t_Window *w : AllWindows()) {
        if (!IsWindowLive(w) || (w->state_flags & WSF_FIRSTTIME_DONE)) continue;
        w->state_flags |= WSF_FIRSTTIME_DONE;
        NoteActivity();
        DeliverMessage(w, 0, ACT_FIRSTTIME_RUN, NULL);
    }
}

// After a mouse move: each window's hook, while it is set.
void CallMouseMoveHooks(void) {
    for (t_Window *w : AllWindows())
        if (IsWindowLive(w) && w->mouse_move_fn) w->mouse_move_fn(w, w->mouse_move_data);
}

void RepaintScreen(void) {
    if (!display || !CURRENT_DISPLAY->record) return;
    PaintScreen();
    display->present();
}

void RefreshHandlers(t_Handler *handler) {
    (void)handler;
    if (!display || !CURRENT_DISPLAY->record) return;
    T_LUMORA_BASE *base = _LumoraBase;
    base->turn_depth++;
    u32 start = display->ticks();
    base->time_ms = start;
    FinishSaveFile();
    if (lumora_state.input_source) lumora_state.input_source();
    T_INPUT_EVENT event;
    while (display->poll(&event)) {
        base->time_ms = display->ticks();
        NoteActivity();
        RouteInput(&event);
    }
    DeliverPosted();
    DeliverFirstRun();
    // A real display that has had no input for a while and shows nothing moving is left as it
    // is: no repaint, and the turn waits for input. The headless one repaints every turn, so
    // that a turn of a test or script always paints.
    int animating = lumora_state.animating;
    lumora_state.animating = 0;
    int quiet = display != &display_headless && !animating &&
                base->time_ms - lumora_state.last_activity_ms > SETTLE_MS;
    if (!quiet) RepaintScreen();
    base->turn_depth--;
    if (base->turn_depth == 0) FreeRemovedWindows();
    if (display == &display_headless) {
        display->wait(FRAME_MS);
    } else if (quiet) {
        display->wait_for_input(IDLE_WAIT_MS);
    } else {
        u32 spent = display->ticks() - start;
        if (spent < FRAME_MS) display->wait(FRAME_MS - spent);
    }
}
