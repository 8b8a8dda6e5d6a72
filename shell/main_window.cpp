// The main window's message function: the window's own messages, then every command by its item
// code, acting on the active page where the command needs one.
#include "shell/main_window.h"

#include <stdio.h>
#include <string.h>

#include "editor/clipboard.h"
#include "editor/mouse_editing.h"
#include "editor/page_commands.h"
#include "editor/page_window.h"
#include "editor/preview.h"
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
        RefreshMainMenus(main_window, (T_WINEDIT_HANDLER *)window->user_data);
    } else {
        main_window->title_suffix = NULL;
        RefreshMainMenus(main_window, NULL);
    }
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
    SaveDocument(page, (T_WINEDIT_HANDLER *)page->user_data, 0);
}

// Sets, clears or toggles the selection mark of every gadget of the page.
static void MarkAllGadgets(t_Window *page, u32 command)
{
    t_Gaget_Handler *handler = FindGadgetHandler(page);
    if (!handler)
        return;
    for (t_gadget *g = handler->first_gadget; g->next; g = g->next) {
        if (command == CMD_SELECT_ALL)
            g->live_flags |= GADGET_MARK_SELECTED;
        else if (command == CMD_SELECT_NONE)
            g->live_flags &= ~GADGET_MARK_SELECTED;
        else
            g->live_flags ^= GADGET_MARK_SELECTED;
    }
}

// The commands of the clipboard and Flip Horizontal on the active page; the menus follow.
static void PageCommand(t_Window *page, u32 command)
{
    switch (command) {
    case CMD_CUT:
        CutGadgets(page);
        break;
    case CMD_COPY:
        CopyGadgets(page);
        break;
    case CMD_PASTE:
        PasteGadgets(page);
        break;
    case CMD_FLIP_HORIZONTAL:
        FlipMarkedGadgets(page);
        break;
    }
    TellMainWindow(page, 0);
}

// Enters tab-order mode: the gadgets without a number take the one after the gadget before them.
static void EnterTabOrder(t_Window *page, T_WINEDIT_HANDLER *record)
{
    record->edit_state |= EDIT_TAB_ORDER;
    record->tab_next = 1;
    t_Gaget_Handler *handler = FindGadgetHandler(page);
    if (!handler)
        return;
    u32 counter = 1;
    for (t_gadget *g = handler->first_gadget; g->next; g = g->next) {
        if (g->tab_index == 0)
            g->tab_index = counter++;
        else
            counter = g->tab_index + 1;
    }
}

// Takes one step back or forth in the page's history.
static void StepHistory(t_Window *main_window, t_Window *page, T_WINEDIT_HANDLER *record, int forward)
{
    if (forward)
        Redo(&record->undo);
    else
        Undo(&record->undo);
    if (t_Gaget_Handler *handler = FindGadgetHandler(page))
        handler->current_gadget = NULL;
    RecalcUserSize(page);
    if (forward)
        page->state_flags |= WSF_MODIFIED;
    else if (!CanUndo(&record->undo))
        page->state_flags &= ~WSF_MODIFIED;
    SendWindowMessage(main_window, MENU_EDIT, ACT_MENU_OPEN, NULL);
}

static void ShowAbout(t_Window *main_window)
{
    t_Window *box = NewMsgBox(main_window, TXT_ABOUT_TITLE, TXT_ABOUT_TEXT, 64, ITEM_MAIN_MESSAGE_BOX);
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
            !((T_WINEDIT_HANDLER *)child->user_data)->drop_at_exit)
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
            ((T_WINEDIT_HANDLER *)page->user_data)->drop_at_exit = 1;
        else if (answer != PAGE_QUERY_SAVED && answer != PAGE_QUERY_DROPPED) {
            answered = 0;
            break;
        }
    }
    for (t_Window *child = main_window->first_child; child->next; child = child->next) {
        if (!IsPageWindow(child) || !IsWindowLive(child))
            continue;
        T_WINEDIT_HANDLER *page_record = (T_WINEDIT_HANDLER *)child->user_data;
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

// The commands, by item code. `page` and `page_record` are null without an active page; the rows
// that need one do nothing then.
static void DispatchItem(t_Window *window, T_WINEDIT_MAIN *record, u32 item_code, void *data)
{
    t_Window *page = record->active_page;
    T_WINEDIT_HANDLER *page_record = page ? (T_WINEDIT_HANDLER *)page->user_data : NULL;
    switch (item_code) {
    case ITEM_RECENT_OR_DROP: {  // a recent file of the "File" menu: data is the entry
        t_Menu *entry = (t_Menu *)data;
        T_RECENT_FILE *recent = entry ? (T_RECENT_FILE *)entry->user_data : NULL;
        if (recent) {
            char path[1024], directory[1024];
            snprintf(path, sizeof(path), "%s", recent->name);
            XGetPath(directory, path);
            SetLastPath(directory);
            OpenDocument(window, path, OPEN_BY_RECENT);
        }
        break;
    }
    case CMD_OPEN:
        OpenDocumentSelector(window);
        break;
    case CMD_CLOSE:  // the active page asks to close
        if (page)
            ClosePage(page);
        break;
    case CMD_CLOSE_ALL:  // every page, one query at a time
        ForEachPage(window, ClosePage);
        break;
    case CMD_SAVE:  // writes at once when the page has a file
        if (page)
            SaveDocument(page, page_record, 0);
        break;
    case CMD_SAVE_AS:
        if (page)
            SaveDocument(page, page_record, 1);
        break;
    case CMD_SAVE_ALL:
        ForEachPage(window, SavePageDocument);
        break;
    case CMD_EXIT:
        SendWindowMessage(window, 0, ACT_TERMINATE, NULL);
        break;
    case CMD_UNDO:
        if (page)
            StepHistory(window, page, page_record, 0);
        break;
    case CMD_REDO:
        if (page)
            StepHistory(window, page, page_record, 1);
        break;
    case CMD_CUT:  // the active page's gadgets through the clipboard
    case CMD_COPY:
    case CMD_PASTE:
    case CMD_FLIP_HORIZONTAL:
        if (page)
            PageCommand(page, item_code);
        break;
    case CMD_SELECT_ALL:
    case CMD_SELECT_NONE:
    case CMD_INVERSE_SELECTION:
        if (page)
            MarkAllGadgets(page, item_code);
        break;
    case CMD_REORDER_ITEM_CODES:  // the saved codes and the toolkit's, from 1 in list order
        if (page)
            ReorderItemCodes(page);
        break;
    case CMD_CENTRE_HORIZONTAL:
        if (page)
            CentreMarkedGadgets(page, CENTRE_HORIZONTAL);
        break;
    case CMD_CENTRE_VERTICAL:
        if (page)
            CentreMarkedGadgets(page, CENTRE_VERTICAL);
        break;
    case CMD_SIZE_TO_CONTENT:
        if (page)
            SizeMarkedToContents(page);
        break;
    case CMD_TAB_ORDER:
        if (page)
            EnterTabOrder(page, page_record);
        break;
    case CMD_KEYBOARD:
        OpenApplicationCmdEditWindow(window, record->application);
        break;
    case CMD_PREVIEW:  // the active page as the finished program
        if (page)
            OpenPreview(page);
        break;
    case CMD_SETTINGS:  // needs no page
        SetSettingsBoxes(OpenSettingsDialog(window));
        break;
    case ITEM_ABOUT:
        ShowAbout(window);
        break;
    default:  // the toolbar's codes and everything else
        break;
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
        return (u8)ExecuteAppCommand(record->application, NULL, (T_KEY_MSG *)data);
    case ACT_MENU_OPEN:  // fresh greying before a menu shows
        RefreshMainMenus(window, record->active_page ? (T_WINEDIT_HANDLER *)record->active_page->user_data : NULL);
        return 0;
    case ACT_RECEIVE_OBJECT:  // a file dropped from the desktop
        if (item_code == ITEM_RECENT_OR_DROP && data) {
            const T_DROPPED_FILE *dropped = (const T_DROPPED_FILE *)data;
            char path[1024];
            MakeFilename(path, dropped->directory, dropped->name);
            OpenDocument(window, path, OPEN_BY_DROP);
        }
        return 0;
    case ACT_REQUESTER_OK:  // the "Open Source file" selector answered
        if (item_code == ITEM_OPEN_SELECTOR && data) {
            const T_FILE_REQUESTER_ANSWER *answer = (const T_FILE_REQUESTER_ANSWER *)data;
            char path[1024];
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
