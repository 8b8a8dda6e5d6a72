// Commands by key and by menu: the windows they open, a key changed in the Keyboard window, and the
// commands that need an active page doing nothing without one.
#include <sstream>

#include "knobkit/knobkit_internal.h"
#include "tests/shell/shell_fixture.h"

#define KEYBOARD_TITLE "Keyboard"
#define KEYBOARD_LIST 1

TEST_F(ShellTest, KeysAndMenusOpenTheirWindowsOnTheMainWindow)
{
    //  how                  key            qualifiers    title       entry         window
    const struct {
        const char *how;
        u16 key, qualifiers;
        u32 title, entry;
        const char *window;
    } rows[] = {
        {"Ctrl+O", KEY_CTRL('O'), QUAL_CONTROL, 0, 0, OPEN_TITLE},
        {"File > Open", 0, 0, MENU_FILE, CMD_OPEN, OPEN_TITLE},
        {"F10", KEY_F1 + 9, 0, 0, 0, SETTINGS_TITLE},
        {"Edit > Settings", 0, 0, MENU_EDIT, CMD_SETTINGS, SETTINGS_TITLE},
        {"Tools > Keyboard", 0, 0, MENU_TOOLS, CMD_KEYBOARD, KEYBOARD_TITLE},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.how);
        if (row.key)
            UserKey(row.key, row.qualifiers);
        else
            PickFromMenu(row.title, row.entry);
        t_Window *window = FindLiveWindow(row.window);
        ASSERT_NE(window, nullptr);
        EXPECT_EQ(window->parent, h.main_window);
        EXPECT_EQ(OpenMenus(), 0u);
        SendWindowMessage(window, 0, ACT_TERMINATE, NULL);
        UserTurns(1);
        EXPECT_EQ(FindLiveWindow(row.window), nullptr);
    }
    // The Open selector starts in the last folder, which the host makes on a first run.
    MakeEntireDirectory(MakePathFromSystem("Projects/QfFiles"));
    UserKey(KEY_CTRL('O'), QUAL_CONTROL);
    std::string expected = std::string(h.root) + "/Projects/QfFiles";
    t_gadget *path_field = FindGadgetByItemCode(FindLiveWindow(OPEN_TITLE), 1);
    ASSERT_NE(path_field, nullptr);
    EXPECT_EQ(FieldText(path_field), expected);
    Escape();
    EXPECT_EQ(FindLiveWindow(OPEN_TITLE), nullptr);
}

// A person gives Open a new key in the Keyboard window: the new key opens the selector at once and
// after a restart, and the old one does nothing any more.
TEST_F(ShellTest, AKeyChangedInTheKeyboardWindowRunsItsCommand)
{
    PickFromMenu(MENU_TOOLS, CMD_KEYBOARD);
    t_Window *editor = FindLiveWindow(KEYBOARD_TITLE);
    ASSERT_NE(editor, nullptr);
    t_gadget *list = FindGadgetByItemCode(editor, KEYBOARD_LIST);
    ASSERT_NE(list, nullptr);
    T_LIST_LAYOUT layout;
    ListLayout(list, &layout);
    T_LIST_DATA *data = (T_LIST_DATA *)list->class_data;
    EXPECT_STREQ(((T_LIST_ENTRY *)data->entries.first)->name, "File: Open\tCtrl+O");
    UserClick((i16)(layout.inner.x + layout.inner.w / 2), (i16)(layout.inner.y + layout.row_h / 2), 1);
    UserKey(KEY_CTRL('K'), QUAL_CONTROL);
    EXPECT_STREQ(((T_LIST_ENTRY *)data->entries.first)->name, "File: Open\tCtrl+K");
    Escape();  // nothing is picked now: the window closes
    ASSERT_EQ(FindLiveWindow(KEYBOARD_TITLE), nullptr);

    for (int run = 0; run < 2; run++) {
        SCOPED_TRACE(run ? "after a restart" : "at once");
        EXPECT_EQ(MenuEntryKey(Entry(MENU_FILE, CMD_OPEN)), (u32)KEY_CTRL('K'));
        UserKey(KEY_CTRL('O'), QUAL_CONTROL);
        EXPECT_EQ(FindLiveWindow(OPEN_TITLE), nullptr);
        UserKey(KEY_CTRL('K'), QUAL_CONTROL);
        EXPECT_NE(FindLiveWindow(OPEN_TITLE), nullptr);
        Escape();
        if (!run)
            Restart();
    }
}

// What a page shows of itself: its gadgets' places, marks, codes and tab numbers, its modes, its
// modified bit and its history.
static std::string DescribePage(t_Window *page)
{
    std::ostringstream out;
    T_WINEDIT_HANDLER *record = (T_WINEDIT_HANDLER *)page->user_data;
    out << page->name << " state " << (page->state_flags & WSF_MODIFIED) << " mode " << record->edit_state
        << " history " << CountListEntries(&record->undo.nodes) << (void *)record->undo.current << "\n";
    t_Gaget_Handler *handler = FindGadgetHandler(page);
    for (t_gadget *g = handler->first_gadget; g->next; g = g->next)
        out << "  " << g->pos_x << "," << g->pos_y << " " << g->base_width << "x" << g->base_height << " flags "
            << g->live_flags << " code " << g->live_item_code << " tab " << g->tab_index << "\n";
    return out.str();
}

// Without pages, and with pages open but none active, the commands that act on the active page do
// nothing, whether they come from the menu, from a key or straight to the main window.
TEST_F(ShellTest, ActiveCommandsDoNothingWithoutAnActivePage)
{
    //  name                   item code               title        key
    const struct {
        const char *name;
        u32 item_code;
        u32 title;  // the menu that shows the entry; 0 inside the Centre sub-menu
        u16 key;
    } rows[] = {
        {"Close", CMD_CLOSE, MENU_FILE, 0},
        {"Save", CMD_SAVE, MENU_FILE, KEY_CTRL('S')},
        {"Save as", CMD_SAVE_AS, MENU_FILE, KEY_CTRL('W')},
        {"Undo", CMD_UNDO, MENU_EDIT, KEY_CTRL('Z')},
        {"Redo", CMD_REDO, MENU_EDIT, KEY_CTRL('Y')},
        {"Select All", CMD_SELECT_ALL, MENU_EDIT, KEY_CTRL('A')},
        {"Select None", CMD_SELECT_NONE, MENU_EDIT, 0},
        {"Inverse Selection", CMD_INVERSE_SELECTION, MENU_EDIT, 0},
        {"Re-order Item codes", CMD_REORDER_ITEM_CODES, MENU_EDIT, 0},
        {"Horizontal", CMD_CENTRE_HORIZONTAL, 0, 0},
        {"Vertical", CMD_CENTRE_VERTICAL, 0, 0},
        {"Size to content", CMD_SIZE_TO_CONTENT, MENU_LAYOUT, 0},
        {"Tab order", CMD_TAB_ORDER, MENU_LAYOUT, 0},
    };
    // With no page at all: nothing opens and nothing breaks.
    const u32 alone = LiveWindows();
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        if (row.key)
            UserKey(row.key, QUAL_CONTROL);
        SendWindowMessage(h.main_window, row.item_code, ACT_MENU_PICK, NULL);
        UserTurns(1);
        EXPECT_EQ(LiveWindows(), alone);
        EXPECT_TRUE(Pages().empty());
    }

    // Two pages; the first has two gadgets, one of them marked, with a hole in their codes and a
    // history of two steps, one of them undone.
    t_Window *first = DrawPage(20, 100, 420, 400);
    ASSERT_NE(first, nullptr);
    DrawGadget(first, TOOL_BUTTON, 20, 20, 120, 50);
    DrawGadget(first, TOOL_BUTTON, 30, 100, 110, 130);
    DrawGadget(first, TOOL_BUTTON, 30, 180, 110, 210);
    PickFromMenu(MENU_EDIT, CMD_UNDO);
    t_gadget *g = FindGadgetHandler(first)->first_gadget;
    g->live_item_code = 7;
    g->live_flags &= ~GADGET_MARK_SELECTED;
    g->next->live_flags |= GADGET_MARK_SELECTED;
    t_Window *second = DrawPage(500, 100, 900, 400);
    ASSERT_NE(second, nullptr);
    SetActivePage(second, NULL);
    UserTurns(1);
    const std::string before = DescribePage(first) + DescribePage(second);
    const u32 windows = LiveWindows();

    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        if (row.title) {  // a person: the entry is grey, and a click on it does nothing
            PickFromMenu(row.title, row.item_code);
            EXPECT_EQ(OpenMenus(), 1u);
            Escape();
        }
        if (row.key)
            UserKey(row.key, QUAL_CONTROL);
        SendWindowMessage(h.main_window, row.item_code, ACT_MENU_PICK, NULL);
        UserTurns(1);
        EXPECT_EQ(OpenMenus(), 0u);
        EXPECT_EQ(LiveWindows(), windows);
        EXPECT_EQ(DescribePage(first) + DescribePage(second), before);
        EXPECT_EQ(ActivePage(), nullptr);
    }
    // The same key reaches the first page once it is active again.
    SetActivePage(first, first);
    UserKey(KEY_CTRL('A'), QUAL_CONTROL);
    for (t_gadget *g = FindGadgetHandler(first)->first_gadget; g->next; g = g->next)
        EXPECT_NE(g->live_flags & GADGET_MARK_SELECTED, 0u);
}
