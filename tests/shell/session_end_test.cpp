// The end of the module and the next start: the settings stored by each way of ending, the open
// documents kept in the settings' tail and reopened in order, and an exit stopped by a query.
#include <signal.h>
#include <stdio.h>
#include <unistd.h>

#include "tests/shell/shell_fixture.h"

#define TOOL_BUTTON 12

// A nested wait that never returned would hang the suite: the watchdog fails the test instead.
static void WatchdogFired(int)
{
    static const char text[] = "\nA command did not return within the watchdog's time\n";
    ssize_t written = write(1, text, sizeof(text) - 1);
    (void)written;
    _exit(1);
}

class SessionEndTest : public ShellTest {
protected:
    // Four pages side by side; all but the second are saved as a.cpp, c.cpp and d.cpp in the
    // projects folder, and the second has never had a file.
    std::vector<std::string> files;
    std::vector<t_Window *> pages;

    void MakeFourPages()
    {
        std::string folder = std::string(h.root) + "/Projects/QfFiles";
        ASSERT_TRUE(MakeEntireDirectory(folder.c_str()));
        const char *names[] = {"a.cpp", NULL, "c.cpp", "d.cpp"};
        for (int i = 0; i < 4; i++) {
            t_Window *page = DrawPage((i16)(20 + 250 * i), 100, (i16)(220 + 250 * i), 300);
            ASSERT_NE(page, nullptr);
            pages.push_back(page);
            if (!names[i])
                continue;
            DrawGadget(page, TOOL_BUTTON, 20, 20, (i16)(100 + 10 * i), 50);
            files.push_back(folder + "/" + names[i]);
            SaveActivePageAs(files.back());
            ASSERT_STREQ(((T_WINEDIT_HANDLER *)page->user_data)->file_name.text, files.back().c_str());
            ASSERT_EQ(page->state_flags & WSF_MODIFIED, 0u);
        }
    }
};

// Each way of ending stores the settings and ends the session; the next start reads them.
TEST_F(SessionEndTest, EachWayOfEndingStoresTheSettings)
{
    const char *ways[] = {"File > Exit", "Alt+F4", "Exit command"};
    for (u32 way = 0; way < 3; way++) {
        SCOPED_TRACE(ways[way]);
        const std::string copies = "copies " + std::to_string(way);
        editor_config->flags = way;
        strcpy(editor_config->backup_path, copies.c_str());
        if (way == 0)
            PickFromMenu(MENU_FILE, CMD_EXIT);
        else if (way == 1)
            UserKey(KEY_F1 + 3, QUAL_ALT);
        else
            SendWindowMessage(h.main_window, CMD_EXIT, ACT_MENU_PICK, NULL);
        EXPECT_TRUE(SessionEnded());
        Restart();
        EXPECT_EQ(editor_config->flags, way);
        EXPECT_EQ(editor_config->backup_path, copies);
        EXPECT_EQ(editor_config->open_count, 0u);
        EXPECT_TRUE(Pages().empty());
    }
}

// Three pages with files and one without: open_count 3 and the three paths in child order, each as
// a u32 length with its NUL and the path with its NUL.
TEST_F(SessionEndTest, TheTailHoldsThePagesWithFilesInChildOrder)
{
    MakeFourPages();
    ASSERT_EQ(files.size(), 3u);
    T_EDITOR_CONFIG before;
    memcpy(&before, editor_config, EDITOR_CONFIG_SIZE);
    StoreOpenDocuments(h.main_window, editor_config, Main()->toolbar);

    const std::string tail = TailOf(files);
    EXPECT_EQ(editor_config->open_count, 3u);
    EXPECT_EQ(editor_config->size, EDITOR_CONFIG_SIZE + tail.size());
    EXPECT_EQ(std::string((const char *)editor_config + EDITOR_CONFIG_SIZE, tail.size()), tail);
    EXPECT_EQ(memcmp(&before, editor_config, 516), 0) << "the block before the size is kept";
    EXPECT_EQ(config_resource->data, editor_config);
    EXPECT_EQ(config_resource->data_size, editor_config->size);

    // Stored again with the last page left out, the tail shrinks to two.
    StoreOpenDocuments(h.main_window, editor_config, pages[3]);
    EXPECT_EQ(editor_config->open_count, 2u);
    EXPECT_EQ(std::string((const char *)editor_config + EDITOR_CONFIG_SIZE, editor_config->size - EDITOR_CONFIG_SIZE),
              TailOf({files[0], files[1]}));
}

// Exit with the four pages; the next start reopens the three with files, in order, and the last
// is the active page. No progress bar stays.
TEST_F(SessionEndTest, TheNextStartReopensThePagesInOrder)
{
    MakeFourPages();
    PickFromMenu(MENU_FILE, CMD_EXIT);
    ASSERT_TRUE(SessionEnded());
    Restart();
    std::vector<t_Window *> reopened = Pages();
    ASSERT_EQ(reopened.size(), 3u);
    for (size_t i = 0; i < reopened.size(); i++) {
        SCOPED_TRACE(files[i]);
        T_WINEDIT_HANDLER *record = (T_WINEDIT_HANDLER *)reopened[i]->user_data;
        EXPECT_STREQ(record->file_name.text, files[i].c_str());
        EXPECT_EQ(CountListEntries(&FindGadgetHandler(reopened[i])->gadget_list), 1u);
    }
    EXPECT_EQ(ActivePage(), reopened[2]);
    EXPECT_EQ(h.main_window->title_suffix, reopened[2]->name);
    EXPECT_EQ(FindLiveWindow(PROGRESS_TITLE), nullptr);
    EXPECT_EQ(editor_config->open_count, 3u) << "reopening leaves the tail as it was";
}

// With nothing to reopen the progress bar is still made and killed: no window and no block stay.
TEST_F(SessionEndTest, ReopeningNothingLeavesNoProgressBar)
{
    ASSERT_EQ(editor_config->open_count, 0u);
    UserTurns(1);
    u32 windows = LiveWindows();
    u64 blocks = _OstrandBase->blocks_allocated;
    ReopenDocuments(h.main_window);
    UserTurns(1);
    EXPECT_EQ(FindLiveWindow(PROGRESS_TITLE), nullptr);
    EXPECT_EQ(LiveWindows(), windows);
    EXPECT_EQ(_OstrandBase->blocks_allocated, blocks);
}

// A person watching the screen while a wait turns the loop: at each repaint, once the query box
// is up (or gone) as the next reaction asks, that reaction's input is queued.
typedef struct T_REACTION {
    bool query_up;
    std::vector<T_INPUT_EVENT> input;
} T_REACTION;

static std::vector<T_REACTION> reactions;

static void ReactToTheScreen(t_Handler *)
{
    if (reactions.empty() || HeadlessPending())
        return;
    if ((FindLiveWindow(QUERY_TITLE) != NULL) != reactions.front().query_up)
        return;
    for (const T_INPUT_EVENT &event : reactions.front().input)
        HeadlessPush(&event);
    reactions.erase(reactions.begin());
}

static u32 TakeNothing(t_Handler *, u32, void *)
{
    return 0;
}

static T_INPUT_EVENT Event(u16 kind, u16 key, i16 x = 0, i16 y = 0)
{
    T_INPUT_EVENT event;
    memset(&event, 0, sizeof(event));
    event.kind = kind;
    event.key = key;
    event.x = x;
    event.y = y;
    event.button = kind == INPUT_KEY_DOWN ? 0 : 1;
    return event;
}

// Exit with a modified page, and Cancel in its query: the exit stops and the application runs on.
// The query's wait turns the loop inside the Exit until the page goes; meanwhile the person
// answers Cancel, clicks the page's close gadget, and answers No (Tab, Return) to the second
// query, which ends the wait. The settings dialog, open all the while, goes on writing into the
// settings block in force, which the exit replaced.
TEST_F(SessionEndTest, ExitWithAModifiedPageAndCancelKeepsRunning)
{
    t_Window *page = DrawPage(20, 100, 420, 400);
    ASSERT_NE(page, nullptr);
    DrawGadget(page, TOOL_BUTTON, 20, 20, 120, 50);
    ASSERT_NE(page->state_flags & WSF_MODIFIED, 0u);
    UserKey(KEY_F1 + 9, 0);
    ASSERT_NE(FindLiveWindow(SETTINGS_TITLE), nullptr);
    T_EDITOR_CONFIG *block_before = editor_config;

    NewHandler(&h.main_window->handlers, TakeNothing, ReactToTheScreen, "person", -20, sizeof(t_Handler),
               h.main_window);
    const i16 x = (i16)(page->x + page->w - page->border_size - page->title_height / 2 - 1),
              y = (i16)(page->y + page->border_size + page->title_height / 2);  // its close gadget
    reactions = {
        {true, {Event(INPUT_KEY_DOWN, KEY_ESCAPE)}},
        {false, {Event(INPUT_MOUSE_MOVE, 0, x, y), Event(INPUT_MOUSE_DOWN, 0, x, y), Event(INPUT_MOUSE_UP, 0, x, y)}},
        {true, {Event(INPUT_KEY_DOWN, KEY_TAB), Event(INPUT_KEY_DOWN, KEY_RETURN)}},
    };
    signal(SIGALRM, WatchdogFired);
    alarm(20);
    SendWindowMessage(h.main_window, CMD_EXIT, ACT_MENU_PICK, NULL);
    alarm(0);
    UserTurns(1);
    EXPECT_TRUE(reactions.empty());
    EXPECT_FALSE(SessionEnded());
    EXPECT_EQ(_TenureBase->session_state, (u32)SESSION_RUNNING);
    EXPECT_TRUE(IsWindowLive(h.main_window));
    EXPECT_EQ(FindLiveWindow(QUERY_TITLE), nullptr);
    EXPECT_TRUE(Pages().empty()) << "the second query was answered No";
    EXPECT_NE(editor_config, block_before);

    i16 fx, fy;
    ASSERT_TRUE(FindGadgetCentre(SETTINGS_TITLE, 50, &fx, &fy));
    UserClick(fx, fy, 1);
    UserKey(KEY_END, 0);
    UserType("/kept");
    EXPECT_STREQ(editor_config->backup_path, "Backup/kept");

    PickFromMenu(MENU_FILE, CMD_EXIT);
    EXPECT_TRUE(SessionEnded());
    Restart();
    EXPECT_STREQ(editor_config->backup_path, "Backup/kept");
}
