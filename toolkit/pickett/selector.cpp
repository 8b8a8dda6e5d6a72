// What every selector does the same way: it opens as a dialog on its parent, answers the parent
// through its message mask, once, with OK or Cancel and then goes, and takes Escape and Enter
// before its gadgets.
#include "pickett/pickett_internal.h"

T_SELECTOR *OpenSelector(const T_DIALOG_SPEC *spec, u32 item_code, size_t user_data_offset)
{
    T_SELECTOR *s = (T_SELECTOR *)OpenDialog(spec);
    if (!s)
        return NULL;
    s->parent = IsWindowLive(spec->parent) ? spec->parent : NULL;
    s->item_code = item_code;
    s->head.window->user_data = (char *)s + user_data_offset;
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
