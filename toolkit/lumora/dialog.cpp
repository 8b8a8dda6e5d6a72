// Dialogs: a window centred on its parent (or the screen) in the dialog colour, with the handler
// block that holds the dialog's record. Message boxes, the selectors and the key editor open so.
#include "lumora/lumora_internal.h"

void PlaceDialog(T_WINDOWOBJINIT *init, t_Window *parent, i16 frame_w, i16 frame_h)
{
    i16 sw = CURRENT_DISPLAY->width, sh = CURRENT_DISPLAY->height;
    i16 x = parent ? parent->x + (parent->w - frame_w) / 2 : (sw - frame_w) / 2;
    i16 y = parent ? parent->y + (parent->h - frame_h) / 2 : (sh - frame_h) / 2;
    if (x + frame_w > sw)
        x = sw - frame_w;
    if (y + frame_h > sh)
        y = sh - frame_h;
    if (x < 0)
        x = 0;
    if (y < 0)
        y = 0;
    init->w = frame_w, init->h = frame_h;
    init->x = parent ? x - parent->user_x : x;  // a child's place counts from the parent's user area
    init->y = parent ? y - parent->user_y : y;
}

t_Window *OpenDialogWindow(const T_DIALOG_INIT *dialog)
{
    t_Window *parent = IsWindowLive(dialog->parent) ? dialog->parent : NULL;
    T_DISPLAY_RECORD *rec = DISPLAY_RECORD;
    T_WINDOWOBJINIT wi = {};
    PlaceDialog(&wi, parent, dialog->user_w + 2 * rec->border_size,
                dialog->user_h + 2 * rec->border_size + rec->title_height);
    wi.flags = parent ? dialog->flags | WF_CHILD : dialog->flags & ~WF_CHILD;
    wi.idcmp = dialog->idcmp;
    wi.message = dialog->message;
    wi.parent = parent;
    t_Window *window = CreateWindowObject(dialog->title ? dialog->title : "", &wi);
    if (window)
        window->UserAreaColour = rec->dialog_colour;
    return window;
}

void *OpenDialog(const T_DIALOG_INIT *dialog)
{
    t_Window *window = OpenDialogWindow(dialog);
    if (!window)
        return NULL;
    t_Handler *handler = NewHandler(&window->handlers, dialog->input, dialog->paint, dialog->handler_name, 0,
                                    dialog->handler_size, window);
    if (!handler) {
        RemoveWindow(window);
        return NULL;
    }
    return handler;
}
