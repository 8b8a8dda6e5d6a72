// Closing a page: the query on a modified page, its three answers with and without a file, the
// "Save Source as" selector that a yes may open, and the name that a save as gives the file.
#include "pagewin_fixture.h"

namespace
{

struct CLOSE_ROW {
    const char *what;
    int modified;
    int with_file;
    u32 session_before;
    const char *answer;
    int query;  // a query was asked
    int stays_open;
    int file_written;
    int save_as_selector;  // a "Save Source as" selector is up afterwards
    u32 session_after;
};

// clang-format off
const CLOSE_ROW close_rows[] = {
    // what                              mod file session          answer         query open file sel session
    {"clean page, no file",    0, 0, SESSION_RUNNING, "",            0, 0, 0, 0, SESSION_RUNNING},
    {"clean page with a file", 0, 1, SESSION_RUNNING, "",            0, 0, 0, 0, SESSION_RUNNING},
    {"yes with a file",        1, 1, SESSION_RUNNING, ANSWER_YES,    1, 0, 1, 0, SESSION_RUNNING},
    {"yes without a file",     1, 0, SESSION_RUNNING, ANSWER_YES,    1, 1, 0, 1, SESSION_RUNNING},
    {"no with a file",         1, 1, SESSION_RUNNING, ANSWER_NO,     1, 0, 0, 0, SESSION_RUNNING},
    {"no without a file",      1, 0, SESSION_RUNNING, ANSWER_NO,     1, 0, 0, 0, SESSION_RUNNING},
    {"cancel with a file",     1, 1, SESSION_RUNNING, ANSWER_CANCEL, 1, 1, 0, 0, SESSION_RUNNING},
    {"cancel without a file",  1, 0, SESSION_RUNNING, ANSWER_CANCEL, 1, 1, 0, 0, SESSION_RUNNING},
    {"cancel during an exit",  1, 0, SESSION_ENDING,  ANSWER_CANCEL, 1, 1, 0, 0, SESSION_CANCELLED},
    {"no during an exit",      1, 1, SESSION_ENDING,  ANSWER_NO,     1, 0, 0, 0, SESSION_ENDING},
};
// clang-format on

class CloseQuery : public PageWindowTest
{
  protected:
    // A page of its own for a row, the active one, with a file of its own when asked.
    t_Window *RowPage(const CLOSE_ROW &row, const std::string &file)
    {
        t_Window *p = CreatePageWindow(harness.main_window, (char *)"Row page", 0x7C, 480, 40, 880, 340);
        T_WINEDIT_HANDLER *r = (T_WINEDIT_HANDLER *)p->user_data;
        if (row.with_file) {  // the file as it was last saved
            std::ofstream(file) << "// the page as it was\n";
            AllocString(file.c_str(), &r->file_name);
            r->saved = 1;
        }
        if (row.modified)
            p->state_flags |= WSF_MODIFIED;
        SetActivePage(p, p);
        ISetActiveWindow(p);
        UserTurns(1);
        return p;
    }
};

TEST_F(CloseQuery, EachAnswerWithAndWithoutAFile)
{
    for (const CLOSE_ROW &row : close_rows) {
        SCOPED_TRACE(row.what);
        std::string file = Root() + "/row_page.cpp";
        std::filesystem::remove(file);
        t_Window *p = RowPage(row, file);
        T_WINEDIT_HANDLER *r = (T_WINEDIT_HANDLER *)p->user_data;
        int pages = PageCount();
        _TenureBase->session_state = row.session_before;

        Close(p, row.answer);

        EXPECT_EQ(watch.query_seen, row.query);
        EXPECT_EQ(watch.wait_ended, row.stays_open);  // the close kept waiting on an open page
        if (row.query) {
            EXPECT_EQ(watch.buttons, "Yes|No|Cancel");  // the question style
            EXPECT_EQ(watch.text, "The Page 'Row page' has not been saved, save before closing ?");
        }
        bool written = ReadText(file).find("T_WINDOW *OpenRowpageWindow()") != std::string::npos;
        EXPECT_EQ(written, (bool)row.file_written);
        EXPECT_EQ(_TenureBase->session_state, row.session_after);
        t_Window *selector = row.stays_open ? FindWindowByName(p, TXT_SAVE_AS_TITLE) : NULL;
        EXPECT_EQ(selector != NULL, (bool)row.save_as_selector);
        if (row.stays_open) {
            EXPECT_EQ(PageCount(), pages);
            EXPECT_TRUE(IsWindowLive(p));
            EXPECT_TRUE(p->state_flags & WSF_MODIFIED);
            EXPECT_EQ(r->close_after_save, row.save_as_selector);
            EXPECT_EQ(Main()->active_page, p);
            if (selector)
                RemoveWindow(selector);
            RemovePage(p, 1);
        } else {
            EXPECT_EQ(PageCount(), pages - 1);
            // The main window forgot the page, and the page that had the focus before took it back.
            EXPECT_EQ(Main()->active_page, page);
            EXPECT_EQ(harness.main_window->title_suffix, page->name);
        }
        _TenureBase->session_state = SESSION_RUNNING;
        UserTurns(1);
    }
}

// A yes without a file, then Cancel in the selector: the page waits, and the next save as of
// that page saves it and closes it.
TEST_F(CloseQuery, YesWithoutAFileClosesAtTheNextSaveAs)
{
    page->state_flags |= WSF_MODIFIED;
    Close(page, ANSWER_YES);
    ASSERT_TRUE(watch.wait_ended);
    ASSERT_NE(FindWindowByName(page, TXT_SAVE_AS_TITLE), nullptr);
    UserKey(KEY_ESCAPE, 0);
    EXPECT_EQ(FindWindowByName(page, TXT_SAVE_AS_TITLE), nullptr);
    EXPECT_TRUE(IsWindowLive(page));
    EXPECT_EQ(record->close_after_save, 1);
    EXPECT_EQ(record->file_name.text, nullptr);

    Command(CMD_SAVE_AS);
    ASSERT_NE(FindWindowByName(page, TXT_SAVE_AS_TITLE), nullptr);
    std::string path = Root() + "/Later";
    UserType(path.c_str());
    int pages = PageCount();
    UserKey(KEY_RETURN, 0);
    EXPECT_EQ(PageCount(), pages - 1);
    EXPECT_EQ(FindWindowByName(harness.main_window, "Test"), nullptr);
    std::string text = ReadText(path + ".cpp");
    EXPECT_NE(text.find("T_WINDOW *OpenTestWindow()"), std::string::npos);
}

struct NAME_ROW {
    const char *typed;  // below the data root
    const char *saved;
};

const NAME_ROW name_rows[] = {
    {"Alpha", "Alpha.cpp"},
    {"Beta.txt", "Beta.txt"},
    {"Gamma.cpp", "Gamma.cpp"},
    {"Delta.", "Delta."},
    {"with.dot/Epsilon", "with.dot/Epsilon.cpp"},  // a dot in the folder is no extension
};

// Save as: the name typed into the selector, with ".cpp" when it has no extension, becomes the
// page's file, its title bar's hover text and the last folder; the page is clean and stays open.
TEST_F(CloseQuery, SaveAsAddsTheExtensionOnlyWhenThereIsNone)
{
    std::filesystem::create_directories(Root() + "/with.dot");
    for (const NAME_ROW &row : name_rows) {
        SCOPED_TRACE(row.typed);
        t_Window *p = CreatePageWindow(harness.main_window, (char *)"Named", 0x7C, 480, 40, 880, 340);
        T_WINEDIT_HANDLER *r = (T_WINEDIT_HANDLER *)p->user_data;
        SetActivePage(p, p);
        ISetActiveWindow(p);
        p->state_flags |= WSF_MODIFIED;
        Command(CMD_SAVE_AS);
        ASSERT_NE(FindWindowByName(p, TXT_SAVE_AS_TITLE), nullptr);
        UserType((Root() + "/" + row.typed).c_str());
        UserKey(KEY_RETURN, 0);

        std::string expected = Root() + "/" + row.saved;
        EXPECT_TRUE(std::filesystem::exists(expected));
        ASSERT_NE(r->file_name.text, nullptr);
        EXPECT_EQ(std::string(r->file_name.text), expected);
        EXPECT_STREQ(p->hover_title, expected.c_str());
        EXPECT_EQ(r->saved, 1);
        EXPECT_FALSE(p->state_flags & WSF_MODIFIED);
        EXPECT_TRUE(IsWindowLive(p));
        std::string folder = std::filesystem::path(expected).parent_path().string();
        EXPECT_EQ(std::string(editor_config->last_path), folder);
        RemovePage(p, 1);
        UserTurns(1);
    }
}

}  // namespace
