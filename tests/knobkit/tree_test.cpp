// Trees: rows of the open branches, opening and closing, and the selection that follows its entry.
#include "knobkit_fixture.h"

static T_LIST_DATA *ListOf(t_gadget *g)
{
    return (T_LIST_DATA *)g->class_data;
}

// Three branches of two leaves each, the first leaf of branch 1 with one twig.
static t_gadget *MakeTree(GadgetTest *t, t_Window *window)
{
    (void)t;
    t_gadget *g = GetCurrentGadget(window);
    t_List *list = &ListOf(g)->entries;
    for (int b = 0; b < 3; b++) {
        T_LIST_ENTRY *branch = NewBranch(list, nullptr, ("Branch " + std::to_string(b)).c_str(), 0);
        for (int l = 0; l < 2; l++) {
            T_LIST_ENTRY *leaf = NewBranch(&branch->children, nullptr, ("Leaf " + std::to_string(l)).c_str(), 0);
            if (b == 1 && l == 0)
                NewBranch(&leaf->children, nullptr, "Twig", 0);
        }
    }
    return g;
}

TEST_F(GadgetTest, TreeOpensAndClosesWithTheSelectionKept)
{
    MakeList(GADGET_TYPE_TREE, 10, 10, 200, 200, 0, 8);
    t_gadget *g = MakeTree(this, window);
    T_LIST_DATA *d = ListOf(g);
    Turn();
    T_LIST_LAYOUT l;
    ListLayout(g, &l);
    auto BoxOf = [&](i32 row) {
        u16 level;
        RowEntry(d, 1, row, &level);
        T_RPOS r = {l.inner.x, (i16)(l.inner.y + (row - d->top) * l.row_h), l.inner.w, l.row_h};
        return TreeBoxRect(g, r, level);
    };
    auto RowMid = [&](i32 row) { return (i16)(l.inner.y + (row - d->top) * l.row_h + l.row_h / 2); };
    EXPECT_EQ(CountRows(d, 1), 3);
    Click(l.inner.x + 60, RowMid(2));  // select Branch 2
    EXPECT_EQ(d->selected, 2);
    T_RPOS box = BoxOf(0);
    Click(box.x + box.w / 2, box.y + box.h / 2);  // open Branch 0
    EXPECT_EQ(CountRows(d, 1), 5);
    EXPECT_EQ(d->selected, 4);  // still Branch 2
    box = BoxOf(3);             // Branch 1, below Branch 0's two leaves
    Click(box.x + box.w / 2, box.y + box.h / 2);
    box = BoxOf(4);  // its Leaf 0
    Click(box.x + box.w / 2, box.y + box.h / 2);
    EXPECT_EQ(CountRows(d, 1), 8);
    u16 level;
    EXPECT_STREQ(RowEntry(d, 1, 5, &level)->name, "Twig");
    EXPECT_EQ(level, 2);
    EXPECT_GT(BoxOf(5).x, BoxOf(4).x);  // indented by level
    Click(l.inner.x + 60, RowMid(5));   // select the twig, then close Branch 1 above it
    box = BoxOf(3);
    Click(box.x + box.w / 2, box.y + box.h / 2);
    EXPECT_EQ(d->selected, 3);  // the closed branch takes the selection
    recorded.clear();
    DoubleClick(l.inner.x + 60, RowMid(0));  // a double click on Branch 0 closes it
    EXPECT_EQ(CountRecorded(ACT_LMOUSE_DBL), 1u);
    EXPECT_EQ(CountRows(d, 1), 3);
    SetCurrentGadget(window, g);
    Key(KEY_RIGHT);  // opens the selected branch
    EXPECT_EQ(CountRows(d, 1), 5);
    Key(KEY_DOWN);
    EXPECT_EQ(d->selected, 1);
    Key(KEY_UP);
    Key(KEY_LEFT);
    EXPECT_EQ(CountRows(d, 1), 3);
    d->resized_flags |= TREE_RESIZED;
    Turn();
    EXPECT_EQ(d->resized_flags & TREE_RESIZED, 0);
}
