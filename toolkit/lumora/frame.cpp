// The window frame: the border (resizing by eight handles) and the title bar (moving, close,
// maximise, minimise), as the toolkit's own handlers "border" and "titlebar", and their painting.
#include <stdio.h>
#include <string.h>

#include "lumora/lumora_internal.h"

#define FRAME_PRIORITY 100  // frame handlers stand first on a window's list
#define CORNER_GRIP 12      // a border press this near a corner resizes by the corner
#define MIN_USER_W 32       // the smallest user area a border drag leaves
#define MIN_USER_H 12
#define CHILD_KEEP_VISIBLE 32  // a dragged child keeps this much inside its parent's user area
#define MINIMISED_WIDTH 140    // the button that stands for a minimised window
#define TITLE_BUTTON_GAP 2

enum { TITLE_NONE, TITLE_CLOSE, TITLE_MAXIMISE, TITLE_MINIMISE, TITLE_MOVE };

typedef struct T_TITLEBAR_HANDLER {
    t_Handler head;
    u16 pressed;  // TITLE_ part that took the press
    u16 moved;
    i16 press_x, press_y;  // pointer at the press
    i16 start_x, start_y;  // frame at the press
} T_TITLEBAR_HANDLER;

typedef struct T_BORDER_HANDLER {
    t_Handler head;
    u16 handle;  // 1..8 while a resize runs
    u16 resized;
    i16 press_x, press_y;
    T_RPOS start;
} T_BORDER_HANDLER;

T_RPOS TitleRect(t_Window *w)
{
    i16 b = (i16)w->border_size;
    T_RPOS r = {(i16)(w->x + b), (i16)(w->y + b), (i16)(w->w - 2 * b), (i16)w->title_height};
    if (!w->title_height || !FindHandlerOfKind(w, HANDLER_KIND_TITLEBAR))
        r.w = r.h = 0;
    return r;
}

// The buttons at the right of the title bar, right to left: close, maximise, minimise.
static const struct {
    u16 part;
    u32 flag;
} title_buttons[] = {
    {TITLE_CLOSE, WF_CLOSE},
    {TITLE_MAXIMISE, WF_MAXIMISE},
    {TITLE_MINIMISE, WF_MINIMISE},
};

static int TitleButtonRect(t_Window *w, u16 part, T_RPOS *out)
{
    T_RPOS t = TitleRect(w);
    if (!t.h)
        return 0;
    i16 s = t.h - 6, x = t.x + t.w - 3 - s;
    for (const auto &b : title_buttons) {
        if (!(w->flags & b.flag))
            continue;
        if (b.part == part) {
            *out = T_RPOS{x, (i16)(t.y + 3), s, s};
            return 1;
        }
        x -= s + TITLE_BUTTON_GAP;
    }
    return 0;
}

static u16 TitleButtonAt(t_Window *w, i16 x, i16 y)
{
    T_RPOS r;
    for (const auto &b : title_buttons)
        if (TitleButtonRect(w, b.part, &r) && PointBoxColl(x, y, &r))
            return b.part;
    return TITLE_NONE;
}

u16 BorderHandleAt(t_Window *w, i16 x, i16 y)
{
    i16 b = (i16)w->border_size;
    if (!(w->flags & WF_RESIZE) || !b || !FindHandlerOfKind(w, HANDLER_KIND_BORDER) || (w->state_flags & WSF_MAXIMISED))
        return 0;
    T_RPOS f = {w->x, w->y, w->w, w->h};
    if (!PointBoxColl(x, y, &f))
        return 0;
    int left = x < f.x + b, right = x >= f.x + f.w - b;
    int top = y < f.y + b, bottom = y >= f.y + f.h - b;
    if (!left && !right && !top && !bottom)
        return 0;
    if (top || bottom)
        left |= x < f.x + CORNER_GRIP, right |= x >= f.x + f.w - CORNER_GRIP;
    if (left || right)
        top |= y < f.y + CORNER_GRIP, bottom |= y >= f.y + f.h - CORNER_GRIP;
    if (top && left)
        return 5;
    if (top && right)
        return 6;
    if (bottom && right)
        return 7;
    if (bottom && left)
        return 8;
    return top ? 1 : bottom ? 2 : left ? 3 : 4;
}

static T_RPOS ParentArea(t_Window *w)
{
    if (w->parent)
        return UserArea(w->parent);
    return T_RPOS{0, 0, CURRENT_DISPLAY->width, CURRENT_DISPLAY->height};
}

void CloseByFrame(t_Window *w)
{
    if (MessageMask(w) & IDCMP_TERMINATE)
        PostWindowMessage(w, 0, ACT_TERMINATE, NULL);
    else
        RemoveWindow(w);
}

void ToggleMaximise(t_Window *w)
{
    if (w->state_flags & WSF_MAXIMISED) {
        w->state_flags &= ~WSF_MAXIMISED;
        T_RPOS r = w->restore_rect;
        SetWindowFrame(w, r.x, r.y, r.w, r.h);
    } else {
        w->restore_rect = T_RPOS{w->x, w->y, w->w, w->h};
        w->state_flags |= WSF_MAXIMISED;
        T_RPOS a = ParentArea(w);
        SetWindowFrame(w, a.x, a.y, a.w, a.h);
    }
    DeliverMessage(w, 0, ACT_WINDOW_RESIZE, NULL);
}

void MinimiseWindow(t_Window *w)
{
    w->state = WINDOW_STATE_MINIMISED;
    t_Window *focus = FocusWindow();
    for (t_Window *t = focus; t; t = t->parent)
        if (t == w) {
            CURRENT_DISPLAY->window_class->current_window = NULL;
            if (IsWindowLive(w->parent))
                ISetActiveWindow(w->parent);
            break;
        }
}

void RestoreMinimised(t_Window *w)
{
    w->state = WINDOW_STATE_OPEN;
    ISetActiveWindow(w);
}

int MinimisedButtonRect(t_Window *w, T_RPOS *rect)
{
    if (w->state != WINDOW_STATE_MINIMISED)
        return 0;
    t_List *siblings = w->parent ? &w->parent->children : &CURRENT_DISPLAY->window_class->windows;
    i16 index = 0;
    for (t_Node *n = siblings->first; n->next && (t_Window *)n != w; n = n->next)
        if (((t_Window *)n)->state == WINDOW_STATE_MINIMISED)
            index++;
    T_RPOS a = ParentArea(w);
    i16 h = (i16)DISPLAY_RECORD->title_height;
    *rect = T_RPOS{(i16)(a.x + 2 + index * (MINIMISED_WIDTH + 2)), (i16)(a.y + a.h - h - 2), MINIMISED_WIDTH, h};
    return 1;
}

// --- Title bar ------------------------------------------------------------------------------------

static void MoveByTitle(T_TITLEBAR_HANDLER *t, t_Window *w, i16 mx, i16 my)
{
    i16 x = t->start_x + (mx - t->press_x), y = t->start_y + (my - t->press_y);
    T_RPOS a = ParentArea(w);
    if (w->parent) {  // a child stays within reach inside its parent's user area
        if (x > a.x + a.w - CHILD_KEEP_VISIBLE)
            x = a.x + a.w - CHILD_KEEP_VISIBLE;
        if (x < a.x - w->w + CHILD_KEEP_VISIBLE)
            x = a.x - w->w + CHILD_KEEP_VISIBLE;
        if (y > a.y + a.h - (i16)w->title_height)
            y = a.y + a.h - (i16)w->title_height;
        if (y < a.y)
            y = a.y;
    } else {  // a top-level window stays on the screen
        if (x > a.w - w->w)
            x = a.w - w->w;
        if (y > a.h - w->h)
            y = a.h - w->h;
        if (x < 0)
            x = 0;
        if (y < 0)
            y = 0;
    }
    if (x != w->x || y != w->y) {
        SetWindowFrame(w, x, y, w->w, w->h);
        t->moved = 1;
    }
}

static u32 TitleBarInput(t_Handler *handler, u32 event, void *data)
{
    T_TITLEBAR_HANDLER *t = (T_TITLEBAR_HANDLER *)handler;
    t_Window *w = handler->window;
    if (event == HANDLER_EVENT_BREAK)
        t->pressed = TITLE_NONE;
    if (event != HANDLER_EVENT_MOUSE)
        return 0;
    T_MOUSE_MSG *m = (T_MOUSE_MSG *)data;
    T_RPOS title = TitleRect(w);
    switch (m->mouse_action) {
    case ACT_LMOUSE_DOWN:  // a button arms, the rest of the bar starts a move
        if (!PointBoxColl(m->x, m->y, &title))
            return 0;
        t->pressed = TitleButtonAt(w, m->x, m->y);
        if (!t->pressed && (w->flags & WF_MOVE) && !(w->state_flags & WSF_MAXIMISED)) {
            t->pressed = TITLE_MOVE;
            t->moved = 0;
            t->press_x = m->x, t->press_y = m->y;
            t->start_x = w->x, t->start_y = w->y;
        }
        return 1;
    case ACT_MOUSE_MOVE:  // the window follows while it is dragged
        if (t->pressed == TITLE_MOVE)
            MoveByTitle(t, w, m->x, m->y);
        return t->pressed != TITLE_NONE;
    case ACT_LMOUSE_UP: {  // a button acts when released over it
        u16 part = t->pressed;
        t->pressed = TITLE_NONE;
        if (part == TITLE_MOVE && t->moved)
            DeliverMessage(w, 0, ACT_WINDOW_MOVE, NULL);
        if (part != TITLE_NONE && part != TITLE_MOVE && TitleButtonAt(w, m->x, m->y) == part) {
            if (part == TITLE_CLOSE)
                CloseByFrame(w);
            if (part == TITLE_MAXIMISE)
                ToggleMaximise(w);
            if (part == TITLE_MINIMISE)
                MinimiseWindow(w);
        }
        return part != TITLE_NONE;
    }
    case ACT_LMOUSE_DBL:  // a double click on the bar maximises or restores
        if (!PointBoxColl(m->x, m->y, &title) || TitleButtonAt(w, m->x, m->y))
            return 0;
        if (w->flags & WF_MAXIMISE)
            ToggleMaximise(w);
        return 1;
    default:
        return 0;
    }
}

static void DrawTitleGlyph(u16 part, T_RPOS r, u32 colour, int maximised)
{
    i16 x = r.x + 3, y = r.y + 3, s = r.w - 7;
    switch (part) {
    case TITLE_CLOSE:  // a cross
        DrawLine(x, y, x + s, y + s, colour);
        DrawLine(x + 1, y, x + s, y + s - 1, colour);
        DrawLine(x, y + s, x + s, y, colour);
        DrawLine(x + 1, y + s, x + s, y + 1, colour);
        break;
    case TITLE_MAXIMISE:  // a window; two overlapping when maximised
        if (maximised) {
            DrawOutLineBox(x + 2, y, s - 1, s - 1, colour);
            DrawRectangle(x, y + 3, s - 1, s - 2, 0xFFFFFF);
            DrawOutLineBox(x, y + 3, s - 1, s - 2, colour);
        } else {
            DrawOutLineBox(x, y, s + 1, s + 1, colour);
            DrawRectangle(x, y, s + 1, 2, colour);
        }
        break;
    case TITLE_MINIMISE:  // a bar at the bottom
        DrawRectangle(x, y + s - 1, s + 1, 2, colour);
        break;
    }
}

static void TitleBarPaint(t_Handler *handler)
{
    T_TITLEBAR_HANDLER *t = (T_TITLEBAR_HANDLER *)handler;
    t_Window *w = handler->window;
    T_RPOS tr = TitleRect(w);
    if (!tr.h)
        return;
    T_DISPLAY_RECORD *rec = DISPLAY_RECORD;
    int active = 0;
    for (t_Window *f = FocusWindow(); f; f = f->parent)
        active |= f == w;
    DrawRectangle(tr.x, tr.y, tr.w, tr.h, active ? rec->title_colour : rec->title_inactive_colour);
    i16 text_x = tr.x + 4, text_right = tr.x + tr.w - 2;
    if (w->icon_bank) {
        DrawIconScaled(w->icon_bank, (u16)w->icon, tr.x + 2, tr.y + 2, tr.h - 4, tr.h - 4);
        text_x += tr.h - 2;
    }
    for (const auto &b : title_buttons) {
        T_RPOS r;
        if (!TitleButtonRect(w, b.part, &r))
            continue;
        if (r.x - 2 < text_right)
            text_right = r.x - 2;
        int pressed = t->pressed == b.part && PointBoxColl(w->mouse_x, w->mouse_y, &r);
        DrawRectangle(r.x, r.y, r.w, r.h, rec->frame_colour);
        DrawBevelBox(r.x, r.y, r.w, r.h, pressed ? rec->frame_dark_colour : rec->frame_light_colour,
                     pressed ? rec->frame_light_colour : rec->frame_dark_colour);
        DrawTitleGlyph(b.part, r, 0x000000, (w->state_flags & WSF_MAXIMISED) != 0);
    }
    char text[WINDOW_TITLE_SIZE];
    if (w->title_suffix && w->title_suffix[0])
        snprintf(text, sizeof(text), "%s - %s", w->name ? w->name : "", w->title_suffix);
    else
        snprintf(text, sizeof(text), "%s", w->name ? w->name : "");
    T_RPOS clip;
    GetClip(&clip);
    T_RPOS text_box = {text_x, tr.y, (i16)(text_right - text_x), tr.h};
    if (RectIntersect(&text_box, &clip)) {
        ClipInsideWindow(text_box.x, text_box.y, text_box.x + text_box.w, text_box.y + text_box.h);
        SetActiveFont(NULL);
        SetFontStyle(0);
        i16 fh = (i16)GetActiveFontHeight();
        DrawText(text_x, tr.y + (tr.h - fh) / 2, text, rec->title_text_colour);
        ClipInsideWindow(clip.x, clip.y, clip.x + clip.w, clip.y + clip.h);
    }
}

// A frame handler of `kind` on the window, made anew: the callers first look for one it has.
static t_Handler *NewFrameHandler(t_Window *window, u16 kind, T_HANDLER_INPUT input, T_HANDLER_PAINT paint,
                                  const char *name, u32 size)
{
    t_Handler *h = NewHandler(&window->handlers, input, paint, name, FRAME_PRIORITY, size, window);
    if (h)
        h->kind = kind;
    return h;
}

t_Handler *NewTitleBarHandler(t_Window *window)
{
    if (!window)
        return NULL;
    t_Handler *h = FindHandlerOfKind(window, HANDLER_KIND_TITLEBAR);
    if (!h)
        h = NewFrameHandler(window, HANDLER_KIND_TITLEBAR, TitleBarInput, TitleBarPaint, "titlebar",
                            sizeof(T_TITLEBAR_HANDLER));
    return h;
}

void SetTitleBarHoverTitle(t_Window *window, const char *text)
{
    if (!window)
        return;
    if (window->hover_title)
        FreeMem(window->hover_title, (u32)strlen(window->hover_title) + 1);
    window->hover_title = NULL;
    if (!text || !text[0])
        return;
    u32 size = (u32)strlen(text) + 1;
    window->hover_title = (char *)AllocMemC(size);
    memcpy(window->hover_title, text, size);
}

// --- Border ---------------------------------------------------------------------------------------

static u32 BorderInput(t_Handler *handler, u32 event, void *data)
{
    T_BORDER_HANDLER *b = (T_BORDER_HANDLER *)handler;
    t_Window *w = handler->window;
    if (event == HANDLER_EVENT_BREAK && b->handle) {
        b->handle = 0;
        UnLockMouseImage();
    }
    if (event != HANDLER_EVENT_MOUSE)
        return 0;
    T_MOUSE_MSG *m = (T_MOUSE_MSG *)data;
    switch (m->mouse_action) {
    case ACT_LMOUSE_DOWN:  // a press on a handle starts a resize
        b->handle = BorderHandleAt(w, m->x, m->y);
        if (!b->handle)
            return 0;
        b->resized = 0;
        b->press_x = m->x, b->press_y = m->y;
        b->start = T_RPOS{w->x, w->y, w->w, w->h};
        UnLockMouseImage();
        SetBorderMouseImage(b->handle);
        LockMouseImage();
        return 1;
    case ACT_MOUSE_MOVE: {  // the named sides follow the pointer
        if (!b->handle)
            return 0;
        T_RPOS r = b->start;
        u16 h = b->handle;
        int left = h == 3 || h == 5 || h == 8, top = h == 1 || h == 5 || h == 6;
        i16 mx = (left ? r.x : r.x + r.w) + (m->x - b->press_x);
        i16 my = (top ? r.y : r.y + r.h) + (m->y - b->press_y);
        i16 min_w = MIN_USER_W + (w->w - w->user_w), min_h = MIN_USER_H + (w->h - w->user_h);
        GenericResize(&r, min_w, min_h, mx, my, h);
        if (r.x != w->x || r.y != w->y || r.w != w->w || r.h != w->h) {
            SetWindowFrame(w, r.x, r.y, r.w, r.h);
            b->resized = 1;
        }
        return 1;
    }
    case ACT_LMOUSE_UP:  // the resize ends and is reported
        if (!b->handle)
            return 0;
        b->handle = 0;
        UnLockMouseImage();
        SetMouseImage(MOUSE_IMAGE_ARROW);
        if (b->resized)
            DeliverMessage(w, 0, ACT_WINDOW_RESIZE, NULL);
        return 1;
    default:
        return 0;
    }
}

static void BorderPaint(t_Handler *handler)
{
    t_Window *w = handler->window;
    i16 b = (i16)w->border_size;
    if (!b)
        return;
    T_DISPLAY_RECORD *rec = DISPLAY_RECORD;
    DrawRectangle(w->x, w->y, w->w, b, rec->frame_colour);
    DrawRectangle(w->x, w->y + w->h - b, w->w, b, rec->frame_colour);
    DrawRectangle(w->x, w->y + b, b, w->h - 2 * b, rec->frame_colour);
    DrawRectangle(w->x + w->w - b, w->y + b, b, w->h - 2 * b, rec->frame_colour);
    DrawBevelBox(w->x, w->y, w->w, w->h, rec->frame_light_colour, rec->frame_dark_colour);
}

t_Handler *NewBorderHandler(t_Window *window)
{
    if (!window)
        return NULL;
    t_Handler *h = FindHandlerOfKind(window, HANDLER_KIND_BORDER);
    if (h)
        return h;
    window->border_size = DISPLAY_RECORD->border_size;
    return NewFrameHandler(window, HANDLER_KIND_BORDER, BorderInput, BorderPaint, "border", sizeof(T_BORDER_HANDLER));
}

// --- Painting -------------------------------------------------------------------------------------

// The strips between the frame and the user area, then the frame handlers' own painting.
void PaintFrame(t_Window *w)
{
    T_DISPLAY_RECORD *rec = DISPLAY_RECORD;
    i16 top = w->user_y - w->y, bottom = w->y + w->h - (w->user_y + w->user_h);
    i16 left = w->user_x - w->x, right = w->x + w->w - (w->user_x + w->user_w);
    if (top > 0)
        DrawRectangle(w->x, w->y, w->w, top, rec->frame_colour);
    if (bottom > 0)
        DrawRectangle(w->x, w->y + w->h - bottom, w->w, bottom, rec->frame_colour);
    if (left > 0)
        DrawRectangle(w->x, w->user_y, left, w->user_h, rec->frame_colour);
    if (right > 0)
        DrawRectangle(w->x + w->w - right, w->user_y, right, w->user_h, rec->frame_colour);
    t_Handler *b = FindHandlerOfKind(w, HANDLER_KIND_BORDER);
    if (b && b->paint)
        b->paint(b);
    t_Handler *t = FindHandlerOfKind(w, HANDLER_KIND_TITLEBAR);
    if (t && t->paint)
        t->paint(t);
}

void PaintMinimisedButton(t_Window *w)
{
    T_RPOS r;
    if (!MinimisedButtonRect(w, &r))
        return;
    T_DISPLAY_RECORD *rec = DISPLAY_RECORD;
    DrawRectangle(r.x, r.y, r.w, r.h, rec->title_inactive_colour);
    DrawBevelBox(r.x, r.y, r.w, r.h, rec->frame_light_colour, rec->frame_dark_colour);
    T_RPOS clip;
    GetClip(&clip);
    T_RPOS text_box = {(i16)(r.x + 2), r.y, (i16)(r.w - 4), r.h};
    if (!RectIntersect(&text_box, &clip))
        return;
    ClipInsideWindow(text_box.x, text_box.y, text_box.x + text_box.w, text_box.y + text_box.h);
    SetActiveFont(NULL);
    SetFontStyle(0);
    DrawText(r.x + 4, r.y + (r.h - (i16)GetActiveFontHeight()) / 2, w->name ? w->name : "", rec->title_text_colour);
    ClipInsideWindow(clip.x, clip.y, clip.x + clip.w, clip.y + clip.h);
}
