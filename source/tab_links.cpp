// Tab links: tab[0] and tab[1] of each gadget, the item codes of the gadgets before and after it
// in the tab order, worked out from tab_index.
#include "page/item_codes.h"
#include "source/source_format.h"
#include "source/source_writer.h"

// What the links need of a gadget, gathered in one walk into a compact array, so that working the
// links out reads no gadget again.
typedef struct T_LINK_ENTRY {
    t_gadget *gadget;
    u32 item_code;
    u32 tab_index;
} T_LINK_ENTRY;

// The first member in list order with each tab number, as a place in the array (+1, 0 for none):
// an array for the numbers up to the count of gadgets (as a page numbers them), a set beyond.
typedef struct T_TAB_INDEX {
    u32 *dense;  // [number], for 0 to dense_size - 1
    u32 dense_size;
    T_ITEM_CODES sparse;  // number -> place + 1, in the holder pointer
} T_TAB_INDEX;

static int AddMember(T_TAB_INDEX *index, u32 number, u32 place)
{
    if (number < index->dense_size) {
        if (!index->dense[number])
            index->dense[number] = place + 1;
        return 1;
    }
    return AddItemCodeOf(&index->sparse, number, (void *)(uintptr_t)(place + 1));
}

// The member's entry, or null.
static const T_LINK_ENTRY *Member(const T_TAB_INDEX *index, const T_LINK_ENTRY *entries, u32 number)
{
    u32 place = number < index->dense_size ? index->dense[number] : (u32)(uintptr_t)FirstHolder(&index->sparse, number);
    return place ? &entries[place - 1] : NULL;
}

// Members are the gadgets with an item code. The first member in list order with an index is the
// one that links find: the index from tab number to that gadget, built in one walk, keeps the work
// linear. Without memory for it the links are left as they were, with a log line.
void BuildTabLinks(t_Window *window)
{
    t_Gaget_Handler *handler = FindGadgetHandler(window);
    if (!handler)
        return;

    u32 count = PageGadgetCount(window);
    T_TAB_INDEX index;
    index.dense_size = count + 2;
    index.dense = (u32 *)AllocMemC(index.dense_size * (u32)sizeof(u32));
    InitItemCodes(&index.sparse);
    T_LINK_ENTRY *entries = (T_LINK_ENTRY *)AllocMemC((count + 1) * (u32)sizeof(T_LINK_ENTRY));
    u32 highest = 0, places = 0;
    const T_LINK_ENTRY *first_highest = NULL;
    int ok = index.dense && entries;
    for (t_gadget *g = handler->first_gadget; ok && g->next && places < count; g = g->next) {
        T_LINK_ENTRY *entry = &entries[places];
        *entry = T_LINK_ENTRY{g, g->item_code, g->tab_index};
        if (g->item_code != 0) {
            ok = AddMember(&index, g->tab_index, places);
            if (!first_highest || g->tab_index > highest) {
                highest = g->tab_index;
                first_highest = entry;
            }
        }
        places++;
    }
    if (!ok) {
        myprintf(0, "No memory for the tab links of %s\n", window->name);
    } else {
        for (u32 i = 0; i < places; i++) {
            const T_LINK_ENTRY *e = &entries[i];
            t_gadget *g = e->gadget;
            if (e->item_code == 0) {
                g->tab[0] = g->tab[1] = 0;
                continue;
            }
            u32 number = e->tab_index;
            const T_LINK_ENTRY *before = Member(&index, entries, number == 1 ? highest : number - 1);
            if (before == e) {  // the only member with an index
                g->tab[0] = g->tab[1] = 0;
                continue;
            }
            if (!before)  // a gap in the numbers, or index 0
                before = first_highest;
            g->tab[0] = before->item_code | (number == 1 ? TAB_LINK_FIRST : 0);
            const T_LINK_ENTRY *after = Member(&index, entries, number + 1);
            if (!after)
                after = Member(&index, entries, 1);
            g->tab[1] = after ? after->item_code : 0;
        }
    }
    FreeMem(entries, (count + 1) * (u32)sizeof(T_LINK_ENTRY));
    FreeMem(index.dense, index.dense_size * (u32)sizeof(u32));
    FreeItemCodes(&index.sparse);
}
