// The rows of the menu tables (the main menu bar, the page's context menus) and their builder.
#pragma once
#include "page/records.h"

// What a row of a menu table makes.
enum {
    MENU_ROW_ENTRY,  // a plain entry
    MENU_ROW_SEPARATOR,
    MENU_ROW_TITLE,         // a title of the bar; the entries that follow go under it
    MENU_ROW_COMMAND,       // an entry made from a registered command, which shows its key
    MENU_ROW_COMMAND_SAVE,  // the same, with the standard bank's Save icon
    MENU_ROW_SUBMENU,       // a sub-menu; the rows that follow go into it until MENU_ROW_SUBMENU_END
    MENU_ROW_SUBMENU_END,
    MENU_ROW_PLACE,  // where the caller adds entries of its own (the recent files)
};

#define STANDARD_SAVE_ICON 16  // the Save icon of the display's standard bank

typedef struct T_MENU_ROW {
    u8 what;            // MENU_ROW_
    const char *label;  // null for a command: the command's own name
    u32 item_code;
    u8 shortcut;
} T_MENU_ROW;

// What the rows are built into: the handler, the list that takes the entries (null: the title
// made last), the application whose commands the command rows are, and the function that fills a
// MENU_ROW_PLACE row, given the title above it.
typedef struct T_MENU_BUILD {
    T_MENU_HANDLER *handler;
    t_List *parent_list;
    T_APPLICATION *application;
    void (*fill_place)(const struct T_MENU_BUILD *build, t_Menu *title);
} T_MENU_BUILD;

// Makes the entries of `count` rows, in order.
void BuildMenuRows(const T_MENU_BUILD *build, const T_MENU_ROW *rows, u32 count);
