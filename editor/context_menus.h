// A page's two context menus: "Multiple Modify" on a gadget and "WindowBase" on the background,
// their item codes, their building and their greying.
#pragma once
#include "page/records.h"

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
// The items that a page takes from both menus.
#define PAGE_MENU_RESIZE_TO_CONTENTS 0xF001
#define PAGE_MENU_WINDOW_PROPERTIES 0xF002
#define PAGE_MENU_ACTIONS 0xF003
#define PAGE_MENU_CHOOSE_FONT 0xF004
#define PAGE_MENU_DELETE 0xF005

// Builds "Multiple Modify", which every gadget of every page opens, through a menu handler (the
// main window's).
void BuildGadgetContextMenu(T_MENU_HANDLER *handler);
// Builds the page's own "WindowBase" menu in its record.
void BuildPageContextMenu(T_WINEDIT_HANDLER *record);
// Before "Multiple Modify" opens on the page: the alignment entries are grey when nothing is
// marked, and Cut, Copy and Paste as GreyClipboardEntries says.
void GreyGadgetMenu(t_Window *page);
// Greys Cut and Copy (cut_code, cut_code + 1) when the page has nothing they would act on, and
// Paste (cut_code + 2) when the clipboard holds no GADGET block; else they are active. For this
// menu and the main window's Edit menu alike.
void GreyClipboardEntries(t_Menu *menu, u32 cut_code, t_Window *page);
// Greys the entry of that code in the menu, or makes it active; no such entry, nothing.
void SetMenuEntryGrey(t_Menu *menu, u32 item_code, int grey);
