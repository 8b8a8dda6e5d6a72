// Toolbars: a row of icon buttons in a small child window of their owner, one of them active.
// The icons come from the owner's icon bank; an entry's label shows as hover text.
#include <string.h>

#include "lumora/lumora_internal.h"

enum {
    TOOLBAR_BUTTON = 30,  // a button is square
    TOOLBAR_ICON = 24,    // the icon inside it
    TOOLBAR_PAD = 2,      // round the row of buttons
    TOOLBAR_PLACE = 4,    // from the owner's user area's top left
    TOOLBAR_TIP_PAD = 4,  // round the hover text
    TOOLBAR_TIP_X = 12,   // the hover text's place from the pointer
    TOOLBAR_TIP_Y = 20,
    TOOLBAR_HOVER_ALPHA = 60,
    TOOLBAR_ACTIVE_ALPHA = 90,
};

static void RequestRepaint(void)
{
    if (CURRENT_DISPLAY->window_class)
        CURRENT_DISPLAY->window_class->refresh_request = 1;
}

static T_RPOS ButtonRect(t_Window *window, u32 index)
{
    T_RPOS rect = {(i16)(window->user_x + TOOLBAR_PAD + index * TOOLBAR_BUTTON), (i16)(window->user_y + TOOLBAR_PAD),
                   TOOLBAR_BUTTON, TOOLBAR_BUTTON};
    return rect;
}

// The entry under a point, or -1.
static i32 EntryAt(T_TOOLBAR_HANDLER *toolbar, i16 x, i16 y)
{
    u32 count = CountListEntries(&toolbar->entries);
    for (u32 index = 0; index < count; index++) {
        T_RPOS rect = ButtonRect(toolbar->window, index);
        if (x >= rect.x && y >= rect.y && x < rect.x + rect.w && y < rect.y + rect.h)
            return (i32)index;
    }
    return -1;
}

// The frame fits the row of buttons.
static void FitToolBar(T_TOOLBAR_HANDLER *toolbar)
{
    t_Window *window = toolbar->window;
    u32 count = CountListEntries(&toolbar->entries);
    i16 frame = (i16)(2 * window->border_size);
    T_RPOS rect = {window->x, window->y, (i16)(count * TOOLBAR_BUTTON + 2 * TOOLBAR_PAD + frame),
                   (i16)(TOOLBAR_BUTTON + 2 * TOOLBAR_PAD + frame)};
    ResizeWindow(window, &rect);
    // Children cascading in the owner start below the toolbar, so their title bars stay in reach.
    t_Window *owner = toolbar->owner;
    if (owner) {
        i32 below = window->y + window->h - owner->user_y;
        owner->cascade_start = (u16)((below + CASCADE_STEP - 1) / CASCADE_STEP);
        if (owner->cascade_index < owner->cascade_start)
            owner->cascade_index = owner->cascade_start;
    }
}

// The hover text of the entry under the resting pointer, beside the pointer as the toolkit shows
// a gadget's.
static void PaintHoverText(T_TOOLBAR_ENTRY *entry, i16 mx, i16 my)
{
    T_DISPLAY_RECORD *look = DISPLAY_RECORD;
    const char *text = entry->name ? entry->name : "";
    T_FONT *font = GetActiveFont();
    SetActiveFont(NULL);
    i16 w = (i16)(GetStringWidth(text) + 2 * TOOLBAR_TIP_PAD);
    i16 h = (i16)(GetActiveFontHeight() + TOOLBAR_TIP_PAD);
    i16 x = (i16)(mx + TOOLBAR_TIP_X), y = (i16)(my + TOOLBAR_TIP_Y);
    if (x + w > CURRENT_DISPLAY->width)
        x = (i16)(CURRENT_DISPLAY->width - w);
    if (y + h > CURRENT_DISPLAY->height)
        y = (i16)(my - h - TOOLBAR_TIP_PAD);
    ClipAll();
    DrawRectangle(x, y, w, h, look->hover_back_colour);
    DrawOutLineBox(x, y, w, h, look->gadget_dark_colour);
    DrawText((i16)(x + TOOLBAR_TIP_PAD), (i16)(y + TOOLBAR_TIP_PAD / 2), text, look->gadget_text_colour);
    SetActiveFont(font);
}

static void ToolBarPaint(t_Handler *head)
{
    t_Window *window = head->window;
    T_TOOLBAR_HANDLER *toolbar = (T_TOOLBAR_HANDLER *)window->user_data;
    if (!toolbar)
        return;
    T_DISPLAY_RECORD *look = DISPLAY_RECORD;
    T_TEXTURE_BANK *bank = toolbar->owner ? toolbar->owner->icon_bank : NULL;
    DrawRectangle(window->user_x, window->user_y, window->user_w, window->user_h, look->gadget_colour);
    i16 mx, my;
    GetMouseXY(&mx, &my);
    i32 hover = WindowAtPoint(mx, my, NULL) == window ? EntryAt(toolbar, mx, my) : -1;
    u32 index = 0;
    T_TOOLBAR_ENTRY *hovered = NULL;
    for (T_TOOLBAR_ENTRY *entry = (T_TOOLBAR_ENTRY *)toolbar->entries.first; entry->next;
         entry = entry->next, index++) {
        T_RPOS r = ButtonRect(window, index);
        i16 sink = 0;
        if (index == toolbar->active) {  // pressed in: a sunken bevel over a tint
            BlendRectangle(r.x, r.y, r.w, r.h, look->select_colour, TOOLBAR_ACTIVE_ALPHA);
            DrawBevelBox(r.x, r.y, r.w, r.h, look->gadget_dark_colour, look->gadget_light_colour);
            sink = 1;
        } else if ((i32)index == hover) {  // under the pointer: raised and lit
            BlendRectangle(r.x, r.y, r.w, r.h, look->select_colour, TOOLBAR_HOVER_ALPHA);
            DrawBevelBox(r.x, r.y, r.w, r.h, look->gadget_light_colour, look->gadget_dark_colour);
        }
        if ((i32)index == hover)
            hovered = entry;
        if (bank && entry->icon < bank->count) {
            i16 x = (i16)(r.x + (TOOLBAR_BUTTON - TOOLBAR_ICON) / 2 + sink);
            i16 y = (i16)(r.y + (TOOLBAR_BUTTON - TOOLBAR_ICON) / 2 + sink);
            if (bank->icon_width == TOOLBAR_ICON && bank->icon_height == TOOLBAR_ICON)
                DrawIcon(bank, entry->icon, x, y);
            else
                DrawIconScaled(bank, entry->icon, x, y, TOOLBAR_ICON, TOOLBAR_ICON);
        }
    }
    int resting = !lumora_state.buttons && _LumoraBase->time_ms - lumora_state.last_move_ms >= TOOLBAR_HOVER_MS;
    if (hovered && resting)
        PaintHoverText(hovered, mx, my);
}

static u32 ToolBarInput(t_Handler *head, u32 event, void *data)
{
    t_Window *window = head->window;
    T_TOOLBAR_HANDLER *toolbar = (T_TOOLBAR_HANDLER *)window->user_data;
    switch (event) {
    case HANDLER_EVENT_END:  // the window goes: the toolbar's record with it
        if (toolbar) {
            EmptyList(&toolbar->entries, sizeof(T_TOOLBAR_ENTRY));
            FreeMem(toolbar, sizeof(T_TOOLBAR_HANDLER));
            window->user_data = NULL;
        }
        return 0;
    case HANDLER_EVENT_MOUSE: {  // a press on a button makes it the active entry
        T_MOUSE_MSG *msg = (T_MOUSE_MSG *)data;
        if (!toolbar || msg->mouse_action != ACT_LMOUSE_DOWN)
            return 0;
        i32 index = EntryAt(toolbar, msg->x, msg->y);
        if (index < 0)
            return 0;
        toolbar->active = (u16)index;  // the press moved no focus: a toolbar is a palette
        RequestRepaint();
        return 1;
    }
    }
    return 0;
}

// The toolbar stays until the application ends: ACT_TERMINATE removes it only once the owner has
// set TOOLBAR_EXTRA_ENDING.
static u32 ToolBarMessage(t_Window *window, u32 item_code, u32 msg, void *data)
{
    (void)item_code;
    (void)data;
    switch (msg) {
    case ACT_TERMINATE:  // only at the end
        if (window->extra_flags & TOOLBAR_EXTRA_ENDING)
            RemoveWindow(window);
        return 0;
    }
    return 0;
}

// A toolbar in a child window at the top left of the owner's user area. Null, with a log line,
// when the window can't be made.
T_TOOLBAR_HANDLER *NewToolBar(t_Window *window, const char *name)
{
    if (!IsWindowLive(window)) {
        myprintf(0, "NewToolBar: no owner window for %s\n", name ? name : "a toolbar");
        return NULL;
    }
    T_WINDOWOBJINIT init;
    ZeroMem(&init, sizeof(init));
    init.x = TOOLBAR_PLACE;
    init.y = TOOLBAR_PLACE;
    init.w = TOOLBAR_BUTTON;
    init.h = TOOLBAR_BUTTON;
    init.flags = WF_CHILD | WF_BORDER | WF_IN_FRONT | WF_DEPENDANT;
    init.idcmp = IDCMP_TERMINATE;
    init.message = ToolBarMessage;
    init.parent = window;
    t_Window *bar_window = CreateWindowKeepingFocus(name, &init);  // a toolbar never takes the focus
    if (!bar_window) {
        myprintf(0, "NewToolBar: the window of %s could not be made\n", name ? name : "a toolbar");
        return NULL;
    }
    T_TOOLBAR_HANDLER *toolbar = (T_TOOLBAR_HANDLER *)AllocMemC(sizeof(T_TOOLBAR_HANDLER));
    toolbar->window = bar_window;
    toolbar->owner = window;
    InitList(&toolbar->entries, name);
    bar_window->user_data = toolbar;
    bar_window->extra_flags = 0;
    t_Handler *handler =
        NewHandler(&bar_window->handlers, ToolBarInput, ToolBarPaint, "toolbar", 0, sizeof(t_Handler), bar_window);
    if (handler)
        handler->kind = HANDLER_KIND_TOOLBAR;
    FitToolBar(toolbar);
    return toolbar;
}

void AddToolBarIcon(T_TOOLBAR_HANDLER *toolbar, const char *label, u16 icon, u32 item_code)
{
    if (!toolbar)
        return;
    T_TOOLBAR_ENTRY *entry = (T_TOOLBAR_ENTRY *)NewTail(&toolbar->entries, sizeof(T_TOOLBAR_ENTRY), label ? label : "");
    entry->icon = icon;
    entry->item_code = item_code;
    FitToolBar(toolbar);
}

u16 GetActiveToolBarEntry(T_TOOLBAR_HANDLER *toolbar)
{
    return toolbar ? toolbar->active : 0;
}

// An entry past the last is ignored.
void SetActiveToolBarEntry(T_TOOLBAR_HANDLER *toolbar, u16 entry)
{
    if (!toolbar || entry >= CountListEntries(&toolbar->entries))
        return;
    toolbar->active = entry;
    RequestRepaint();
}

int GetToolBarEntryRect(T_TOOLBAR_HANDLER *toolbar, u16 entry, T_RPOS *rect)
{
    if (!toolbar || entry >= CountListEntries(&toolbar->entries))
        return 0;
    *rect = ButtonRect(toolbar->window, entry);
    return 1;
}
