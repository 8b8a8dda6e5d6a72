// A page's two context menus, built from their tables: "Multiple Modify", which every gadget
// opens with the right button, and the page's own "WindowBase" on its background; and their
// greying before they open.
#include "editor/context_menus.h"

#include <string.h>

#include "editor/clipboard.h"
#include "editor/menu_rows.h"
#include "editor/texts.h"

// clang-format off
//   what                label                    item code                     shortcut
static const T_MENU_ROW gadget_menu_table[] = {
    {MENU_ROW_ENTRY,     "Cut",                   GADGET_MENU_CUT,              'X'},
    {MENU_ROW_ENTRY,     "Copy",                  GADGET_MENU_COPY,             'C'},
    {MENU_ROW_ENTRY,     "Paste",                 GADGET_MENU_PASTE,            'V'},
    {MENU_ROW_SEPARATOR, "",                      0,                            0},
    {MENU_ROW_ENTRY,     "Size to contents",      GADGET_MENU_SIZE_TO_CONTENTS, 'z'},
    {MENU_ROW_ENTRY,     "Align left edges",      GADGET_MENU_ALIGN_LEFT,       'l'},
    {MENU_ROW_ENTRY,     "Align top edges",       GADGET_MENU_ALIGN_TOP,        't'},
    {MENU_ROW_ENTRY,     "Apply same dimensions", GADGET_MENU_SAME_SIZE,        's'},
    {MENU_ROW_SEPARATOR, "",                      0,                            0},
    {MENU_ROW_ENTRY,     "Properties",            GADGET_MENU_PROPERTIES,       'P'},
    {MENU_ROW_ENTRY,     "Actions...",            PAGE_MENU_ACTIONS,            'A'},
    {MENU_ROW_ENTRY,     "Choose Font...",        PAGE_MENU_CHOOSE_FONT,        'F'},
    {MENU_ROW_ENTRY,     "Delete...",             PAGE_MENU_DELETE,             'D'},
    {MENU_ROW_SEPARATOR, "",                      0,                            0},
    {MENU_ROW_ENTRY,     "Window Properties",     PAGE_MENU_WINDOW_PROPERTIES,  'W'},
};

// The page background's menu.
static const T_MENU_ROW page_menu_table[] = {
    {MENU_ROW_ENTRY,     "Resize to contents",    PAGE_MENU_RESIZE_TO_CONTENTS, 'R'},
    {MENU_ROW_ENTRY,     "Delete",                PAGE_MENU_DELETE,             'D'},
    {MENU_ROW_SEPARATOR, "",                      0,                            0},
    {MENU_ROW_ENTRY,     "Window Properties",     PAGE_MENU_WINDOW_PROPERTIES,  'W'},
};
// clang-format on

// Makes the rows' entries in `menu` through the menu handler.
static void AddMenuRows(T_MENU_HANDLER *handler, t_Menu *menu, const T_MENU_ROW *rows, u32 count)
{
    const T_MENU_BUILD build = {handler, &menu->items, NULL, NULL};
    BuildMenuRows(&build, rows, count);
}

void BuildGadgetContextMenu(T_MENU_HANDLER *handler)
{
    // A start after a run that the module didn't end (the toolkit closed under it) finds that
    // run's entries still here.
    if (gadget_context_menu.items.first && !LIST_EMPTY(&gadget_context_menu.items))
        EmptyList(&gadget_context_menu.items, sizeof(t_Menu));
    InitContextMenu(&gadget_context_menu, TXT_GADGET_MENU);
    gadget_context_menu.menu_item_code = GADGET_MENU_CODE;
    gadget_context_menu.menu_flags = MENU_FLAG_NOTIFY_OPEN;
    AddMenuRows(handler, &gadget_context_menu, gadget_menu_table,
                sizeof(gadget_menu_table) / sizeof(gadget_menu_table[0]));
}

void BuildPageContextMenu(T_WINEDIT_HANDLER *record)
{
    InitContextMenu(&record->context_menu, TXT_PAGE_MENU);
    // The entries are made through a menu handler of their own, on a list of nothing, which goes
    // when they are made.
    t_List scratch;
    InitList(&scratch, NULL);
    T_MENU_HANDLER *handler = CreateMenuHandler(&scratch);
    AddMenuRows(handler, &record->context_menu, page_menu_table, sizeof(page_menu_table) / sizeof(page_menu_table[0]));
    DelHandler(&handler->head);
}

void SetMenuEntryGrey(t_Menu *menu, u32 item_code, int grey)
{
    t_Menu *entry = menu ? FindMenuByItemCode(menu, item_code) : NULL;
    if (!entry)
        return;
    if (grey)
        entry->menu_flags |= MENU_FLAG_GREY;
    else
        entry->menu_flags &= ~MENU_FLAG_GREY;
}

void GreyClipboardEntries(t_Menu *menu, u32 cut_code, t_Window *page)
{
    // Cut, Copy and Paste have consecutive codes in both menus.
    int can_copy = CanCopyGadgets(page);
    SetMenuEntryGrey(menu, cut_code, !can_copy);
    SetMenuEntryGrey(menu, cut_code + 1, !can_copy);
    SetMenuEntryGrey(menu, cut_code + 2, !ClipboardHoldsGadgets());
}

void GreyGadgetMenu(t_Window *page)
{
    GreyClipboardEntries(&gadget_context_menu, GADGET_MENU_CUT, page);
    t_Gaget_Handler *handler = FindGadgetHandler(page);
    int nothing = handler ? NothingMarked(handler->first_gadget) : 1;
    SetMenuEntryGrey(&gadget_context_menu, GADGET_MENU_ALIGN_LEFT, nothing);
    SetMenuEntryGrey(&gadget_context_menu, GADGET_MENU_ALIGN_TOP, nothing);
}
