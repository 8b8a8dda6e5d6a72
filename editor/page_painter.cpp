// The page painter: the rubber band and the selection it makes, dotted frames of marked gadgets,
// the outline and size handles of a single selected gadget, and each step of a handle resize. The
// repaint is the clock of the band and of the resize: neither takes effect between repaints.
#include "editor/page_painter.h"

#include "editor/mouse_editing.h"
#include "editor/tab_order.h"

#define FRAME_SELECTED 0xFFFFFF       // selection mark alone
#define FRAME_SELECTED_DRAG 0xFF00FF  // selection and drag mark
#define FRAME_DRAG 0xFFFF00           // drag mark alone
#define SLIDER_MARK_ALONG 8           // a resized slider's mark along the slider
#define SLIDER_MARK_INSET 4           // and across it, the slider's width less this

t_Window *paint_window;

// Where a handle's box stands against the gadget, in each axis.
enum { BOX_BEFORE, BOX_MIDDLE, BOX_AFTER };

typedef struct T_HANDLE_ROW {
    u16 handle;
    u8 column;  // BOX_ in x
    u8 row;     // BOX_ in y
    u16 image;  // the mouse image over it
} T_HANDLE_ROW;

// The handles in the order of the hit test, which is also the order of drawing.
//  handle               column      row         image
static const T_HANDLE_ROW handle_rows[HANDLE_COUNT] = {
    {HANDLE_TOP_LEFT, BOX_BEFORE, BOX_BEFORE, MOUSE_IMAGE_SIZE_NWSE},
    {HANDLE_TOP, BOX_MIDDLE, BOX_BEFORE, MOUSE_IMAGE_SIZE_NS},
    {HANDLE_TOP_RIGHT, BOX_AFTER, BOX_BEFORE, MOUSE_IMAGE_SIZE_NESW},
    {HANDLE_LEFT, BOX_BEFORE, BOX_MIDDLE, MOUSE_IMAGE_SIZE_WE},
    {HANDLE_RIGHT, BOX_AFTER, BOX_MIDDLE, MOUSE_IMAGE_SIZE_WE},
    {HANDLE_BOTTOM_LEFT, BOX_BEFORE, BOX_AFTER, MOUSE_IMAGE_SIZE_NESW},
    {HANDLE_BOTTOM, BOX_MIDDLE, BOX_AFTER, MOUSE_IMAGE_SIZE_NS},
    {HANDLE_BOTTOM_RIGHT, BOX_AFTER, BOX_AFTER, MOUSE_IMAGE_SIZE_NWSE},
};

// A box's start in one axis: wholly outside the gadget before or after it, or centred on it (the
// half cut toward zero).
static i16 BoxStart(i16 start, i16 size, u8 place)
{
    switch (place) {
    case BOX_BEFORE:
        return (i16)(start - HANDLE_SIZE);
    case BOX_MIDDLE:
        return (i16)(start + size / 2 - HANDLE_SIZE / 2);
    default:
        return (i16)(start + size);
    }
}

u16 HandleBox(const t_gadget *gadget, u32 order, T_RPOS *box, u16 *image)
{
    const T_HANDLE_ROW *row = &handle_rows[order % HANDLE_COUNT];
    box->x = BoxStart(gadget->screen_x, gadget->base_width, row->column);
    box->y = BoxStart(gadget->screen_y, gadget->base_height, row->row);
    box->w = HANDLE_SIZE;
    box->h = HANDLE_SIZE;
    if (image)
        *image = row->image;
    return row->handle;
}

void ClipToUserArea(t_Window *window)
{
    T_RPOS area = UserArea(window);
    ClipInsideWindow(area.x, area.y, (i16)(area.x + area.w), (i16)(area.y + area.h));
}

void DrawBandToMouse(t_Window *window, i16 x1, i16 y1, i16 *x2, i16 *y2, u16 phase)
{
    *x2 = (i16)(window->mouse_x - window->user_x);
    *y2 = (i16)(window->mouse_y - window->user_y);
    DrawDottedBox((i16)(window->user_x + x1), (i16)(window->user_y + y1), (i16)(*x2 - x1), (i16)(*y2 - y1),
                  DISPLAY_RECORD->rubber_box_colour, phase);
}

void DrawGadgetFrame(void *node, void *phase)
{
    t_gadget *gadget = (t_gadget *)node;
    u32 colour;
    switch (gadget->live_flags & (GADGET_MARK_SELECTED | GADGET_MARK_DRAG)) {
    case GADGET_MARK_SELECTED:
        colour = FRAME_SELECTED;
        break;
    case GADGET_MARK_SELECTED | GADGET_MARK_DRAG:
        colour = FRAME_SELECTED_DRAG;
        break;
    case GADGET_MARK_DRAG:  // marked when a press began, unmarked before its release
        colour = FRAME_DRAG;
        break;
    default:
        return;
    }
    DrawDottedBox((i16)(gadget->screen_x - 1), (i16)(gadget->screen_y - 1), (i16)(gadget->base_width + 2),
                  (i16)(gadget->base_height + 2), colour, (u16)(uintptr_t)phase);
}

void DrawHandles(t_Window *window, t_gadget *gadget, u32 colour)
{
    T_WINDOW_CLASS *windows = CURRENT_DISPLAY->window_class;
    int focused = windows && windows->current_window == window;
    ClipToUserArea(window);
    DrawOutLineBox(gadget->screen_x, gadget->screen_y, gadget->base_width, gadget->base_height, colour);
    for (u32 order = 0; order < HANDLE_COUNT; order++) {
        T_RPOS box;
        u16 image;
        HandleBox(gadget, order, &box, &image);
        if (focused && PointBoxColl(window->mouse_x, window->mouse_y, &box))
            SetMouseImage(image);
        DrawRectangle(box.x, box.y, box.w, box.h, colour);
    }
}

// What follows a gadget's new size inside its type's own record.
static void ResizeClassData(t_gadget *gadget, i16 w, i16 h)
{
    if (!gadget->class_data)
        return;
    switch (gadget->type) {
    case GADGET_TYPE_SLIDER: {  // the mark keeps 8 pixels along the slider and fills it across
        T_SLIDER_DATA *slider = (T_SLIDER_DATA *)gadget->class_data;
        u32 orientation = gadget->live_flags & GADGET_FLAGS_XY;
        if (orientation != GADGET_FLAGS_HORIZONTAL && orientation != GADGET_FLAGS_VERTICAL)
            return;
        slider->slider_width = w;
        slider->slider_height = h;
        slider->track_width = w;
        slider->track_height = h;
        if (orientation == GADGET_FLAGS_HORIZONTAL) {
            slider->mark_height = (i16)(h - SLIDER_MARK_INSET);
            slider->mark_width = SLIDER_MARK_ALONG;
        } else {
            slider->mark_height = SLIDER_MARK_ALONG;
            slider->mark_width = (i16)(w - SLIDER_MARK_INSET);
        }
        return;
    }
    case GADGET_TYPE_LIST_BOX:  // the list lays out its rows again
        ((T_LIST_DATA *)gadget->class_data)->resized_flags |= LIST_RESIZED;
        return;
    case GADGET_TYPE_TREE:
        ((T_LIST_DATA *)gadget->class_data)->resized_flags |= TREE_RESIZED;
        return;
    default:
        return;
    }
}

void ApplyHandleResize(t_Window *window, t_gadget *gadget, u16 handle)
{
    if (handle == HANDLE_NONE)
        return;
    window->state_flags |= WSF_MODIFIED;
    T_RPOS rect = {(i16)(gadget->pos_x + window->user_x), (i16)(gadget->pos_y + window->user_y), gadget->base_width,
                   gadget->base_height};
    GenericResize(&rect, HANDLE_MIN_SIZE, HANDLE_MIN_SIZE, window->mouse_x, window->mouse_y, handle);
    gadget->pos_x = (i16)(rect.x - window->user_x);
    gadget->pos_y = (i16)(rect.y - window->user_y);
    gadget->base_width = rect.w;
    gadget->base_height = rect.h;
    ResizeClassData(gadget, rect.w, rect.h);
    RecalcUserSize(window);
}

// The band's far corner follows the mouse, and the gadgets inside the normalised area are marked.
static void PaintRubberBand(T_WINEDIT_HANDLER *record, t_Window *window, t_gadget *first)
{
    DrawBandToMouse(window, record->rubber_x1, record->rubber_y1, &record->rubber_x2, &record->rubber_y2,
                    (u16)(record->dash_phase / DASH_DIVISOR));
    i16 x1 = record->rubber_x1, x2 = record->rubber_x2, y1 = record->rubber_y1, y2 = record->rubber_y2;
    T_RPOS area = {(i16)((x1 < x2 ? x1 : x2) + window->user_x), (i16)((y1 < y2 ? y1 : y2) + window->user_y),
                   (i16)(x1 < x2 ? x2 - x1 : x1 - x2), (i16)(y1 < y2 ? y2 - y1 : y1 - y2)};
    if (first)
        MarkGadgetsInArea(first, &area, (record->edit_state & EDIT_RUBBER_PAINTED) ? 0 : 1);
    record->edit_state |= EDIT_RUBBER_PAINTED;
}

void PagePaint(t_Handler *handler)
{
    T_WINEDIT_HANDLER *record = (T_WINEDIT_HANDLER *)handler;
    t_Window *window = handler->window;
    t_Gaget_Handler *gadgets = FindGadgetHandler(window);
    t_gadget *first = gadgets ? gadgets->first_gadget : NULL;
    FlushTextBuffer();
    PrepareTextBuffer();
    ClipToUserArea(window);
    if (record->rubber_active == 1)
        PaintRubberBand(record, window, first);
    if (record->rubber_active || record->drag_handle)  // the band's dots run; a held handle goes on
        KeepAnimating();
    record->dash_phase = (u16)((record->dash_phase + 1) % DASH_STEPS);
    record->handle_gadget = NULL;
    if (!first)
        return;
    t_gadget *current = gadgets->current_gadget;
    ApplyFuncToListData((t_Node *)first, DrawGadgetFrame, (void *)(uintptr_t)(record->dash_phase / DASH_DIVISOR));
    paint_window = window;
    if (record->edit_state & EDIT_TAB_ORDER) {  // numbers instead of handles; no resize steps
        ApplyFuncToListData((t_Node *)first, DrawTabNumber, (void *)(uintptr_t)record->tab_next);
        return;
    }
    // Handles show on the current gadget when exactly one gadget is marked, whichever that is.
    if (current && first->next && CountMarkedGadgets(first) == 1) {
        record->handle_gadget = current;
        DrawHandles(window, current, DISPLAY_RECORD->handle_colour);
        ApplyHandleResize(window, current, record->drag_handle);
    }
}
