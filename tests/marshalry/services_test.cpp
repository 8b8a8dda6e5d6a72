// Application services on a live headless display: commands, window places, recent-file entries.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "marshalry/toolkit_fixture.h"

static std::vector<std::pair<t_Window *, u32>> picks;
static u32 RecordPick(t_Window *window, u32 item_code, u32 msg, void *) {
    if (msg == ACT_MENU_PICK)
        picks.push_back({window, item_code});
    return 0;
}

class Services : public ToolkitTest {
  protected:
    T_APPLICATION *app = nullptr;
    t_List resources;
    T_TOOL_SETUP *setup = nullptr;
    void SetUp() override {
        ToolkitTest::SetUp();
        app = NewApplication("Quillform");
        RegisterAppCommand(app, "Save", "Save the active document", 259, KEY_CTRL('S'), 0);
        InitList(&resources, "settings");
        setup = CreateResource(&resources, "AppQuillform", 548, RESOURCE_TYPE_SETTINGS);
        picks.clear();
    }
    void TearDown() override {
        FreeApplication(app);
        RemoveResource(setup);
        ToolkitTest::TearDown();
    }
};

TEST_F(Services, ACommandWithoutAWindowGoesToTheApplicationsWindowOrTheFocusTopLevel) {
    t_Window *other = MakeWindow("Other", nullptr, {400, 10, 300, 200}, RecordPick);
    t_Window *child = MakeWindow("Dialog", other, {10, 10, 100, 80}, RecordPick);
    ISetActiveWindow(child);
    T_KEY_MSG key = {(u16)KEY_CTRL('S'), QUAL_CONTROL};
    EXPECT_EQ(ExecuteAppCommand(app, nullptr, &key), 1u);  // no window of its own yet
    EXPECT_EQ(picks, (std::vector<std::pair<t_Window *, u32>>{{other, 259}}));

    t_Window *main = MakeWindow("Quillform", nullptr, {10, 10, 300, 200}, RecordPick);
    AddToolSetupObject(setup, main, 0, 0);
    EXPECT_EQ(app->window, main);
    picks.clear();
    EXPECT_EQ(ExecuteAppCommand(app, nullptr, &key), 1u);
    EXPECT_EQ(picks, (std::vector<std::pair<t_Window *, u32>>{{main, 259}}));

    RemoveWindow(main);  // a removed window is passed over for the focus's
    picks.clear();
    EXPECT_EQ(ExecuteAppCommand(app, nullptr, &key), 1u);
    ASSERT_EQ(picks.size(), 1u);
    EXPECT_NE(picks[0].first, main);
}

TEST_F(Services, WindowPlacesAreStoredAndComeBackOnScreen) {
    t_Window *main = MakeWindow("Quillform", nullptr, {10, 10, 300, 200}, RecordPick);
    t_Window *tools = MakeWindow("qftoolbar", main, {20, 40, 60, 100}, RecordPick);
    AddToolSetupObject(setup, main, 0, 0);
    AddToolSetupObject(setup, tools, 0, 1);
    T_RPOS moved = {50, 60, 320, 240};
    ResizeWindow(main, &moved);
    StoreToolSetup(setup);
    EXPECT_EQ(ReadWhole(Path("places/AppQuillform.txt")),
              "0 50 60 320 240\n1 " + std::to_string(tools->x) + " " + std::to_string(tools->y) +
                  " 60 100\n");

    struct Case {
        const char *store;
        T_RPOS expected;
    } cases[] = {
        {"0 50 60 320 240\n", {50, 60, 320, 240}},
        {"0 700 550 320 240\n", {480, 360, 320, 240}},  // pulled back onto the 800 x 600 screen
        {"0 -100 -5 2000 240\n", {0, 0, 800, 240}},
        {"0 50 60 320\n", {10, 10, 300, 200}},  // garbage: the window stays where it is
        {"1 5 5 60 100\n", {10, 10, 300, 200}},  // nothing stored for the main window
    };
    for (const Case &c : cases) {
        // A new run: the windows of the last one are gone.
        RemoveWindow(main);
        RefreshHandlers(nullptr);
        main = MakeWindow("Quillform", nullptr, {10, 10, 300, 200}, RecordPick);
        AddToolSetupObject(setup, main, 0, 0);
        WriteWhole(Path("places/AppQuillform.txt"), c.store);
        std::string log = CaptureLog([&] {
            ReadToolConfig(setup, setup->data);
            ExecuteToolSetup(setup, GenericToolSetupHandler);
        });
        EXPECT_EQ(main->x, c.expected.x) << c.store;
        EXPECT_EQ(main->y, c.expected.y) << c.store;
        EXPECT_EQ(main->w, c.expected.w) << c.store;
        EXPECT_EQ(main->h, c.expected.h) << c.store;
        EXPECT_EQ(CountLines(log), c.store == cases[3].store ? 1 : 0) << c.store << log;
    }
    int objects = 0;
    for (t_Node *o = _MarshalryBase->tool_objects.first; o->next; o = o->next)
        objects++;
    EXPECT_EQ(objects, 1);  // the windows of earlier runs were dropped
}

TEST_F(Services, CommandEntriesAndTheApplicationsWindowByName) {
    t_Window *main = MakeWindow("Quillform", nullptr, {10, 10, 400, 300}, RecordPick);
    EXPECT_EQ(FindAppWindow("Quillform"), main);
    EXPECT_EQ(FindAppWindow("Other"), nullptr);
    T_MENU_HANDLER *handler = NewMenuHandler(main);
    T_MENUOBJECTINIT init = {};
    init.kind = MENU_KIND_TITLE;
    init.item_code = 0xF000;
    CreateObject(&handler->head, "File", &init);
    t_Menu *save = AddApplicationCmdMenu(app, handler, &init, 259);
    ASSERT_NE(save, nullptr);
    EXPECT_STREQ(save->label, "Save");
    EXPECT_EQ(save->kind, MENU_KIND_ENTRY);
    EXPECT_EQ(save->menu_item_code, 259u);
    EXPECT_EQ(save->command_key, (u32)KEY_CTRL('S'));
    EXPECT_EQ(save->application, app);
    EXPECT_EQ(init.kind, MENU_KIND_TITLE);  // the caller's record comes back as it was
    EXPECT_EQ(init.item_code, 0xF000u);
    CaptureLog([&] { EXPECT_EQ(AddApplicationCmdMenu(app, handler, &init, 999), nullptr); });
    RemoveWindow(main);
    EXPECT_EQ(FindAppWindow("Quillform"), nullptr);
}

// The labels and item codes of a menu's entries, in order.
static std::vector<std::string> Entries(t_Menu *menu) {
    std::vector<std::string> entries;
    for (t_Menu *e = (t_Menu *)menu->items.first; e->next; e = e->next)
        entries.push_back(std::string(e->label) + ":" + std::to_string(e->menu_item_code));
    return entries;
}

TEST_F(Services, RecentFilesStandAfterSaveAllAndAreReplacedEachTime) {
    t_Window *main = MakeWindow("Quillform", nullptr, {10, 10, 400, 300}, RecordPick);
    T_MENU_HANDLER *handler = NewMenuHandler(main);
    T_MENUOBJECTINIT init = {};
    init.kind = MENU_KIND_TITLE;
    init.item_code = 0xF000;
    t_Menu *file = (t_Menu *)CreateObject(&handler->head, "File", &init);
    init.kind = MENU_KIND_ENTRY;
    for (auto [label, code] : {std::pair{"Open", 256}, {"Save all", 261}, {"Exit", 262}}) {
        init.item_code = (u32)code;
        CreateObject(&handler->head, label, &init);
    }
    AddRecentFileType(app, 1, 6);
    AddRecentFile(app, "/p/a.cpp", 1);
    AddRecentFile(app, "/p/b.cpp", 1);
    AddRecentFilesToMenu(handler, file, app, 1, 2);
    EXPECT_EQ(Entries(file), (std::vector<std::string>{"Open:256", "Save all:261", "/p/b.cpp:2",
                                                       "/p/a.cpp:2", "Exit:262"}));
    t_Menu *entry = (t_Menu *)FindNodeByIndex(&file->items, 2);
    EXPECT_STREQ(((T_RECENT_FILE *)entry->user_data)->name, "/p/b.cpp");
    EXPECT_EQ(entry->parent_menu, file);

    std::string long_path = "/home/someone/projects/quillform/pages/dialogs/settings_page.cpp";
    AddRecentFile(app, long_path.c_str(), 1);
    AddRecentFile(app, "/p/a.cpp", 1);
    AddRecentFilesToMenu(handler, file, app, 1, 2);
    u64 blocks = _OstrandBase->blocks_allocated;
    AddRecentFilesToMenu(handler, file, app, 1, 2);
    EXPECT_EQ(_OstrandBase->blocks_allocated, blocks);  // the old entries went
    EXPECT_EQ(Entries(file),
              (std::vector<std::string>{"Open:256", "Save all:261", "/p/a.cpp:2",
                                        ".../dialogs/settings_page.cpp:2", "/p/b.cpp:2",
                                        "Exit:262"}));
    entry = (t_Menu *)FindNodeByIndex(&file->items, 3);
    EXPECT_EQ(((T_RECENT_FILE *)entry->user_data)->name, long_path);

    // Without a "Save all" entry the files go at the end.
    t_Menu context;
    InitContextMenu(&context, "context");
    init.parent_list = &context.items;
    init.item_code = 5;
    CreateObject(&handler->head, "First", &init);
    AddRecentFilesToMenu(handler, &context, app, 1, 2);
    EXPECT_EQ(Entries(&context).size(), 4u);
    EXPECT_EQ(Entries(&context)[0], "First:5");
    EXPECT_EQ(Entries(&context)[1], "/p/a.cpp:2");
    EXPECT_EQ(Entries(file).size(), 6u);  // the other menu keeps its entries
    EmptyList(&context.items, sizeof(t_Menu));
}
