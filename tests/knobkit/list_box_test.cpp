// List boxes: selection by mouse and its reports, scrolling by wheel and scroll bar, and a row's
// tab column.
#include "knobkit_fixture.h"

#include <string.h>

static T_LIST_DATA *ListOf(t_gadget *g)
{
    return (T_LIST_DATA *)g->class_data;
}

static i16 RowY(t_gadget *g, i32 row)
{  // the middle of a visible row
    T_LIST_LAYOUT l;
    ListLayout(g, &l);
    return (i16)(l.inner.y + (row - ListOf(g)->top) * l.row_h + l.row_h / 2);
}

TEST_F(GadgetTest, ListClickSelectsAndReports)
{
    t_gadget *g = MakeList(GADGET_TYPE_LIST_BOX, 10, 10, 200, 120, 5, 9);
    Turn();
    recorded.clear();
    Click(MidX(g), RowY(g, 2));
    EXPECT_EQ(ListOf(g)->selected, 2);
    EXPECT_EQ(CountRecorded(ACT_LMOUSE_DOWN), 1u);
    ASSERT_EQ(CountRecorded(ACT_LMOUSE_UP), 1u);
    EXPECT_EQ(recorded.back().item_code, 9u);
    EXPECT_EQ(recorded.back().data, g);
    DoubleClick(MidX(g), RowY(g, 3));
    EXPECT_EQ(ListOf(g)->selected, 3);
    EXPECT_EQ(CountRecorded(ACT_LMOUSE_DBL), 1u);
    HeadlessAdvance(1000);
    Click(MidX(g), g->screen_y + g->base_height - 3);  // below the last row: nothing changes
    EXPECT_EQ(ListOf(g)->selected, 3);
}

TEST_F(GadgetTest, ListScrollsByWheelAndScrollBar)
{
    t_gadget *g = MakeList(GADGET_TYPE_LIST_BOX, 10, 10, 200, 80, 30);
    Turn();
    T_LIST_DATA *d = ListOf(g);
    T_LIST_LAYOUT l;
    ListLayout(g, &l);
    ASSERT_GT(l.bar.w, 0);  // the rows don't fit: a bar at the right
    EXPECT_EQ(l.bar.x + l.bar.w, g->screen_x + g->base_width - 2);
    Move(MidX(g), MidY(g));
    Wheel(-1);
    EXPECT_EQ(d->top, 3);
    Wheel(1, 2);
    EXPECT_EQ(d->top, 0);  // not above the first row
    i16 bx = l.bar.x + l.bar.w / 2;
    Click(bx, l.bar.y + l.bar.h - 3);  // the lower arrow: one row
    EXPECT_EQ(d->top, 1);
    Drag(bx, l.bar.y + SCROLL_BAR_SIZE + 2, bx, l.bar.y + l.bar.h + 50);  // the thumb to the end
    EXPECT_EQ(d->top, 30 - d->rows);
    Click(bx, l.bar.y + SCROLL_BAR_SIZE + 1);  // the track above the thumb: a page up
    EXPECT_EQ(d->top, 30 - 2 * d->rows);
    EXPECT_EQ(d->selected, -1);  // scrolling selects nothing
}

// A tab in a row's text puts what follows at the row's right end; the middle stays empty.
TEST_F(GadgetTest, ListRowTabSetsTheRestAtTheRight)
{
    T_GADGETOBJECTINIT init = Init(GADGET_TYPE_LIST_BOX, 10, 10, 300, 60);
    void *holder = Create("Keys", init);
    init.parent_gadget = holder;
    Create("Open\tCtrl+O", init);
    t_gadget *g = GetCurrentGadget(window);
    Turn();
    T_LIST_LAYOUT l;
    ListLayout(g, &l);
    auto inked = [&](i16 x, i16 w) {  // inside the row, clear of the focus frame
        for (u32 p : Pixels(T_RPOS{x, (i16)(l.inner.y + 2), w, (i16)(l.row_h - 2)}))
            if (p != DISPLAY_RECORD->field_colour)
                return true;
        return false;
    };
    i16 third = (i16)((l.inner.w - 4) / 3);
    EXPECT_TRUE(inked((i16)(l.inner.x + 2), third));
    EXPECT_FALSE(inked((i16)(l.inner.x + third), third));
    EXPECT_TRUE(inked((i16)(l.inner.x + 2 * third), third));
}
