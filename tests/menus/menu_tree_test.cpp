// The menu tree: building it, finding entries, greying, widths, freeing, the bar's room.
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
    EXPECT_EQ(FindMenuByItemCode(file, SAMPLE_UNDO), nullptr);  // in another title
    EXPECT_EQ(FindMenuByItemCode(file, 0), nullptr);            // separators are not entries
    EXPECT_EQ(FindMenuInHandler(handler, SAMPLE_OPEN), nullptr);  // only titles
    EXPECT_EQ(FindMenuHandler(owner), handler);
}

TEST_F(ToolkitTest, GreyingReachesSubMenusAndKeepsOtherBits)
{
    T_MENU_HANDLER *handler = BuildSampleMenus(owner);
    t_Menu *file = FindMenuInHandler(handler, SAMPLE_FILE);
    t_Menu *two = FindMenuByItemCode(file, SAMPLE_TWO);
    two->menu_flags |= 0x40;
    SetAllMenuItemFlags(file, MENU_FLAG_GREY, 1);
    for (u32 code : {SAMPLE_OPEN, SAMPLE_SAVE, SAMPLE_RECENT, SAMPLE_ONE, SAMPLE_TWO, SAMPLE_EXIT})
        EXPECT_TRUE(FindMenuByItemCode(file, code)->menu_flags & MENU_FLAG_GREY) << code;
    EXPECT_FALSE(FindMenuByItemCode(FindMenuInHandler(handler, SAMPLE_EDIT), SAMPLE_UNDO)->menu_flags &
                 MENU_FLAG_GREY);
    SetAllMenuItemFlags(file, MENU_FLAG_GREY, 0);
    EXPECT_EQ(two->menu_flags, 0x40);
    EXPECT_FALSE(FindMenuByItemCode(file, SAMPLE_OPEN)->menu_flags & MENU_FLAG_GREY);
    SetAllMenuItemFlags(NULL, MENU_FLAG_GREY, 1);  // a menu that wasn't found: nothing happens
}
