// The keys that every gadget knows, for a gadget's action function to pass on: Tab and the arrows
// walk the current gadget through the visible gadgets of its list, wrapping at the ends.
#include "lumora/lumora_internal.h"

typedef struct T_DEFAULT_KEY {
    u16 key;
    u16 shift_reverses;  // with Shift the walk goes the other way
    i8 step;             // +1 the next gadget, -1 the previous
} T_DEFAULT_KEY;

// clang-format off
//   key        Shift reverses step
static const T_DEFAULT_KEY default_keys[] = {
    {KEY_TAB,   1, +1},
    {KEY_RIGHT, 0, +1},
    {KEY_DOWN,  0, +1},
    {KEY_LEFT,  0, -1},
    {KEY_UP,    0, -1},
};
// clang-format on

// The list that holds a gadget: the first node's prev is the list's head, which is the list.
static t_List *ListOf(t_gadget *gadget)
{
    return (t_List *)FindFirstNode((t_Node *)gadget)->prev;
}

static int Visible(const t_gadget *gadget)
{
    return !(gadget->live_flags & GADGET_FLAGS_NO_DISPLAY);
}

// The next (step +1) or previous (-1) visible gadget after `from` in its list, wrapping round;
// `from` itself when it is the only one, null when none is visible.
static t_gadget *StepGadget(t_List *list, t_gadget *from, int step)
{
    t_Node *node = (t_Node *)from;
    u32 count = CountListEntries(list);
    for (u32 guard = 0; guard < count; guard++) {
        if (!node) {
            node = step > 0 ? list->first : list->last;
        } else {
            node = step > 0 ? node->next : node->prev;
            if (!node->next || !node->prev)  // past an end
                node = step > 0 ? list->first : list->last;
        }
        if (Visible((t_gadget *)node))
            return (t_gadget *)node;
    }
    return NULL;
}

int DoDefaultGadgetKeys(t_Window *window, t_gadget *gadget, T_MOUSE_MSG *msg)
{
    t_Gaget_Handler *handler = FindGadgetHandler(window);
    if (!handler || !msg)
        return 0;
    const T_DEFAULT_KEY *row = NULL;
    for (const T_DEFAULT_KEY &key : default_keys)
        if (key.key == msg->mouse_action)
            row = &key;
    if (!row)
        return 0;
    int step = row->step;
    if (row->shift_reverses && (msg->keyboard_flags & QUAL_SHIFT))
        step = -step;
    t_gadget *from = handler->current_gadget ? handler->current_gadget : gadget;
    t_List *list = from ? ListOf(from) : handler->list_in_use;
    t_gadget *to = StepGadget(list, from, step);
    if (to)
        handler->current_gadget = to;
    return 1;
}
