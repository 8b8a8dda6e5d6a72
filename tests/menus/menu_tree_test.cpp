// The menu tree: entries go where the init record says and are found by item code.
#include "menus/menu_fixture.h"

static std::vector<std::string> Labels(t_Menu *menu)
{
    std::vector<std::string> labels;
    for (t_Menu *entry = (t_Menu *)menu->items.first; entry->next; entry = entry->next)
        labels.push_back(entry->label);
    return labels;
}

TEST_F(ToolkitTest, EntriesGoWhereTheInitRecordSaysAndAreFoundByItemCode)
{
    T_MENU_HANDLER *handler = BuildSampleMenus(owner);
    t_Menu *file = FindMenuInHandler(handler, SAMPLE_FILE);
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(Labels(file), (std::vector<std::string>{"Open", "Close", "", "Save", "Recent", "", "Exit"}));
    EXPECT_EQ(handler->last_title, FindMenuInHandler(handler, SAMPLE_LAYOUT));

    //  searched from  item code      label     holder
    const struct {
        u32 title, item_code;
        const char *label;
        u32 holder;
    } rows[] = {
        {SAMPLE_FILE, SAMPLE_OPEN, "Open", SAMPLE_FILE},
        {SAMPLE_FILE, SAMPLE_EXIT, "Exit", SAMPLE_FILE},  // after the sub-menu: back in the title
        {SAMPLE_FILE, SAMPLE_RECENT, "Recent", SAMPLE_FILE},
        {SAMPLE_FILE, SAMPLE_TWO, "Two", SAMPLE_RECENT},  // inside the sub-menu
        {SAMPLE_EDIT, SAMPLE_REDO, "Redo", SAMPLE_EDIT},
        {SAMPLE_LAYOUT, SAMPLE_CENTRE, "Centre", SAMPLE_LAYOUT},
    };
    for (const auto &row : rows) {
        t_Menu *entry = FindMenuByItemCode(FindMenuInHandler(handler, row.title), row.item_code);
        ASSERT_NE(entry, nullptr) << row.label;
        EXPECT_STREQ(entry->label, row.label);
        ASSERT_NE(entry->parent_menu, nullptr) << row.label;
        EXPECT_EQ(entry->parent_menu->menu_item_code, row.holder) << row.label;
    }
    EXPECT_EQ(FindMenuByItemCode(file, SAMPLE_UNDO), nullptr);    // in another title
    EXPECT_EQ(FindMenuByItemCode(file, 0), nullptr);              // separators are not entries
    EXPECT_EQ(FindMenuInHandler(handler, SAMPLE_OPEN), nullptr);  // only titles
    EXPECT_EQ(FindMenuHandler(owner), handler);
}
