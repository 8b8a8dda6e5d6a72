// The end of the module and the next start: the settings stored by each way of ending, the open
// documents kept in the settings' tail and reopened in order, and the exit's queries as a table.
#include <signal.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "tests/shell/shell_fixture.h"

// A nested wait that never returned would hang the suite: the watchdog fails the test instead.
static void WatchdogFired(int)
{
    static const char text[] = "\nA command did not return within the watchdog's time\n";
    ssize_t written = write(1, text, sizeof(text) - 1);
    (void)written;
    _exit(1);
}

class SessionEndTest : public ShellTest
{
  public:
    t_Window *Window() { return h.main_window; }
    std::string Folder() { return std::string(h.root) + "/Projects/QfFiles"; }
    static std::string ReadWholeText(const std::string &path)
    {
        std::ifstream in(path, std::ios::binary);
        std::ostringstream text;
        text << in.rdbuf();
        return text.str();
    }

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

// Exits as a table: the pages a person has open (c a clean page with a file, m one with a file
// and changes, w the same with its file write-protected, n a new page with changes), the answers
// they give to what comes up, and how many times they pick Exit. Nothing closes before every
// modified page has answered; a cancelled exit (or one whose save failed) keeps every page as it
// was and stores nothing; an exit that ends, ends once, storing every file once and whole.
struct EXIT_ROW {
    const char *what;
    const char *pages;
    std::vector<T_ANSWER> (*answers)(SessionEndTest *);
    int exits;  // picked from outside any wait
    bool ended;
    const char *still_modified;          // running on: for each page, 1 when it is still modified
    std::vector<const char *> reopened;  // ended: the documents of the next start, by file name
};

static T_ANSWER ExitAgain(t_Window *main_window)
{
    return {QUERY_TITLE, {}, [main_window] { SendWindowMessage(main_window, CMD_EXIT, ACT_MENU_PICK, NULL); }};
}

// clang-format off
static const EXIT_ROW exit_rows[] = {
    {"Cancel keeps every page, the clean ones too", "cmc",
     [](SessionEndTest *) { return std::vector<T_ANSWER>{AnswerCancel()}; }, 1, false, "010", {}},
    {"Exit, Cancel, Exit, No ends once", "cm",
     [](SessionEndTest *) { return std::vector<T_ANSWER>{AnswerCancel(), AnswerNo()}; }, 2, true, "", {"p0.cpp", "p1.cpp"}},
    {"Exit again while the query stands, then No", "cm",
     [](SessionEndTest *t) { return std::vector<T_ANSWER>{ExitAgain(t->Window()), AnswerNo()}; }, 1, true, "",
     {"p0.cpp", "p1.cpp"}},
    {"Yes, then Save as, inside the exit", "cn",
     [](SessionEndTest *t) { return std::vector<T_ANSWER>{AnswerYes(), AnswerSaveAs(t->Folder() + "/named.cpp")}; }, 1,
     true, "", {"p0.cpp", "named.cpp"}},
    {"No on one page and Cancel on the next keeps both changed", "mm",
     [](SessionEndTest *) { return std::vector<T_ANSWER>{AnswerNo(), AnswerCancel()}; }, 1, false, "11", {}},
    {"Yes on a page whose save fails stops the exit", "cw",
     [](SessionEndTest *) { return std::vector<T_ANSWER>{AnswerYes()}; }, 1, false, "01", {}},
    {"Cancel in the Save as of a Yes stops the exit", "nc",
     [](SessionEndTest *) {
         return std::vector<T_ANSWER>{AnswerYes(), AnswerKeys(SAVE_AS_TITLE, {KEY_ESCAPE})};
     },
     1, false, "10", {}},
    {"Ctrl+S while the exit's query stands saves the page, and the exit goes on", "m",
     [](SessionEndTest *) {
         T_ANSWER save = AnswerKeys(QUERY_TITLE, {KEY_CTRL('S')});
         save.input[0].qualifiers = QUAL_CONTROL;
         return std::vector<T_ANSWER>{save};
     },
     1, true, "", {"p0.cpp"}},
    {"clean pages go without a word", "cc", [](SessionEndTest *) { return std::vector<T_ANSWER>{}; }, 1, true, "",
     {"p0.cpp", "p1.cpp"}},
};
// clang-format on

TEST_F(SessionEndTest, ExitSequences)
{
    signal(SIGALRM, WatchdogFired);
    for (const EXIT_ROW &row : exit_rows) {
        SCOPED_TRACE(row.what);
        HarnessStop(&h, 0);
        ASSERT_TRUE(HarnessStart(&h, NULL, SCREEN_W, SCREEN_H));
        std::filesystem::create_directories(Folder());
        pages.clear();
        for (size_t i = 0; row.pages[i]; i++) {
            const char kind = row.pages[i];
            t_Window *page = DrawPage((i16)(20 + 250 * i), 100, (i16)(220 + 250 * i), 300);
            ASSERT_NE(page, nullptr);
            pages.push_back(page);
            DrawGadget(page, TOOL_BUTTON, 20, 20, 100, 50);
            if (kind != 'n')
                SaveActivePageAs(Folder() + "/p" + std::to_string(i) + ".cpp");
            if (kind == 'm' || kind == 'w')
                DrawGadget(page, TOOL_BUTTON, 20, 60, 100, 90);
            if (kind == 'w')
                chmod((Folder() + "/p" + std::to_string(i) + ".cpp").c_str(), 0444);
        }
        const std::string settings = std::string(h.root) + "/store/AppQuillform.res";
        const std::string places = std::string(h.root) + "/places/AppQuillform.txt";
        const std::string stored_before = ReadWholeText(settings);

        ExpectAnswers(h.main_window, row.answers(this));
        alarm(20);
        for (int i = 0; i < row.exits && !SessionEnded(); i++)
            SendWindowMessage(h.main_window, CMD_EXIT, ACT_MENU_PICK, NULL);
        alarm(0);
        UserTurns(1);
        EXPECT_EQ(AnswersLeft(), 0u);
        ASSERT_EQ(SessionEnded(), row.ended);
        if (!row.ended) {
            EXPECT_EQ(_TenureBase->session_state, (u32)SESSION_RUNNING);
            EXPECT_EQ(FindLiveWindow(QUERY_TITLE), nullptr);
            ASSERT_EQ(Pages().size(), pages.size()) << "a page closed in a cancelled exit";
            for (size_t i = 0; i < pages.size(); i++)
                EXPECT_EQ((pages[i]->state_flags & WSF_MODIFIED) != 0, row.still_modified[i] == '1') << i;
            EXPECT_EQ(ReadWholeText(settings), stored_before) << "a cancelled exit stored the settings";
            continue;
        }
        // The places hold both windows: stored once, by the one end.
        std::string stored_places = ReadWholeText(places);
        EXPECT_EQ(std::count(stored_places.begin(), stored_places.end(), '\n'), 2) << stored_places;
        Restart();
        std::vector<t_Window *> reopened = Pages();
        ASSERT_EQ(reopened.size(), row.reopened.size());
        for (size_t i = 0; i < reopened.size(); i++)
            EXPECT_EQ(std::string(((T_WINEDIT_HANDLER *)reopened[i]->user_data)->file_name.text),
                      Folder() + "/" + row.reopened[i]);
    }
}

// A settings dialog open through a cancelled exit goes on writing into the settings in force, which
// the next exit stores.
TEST_F(SessionEndTest, TheSettingsDialogOutlivesACancelledExit)
{
    t_Window *page = DrawPage(20, 100, 420, 400);
    ASSERT_NE(page, nullptr);
    DrawGadget(page, TOOL_BUTTON, 20, 20, 120, 50);
    UserKey(KEY_F1 + 9, 0);
    ASSERT_NE(FindLiveWindow(SETTINGS_TITLE), nullptr);
    ExpectAnswers(h.main_window, {AnswerCancel()});
    SendWindowMessage(h.main_window, CMD_EXIT, ACT_MENU_PICK, NULL);
    ASSERT_FALSE(SessionEnded());

    i16 fx, fy;
    ASSERT_TRUE(FindGadgetCentre(SETTINGS_TITLE, 50, &fx, &fy));
    UserClick(fx, fy, 1);
    UserKey(KEY_END, 0);
    UserType("/kept");
    EXPECT_STREQ(editor_config->backup_path, "Backup/kept");
    ExpectAnswers(h.main_window, {AnswerNo()});
    PickFromMenu(MENU_FILE, CMD_EXIT);
    EXPECT_TRUE(SessionEnded());
    Restart();
    EXPECT_STREQ(editor_config->backup_path, "Backup/kept");
}
