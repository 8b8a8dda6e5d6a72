// The property dialogs' shared pieces: row height, the kept record, the dialog's place, numbers.
#include "properties/dialog_support.h"

#include <stdlib.h>

#define DIALOG_ROW_EXTRA 4
#define RECORD_KEEPER_NAME "dialog record"

typedef struct T_RECORD_KEEPER {
    t_Handler head;
    u32 record_size;
} T_RECORD_KEEPER;

t_Window *OpenDialogWindow(t_Window *page, const T_DIALOG_FRAME *frame, T_TEXTURE_BANK *icon_bank)
{
    T_WINDOWOBJINIT init = {.x = frame->x,
                            .y = frame->y,
                            .w = frame->w,
                            .h = frame->h,
                            .flags = frame->flags,
                            .idcmp = frame->idcmp,
                            .icon = frame->icon,
                            .icon_bank = icon_bank,
                            .bitmap = NULL,
                            .message = frame->message,
                            .parent = page};
    t_Window *window = (t_Window *)CreateObject(&CURRENT_DISPLAY->window_class->head, frame->title, &init);
    if (window && !NewGadgetHandler(window)) {
        RemoveWindow(window);
        return NULL;
    }
    return window;
}

T_GADGETOBJECTINIT DialogGadgetInit(u16 type, u32 item_code, T_RPOS rect, u32 flags, u32 action)
{
    T_GADGETOBJECTINIT init = {};
    init.type = type;
    init.item_code = item_code;
    init.x = rect.x;
    init.y = rect.y;
    init.base_width = rect.w;
    init.base_height = rect.h;
    init.flags = flags;
    init.action = action;
    return init;
}

t_gadget *AddDialogGadget(t_Gaget_Handler *handler, const char *text, u16 type, u32 item_code, i16 x, i16 y, i16 width,
                          i16 height, u32 flags, u32 action)
{
    T_GADGETOBJECTINIT init = DialogGadgetInit(type, item_code, T_RPOS{x, y, width, height}, flags, action);
    return (t_gadget *)CreateObject(&handler->head, text, &init);
}

int AddDialogCombo(t_Window *dialog, u32 item_code, T_RPOS rect, u32 flags, T_TEXTURE_BANK *icon_bank, void **list,
                   t_gadget **gadget)
{
    T_GADGETOBJECTINIT init = DialogGadgetInit(GADGET_TYPE_COMBO, item_code, rect, flags, ACT_LMOUSE_UP);
    init.icon_bank = icon_bank;
    *list = CreateObject(&FindGadgetHandler(dialog)->head, "Combo", &init);
    *gadget = FindGadgetByItemCode(dialog, item_code);
    if (!*list || !*gadget)
        return 0;
    SaveSetGadgetList(dialog, (t_List *)*list);
    return 1;
}

i16 DialogRowHeight(void)
{
    return (i16)(GetFontHeight(DISPLAY_RECORD->system_font) + DIALOG_ROW_EXTRA);
}

// The window goes: a record that no close step released goes with it.
static u32 RecordKeeperInput(t_Handler *handler, u32 event, void *data)
{
    (void)data;
    if (event == HANDLER_EVENT_END)
        FreeDialogRecord(handler->window);
    return 0;
}

static T_RECORD_KEEPER *FindKeeper(t_Window *window)
{
    return (T_RECORD_KEEPER *)FindNode(window->handlers.first, RECORD_KEEPER_NAME);
}

void *NewDialogRecord(t_Window *window, u32 size)
{
    void *record = AllocMemC(size);
    T_RECORD_KEEPER *keeper =
        record ? (T_RECORD_KEEPER *)NewHandler(&window->handlers, RecordKeeperInput, NULL, RECORD_KEEPER_NAME, -100,
                                               sizeof(T_RECORD_KEEPER), window)
               : NULL;
    if (!keeper) {
        FreeMem(record, size);
        myprintf(0, "No memory for the record of the dialog %s\n", window->name);
        return NULL;
    }
    keeper->record_size = size;
    window->user_data = record;
    return record;
}

void FreeDialogRecord(t_Window *window)
{
    T_RECORD_KEEPER *keeper = FindKeeper(window);
    if (!keeper || !window->user_data)
        return;
    FreeMem(window->user_data, keeper->record_size);
    window->user_data = NULL;
}

void KeepDialogInView(t_Window *dialog)
{
    t_Window *page = dialog->parent;
    t_Window *area = page && page->parent ? page->parent : page;
    if (!area)
        return;
    i16 left = area->user_x, top = area->user_y;
    i16 right = (i16)(left + area->user_w), bottom = (i16)(top + area->user_h);
    i16 x = dialog->x, y = dialog->y;
    if (x + dialog->w > right)
        x = (i16)(right - dialog->w);
    if (y + dialog->h > bottom)
        y = (i16)(bottom - dialog->h);
    if (x < left)
        x = left;
    if (y < top)
        y = top;
    if (x == dialog->x && y == dialog->y)
        return;
    T_RPOS rect = {x, y, dialog->w, dialog->h};
    ResizeWindow(dialog, &rect);
}

void DialogRectOf(t_Window *dialog, T_RPOS *rect)
{
    t_Window *parent = dialog->parent;
    rect->x = (i16)(dialog->x - (parent ? parent->user_x : 0));
    rect->y = (i16)(dialog->y - (parent ? parent->user_y : 0));
    rect->w = dialog->w;
    rect->h = dialog->h;
}

void PlaceDialog(t_Window *dialog, const T_RPOS *rect)
{
    t_Window *parent = dialog->parent;
    T_RPOS absolute = {(i16)(rect->x + (parent ? parent->user_x : 0)), (i16)(rect->y + (parent ? parent->user_y : 0)),
                       rect->w, rect->h};
    ResizeWindow(dialog, &absolute);
}

i32 FieldValue(const char *text)
{
    return text ? (i32)strtol(text, NULL, 10) : 0;
}

void RemoveChildWindows(t_Window *window)
{
    while (window->first_child->next)
        RemoveWindow(window->first_child);
}
