// The shell suites' fixture: the whole application headless, and what a person does with the main
// window: titles and entries of the menu bar, boxes drawn on the background, tools, typed names.
#pragma once
#include <gtest/gtest.h>
#include <string.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "display/display.h"
#include "lumora/menu_internal.h"
#include "page/catalogue.h"
#include "shell/commands.h"
#include "shell/main_window.h"
#include "shell/menus.h"
#include "tests/harness/harness.h"

#define SCREEN_W 1024
#define SCREEN_H 700
#define TOOLBAR_NAME "qftoolbar"
#define OPEN_TITLE "Open Source file"
#define SAVE_AS_TITLE "Save Source as"
#define SETTINGS_TITLE "Settings for Quillform"
#define QUERY_TITLE "Quillform query"
#define ERROR_TITLE "Quillform error"
#define PROGRESS_TITLE "Opening documents"
#define PAST_DOUBLE_CLICK_MS 500

class ShellTest : public ::testing::Test
{
  protected:
    T_HARNESS h;

    void SetUp() override { ASSERT_TRUE(HarnessStart(&h, NULL, SCREEN_W, SCREEN_H)); }
    void TearDown() override { HarnessStop(&h, 0); }

    // Ends the toolkit and starts the application again on the same data root.
    void Restart()
    {
        std::string root = h.root;
        int own = h.own_root;
        HarnessStop(&h, 1);
        ASSERT_TRUE(HarnessStart(&h, root.c_str(), SCREEN_W, SCREEN_H));
        h.own_root = own;
    }

    T_WINEDIT_MAIN *Main() { return FindMainRecord(h.main_window); }
    t_Window *ActivePage() { return Main()->active_page; }
    T_MENU_HANDLER *Menus() { return FindMenuHandler(h.main_window); }
    t_Menu *Title(u32 code) { return FindMenuInHandler(Menus(), code); }
    t_Menu *Entry(u32 title, u32 code) { return FindMenuByItemCode(Title(title), code); }
    T_TOOLBAR_HANDLER *Toolbar() { return (T_TOOLBAR_HANDLER *)Main()->toolbar->user_data; }

    // A click on a title of the menu bar: it opens (and the main window refreshes the greying).
    void ClickTitle(u32 code);
    // A click on an entry of the open menu at `level` (0 a title's menu, 1 its sub-menu).
    void ClickEntry(u32 level, t_Menu *menu, u32 code);
    void ClickEntryItself(u32 level, t_Menu *menu, t_Menu *entry);
    // Opens a title and clicks one of its entries, as a person picks a command.
    void PickFromMenu(u32 title, u32 code)
    {
        ClickTitle(title);
        ClickEntry(0, Title(title), code);
    }
    static u32 OpenMenus();
    static void Escape() { UserKey(KEY_ESCAPE, 0); }

    // A box dragged on the main window's background, corners relative to its user area.
    void DrawBox(i16 x1, i16 y1, i16 x2, i16 y2)
    {
        t_Window *w = h.main_window;
        UserDrag((i16)(w->user_x + x1), (i16)(w->user_y + y1), (i16)(w->user_x + x2), (i16)(w->user_y + y2));
    }
    // A page drawn as a box; it is the active page then.
    t_Window *DrawPage(i16 x1, i16 y1, i16 x2, i16 y2)
    {
        DrawBox(x1, y1, x2, y2);
        return ActivePage();
    }
    // A gadget made as a person makes one: its tool on the toolbar, then a drag on the page.
    void DrawGadget(t_Window *page, u16 tool, i16 x1, i16 y1, i16 x2, i16 y2);
    std::vector<t_Window *> Pages();
    // Whether the page stands; one that went may have been freed, so it is only compared.
    bool Stands(t_Window *page)
    {
        std::vector<t_Window *> pages = Pages();
        return std::find(pages.begin(), pages.end(), page) != pages.end();
    }
    // Every live window, top-level and child, but open menus.
    static u32 LiveWindows();
    // The name a string gadget shows.
    static std::string FieldText(const t_gadget *field) { return field && field->data ? (char *)field->data : ""; }
    // Saves the active page under a new name, as a person does: Ctrl+W, the path typed, Return.
    static void SaveActivePageAs(const std::string &path)
    {
        UserKey(KEY_CTRL('W'), QUAL_CONTROL);
        AnswerSelector(path.c_str());
    }
    // The paths of the recent entries of the File menu, in the menu's order.
    std::vector<std::string> RecentEntries();
    // Types a full path into the open file selector, over the name it shows, and presses Return.
    static void AnswerSelector(const char *path)
    {
        UserKey(KEY_CTRL('A'), QUAL_CONTROL);
        UserType(path);
        UserKey(KEY_RETURN, 0);
    }
};

// A person at the screen while a command waits inside a turn (a query's wait): each answer is given
// when the window of its title stands and the input given before has been taken. Answers are
// keys, a text typed into a selector, or something done (a command picked).
typedef struct T_ANSWER {
    const char *window;                // the title it waits for
    std::vector<T_INPUT_EVENT> input;  // queued then
    std::function<void()> action;      // or done then
} T_ANSWER;

T_ANSWER AnswerKeys(const char *window, std::vector<u16> keys);  // keys without qualifiers
T_ANSWER AnswerYes();                                            // the close query: Return on "Yes"
T_ANSWER AnswerNo();                                             // Tab, Return
T_ANSWER AnswerCancel();                                         // Escape
T_ANSWER AnswerSaveAs(const std::string &path);                  // the "Save Source as" selector: the path, Return
// Installs the person on the main window with these answers, in order; AnswersLeft() tells how
// many were never given.
void ExpectAnswers(t_Window *main_window, std::vector<T_ANSWER> answers);
size_t AnswersLeft();

// The text of a live message box of that title, or "" when there is none.
std::string MessageBoxTextOf(const char *title);
// The settings' tail for these paths: each a u32 length with its NUL, then the path with its NUL.
std::string TailOf(const std::vector<std::string> &paths);
// Writes a file of that text; false when it can't.
bool WriteTextFile(const std::string &path, const std::string &text);
