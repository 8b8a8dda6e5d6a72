// Hand-written lines in a page's file: which passed-over lines count (none of a file the writer
// made), and the question before a save over the file, answered each way, once per page.
#include <filesystem>

#include "lumora/lumora_internal.h"
#include "pagewin_fixture.h"
#include "source/hand_written.h"
#include "source/open_page.h"

namespace
{

const char *const golden_pages[] = {"demo_page_full.cpp", "demo_page_optimised.cpp", "dialog_edits.cpp",
                                    "every_kind_full.cpp", "every_kind_optimised.cpp"};

std::string Golden(const char *name)
{
    std::ifstream in(std::string(QF_SOURCE_DIR) + "/tests/golden/" + name, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

// The demo page with hand-written lines: one before the MESSAGE block (line 1), one in a case of the
// message function (line 14), one behind the page (the last line); blank and indented-blank lines
// between them lose nothing and don't count.
std::string WithHandWrittenLines(int *last_line)
{
    std::string text = Golden("demo_page_optimised.cpp");
    size_t after_case = text.find("/*OK*/\n") + 7;
    text.insert(after_case, "\t\tprintf(\"OK pressed\\n\");\n   \n");
    text = "#include \"my_events.h\"\n" + text + "\n\t\nint Helper(void) { return 1; }\n";
    *last_line = (int)std::count(text.begin(), text.end(), '\n');
    return text;
}

class HandWritten : public PageWindowTest
{
  protected:
    // Opens `text` as the page file `name` below the data root; the page is active and modified.
    t_Window *OpenText(const char *name, const std::string &text)
    {
        std::string path = Root() + "/" + name;
        std::ofstream(path, std::ios::binary) << text;
        t_Window *opened = OpenPageFile(harness.main_window, path.c_str());
        if (opened) {
            SetActivePage(opened, opened);
            ISetActiveWindow(opened);
            opened->state_flags |= WSF_MODIFIED;
            UserTurns(1);
        }
        return opened;
    }
    static T_WINEDIT_HANDLER *Record(t_Window *w) { return (T_WINEDIT_HANDLER *)w->user_data; }
    // Whether the page still stands; a page that went has been freed, so it is only compared.
    bool Stands(t_Window *w)
    {
        for (t_Window *child = harness.main_window->first_child; child->next; child = child->next)
            if (child == w && IsWindowLive(child))
                return true;
        return false;
    }
};

TEST_F(HandWritten, AFileTheWriterMadeHasNone)
{
    for (const char *name : golden_pages) {
        SCOPED_TRACE(name);
        t_Window *opened = OpenText(name, Golden(name));
        ASSERT_NE(opened, nullptr);
        T_WINEDIT_HANDLER *r = Record(opened);
        u32 passed = 0;
        for (u32 i = 0; i < r->lines_total; i++)
            passed += r->line_map[i];
        EXPECT_GT(passed, 10u) << "the reader passes over the writer's own lines too";
        u32 numbers[4];
        EXPECT_EQ(CountHandWrittenLines(r, r->file_name.text, numbers, 4), 0u);
        opened->state_flags &= ~WSF_MODIFIED;
        RemovePage(opened, 1);
        UserTurns(1);
    }
}

TEST_F(HandWritten, CountsThemWithTheirLineNumbers)
{
    int last = 0;
    t_Window *opened = OpenText("hand.cpp", WithHandWrittenLines(&last));
    ASSERT_NE(opened, nullptr);
    u32 numbers[2];
    EXPECT_EQ(CountHandWrittenLines(Record(opened), Record(opened)->file_name.text, numbers, 2), 3u);
    EXPECT_EQ(numbers[0], 1u);
    EXPECT_EQ(numbers[1], 14u);
}

enum { SAVE_BY_KEY, SAVE_AS_SAME_FILE, SAVE_BY_CLOSE_YES };

struct QUESTION_ROW {
    const char *what;
    int way;
    const char *answer;  // keys into the question: Return "Save", Tab Return "Save as...", Escape
    bool written;        // the file was rewritten, its hand-written lines gone
    bool saved_as;       // the page went to other.cpp through the selector
    bool asks_again;     // the next save asks again
};

const QUESTION_ROW question_rows[] = {
    {"Save writes over them, once", SAVE_BY_KEY, "\r", true, false, false},
    {"Save as... keeps them in the old file", SAVE_BY_KEY, "\t\r", false, true, false},
    {"Cancel writes nothing and asks again", SAVE_BY_KEY, "\x1b", false, false, true},
    {"Save as to the same file asks too", SAVE_AS_SAME_FILE, "\r", true, false, false},
    {"the close query's Yes asks, and Save closes", SAVE_BY_CLOSE_YES, "\r", true, false, false},
    {"the close query's Yes asks, and Cancel keeps the page", SAVE_BY_CLOSE_YES, "\x1b", false, false, true},
};

TEST_F(HandWritten, ASaveOverThemAsksFirst)
{
    for (const QUESTION_ROW &row : question_rows) {
        SCOPED_TRACE(row.what);
        int last = 0;
        const std::string text = WithHandWrittenLines(&last);
        t_Window *opened = OpenText("hand.cpp", text);
        ASSERT_NE(opened, nullptr);
        const std::string path = Root() + "/hand.cpp", other = Root() + "/other.cpp";
        std::filesystem::remove(other);

        t_Window *question = NULL;
        std::string asked, buttons;
        if (row.way == SAVE_BY_CLOSE_YES) {  // Yes, then the question's answer, in the close's wait
            std::string before = ReadText(path);
            Close(opened, (std::string(ANSWER_YES) + row.answer).c_str());
            EXPECT_TRUE(watch.query_seen);
            EXPECT_EQ(Stands(opened), !row.written) << "the close goes on after the save only";
            EXPECT_EQ(ReadText(path) != before, row.written);
            if (Stands(opened)) {
                EXPECT_TRUE(opened->state_flags & WSF_MODIFIED);
                opened->state_flags &= ~WSF_MODIFIED;
                RemovePage(opened, 1);
            }
            UserTurns(1);
            continue;
        } else {
            if (row.way == SAVE_BY_KEY) {
                Command(CMD_SAVE);
            } else {
                Command(CMD_SAVE_AS);
                UserKey(KEY_CTRL('A'), QUAL_CONTROL);
                UserType(path.c_str());
                UserKey(KEY_RETURN, 0);
            }
            question = FindLiveWindow(TXT_LINES_TITLE);
        }
        ASSERT_NE(question, nullptr);
        asked = MessageBoxText(question);
        for (t_gadget *g = FindGadgetHandler(question)->first_gadget; g->next; g = g->next)
            buttons += std::string(buttons.empty() ? "" : "|") + g->name;
        EXPECT_EQ(buttons, "Save|Save as...|Cancel");
        EXPECT_NE(asked.find("hand.cpp holds 3 hand-written lines"), std::string::npos) << asked;
        EXPECT_NE(asked.find("(lines 1, 14, " + std::to_string(last) + ")"), std::string::npos) << asked;
        EXPECT_EQ(ReadText(path), text) << "nothing is written before the answer";

        for (const char *key = row.answer; *key; key++)
            UserKey((u8)*key, 0);
        if (row.saved_as) {
            ASSERT_NE(FindWindowByName(opened, TXT_SAVE_AS_TITLE), nullptr);
            UserKey(KEY_CTRL('A'), QUAL_CONTROL);
            UserType(other.c_str());
            UserKey(KEY_RETURN, 0);
            EXPECT_NE(ReadText(other).find("OpenDemoPageWindow"), std::string::npos);
        }
        EXPECT_EQ(ReadText(path) != text, row.written);
        if (row.written) {
            EXPECT_EQ(ReadText(path).find("printf"), std::string::npos);
        }
        ASSERT_TRUE(IsWindowLive(opened));
        EXPECT_EQ((opened->state_flags & WSF_MODIFIED) != 0, !row.written && !row.saved_as);

        opened->state_flags |= WSF_MODIFIED;  // saved again: asked again only after a Cancel
        Command(CMD_SAVE);
        t_Window *again = FindLiveWindow(TXT_LINES_TITLE);
        EXPECT_EQ(again != NULL, row.asks_again);
        if (again)
            UserKey(KEY_ESCAPE, 0);
        opened->state_flags &= ~WSF_MODIFIED;
        RemovePage(opened, 1);
        UserTurns(1);
    }
}

// Save as to another file asks nothing: the old file keeps its lines.
TEST_F(HandWritten, SaveAsToAnotherFileAsksNothing)
{
    int last = 0;
    const std::string text = WithHandWrittenLines(&last);
    t_Window *opened = OpenText("hand.cpp", text);
    ASSERT_NE(opened, nullptr);
    Command(CMD_SAVE_AS);
    UserKey(KEY_CTRL('A'), QUAL_CONTROL);
    UserType((Root() + "/elsewhere.cpp").c_str());
    UserKey(KEY_RETURN, 0);
    EXPECT_EQ(FindLiveWindow(TXT_LINES_TITLE), nullptr);
    EXPECT_EQ(ReadText(Root() + "/hand.cpp"), text);
    EXPECT_NE(ReadText(Root() + "/elsewhere.cpp").find("OpenDemoPageWindow"), std::string::npos);
    EXPECT_FALSE(opened->state_flags & WSF_MODIFIED);
}

}  // namespace
