// The mouse: the toolkit's pointer position, its limits and image, and rectangle helpers.
#include "lumora/lumora_internal.h"

static void UpdateWindowsMouse(t_List *list, i16 x, i16 y)
{
    for (t_Node *n = list->first; n->next; n = n->next) {
        t_Window *w = (t_Window *)n;
        w->mouse_x = x, w->mouse_y = y;
        UpdateWindowsMouse(&w->children, x, y);
    }
}

// Clamps a point into the mouse limits, when set.
void ClampToLimits(i16 *x, i16 *y)
{
    T_LUMORA_STATE *st = &lumora_state;
    if (!st->mouse_limited)
        return;
    T_RPOS *r = &st->mouse_limits;
    if (*x < r->x)
        *x = r->x;
    if (*y < r->y)
        *y = r->y;
    if (r->w > 0 && *x > r->x + r->w - 1)
        *x = r->x + r->w - 1;
    if (r->h > 0 && *y > r->y + r->h - 1)
        *y = r->y + r->h - 1;
}

// The toolkit's pointer and every window's mouse_x, mouse_y.
void SetPointer(i16 x, i16 y)
{
    ClampToLimits(&x, &y);
    lumora_state.mouse_x = x, lumora_state.mouse_y = y;
    if (CURRENT_DISPLAY->window_class) {
        UpdateWindowsMouse(&CURRENT_DISPLAY->window_class->windows, x, y);
        UpdateWindowsMouse(&lumora_state.removed, x, y);
    }
}

void GetMouseXY(i16 *x, i16 *y)
{
    if (x)
        *x = lumora_state.mouse_x;
    if (y)
        *y = lumora_state.mouse_y;
}

void SetMouseXY(i16 x, i16 y)
{
    SetPointer(x, y);
    if (display)
        display->warp_mouse(lumora_state.mouse_x, lumora_state.mouse_y);
}

// A rectangle that covers the whole screen frees the pointer.
void SetMouseLimits(T_RPOS *rect)
{
    T_LUMORA_STATE *st = &lumora_state;
    T_DISPLAY *d = CURRENT_DISPLAY;
    int free =
        !rect || (rect->x <= 0 && rect->y <= 0 && rect->x + rect->w >= d->width && rect->y + rect->h >= d->height);
    st->mouse_limited = !free;
    if (!free)
        st->mouse_limits = *rect;
    if (display)
        display->set_mouse_rect(free ? NULL : rect);
    if (!free)
        SetPointer(st->mouse_x, st->mouse_y);
}

void SetMouseImage(u16 image)
{
    T_LUMORA_STATE *st = &lumora_state;
    if (st->mouse_image_locked || st->mouse_image == image)
        return;
    st->mouse_image = image;
    if (display)
        display->set_cursor(image);
}

// The resize image of each border handle: 1, 2 top and bottom; 3, 4 left and right; 5 top left,
// 6 top right, 7 bottom right, 8 bottom left.
// clang-format off
static const u16 border_images[9] = {
    MOUSE_IMAGE_ARROW,     MOUSE_IMAGE_SIZE_NS,   MOUSE_IMAGE_SIZE_NS,
    MOUSE_IMAGE_SIZE_WE,   MOUSE_IMAGE_SIZE_WE,   MOUSE_IMAGE_SIZE_NWSE,
    MOUSE_IMAGE_SIZE_NESW, MOUSE_IMAGE_SIZE_NWSE, MOUSE_IMAGE_SIZE_NESW,
};
// clang-format on

void SetBorderMouseImage(u16 handle)
{
    SetMouseImage(handle <= 8 ? border_images[handle] : 0);
}

void LockMouseImage(void)
{
    lumora_state.mouse_image_locked = 1;
}
void UnLockMouseImage(void)
{
    lumora_state.mouse_image_locked = 0;
}

// The qualifiers of the input event in hand (the last one routed).
u16 GetKeyboardFlags(void)
{
    return lumora_state.qualifiers;
}

void GetPhysicalScreenRes(T_RPOS *rect)
{
    if (!rect)
        return;
    rect->x = 0, rect->y = 0;
    rect->w = CURRENT_DISPLAY->width, rect->h = CURRENT_DISPLAY->height;
}

void NormArea(T_RPOS *rect)
{
    i16 x1 = rect->x, y1 = rect->y, x2 = rect->w, y2 = rect->h;
    rect->x = x1 < x2 ? x1 : x2;
    rect->y = y1 < y2 ? y1 : y2;
    rect->w = x1 < x2 ? x2 - x1 : x1 - x2;
    rect->h = y1 < y2 ? y2 - y1 : y1 - y2;
}

int PointBoxColl(i16 x, i16 y, T_RPOS *box)
{
    return x >= box->x && x < box->x + box->w && y >= box->y && y < box->y + box->h;
}

// A low edge (top or left) dragged to `to`, the high edge staying: it stops `min` short of it.
static void DragLowEdge(i16 *pos, i16 *size, i16 min, i16 to)
{
    i16 edge = *pos + *size;
    i16 at = to > edge - min ? edge - min : to;
    *pos = at, *size = edge - at;
}

// A high edge (bottom or right) dragged to `to`: the size is at least `min`.
static void DragHighEdge(i16 pos, i16 *size, i16 min, i16 to)
{
    *size = to - pos < min ? min : to - pos;
}

// Handles: 1 top, 2 bottom, 3 left, 4 right, 5 top left, 6 top right, 7 bottom right, 8 bottom
// left. A side dragged past the opposite one stops at the minimum size.
void GenericResize(T_RPOS *rect, i16 min_w, i16 min_h, i16 mx, i16 my, u16 handle)
{
    if (handle == 1 || handle == 5 || handle == 6)
        DragLowEdge(&rect->y, &rect->h, min_h, my);
    if (handle == 2 || handle == 7 || handle == 8)
        DragHighEdge(rect->y, &rect->h, min_h, my);
    if (handle == 3 || handle == 5 || handle == 8)
        DragLowEdge(&rect->x, &rect->w, min_w, mx);
    if (handle == 4 || handle == 6 || handle == 7)
        DragHighEdge(rect->x, &rect->w, min_w, mx);
}
