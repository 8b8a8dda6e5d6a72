// The module-wide state and the helpers that read the page records.
#include "page/records.h"

#include <string.h>

#include "page/catalogue.h"

T_EDITOR_CONFIG *editor_config;
T_RESOURCE *config_resource;
t_Menu gadget_context_menu;
T_EDITOR_HOOKS editor_hooks;

int IsPageWindow(t_Window *window)
{
    if (!window || (window->flags & WF_DEPENDANT) || !window->user_data)
        return 0;
    const T_WINEDIT_HANDLER *record = (const T_WINEDIT_HANDLER *)window->user_data;
    // The fourth tag byte is not compared.
    return record->tag[0] == 'W' && record->tag[1] == 'E' && record->tag[2] == 'H';
}

T_WINEDIT_HANDLER *PageRecordOf(t_Window *window)
{
    return window && IsPageWindow(window) ? (T_WINEDIT_HANDLER *)window->user_data : NULL;
}

int GadgetIsOnPage(t_Window *window, const t_gadget *gadget)
{
    t_Gaget_Handler *handler = gadget && window ? FindGadgetHandler(window) : NULL;
    if (!handler)
        return 0;
    for (t_gadget *g = handler->first_gadget; g->next; g = g->next)
        if (g == gadget)
            return 1;
    return 0;
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

// The page's set of item codes, built from its gadgets when it isn't kept.
static T_ITEM_CODES *PageItemCodes(t_Window *window)
{
    if (!IsPageWindow(window))
        return NULL;
    T_WINEDIT_HANDLER *record = (T_WINEDIT_HANDLER *)window->user_data;
    if (record->item_codes_valid)
        return &record->item_codes;
    FreeItemCodes(&record->item_codes);
    t_Gaget_Handler *handler = FindGadgetHandler(window);
    for (t_gadget *g = handler ? handler->first_gadget : NULL; g && g->next; g = g->next)
        if (!AddItemCode(&record->item_codes, g->item_code))
            return NULL;
    record->item_codes_valid = 1;
    return &record->item_codes;
}

// A set that lost a change (no memory) is built again at its next use.
static void NoteCode(t_Window *window, T_ITEM_CODES *codes, u32 code)
{
    if (codes && !AddItemCode(codes, code))
        ((T_WINEDIT_HANDLER *)window->user_data)->item_codes_valid = 0;
}

void SetGadgetItemCode(t_Window *window, t_gadget *gadget, u32 code)
{
    T_ITEM_CODES *codes = PageItemCodes(window);
    if (codes)
        RemoveItemCode(codes, gadget->item_code);
    gadget->item_code = code;
    NoteCode(window, codes, code);
}

void AddGadgetItemCode(t_Window *window, t_gadget *gadget)
{
    if (IsPageWindow(window) && ((T_WINEDIT_HANDLER *)window->user_data)->item_codes_valid)
        NoteCode(window, &((T_WINEDIT_HANDLER *)window->user_data)->item_codes, gadget->item_code);
}

void ForgetGadgetItemCode(t_Window *window, t_gadget *gadget)
{
    if (IsPageWindow(window) && ((T_WINEDIT_HANDLER *)window->user_data)->item_codes_valid)
        RemoveItemCode(&((T_WINEDIT_HANDLER *)window->user_data)->item_codes, gadget->item_code);
}

u32 NextFreeItemCodeOf(t_Window *window)
{
    if (T_ITEM_CODES *codes = PageItemCodes(window))
        return LowestFreeItemCode(codes);
    t_Gaget_Handler *handler = FindGadgetHandler(window);
    return handler ? NextFreeItemCode(handler->first_gadget) : 1;
}

u32 PageGadgetCount(t_Window *window)
{
    if (T_ITEM_CODES *codes = PageItemCodes(window))
        return codes->total;
    t_Gaget_Handler *handler = FindGadgetHandler(window);
    return handler ? CountListEntries(&handler->gadget_list) : 0;
}

u32 GadgetsWithItemCode(t_Window *window, u32 code)
{
    if (T_ITEM_CODES *codes = PageItemCodes(window))
        return ItemCodeCount(codes, code);
    t_Gaget_Handler *handler = FindGadgetHandler(window);
    u32 count = 0;
    for (t_gadget *g = handler ? handler->first_gadget : NULL; g && g->next; g = g->next)
        count += g->item_code == code;
    return count;
}
