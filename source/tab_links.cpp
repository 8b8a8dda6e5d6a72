// Tab links: tab[0] and tab[1] of each gadget, the item codes of the gadgets before and after it
// in the tab order, worked out from tab_index.
#include "page/item_codes.h"
#include "source/source_format.h"
#include "source/source_writer.h"

// Members are the gadgets with an item code. The first member in list order with an index is the
// one that links find: an index from tab number to that gadget, built in one walk, keeps the work
// linear. Without memory for it the links are left as they were, with a log line.
void BuildTabLinks(t_Window *window)
{
    t_Gaget_Handler *handler = FindGadgetHandler(window);
    if (!handler)
        return;

    T_ITEM_CODES first_with_index;
    InitItemCodes(&first_with_index);
    u32 highest = 0;
    t_gadget *first_highest = NULL;
    for (t_gadget *g = handler->first_gadget; g->next; g = g->next) {
        if (g->item_code == 0)
            continue;
        if (!AddItemCodeOf(&first_with_index, g->tab_index, g)) {
            myprintf(0, "No memory for the tab links of %s\n", window->name);
            return;
        }
        if (!first_highest || g->tab_index > highest) {
            highest = g->tab_index;
            first_highest = g;
        }
    }
#define MEMBER(index) ((t_gadget *)FirstHolder(&first_with_index, (index)))

    for (t_gadget *g = handler->first_gadget; g->next; g = g->next) {
        if (g->item_code == 0) {
            g->tab[0] = g->tab[1] = 0;
            continue;
        }
        u32 index = g->tab_index;
        t_gadget *before = MEMBER(index == 1 ? highest : index - 1);
        if (before == g) {  // the only member with an index
            g->tab[0] = g->tab[1] = 0;
            continue;
        }
        if (!before)  // a gap in the numbers, or index 0
            before = first_highest;
        g->tab[0] = before->item_code | (index == 1 ? SRC_TAB_FIRST : 0);
        t_gadget *after = MEMBER(index + 1);
        if (!after)
            after = MEMBER(1);
        g->tab[1] = after ? after->item_code : 0;
    }
#undef MEMBER
    FreeItemCodes(&first_with_index);
}
