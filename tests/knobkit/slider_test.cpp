// Sliders and scroll bars: values by clicks and drags in both orientations, kept in range and on
// the step grid, keys, and what they report.
#include "knobkit_fixture.h"

static T_SLIDER_DATA *SliderOf(t_gadget *g)
{
    return (T_SLIDER_DATA *)g->class_data;
}
static T_SCROLLBAR_DATA *BarOf(t_gadget *g)
{
    return (T_SCROLLBAR_DATA *)g->class_data;
}

// The point that brings a default mark's middle to `frac` of the slider's travel.
static void PointAt(t_gadget *g, double frac, i16 *x, i16 *y)
{
    int horizontal = g->live_flags & GADGET_FLAGS_HORIZONTAL;
    i16 along = horizontal ? g->base_width : g->base_height, half = 4;  // the mark is 8 long
    i16 at = (i16)(half + frac * (along - 2 * half));
    *x = horizontal ? g->screen_x + at : MidX(g);
    *y = horizontal ? MidY(g) : g->screen_y + at;
}

TEST_F(GadgetTest, SliderTakesClickedValuesInStepsAndRange)
{
    struct {
        u32 orientation;
        i32 min, max, step;
        double frac;
        i32 value;
    } rows[] = {
        {GADGET_FLAGS_HORIZONTAL, 0, 100, 1, 0.0, 0},
        {GADGET_FLAGS_HORIZONTAL, 0, 100, 1, 1.0, 100},
        {GADGET_FLAGS_HORIZONTAL, 0, 100, 1, 0.5, 50},
        {GADGET_FLAGS_HORIZONTAL, 0, 100, 25, 0.4, 50},  // 40 rounds to the nearer step
        {GADGET_FLAGS_HORIZONTAL, 0, 100, 0, 0.3, 30},   // step 0 moves as 1
        {GADGET_FLAGS_HORIZONTAL, 0, 100, -5, 0.7, 70},  // and so does a negative one
        {GADGET_FLAGS_VERTICAL, -50, 50, 10, 0.5, 0},
        {GADGET_FLAGS_VERTICAL, -50, 50, 10, 0.0, -50},  // the minimum at the top
        {GADGET_FLAGS_VERTICAL, 10, 20, 3, 1.0, 19},     // the last step inside the range
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.frac);
        int horizontal = row.orientation == GADGET_FLAGS_HORIZONTAL;
        T_GADGETOBJECTINIT init = Init(GADGET_TYPE_SLIDER, 20, 20, horizontal ? 108 : 20, horizontal ? 20 : 108, 7,
                                       ACT_LMOUSE_UP, row.orientation);
        init.min = row.min, init.max = row.max, init.step = row.step, init.init_val = row.min;
        t_gadget *g = Make("slider", init);
        Turn();
        recorded.clear();
        i16 x, y;
        PointAt(g, row.frac, &x, &y);
        Click(x, y);
        EXPECT_EQ(SliderOf(g)->value, row.value);
        EXPECT_EQ(SliderOf(g)->step, row.step);  // the record keeps the step as given
        EXPECT_EQ(CountRecorded(ACT_LMOUSE_UP), 1u);
        RemoveObject(&handler->head, g);
    }
}

TEST_F(GadgetTest, SliderDragIsClampedAndReportedWhenAsked)
{
    for (u32 orientation : {GADGET_FLAGS_HORIZONTAL, GADGET_FLAGS_VERTICAL}) {
        int horizontal = orientation == GADGET_FLAGS_HORIZONTAL;
        T_GADGETOBJECTINIT init = Init(GADGET_TYPE_SLIDER, 20, 20, horizontal ? 108 : 20, horizontal ? 20 : 108, 7,
                                       ACT_LMOUSE_DOWN | ACT_LMOUSE_UP, orientation | GADGET_FLAGS_REPORT_DRAG);
        init.max = 10, init.init_val = 5;
        t_gadget *g = Make("slider", init);
        EXPECT_EQ(SliderOf(g)->slider_width, init.base_width);
        EXPECT_EQ(SliderOf(g)->track_height, init.base_height);
        Turn();
        recorded.clear();
        i16 x, y;
        PointAt(g, 0.5, &x, &y);  // on the mark
        Drag(x, y, horizontal ? x + 400 : x, horizontal ? y : y + 400);
        EXPECT_EQ(SliderOf(g)->value, 10);
        EXPECT_GE(CountRecorded(ACT_LMOUSE_DOWN), 2u);  // the press and the changes of the drag
        Drag(x, y, horizontal ? x - 400 : x, horizontal ? y : y - 400);
        EXPECT_EQ(SliderOf(g)->value, 0);
        SetCurrentGadget(window, g);
        Key(KEY_RIGHT);
        Key(KEY_RIGHT);
        EXPECT_EQ(SliderOf(g)->value, 2);
        Key(KEY_END);
        EXPECT_EQ(SliderOf(g)->value, 10);
        RemoveObject(&handler->head, g);
    }
}

TEST_F(GadgetTest, ScrollBarArrowsTrackThumbAndKeys)
{
    for (u32 orientation : {GADGET_FLAGS_VERTICAL, GADGET_FLAGS_HORIZONTAL}) {
        int horizontal = orientation == GADGET_FLAGS_HORIZONTAL;
        T_GADGETOBJECTINIT init = Init(GADGET_TYPE_SCROLLBAR, 20, 20, horizontal ? 120 : 16, horizontal ? 16 : 120, 3,
                                       ACT_LMOUSE_UP, orientation);
        init.max = 64, init.mark_width = 4;
        t_gadget *g = Make("bar", init);
        Turn();
        recorded.clear();
        // Points along the bar, from its start.
        auto At = [&](i16 along, i16 *x, i16 *y) {
            *x = horizontal ? g->screen_x + along : MidX(g);
            *y = horizontal ? MidY(g) : g->screen_y + along;
        };
        i16 x, y, end = 119;
        At(end - 2, &x, &y);
        Click(x, y);  // the far arrow: one on
        EXPECT_EQ(BarOf(g)->init_val, 1);
        At(end - 20, &x, &y);
        Click(x, y);  // the track past the thumb: a page of the visible part
        EXPECT_EQ(BarOf(g)->init_val, 5);
        T_SCROLL_RANGE range = {0, 64, 4, BarOf(g)->init_val, 1};
        T_SCROLL_PARTS parts;
        ScrollParts(GadgetRect(g), horizontal, &range, &parts);
        i16 tx = parts.thumb.x + parts.thumb.w / 2, ty = parts.thumb.y + parts.thumb.h / 2;
        Drag(tx, ty, horizontal ? tx + 300 : tx, horizontal ? ty : ty + 300);
        EXPECT_EQ(BarOf(g)->init_val, 60);  // max less the visible part
        At(2, &x, &y);
        Click(x, y);  // the near arrow
        EXPECT_EQ(BarOf(g)->init_val, 59);
        EXPECT_EQ(CountRecorded(ACT_LMOUSE_UP), 4u);
        SetCurrentGadget(window, g);
        Key(KEY_HOME);
        EXPECT_EQ(BarOf(g)->init_val, 0);
        Key(KEY_UP);
        EXPECT_EQ(BarOf(g)->init_val, 0);
        Key(KEY_PAGE_DOWN);
        EXPECT_EQ(BarOf(g)->init_val, 4);
        RemoveObject(&handler->head, g);
    }
}
