// Page commands: centre, size to contents, delete, align and same size, and the font from the
// selector.
#include "tests/editor/editor_fixture.h"

#include "shell/menus.h"

class CommandTest : public PageTest
{
  protected:
    // Gives the page a user area of w by h.
    void SizeUserArea(i16 w, i16 h)
    {
        T_RPOS frame = {page->x, page->y, (i16)(page->w - page->user_w + w), (i16)(page->h - page->user_h + h)};
        ResizeWindow(page, &frame);
        RecalcUserSize(page);
        page->state_flags &= ~WSF_MODIFIED;
    }
};

TEST_F(CommandTest, CentringHalvesBeforeSubtracting)
{
    struct {
        u32 direction;
        i16 area, size, expected;
    } const cases[] = {
        {CENTRE_HORIZONTAL, 300, 101, 100}, {CENTRE_HORIZONTAL, 301, 101, 100}, {CENTRE_HORIZONTAL, 300, 100, 100},
        {CENTRE_VERTICAL, 200, 21, 90},     {CENTRE_VERTICAL, 201, 20, 90},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(testing::Message() << c.area << "/" << c.size);
        SizeUserArea(c.area, c.area);
        ASSERT_EQ(page->user_w, c.area);
        t_gadget *g = Make(TOOL_BUTTON, 7, 9, c.size, c.size);
        ClearAllMarkedGadgets(g);  // nothing marked: the current gadget is centred
        CentreMarkedGadgets(page, c.direction);
        CHECK_PAGE();
        if (c.direction == CENTRE_HORIZONTAL) {
            EXPECT_EQ(g->pos_x, c.expected);
            EXPECT_EQ(g->pos_y, 9);
        } else {
            EXPECT_EQ(g->pos_y, c.expected);
            EXPECT_EQ(g->pos_x, 7);
        }
        EXPECT_FALSE(Marked(g));
        EXPECT_TRUE(Modified());
        EXPECT_EQ(Records(), 0u);
        Mark(g);
        DeleteMarkedGadgets(page);
    }
    // Nothing marked and no current gadget: nothing to centre, the page stays clean.
    page->state_flags &= ~WSF_MODIFIED;
    CentreMarkedGadgets(page, CENTRE_VERTICAL);
    EXPECT_FALSE(Modified());
}

TEST_F(CommandTest, SizeToContentsFitsTheTextInTheSystemFont)
{
    T_FONT *before = GetActiveFont();
    SetActiveFont(DISPLAY_RECORD->system_font);
    SetFontStyle(0);
    i16 P = (i16)GetActiveFontHeight();
    struct {
        u16 tool;
        u32 flags;
        const char *name;
        int with_box, with_icon;
    } const cases[] = {
        {TOOL_CHECK_BOX, 0, "New Checkbox", 1, 0},        {TOOL_CHECK_BOX, GADGET_FLAGS_ICON, "New Checkbox", 1, 1},
        {TOOL_RADIO_BUTTON, 0, "New Radio button", 1, 0}, {TOOL_BUTTON, 0, "New Button", 0, 0},
        {TOOL_TEXT, GADGET_FLAGS_ICON, "New Text", 0, 1},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name);
        SetActiveFont(DISPLAY_RECORD->system_font);
        i16 text = (i16)GetStringWidth(c.name);
        t_gadget *g = Make(c.tool, 20, 20, 200, 50);
        g->live_flags |= c.flags;
        ASSERT_STREQ(g->name, c.name);
        SizeGadgetToContents(page, g);
        CHECK_PAGE();
        i16 F = (i16)(P + 2);
        EXPECT_EQ(g->base_height, F);
        EXPECT_EQ(g->base_width, text + 3 + (c.with_box ? P : 0) + (c.with_icon ? F : 0));
        Mark(g);
        DeleteMarkedGadgets(page);
    }
    SetActiveFont(before);
}

TEST_F(CommandTest, DeleteTakesTheMarkedOrTheCurrentGadget)
{
    struct {
        int mark_a, mark_b;
        int current;  // 0 none, 1 a, 2 b
        int a_stays, b_stays;
    } const cases[] = {
        {1, 0, 2, 0, 1},
        {0, 0, 2, 1, 0},  // nothing marked: the current gadget goes
        {0, 0, 0, 1, 1},  // neither: nothing goes, the page is modified all the same
        {1, 1, 0, 0, 0},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(testing::Message() << c.mark_a << c.mark_b << c.current);
        t_gadget *a = Make(TOOL_BUTTON, 20, 20, 60, 20);
        t_gadget *b = Make(TOOL_BUTTON, 20, 60, 60, 20);
        ClearAllMarkedGadgets(a);
        if (c.mark_a)
            Mark(a);
        if (c.mark_b)
            Mark(b);
        gadgets->current_gadget = c.current == 1 ? a : c.current == 2 ? b : NULL;
        page->state_flags &= ~WSF_MODIFIED;
        DeleteMarkedGadgets(page);
        CHECK_PAGE();
        EXPECT_EQ(Count(), (u32)(c.a_stays + c.b_stays));
        EXPECT_TRUE(Modified());
        EXPECT_EQ(CountMarkedGadgets(gadgets->first_gadget), 0u);
        Command(COMMAND_SELECT_ALL);
        DeleteMarkedGadgets(page);
    }
}

// Left edges, top edges and size come from the current gadget, which needn't be marked itself;
// without a current gadget nothing changes, the marks neither.
TEST_F(CommandTest, AlignAndSameSizeFollowTheCurrentGadget)
{
    t_gadget *reference = Make(TOOL_BUTTON, 50, 30, 90, 30);
    for (int operation = 0; operation < 4; operation++) {  // left edges, top edges, same size, no current
        SCOPED_TRACE(operation);
        t_gadget *a = Make(TOOL_BUTTON, 120, 100, 40, 20);
        t_gadget *b = Make(TOOL_BUTTON, 200, 160, 60, 24);
        const T_GEOM a_was = Geom(a);
        ClearAllMarkedGadgets(a);
        Mark(a);
        Mark(b);
        gadgets->current_gadget = operation < 3 ? reference : NULL;
        page->state_flags &= ~WSF_MODIFIED;
        if (operation != 1 && operation != 2)
            AlignMarkedGadgets(page, ALIGN_LEFT_EDGES);
        if (operation == 1)
            AlignMarkedGadgets(page, ALIGN_TOP_EDGES);
        if (operation >= 2)
            SameSizeMarkedGadgets(page);
        CHECK_PAGE();
        EXPECT_EQ(Geom(reference), (T_GEOM{50, 30, 90, 30}));
        EXPECT_EQ(Marked(a), operation == 3);
        EXPECT_EQ(Modified(), operation < 3);
        if (operation == 3) {
            EXPECT_EQ(Geom(a), a_was);
        }
        for (t_gadget *g : {a, b}) {
            EXPECT_EQ(g->pos_x == 50, operation == 0);
            EXPECT_EQ(g->pos_y == 30, operation == 1);
            EXPECT_EQ(g->base_width == 90 && g->base_height == 30, operation == 2);
        }
        Mark(a);
        Mark(b);
        DeleteMarkedGadgets(page);
    }
}

TEST_F(CommandTest, FontFromTheSelectorGoesToTheMarkedGadgets)
{
    t_gadget *a = Make(TOOL_BUTTON, 20, 20, 60, 20);
    t_gadget *b = Make(TOOL_BUTTON, 20, 60, 60, 20);
    t_gadget *c = Make(TOOL_BUTTON, 20, 100, 60, 20);
    T_FONTSEL_INIT init;
    memset(&init, 0, sizeof(init));
    init.parent = page;
    init.item_code = PAGE_ITEM_FONT;
    init.title = "Choose font";
    init.path = MakePathFromSystem("System\\Fonts");
    init.default_pattern = "*.*";
    init.button_text = "Open";
    t_Window *selector = NewFontSelector(&init);
    ASSERT_NE(selector, nullptr);
    T_FONTSEL *fontsel = (T_FONTSEL *)selector->user_data;
    struct {
        const char *chosen;  // "" picks nothing
        int a_gets, b_gets;
    } const cases[] = {{"", 0, 0}, {"DejaVuSans-Bold.ttf", 1, 1}};
    for (const auto &k : cases) {
        SCOPED_TRACE(k.chosen);
        snprintf(fontsel->directory, sizeof(fontsel->directory), "%s", "/usr/share/fonts/truetype/dejavu");
        snprintf(fontsel->chosen, sizeof(fontsel->chosen), "%s", k.chosen);
        ClearAllMarkedGadgets(a);
        Mark(a);
        Mark(b);
        ApplyFontToMarked(page, selector);
        CHECK_PAGE();
        EXPECT_EQ(a->font != NULL, k.a_gets);
        EXPECT_EQ(b->font != NULL, k.b_gets);
        EXPECT_EQ(c->font, nullptr);
        EXPECT_EQ(CountMarkedGadgets(a), 0u);
    }
    ASSERT_NE(a->font, nullptr);
    EXPECT_STREQ(a->font->name, "DejaVuSans-Bold.ttf");
    EXPECT_EQ(a->font, b->font);
    EXPECT_EQ(a->font->use_count, 2u);  // each gadget holds a use of its own
    RemoveWindow(selector);
}
