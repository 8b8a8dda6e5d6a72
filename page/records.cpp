// The module-wide state and the helpers that read the page records.
#include "page/records.h"

#include <string.h>

T_EDITOR_CONFIG *editor_config;
T_RESOURCE *config_resource;
t_Menu gadget_context_menu;

int IsPageWindow(t_Window *window)
{
    if (!window || (window->flags & WF_DEPENDANT) || !window->user_data)
        return 0;
    const T_WINEDIT_HANDLER *record = (const T_WINEDIT_HANDLER *)window->user_data;
    // The fourth tag byte is not compared.
    return record->tag[0] == 'W' && record->tag[1] == 'E' && record->tag[2] == 'H';
}

int NothingMarked(t_gadget *gadget)
{
    if (!gadget)
        return 0;
    for (t_gadget *g = (t_gadget *)FindFirstNode((t_Node *)gadget); g->next; g = g->next) {
        g->live_flags &= ~GADGET_MARK_DRAG;
        if (g->live_flags & GADGET_MARK_SELECTED)
            return 0;
    }
    return 1;
}

t_gadget *FindGadgetByCode(t_Window *window, u32 code)
{
    t_Gaget_Handler *handler = FindGadgetHandler(window);
    if (!handler)
        return NULL;
    for (t_Node *n = handler->list_in_use->first; n->next; n = n->next)
        if (((t_gadget *)n)->item_code == code)
            return (t_gadget *)n;
    return NULL;
}
