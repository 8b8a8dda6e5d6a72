// Input routing: which window, frame part, gadget or handler gets each mouse event and key.
//
// Mouse: popups first, then the window under the pointer; in it the frame (title bar, border),
// the menu bar, a gadget under the point, the other handlers by priority. A press gives the window
// the input focus, but for a popup, a toolbar, or the menu bar of the window that has the keys (or
// of an ancestor of it): a pick there leaves the keys where they were. Whoever takes a press
// holds the pointer captured: every move and the release go there. A release that nobody captured
// goes through the same routing in the window that had the press (so a right release on a page's
// background opens its menu). Context menus of gadgets (menu_owner) open on the right release,
// as the page background's does. An action_fn's result is not read for mouse events (the gadget
// has the event either way); for a key, nonzero means taken.
//
// Keys: popups' handlers, then the focus window's handlers, its current gadget, ACT_KEY (a window
// whose mask has no IDCMP_KEY passes it up to the nearest ancestor that asks for keys), and Tab
// walks the gadgets of a dialog. Event 33 goes to the handlers of the window holding a press when
// the focus moves away from it or the display loses the focus; the press's release then means
// nothing.
#include <stdlib.h>
#include <string.h>

#include "lumora/lumora_internal.h"
#include "lumora/menu_internal.h"

#define DOUBLE_CLICK_MS 400
#define DOUBLE_CLICK_DISTANCE 4
#define KEY_ALT_F4 (KEY_F1 + 3)

static T_LUMORA_STATE *st = &lumora_state;

static t_List *TopLevel(void)
{
    return &CURRENT_DISPLAY->window_class->windows;
}

static T_MOUSE_MSG MouseMsg(u16 action)
{
    T_MOUSE_MSG m = {st->mouse_x, st->mouse_y, st->qualifiers, action};
    return m;
}

// --- Finding the window under a point -------------------------------------------------------------

// The buttons of minimised windows in `list` stand in front of the windows of the list.
static t_Window *MinimisedAt(t_List *list, i16 x, i16 y, T_RPOS clip)
{
    for (t_Node *n = list->last; n->prev; n = n->prev) {
        t_Window *w = (t_Window *)n;
        T_RPOS r;
        if (IsWindowLive(w) && MinimisedButtonRect(w, &r) && RectIntersect(&r, &clip) && PointBoxColl(x, y, &r))
            return w;
    }
    return NULL;
}

// The topmost window at x, y: `w` or one of its children (which stand in front of it), each
// clipped to `clip`, or to the parent's user area for WF_CLIP_PARENT children.
static t_Window *HitOne(t_Window *w, i16 x, i16 y, T_RPOS clip, t_Window **minimised)
{
    if (!IsWindowLive(w) || IsPopup(w) || w->state != WINDOW_STATE_OPEN || (w->flags & WF_NO_MOUSE))
        return NULL;
    T_RPOS user = UserArea(w);
    RectIntersect(&user, &clip);
    if ((*minimised = MinimisedAt(&w->children, x, y, user)))
        return NULL;
    for (t_Node *c = w->children.last; c->prev; c = c->prev) {
        t_Window *child = (t_Window *)c;
        if (IsFloating(child))
            continue;  // tried before the tree
        t_Window *hit = HitOne(child, x, y, (child->flags & WF_CLIP_PARENT) ? user : clip, minimised);
        if (hit || *minimised)
            return hit;
    }
    T_RPOS f = {w->x, w->y, w->w, w->h};
    if (RectIntersect(&f, &clip) && PointBoxColl(x, y, &f))
        return w;
    return NULL;
}

// Popups first, then the floating windows, then the window tree. A hit on a minimised window's
// button gives null and that window in *minimised.
t_Window *WindowAtPoint(i16 x, i16 y, t_Window **minimised)
{
    t_Window *min = NULL;
    if (minimised)
        *minimised = NULL;
    if (!CURRENT_DISPLAY->window_class)
        return NULL;
    for (t_Node *n = TopLevel()->last; n->prev; n = n->prev) {
        t_Window *w = (t_Window *)n;
        T_RPOS f = {w->x, w->y, w->w, w->h};
        if (IsWindowLive(w) && IsPopup(w) && PointBoxColl(x, y, &f))
            return w;
    }
    T_RPOS screen;
    GetPhysicalScreenRes(&screen);
    t_Window *floating[FLOATING_MAX];
    for (u32 i = CollectFloatingWindows(floating, FLOATING_MAX); i > 0; i--) {
        t_Window *hit = HitOne(floating[i - 1], x, y, screen, &min);
        if (min) {
            if (minimised)
                *minimised = min;
            return NULL;
        }
        if (hit)
            return hit;
    }
    if ((min = MinimisedAt(TopLevel(), x, y, screen))) {
        if (minimised)
            *minimised = min;
        return NULL;
    }
    for (t_Node *n = TopLevel()->last; n->prev; n = n->prev) {
        t_Window *hit = HitOne((t_Window *)n, x, y, screen, &min);
        if (min) {
            if (minimised)
                *minimised = min;
            return NULL;
        }
        if (hit)
            return hit;
    }
    return NULL;
}

// --- Mouse ---------------------------------------------------------------------------------------

static int FrameKind(u32 kind)
{
    return kind == HANDLER_KIND_TITLEBAR || kind == HANDLER_KIND_BORDER;
}

// Offers the event to the window's handlers that `pick` selects, by priority, until one takes it.
static t_Handler *OfferToHandlers(t_Window *w, u32 event, void *data, int (*pick)(u32 kind))
{
    t_Handler *list[HANDLERS_MAX];
    u32 n = SnapshotHandlers(w, list, HANDLERS_MAX);
    for (u32 i = 0; i < n; i++) {
        t_Handler *h = list[i];
        if (!pick(h->kind) || !HandlerIsOn(w, h) || !h->input)
            continue;
        if (h->input(h, event, data))
            return h;
    }
    return NULL;
}

static int MenuKind(u32 kind)
{
    return kind == HANDLER_KIND_MENU;
}
static int OwnerKind(u32 kind)
{
    return !FrameKind(kind) && !MenuKind(kind) && kind != HANDLER_KIND_GADGET;
}
static int AnyKind(u32 kind)
{
    return (void)kind, 1;
}

static int IsPress(u16 action)
{
    return action == ACT_LMOUSE_DOWN || action == ACT_RMOUSE_DOWN;
}

// One mouse event in a window: frame, menu bar, gadget, other handlers. With `capture`, whoever
// takes it holds the pointer until the buttons are up. True when taken.
static int RouteToWindow(t_Window *w, T_MOUSE_MSG *m, int capture)
{
    t_Handler *h = OfferToHandlers(w, HANDLER_EVENT_MOUSE, m, FrameKind);
    if (!h && IsWindowLive(w))
        h = OfferToHandlers(w, HANDLER_EVENT_MOUSE, m, MenuKind);
    if (h) {
        if (capture)
            st->capture = T_CAPTURE{w, h, NULL};
        return 1;
    }
    if (!IsWindowLive(w))
        return 0;
    t_gadget *g = GadgetAtPoint(w, m->x, m->y);
    if (g) {
        if (IsPress(m->mouse_action)) {
            g->handler->current_gadget = g;
            g->handler->pressed_gadget = g;
        }
        if (capture)
            st->capture = T_CAPTURE{w, NULL, g};
        GadgetMouseEvent(w, g, m);
        return 1;
    }
    h = OfferToHandlers(w, HANDLER_EVENT_MOUSE, m, OwnerKind);
    if (h && capture)
        st->capture = T_CAPTURE{w, h, NULL};
    return h != NULL;
}

static void ToCapture(T_MOUSE_MSG *m)
{
    T_CAPTURE c = st->capture;
    if (!IsWindowLive(c.window)) {
        st->capture = T_CAPTURE{};
        return;
    }
    if (c.gadget)
        GadgetMouseEvent(c.window, c.gadget, m);
    else if (c.handler && HandlerIsOn(c.window, c.handler) && c.handler->input)
        c.handler->input(c.handler, HANDLER_EVENT_MOUSE, m);
}

void BreakPress(void)
{
    T_CAPTURE c = st->capture;
    st->broken_buttons |= st->buttons;
    st->capture = T_CAPTURE{};
    if (c.gadget)
        c.gadget->gadget_state &= ~GSTATE_PRESSED;
    if (!IsWindowLive(c.window))
        return;
    t_Handler *list[HANDLERS_MAX];
    u32 n = SnapshotHandlers(c.window, list, HANDLERS_MAX);
    for (u32 i = 0; i < n; i++)
        if (HandlerIsOn(c.window, list[i]) && list[i]->input)
            list[i]->input(list[i], HANDLER_EVENT_BREAK, NULL);
}

// The image shown while no button is down: a border handle's, or a gadget's own cursor.
static void HoverImage(t_Window *w, t_gadget *g)
{
    u16 handle = w ? BorderHandleAt(w, st->mouse_x, st->mouse_y) : 0;
    if (handle) {
        SetBorderMouseImage(handle);
        st->border_image_shown = 1;
    } else if (g && (g->live_flags & GADGET_FLAGS_CURSOR)) {
        SetMouseImage(g->cursor);
        st->border_image_shown = 1;
    } else if (st->border_image_shown) {
        SetMouseImage(MOUSE_IMAGE_ARROW);
        st->border_image_shown = 0;
    }
}

static void RouteMove(i16 x, i16 y)
{
    SetPointer(x, y);
    st->last_move_ms = _LumoraBase->time_ms;
    if (st->capture.window) {
        T_MOUSE_MSG m = MouseMsg(ACT_MOUSE_MOVE);
        ToCapture(&m);
    } else if (!st->buttons) {  // an idle move: every handler of the window under the pointer
        t_Window *w = WindowAtPoint(st->mouse_x, st->mouse_y, NULL);
        t_gadget *g = w ? GadgetAtPoint(w, st->mouse_x, st->mouse_y) : NULL;
        t_Gaget_Handler *gh = w ? FindGadgetHandler(w) : NULL;
        if (gh && gh->hover_gadget != g) {
            if (gh->hover_gadget)
                gh->hover_gadget->gadget_state &= ~GSTATE_HOVER;
            gh->hover_gadget = g;
            gh->hover_since_ms = _LumoraBase->time_ms;
            if (g)
                g->gadget_state |= GSTATE_HOVER;
        }
        HoverImage(w, g);
        if (w) {
            T_MOUSE_MSG m = MouseMsg(0);
            t_Handler *list[HANDLERS_MAX];
            u32 n = SnapshotHandlers(w, list, HANDLERS_MAX);
            for (u32 i = 0; i < n; i++)
                if (HandlerIsOn(w, list[i]) && list[i]->input)
                    list[i]->input(list[i], HANDLER_EVENT_MOUSE, &m);
        }
    }
    CallMouseMoveHooks();
}

// An event for the open popups' handlers, the top one first, until one takes it. The popups are
// taken first, since a handler may close them.
static int OfferToPopups(u32 event, void *data)
{
    t_Window *popups[POPUPS_MAX];
    u32 n = 0;
    for (t_Node *p = TopLevel()->last; p->prev; p = p->prev)
        if (IsWindowLive((t_Window *)p) && IsPopup((t_Window *)p)) {
            if (!QF_EXPECT(n < POPUPS_MAX))
                break;
            popups[n++] = (t_Window *)p;
        }
    for (u32 i = 0; i < n; i++)
        if (IsWindowLive(popups[i]) && OfferToHandlers(popups[i], event, data, AnyKind))
            return 1;
    return 0;
}

// While a popup is open, a press outside every popup goes first to the popups' handlers.
static int OfferOutside(T_MOUSE_MSG *m)
{
    return OfferToPopups(HANDLER_EVENT_OUTSIDE, m);
}

static int IsWithinWindow(t_Window *w, t_Window *ancestor)
{
    for (; w; w = w->parent)
        if (w == ancestor)
            return 1;
    return 0;
}

// Whether a press on `w` at x, y moves the input focus there. A popup, a toolbar (a palette) and
// the menu bar of the window the keys already go to (or of one of its ancestors) don't: after a
// pick there, the keys go where they went before.
static int PressTakesFocus(t_Window *w, i16 x, i16 y)
{
    if (IsPopup(w) || FindHandlerOfKind(w, HANDLER_KIND_TOOLBAR))
        return 0;
    T_RPOS bar;
    t_Window *focus = FocusWindow();
    if (IsWindowLive(focus) && IsWithinWindow(focus, w) && MenuBarRect(w, &bar) && PointBoxColl(x, y, &bar))
        return 0;
    return FocusWindow() != w;
}

static void RoutePress(u16 button, i16 x, i16 y)
{
    SetPointer(x, y);
    u16 bit = button == 1 ? 1 : 2;
    T_MOUSE_MSG m = MouseMsg(button == 1 ? ACT_LMOUSE_DOWN : ACT_RMOUSE_DOWN);
    st->buttons |= bit;
    st->broken_buttons &= ~bit;
    if (st->capture.window) {  // another button is held: the holder gets this one too
        ToCapture(&m);
        return;
    }
    t_Window *min = NULL;
    t_Window *w = WindowAtPoint(m.x, m.y, &min);
    if ((!w || !IsPopup(w)) && OfferOutside(&m)) {
        st->broken_buttons |= bit;
        return;
    }
    w = WindowAtPoint(m.x, m.y, &min);  // the popups may have closed
    if (min) {                          // a minimised window's button restores it
        RestoreMinimised(min);
        st->broken_buttons |= bit;
        return;
    }
    st->press_window = w;
    if (!w)
        return;
    if (PressTakesFocus(w, m.x, m.y))
        ISetActiveWindow(w);
    else if (!IsPopup(w))
        for (t_Window *t = w; t; t = t->parent)
            WindowToFront(t);
    if (!IsWindowLive(w))
        return;
    u32 now = _LumoraBase->time_ms;
    int dbl = button == 1 && st->last_press_window == w && now - st->last_press_ms <= DOUBLE_CLICK_MS &&
              abs(m.x - st->last_press_x) <= DOUBLE_CLICK_DISTANCE &&
              abs(m.y - st->last_press_y) <= DOUBLE_CLICK_DISTANCE;
    RouteToWindow(w, &m, 1);
    if (button != 1)
        return;
    if (!dbl) {
        st->last_press_ms = now, st->last_press_x = m.x, st->last_press_y = m.y;
        st->last_press_window = w;
        return;
    }
    st->last_press_window = NULL;  // a third press starts over
    T_MOUSE_MSG d = MouseMsg(ACT_LMOUSE_DBL);
    if (st->capture.window)
        ToCapture(&d);
    else if (IsWindowLive(w))
        RouteToWindow(w, &d, 0);
}

static void RouteRelease(u16 button, i16 x, i16 y)
{
    SetPointer(x, y);
    u16 bit = button == 1 ? 1 : 2;
    st->buttons &= ~bit;
    T_MOUSE_MSG m = MouseMsg(button == 1 ? ACT_LMOUSE_UP : ACT_RMOUSE_UP);
    if (st->broken_buttons & bit) {  // the press was broken off: its release means nothing
        st->broken_buttons &= ~bit;
        return;
    }
    T_CAPTURE c = st->capture;
    if (c.window) {
        ToCapture(&m);
        // RemoveGadget clears the capture, so an unchanged capture names a gadget still there.
        if (!st->buttons && c.gadget && st->capture.gadget == c.gadget && c.gadget->handler->pressed_gadget == c.gadget)
            c.gadget->handler->pressed_gadget = NULL;
        if (!st->buttons)
            st->capture = T_CAPTURE{};
    } else if (IsWindowLive(st->press_window)) {
        RouteToWindow(st->press_window, &m, 0);
    }
    if (!st->buttons)
        st->press_window = NULL;
}

static void RouteWheel(i16 wheel)
{
    T_MOUSE_MSG m = MouseMsg(wheel > 0 ? ACT_MOUSE_WHEEL_UP : ACT_MOUSE_WHEEL_DOWN);
    if (st->capture.window) {
        ToCapture(&m);
        return;
    }
    t_Window *w = WindowAtPoint(m.x, m.y, NULL);
    if (w)
        RouteToWindow(w, &m, 0);
}

// --- Keys ----------------------------------------------------------------------------------------

static void RouteKey(u16 key, u16 qualifiers)
{
    T_KEY_MSG km = {key, qualifiers};
    t_Window *focus = FocusWindow();
    if (key == KEY_ALT_F4 && (qualifiers & QUAL_ALT)) {
        // Alt+F4 closes the focus window or, when that doesn't take it, the nearest parent that
        // does: in a page inside the main window it closes the application. A dialog or box
        // (in front of, or dependent on, its parent) that doesn't take it passes it on to no one.
        t_Window *closing = focus;
        while (closing && !(closing->flags & WF_ALTF4) && !(closing->flags & (WF_IN_FRONT | WF_DEPENDANT)))
            closing = closing->parent;
        if (closing && !(closing->flags & WF_ALTF4))
            closing = NULL;
        if (closing) {
            CloseByFrame(closing);
            return;
        }
    }
    if (OfferToPopups(HANDLER_EVENT_KEY, &km))
        return;
    focus = FocusWindow();
    if (!IsWindowLive(focus))
        return;
    if (OfferToHandlers(focus, HANDLER_EVENT_KEY, &km, AnyKind) || !IsWindowLive(focus))
        return;
    // Alt with a letter opens a menu of the nearest ancestor that has a menu bar.
    if (qualifiers & QUAL_ALT)
        for (t_Window *a = focus->parent; a; a = a->parent)
            if (IsWindowLive(a) && OfferToHandlers(a, HANDLER_EVENT_KEY, &km, MenuKind))
                return;
    if (!IsWindowLive(focus))
        return;
    t_gadget *g = GetCurrentGadget(focus);
    if (g && GadgetKeyEvent(focus, g, key, qualifiers))
        return;
    if (!IsWindowLive(focus))
        return;
    if (key == KEY_TAB && !(MessageMask(focus) & IDCMP_KEY) && DialogWindow(focus)) {
        TabToNextGadget(focus, (qualifiers & QUAL_SHIFT) != 0);
        return;
    }
    // ACT_KEY goes to the first window, from the focus up, whose mask asks for keys.
    t_Window *w = focus;
    while (w && !(MessageMask(w) & IDCMP_KEY))
        w = w->parent;
    if (w && DeliverMessage(w, key, ACT_KEY, &km))
        return;
    if (key == KEY_TAB && IsWindowLive(focus) && DialogWindow(focus))
        TabToNextGadget(focus, (qualifiers & QUAL_SHIFT) != 0);
}

// Typed text: each character of the Latin-1 range is its own key.
static void RouteText(const char *text, u16 qualifiers)
{
    const u8 *p = (const u8 *)text;
    while (*p) {
        u32 c = *p++;
        if (c >= 0x80) {  // a two-byte sequence reaches 0x7FF; longer ones are outside Latin-1
            int more = c >= 0xF0 ? 3 : c >= 0xE0 ? 2 : c >= 0xC0 ? 1 : 0;
            c &= more == 1 ? 0x1F : more == 2 ? 0x0F : 0x07;
            for (int i = 0; i < more && (*p & 0xC0) == 0x80; i++)
                c = (c << 6) | (*p++ & 0x3F);
            if (!more)
                continue;
        }
        if (c < 256)
            RouteKey((u16)c, qualifiers);
    }
}

// --- Other input ---------------------------------------------------------------------------------

static void RouteDrop(const char *path)
{
    t_Window *w = WindowAtPoint(st->mouse_x, st->mouse_y, NULL);
    while (w && !(MessageMask(w) & IDCMP_RECEIVE_OBJECT))
        w = w->parent;
    if (!w) {
        myprintf(3, "A dropped file found no window to take it: %s\n", path);
        return;
    }
    char directory[FILE_PATH_SIZE], name[FILE_PATH_SIZE];
    XGetPath(directory, path);
    StripPath(name, path);
    T_DROPPED_FILE file = {directory, name};
    DeliverMessage(w, DROPPED_FILE_ITEM_CODE, ACT_RECEIVE_OBJECT, &file);
}

static void RouteQuit(void)
{
    t_Window *windows[TOP_WINDOWS_MAX];
    u32 n = 0;
    for (t_Node *w = TopLevel()->first; w->next && QF_EXPECT(n < TOP_WINDOWS_MAX); w = w->next)
        windows[n++] = (t_Window *)w;
    for (u32 i = 0; i < n; i++)
        DeliverMessage(windows[i], 0, ACT_TERMINATE, NULL);
}

void RouteInput(T_INPUT_EVENT *e)
{
    st->qualifiers = e->qualifiers;
    switch (e->kind) {
    case INPUT_MOUSE_MOVE:  // capture holder, or an idle move for the window under the pointer
        RouteMove(e->x, e->y);
        break;
    case INPUT_MOUSE_DOWN:  // left (1) or right (3) press
        if (e->button == 1 || e->button == 3)
            RoutePress(e->button, e->x, e->y);
        break;
    case INPUT_MOUSE_UP:
        if (e->button == 1 || e->button == 3)
            RouteRelease(e->button, e->x, e->y);
        break;
    case INPUT_WHEEL:
        if (e->wheel)
            RouteWheel(e->wheel);
        break;
    case INPUT_KEY_DOWN:
        RouteKey(e->key, e->qualifiers);
        break;
    case INPUT_TEXT:
        RouteText(e->text, e->qualifiers);
        break;
    case INPUT_DROP_FILE:
        RouteDrop(e->text);
        break;
    case INPUT_RESIZE:  // the screen changed size: the framebuffer and display size follow
        ScreenResized();
        break;
    case INPUT_QUIT:  // the display's window was closed: each top-level window is asked to end
        RouteQuit();
        break;
    case INPUT_FOCUS_LOST:  // a press in progress is broken off
        if (st->buttons && st->capture.window)
            BreakPress();
        st->broken_buttons |= st->buttons;
        st->buttons = 0;
        break;
    default:
        break;
    }
}
