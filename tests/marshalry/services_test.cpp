// Window places: stored at the end of a run and given back on the screen at the next.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "marshalry/toolkit_fixture.h"

static std::vector<std::pair<t_Window *, u32>> picks;
static u32 RecordPick(t_Window *window, u32 item_code, u32 msg, void *)
{
    if (msg == ACT_MENU_PICK)
        picks.push_back({window, item_code});
    return 0;
}

class Services : public ToolkitTest
{
  protected:
    T_APPLICATION *app = nullptr;
    t_List resources;
    T_TOOL_SETUP *setup = nullptr;
    void SetUp() override
    {
        ToolkitTest::SetUp();
        app = NewApplication("Quillform");
        RegisterAppCommand(app, "Save", "Save the active document", 259, KEY_CTRL('S'), 0);
        InitList(&resources, "settings");
        setup = CreateResource(&resources, "AppQuillform", 548, RESOURCE_TYPE_SETTINGS);
        picks.clear();
    }
    void TearDown() override
    {
        FreeApplication(app);
        RemoveResource(setup);
        ToolkitTest::TearDown();
    }
};

TEST_F(Services, WindowPlacesAreStoredAndComeBackOnScreen)
{
    t_Window *main = MakeWindow("Quillform", nullptr, {10, 10, 300, 200}, RecordPick);
    t_Window *tools = MakeWindow("qftoolbar", main, {20, 40, 60, 100}, RecordPick);
    AddToolSetupObject(setup, main, 0, 0);
    AddToolSetupObject(setup, tools, 0, 1);
    T_RPOS moved = {50, 60, 320, 240};
    ResizeWindow(main, &moved);
    StoreToolSetup(setup);
    EXPECT_EQ(ReadWhole(Path("places/AppQuillform.txt")),
              "0 50 60 320 240\n1 " + std::to_string(tools->x) + " " + std::to_string(tools->y) + " 60 100\n");

    struct Case {
        const char *store;
        T_RPOS expected;
    } cases[] = {
        {"0 50 60 320 240\n", {50, 60, 320, 240}},
        {"0 700 550 320 240\n", {480, 360, 320, 240}},  // pulled back onto the 800 x 600 screen
        {"0 -100 -5 2000 240\n", {0, 0, 800, 240}},
        {"0 50 60 320\n", {10, 10, 300, 200}},   // garbage: the window stays where it is
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
