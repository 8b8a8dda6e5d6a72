// The mouse and keys on a page: the background (PageInput: handle resizes, the rubber band, new
// gadgets, the context menu, the page's keys, the arrows that nudge), a gadget (GadgetEditAction:
// selection, the start and end of a drag, tab-order clicks) and the drag itself (GadgetDragMove).
// The painter does the other half of the band and of a handle resize at each repaint.
#include "editor/mouse_editing.h"
#include "properties/gadget_properties.h"

#include <string.h>

#include "editor/clipboard.h"
#include "editor/page_commands.h"
#include "editor/page_painter.h"
#include "editor/page_window.h"
#include "editor/undo_records.h"
#include "source/source_writer.h"

#define KEY_SWAP_TOOLS 'z'
#define KEY_SPACE ' '
#define NUDGE_STEP 1                                // pixels an arrow key moves the marked gadgets
#define NUDGE_SHIFT_STEP 8                          // with Shift
#define QUAL_MARK_KEEP (QUAL_SHIFT | QUAL_CONTROL)  // qualifiers that keep the marks

// --- Helpers -------------------------------------------------------------------------------------

t_gadget *FirstPageGadget(t_Window *window)
{
    t_Gaget_Handler *handler = window ? FindGadgetHandler(window) : NULL;
    return handler ? handler->first_gadget : NULL;
}

void LimitMouseToUserArea(t_Window *window)
{
    T_RPOS area = UserArea(window);
    T_RPOS limits = {area.x, area.y, (i16)(area.x + area.w), (i16)(area.y + area.h)};
    NormArea(&limits);
    SetMouseLimits(&limits);
}

void FreeMouse(void)
{
    T_RPOS screen;
    GetPhysicalScreenRes(&screen);
    SetMouseLimits(&screen);
}

T_TOOLBAR_HANDLER *PageToolBar(t_Window *window)
{
    t_Window *parent = window ? window->parent : NULL;
    return parent && page_host.toolbar ? page_host.toolbar(parent) : NULL;
}

void TellMainWindow(t_Window *window, u32 item_code)
{
    if (window && window->parent)
        SendWindowMessage(window->parent, item_code, ACT_MENU_OPEN, NULL);
}

static void SnapshotAll(t_Window *window)
{
    t_gadget *first = FirstPageGadget(window);
    if (first)
        ApplyFuncToList((t_Node *)first, SnapshotGeometry);
}

void SnapshotGeometry(void *node)
{
    t_gadget *gadget = (t_gadget *)node;
    if (!IsGadgetMarked(gadget))
        return;
    gadget->prev_x = gadget->pos_x;
    gadget->prev_y = gadget->pos_y;
    gadget->prev_width = gadget->pos_width;
    gadget->prev_height = gadget->pos_height;
}

u16 HandleUnderMouse(t_Window *window, t_gadget *gadget)
{
    for (u32 order = 0; order < HANDLE_COUNT; order++) {
        T_RPOS box;
        u16 handle = HandleBox(gadget, order, &box, NULL);
        if (PointBoxColl(window->mouse_x, window->mouse_y, &box))
            return handle;
    }
    return HANDLE_NONE;
}

void ToggleStyleFlag(t_Window *window, u32 bit)
{
    t_Gaget_Handler *handler = FindGadgetHandler(window);
    if (!handler)
        return;
    MarkCurrentIfNothingMarked(window);
    t_gadget *first_marked = NULL;
    for (t_gadget *g = handler->first_gadget; g->next && !first_marked; g = g->next)
        if (IsGadgetMarked(g))
            first_marked = g;
    if (!first_marked)
        return;
    int clear = (first_marked->live_flags & bit) != 0;
    for (t_gadget *g = first_marked; g->next; g = g->next) {
        if (!IsGadgetMarked(g))
            continue;
        if (clear) {
            g->live_flags &= ~bit;
            g->flags &= ~bit;
        } else {
            g->live_flags |= bit;
            g->flags |= bit;
        }
    }
}

// A handle resize of `gadget` begins: the resize image, the gadget alone marked and current, the
// pointer kept in the user area, the geometry noted for the undo record.
static void BeginHandleResize(T_WINEDIT_HANDLER *record, t_Window *window, t_gadget *gadget, u16 handle)
{
    SetBorderMouseImage(handle);
    LockMouseImage();
    record->drag_gadget = gadget;
    if (t_Gaget_Handler *handler = FindGadgetHandler(window))
        handler->current_gadget = gadget;
    ClearAllMarkedGadgets(gadget);
    gadget->live_flags |= GADGET_MARK_SELECTED;
    record->drag_handle = handle;
    LimitMouseToUserArea(window);
    SnapshotAll(window);
}

// --- The background ------------------------------------------------------------------------------

// A gadget made with the active tool from the band as the painter left it.
static void CreateGadgetWithTool(T_WINEDIT_HANDLER *record, t_Window *window, T_TOOLBAR_HANDLER *toolbar, u16 tool)
{
    // There is no smallest size: a click without a drag asks for a gadget of 0 by 0.
    T_RPOS band = {record->rubber_x1, record->rubber_y1, record->rubber_x2, record->rubber_y2};
    NormArea(&band);
    T_GADGETOBJECTINIT init;
    FillNewGadgetInit(&init, band.x, band.y, band.w, band.h);
    window->state_flags |= WSF_MODIFIED;
    AddCreateGadgetUndo(record, &init, tool);
    u16 active = GetActiveToolBarEntry(toolbar);
    if (active != 0)
        record->last_tool = active;
    SetActiveToolBarEntry(toolbar, 0);  // back to the selector after each gadget
    TellMainWindow(window, 0);
}

// The page's context menu "WindowBase" opens at the point; its picks go to the page.
static void OpenPageMenu(T_WINEDIT_HANDLER *record, t_Window *window, i16 x, i16 y)
{
    T_DETACH_MENU detach;
    memset(&detach, 0, sizeof(detach));
    detach.menu = &record->context_menu;
    detach.window = window;
    GetNewMenuDetachBoxPos(&record->context_menu, &detach.box, x, y);
    CreateObject(CURRENT_DISPLAY->detached_menu_class, PAGE_HANDLER_NAME, &detach);
}

static u32 BackgroundMouse(T_WINEDIT_HANDLER *record, t_Window *window, const T_MOUSE_MSG *msg)
{
    u16 qualifiers = GetKeyboardFlags();
    t_gadget *first = FirstPageGadget(window);
    if (msg->mouse_action & ACT_LMOUSE_DOWN) {
        // A press in a handle box resizes that gadget, shown or not; the first in list order wins.
        for (t_gadget *g = first; g && g->next; g = g->next) {
            u16 handle = HandleUnderMouse(window, g);
            if (handle != HANDLE_NONE) {
                BeginHandleResize(record, window, g, handle);
                return 1;
            }
        }
    }
    T_RPOS area = UserArea(window);
    if (!PointBoxColl(msg->x, msg->y, &area))
        return 0;
    if (msg->mouse_action & ACT_LMOUSE_DOWN) {  // a rubber band begins
        if (!(qualifiers & QUAL_MARK_KEEP) && first)
            ClearAllMarkedGadgets(first);
        record->drag_gadget = NULL;
        record->rubber_x1 = record->rubber_x2 = (i16)(msg->x - window->user_x);
        record->rubber_y1 = record->rubber_y2 = (i16)(msg->y - window->user_y);
        record->edit_state &= ~EDIT_RUBBER_PAINTED;
        record->rubber_active = 1;
        LimitMouseToUserArea(window);
        return 1;
    }
    if (msg->mouse_action & ACT_LMOUSE_UP) {
        FreeMouse();
        record->rubber_active = 0;
        if (record->drag_gadget) {  // a handle resize ends
            AddGeometryUndo(record, record->drag_gadget, 0);
            record->drag_gadget = NULL;
            record->drag_handle = HANDLE_NONE;
            UnLockMouseImage();
            return 1;
        }
        T_TOOLBAR_HANDLER *toolbar = PageToolBar(window);
        u16 tool = toolbar ? GetActiveToolBarEntry(toolbar) : 0;
        if (tool > 0) {
            CreateGadgetWithTool(record, window, toolbar, tool);
            return 1;
        }
        return 0;  // the marks that the band left stay
    }
    if (msg->mouse_action == ACT_RMOUSE_UP) {  // the selection is not touched
        OpenPageMenu(record, window, msg->x, msg->y);
        return 1;
    }
    return 0;
}

// An arrow key, alone or with Shift, moves the marked gadgets; true when it did.
static u32 NudgeByKey(t_Window *window, const T_KEY_MSG *key)
{
    if (key->qualifiers & ~QUAL_SHIFT)
        return 0;
    i16 step = (key->qualifiers & QUAL_SHIFT) ? NUDGE_SHIFT_STEP : NUDGE_STEP;
    i16 dx = key->key_code == KEY_LEFT ? -step : key->key_code == KEY_RIGHT ? step : 0;
    i16 dy = key->key_code == KEY_UP ? -step : key->key_code == KEY_DOWN ? step : 0;
    if (!NudgeMarkedGadgets(window, dx, dy))
        return 0;
    TellMainWindow(window, 0);
    return 1;
}

static u32 PageKey(T_WINEDIT_HANDLER *record, t_Window *window, const T_KEY_MSG *key)
{
    switch (key->key_code) {
    case KEY_ESCAPE:  // leaves tab-order mode; the numbers become the links
        if (record->edit_state & EDIT_TAB_ORDER) {
            record->edit_state &= ~EDIT_TAB_ORDER;
            BuildTabLinks(window);
        }
        return 1;
    case KEY_SWAP_TOOLS: {  // the active tool and the last one change places
        T_TOOLBAR_HANDLER *toolbar = PageToolBar(window);
        if (toolbar) {
            u16 active = GetActiveToolBarEntry(toolbar);
            SetActiveToolBarEntry(toolbar, record->last_tool);
            record->last_tool = active;
        }
        return 1;
    }
    case KEY_DELETE:
        DeleteMarkedGadgets(window);
        TellMainWindow(window, 0);
        return 1;
    case KEY_CTRL('B'):
        ToggleStyleFlag(window, GADGET_FLAGS_BOLD);
        return 1;
    case KEY_CTRL('I'):
        ToggleStyleFlag(window, GADGET_FLAGS_ITALICS);
        return 1;
    case KEY_LEFT:   // the arrows nudge the marked gadgets; with nothing marked they walk the
    case KEY_RIGHT:  // gadgets as ever
    case KEY_UP:
    case KEY_DOWN:
        return NudgeByKey(window, key);
    default:
        return 0;
    }
}

// A press broken off (the page lost the focus or the pointer with a button down): its release
// won't come, so a handle resize or a drag of gadgets ends here as a release would end it, with
// its geometry records, and the marks as they are. A rubber band just stops.
static void EndBrokenGesture(T_WINEDIT_HANDLER *record, t_Window *window)
{
    record->rubber_active = 0;
    int resizing = record->drag_handle != HANDLE_NONE;
    int pressed = (record->edit_state & EDIT_PRESSED_GADGET) != 0;
    if (!resizing && !pressed)
        return;  // the mouse limits of a band stay as they are
    t_gadget *first = FirstPageGadget(window);
    if (first && first->next) {
        RecalcUserSize(window);
        AddGeometryUndo(record, first, 0);
        for (t_gadget *g = first; g->next; g = g->next)
            g->live_flags &= ~GADGET_MARK_DRAG;
    }
    record->edit_state &= ~(EDIT_PRESSED_GADGET | EDIT_DRAGGING);
    window->mouse_move_fn = NULL;
    window->mouse_move_data = NULL;
    record->drag_gadget = NULL;
    record->drag_handle = HANDLE_NONE;
    UnLockMouseImage();
    SetMouseImage(MOUSE_IMAGE_ARROW);
    FreeMouse();
}

// The page goes: the record's own belongings are released; the gadgets go with the window.
static void ReleasePageRecord(T_WINEDIT_HANDLER *record)
{
    if (record->line_map) {
        FreeMem(record->line_map, record->lines_total * 2);
        record->line_map = NULL;
    }
    EmptyList(&record->context_menu.items, sizeof(t_Menu));
    FreeString(&record->head_line);
    FreeString(&record->file_name);
    EmptyUndoList(&record->undo);
    ForgetClipboardPage(record->head.window);
    FreeItemCodes(&record->item_codes);
    record->item_codes_valid = 0;
}

u32 PageInput(t_Handler *handler, u32 event, void *data)
{
    T_WINEDIT_HANDLER *record = (T_WINEDIT_HANDLER *)handler;
    t_Window *window = handler->window;
    switch (event) {
    case HANDLER_EVENT_END:
        ReleasePageRecord(record);
        return 0;
    case HANDLER_EVENT_MOUSE:
        return data ? BackgroundMouse(record, window, (const T_MOUSE_MSG *)data) : 0;
    case HANDLER_EVENT_BREAK:  // the press in progress is broken off
        EndBrokenGesture(record, window);
        return 0;
    case HANDLER_EVENT_KEY:
        return data ? PageKey(record, window, (const T_KEY_MSG *)data) : 0;
    default:
        return 0;
    }
}

// --- A gadget ------------------------------------------------------------------------------------

static u32 GadgetKey(t_Window *window, t_gadget *gadget, T_MOUSE_MSG *msg)
{
    if (DoDefaultGadgetKeys(window, gadget, msg)) {  // the focus moved to another gadget
        t_Gaget_Handler *handler = FindGadgetHandler(window);
        if (!(msg->keyboard_flags & QUAL_MARK_KEEP))
            ClearAllMarkedGadgets(gadget);
        if (!(msg->keyboard_flags & QUAL_CONTROL) && handler && handler->current_gadget)
            handler->current_gadget->live_flags |= GADGET_MARK_SELECTED;
        return 1;
    }
    if (msg->mouse_action == KEY_SPACE) {
        gadget->live_flags ^= GADGET_MARK_SELECTED;
        return 1;
    }
    return msg->mouse_action == KEY_DELETE ? 1 : 0;
}

// A click in tab-order mode numbers the gadget (left) or takes up the order from it (right).
static void TabOrderClick(T_WINEDIT_HANDLER *record, t_gadget *gadget, u16 action)
{
    if (action == ACT_LMOUSE_DOWN)
        gadget->tab_index = record->tab_next++;
    else if (action == ACT_RMOUSE_DOWN)
        record->tab_next = (u16)gadget->tab_index;
}

static u32 PressOnGadget(T_WINEDIT_HANDLER *record, t_Window *window, t_gadget *gadget, const T_MOUSE_MSG *msg)
{
    record->edit_state |= EDIT_PRESSED_GADGET;
    t_gadget *sized = record->handle_gadget;
    if (sized) {  // a handle of the selected gadget lies over this one: that gadget is resized
        u16 handle = HandleUnderMouse(window, sized);
        if (handle != HANDLE_NONE) {
            BeginHandleResize(record, window, sized, handle);
            return 0;
        }
    }
    // With no qualifier the gadget becomes the selection, unless it belongs to a larger one.
    if ((msg->keyboard_flags & QUAL_MARK_KEEP) == 0 && (!IsGadgetMarked(gadget) || CountMarkedGadgets(gadget) == 1)) {
        ClearAllMarkedGadgets(gadget);
        gadget->live_flags |= GADGET_MARK_SELECTED;
    }
    GetMouseXY(&record->drag_start_x, &record->drag_start_y);
    record->drag_last_x = record->drag_start_x;
    record->drag_last_y = record->drag_start_y;
    record->edit_state &= ~EDIT_DRAGGING;
    for (t_gadget *g = (t_gadget *)FindFirstNode((t_Node *)gadget); g->next; g = g->next)
        if (IsGadgetMarked(g))
            g->live_flags |= GADGET_MARK_DRAG;
    window->mouse_move_fn = GadgetDragMove;
    window->mouse_move_data = gadget;
    SetMouseImage(MOUSE_IMAGE_MOVE);
    LockMouseImage();
    SnapshotAll(window);
    return 1;
}

static u32 ReleaseOnGadget(T_WINEDIT_HANDLER *record, t_Window *window, t_gadget *gadget, const T_MOUSE_MSG *msg)
{
    if (!(record->edit_state & EDIT_PRESSED_GADGET))
        return 1;  // no press came before
    AddGeometryUndo(record, gadget, 0);
    TellMainWindow(window, ITEM_MENU_REFRESH);
    record->edit_state &= ~EDIT_PRESSED_GADGET;
    switch (msg->keyboard_flags & QUAL_MARK_KEEP) {
    case 0:  // a click alone selects this gadget alone; a drag keeps the selection
        if (!(record->edit_state & EDIT_DRAGGING))
            ClearAllMarkedGadgets(gadget);
        gadget->live_flags |= GADGET_MARK_SELECTED;
        break;
    case QUAL_CONTROL:  // Control toggles this gadget
        gadget->live_flags ^= GADGET_MARK_SELECTED;
        break;
    default:  // Shift, or both: nothing
        break;
    }
    UnLockMouseImage();
    SetMouseImage(MOUSE_IMAGE_ARROW);
    window->mouse_move_fn = NULL;
    window->mouse_move_data = NULL;
    record->edit_state &= ~EDIT_DRAGGING;
    RecalcUserSize(window);
    for (t_gadget *g = (t_gadget *)FindFirstNode((t_Node *)gadget); g->next; g = g->next)
        if (IsGadgetMarked(g))
            g->live_flags &= ~GADGET_MARK_DRAG;
    record->drag_gadget = NULL;
    record->drag_handle = HANDLE_NONE;
    FreeMouse();
    return 1;
}

u32 GadgetEditAction(t_Window *window, t_gadget *gadget, T_MOUSE_MSG *msg)
{
    T_WINEDIT_HANDLER *record = PageRecordOf(window);
    if (!record || !gadget || !msg)
        return 0;
    if (msg->keyboard_flags & QUAL_GADGET_KEY)
        return GadgetKey(window, gadget, msg);
    if (record->edit_state & EDIT_TAB_ORDER) {  // clicks number the gadgets; nothing else happens
        TabOrderClick(record, gadget, msg->mouse_action);
        return 0;
    }
    switch (msg->mouse_action) {
    case ACT_LMOUSE_DOWN:
        return PressOnGadget(record, window, gadget, msg);
    case ACT_LMOUSE_UP:
        return ReleaseOnGadget(record, window, gadget, msg);
    case ACT_LMOUSE_DBL:  // the press and release of the double click have run as usual
        OpenGadgetProperties(window, gadget);
        return 0;
    default:  // the right button: the toolkit opens the gadget's context menu
        return 1;
    }
}

void GadgetDragMove(t_Window *window, void *gadget)
{
    (void)gadget;
    T_WINEDIT_HANDLER *record = PageRecordOf(window);
    if (!record)
        return;
    if (!(record->edit_state & EDIT_DRAGGING)) {
        // Past the threshold the drag counts from where it began: the pointer goes back there.
        int dx = window->mouse_x - record->drag_start_x;
        int dy = window->mouse_y - record->drag_start_y;
        if (dx > DRAG_THRESHOLD || dx < -DRAG_THRESHOLD || dy > DRAG_THRESHOLD || dy < -DRAG_THRESHOLD) {
            record->edit_state |= EDIT_DRAGGING;
            SetMouseXY(record->drag_start_x, record->drag_start_y);
        }
        return;
    }
    i16 dx = (i16)(window->mouse_x - record->drag_last_x);
    i16 dy = (i16)(window->mouse_y - record->drag_last_y);
    record->drag_last_x = window->mouse_x;
    record->drag_last_y = window->mouse_y;
    // The marked gadgets' boxes on the screen, before the step: with the same boxes moved by the
    // step, and the marks round them, they are all that the step changes.
    i32 left = INT16_MAX, top = INT16_MAX, right = INT16_MIN, bottom = INT16_MIN;
    for (t_gadget *g = FirstPageGadget(window); g && g->next; g = g->next) {
        if (!IsGadgetMarked(g))
            continue;
        left = g->screen_x < left ? g->screen_x : left;
        top = g->screen_y < top ? g->screen_y : top;
        right = g->screen_x + g->pos_width > right ? g->screen_x + g->pos_width : right;
        bottom = g->screen_y + g->pos_height > bottom ? g->screen_y + g->pos_height : bottom;
        g->pos_x = (i16)(g->live_flags & GADGET_FLAGS_FROM_RIGHT ? g->pos_x - dx : g->pos_x + dx);
        g->pos_y = (i16)(g->live_flags & GADGET_FLAGS_FROM_BOTTOM ? g->pos_y - dy : g->pos_y + dy);
    }
    RecalcUserSize(window);
    if (left > right)
        return;
    i32 margin = HANDLE_SIZE + 1;
    left = (dx < 0 ? left + dx : left) - margin;
    top = (dy < 0 ? top + dy : top) - margin;
    right = (dx > 0 ? right + dx : right) + margin;
    bottom = (dy > 0 ? bottom + dy : bottom) + margin;
    LimitRepaint((i16)left, (i16)top, (i16)(right - left), (i16)(bottom - top));
}
