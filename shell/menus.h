// The main menu bar, the gadget context menu "Multiple Modify", the gadget toolbar, and the
// greying and Undo/Redo labels of the menus.
#pragma once
#include "page/records.h"

// Menu title item codes.
#define MENU_FILE 0xF000
#define MENU_EDIT 0xF001
#define MENU_LAYOUT 0xF002
#define MENU_TOOLS 0xF003
#define MENU_HELP 0xF004
#define MENU_CENTRE 0xF020

// The gadget context menu's item codes, which reach the page's message function.
#define GADGET_MENU_CODE 0xE000
#define GADGET_MENU_CUT 0xE001
#define GADGET_MENU_COPY 0xE002
#define GADGET_MENU_PASTE 0xE003
#define GADGET_MENU_SIZE_TO_CONTENTS 0xE004
#define GADGET_MENU_ALIGN_LEFT 0xE005
#define GADGET_MENU_ALIGN_TOP 0xE006
#define GADGET_MENU_SAME_SIZE 0xE007
#define GADGET_MENU_PROPERTIES 0xE00F
#define PAGE_MENU_RESIZE_TO_CONTENTS 0xF001
#define PAGE_MENU_WINDOW_PROPERTIES 0xF002
#define PAGE_MENU_ACTIONS 0xF003
#define PAGE_MENU_CHOOSE_FONT 0xF004
#define PAGE_MENU_DELETE 0xF005

#define STANDARD_SAVE_ICON 16

void BuildMainMenus(t_Window *main_window, T_APPLICATION *application);
void BuildGadgetContextMenu(T_MENU_HANDLER *handler);
void RefreshMainMenus(t_Window *main_window, T_WINEDIT_HANDLER *record);
// Greys Cut and Copy (cut_code, cut_code + 1) when the page has nothing they would act on, and
// Paste (cut_code + 2) when the clipboard holds no GADGET block; else they are active.
void GreyClipboardEntries(t_Menu *menu, u32 cut_code, t_Window *page);
t_Window *CreateGadgetToolBar(t_Window *main_window);
