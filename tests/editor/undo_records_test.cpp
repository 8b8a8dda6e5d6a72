// Undo records: creation and geometry taken back and done again through the main window's Undo and
// Redo, their labels, the modified bit, and records whose gadget has gone.
#include "tests/editor/editor_fixture.h"

class UndoTest : public PageTest
{
  protected:
    // A gadget made with a tool by a drag on the background, as a person makes it.
    t_gadget *Draw(u16 tool, i16 x, i16 y, i16 w, i16 h)
    {
        SetActiveToolBarEntry(Toolbar(), tool);
        Drag(AbsX(x), AbsY(y), AbsX((i16)(x + w)), AbsY((i16)(y + h)));
        return (t_gadget *)gadgets->gadget_list.last;
    }
};

TEST_F(UndoTest, UndoAndRedoOfACreatedGadget)
{
    t_gadget *g = Draw(TOOL_BUTTON, 40, 40, 80, 24);
    ASSERT_EQ(Count(), 1u);
    SetGadgetItemCode(page, g, 9);  // what the user set on the old gadget is gone after a redo
    EXPECT_TRUE(Modified());
    Command(COMMAND_UNDO);
    CHECK_PAGE();
    EXPECT_EQ(Count(), 0u);
    EXPECT_FALSE(Modified());  // the history is empty: the page is clean
    Command(COMMAND_REDO);
    CHECK_PAGE();
    ASSERT_EQ(Count(), 1u);
    t_gadget *again = gadgets->first_gadget;
    EXPECT_EQ(again->type, GADGET_TYPE_BUTTON);
    EXPECT_EQ(Geom(again), (T_GEOM{40, 40, 80, 24}));
    EXPECT_EQ(again->item_code, 1u);
    EXPECT_FALSE(Marked(again));
    EXPECT_TRUE(Modified());
    EXPECT_EQ(gadgets->current_gadget, nullptr);  // no gadget is current after Redo
}

TEST_F(UndoTest, GeometryRecordsTakeBackPositionAndSizeTogether)
{
    t_gadget *g = Draw(TOOL_BUTTON, 40, 40, 80, 24);
    enum { MIDDLE, TOP_LEFT_BOX, RIGHT_BOX };
    struct {
        const char *label;
        int where;  // of the press
        i16 dx, dy;
    } const cases[] = {
        {UNDO_LABEL_MOVE, MIDDLE, 30, 20},
        {UNDO_LABEL_RESIZE, TOP_LEFT_BOX, -10, -10},
        {UNDO_LABEL_RESIZE, RIGHT_BOX, 25, 0},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.label);
        UserClick(MidX(g), MidY(g), 1);  // selected and current: the handles show
        const T_GEOM before = Geom(g);
        i16 px = c.where == MIDDLE         ? MidX(g)
                 : c.where == TOP_LEFT_BOX ? (i16)(g->screen_x - 3)
                                           : (i16)(g->screen_x + g->base_width + 3);
        i16 py = c.where == TOP_LEFT_BOX ? (i16)(g->screen_y - 3) : MidY(g);
        Drag(px, py, (i16)(px + c.dx), (i16)(py + c.dy));
        CHECK_PAGE();
        EXPECT_STREQ(UndoLabel(), c.label);
        const T_GEOM after = Geom(g);
        EXPECT_NE(after, before);
        Command(COMMAND_UNDO);
        CHECK_PAGE();
        EXPECT_EQ(Geom(g), before);
        EXPECT_EQ(gadgets->current_gadget, nullptr);
        Command(COMMAND_REDO);
        CHECK_PAGE();
        EXPECT_EQ(Geom(g), after);
    }
}

TEST_F(UndoTest, RecordsOfADeletedGadgetDoNothing)
{
    t_gadget *a = Draw(TOOL_BUTTON, 40, 40, 80, 24);
    t_gadget *b = Make(TOOL_BUTTON, 40, 120, 80, 24);  // made outside the history
    ClearAllMarkedGadgets(a);
    Drag(MidX(b), MidY(b), (i16)(MidX(b) + 30), MidY(b));
    UserClick(MidX(a), MidY(a), 1);
    DeleteMarkedGadgets(page);  // a goes; the history stays
    CHECK_PAGE();
    ClearAllMarkedGadgets(b);
    Mark(b);
    DeleteMarkedGadgets(page);  // b goes too
    CHECK_PAGE();
    // A new gadget may take a freed address; no record may take it for the old one.
    t_gadget *c = Make(TOOL_BUTTON, 200, 200, 50, 20);
    const T_GEOM made = Geom(c);
    const u32 records = Records();
    for (u32 command : {COMMAND_UNDO, COMMAND_REDO}) {
        for (u32 i = 0; i < records; i++) {
            Command(command);
            CHECK_PAGE();
        }
        EXPECT_EQ(Count(), 1u);
        EXPECT_EQ(Geom(c), made);
    }
}
