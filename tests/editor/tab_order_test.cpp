// Tab-order mode: numbering on entering, clicks that renumber, and Escape that turns the numbers
// into links.
#include "tests/editor/editor_fixture.h"

#define TAB_FIRST_BIT 0x80000000u

class TabOrderTest : public PageTest
{
  protected:
    t_gadget *g[5] = {};

    void SetUp() override
    {
        PageTest::SetUp();
        for (int i = 0; i < 5; i++)
            g[i] = Make(TOOL_BUTTON, 20, (i16)(20 + 40 * i), 60, 20);
        ClearAllMarkedGadgets(g[0]);
    }
};

TEST_F(TabOrderTest, EnteringNumbersTheGadgetsWithoutANumber)
{
    struct {
        u32 before[5];
        u32 after[5];
    } const cases[] = {
        {{1, 0, 0, 7, 0}, {1, 2, 3, 7, 8}},
        {{0, 0, 0, 0, 0}, {1, 2, 3, 4, 5}},
        {{3, 0, 1, 0, 2}, {3, 4, 1, 2, 2}},
    };
    for (const auto &c : cases) {
        for (int i = 0; i < 5; i++)
            g[i]->tab_index = c.before[i];
        record->tab_next = 9;
        Command(COMMAND_TAB_ORDER);
        EXPECT_TRUE(record->edit_state & EDIT_TAB_ORDER);
        EXPECT_EQ(record->tab_next, 1);
        for (int i = 0; i < 5; i++)
            EXPECT_EQ(g[i]->tab_index, c.after[i]) << i;
        CHECK_PAGE();
    }
}

TEST_F(TabOrderTest, ClicksRenumberAndEscapeMakesTheLinks)
{
    Command(COMMAND_TAB_ORDER);
    // Left presses number in click order, from 1.
    const int order[5] = {4, 2, 0, 1, 3};
    for (int i : order) {
        UserClick(MidX(g[i]), MidY(g[i]), 1);
        CHECK_PAGE();
    }
    for (int i = 0; i < 5; i++)
        EXPECT_EQ(g[order[i]]->tab_index, (u32)(i + 1));
    EXPECT_EQ(record->tab_next, 6);
    // A right press takes the order up from a gadget's number; the next left press gives it again.
    UserClick(MidX(g[2]), MidY(g[2]), 3);
    CloseOpenMenus();  // the right release opened the gadget's menu
    EXPECT_EQ(record->tab_next, 2);
    UserClick(MidX(g[3]), MidY(g[3]), 1);
    EXPECT_EQ(g[3]->tab_index, 2u);
    EXPECT_EQ(g[2]->tab_index, 2u);
    EXPECT_EQ(record->tab_next, 3);
    // Clicks neither drag nor select, and don't make the page modified.
    EXPECT_EQ(CountMarkedGadgets(g[0]), 0u);
    EXPECT_EQ(Records(), 0u);
    EXPECT_FALSE(Modified());
    // Renumber 5 to 1 down the row, then leave: the links make one ring in the order of the
    // numbers, each linking back, and the gadget numbered 1 is flagged first.
    for (int i = 0; i < 5; i++)
        g[i]->tab_index = (u32)(5 - i);
    UserKey(KEY_ESCAPE, 0);
    EXPECT_FALSE(record->edit_state & EDIT_TAB_ORDER);
    for (int i = 0; i < 5; i++) {
        EXPECT_EQ(g[i]->tab[1], g[(i + 4) % 5]->item_code) << i;
        EXPECT_EQ(g[i]->tab[0] & ~TAB_FIRST_BIT, g[(i + 1) % 5]->item_code) << i;
        EXPECT_EQ((g[i]->tab[0] & TAB_FIRST_BIT) != 0, i == 4) << i;
    }
    CHECK_PAGE();
}
