// The main window's message function: the window's own messages, then every command by its item
// code, acting on the active page where the command needs one.
#include "shell/main_window.h"

#include <stdio.h>
#include <string.h>

#include "editor/page_commands.h"
#include "editor/page_operations.h"
#include "editor/page_window.h"
#include "shell/commands.h"
#include "shell/menus.h"
#include "shell/settings_dialog.h"
#include "shell/texts.h"

T_WINEDIT_MAIN *FindMainRecord(t_Window *main_window)
{
    if (!main_window || LIST_EMPTY(&main_window->handlers))
        return NULL;
    return (T_WINEDIT_MAIN *)FindNode(main_window->handlers.first, MAIN_HANDLER_NAME);
}

void SetActivePage(t_Window *window, t_Window *page)
{
    t_Window *main_window = window->parent;
    if (!main_window || !main_window->user_data)
        return;
    T_WINEDIT_MAIN *record = (T_WINEDIT_MAIN *)main_window->user_data;
    record->active_page = page;
    if (page) {
        main_window->title_suffix = window->name;
        RefreshMainMenus(main_window, PageRecordOf(window));
    } else {
        main_window->title_suffix = NULL;
        RefreshMainMenus(main_window, NULL);
    }
}

// What the pages get of the main window: each function finds the main window's record first, and
// does nothing for a window that has none.
static void RefreshPageMenus(t_Window *main_window, T_WINEDIT_HANDLER *record)
{
    if (FindMainRecord(main_window))
        RefreshMainMenus(main_window, record);
}

static u32 RunKeyCommand(t_Window *main_window, T_KEY_MSG *key)
{
    T_WINEDIT_MAIN *record = FindMainRecord(main_window);
    return record ? ExecuteAppCommand(record->application, NULL, key) : 0;
}

static T_TOOLBAR_HANDLER *MainToolBar(t_Window *main_window)
{
    T_WINEDIT_MAIN *record = FindMainRecord(main_window);
    return record && record->toolbar ? (T_TOOLBAR_HANDLER *)record->toolbar->user_data : NULL;
}

void FillPageHost(T_PAGE_HOST *host)
{
    host->set_active_page = SetActivePage;
    host->refresh_menus = RefreshPageMenus;
    host->run_key = RunKeyCommand;
    host->toolbar = MainToolBar;
}

// Calls `fn` for every page among the main window's children. The next child is fetched before
// the page is handled, because closing removes it from the list.
static void ForEachPage(t_Window *main_window, void (*fn)(t_Window *page))
{
    t_Window *child = main_window->first_child;
    while (child->next) {
        t_Window *following = child->next;
        if (IsPageWindow(child))
            fn(child);
        child = following;
    }
}

static void ClosePage(t_Window *page)
{
    SendWindowMessage(page, 0, ACT_TERMINATE, NULL);
}

static void SavePageDocument(t_Window *page)
{
    SaveDocument(page, PageRecordOf(page), 0);
}

static void SavePageDocumentAs(t_Window *page)
{
    SaveDocument(page, PageRecordOf(page), 1);
}

static void CloseAllPages(t_Window *main_window)
{
    ForEachPage(main_window, ClosePage);
}

static void SaveAllPages(t_Window *main_window)
{
    ForEachPage(main_window, SavePageDocument);
}

static void ExitModule(t_Window *main_window)
{
    SendWindowMessage(main_window, 0, ACT_TERMINATE, NULL);
}

static void OpenKeyboardWindow(t_Window *main_window)
{
    OpenApplicationCmdEditWindow(main_window, FindMainRecord(main_window)->application);
}

static void OpenSettings(t_Window *main_window)
{
    SetSettingsBoxes(OpenSettingsDialog(main_window));
}

static void ShowAbout(t_Window *main_window)
{
    t_Window *box = NewMsgBox(main_window, TXT_ABOUT_TITLE, TXT_ABOUT_TEXT, MSGBOX_INFO, ITEM_MAIN_MESSAGE_BOX);
    if (box) {
        box->icon_bank = NULL;
        SetMessageBoxIcon(box, main_window->icon_bank, 0);
    }
}

// The first page that is modified and hasn't answered the exit's query with No, or null.
static t_Window *NextPageToAsk(t_Window *main_window)
{
    for (t_Window *child = main_window->first_child; child->next; child = child->next)
        if (IsPageWindow(child) && IsWindowLive(child) && (child->state_flags & WSF_MODIFIED) &&
            !PageRecordOf(child)->drop_at_exit)
            return child;
    return NULL;
}

// Asks every modified page before any page closes, so that a Cancel, or a save that fails or is
// given up, leaves every page as it was. A page answered No is marked to go without its changes;
// one saved and changed again while a later query stood is asked again. True when every page
// answered; the pages marked No are then clean, to go without asking.
static int AskModifiedPages(t_Window *main_window)
{
    int answered = 1;
    while (t_Window *page = NextPageToAsk(main_window)) {
        int answer = AskToSavePage(page);
        if (answer == PAGE_QUERY_DROPPED && IsWindowLive(page))
            PageRecordOf(page)->drop_at_exit = 1;
        else if (answer != PAGE_QUERY_SAVED && answer != PAGE_QUERY_DROPPED) {
            answered = 0;
            break;
        }
    }
    for (t_Window *child = main_window->first_child; child->next; child = child->next) {
        if (!IsPageWindow(child) || !IsWindowLive(child))
            continue;
        T_WINEDIT_HANDLER *page_record = PageRecordOf(child);
        if (answered && page_record->drop_at_exit)
            child->state_flags &= ~WSF_MODIFIED;
        page_record->drop_at_exit = 0;
    }
    return answered;
}

// The end of the module: every modified page asks first, and nothing closes before all have
// answered. Then the open documents are remembered (a page saved under a new name in its query
// among them), the pages go, and the settings are stored. It runs once: an exit asked for while
// one is under way (from inside a query's wait) or after the end does nothing.
static void EndModule(t_Window *main_window, T_WINEDIT_MAIN *record)
{
    if (_TenureBase->session_state != SESSION_RUNNING)
        return;
    _TenureBase->session_state = SESSION_ENDING;
    if (!AskModifiedPages(main_window)) {
        if (_TenureBase->session_state != SESSION_ENDED)
            _TenureBase->session_state = SESSION_RUNNING;
        return;  // a query was cancelled: the module goes on, with every page
    }
    const char *old_backup_path = editor_config->backup_path;
    StoreOpenDocuments(main_window, editor_config, record->toolbar);
    RepointSettingsDialogs(main_window, old_backup_path);
    if (!WaitForNDependantWindowLeft(main_window, 1))
        return;  // a page changed meanwhile and its query was cancelled: the module goes on
    record->toolbar->extra_flags |= TOOLBAR_EXTRA_ENDING;
    EmptyList(&gadget_context_menu.items, sizeof(t_Menu));
    SaveAndCloseSessionApplication(main_window, record->tool_setup);
}

// A recent file of the "File" menu was picked: `entry` is its menu entry.
static void OpenRecentEntry(t_Window *main_window, t_Menu *entry)
{
    T_RECENT_FILE *recent = entry ? (T_RECENT_FILE *)entry->user_data : NULL;
    if (!recent)
        return;
    char path[FILE_PATH_SIZE], directory[FILE_PATH_SIZE];
    snprintf(path, sizeof(path), "%s", recent->name);
    XGetPath(directory, path);
    SetLastPath(directory);
    OpenDocument(main_window, path, OPEN_BY_RECENT);
}

enum { ON_MAIN, ON_PAGE };

typedef struct T_ITEM_ROW {
    u32 item_code;
    u8 needs_page;                               // ON_PAGE: runs on the active page, and does nothing without one
    void (*run)(t_Window *window);               // given the active page, or else the main window
    void (*run_form)(t_Window *page, u32 form);  // or a page command of several forms, given `form`
    u32 form;
} T_ITEM_ROW;

// The commands, by item code. Any other code (the toolbar's among them) does nothing.
// clang-format off
//   item code               needs a page function              or, with a form        form
static const T_ITEM_ROW item_table[] = {
    {CMD_OPEN,               ON_MAIN, OpenDocumentSelector,  NULL,                  0},
    {CMD_CLOSE,              ON_PAGE, ClosePage,             NULL,                  0},  // the page asks to close
    {CMD_CLOSE_ALL,          ON_MAIN, CloseAllPages,         NULL,                  0},  // one query at a time
    {CMD_SAVE,               ON_PAGE, SavePageDocument,      NULL,                  0},  // at once with a file
    {CMD_SAVE_AS,            ON_PAGE, SavePageDocumentAs,    NULL,                  0},
    {CMD_SAVE_ALL,           ON_MAIN, SaveAllPages,          NULL,                  0},
    {CMD_EXIT,               ON_MAIN, ExitModule,            NULL,                  0},
    {CMD_UNDO,               ON_PAGE, NULL,                  StepHistory,           HISTORY_BACK},
    {CMD_REDO,               ON_PAGE, NULL,                  StepHistory,           HISTORY_FORTH},
    {CMD_CUT,                ON_PAGE, NULL,                  EditMarkedGadgets,     EDIT_CUT},  // via the clipboard
    {CMD_COPY,               ON_PAGE, NULL,                  EditMarkedGadgets,     EDIT_COPY},
    {CMD_PASTE,              ON_PAGE, NULL,                  EditMarkedGadgets,     EDIT_PASTE},
    {CMD_SELECT_ALL,         ON_PAGE, NULL,                  MarkAllGadgets,        MARK_SET},
    {CMD_SELECT_NONE,        ON_PAGE, NULL,                  MarkAllGadgets,        MARK_CLEAR},
    {CMD_INVERSE_SELECTION,  ON_PAGE, NULL,                  MarkAllGadgets,        MARK_TOGGLE},
    {CMD_REORDER_ITEM_CODES, ON_PAGE, ReorderItemCodes,      NULL,                  0},  // saved codes and toolkit's
    {CMD_SETTINGS,           ON_MAIN, OpenSettings,          NULL,                  0},
    {CMD_CENTRE_HORIZONTAL,  ON_PAGE, NULL,                  CentreMarkedGadgets,   CENTRE_HORIZONTAL},
    {CMD_CENTRE_VERTICAL,    ON_PAGE, NULL,                  CentreMarkedGadgets,   CENTRE_VERTICAL},
    {CMD_SIZE_TO_CONTENT,    ON_PAGE, SizeMarkedToContents,  NULL,                  0},
    {CMD_FLIP_HORIZONTAL,    ON_PAGE, NULL,                  EditMarkedGadgets,     EDIT_FLIP},
    {CMD_TAB_ORDER,          ON_PAGE, EnterTabOrder,         NULL,                  0},
    {CMD_KEYBOARD,           ON_MAIN, OpenKeyboardWindow,    NULL,                  0},
    {CMD_PREVIEW,            ON_PAGE, PreviewPage,           NULL,                  0},  // as the finished program
    {ITEM_ABOUT,             ON_MAIN, ShowAbout,             NULL,                  0},
};
// clang-format on

// A command by its item code: the recent file's entry, or a row of the table.
static void DispatchItem(t_Window *window, T_WINEDIT_MAIN *record, u32 item_code, void *data)
{
    if (item_code == ITEM_RECENT_OR_DROP) {
        OpenRecentEntry(window, (t_Menu *)data);
        return;
    }
    for (const T_ITEM_ROW &row : item_table) {
        if (row.item_code != item_code)
            continue;
        t_Window *target = row.needs_page == ON_MAIN ? window : record->active_page;
        if (!target)
            return;
        if (row.run_form)
            row.run_form(target, row.form);
        else
            row.run(target);
        return;
    }
}

u32 MainWindowMsg(t_Window *window, u32 item_code, u32 msg, void *data)
{
    T_WINEDIT_MAIN *record = FindMainRecord(window);
    if (!record)
        return 0;
    switch (msg) {
    case ACT_TERMINATE:  // close gadget, Alt+F4 or Exit
        EndModule(window, record);
        return 0;
    case ACT_KEY:  // a key runs its command
        return (u8)RunKeyCommand(window, (T_KEY_MSG *)data);
    case ACT_MENU_OPEN:  // fresh greying before a menu shows
        RefreshMainMenus(window, PageRecordOf(record->active_page));
        return 0;
    case ACT_RECEIVE_OBJECT:  // a file dropped from the desktop
        if (item_code == ITEM_RECENT_OR_DROP && data) {
            const T_DROPPED_FILE *dropped = (const T_DROPPED_FILE *)data;
            char path[FILE_PATH_SIZE];
            MakeFilename(path, dropped->directory, dropped->name);
            OpenDocument(window, path, OPEN_BY_DROP);
        }
        return 0;
    case ACT_REQUESTER_OK:  // the "Open Source file" selector answered
        if (item_code == ITEM_OPEN_SELECTOR && data) {
            const T_FILE_REQUESTER_ANSWER *answer = (const T_FILE_REQUESTER_ANSWER *)data;
            char path[FILE_PATH_SIZE];
            MakeFilename(path, answer->directory, answer->name);
            SetLastPath(answer->directory);
            OpenDocument(window, path, OPEN_BY_SELECTOR);
        }
        return 0;
    case ACT_FIRSTTIME_RUN:  // the recent files, then the documents of the last run
        RefreshRecentFiles(window, NULL);
        ReopenDocuments(window);
        return 0;
    default:
        DispatchItem(window, record, item_code, data);
        return 0;
    }
}
