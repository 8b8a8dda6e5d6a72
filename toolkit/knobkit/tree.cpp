// What only trees do beside the list box's rows: indenting by level, the +/- box before a branch
// that has children, and opening or closing a branch while the selection stays on its entry.
#include "knobkit/knobkit_internal.h"

#define TREE_BOX_MAX 9  // the +/- box's side, smaller in a small font
#define TREE_BOX_GAP 6  // an indent is the box's side plus this

static i16 BoxSide(t_gadget *g)
{
    i16 side = GadgetFontHeight(g) - 2;
    return side < TREE_BOX_MAX ? side : TREE_BOX_MAX;
}

i16 TreeIndent(t_gadget *g, u16 level)
{
    return (i16)(level * (BoxSide(g) + TREE_BOX_GAP));
}

T_RPOS TreeBoxRect(t_gadget *g, T_RPOS row, u16 level)
{
    i16 side = BoxSide(g);
    return T_RPOS{(i16)(row.x + 2 + TreeIndent(g, level)), (i16)(row.y + (row.h - side) / 2), side, side};
}

// The selection follows its entry; when the entry goes out of sight, the branch is selected.
int TreeToggle(t_gadget *g, i32 row)
{
    T_LIST_DATA *d = (T_LIST_DATA *)g->class_data;
    T_LIST_ENTRY *e = RowEntry(d, 1, row, NULL);
    if (!e || !HasChildren(e))
        return 0;
    T_LIST_ENTRY *selected = RowEntry(d, 1, d->selected, NULL);
    e->open = !e->open;
    i32 now = selected ? RowOfEntry(d, 1, selected) : -1;
    d->selected = selected && now < 0 ? row : now;
    return 1;
}
