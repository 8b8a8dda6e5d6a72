// Tab links: tab[0] and tab[1] of each gadget, the item codes of the gadgets before and after it
// in the tab order, worked out from tab_index.
#include <unordered_map>

#include "source/source_format.h"
#include "source/source_writer.h"

typedef std::unordered_map<u32, t_gadget *> T_TAB_INDEX;

// The first member with this index, or null.
static t_gadget *Member(const T_TAB_INDEX &members, u32 index)
{
    T_TAB_INDEX::const_iterator found = members.find(index);
    return found == members.end() ? NULL : found->second;
}

// Members are the gadgets with an item code. The first member in list order with an index is the
// one that links find, so the index is built once per call and the walk stays linear.
void BuildTabLinks(t_Window *window)
{
    t_Gaget_Handler *handler = FindGadgetHandler(window);
    if (!handler)
        return;

    T_TAB_INDEX first_with_index;
    u32 highest = 0;
    t_gadget *first_highest = NULL;
    for (t_gadget *g = handler->first_gadget; g->next; g = g->next) {
        if (g->item_code == 0)
            continue;
        first_with_index.emplace(g->tab_index, g);
        if (!first_highest || g->tab_index > highest) {
            highest = g->tab_index;
            first_highest = g;
        }
    }

    for (t_gadget *g = handler->first_gadget; g->next; g = g->next) {
        if (g->item_code == 0) {
            g->tab[0] = g->tab[1] = 0;
            continue;
        }
        u32 index = g->tab_index;
        t_gadget *before = Member(first_with_index, index == 1 ? highest : index - 1);
        if (before == g) {  // the only member with an index
            g->tab[0] = g->tab[1] = 0;
            continue;
        }
        if (!before)  // a gap in the numbers, or index 0
            before = first_highest;
        g->tab[0] = before->item_code | (index == 1 ? SRC_TAB_FIRST : 0);
        t_gadget *after = Member(first_with_index, index + 1);
        if (!after)
            after = Member(first_with_index, 1);
        g->tab[1] = after ? after->item_code : 0;
    }
}
