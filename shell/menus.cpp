// Builds the main menu bar and the gadget toolbar from their tables, and keeps the entries'
// greying and the Undo and Redo labels up to date.
#include "shell/menus.h"

#include <stdio.h>
#include <string.h>

#include "editor/context_menus.h"
#include "page/catalogue.h"
#include "shell/commands.h"
#include "shell/main_window.h"

// What a row of the menu tree is.
enum {
    ROW_TITLE,        // a title of the bar
    ROW_COMMAND,      // an entry made from a registered command
    ROW_COMMAND_SAVE, // the same, with the standard bank's Save icon
    ROW_ENTRY,        // a plain entry
    ROW_SUBMENU,      // a sub-menu; the rows that follow go into it until ROW_SUBMENU_END
    ROW_SUBMENU_END,
    ROW_SEPARATOR,
    ROW_RECENT_FILES, // where the recent files stand
};

typedef struct T_MENU_ROW {
    u8 what;
    const char *label;
    u32 item_code;
    u8 shortcut;
} T_MENU_ROW;

//  what               label               item code              shortcut
static const T_MENU_ROW main_menu_table[] = {
    {ROW_TITLE, "File", MENU_FILE, 'F'},
    {ROW_COMMAND, NULL, CMD_OPEN, 0},
    {ROW_COMMAND, NULL, CMD_CLOSE, 0},
    {ROW_COMMAND, NULL, CMD_CLOSE_ALL, 0},
    {ROW_SEPARATOR, "", 0, 0},
    {ROW_COMMAND_SAVE, NULL, CMD_SAVE, 0},
    {ROW_COMMAND_SAVE, NULL, CMD_SAVE_AS, 0},
    {ROW_COMMAND_SAVE, NULL, CMD_SAVE_ALL, 0},
    {ROW_RECENT_FILES, NULL, 0, 0},
    {ROW_SEPARATOR, "", 0, 0},
    {ROW_COMMAND, NULL, CMD_EXIT, 0},
    {ROW_TITLE, "Edit", MENU_EDIT, 'E'},
    {ROW_COMMAND, NULL, CMD_UNDO, 0},
    {ROW_COMMAND, NULL, CMD_REDO, 0},
    {ROW_SEPARATOR, "", 0, 0},
    {ROW_COMMAND, NULL, CMD_CUT, 0},
    {ROW_COMMAND, NULL, CMD_COPY, 0},
    {ROW_COMMAND, NULL, CMD_PASTE, 0},
    {ROW_SEPARATOR, "", 0, 0},
    {ROW_COMMAND, NULL, CMD_SELECT_ALL, 0},
    {ROW_COMMAND, NULL, CMD_SELECT_NONE, 0},
    {ROW_COMMAND, NULL, CMD_INVERSE_SELECTION, 0},
    {ROW_SEPARATOR, "", 0, 0},
    {ROW_COMMAND, NULL, CMD_REORDER_ITEM_CODES, 0},
    {ROW_SEPARATOR, "", 0, 0},
    {ROW_COMMAND, NULL, CMD_SETTINGS, 0},
    {ROW_TITLE, "Layout", MENU_LAYOUT, 'E'},  // the same letter as "Edit"
    {ROW_SUBMENU, "Centre in window", MENU_CENTRE, 'C'},
    {ROW_COMMAND, NULL, CMD_CENTRE_HORIZONTAL, 0},
    {ROW_COMMAND, NULL, CMD_CENTRE_VERTICAL, 0},
    {ROW_SUBMENU_END, NULL, 0, 0},
    {ROW_COMMAND, NULL, CMD_SIZE_TO_CONTENT, 0},
    {ROW_COMMAND, NULL, CMD_FLIP_HORIZONTAL, 0},
    {ROW_SEPARATOR, "", 0, 0},
    {ROW_COMMAND, NULL, CMD_TAB_ORDER, 0},
    {ROW_TITLE, "Tools", MENU_TOOLS, 'T'},
    {ROW_COMMAND, NULL, CMD_KEYBOARD, 0},
    {ROW_COMMAND, NULL, CMD_PREVIEW, 0},
    {ROW_TITLE, "Help", MENU_HELP, 'H'},
    {ROW_ENTRY, "About", ITEM_ABOUT, 'A'},
};

void BuildMainMenus(t_Window *main_window, T_APPLICATION *application)
{
    T_MENU_HANDLER *handler = NewMenuHandler(main_window);
    T_MENUOBJECTINIT init;
    memset(&init, 0, sizeof(init));
    t_Menu *file_menu = NULL;
    for (const T_MENU_ROW &row : main_menu_table) {
        init.item_code = row.item_code;
        init.shortcut = row.shortcut;
        switch (row.what) {
        case ROW_TITLE:  // a title; the entries that follow go under it
            init.kind = MENU_KIND_TITLE;
            init.parent_list = NULL;
            {
                t_Menu *title = (t_Menu *)CreateObject(&handler->head, row.label, &init);
                if (row.item_code == MENU_FILE)
                    file_menu = title;
            }
            break;
        case ROW_COMMAND:  // a command, which shows its key
            AddApplicationCmdMenu(application, handler, &init, row.item_code);
            break;
        case ROW_COMMAND_SAVE:  // the Save commands carry the standard Save icon
            init.icon_bank = DISPLAY_RECORD->icon_bank;
            init.icon = STANDARD_SAVE_ICON;
            AddApplicationCmdMenu(application, handler, &init, row.item_code);
            init.icon_bank = NULL;
            init.icon = 0;
            break;
        case ROW_ENTRY:  // a plain entry
            init.kind = MENU_KIND_ENTRY;
            CreateObject(&handler->head, row.label, &init);
            break;
        case ROW_SUBMENU:  // the entries that follow go into the sub-menu
            init.kind = MENU_KIND_SUBMENU;
            init.parent_list = (t_List *)CreateObject(&handler->head, row.label, &init);
            break;
        case ROW_SUBMENU_END:
            init.parent_list = NULL;
            break;
        case ROW_SEPARATOR:
            init.kind = MENU_KIND_SEPARATOR;
            init.item_code = 0;
            CreateObject(&handler->head, "", &init);
            break;
        case ROW_RECENT_FILES:  // the recent files stand here, behind "Save all"
            AddRecentFilesToMenu(handler, file_menu, application, RECENT_FILE_TYPE, ITEM_RECENT_OR_DROP);
            break;
        }
    }
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

// Sets an Undo or Redo entry's label from the node next in turn, or greys it with the plain word.
static void SetHistoryLabel(t_Window *main_window, t_Menu *edit_menu, u32 item_code, int possible,
                            T_UNDO_NODE *node, const char *word)
{
    t_Menu *entry = FindMenuByItemCode(edit_menu, item_code);
    if (!entry)
        return;
    char label[256];
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
                    "Undo");
    SetHistoryLabel(main_window, edit_menu, CMD_REDO, CanRedo(&record->undo), GetCurrentRedoNode(&record->undo),
                    "Redo");
}
