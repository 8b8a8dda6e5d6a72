// What every selector does the same way: it opens as a dialog on its parent, answers the parent
// through its message mask, once, with OK or Cancel and then goes, and takes Escape and Enter
// before its gadgets.
#include "pickett/pickett_internal.h"

// The close gadget is Cancel, in every selector; the rest is the selector's own.
static u32 SelectorMessage(t_Window *window, u32 item_code, u32 msg, void *data)
{
    T_SELECTOR *s = (T_SELECTOR *)FindHandlerOfKind(window, HANDLER_KIND_SELECTOR);
    if (!s)
        return 0;
    switch (msg) {
    case ACT_TERMINATE:  // the close gadget: Cancel
        FinishSelector(s, ACT_REQUESTER_CANCEL);
        return 0;
    default:
        return s->message ? s->message(window, item_code, msg, data) : 0;
    }
}

T_SELECTOR *OpenSelector(const T_SELECTOR_KIND *kind, const char *title, t_Window *parent, i16 user_h, u32 item_code)
{
    const T_DIALOG_INIT dialog = {title,
                                  parent,
                                  kind->user_w,
                                  user_h ? user_h : kind->user_h,
                                  kind->flags,
                                  kind->idcmp,
                                  kind->message,
                                  kind->input,
                                  kind->paint,
                                  kind->handler_name,
                                  kind->record_size};
    T_SELECTOR *s = (T_SELECTOR *)OpenDialog(&dialog);
    if (!s)
        return NULL;
    s->head.kind = HANDLER_KIND_SELECTOR;
    s->parent = IsWindowLive(parent) ? parent : NULL;
    s->item_code = item_code;
    s->message = kind->message;
    s->head.window->message = SelectorMessage;
    s->head.window->user_data = (char *)s + kind->user_data_offset;
    return s;
}

void TellParent(T_SELECTOR *s, u32 msg)
{
    void *data = msg == ACT_REQUESTER_CANCEL ? s->cancel_data : s->answer_data;
    if (IsWindowLive(s->parent))
        DeliverMessage(s->parent, s->item_code, msg, data);
}

void FinishSelector(T_SELECTOR *s, u32 answer)
{
    t_Window *window = s->head.window;
    if (!IsWindowLive(window) || s->answered)
        return;
    s->answered = 1;
    TellParent(s, answer);
    RemoveWindow(window);
}

u32 SelectorKeyAnswer(T_SELECTOR *s, u16 key)
{
    if (key == KEY_ESCAPE || (key == KEY_RETURN && GetCurrentGadget(s->head.window) == s->cancel))
        return ACT_REQUESTER_CANCEL;
    return key == KEY_RETURN ? ACT_REQUESTER_OK : 0;
}

int SelectorKey(T_SELECTOR *s, u16 key)
{
    u32 answer = SelectorKeyAnswer(s, key);
    if (answer)
        FinishSelector(s, answer);
    return answer != 0;
}

t_Window *DropSelector(T_SELECTOR *s, const char *who)
{
    t_Window *window = s->head.window;
    myprintf(0, "%s: the gadgets of %s could not be made\n", who, window->name);
    RemoveWindow(window);
    return NULL;
}
