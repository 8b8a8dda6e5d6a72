// Builds the main menu bar and the gadget toolbar from their tables, and keeps the entries'
// greying and the Undo and Redo labels up to date.
#include "shell/menus.h"

#include <stdio.h>
#include <string.h>

#include "editor/context_menus.h"
#include "page/catalogue.h"
#include "shell/commands.h"
#include "shell/main_window.h"
#include "shell/texts.h"

// The menu bar, by rows.
// clang-format off
//   what                   label               item code               shortcut
static const T_MENU_ROW main_menu_table[] = {
    {MENU_ROW_TITLE,        "File",             MENU_FILE,              'F'},
    {MENU_ROW_COMMAND,      NULL,               CMD_OPEN,               0},
    {MENU_ROW_COMMAND,      NULL,               CMD_CLOSE,              0},
    {MENU_ROW_COMMAND,      NULL,               CMD_CLOSE_ALL,          0},
    {MENU_ROW_SEPARATOR,    NULL,               0,                      0},
    {MENU_ROW_COMMAND_SAVE, NULL,               CMD_SAVE,               0},
    {MENU_ROW_COMMAND_SAVE, NULL,               CMD_SAVE_AS,            0},
    {MENU_ROW_COMMAND_SAVE, NULL,               CMD_SAVE_ALL,           0},
    {MENU_ROW_PLACE,        NULL,               0,                      0},  // the recent files, behind "Save all"
    {MENU_ROW_SEPARATOR,    NULL,               0,                      0},
    {MENU_ROW_COMMAND,      NULL,               CMD_EXIT,               0},
    {MENU_ROW_TITLE,        "Edit",             MENU_EDIT,              'E'},
    {MENU_ROW_COMMAND,      NULL,               CMD_UNDO,               0},
    {MENU_ROW_COMMAND,      NULL,               CMD_REDO,               0},
    {MENU_ROW_SEPARATOR,    NULL,               0,                      0},
    {MENU_ROW_COMMAND,      NULL,               CMD_CUT,                0},
    {MENU_ROW_COMMAND,      NULL,               CMD_COPY,               0},
    {MENU_ROW_COMMAND,      NULL,               CMD_PASTE,              0},
    {MENU_ROW_SEPARATOR,    NULL,               0,                      0},
    {MENU_ROW_COMMAND,      NULL,               CMD_SELECT_ALL,         0},
    {MENU_ROW_COMMAND,      NULL,               CMD_SELECT_NONE,        0},
    {MENU_ROW_COMMAND,      NULL,               CMD_INVERSE_SELECTION,  0},
    {MENU_ROW_SEPARATOR,    NULL,               0,                      0},
    {MENU_ROW_COMMAND,      NULL,               CMD_REORDER_ITEM_CODES, 0},
    {MENU_ROW_SEPARATOR,    NULL,               0,                      0},
    {MENU_ROW_COMMAND,      NULL,               CMD_SETTINGS,           0},
    {MENU_ROW_TITLE,        "Layout",           MENU_LAYOUT,            'E'},  // the same letter as "Edit"
    {MENU_ROW_SUBMENU,      "Centre in window", MENU_CENTRE,            'C'},
    {MENU_ROW_COMMAND,      NULL,               CMD_CENTRE_HORIZONTAL,  0},
    {MENU_ROW_COMMAND,      NULL,               CMD_CENTRE_VERTICAL,    0},
    {MENU_ROW_SUBMENU_END,  NULL,               0,                      0},
    {MENU_ROW_COMMAND,      NULL,               CMD_SIZE_TO_CONTENT,    0},
    {MENU_ROW_COMMAND,      NULL,               CMD_FLIP_HORIZONTAL,    0},
    {MENU_ROW_SEPARATOR,    NULL,               0,                      0},
    {MENU_ROW_COMMAND,      NULL,               CMD_TAB_ORDER,          0},
    {MENU_ROW_TITLE,        "Tools",            MENU_TOOLS,             'T'},
    {MENU_ROW_COMMAND,      NULL,               CMD_KEYBOARD,           0},
    {MENU_ROW_COMMAND,      NULL,               CMD_PREVIEW,            0},
    {MENU_ROW_TITLE,        "Help",             MENU_HELP,              'H'},
    {MENU_ROW_ENTRY,        "About",            ITEM_ABOUT,             'A'},
};
// clang-format on

// The recent files stand in the "File" menu.
static void AddRecentFiles(const T_MENU_BUILD *build, t_Menu *file_menu)
{
    AddRecentFilesToMenu(build->handler, file_menu, build->application, RECENT_FILE_TYPE, ITEM_RECENT_OR_DROP);
}

void BuildMainMenus(t_Window *main_window, T_APPLICATION *application)
{
    T_MENU_HANDLER *handler = NewMenuHandler(main_window);
    const T_MENU_BUILD build = {handler, NULL, application, AddRecentFiles};
    BuildMenuRows(&build, main_menu_table, sizeof(main_menu_table) / sizeof(main_menu_table[0]));
    BuildGadgetContextMenu(handler);
}

t_Window *CreateGadgetToolBar(t_Window *main_window)
{
    T_TOOLBAR_HANDLER *toolbar = NewToolBar(main_window, "qftoolbar");
    toolbar->window->extra_flags &= ~TOOLBAR_EXTRA_ENDING;
    // The catalogue's rows in order, while they have a label: a button's place is its tool index.
    for (const T_CATALOGUE_ROW *row = catalogue_rows; row < catalogue_rows + TOOL_COUNT && row->label; row++)
        AddToolBarIcon(toolbar, row->label, row->icon, row->item_code);
    return toolbar->window;
}

#define MENU_LABEL_SIZE 256  // an Undo or Redo entry's label: the word and the record's name

// Sets an Undo or Redo entry's label from the node next in turn, or greys it with the plain word.
static void SetHistoryLabel(t_Window *main_window, t_Menu *edit_menu, u32 item_code, int possible, T_UNDO_NODE *node,
                            const char *word)
{
    t_Menu *entry = FindMenuByItemCode(edit_menu, item_code);
    if (!entry)
        return;
    char label[MENU_LABEL_SIZE];
    if (!possible) {
        entry->menu_flags |= MENU_FLAG_GREY;
        snprintf(label, sizeof(label), "%s", word);
    } else if (node) {
        snprintf(label, sizeof(label), "%s %s", word, node->name);
    } else {
        return;
    }
    entry->label = AllocString(label, &entry->label_string);
    entry->menu_width = (u16)(GetStringWidth(entry->label) + 2 * GetActiveFontHeight());
    edit_menu->detached_width = 0;
    SetDetachedMenuWidth(main_window, edit_menu);
}

void RefreshMainMenus(t_Window *main_window, T_WINEDIT_HANDLER *record)
{
    u32 pages = 0;
    for (t_Window *child = main_window->first_child; child->next; child = child->next)
        if (IsPageWindow(child))
            pages++;
    T_MENU_HANDLER *handler = FindMenuHandler(main_window);
    if (!handler)
        return;
    t_Menu *file_menu = FindMenuInHandler(handler, MENU_FILE);
    SetAllMenuItemFlags(file_menu, MENU_FLAG_GREY, 0);
    static const u32 active_page_commands[] = {CMD_CLOSE, CMD_SAVE, CMD_SAVE_AS};
    static const u32 any_page_commands[] = {CMD_CLOSE_ALL, CMD_SAVE_ALL};
    if (!record)
        for (u32 code : active_page_commands)
            if (t_Menu *entry = FindMenuByItemCode(file_menu, code))
                entry->menu_flags |= MENU_FLAG_GREY;
    if (pages == 0)
        for (u32 code : any_page_commands)
            if (t_Menu *entry = FindMenuByItemCode(file_menu, code))
                entry->menu_flags |= MENU_FLAG_GREY;
    t_Menu *edit_menu = FindMenuInHandler(handler, MENU_EDIT);
    SetAllMenuItemFlags(FindMenuInHandler(handler, MENU_LAYOUT), MENU_FLAG_GREY, record == NULL);
    SetAllMenuItemFlags(edit_menu, MENU_FLAG_GREY, record == NULL);
    if (t_Menu *settings = FindMenuByItemCode(edit_menu, CMD_SETTINGS))
        settings->menu_flags &= ~MENU_FLAG_GREY;
    SetMenuEntryGrey(FindMenuInHandler(handler, MENU_TOOLS), CMD_PREVIEW, record == NULL);
    if (!record)
        return;
    GreyClipboardEntries(edit_menu, CMD_CUT, record->head.window);
    SetHistoryLabel(main_window, edit_menu, CMD_UNDO, CanUndo(&record->undo), GetCurrentUndoNode(&record->undo),
                    TXT_UNDO);
    SetHistoryLabel(main_window, edit_menu, CMD_REDO, CanRedo(&record->undo), GetCurrentRedoNode(&record->undo),
                    TXT_REDO);
}
