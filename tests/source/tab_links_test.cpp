// Tab links worked out from tab_index, and the type order of a save.
#include "source_fixture.h"

namespace
{

struct MEMBER {
    u32 item_code;
    u32 tab_index;
    u32 tab0, tab1;  // expected links
};

struct TAB_CASE {
    const char *label;
    std::vector<MEMBER> gadgets;  // in list order
};

TEST_F(SourceTest, TabLinksTable)
{
    const u32 first = TAB_LINK_FIRST;
    const TAB_CASE cases[] = {
        {"a ring", {{10, 3, 30, 20}, {20, 1, first | 10, 30}, {30, 2, 20, 10}}},
        {"duplicates: the first in list order is found", {{1, 1, first | 2, 2}, {2, 2, 1, 1}, {3, 2, 1, 1}}},
        {"a single member", {{5, 1, 0, 0}, {0, 1, 0, 0}}},
        {"1, 2 and 5", {{1, 1, first | 3, 2}, {2, 2, 1, 1}, {3, 5, 3, 1}}},
        {"an index 0", {{1, 1, first | 2, 2}, {2, 2, 1, 1}, {7, 0, 2, 1}}},
        {"no index 1", {{1, 2, 2, 2}, {2, 3, 1, 0}}},
        {"item code 0 takes no part", {{0, 2, 0, 0}, {4, 1, first | 6, 6}, {6, 2, 4, 4}}},
    };
    for (const TAB_CASE &c : cases) {
        SCOPED_TRACE(c.label);
        std::vector<T_TEST_GADGET> rows;
        for (const MEMBER &m : c.gadgets)
            rows.push_back(
                {.type = GADGET_TYPE_BUTTON, .text = "g", .item_code = m.item_code, .tab_index = m.tab_index});
        t_Window *window = MakePage({.name = "Tabs"}, rows);
        ASSERT_TRUE(window);
        // Stale links must be replaced, not kept.
        for (t_gadget *g : Gadgets(window))
            g->tab[0] = g->tab[1] = 0xdead;
        BuildTabLinks(window);
        std::vector<t_gadget *> gadgets = Gadgets(window);
        ASSERT_EQ(gadgets.size(), c.gadgets.size());
        for (size_t i = 0; i < gadgets.size(); i++) {
            EXPECT_EQ(gadgets[i]->tab[0], c.gadgets[i].tab0) << "gadget " << i;
            EXPECT_EQ(gadgets[i]->tab[1], c.gadgets[i].tab1) << "gadget " << i;
        }
        RemoveWindow(window);
    }
}

// The gadget list in type order after the save (higher type first, list order among equals),
// with the node priorities set; the file's cases and blocks follow that order.
TEST_F(SourceTest, TypeOrderOnAndOff)
{
    const std::vector<T_TEST_GADGET> rows = {
        {.type = GADGET_TYPE_BUTTON, .text = "button A", .item_code = 1},
        {.type = GADGET_TYPE_SLIDER, .text = "slider", .item_code = 2},
        {.type = GADGET_TYPE_STRING, .text = "string", .item_code = 3},
        {.type = GADGET_TYPE_BUTTON, .text = "button B", .item_code = 4},
        {.type = GADGET_TYPE_TEXT, .text = "text", .item_code = 5},
    };
    struct ORDER_CASE {
        u32 settings;
        std::vector<std::string> names;
    } cases[] = {
        {CONFIG_OPTIMISE, {"button A", "slider", "string", "button B", "text"}},
        {CONFIG_OPTIMISE | CONFIG_TYPE_ORDER, {"string", "text", "slider", "button A", "button B"}},
    };
    for (const ORDER_CASE &c : cases) {
        SCOPED_TRACE(c.settings);
        t_Window *window = MakePage({.name = "Order"}, rows);
        std::string text = SaveAndRead(window, c.settings);
        std::vector<std::string> names, created, cases_written;
        for (t_gadget *g : Gadgets(window)) {
            names.push_back(g->name);
            if (c.settings & CONFIG_TYPE_ORDER) {
                EXPECT_EQ(g->priority, (i16)g->type) << g->name;
            }
        }
        EXPECT_EQ(names, c.names);
        for (const std::string &name : c.names) {
            created.push_back("\tgad=CreateGadget(\"" + name + "\");");
            cases_written.push_back("/*" + name + "*/");
        }
        EXPECT_EQ(LinesWith(text, "CreateGadget("), created);
        std::vector<std::string> case_lines = LinesWith(text, "\tcase 0x");
        ASSERT_EQ(case_lines.size(), c.names.size());
        for (size_t i = 0; i < case_lines.size(); i++)
            EXPECT_NE(case_lines[i].find(cases_written[i]), std::string::npos);
        RemoveWindow(window);
    }
}

TEST_F(SourceTest, TypeOrderOnAnEmptyList)
{
    t_Window *window = MakePage({.name = "Nothing"}, {});
    std::string text = SaveAndRead(window, CONFIG_OPTIMISE | CONFIG_TYPE_ORDER);
    EXPECT_TRUE(LIST_EMPTY(&FindGadgetHandler(window)->gadget_list));
    EXPECT_NE(text.find("\tgh=(T_GADGET_HANDLER *)NewGadgetHandler(win);\n"
                        "/*Quillform: END_OBJECT: WINDOW */\n\treturn(win);\n"),
              std::string::npos);
}

}  // namespace
