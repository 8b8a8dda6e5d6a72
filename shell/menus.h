// The main menu bar, the gadget toolbar, and the menus' greying and Undo/Redo labels.
#pragma once
#include "editor/menu_rows.h"
#include "page/records.h"

// Menu title item codes.
#define MENU_FILE 0xF000
#define MENU_EDIT 0xF001
#define MENU_LAYOUT 0xF002
#define MENU_TOOLS 0xF003
#define MENU_HELP 0xF004
#define MENU_CENTRE 0xF020

// Builds the menu bar from its table, and the gadget context menu (editor/context_menus.h) with
// the same handler.
void BuildMainMenus(t_Window *main_window, T_APPLICATION *application);
void RefreshMainMenus(t_Window *main_window, T_WINEDIT_HANDLER *record);
t_Window *CreateGadgetToolBar(t_Window *main_window);
