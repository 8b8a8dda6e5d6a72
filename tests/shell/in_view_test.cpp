// What a person meets first: the keys after a pick from the menu bar or the toolbar, the Save as
// selector's fields, and dependent windows that stand inside the screen in front of the toolbar.
#include <sys/stat.h>

#include "editor/page_commands.h"
#include "editor/page_window.h"
#include "lumora/lumora_internal.h"
#include "tests/shell/shell_fixture.h"

#define SELECTOR_FOLDER_FIELD 1  // the file selector's own item codes
#define SELECTOR_NAME_FIELD 3

static t_Window *FocusWindowNow()
{
    return CURRENT_DISPLAY->window_class->current_window;
}

// After a command picked with the mouse from the menu bar, or a tool from the toolbar, the page's
// own keys reach it at once: no click on the page is needed first.
TEST_F(ShellTest, KeysReachThePageAfterAMousePick)
{
    t_Window *page = DrawPage(300, 100, 700, 400);
    ASSERT_NE(page, nullptr);
    T_WINEDIT_HANDLER *record = (T_WINEDIT_HANDLER *)page->user_data;
    t_Gaget_Handler *handler = FindGadgetHandler(page);
    //  pick                                then the key          and what it did
    enum { GADGETS_GONE, TAB_ORDER_ENDED, BOLD_SET };
    const struct {
        const char *name;
        u32 title, entry;  // a menu pick, or 0: the button tool
        u16 key, qualifiers;
        int effect;
    } cases[] = {
        {"Edit > Select All, Delete", MENU_EDIT, CMD_SELECT_ALL, KEY_DELETE, 0, GADGETS_GONE},
        {"Layout > Tab order, Escape", MENU_LAYOUT, CMD_TAB_ORDER, KEY_ESCAPE, 0, TAB_ORDER_ENDED},
        {"Edit > Select All, Ctrl+B", MENU_EDIT, CMD_SELECT_ALL, KEY_CTRL('B'), QUAL_CONTROL, BOLD_SET},
        {"a tool on the toolbar, Delete", 0, 0, KEY_DELETE, 0, GADGETS_GONE},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name);
        DrawGadget(page, TOOL_BUTTON, 20, 20, 120, 50);
        DrawGadget(page, TOOL_BUTTON, 20, 60, 120, 90);
        ASSERT_EQ(CountListEntries(&handler->gadget_list) >= 2, true);
        ASSERT_EQ(FocusWindowNow(), page);
        if (c.title) {
            PickFromMenu(c.title, c.entry);
        } else {
            i16 x, y;
            ASSERT_TRUE(FindToolCentre(TOOLBAR_NAME, TOOL_BUTTON, &x, &y));
            UserClick(x, y, 1);
            for (t_gadget *g = handler->first_gadget; g->next; g = g->next)
                g->live_flags |= GADGET_MARK_SELECTED;
        }
        EXPECT_EQ(OpenMenus(), 0u);
        EXPECT_EQ(FocusWindowNow(), page);
        UserKey(c.key, c.qualifiers);
        switch (c.effect) {
        case GADGETS_GONE:
            EXPECT_EQ(CountListEntries(&handler->gadget_list), 0u);
            break;
        case TAB_ORDER_ENDED:
            EXPECT_FALSE(record->edit_state & EDIT_TAB_ORDER);
            break;
        case BOLD_SET:
            for (t_gadget *g = handler->first_gadget; g->next; g = g->next)
                EXPECT_TRUE(g->flags & GADGET_FLAGS_BOLD);
            break;
        }
        SetActiveToolBarEntry(Toolbar(), 0);
        for (t_gadget *g = handler->first_gadget; g->next; g = g->next)  // a clean page again
            g->live_flags |= GADGET_MARK_SELECTED;
        DeleteMarkedGadgets(page);
        record->edit_state &= ~EDIT_TAB_ORDER;
    }
}

// A page without a file offers the last folder and no name; a page with one offers its folder in
// the folder field and its bare name, selected, in the name field, so that typing replaces it.
TEST_F(ShellTest, SaveAsOffersTheFilesFolderAndItsNameToReplace)
{
    std::string folder = std::string(h.root) + "/pages";
    ASSERT_EQ(mkdir(folder.c_str(), 0700), 0);
    mkdir((std::string(h.root) + "/Projects").c_str(), 0700);
    mkdir(editor_config->last_path, 0700);
    t_Window *page = DrawPage(300, 100, 700, 400);
    ASSERT_NE(page, nullptr);
    struct {
        const char *name;
        std::string folder_field, name_field;
        const char *typed;
        std::string saved;  // the page's file afterwards
    } const steps[] = {
        {"no file yet", editor_config->last_path, "", NULL, ""},
        {"with a file", folder, "first.cpp", "second", folder + "/second.cpp"},
    };
    for (const auto &s : steps) {
        SCOPED_TRACE(s.name);
        UserKey(KEY_CTRL('W'), QUAL_CONTROL);
        t_Window *selector = FindWindowByName(page, SAVE_AS_TITLE);
        ASSERT_NE(selector, nullptr);
        t_gadget *folder_field = FindGadgetByItemCode(selector, SELECTOR_FOLDER_FIELD);
        t_gadget *name_field = FindGadgetByItemCode(selector, SELECTOR_NAME_FIELD);
        ASSERT_TRUE(folder_field && name_field);
        EXPECT_EQ(FieldText(folder_field), s.folder_field);
        EXPECT_EQ(FieldText(name_field), s.name_field);
        EXPECT_EQ(GetCurrentGadget(selector), name_field);
        EXPECT_EQ(name_field->select_from, 0);
        EXPECT_EQ(name_field->value, (i32)s.name_field.size());
        if (s.typed) {
            UserType(s.typed);
            UserKey(KEY_RETURN, 0);
            EXPECT_EQ(FindWindowByName(page, SAVE_AS_TITLE), nullptr);
        } else {  // the first save, by a full path typed over the name
            AnswerSelector((folder + "/first.cpp").c_str());
        }
    }
    EXPECT_STREQ(((T_WINEDIT_HANDLER *)page->user_data)->file_name.text, (folder + "/second.cpp").c_str());
    struct stat st;
    EXPECT_EQ(stat((folder + "/second.cpp").c_str(), &st), 0);
}

// A message box or a selector of a page near any edge of the screen opens wholly inside the
// screen, and in front of the toolbar: the point where it covers the toolbar is the box's.
TEST_F(ShellTest, DependentWindowsOpenInsideTheScreenInFrontOfTheToolbar)
{
    t_Window *main_window = h.main_window;
    i16 right = (i16)(main_window->user_w - 80), bottom = (i16)(main_window->user_h - 60);
    //  where                 page box in the main window's user area
    const struct {
        const char *where;
        i16 x1, y1, x2, y2;
    } places[] = {
        {"top left, under the toolbar", 0, 0, 80, 60},
        {"top right", right, 0, (i16)(right + 80), 60},
        {"bottom left", 0, bottom, 80, (i16)(bottom + 60)},
        {"bottom right", right, bottom, (i16)(right + 80), (i16)(bottom + 60)},
    };
    T_RPOS bar = {Main()->toolbar->x, Main()->toolbar->y, Main()->toolbar->w, Main()->toolbar->h};
    for (const auto &p : places) {
        t_Window *page = CreatePageWindow(main_window, (char *)"Edge", 0x7C, p.x1, p.y1, p.x2, p.y2);
        ASSERT_NE(page, nullptr);
        SetActivePage(page, page);
        ISetActiveWindow(page);
        for (const char *title : {"Quillform warning", SAVE_AS_TITLE}) {
            SCOPED_TRACE(std::string(p.where) + ": " + title);
            if (strcmp(title, SAVE_AS_TITLE) == 0)
                UserKey(KEY_CTRL('W'), QUAL_CONTROL);
            else  // as the duplicate item code warning opens
                NewMsgBox(page, title,
                          "Duplicate item codes were found in this page, duplicate item codes "
                          "have been remapped.",
                          64, 22);
            t_Window *w = FindWindowByName(page, title);
            ASSERT_NE(w, nullptr);
            EXPECT_GE(w->x, 0);
            EXPECT_GE(w->y, 0);
            EXPECT_LE(w->x + w->w, SCREEN_W);
            EXPECT_LE(w->y + w->h, SCREEN_H);
            T_RPOS over = {w->x, w->y, w->w, w->h};
            if (RectIntersect(&over, &bar)) {  // the toolbar's place there is the window's
                EXPECT_EQ(WindowAtPoint((i16)(over.x + over.w / 2), (i16)(over.y + over.h / 2), NULL), w);
            }
            SendWindowMessage(w, 0, ACT_TERMINATE, NULL);
        }
        SendWindowMessage(page, 0, ACT_TERMINATE, NULL);
        UserTurns(1);
    }
}
