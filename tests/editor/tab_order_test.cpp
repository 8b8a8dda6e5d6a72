// Tab-order mode: numbering on entering, clicks that renumber, Escape that turns the numbers into
// links, and the number boxes drawn over the gadgets.
#include "tests/editor/editor_fixture.h"

static u32 Pixel(i16 x, i16 y)
{
    i32 width, height, pitch;
    u32 *pixels = display->pixels(&width, &height, &pitch);
    return pixels[y * pitch + x];
}

class TabOrderTest : public PageTest {
protected:
    t_gadget *g[5] = {};

    void MakeRow()
    {
        for (int i = 0; i < 5; i++)
            g[i] = Make(TOOL_BUTTON, 20, (i16)(20 + 40 * i), 60, 20);
        ClearAllMarkedGadgets(g[0]);
    }
};

TEST_F(TabOrderTest, EnteringNumbersTheGadgetsWithoutANumber)
{
    MakeRow();
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
    MakeRow();
    Command(COMMAND_TAB_ORDER);
    // Left presses number in click order, from 1.
    const int order[5] = {4, 2, 0, 1, 3};
    for (int i = 0; i < 5; i++) {
        UserClick(MidX(g[order[i]]), MidY(g[order[i]]), 1);
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
    // Renumber cleanly, then leave: the links follow the numbers.
    for (int i = 0; i < 5; i++)
        g[i]->tab_index = (u32)(5 - i);
    UserKey(KEY_ESCAPE, 0);
    EXPECT_FALSE(record->edit_state & EDIT_TAB_ORDER);
    EXPECT_EQ(CheckTabLinks(page), "");
    CHECK_PAGE();
}

TEST_F(TabOrderTest, EscapeOutsideTheModeChangesNothing)
{
    MakeRow();
    g[0]->tab_index = 1;
    g[1]->tab_index = 2;
    T_KEY_MSG escape = {KEY_ESCAPE, 0};
    EXPECT_EQ(PageInput(&record->head, HANDLER_EVENT_KEY, &escape), 1u);
    EXPECT_EQ(g[0]->tab[1], 0u);  // no links were built
    EXPECT_EQ(record->edit_state & EDIT_TAB_ORDER, 0);
}

TEST_F(TabOrderTest, DoubleClickInTheModeOpensNothingAndDragsNothing)
{
    MakeRow();
    Command(COMMAND_TAB_ORDER);
    u32 children = CountListEntries(&page->children);
    i16 x = g[2]->pos_x;
    UserDoubleClick(MidX(g[2]), MidY(g[2]));
    Drag(MidX(g[2]), MidY(g[2]), (i16)(MidX(g[2]) + 40), MidY(g[2]));
    CHECK_PAGE();
    EXPECT_EQ(CountListEntries(&page->children), children);
    EXPECT_EQ(g[2]->pos_x, x);
    EXPECT_EQ(page->mouse_move_fn, nullptr);
}

TEST_F(TabOrderTest, TheNextNumbersHolderIsHighlighted)
{
    MakeRow();
    g[4]->item_code = 0;  // without an item code: "X", never highlighted
    Command(COMMAND_TAB_ORDER);
    record->tab_next = 2;
    g[4]->tab_index = 2;
    UserTurns(1);
    T_DISPLAY_RECORD *colours = DISPLAY_RECORD;
    i16 box_bottom = (i16)(GetFontHeight(colours->system_font) + 3);
    struct {
        int gadget;
        u32 colour;
    } const cases[] = {
        {0, colours->number_back_colour},
        {1, colours->handle_colour},  // holds number 2, the next click's
        {2, colours->number_back_colour},
        {4, colours->number_back_colour},
    };
    for (const auto &c : cases)
        EXPECT_EQ(Pixel((i16)(g[c.gadget]->screen_x + 1), (i16)(g[c.gadget]->screen_y + box_bottom)), c.colour)
            << c.gadget;
}
