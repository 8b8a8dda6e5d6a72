// The main window's menus and toolbar: the tree as built, the gadget context menu, the tools, the
// greying seen when a person opens a title, and the Undo and Redo labels.
#include <algorithm>

#include "tests/shell/shell_fixture.h"

#define SEP 0  // a separator's item code

#define F10 (KEY_F1 + 9)
#define SAVE_ICON 1  // the standard Save icon; 2 would be any other

typedef struct T_TREE_ROW {
    u32 menu;  // the title or sub-menu that holds the entry
    u16 kind;
    const char *label;
    u32 item_code;
    u8 shortcut;
    u32 key = 0;  // the command's key the entry shows
    u8 icon = 0;
} T_TREE_ROW;

// Every entry in order, sub-menus walked where they stand.
static void FlattenMenu(t_Menu *menu, u32 code, std::vector<T_TREE_ROW> *rows)
{
    for (t_Menu *e = (t_Menu *)menu->items.first; e->next; e = e->next) {
        u8 icon = !e->icon_bank                                                                ? 0
                  : e->icon_bank == DISPLAY_RECORD->icon_bank && e->icon == STANDARD_SAVE_ICON ? 1
                                                                                               : 2;
        rows->push_back({code, e->kind, e->label, e->menu_item_code, e->shortcut, MenuEntryKey(e), icon});
        if (e->kind == MENU_KIND_SUBMENU)
            FlattenMenu(e, e->menu_item_code, rows);
    }
}

static void ExpectRows(const std::vector<T_TREE_ROW> &built, const T_TREE_ROW *expected, size_t count)
{
    ASSERT_EQ(built.size(), count);
    for (size_t i = 0; i < count; i++) {
        SCOPED_TRACE(expected[i].label);
        EXPECT_EQ(built[i].menu, expected[i].menu);
        EXPECT_EQ(built[i].kind, expected[i].kind);
        EXPECT_STREQ(built[i].label, expected[i].label);
        EXPECT_EQ(built[i].item_code, expected[i].item_code);
        EXPECT_EQ(built[i].shortcut, expected[i].shortcut);
        EXPECT_EQ(built[i].key, expected[i].key);
        EXPECT_EQ(built[i].icon, expected[i].icon);
    }
}

// The menu bar's tree; the entries made from commands show the command's key, and the three Save
// entries carry the standard Save icon.
TEST_F(ShellTest, MenuBarHoldsTheTreeInOrder)
{
    const u16 T = MENU_KIND_TITLE, E = MENU_KIND_ENTRY, S = MENU_KIND_SUBMENU, D = MENU_KIND_SEPARATOR;
    //  menu     kind  label                  item code  shortcut  key  icon
    const T_TREE_ROW expected[] = {
        {0, T, "File", MENU_FILE, 'F'},
        {MENU_FILE, E, "Open", 256, 0, KEY_CTRL('O')},
        {MENU_FILE, E, "Close", 257, 0},
        {MENU_FILE, E, "Close all", 258, 0},
        {MENU_FILE, D, "", SEP, 0},
        {MENU_FILE, E, "Save", 259, 0, KEY_CTRL('S'), SAVE_ICON},
        {MENU_FILE, E, "Save as", 260, 0, KEY_CTRL('W'), SAVE_ICON},
        {MENU_FILE, E, "Save all", 261, 0, 0, SAVE_ICON},
        {MENU_FILE, D, "", SEP, 0},
        {MENU_FILE, E, "Exit", 262, 0},
        {0, T, "Edit", MENU_EDIT, 'E'},
        {MENU_EDIT, E, "Undo", 263, 0, KEY_CTRL('Z')},
        {MENU_EDIT, E, "Redo", 264, 0, KEY_CTRL('Y')},
        {MENU_EDIT, D, "", SEP, 0},
        {MENU_EDIT, E, "Cut", 265, 0, KEY_CTRL('X')},
        {MENU_EDIT, E, "Copy", 266, 0, KEY_CTRL('C')},
        {MENU_EDIT, E, "Paste", 267, 0, KEY_CTRL('V')},
        {MENU_EDIT, D, "", SEP, 0},
        {MENU_EDIT, E, "Select All", 268, 0, KEY_CTRL('A')},
        {MENU_EDIT, E, "Select None", 269, 0},
        {MENU_EDIT, E, "Inverse Selection", 270, 0},
        {MENU_EDIT, D, "", SEP, 0},
        {MENU_EDIT, E, "Re-order Item codes", 271, 0},
        {MENU_EDIT, D, "", SEP, 0},
        {MENU_EDIT, E, "Settings", 272, 0, F10},
        {0, T, "Layout", MENU_LAYOUT, 'E'},
        {MENU_LAYOUT, S, "Centre in window", MENU_CENTRE, 'C'},
        {MENU_CENTRE, E, "Horizontal", 273, 0},
        {MENU_CENTRE, E, "Vertical", 274, 0},
        {MENU_LAYOUT, E, "Size to content", 275, 0},
        {MENU_LAYOUT, E, "Flip Horizontal", 276, 0},
        {MENU_LAYOUT, D, "", SEP, 0},
        {MENU_LAYOUT, E, "Tab order", 277, 0},
        {0, T, "Tools", MENU_TOOLS, 'T'},
        {MENU_TOOLS, E, "Keyboard", 278, 0},
        {MENU_TOOLS, E, "Preview", 279, 0, KEY_CTRL('R')},
        {0, T, "Help", MENU_HELP, 'H'},
        {MENU_HELP, E, "About", 0x501, 'A'},
    };
    std::vector<T_TREE_ROW> built;
    for (t_Menu *title = (t_Menu *)Menus()->titles.first; title->next; title = title->next) {
        built.push_back({0, title->kind, title->label, title->menu_item_code, title->shortcut, 0, 0});
        FlattenMenu(title, title->menu_item_code, &built);
    }
    ExpectRows(built, expected, sizeof(expected) / sizeof(expected[0]));
}

TEST_F(ShellTest, GadgetContextMenuHoldsItsEntries)
{
    //  kind                  label                    item code  shortcut
    const T_TREE_ROW expected[] = {
        {0, MENU_KIND_ENTRY, "Cut", 0xE001, 'X'},
        {0, MENU_KIND_ENTRY, "Copy", 0xE002, 'C'},
        {0, MENU_KIND_ENTRY, "Paste", 0xE003, 'V'},
        {0, MENU_KIND_SEPARATOR, "", SEP, 0},
        {0, MENU_KIND_ENTRY, "Size to contents", 0xE004, 'z'},
        {0, MENU_KIND_ENTRY, "Align left edges", 0xE005, 'l'},
        {0, MENU_KIND_ENTRY, "Align top edges", 0xE006, 't'},
        {0, MENU_KIND_ENTRY, "Apply same dimensions", 0xE007, 's'},
        {0, MENU_KIND_SEPARATOR, "", SEP, 0},
        {0, MENU_KIND_ENTRY, "Properties", 0xE00F, 'P'},
        {0, MENU_KIND_ENTRY, "Actions...", 0xF003, 'A'},
        {0, MENU_KIND_ENTRY, "Choose Font...", 0xF004, 'F'},
        {0, MENU_KIND_ENTRY, "Delete...", 0xF005, 'D'},
        {0, MENU_KIND_SEPARATOR, "", SEP, 0},
        {0, MENU_KIND_ENTRY, "Window Properties", 0xF002, 'W'},
    };
    EXPECT_STREQ(gadget_context_menu.label, "Multiple Modify");
    EXPECT_EQ(gadget_context_menu.menu_item_code, 0xE000u);
    EXPECT_EQ(gadget_context_menu.menu_flags, 32u);
    std::vector<T_TREE_ROW> built;
    FlattenMenu(&gadget_context_menu, 0, &built);
    ExpectRows(built, expected, sizeof(expected) / sizeof(expected[0]));
}

// The fourteen tools in their places; a click on each makes it the active one, and a click on the
// selector's place afterwards gives the selector back.
TEST_F(ShellTest, ToolbarHoldsTheToolsAndAClickPicksOne)
{
    //  label                  icon  item code
    const struct {
        const char *label;
        u16 icon;
        u32 item_code;
    } expected[] = {
        {"Selector", 3, 0xF000},
        {"Checkbox", 0, 0xF001},
        {"Listbox", 2, 0xF002},
        {"Radio button", 4, 0xF003},
        {"Vertical Slider", 5, 0xF004},
        {"Horizontal Slider", 15, 0xF00D},
        {"Text", 6, 0xF005},
        {"String entry", 7, 0xF006},
        {"Tree", 9, 0xF007},
        {"Horizontal scrollbar", 10, 0xF008},
        {"Vertical scrollbar", 11, 0xF009},
        {"Group", 12, 0xF00A},
        {"Button", 13, 0xF00B},
        {"Dropbox", 14, 0xF00C},
    };
    T_TOOLBAR_HANDLER *toolbar = Toolbar();
    ASSERT_NE(toolbar, nullptr);
    ASSERT_EQ(CountListEntries(&toolbar->entries), 14u);
    u16 place = 0;
    for (T_TOOLBAR_ENTRY *e = (T_TOOLBAR_ENTRY *)toolbar->entries.first; e->next; e = e->next, place++) {
        SCOPED_TRACE(expected[place].label);
        EXPECT_STREQ(e->name, expected[place].label);
        EXPECT_EQ(e->icon, expected[place].icon);
        EXPECT_EQ(e->item_code, expected[place].item_code);
        i16 x, y;
        ASSERT_TRUE(FindToolCentre(TOOLBAR_NAME, place, &x, &y));
        UserClick(x, y, 1);
        EXPECT_EQ(GetActiveToolBarEntry(toolbar), place);
    }
    T_RPOS rect;
    EXPECT_FALSE(GetToolBarEntryRect(toolbar, 14, &rect));
    i16 x, y;
    ASSERT_TRUE(FindToolCentre(TOOLBAR_NAME, 0, &x, &y));
    UserClick(x, y, 1);
    EXPECT_EQ(GetActiveToolBarEntry(toolbar), 0);
}

// The entries of a menu and of its sub-menus, in order.
static void AllEntries(t_Menu *menu, std::vector<t_Menu *> *entries)
{
    for (t_Menu *e = (t_Menu *)menu->items.first; e->next; e = e->next) {
        entries->push_back(e);
        AllEntries(e, entries);
    }
}

// Greying as a person sees it: each title is opened by a click, and every entry of its menu is
// grey or not as the state of the pages asks. Recent files are never grey, nor is Settings. On an
// empty page with nothing on the clipboard, Cut, Copy and Paste have nothing to act on.
TEST_F(ShellTest, EntriesAreGreyedByThePagesAndTheActivePage)
{
    const std::vector<u32> edit_but_settings = {263, 264, 265, 266, 267, 268, 269, 270, 271};
    const std::vector<u32> layout_all = {MENU_CENTRE, 273, 274, 275, 276, 277};
    const std::vector<u32> empty_page = {263, 264, 265, 266, 267};
    const std::vector<u32> preview = {279};
    const std::vector<u32> none;
    //  state                    pages  none active  grey in File               in Edit      in Layout   in Tools
    struct State {
        const char *name;
        int pages;
        int none_active;  // SetActivePage(page, NULL) after the pages are drawn
        std::vector<u32> file, edit, layout, tools;
    } const states[] = {
        {"no page", 0, 0, {257, 258, 259, 260, 261}, edit_but_settings, layout_all, preview},
        {"two pages, none active", 2, 1, {257, 259, 260}, edit_but_settings, layout_all, preview},
        {"an active page", 2, 0, {}, empty_page, {}, {}},
    };
    SetClipboardText("");
    RefreshRecentFiles(h.main_window, "/nowhere/one.cpp");
    RefreshRecentFiles(h.main_window, "/nowhere/two.cpp");
    int drawn = 0;
    for (const State &s : states) {
        SCOPED_TRACE(s.name);
        for (; drawn < s.pages; drawn++)
            ASSERT_NE(DrawPage((i16)(300 + 40 * drawn), (i16)(100 + 40 * drawn), (i16)(600 + 40 * drawn),
                               (i16)(350 + 40 * drawn)),
                      nullptr);
        if (s.none_active)
            SetActivePage(ActivePage(), NULL);
        else if (s.pages)
            SetActivePage(Pages().back(), Pages().back());
        const struct {
            u32 title;
            const std::vector<u32> *grey;
        } menus[] = {{MENU_FILE, &s.file},
                     {MENU_EDIT, &s.edit},
                     {MENU_LAYOUT, &s.layout},
                     {MENU_TOOLS, &s.tools},
                     {MENU_HELP, &none}};
        u32 recent_entries = 0;
        for (const auto &m : menus) {
            ClickTitle(m.title);
            ASSERT_EQ(OpenMenus(), 1u);
            std::vector<t_Menu *> entries;
            AllEntries(Title(m.title), &entries);
            for (t_Menu *e : entries) {
                if (e->kind == MENU_KIND_SEPARATOR)
                    continue;
                recent_entries += e->menu_item_code == ITEM_RECENT_OR_DROP;
                bool grey = std::find(m.grey->begin(), m.grey->end(), e->menu_item_code) != m.grey->end();
                EXPECT_EQ((e->menu_flags & MENU_FLAG_GREY) != 0, grey) << e->label;
            }
            Escape();
        }
        EXPECT_EQ(recent_entries, 2u);
    }
}

// The Undo and Redo entries follow the active page's history; each label is measured anew, and the
// open Edit menu is wide enough for it and its key.
TEST_F(ShellTest, UndoAndRedoLabelsFollowTheHistory)
{
    struct Step {
        const char *name;
        int action;  // 0 a new page, 1 a gadget drawn on it, 2 Undo from the menu, 3 Redo from it
        const char *undo;
        bool undo_grey;
        const char *redo;
        bool redo_grey;
        u32 gadgets;  // on the page
    } const steps[] = {
        {"a new page", 0, "Undo", true, "Redo", true, 0},
        {"a gadget", 1, "Undo Create gadget", false, "Redo", true, 1},
        {"Undo", 2, "Undo", true, "Redo Create gadget", false, 0},
        {"Redo", 3, "Undo Create gadget", false, "Redo", true, 1},
        {"a second page", 0, "Undo", true, "Redo", true, 0},
    };
    t_Window *page = NULL;
    int pages = 0;
    for (const Step &s : steps) {
        SCOPED_TRACE(s.name);
        switch (s.action) {
        case 0:
            page = DrawPage((i16)(20 + 480 * pages), 100, (i16)(420 + 480 * pages), 400);
            pages++;
            ASSERT_NE(page, nullptr);
            break;
        case 1:
            DrawGadget(page, TOOL_BUTTON, 20, 20, 120, 50);
            break;
        case 2:
            PickFromMenu(MENU_EDIT, CMD_UNDO);
            break;
        case 3:
            PickFromMenu(MENU_EDIT, CMD_REDO);
            break;
        }
        EXPECT_EQ(CountListEntries(&FindGadgetHandler(page)->gadget_list), s.gadgets);
        ClickTitle(MENU_EDIT);
        t_Menu *edit = Title(MENU_EDIT);
        t_Menu *undo = Entry(MENU_EDIT, CMD_UNDO), *redo = Entry(MENU_EDIT, CMD_REDO);
        EXPECT_STREQ(undo->label, s.undo);
        EXPECT_EQ((undo->menu_flags & MENU_FLAG_GREY) != 0, s.undo_grey);
        EXPECT_STREQ(redo->label, s.redo);
        EXPECT_EQ((redo->menu_flags & MENU_FLAG_GREY) != 0, s.redo_grey);
        T_MENU_FONT_STATE font;
        MenuFontBegin(&font);
        i32 key_width = GetStringWidth("Ctrl+Z");
        for (t_Menu *entry : {undo, redo}) {
            SCOPED_TRACE(entry->label);
            EXPECT_EQ(entry->menu_width, GetStringWidth(entry->label) + 2 * GetActiveFontHeight());
            EXPECT_GE(edit->detached_width, 2 * (MENU_PANEL_BORDER + MENU_PANEL_PAD) + MENU_ICON_COLUMN +
                                                entry->menu_width + MENU_KEY_GAP + key_width);
        }
        MenuFontEnd(&font);
        Escape();
    }
}
