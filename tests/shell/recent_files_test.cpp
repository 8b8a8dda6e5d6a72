// Recent files in the File menu: newest first, no duplicates, at most six, the same after a
// restart; an entry whose file has gone; and files dropped on the main window.
#include <stdio.h>

#include <algorithm>

#include "tests/shell/shell_fixture.h"

class RecentFilesTest : public ShellTest
{
  protected:
    std::string folder;

    void SetUp() override
    {
        ShellTest::SetUp();
        folder = std::string(h.root) + "/Projects/QfFiles";
        ASSERT_TRUE(MakeEntireDirectory(folder.c_str()));
    }

    // Page files named by letter, written by saving one page under each name; the page is closed.
    void WritePageFiles(const char *letters)
    {
        t_Window *page = DrawPage(20, 100, 320, 300);
        ASSERT_NE(page, nullptr);
        DrawGadget(page, TOOL_BUTTON, 20, 20, 120, 50);
        for (const char *l = letters; *l; l++)
            SaveActivePageAs(Path(*l));
        SendWindowMessage(page, 0, ACT_TERMINATE, NULL);
        UserTurns(1);
        ASSERT_TRUE(Pages().empty());
    }
    std::string Path(char letter) { return folder + "/" + letter + ".cpp"; }
    std::vector<std::string> Paths(const char *letters)
    {
        std::vector<std::string> paths;
        for (const char *l = letters; *l; l++)
            paths.push_back(Path(*l));
        return paths;
    }
    // Opens a file as a person does: Ctrl+O, its path typed into the selector, Return.
    static void OpenBySelector(const std::string &path)
    {
        UserKey(KEY_CTRL('O'), QUAL_CONTROL);
        AnswerSelector(path.c_str());
    }
    static void Drop(const std::string &path) { DropFile(path.c_str()); }
    // Closes the error boxes that failed opens left.
    static void CloseErrorBoxes()
    {
        while (t_Window *box = FindLiveWindow(ERROR_TITLE)) {
            SendWindowMessage(box, 0, ACT_TERMINATE, NULL);
            UserTurns(1);
        }
    }
};

TEST_F(RecentFilesTest, NewestFirstWithoutDuplicatesUpToSixAndTheSameAfterARestart)
{
    WritePageFiles("abcdefg");
    //  opened  the recent list afterwards, newest first
    const struct {
        char opened;
        const char *list;
    } steps[] = {
        {'a', "a"},    {'b', "ba"},    {'c', "cba"},    {'a', "acb"},     // again: to the front
        {'d', "dacb"}, {'e', "edacb"}, {'f', "fedacb"}, {'g', "gfedac"},  // b falls off
    };
    for (const auto &step : steps) {
        SCOPED_TRACE(std::string(1, step.opened));
        OpenBySelector(Path(step.opened));
        CloseErrorBoxes();  // a file opened twice is told "already open", but enters the list
        EXPECT_EQ(RecentEntries(), Paths(step.list));
    }
    EXPECT_EQ(Pages().size(), 7u);
    // The entries stand behind "Save all", each a plain entry with item code 2.
    t_Menu *save_all = Entry(MENU_FILE, CMD_SAVE_ALL);
    t_Menu *entry = save_all->next;
    for (int i = 0; i < 6; i++, entry = entry->next) {
        EXPECT_EQ(entry->kind, MENU_KIND_ENTRY);
        EXPECT_EQ(entry->menu_item_code, (u32)ITEM_RECENT_OR_DROP);
    }
    EXPECT_EQ(entry->kind, MENU_KIND_SEPARATOR);

    PickFromMenu(MENU_FILE, CMD_CLOSE_ALL);
    ASSERT_TRUE(Pages().empty());
    PickFromMenu(MENU_FILE, CMD_EXIT);
    ASSERT_TRUE(SessionEnded());
    Restart();
    EXPECT_EQ(RecentEntries(), Paths("gfedac"));
    std::vector<std::string> labels;
    for (t_Menu *e = Entry(MENU_FILE, CMD_SAVE_ALL)->next; e->menu_item_code == ITEM_RECENT_OR_DROP; e = e->next)
        labels.push_back(e->label);
    EXPECT_EQ(labels.size(), 6u);
    EXPECT_EQ(Entry(MENU_FILE, CMD_OPEN)->label, std::string("Open")) << "the entries before are whole";
    EXPECT_EQ(Entry(MENU_FILE, CMD_EXIT)->label, std::string("Exit"));
}

// A recent entry picked from the menu: a good file opens as the active page and the folder
// becomes the last path; a file that has gone says so, and its entry stays.
TEST_F(RecentFilesTest, ARecentEntryOpensItsFileOrSaysItHasGone)
{
    WritePageFiles("ab");
    std::string sub = folder + "/sub";
    ASSERT_TRUE(MakeEntireDirectory(sub.c_str()));
    std::string gone = sub + "/gone.cpp";
    ASSERT_TRUE(WriteTextFile(gone, "gone"));
    RefreshRecentFiles(h.main_window, Path('a').c_str());
    RefreshRecentFiles(h.main_window, gone.c_str());
    remove(gone.c_str());

    //  entry      opens
    const struct {
        const char *name;
        std::string path;
        bool opens;
    } rows[] = {{"gone", gone, false}, {"good", Path('a'), true}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        size_t pages = Pages().size();
        ClickTitle(MENU_FILE);
        t_Menu *entry = NULL;
        for (t_Menu *e = (t_Menu *)Title(MENU_FILE)->items.first; e->next && !entry; e = e->next)
            if (e->menu_item_code == ITEM_RECENT_OR_DROP && ((T_RECENT_FILE *)e->user_data)->name == row.path)
                entry = e;
        ASSERT_NE(entry, nullptr);
        ClickEntryItself(0, Title(MENU_FILE), entry);
        char directory[1024];
        XGetPath(directory, row.path.c_str());
        EXPECT_STREQ(editor_config->last_path, directory);
        EXPECT_EQ(RecentEntries().front(), row.path) << "the picked file is the newest";
        if (row.opens) {
            ASSERT_EQ(Pages().size(), pages + 1);
            EXPECT_EQ(ActivePage(), Pages().back());
            EXPECT_EQ(FindLiveWindow(ERROR_TITLE), nullptr);
        } else {
            EXPECT_EQ(Pages().size(), pages);
            EXPECT_EQ(MessageBoxTextOf(ERROR_TITLE), "Could not open page in file " + row.path);
            EXPECT_EQ(RecentEntries().size(), 2u);
            CloseErrorBoxes();
        }
    }
}

// A dropped file that opens becomes a page and enters the recent list; one that fails doesn't.
// Neither changes the last path.
TEST_F(RecentFilesTest, ADroppedFileEntersTheListOnlyWhenItOpens)
{
    WritePageFiles("ab");
    std::string junk = folder + "/junk.cpp";
    ASSERT_TRUE(WriteTextFile(junk, "\x01\x02\x03 not a page"));
    std::string last_path = editor_config->last_path;
    UserMove((i16)(h.main_window->user_x + 600), (i16)(h.main_window->user_y + 400));
    //  dropped               opens  the list afterwards
    const struct {
        const char *name;
        std::string path;
        bool opens;
        std::vector<std::string> list;
    } rows[] = {
        {"missing", folder + "/missing.cpp", false, {}},
        {"not a page", junk, false, {}},
        {"a page", Path('a'), true, {Path('a')}},
        {"another page", Path('b'), true, {Path('b'), Path('a')}},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        size_t pages = Pages().size();
        Drop(row.path);
        EXPECT_EQ(Pages().size(), pages + (row.opens ? 1 : 0));
        EXPECT_EQ(FindLiveWindow(ERROR_TITLE) != NULL, !row.opens);
        EXPECT_EQ(RecentEntries(), row.list);
        EXPECT_EQ(editor_config->last_path, last_path);
        if (row.opens) {
            EXPECT_STREQ(((T_WINEDIT_HANDLER *)Pages().back()->user_data)->file_name.text, row.path.c_str());
        }
        CloseErrorBoxes();
    }
}
