// Tab links: tab[0] and tab[1] of each gadget, the item codes of the gadgets before and after it
// in the tab order, worked out from tab_index.
#include "page/item_codes.h"
#include "source/source_format.h"
#include "source/source_writer.h"

// The first member in list order with each tab number: an array for the numbers up to the count
// of gadgets (as a page numbers them), a set for any beyond.
typedef struct T_TAB_INDEX {
    t_gadget **dense;  // [number], for 0 to dense_size - 1
    u32 dense_size;
    T_ITEM_CODES sparse;
} T_TAB_INDEX;

static int AddMember(T_TAB_INDEX *index, u32 number, t_gadget *g)
{
    if (number < index->dense_size) {
        if (!index->dense[number])
            index->dense[number] = g;
        return 1;
    }
    return AddItemCodeOf(&index->sparse, number, g);
}

static t_gadget *Member(const T_TAB_INDEX *index, u32 number)
{
    if (number < index->dense_size)
        return index->dense[number];
    return (t_gadget *)FirstHolder(&index->sparse, number);
}

// Members are the gadgets with an item code. The first member in list order with an index is the
// one that links find: the index from tab number to that gadget, built in one walk, keeps the work
// linear. Without memory for it the links are left as they were, with a log line.
void BuildTabLinks(t_Window *window)
{
    t_Gaget_Handler *handler = FindGadgetHandler(window);
    if (!handler)
        return;

    T_TAB_INDEX index;
    index.dense_size = PageGadgetCount(window) + 2;
    index.dense = (t_gadget **)AllocMemC(index.dense_size * (u32)sizeof(t_gadget *));
    InitItemCodes(&index.sparse);
    u32 highest = 0;
    t_gadget *first_highest = NULL;
    int ok = index.dense != NULL;
    for (t_gadget *g = handler->first_gadget; ok && g->next; g = g->next) {
        if (g->item_code == 0)
            continue;
        ok = AddMember(&index, g->tab_index, g);
        if (!first_highest || g->tab_index > highest) {
            highest = g->tab_index;
            first_highest = g;
        }
    }
    if (!ok) {
        myprintf(0, "No memory for the tab links of %s\n", window->name);
    } else {
        for (t_gadget *g = handler->first_gadget; g->next; g = g->next) {
            if (g->item_code == 0) {
                g->tab[0] = g->tab[1] = 0;
                continue;
            }
            u32 number = g->tab_index;
            t_gadget *before = Member(&index, number == 1 ? highest : number - 1);
            if (before == g) {  // the only member with an index
                g->tab[0] = g->tab[1] = 0;
                continue;
            }
            if (!before)  // a gap in the numbers, or index 0
                before = first_highest;
            g->tab[0] = before->item_code | (number == 1 ? SRC_TAB_FIRST : 0);
            t_gadget *after = Member(&index, number + 1);
            if (!after)
                after = Member(&index, 1);
            g->tab[1] = after ? after->item_code : 0;
        }
    }
    FreeMem(index.dense, index.dense_size * (u32)sizeof(t_gadget *));
    FreeItemCodes(&index.sparse);
}
