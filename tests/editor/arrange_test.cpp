// Flip Horizontal, nudging with the arrow keys, and Re-order Item codes as a saved page shows it.
#include <fstream>
#include <sstream>

#include "shell/commands.h"
#include "source/source_writer.h"
#include "tests/editor/editor_fixture.h"

class ArrangeTest : public PageTest
{
  protected:
    void SetUp() override
    {
        PageTest::SetUp();
        page->state_flags &= ~WSF_MODIFIED;
    }
    // The left edge of a gadget in the user area, wherever it is placed from.
    i16 Left(const t_gadget *g) { return (i16)(g->screen_x - page->user_x); }
};

// The marked gadgets mirror inside the box that holds them all; the others stay, the marks stay,
// and each marked gadget gets one "Move gadget" record.
TEST_F(ArrangeTest, FlipMirrorsTheMarkedGadgetsInTheirBox)
{
    t_gadget *a = Make(TOOL_BUTTON, 10, 10, 40, 20);
    t_gadget *b = Make(TOOL_TEXT, 70, 40, 30, 16);
    t_gadget *c = Make(TOOL_CHECK_BOX, 200, 80, 50, 16);  // placed from the right
    c->live_flags |= GADGET_FLAGS_FROM_RIGHT;
    c->flags |= GADGET_FLAGS_FROM_RIGHT;
    RecalcUserSize(page);
    t_gadget *bystander = Make(TOOL_BUTTON, 300, 200, 20, 20);
    Mark(a);
    Mark(b);
    Mark(c);
    i16 c_left = Left(c), c_right = (i16)(c_left + 50);
    ASSERT_GT(c_right, 100);
    Command(CMD_FLIP_HORIZONTAL);
    CHECK_PAGE();
    // The box runs from 10 to c's right edge: each left edge goes where its right edge stood.
    EXPECT_EQ(Left(a), c_right - 40);
    EXPECT_EQ(Left(b), 10 + c_right - 100);
    EXPECT_EQ(Left(c), 10);
    EXPECT_EQ(a->pos_y, 10);
    EXPECT_EQ(Geom(bystander), (T_GEOM{300, 200, 20, 20}));
    EXPECT_TRUE(Marked(a) && Marked(b) && Marked(c));
    EXPECT_FALSE(Marked(bystander));
    EXPECT_EQ(Records(), 3u);
    EXPECT_STREQ(UndoLabel(), "Move gadget");
    EXPECT_TRUE(Modified());
    // A second flip puts everything back.
    Command(CMD_FLIP_HORIZONTAL);
    EXPECT_EQ(Geom(a), (T_GEOM{10, 10, 40, 20}));
    EXPECT_EQ(Geom(b), (T_GEOM{70, 40, 30, 16}));
    EXPECT_EQ(Left(c), c_left);
    // Nothing marked: nothing flips and no record comes.
    ClearAllMarkedGadgets(a);
    Command(CMD_FLIP_HORIZONTAL);
    EXPECT_EQ(Records(), 6u);
}

// The arrows move the marked gadgets 1 pixel, 8 with Shift, a record a gadget each press; with
// nothing marked, or with Control, they do what they did before.
TEST_F(ArrangeTest, ArrowKeysNudgeTheMarkedGadgets)
{
    t_gadget *a = Make(TOOL_BUTTON, 40, 40, 40, 20);
    t_gadget *b = Make(TOOL_BUTTON, 100, 40, 40, 20);
    b->live_flags |= GADGET_FLAGS_FROM_BOTTOM;  // moves against the key in y, as in a drag
    b->flags |= GADGET_FLAGS_FROM_BOTTOM;
    RecalcUserSize(page);
    i16 b_top = (i16)(b->screen_y - page->user_y);
    //  key        qualifiers    marked   a moves      records added
    struct {
        u16 key, qualifiers;
        bool marked;
        i16 dx, dy;
        u32 records;
    } const cases[] = {
        {KEY_RIGHT, 0, true, 1, 0, 2},        {KEY_LEFT, QUAL_SHIFT, true, -8, 0, 2},   {KEY_DOWN, 0, true, 0, 1, 2},
        {KEY_UP, QUAL_SHIFT, true, 0, -8, 2}, {KEY_RIGHT, QUAL_CONTROL, true, 0, 0, 0}, {KEY_RIGHT, 0, false, 0, 0, 0},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(testing::Message() << c.key << "/" << c.qualifiers << (c.marked ? " marked" : ""));
        ClearAllMarkedGadgets(a);
        if (c.marked) {
            Mark(a);
            Mark(b);
        }
        T_GEOM before = Geom(a);
        i16 b_before = (i16)(b->screen_y - page->user_y);
        u32 records = Records();
        UserKey(c.key, c.qualifiers);
        CHECK_PAGE();
        EXPECT_EQ(Geom(a), (T_GEOM{(i16)(before[0] + c.dx), (i16)(before[1] + c.dy), 40, 20}));
        EXPECT_EQ(b->screen_y - page->user_y, b_before + c.dy);  // on the screen it goes the same way
        EXPECT_EQ(Records(), records + c.records);
        if (c.records) {
            EXPECT_STREQ(UndoLabel(), "Move gadget");
        }
    }
    EXPECT_EQ(b->screen_y - page->user_y, b_top - 7);
    EXPECT_TRUE(Modified());
    // The keys that a page had keep their meaning: Delete still deletes the marked gadgets.
    ClearAllMarkedGadgets(a);
    Mark(a);
    UserKey(KEY_DELETE, 0);
    EXPECT_EQ(Count(), 1u);
}

static std::string ReadText(const std::string &path)
{
    std::ifstream file(path);
    std::stringstream text;
    text << file.rdbuf();
    return text.str();
}

static std::vector<std::string> Statements(const std::string &text, const char *word)
{
    std::vector<std::string> found;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
        if (line.find(word) != std::string::npos)
            found.push_back(line);
    return found;
}

// Re-order numbers the codes from 1 in list order, groups staying at 0, and the page is modified;
// the saved file shows the new codes, and its tab links still run through the same gadgets.
TEST_F(ArrangeTest, ReorderedCodesAndTheirTabLinksAreSaved)
{
    t_gadget *g[4] = {Make(TOOL_BUTTON, 10, 10, 40, 20), Make(TOOL_GROUP, 0, 40, 200, 100),
                      Make(TOOL_CHECK_BOX, 10, 60, 60, 16), Make(TOOL_TEXT, 10, 90, 60, 16)};
    snprintf((char *)g[0]->user_data, 256, "First");
    snprintf((char *)g[2]->user_data, 256, "Third");
    snprintf((char *)g[3]->user_data, 256, "Fourth");
    SetGadgetItemCode(page, g[0], 7);
    SetGadgetItemCode(page, g[2], 12);
    SetGadgetItemCode(page, g[3], 30);
    // The tab order runs backwards: Fourth, Third, First.
    g[3]->tab_index = 1;
    g[2]->tab_index = 2;
    g[0]->tab_index = 3;
    BuildTabLinks(page);
    ASSERT_EQ(g[3]->tab[1], 12u);
    Command(CMD_REORDER_ITEM_CODES);
    CHECK_PAGE();
    EXPECT_TRUE(Modified());
    const u32 codes[] = {1, 0, 2, 3};
    for (int i = 0; i < 4; i++) {
        EXPECT_EQ(g[i]->item_code, codes[i]) << i;
        EXPECT_EQ(g[i]->live_item_code, codes[i]) << i;
    }
    // The links name the same gadgets by their new codes before any save.
    EXPECT_EQ(g[3]->tab[0], 0x80000001u);
    EXPECT_EQ(g[3]->tab[1], 2u);
    EXPECT_EQ(g[2]->tab[1], 1u);

    editor_config->flags &= ~(u32)CONFIG_TYPE_ORDER;  // the file in list order
    std::string path = std::string(harness.root) + "/reordered.cpp";
    SavePage(page, path.c_str());
    std::string text = ReadText(path);
    EXPECT_EQ(Statements(text, "gadinit.item_code="),
              (std::vector<std::string>{"\tgadinit.item_code=0x1;", "\tgadinit.item_code=0x0;",
                                        "\tgadinit.item_code=0x2;", "\tgadinit.item_code=0x3;"}));
    EXPECT_EQ(Statements(text, "\tcase 0x"),
              (std::vector<std::string>{"\tcase 0x1:\t\t/*First*/", "\tcase 0x2:\t\t/*Third*/",
                                        "\tcase 0x3:\t\t/*Fourth*/"}));
    // First (1) follows Third (2), which follows Fourth (3), the first of the order.
    EXPECT_EQ(Statements(text, "gadinit.tab[0]="),
              (std::vector<std::string>{"\tgadinit.tab[0]=0x2;", "\tgadinit.tab[0]=0x0;", "\tgadinit.tab[0]=0x3;",
                                        "\tgadinit.tab[0]=0x80000001;"}));
    EXPECT_EQ(Statements(text, "gadinit.tab[1]="),
              (std::vector<std::string>{"\tgadinit.tab[1]=0x3;", "\tgadinit.tab[1]=0x0;", "\tgadinit.tab[1]=0x1;",
                                        "\tgadinit.tab[1]=0x2;"}));
}
