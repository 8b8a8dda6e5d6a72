// Mouse editing on a page: the drag threshold and the drag of gadgets, qualifiers and marks, handle
// resizes, the rubber band, gadgets made with a tool, the background's menu and the page's keys.
#include "tests/editor/editor_fixture.h"

TEST_F(PageTest, DragThresholdIsFivePixelsInOneAxis)
{
    struct {
        i16 dx, dy;
        int dragging;  // the threshold was passed
    } const cases[] = {
        {4, 4, 0}, {-4, -4, 0}, {5, 0, 1}, {0, -5, 1}, {-5, 3, 1},
    };
    t_gadget *g = Make(TOOL_BUTTON, 50, 50, 80, 24);
    for (const auto &c : cases) {
        SCOPED_TRACE(testing::Message() << c.dx << "," << c.dy);
        i16 x = MidX(g), y = MidY(g), pos_x = g->pos_x, pos_y = g->pos_y;
        Press(x, y);
        CHECK_PAGE();
        Move((i16)(x + c.dx), (i16)(y + c.dy));
        CHECK_PAGE();
        EXPECT_EQ((record->edit_state & EDIT_DRAGGING) != 0, c.dragging);
        EXPECT_EQ(g->pos_x, pos_x);  // passing the threshold costs the gadget nothing
        EXPECT_EQ(g->pos_y, pos_y);
        if (c.dragging) {
            i16 wx, wy;
            HeadlessWarpXY(&wx, &wy);
            EXPECT_EQ(wx, x);  // the pointer went back to where the press was
            EXPECT_EQ(wy, y);
        }
        Release(x, y);
        CHECK_PAGE();
    }
}

TEST_F(PageTest, DragMovesMarkedGadgetsAgainstTheMouseFromRightOrBottom)
{
    struct {
        u32 flags;
        i16 expect_dx, expect_dy;  // for a mouse movement of +20, +10
    } const cases[] = {
        {0, 20, 10},
        {GADGET_FLAGS_FROM_RIGHT, -20, 10},
        {GADGET_FLAGS_FROM_BOTTOM, 20, -10},
        {GADGET_FLAGS_FROM_RIGHT | GADGET_FLAGS_FROM_BOTTOM, -20, -10},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.flags);
        t_gadget *g = Make(TOOL_BUTTON, 60, 60, 80, 24);
        g->live_flags |= c.flags;
        RecalcUserSize(page);
        i16 pos_x = g->pos_x, pos_y = g->pos_y;
        u32 records = Records();
        Drag(MidX(g), MidY(g), (i16)(MidX(g) + 20), (i16)(MidY(g) + 10));
        CHECK_PAGE();
        EXPECT_EQ(g->pos_x, pos_x + c.expect_dx);
        EXPECT_EQ(g->pos_y, pos_y + c.expect_dy);
        EXPECT_EQ(Records(), records + 1);
        EXPECT_STREQ(UndoLabel(), UNDO_LABEL_MOVE);
        EXPECT_FALSE(Modified());  // a drag doesn't mark the page as modified
        DeleteMarkedGadgets(page);
        page->state_flags &= ~WSF_MODIFIED;
    }
}

TEST_F(PageTest, QualifiersDecideTheMarksAtPressAndRelease)
{
    struct {
        u16 qualifiers;
        int a_marked, b_marked;  // A marked before, B pressed; after the release
    } const cases[] = {
        {0, 0, 1},
        {QUAL_SHIFT, 1, 0},
        {QUAL_CONTROL, 1, 1},
        {QUAL_SHIFT | QUAL_CONTROL, 1, 0},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.qualifiers);
        t_gadget *a = Make(TOOL_BUTTON, 20, 20, 60, 20);
        t_gadget *b = Make(TOOL_BUTTON, 20, 80, 60, 20);
        ClearAllMarkedGadgets(a);
        Mark(a);
        i16 bx = b->pos_x, x = MidX(b), y = MidY(b);
        Press(x, y, 1, c.qualifiers);
        CHECK_PAGE();
        if (c.qualifiers) {  // with a qualifier the press changes no mark
            EXPECT_TRUE(Marked(a));
            EXPECT_FALSE(Marked(b));
        }
        Move((i16)(x + 10), y, c.qualifiers);
        Move((i16)(x + 20), y, c.qualifiers);
        Release((i16)(x + 20), y, 1, c.qualifiers);
        CHECK_PAGE();
        EXPECT_EQ(Marked(a), c.a_marked);
        EXPECT_EQ(Marked(b), c.b_marked);
        // The drag moved only what was marked at the press.
        EXPECT_EQ(b->pos_x, bx + (c.qualifiers ? 0 : 20));
        Command(COMMAND_SELECT_ALL);
        DeleteMarkedGadgets(page);
    }
}

TEST_F(PageTest, HandleHitTestTriesTheBoxesInOrder)
{
    // A gadget 7 wide: its top and bottom boxes start at X + 0, since 7 / 2 is 3.
    t_gadget *g = Make(TOOL_BUTTON, 100, 100, 7, 30);
    i16 X = g->screen_x, Y = g->screen_y, W = g->base_width, H = g->base_height;
    struct {
        i16 x, y;
        u16 handle;
    } const cases[] = {
        {(i16)(X - 6), (i16)(Y - 6), HANDLE_TOP_LEFT},
        {(i16)(X - 1), (i16)(Y - 1), HANDLE_TOP_LEFT},
        {X, (i16)(Y - 1), HANDLE_TOP},
        {(i16)(X + 5), (i16)(Y - 6), HANDLE_TOP},
        {(i16)(X + W), (i16)(Y - 6), HANDLE_TOP_RIGHT},
        {(i16)(X - 3), (i16)(Y + H / 2), HANDLE_LEFT},
        {(i16)(X + W + 5), (i16)(Y + H / 2 - 3), HANDLE_RIGHT},
        {(i16)(X - 6), (i16)(Y + H + 5), HANDLE_BOTTOM_LEFT},
        {X, (i16)(Y + H), HANDLE_BOTTOM},
        {(i16)(X + W + 5), (i16)(Y + H + 5), HANDLE_BOTTOM_RIGHT},
        {(i16)(X + 3), (i16)(Y + 10), HANDLE_NONE},  // inside the gadget
        {(i16)(X - 7), (i16)(Y - 7), HANDLE_NONE},
        {(i16)(X + W + 6), (i16)(Y + H / 2), HANDLE_NONE},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(testing::Message() << c.x - X << "," << c.y - Y);
        page->mouse_x = c.x;
        page->mouse_y = c.y;
        EXPECT_EQ(HandleUnderMouse(page, g), c.handle);
    }
}

TEST_F(PageTest, BackgroundPressInAHandleBoxResizesThatGadget)
{
    // Two gadgets whose boxes overlap: the first in list order wins; neither was marked.
    t_gadget *first = Make(TOOL_BUTTON, 40, 40, 60, 20);
    t_gadget *second = Make(TOOL_BUTTON, 106, 40, 60, 20);
    gadgets->current_gadget = NULL;
    UserTurns(1);
    EXPECT_EQ(record->handle_gadget, nullptr);
    i16 x = (i16)(first->screen_x + first->base_width + 2), y = MidY(first);  // first's right handle
    Press(x, y);
    CHECK_PAGE();
    EXPECT_EQ(record->drag_gadget, first);
    EXPECT_EQ(record->drag_handle, HANDLE_RIGHT);
    EXPECT_EQ(gadgets->current_gadget, first);
    EXPECT_TRUE(Marked(first));
    EXPECT_FALSE(Marked(second));
    T_RPOS limits;
    EXPECT_TRUE(HeadlessMouseRect(&limits));  // the pointer is held in the user area
    Move((i16)(x + 20), y);
    CHECK_PAGE();
    EXPECT_EQ(first->base_width, 60 + 2 + 20);  // the right side went to the mouse
    EXPECT_TRUE(Modified());                    // a handle resize marks the page at each repaint
    u32 records = Records();
    Release((i16)(x + 20), y);
    CHECK_PAGE();
    EXPECT_EQ(Records(), records + 1);
    EXPECT_STREQ(UndoLabel(), UNDO_LABEL_RESIZE);
    EXPECT_EQ(record->drag_gadget, nullptr);
    EXPECT_EQ(record->drag_handle, HANDLE_NONE);
    EXPECT_FALSE(HeadlessMouseRect(&limits));
}

TEST_F(PageTest, RubberBandUpAndLeftMarksTheNormalisedArea)
{
    t_gadget *inside = Make(TOOL_BUTTON, 120, 120, 40, 20);
    t_gadget *outside = Make(TOOL_BUTTON, 250, 200, 40, 20);
    ClearAllMarkedGadgets(inside);
    Press(AbsX(200), AbsY(180));
    CHECK_PAGE();
    EXPECT_EQ(record->rubber_active, 1);
    Move(AbsX(150), AbsY(140));
    Move(AbsX(100), AbsY(100));
    CHECK_PAGE();
    EXPECT_LT(record->rubber_x2, record->rubber_x1);
    EXPECT_LT(record->rubber_y2, record->rubber_y1);
    EXPECT_TRUE(Marked(inside));
    EXPECT_FALSE(Marked(outside));
    Release(AbsX(100), AbsY(100));
    CHECK_PAGE();
    EXPECT_EQ(record->rubber_active, 0);
    EXPECT_TRUE(Marked(inside));  // the marks of the band stay without a tool
    EXPECT_EQ(CountListEntries(&gadgets->gadget_list), 2u);
}

TEST_F(PageTest, BandWithAToolMakesOneGadgetAndTheToolbarFallsBack)
{
    t_gadget *old = Make(TOOL_BUTTON, 30, 30, 40, 20);
    ClearAllMarkedGadgets(old);
    SetActiveToolBarEntry(Toolbar(), TOOL_CHECK_BOX);
    Press(AbsX(20), AbsY(20));
    Move(AbsX(60), AbsY(40));
    Move(AbsX(120), AbsY(60));
    EXPECT_TRUE(Marked(old));  // the band marks while it is drawn
    Release(AbsX(120), AbsY(60));
    CHECK_PAGE();
    ASSERT_EQ(CountListEntries(&gadgets->gadget_list), 2u);
    t_gadget *made = (t_gadget *)gadgets->gadget_list.last;
    EXPECT_EQ(made->type, GADGET_TYPE_CHECK_BOX);
    EXPECT_EQ(made->pos_x, 20);
    EXPECT_EQ(made->pos_y, 20);
    EXPECT_EQ(made->base_width, 100);
    EXPECT_EQ(made->base_height, 40);
    EXPECT_TRUE(Marked(made));
    EXPECT_FALSE(Marked(old));
    EXPECT_EQ(record->drag_gadget, made);
    EXPECT_TRUE(Modified());
    EXPECT_STREQ(UndoLabel(), UNDO_LABEL_CREATE);
    EXPECT_EQ(GetActiveToolBarEntry(Toolbar()), 0);
    EXPECT_EQ(record->last_tool, TOOL_CHECK_BOX);
    // z brings the tool back, and z again the selector.
    UserKey('z', 0);
    EXPECT_EQ(GetActiveToolBarEntry(Toolbar()), TOOL_CHECK_BOX);
    UserKey('z', 0);
    EXPECT_EQ(GetActiveToolBarEntry(Toolbar()), 0);
    CHECK_PAGE();
}

TEST_F(PageTest, RightReleaseOnTheBackgroundOpensThePageMenu)
{
    t_gadget *g = Make(TOOL_BUTTON, 30, 30, 60, 20);
    Mark(g);
    u32 windows = CountListEntries(&CURRENT_DISPLAY->window_class->windows);
    UserClick(AbsX(200), AbsY(200), 3);
    CHECK_PAGE();
    EXPECT_EQ(CountListEntries(&CURRENT_DISPLAY->window_class->windows), windows + 1);
    t_Window *popup = (t_Window *)CURRENT_DISPLAY->window_class->windows.last;
    EXPECT_TRUE(popup->extra_flags & WEX_POPUP);
    EXPECT_TRUE(Marked(g));  // the selection isn't touched
    CloseOpenMenus();
    UserTurns(1);
}

TEST_F(PageTest, SpaceTogglesOneMarkAndDeleteRemovesTheMarked)
{
    t_gadget *a = Make(TOOL_BUTTON, 20, 20, 60, 20);
    t_gadget *b = Make(TOOL_BUTTON, 20, 60, 60, 20);
    Mark(a);
    gadgets->current_gadget = b;
    UserKey(' ', 0);
    EXPECT_TRUE(Marked(b));
    EXPECT_TRUE(Marked(a));
    UserKey(' ', 0);
    EXPECT_FALSE(Marked(b));
    CHECK_PAGE();
    UserKey(KEY_DELETE, 0);
    CHECK_PAGE();
    ASSERT_EQ(CountListEntries(&gadgets->gadget_list), 1u);
    EXPECT_EQ(gadgets->first_gadget, b);
    EXPECT_TRUE(Modified());
}
