// Windows: creation, stacking order and focus, removal (deferred freeing), frame geometry.
//
// A child's creation position is relative to its parent's user area and is kept absolute from
// then on; when a window's frame moves, its children move by the same amount. The message mask
// given at creation (T_WINDOW_PRIVATE.message_mask) decides delivery; the `idcmp` field is the
// owner's design data and is never read for delivery.
#include <string.h>

#include "lumora/lumora_internal.h"

static T_WINDOW_CLASS *WindowClass(void)
{
    return CURRENT_DISPLAY->window_class;
}

t_Window *FocusWindow(void)
{
    T_WINDOW_CLASS *wc = WindowClass();
    return wc ? wc->current_window : NULL;
}

int IsWindowLive(t_Window *window)
{
    return window && !(window->state_flags & WSF_REMOVED);
}

int IsPopup(t_Window *window)
{
    return (window->extra_flags & WEX_POPUP) != 0;
}

int IsFloating(t_Window *window)
{
    return (window->flags & WF_DEPENDANT) && !(window->flags & WF_CLIP_PARENT) && window->parent && !IsPopup(window) &&
           !FindHandlerOfKind(window, HANDLER_KIND_TOOLBAR);
}

// Depth first, so that a floating window's own floating children come after it; the children of a
// window that isn't shown are passed over with it.
static void CollectFloating(t_List *list, t_Window **out, u32 max, u32 *count)
{
    for (t_Node *n = list->first; n->next; n = n->next) {
        t_Window *w = (t_Window *)n;
        if (!IsWindowLive(w) || w->state != WINDOW_STATE_OPEN || IsPopup(w))
            continue;
        if (IsFloating(w) && QF_EXPECT(*count < max))
            out[(*count)++] = w;
        CollectFloating(&w->children, out, max, count);
    }
}

u32 CollectFloatingWindows(t_Window **out, u32 max)
{
    u32 count = 0;
    if (CURRENT_DISPLAY->window_class)
        CollectFloating(&CURRENT_DISPLAY->window_class->windows, out, max, &count);
    return count;
}

// Stacking layers among siblings: backdrop windows behind, WF_IN_FRONT above, popups on top.
static int Layer(t_Window *w)
{
    if (IsPopup(w))
        return 3;
    if (w->flags & WF_IN_FRONT)
        return 2;
    if (w->flags & WF_BACKDROP)
        return 0;
    return 1;
}

static t_List *SiblingList(t_Window *w)
{
    return w->parent ? &w->parent->children : &WindowClass()->windows;
}

static void InsertBefore(t_Node *node, t_Node *before)
{
    node->next = before;
    node->prev = before->prev;
    before->prev->next = node;
    before->prev = node;
}

void WindowToFront(t_Window *window)
{
    if (!IsWindowLive(window))
        return;
    t_List *list = SiblingList(window);
    SubNode((t_Node *)window);
    for (t_Node *s = list->first; s->next; s = s->next)
        if (Layer((t_Window *)s) > Layer(window)) {
            InsertBefore((t_Node *)window, s);
            return;
        }
    AddTail(list, (t_Node *)window);
}

void WindowToBack(t_Window *window)
{
    if (!IsWindowLive(window))
        return;
    t_List *list = SiblingList(window);
    SubNode((t_Node *)window);
    t_Node *after = NULL;
    for (t_Node *s = list->first; s->next; s = s->next)
        if (Layer((t_Window *)s) < Layer(window))
            after = s;
    if (after)
        InsertBefore((t_Node *)window, after->next);
    else
        AddHead(list, (t_Node *)window);
}

static int IsWithin(t_Window *w, t_Window *ancestor)
{
    for (; w; w = w->parent)
        if (w == ancestor)
            return 1;
    return 0;
}

// Moves the input focus without reordering: the old window loses its context, the new gains it.
static void SetFocus(t_Window *window)
{
    T_WINDOW_CLASS *wc = WindowClass();
    t_Window *old = wc->current_window;
    if (old == window)
        return;
    T_CAPTURE *c = &lumora_state.capture;
    if (lumora_state.buttons && c->window && old && IsWithin(c->window, old))
        BreakPress();
    wc->current_window = window;
    if (IsWindowLive(old))
        DeliverMessage(old, 0, ACT_LOOSE_CONTEXT, NULL);
    if (IsWindowLive(window))
        DeliverMessage(window, 0, ACT_GAIN_CONTEXT, NULL);
}

// Returns the window. A popup only comes to the front; it never takes the focus.
t_Window *ISetActiveWindow(t_Window *window)
{
    if (!IsWindowLive(window))
        return window;
    if (window->state == WINDOW_STATE_MINIMISED)
        window->state = WINDOW_STATE_OPEN;
    for (t_Window *t = window; t; t = t->parent)
        WindowToFront(t);
    if (!IsPopup(window))
        SetFocus(window);
    return window;
}

static void LinkWindow(t_Window *w)
{
    AddTail(SiblingList(w), (t_Node *)w);
    WindowToFront(w);
}

static t_Window *AllocWindow(const char *name)
{
    T_WINDOW_PRIVATE *p = (T_WINDOW_PRIVATE *)AllocMemC(sizeof(T_WINDOW_PRIVATE));
    if (!p)
        return NULL;
    t_Window *w = &p->window;
    if (!name)
        name = "";
    p->own_name_size = (u32)strlen(name) + 1;
    p->own_name = (char *)AllocMemC(p->own_name_size);
    memcpy(p->own_name, name, p->own_name_size);
    w->name = p->own_name;
    InitList(&w->handlers, "handlers");
    InitList(&w->children, "children");
    w->state = WINDOW_STATE_OPEN;
    w->UserAreaColour = DISPLAY_RECORD->default_area_colour;
    p->focus_before = FocusWindow();
    w->mouse_x = lumora_state.mouse_x;
    w->mouse_y = lumora_state.mouse_y;
    return w;
}

// A child made at its parent's cascade place takes it, so that the next one made there (a page
// read from a file) stands a step down and right; after CASCADE_STEPS places it starts again.
static void TakeCascadePlace(t_Window *parent, i16 x, i16 y)
{
    if (x != y || x != (i16)(parent->cascade_index * CASCADE_STEP))
        return;
    parent->cascade_index++;
    if (parent->cascade_index >= parent->cascade_start + CASCADE_STEPS)
        parent->cascade_index = parent->cascade_start;
}

// A dependent window opens wholly inside the screen (its top left corner, when it is the larger).
static void KeepOnScreen(t_Window *w)
{
    i16 sw = CURRENT_DISPLAY->width, sh = CURRENT_DISPLAY->height;
    if (w->x + w->w > sw)
        w->x = sw - w->w;
    if (w->y + w->h > sh)
        w->y = sh - w->h;
    if (w->x < 0)
        w->x = 0;
    if (w->y < 0)
        w->y = 0;
}

// Returns null (logged) for a removed parent or when memory runs out.
t_Window *CreateWindowObject(const char *name, T_WINDOWOBJINIT *init)
{
    t_Window *parent = init->parent;
    if (parent && !IsWindowLive(parent)) {
        myprintf(0, "CreateWindowObject: the parent of %s has been removed\n", name ? name : "");
        return NULL;
    }
    t_Window *w = AllocWindow(name);
    if (!w) {
        myprintf(0, "CreateWindowObject: no memory for %s\n", name ? name : "");
        return NULL;
    }
    w->parent = parent;
    w->x = init->x + (parent ? parent->user_x : 0);
    w->y = init->y + (parent ? parent->user_y : 0);
    w->w = init->w;
    w->h = init->h;
    if (init->flags & WF_DEPENDANT)
        KeepOnScreen(w);
    w->flags = init->flags;
    w->idcmp = init->idcmp;
    WINDOW_PRIVATE(w)->message_mask = init->idcmp;
    w->message = init->message;
    w->icon = (i16)init->icon;
    w->icon_bank = init->icon_bank;
    if (w->flags & WF_BORDER)
        NewBorderHandler(w);
    if (w->flags & WF_TITLE)
        NewTitleBarHandler(w);
    LinkWindow(w);
    if (parent)
        TakeCascadePlace(parent, init->x, init->y);
    if (init->bitmap && init->bitmap[0])
        SetWindowBitmap(w, init->bitmap);
    RecalcUserSize(w);
    if (w->flags & WF_OPEN_FULLSCREEN)
        ToggleMaximise(w);
    ISetActiveWindow(w);
    return w;
}

t_Window *CreateWindowKeepingFocus(const char *name, T_WINDOWOBJINIT *init)
{
    t_Window *focus = FocusWindow();
    t_Window *window = CreateWindowObject(name, init);
    if (window && IsWindowLive(focus))
        ISetActiveWindow(focus);
    return window;
}

t_Window *CreatePopupWindow(i16 x, i16 y, i16 w, i16 h, T_MESSAGE_FN message)
{
    t_Window *win = AllocWindow("popup");
    if (!win)
        return NULL;
    win->x = x, win->y = y, win->w = w, win->h = h;
    win->extra_flags = WEX_POPUP;
    win->message = message;
    win->state_flags = WSF_FIRSTTIME_DONE;
    LinkWindow(win);
    RecalcUserSize(win);
    return win;
}

static void MarkRemoved(t_Window *w)
{
    w->state_flags |= WSF_REMOVED;
    w->turn_depth_at_removal = _LumoraBase->turn_depth;
    for (t_Node *c = w->children.first; c->next; c = c->next)
        MarkRemoved((t_Window *)c);
}

static int Reachable(t_List *list, t_Window *target)
{
    for (t_Node *n = list->first; n->next; n = n->next) {
        if ((t_Window *)n == target)
            return 1;
        if (Reachable(&((t_Window *)n)->children, target))
            return 1;
    }
    return 0;
}

// The window that gets the focus when `gone` goes: the one that had it before `gone` was made,
// else its parent, else the frontmost top-level window.
static t_Window *NextFocus(t_Window *gone)
{
    T_WINDOW_CLASS *wc = WindowClass();
    t_Window *before = WINDOW_PRIVATE(gone)->focus_before;
    if (before && before != gone && Reachable(&wc->windows, before) && !IsPopup(before))
        return before;
    if (IsWindowLive(gone->parent))
        return gone->parent;
    t_Window *front = NULL;
    for (t_Node *n = wc->windows.first; n->next; n = n->next)
        if (!IsPopup((t_Window *)n) && ((t_Window *)n)->state == WINDOW_STATE_OPEN)
            front = (t_Window *)n;
    return front;
}

void RemoveWindow(t_Window *window)
{
    if (!IsWindowLive(window))
        return;
    T_LUMORA_STATE *st = &lumora_state;
    t_Window *focus = FocusWindow();
    int had_focus = focus && IsWithin(focus, window);
    if (st->capture.window && IsWithin(st->capture.window, window)) {
        st->broken_buttons = st->buttons;
        st->capture = T_CAPTURE{};
    }
    MarkRemoved(window);
    SubNode((t_Node *)window);
    AddTail(&st->removed, (t_Node *)window);
    if (had_focus) {
        WindowClass()->current_window = NULL;
        t_Window *next = NextFocus(window);
        if (next)
            ISetActiveWindow(next);
    }
}

static void ClearFocusBefore(t_List *list, t_Window *gone)
{
    for (t_Node *n = list->first; n->next; n = n->next) {
        T_WINDOW_PRIVATE *p = WINDOW_PRIVATE(n);
        if (p->focus_before == gone)
            p->focus_before = NULL;
        ClearFocusBefore(&p->window.children, gone);
    }
}

// Drops every reference the toolkit holds to a window about to be freed.
static void ForgetWindow(t_Window *w)
{
    T_LUMORA_STATE *st = &lumora_state;
    T_WINDOW_CLASS *wc = WindowClass();
    if (wc && wc->current_window == w)
        wc->current_window = NULL;
    if (st->capture.window == w)
        st->capture = T_CAPTURE{};
    if (st->last_press_window == w)
        st->last_press_window = NULL;
    if (st->press_window == w)
        st->press_window = NULL;
    for (t_Node *n = st->posted.first; n->next;) {
        t_Node *next = n->next;
        if (((T_POSTED_MESSAGE *)n)->window == w) {
            SubNode(n);
            FreeMem(n, sizeof(T_POSTED_MESSAGE));
        }
        n = next;
    }
    // Windows made while this one had the focus must not hand the focus back to it.
    if (wc)
        ClearFocusBefore(&wc->windows, w);
    ClearFocusBefore(&st->removed, w);
}

void FreeWindowNow(t_Window *w)
{
    w->state_flags |= WSF_REMOVED;
    while (!LIST_EMPTY(&w->children)) {
        t_Window *c = (t_Window *)w->children.first;
        SubNode((t_Node *)c);
        FreeWindowNow(c);
    }
    while (!LIST_EMPTY(&w->handlers))
        DelHandler((t_Handler *)w->handlers.first);
    if (w->bitmap)
        ReleaseBitmap(w->bitmap);
    if (w->hover_title)
        FreeMem(w->hover_title, (u32)strlen(w->hover_title) + 1);
    ForgetWindow(w);
    ForgetToolSetupWindow(w);
    T_WINDOW_PRIVATE *p = WINDOW_PRIVATE(w);
    FreeMem(p->own_name, p->own_name_size);
    FreeMem(p, sizeof(T_WINDOW_PRIVATE));
}

void FreeRemovedWindows(void)
{
    t_List *removed = &lumora_state.removed;
    while (!LIST_EMPTY(removed)) {
        t_Window *w = (t_Window *)removed->first;
        SubNode((t_Node *)w);
        FreeWindowNow(w);
    }
}

void FreeAllWindows(void)
{
    T_WINDOW_CLASS *wc = WindowClass();
    if (wc)
        while (!LIST_EMPTY(&wc->windows)) {
            t_Window *w = (t_Window *)wc->windows.first;
            MarkRemoved(w);
            SubNode((t_Node *)w);
            FreeWindowNow(w);
        }
    FreeRemovedWindows();
}

void SetWindowFrame(t_Window *window, i16 x, i16 y, i16 w, i16 h)
{
    i16 dx = x - window->x, dy = y - window->y;
    window->x = x, window->y = y, window->w = w, window->h = h;
    RecalcUserSize(window);
    for (t_Node *n = window->children.first; n->next; n = n->next) {
        t_Window *c = (t_Window *)n;
        if (c->state_flags & WSF_MAXIMISED) {  // a maximised child keeps filling the user area
            c->restore_rect.x += dx, c->restore_rect.y += dy;
            SetWindowFrame(c, window->user_x, window->user_y, window->user_w, window->user_h);
        } else if (dx || dy) {
            c->restore_rect.x += dx, c->restore_rect.y += dy;
            SetWindowFrame(c, c->x + dx, c->y + dy, c->w, c->h);
        }
    }
}

void ResizeWindow(t_Window *window, T_RPOS *rect)
{
    if (!IsWindowLive(window) || !rect)
        return;
    SetWindowFrame(window, rect->x, rect->y, rect->w, rect->h);
    DeliverMessage(window, 0, ACT_WINDOW_RESIZE, NULL);
}

#define CONTENTS_MARGIN 8  // around the gadgets when a window is fitted to them
#define CONTENTS_MIN_WIDTH 64

// Gadgets placed from the right or the bottom stand in a band of their own beyond the others, so
// that fitting the window never puts them over the rest (buttons in a dialog's corner).
void ResizeWindowToContents(t_Window *window)
{
    if (!IsWindowLive(window))
        return;
    i16 right = 0, bottom = 0, right_band = 0, bottom_band = 0;
    t_Gaget_Handler *gh = FindGadgetHandler(window);
    if (gh)
        for (t_gadget *g = gh->first_gadget; g->next; g = g->next) {
            i16 x_extent = g->pos_x + g->base_width, y_extent = g->pos_y + g->base_height;
            if (!(g->live_flags & GADGET_FLAGS_FROM_RIGHT) && x_extent > right)
                right = x_extent;
            if ((g->live_flags & GADGET_FLAGS_FROM_RIGHT) && x_extent > right_band)
                right_band = x_extent;
            if (!(g->live_flags & GADGET_FLAGS_FROM_BOTTOM) && y_extent > bottom)
                bottom = y_extent;
            if ((g->live_flags & GADGET_FLAGS_FROM_BOTTOM) && y_extent > bottom_band)
                bottom_band = y_extent;
        }
    if (right_band > right)
        right = right_band;
    if (bottom_band)
        bottom = bottom + CONTENTS_MARGIN / 2 + bottom_band;
    i16 frame_w = window->w - window->user_w, frame_h = window->h - window->user_h;
    i16 w = right + CONTENTS_MARGIN + frame_w, h = bottom + CONTENTS_MARGIN + frame_h;
    if (w < CONTENTS_MIN_WIDTH)
        w = CONTENTS_MIN_WIDTH;
    SetWindowFrame(window, window->x, window->y, w, h);
}

void RecalcUserSize(t_Window *window)
{
    if (!window)
        return;
    i16 b = (i16)window->border_size;
    window->title_height = (window->flags & WF_TITLE) ? DISPLAY_RECORD->title_height : 0;
    i16 t = (i16)window->title_height;
    i16 m = MenuBarHeight(window);
    window->user_x = window->x + b;
    window->user_y = window->y + b + t + m;
    window->user_w = window->w - 2 * b;
    window->user_h = window->h - 2 * b - t - m;
    if (window->user_w < 0)
        window->user_w = 0;
    if (window->user_h < 0)
        window->user_h = 0;
    t_Gaget_Handler *gh = FindGadgetHandler(window);
    if (gh)
        for (t_gadget *g = gh->first_gadget; g->next; g = g->next)
            RecalcGadgetPosition(window, g, 0, 0, 0);
}

T_RPOS UserArea(const t_Window *window)
{
    return T_RPOS{window->user_x, window->user_y, window->user_w, window->user_h};
}

t_Window *FindWindowByName(t_Window *parent, const char *name)
{
    if (!name)
        return NULL;
    t_List *list = parent ? &parent->children : &WindowClass()->windows;
    for (t_Node *n = list->first; n->next; n = n->next) {
        t_Window *w = (t_Window *)n;
        if (IsWindowLive(w) && w->name && strcmp(w->name, name) == 0)
            return w;
    }
    return NULL;
}
