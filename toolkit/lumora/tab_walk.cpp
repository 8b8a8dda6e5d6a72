// Tab and Shift+Tab in a dialog or a program's page: along the window's tab chain (the gadgets'
// tab links, by item code), and off it through the gadgets in list order and into shown combos.
#include "lumora/lumora_internal.h"

// --- The list walk -------------------------------------------------------------------------------
// The walk runs through the gadgets in list order and through a shown combo's children right
// after the combo, as the mouse finds them; it wraps round at the ends.

// A shown combo's children, or null when it has none to walk.
static t_List *WalkInside(t_gadget *g)
{
    if (g->type != GADGET_TYPE_COMBO || !g->class_data || (g->live_flags & GADGET_FLAGS_NO_DISPLAY))
        return NULL;
    t_List *children = &((T_LIST_DATA *)g->class_data)->entries;
    return LIST_EMPTY(children) ? NULL : children;
}

// The last gadget of the walk at and below `g`.
static t_gadget *WalkDeepest(t_gadget *g)
{
    while (t_List *inside = WalkInside(g))
        g = (t_gadget *)inside->last;
    return g;
}

// The gadget after (or before) `g` in the walk; the first (or last) for null.
static t_gadget *WalkStep(t_Gaget_Handler *gh, t_gadget *g, int backwards)
{
    if (backwards) {
        if (g && g->prev->prev)
            return WalkDeepest(g->prev);
        if (g && g->parent_combo)
            return g->parent_combo;
        return WalkDeepest((t_gadget *)gh->gadget_list.last);
    }
    if (g) {
        if (t_List *inside = WalkInside(g))
            return (t_gadget *)inside->first;
        for (; g; g = g->parent_combo)
            if (g->next->next)
                return g->next;
    }
    return gh->first_gadget;
}

static u32 CountWalk(t_List *list)
{
    u32 n = 0;
    for (t_gadget *g = (t_gadget *)list->first; g->next; g = g->next) {
        n++;
        if (t_List *inside = WalkInside(g))
            n += CountWalk(inside);
    }
    return n;
}

// A combo with children leaves the stop to them.
int TabStop(t_gadget *g)
{
    return !(g->live_flags & (GADGET_FLAGS_DISABLED | GADGET_FLAGS_NO_DISPLAY)) && g->type != GADGET_TYPE_TEXT &&
           g->type != GADGET_TYPE_GROUP && !WalkInside(g);
}

// The next stop of the list walk after (or before) `g`, or null when the walk has none.
static t_gadget *AlongList(t_Gaget_Handler *gh, t_gadget *g, int backwards)
{
    for (u32 guard = CountWalk(&gh->gadget_list) + 1; guard; guard--) {
        g = WalkStep(gh, g, backwards);
        if (TabStop(g))
            return g;
    }
    return NULL;
}

// --- The tab chain -------------------------------------------------------------------------------
// tab[1] names the gadget after, tab[0] the one before (TAB_LINK_FIRST marks the chain's head); a
// page's chain is a ring. Links name gadgets of the window's own list by their saved item code.

static t_gadget *ChainMember(t_Gaget_Handler *gh, u32 code)
{
    for (t_gadget *g = gh->first_gadget; g->next; g = g->next)
        if (g->item_code == code)
            return g;
    return NULL;
}

// The next stop along the chain from `from`, passing over gadgets that take no focus; null when
// the links lead nowhere, or only round gadgets that take none (the count guards the round).
static t_gadget *AlongChain(t_Gaget_Handler *gh, t_gadget *from, int backwards)
{
    u32 guard = CountListEntries(&gh->gadget_list);
    for (t_gadget *g = from; g && guard; guard--) {
        u32 code = (backwards ? g->tab[0] : g->tab[1]) & ~TAB_LINK_FIRST;
        g = code ? ChainMember(gh, code) : NULL;
        if (g && TabStop(g))
            return g;
    }
    return NULL;
}

// The chain's first stop: its head, or the first stop along it from the head.
static t_gadget *ChainStart(t_Gaget_Handler *gh)
{
    for (t_gadget *g = gh->first_gadget; g->next; g = g->next)
        if (g->tab[0] & TAB_LINK_FIRST)
            return TabStop(g) ? g : AlongChain(gh, g, 0);
    return NULL;
}

// --- Tab -----------------------------------------------------------------------------------------

// Where Tab goes from the current gadget `g` (null: from nowhere).
static t_gadget *NextTabStop(t_Gaget_Handler *gh, t_gadget *g, int backwards)
{
    if (LIST_EMPTY(&gh->gadget_list))
        return NULL;
    t_gadget *next = g ? AlongChain(gh, g, backwards) : ChainStart(gh);
    return next ? next : AlongList(gh, g, backwards);
}

// The next stop becomes the current gadget; in a combo, the combo scrolls it into view.
void TabToNextGadget(t_Window *window, int backwards)
{
    t_Gaget_Handler *gh = FindGadgetHandler(window);
    t_gadget *next = gh ? NextTabStop(gh, gh->current_gadget, backwards) : NULL;
    if (!next)
        return;
    gh->current_gadget = next;
    ScrollComboToGadget(next);
}

t_gadget *FirstTabGadget(t_Window *window)
{
    t_Gaget_Handler *gh = FindGadgetHandler(window);
    return gh ? NextTabStop(gh, NULL, 0) : NULL;
}
