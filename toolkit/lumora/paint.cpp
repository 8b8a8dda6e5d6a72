// Repainting the screen: the desktop, the windows back to front (frame, user area, gadgets,
// handlers' paint, children), minimised windows' buttons, popups, and the hover text on top.
#include "lumora/lumora_internal.h"

#define HOVER_OFFSET_X 12
#define HOVER_OFFSET_Y 20
#define HOVER_PADDING 4

int RectIntersect(T_RPOS *a, const T_RPOS *b)
{
    i32 x1 = a->x > b->x ? a->x : b->x, y1 = a->y > b->y ? a->y : b->y;
    i32 ax2 = a->x + a->w, bx2 = b->x + b->w, ay2 = a->y + a->h, by2 = b->y + b->h;
    i32 x2 = ax2 < bx2 ? ax2 : bx2, y2 = ay2 < by2 ? ay2 : by2;
    a->x = (i16)x1, a->y = (i16)y1;
    if (x2 <= x1 || y2 <= y1) {
        a->w = a->h = 0;
        return 0;
    }
    a->w = (i16)(x2 - x1), a->h = (i16)(y2 - y1);
    return 1;
}

static void Clip(const T_RPOS &r)
{
    ClipInsideWindow(r.x, r.y, r.x + r.w, r.y + r.h);
}

// --- Backgrounds under windows ----------------------------------------------------------------
// A background is filled only where no window painted on top of it will cover it: a window that
// draws its background paints the whole of its frame, so the frames of the windows above are holes
// in the fill. That keeps a repaint from filling the screen three times over (the desktop, the
// main window, a page). `lumora_state.paint_every_background` turns it off, for tests that compare.

#define HOLES_MAX 32  // windows whose frames a background is painted round

// Whether a window covers all of its frame (as far as its clip lets it show) when it is painted.
static int CoversItsFrame(t_Window *w)
{
    return IsWindowLive(w) && w->state == WINDOW_STATE_OPEN && !IsPopup(w) &&
           !(w->flags & (WF_NO_BACK | WF_SEETHROUGH));
}

// Fills `area` but for the holes.
static void FillAround(T_RPOS area, u32 colour, const T_RPOS *holes, int count)
{
    if (area.w <= 0 || area.h <= 0)
        return;
    while (count > 0) {
        T_RPOS hole = holes[0];
        if (RectIntersect(&hole, &area))
            break;
        holes++, count--;
    }
    if (count == 0) {
        DrawRectangle(area.x, area.y, area.w, area.h, colour);
        return;
    }
    T_RPOS hole = holes[0];
    RectIntersect(&hole, &area);
    i16 area_bottom = (i16)(area.y + area.h), hole_bottom = (i16)(hole.y + hole.h);
    i16 area_right = (i16)(area.x + area.w), hole_right = (i16)(hole.x + hole.w);
    T_RPOS pieces[4] = {
        {area.x, area.y, area.w, (i16)(hole.y - area.y)},                 // above
        {area.x, hole_bottom, area.w, (i16)(area_bottom - hole_bottom)},  // below
        {area.x, hole.y, (i16)(hole.x - area.x), hole.h},                 // left
        {hole_right, hole.y, (i16)(area_right - hole_right), hole.h},     // right
    };
    for (const T_RPOS &piece : pieces)
        FillAround(piece, colour, holes + 1, count - 1);
}

// The frames of the windows of `list` that cover them, each cut to where it can show: `user` for
// the children that clip to their parent, `clip` for the others. Returns how many.
static int CollectHoles(t_List *list, const T_RPOS &user, const T_RPOS &clip, T_RPOS *holes)
{
    int count = 0;
    if (lumora_state.paint_every_background)
        return 0;
    for (t_Node *n = list->first; n->next; n = n->next) {
        t_Window *c = (t_Window *)n;
        if (!CoversItsFrame(c))
            continue;
        if (!QF_EXPECT(count < HOLES_MAX))
            break;  // the rest is painted under, as without holes
        T_RPOS frame = {c->x, c->y, c->w, c->h};
        if (RectIntersect(&frame, (c->flags & WF_CLIP_PARENT) ? &user : &clip))
            holes[count++] = frame;
    }
    return count;
}

static void PaintWindow(t_Window *w, T_RPOS clip)
{
    if (!IsWindowLive(w) || w->state != WINDOW_STATE_OPEN)
        return;
    T_RPOS frame = {w->x, w->y, w->w, w->h};
    T_RPOS user = UserArea(w);
    int frame_visible = RectIntersect(&frame, &clip);
    int user_visible = RectIntersect(&user, &clip);
    if (frame_visible) {
        Clip(frame);
        PaintFrame(w);
    }
    if (user_visible) {
        Clip(user);
        if (!(w->flags & WF_NO_BACK)) {
            if (w->bitmap) {
                DrawRectangle(user.x, user.y, user.w, user.h, w->UserAreaColour);
                PaintWindowBitmap(w);
            } else {
                T_RPOS holes[HOLES_MAX];
                T_RPOS whole_user = UserArea(w);
                FillAround(user, w->UserAreaColour, holes, CollectHoles(&w->children, whole_user, clip, holes));
            }
        }
        PaintGadgets(w);
    }
    if (frame_visible) {  // the owner's handlers, the menu bar's above the user area
        t_Handler *list[HANDLERS_MAX];
        u32 n = SnapshotHandlers(w, list, HANDLERS_MAX);
        for (u32 i = 0; i < n; i++) {
            t_Handler *h = list[i];
            if (h->kind == HANDLER_KIND_BORDER || h->kind == HANDLER_KIND_TITLEBAR || !h->paint)
                continue;
            if (!HandlerIsOn(w, h))
                continue;
            if (h->kind == HANDLER_KIND_MENU)
                Clip(frame);
            else if (user_visible)
                Clip(user);
            else
                continue;
            h->paint(h);
        }
    }
    for (t_Node *c = w->children.first; c->next; c = c->next) {
        t_Window *child = (t_Window *)c;
        if (IsPopup(child) || IsFloating(child))
            continue;  // painted after the tree
        PaintWindow(child, (child->flags & WF_CLIP_PARENT) ? user : clip);
    }
    if (user_visible)
        for (t_Node *c = w->children.first; c->next; c = c->next) {
            Clip(user);
            PaintMinimisedButton((t_Window *)c);
        }
}

static void PaintHoverText(void)
{
    T_LUMORA_STATE *st = &lumora_state;
    if (st->buttons || st->capture.window)
        return;
    if (_LumoraBase->time_ms - st->last_move_ms < HOVER_DELAY_MS)
        return;
    i16 mx = st->mouse_x, my = st->mouse_y;
    t_Window *w = WindowAtPoint(mx, my, NULL);
    if (!w)
        return;
    const char *text = NULL;
    t_gadget *g = GadgetAtPoint(w, mx, my);
    T_RPOS title = TitleRect(w);
    if (g && g->hover_text && g->hover_text[0])
        text = g->hover_text;
    else if (!g && w->hover_title && PointBoxColl(mx, my, &title))
        text = w->hover_title;
    if (!text)
        return;
    T_DISPLAY_RECORD *rec = DISPLAY_RECORD;
    T_DISPLAY *d = CURRENT_DISPLAY;
    ClipAll();
    SetActiveFont(NULL);
    SetFontStyle(0);
    i16 tw = (i16)GetStringWidth(text) + 2 * HOVER_PADDING;
    i16 th = (i16)GetActiveFontHeight() + HOVER_PADDING;
    i16 x = mx + HOVER_OFFSET_X, y = my + HOVER_OFFSET_Y;
    if (x + tw > d->width)
        x = d->width - tw;
    if (y + th > d->height)
        y = my - th - HOVER_PADDING;
    if (x < 0)
        x = 0;
    if (y < 0)
        y = 0;
    DrawRectangle(x, y, tw, th, rec->hover_back_colour);
    DrawOutLineBox(x, y, tw, th, rec->gadget_dark_colour);
    DrawText(x + HOVER_PADDING, y + HOVER_PADDING / 2, text, rec->gadget_text_colour);
}

// The screen, or only `area` of it (null: all): nothing is drawn outside the area, and what lies
// inside it is drawn as a whole repaint would draw it.
void PaintScreen(const T_RPOS *area)
{
    T_DISPLAY *d = CURRENT_DISPLAY;
    T_RPOS screen = {0, 0, d->width, d->height};
    if (area && !RectIntersect(&screen, area))
        return;
    SetClipBound(area ? &screen : NULL);
    t_List *top = &d->window_class->windows;
    T_RPOS holes[HOLES_MAX];
    FillAround(screen, d->record->desktop_colour, holes, CollectHoles(top, screen, screen, holes));
    for (t_Node *n = top->first; n->next; n = n->next)
        if (!IsPopup((t_Window *)n))
            PaintWindow((t_Window *)n, screen);
    t_Window *floating[FLOATING_MAX];
    for (u32 i = 0, count = CollectFloatingWindows(floating, FLOATING_MAX); i < count; i++)
        PaintWindow(floating[i], screen);
    for (t_Node *n = top->first; n->next; n = n->next) {
        ClipAll();
        PaintMinimisedButton((t_Window *)n);
    }
    for (t_Node *n = top->first; n->next; n = n->next)
        if (IsPopup((t_Window *)n))
            PaintWindow((t_Window *)n, screen);
    PaintHoverText();
    SetClipBound(NULL);
    SetFontStyle(0);
}

// One top-level window alone, over what the screen shows: for a window in front whose contents
// change while nothing else does (a progress bar during a long save).
void RepaintWindowOnly(t_Window *window)
{
    if (!display || !CURRENT_DISPLAY->record || !IsWindowLive(window))
        return;
    T_DISPLAY *d = CURRENT_DISPLAY;
    T_RPOS screen = {0, 0, d->width, d->height};
    PaintWindow(window, screen);
    ClipAll();
    SetFontStyle(0);
    display->present();
}
