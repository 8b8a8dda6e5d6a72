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

TEST_F(ToolkitTest, BadInitRecordsMakeNothing)
{
    t_List temporary;
    InitList(&temporary, "temporary");
    T_MENU_HANDLER *handler = CreateMenuHandler(&temporary);
    T_MENUOBJECTINIT init;
    memset(&init, 0, sizeof(init));
    init.kind = MENU_KIND_ENTRY;
    EXPECT_EQ(CreateObject(&handler->head, "No title yet", &init), nullptr);
    init.kind = 7;
    EXPECT_EQ(CreateObject(&handler->head, "Unknown kind", &init), nullptr);
    DelHandler(&handler->head);
    EXPECT_EQ(_OstrandBase->blocks_allocated, blocks_at_start + 0) << "nothing was left behind";
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

// The application relabels an entry this way and asks for the menu's width again.
static void Relabel(t_Window *window, t_Menu *menu, t_Menu *entry, const char *label)
{
    entry->label = AllocString(label, &entry->label_string);
    entry->menu_width = (u16)(GetStringWidth(entry->label) + 2 * GetActiveFontHeight());
    menu->detached_width = 0;
    SetDetachedMenuWidth(window, menu);
}

TEST_F(ToolkitTest, DetachedWidthFollowsTheWidestLabel)
{
    T_MENU_HANDLER *handler = BuildSampleMenus(owner);
    t_Menu *edit = FindMenuInHandler(handler, SAMPLE_EDIT);
    t_Menu *undo = FindMenuByItemCode(edit, SAMPLE_UNDO);
    SetDetachedMenuWidth(owner, edit);
    u16 plain = edit->detached_width;
    ASSERT_GT(plain, 0);
    SetDetachedMenuWidth(owner, edit);  // kept while it isn't 0
    EXPECT_EQ(edit->detached_width, plain);

    SetActiveFont(NULL);
    u16 before = undo->menu_width;
    Relabel(owner, edit, undo, "Undo Resize gadget");
    EXPECT_EQ(edit->detached_width, plain + (undo->menu_width - before));
    Relabel(owner, edit, undo, "Undo");
    EXPECT_EQ(edit->detached_width, plain);
}

// Builds a context menu as a page builds its own: through a temporary handler on an empty list.
static void BuildContextMenu(t_Menu *context)
{
    InitContextMenu(context, "WindowBase");
    t_List temporary;
    InitList(&temporary, "temporary");
    T_MENU_HANDLER *handler = CreateMenuHandler(&temporary);
    T_MENUOBJECTINIT init;
    memset(&init, 0, sizeof(init));
    init.parent_list = &context->items;
    init.kind = MENU_KIND_ENTRY;
    init.item_code = 0xF001;
    CreateObject(&handler->head, "Resize to contents", &init);
    init.kind = MENU_KIND_SEPARATOR;
    CreateObject(&handler->head, "", &init);
    init.kind = MENU_KIND_ENTRY;
    init.item_code = 0xF002;
    CreateObject(&handler->head, "Window Properties", &init);
    DelHandler(&handler->head);
    EXPECT_TRUE(LIST_EMPTY(&temporary));
}

TEST_F(ToolkitTest, AContextMenuBuiltThroughATemporaryHandlerIsFreedByEmptyList)
{
    t_Menu context;
    BuildContextMenu(&context);  // measuring caches the labels' glyphs
    EmptyList(&context.items, sizeof(t_Menu));
    u64 blocks = _OstrandBase->blocks_allocated;
    BuildContextMenu(&context);
    EXPECT_EQ(Labels(&context), (std::vector<std::string>{"Resize to contents", "", "Window Properties"}));
    EXPECT_EQ(FindMenuByItemCode(&context, 0xF002)->parent_menu, nullptr);
    EmptyList(&context.items, sizeof(t_Menu));
    EXPECT_EQ(_OstrandBase->blocks_allocated, blocks);
    EXPECT_EQ(_OstrandBase->size_mismatches, 0u);
}

TEST_F(ToolkitTest, RemovingEntriesFreesThemWithTheirSubEntries)
{
    DelHandler(&BuildSampleMenus(owner)->head);  // measuring caches the labels' glyphs
    u64 blocks = _OstrandBase->blocks_allocated;
    T_MENU_HANDLER *handler = BuildSampleMenus(owner);
    u64 with_menus = _OstrandBase->blocks_allocated;
    t_Menu *file = FindMenuInHandler(handler, SAMPLE_FILE);
    t_Menu *recent = FindMenuByItemCode(file, SAMPLE_RECENT);
    AllocString("Recent files", &recent->label_string);  // a label given later goes too
    RemoveObject(&handler->head, recent);
    EXPECT_EQ(FindMenuByItemCode(file, SAMPLE_ONE), nullptr);
    EXPECT_EQ(_OstrandBase->blocks_allocated, with_menus - 3);

    RemoveObject(&handler->head, FindMenuInHandler(handler, SAMPLE_LAYOUT));
    EXPECT_EQ(handler->last_title, FindMenuInHandler(handler, SAMPLE_EDIT));

    DelHandler(&handler->head);  // the titles go with the handler
    EXPECT_EQ(_OstrandBase->blocks_allocated, blocks);
    EXPECT_EQ(_OstrandBase->size_mismatches, 0u);
}

TEST_F(ToolkitTest, TheBarStandsBetweenTitleBarAndUserArea)
{
    i16 user_y = owner->user_y, user_h = owner->user_h;
    EXPECT_EQ(MenuBarHeight(owner), 0);
    T_MENU_HANDLER *handler = NewMenuHandler(owner);
    i16 bar = MenuBarHeight(owner);
    EXPECT_EQ(bar, GetFontHeight(DISPLAY_RECORD->system_font) + MENU_BAR_HEIGHT_EXTRA);
    EXPECT_EQ(owner->user_y, user_y + bar);
    EXPECT_EQ(owner->user_h, user_h - bar);
    T_RPOS rect;
    ASSERT_TRUE(MenuBarRect(owner, &rect));
    EXPECT_EQ(rect.y, user_y);
    EXPECT_EQ(rect.y + rect.h, owner->user_y);
    DelHandler(&handler->head);
}
