// Open menus at work: titles opened by click and by Alt+letter, keys in them and picks, closing,
// and context menus.
#include "menus/menu_fixture.h"

class MenuInputTest : public ToolkitTest
{
  protected:
    T_MENU_HANDLER *handler = nullptr;
    t_Menu *file = nullptr;

    void SetUp() override
    {
        ToolkitTest::SetUp();
        handler = BuildSampleMenus(owner);
        file = FindMenuInHandler(handler, SAMPLE_FILE);
        Turn();
    }

    void ClickTitle(u32 item_code)
    {
        i16 x, y;
        TitleCentre(handler, FindMenuInHandler(handler, item_code), &x, &y);
        Click(x, y);
    }

    // The one pick that came, or 0; a pick comes after every menu has closed.
    u32 Picked()
    {
        std::vector<T_SPY_MESSAGE> picks = MessagesOf(ACT_MENU_PICK);
        if (picks.empty())
            return 0;
        EXPECT_EQ(picks.size(), 1u);
        EXPECT_EQ(picks[0].popups_open, 0u);
        t_Menu *entry = (t_Menu *)picks[0].data;
        EXPECT_NE(entry, nullptr);
        if (entry) {
            EXPECT_EQ(entry->menu_item_code, picks[0].item_code);
        }
        return picks[0].item_code;
    }
};

TEST_F(MenuInputTest, OpeningATitleTellsTheOwnerBeforeTheMenuShows)
{
    //  how                      title         Alt letter
    const struct {
        const char *how;
        u32 title;
        u16 letter;
    } rows[] = {
        {"click on File", SAMPLE_FILE, 0},
        {"click on Layout", SAMPLE_LAYOUT, 0},
        {"Alt+F", SAMPLE_FILE, 'f'},
        {"Alt+E", SAMPLE_EDIT, 'e'},
    };
    for (const auto &row : rows) {
        spy_messages.clear();
        if (row.letter)
            Key(row.letter, QUAL_ALT);
        else
            ClickTitle(row.title);
        std::vector<T_SPY_MESSAGE> opens = MessagesOf(ACT_MENU_OPEN);
        ASSERT_EQ(opens.size(), 1u) << row.how;
        EXPECT_EQ(opens[0].item_code, row.title) << row.how;
        EXPECT_EQ(opens[0].popups_open, 0u) << row.how;
        EXPECT_EQ(OpenPopups(), 1u) << row.how;
        EXPECT_EQ(handler->open_title, FindMenuInHandler(handler, row.title)) << row.how;
        Key(KEY_ESCAPE);
        EXPECT_EQ(OpenPopups(), 0u) << row.how;
        EXPECT_EQ(handler->open_title, nullptr) << row.how;
    }
}

TEST_F(MenuInputTest, KeysMoveThroughOpenMenusAndPick)
{
    typedef struct {
        u16 key, qualifiers;
    } T_PRESS;
    //  what                                          greyed        keys                                       picked
    const struct {
        const char *what;
        u32 grey;
        std::vector<T_PRESS> keys;
        u32 picked;
    } rows[] = {
        {"Enter picks the first entry", 0, {{'f', QUAL_ALT}, {KEY_RETURN, 0}}, SAMPLE_OPEN},
        {"Down passes greyed entries and separators",
         SAMPLE_CLOSE,
         {{'f', QUAL_ALT}, {KEY_DOWN, 0}, {KEY_RETURN, 0}},
         SAMPLE_SAVE},
        {"Up goes round to the last", 0, {{'f', QUAL_ALT}, {KEY_UP, 0}, {KEY_RETURN, 0}}, SAMPLE_EXIT},
        {"a letter picks its entry", 0, {{'f', QUAL_ALT}, {'s', 0}}, SAMPLE_SAVE},
        {"letters are case-insensitive", 0, {{'f', QUAL_ALT}, {'X', 0}}, SAMPLE_EXIT},
        {"a greyed entry's letter picks nothing", SAMPLE_CLOSE, {{'f', QUAL_ALT}, {'c', 0}}, 0},
        {"the first highlight passes a greyed entry", SAMPLE_OPEN, {{'f', QUAL_ALT}, {KEY_RETURN, 0}}, SAMPLE_CLOSE},
        {"a sub-menu's letter opens it", 0, {{'f', QUAL_ALT}, {'r', 0}, {KEY_DOWN, 0}, {KEY_RETURN, 0}}, SAMPLE_TWO},
        {"Right opens the highlighted sub-menu",
         0,
         {{'f', QUAL_ALT}, {KEY_UP, 0}, {KEY_UP, 0}, {KEY_RIGHT, 0}, {KEY_RETURN, 0}},
         SAMPLE_ONE},
        {"Left leaves a sub-menu only",
         0,
         {{'f', QUAL_ALT}, {'r', 0}, {KEY_LEFT, 0}, {KEY_DOWN, 0}, {KEY_RETURN, 0}},
         SAMPLE_EXIT},
        {"Right on an entry moves to the next title",
         0,
         {{'f', QUAL_ALT}, {KEY_RIGHT, 0}, {KEY_RETURN, 0}},
         SAMPLE_UNDO},
        {"Left from the first title goes round", 0, {{'f', QUAL_ALT}, {KEY_LEFT, 0}, {KEY_RETURN, 0}}, SAMPLE_CENTRE},
        {"Alt+E again reaches the next title with E",
         0,
         {{'e', QUAL_ALT}, {'e', QUAL_ALT}, {KEY_RETURN, 0}},
         SAMPLE_CENTRE},
        {"Escape closes without a pick", 0, {{'f', QUAL_ALT}, {KEY_ESCAPE, 0}}, 0},
    };
    for (const auto &row : rows) {
        SetAllMenuItemFlags(file, MENU_FLAG_GREY, 0);
        if (row.grey)
            FindMenuByItemCode(file, row.grey)->menu_flags |= MENU_FLAG_GREY;
        spy_messages.clear();
        for (const T_PRESS &press : row.keys)
            Key(press.key, press.qualifiers);
        EXPECT_EQ(Picked(), row.picked) << row.what;
        if (row.picked) {
            EXPECT_EQ(OpenPopups(), 0u) << row.what;
        }
        CloseOpenMenus();
    }
}

TEST_F(MenuInputTest, PressesOutsideCloseOrSwitch)
{
    i16 x, y;
    ClickTitle(SAMPLE_FILE);
    Click(700, 550);  // the desktop
    EXPECT_EQ(OpenPopups(), 0u);
    EXPECT_EQ(Picked(), 0u);

    ClickTitle(SAMPLE_FILE);
    Click((i16)(owner->user_x + 200), (i16)(owner->user_y + 200));  // the owner's user area
    EXPECT_EQ(OpenPopups(), 0u);

    ClickTitle(SAMPLE_FILE);
    ClickTitle(SAMPLE_FILE);  // the open title again
    EXPECT_EQ(OpenPopups(), 0u);

    ClickTitle(SAMPLE_FILE);
    spy_messages.clear();
    TitleCentre(handler, FindMenuInHandler(handler, SAMPLE_EDIT), &x, &y);
    // another title of the bar, pressed without the pointer passing over it first
    PushEvent(INPUT_MOUSE_DOWN, x, y, 1);
    TurnUntilTaken();
    PushEvent(INPUT_MOUSE_UP, x, y, 1);
    TurnUntilTaken();
    EXPECT_EQ(OpenPopups(), 1u);
    EXPECT_EQ(handler->open_title, FindMenuInHandler(handler, SAMPLE_EDIT));
    ASSERT_EQ(MessagesOf(ACT_MENU_OPEN).size(), 1u);
    EXPECT_EQ(MessagesOf(ACT_MENU_OPEN)[0].item_code, (u32)SAMPLE_EDIT);

    TitleCentre(handler, FindMenuInHandler(handler, SAMPLE_LAYOUT), &x, &y);
    Move(x, y);  // with a title open, the pointer alone moves along the bar
    EXPECT_EQ(handler->open_title, FindMenuInHandler(handler, SAMPLE_LAYOUT));
    EXPECT_EQ(Picked(), 0u);
}

class ContextMenuTest : public ToolkitTest
{
  protected:
    t_Menu context;

    void SetUp() override
    {
        ToolkitTest::SetUp();
        InitContextMenu(&context, "Multiple Modify");
        context.menu_item_code = 0xE000;
        t_List temporary;
        InitList(&temporary, "temporary");
        T_MENU_HANDLER *handler = CreateMenuHandler(&temporary);
        T_MENUOBJECTINIT init;
        memset(&init, 0, sizeof(init));
        init.parent_list = &context.items;
        init.kind = MENU_KIND_ENTRY;
        const char *labels[] = {"Cut", "Copy", "Paste"};
        for (u32 i = 0; i < 3; i++) {
            init.item_code = 0xE001 + i;
            init.shortcut = (u8)labels[i][0];
            CreateObject(&handler->head, labels[i], &init);
        }
        DelHandler(&handler->head);
    }

    void TearDown() override
    {
        CloseOpenMenus();
        EmptyList(&context.items, sizeof(t_Menu));
        ToolkitTest::TearDown();
    }
};

TEST_F(ContextMenuTest, OpeningTellsTheWindowOnlyWhenTheMenuAsks)
{
    //  flags                   told
    const struct {
        u16 flags;
        int told;
    } rows[] = {{MENU_FLAG_NOTIFY_OPEN, 1}, {0, 0}};
    for (const auto &row : rows) {
        context.menu_flags = row.flags;
        spy_messages.clear();
        EXPECT_NE(OpenDetachedMenu(owner, &context, 100, 100), nullptr);
        std::vector<T_SPY_MESSAGE> opens = MessagesOf(ACT_MENU_OPEN);
        ASSERT_EQ(opens.size(), (size_t)row.told);
        if (row.told) {
            EXPECT_EQ(opens[0].item_code, 0xE000u);
            EXPECT_EQ(opens[0].popups_open, 0u);
        }
        EXPECT_EQ(OpenPopups(), 1u);
        CloseOpenMenus();
    }
}
