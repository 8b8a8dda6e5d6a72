// A page's two context menus, built from their tables: "Multiple Modify", which every gadget
// opens with the right button, and the page's own "WindowBase" on its background; and their
// greying before they open.
#include "editor/context_menus.h"

#include <string.h>

#include "editor/clipboard.h"

typedef struct T_CONTEXT_MENU_ROW {
    u16 kind;  // MENU_KIND_ENTRY or MENU_KIND_SEPARATOR
    const char *label;
    u32 item_code;
    u8 shortcut;
} T_CONTEXT_MENU_ROW;

// clang-format off
//  kind                  label                    item code                      shortcut
static const T_CONTEXT_MENU_ROW gadget_menu_table[] = {
    {MENU_KIND_ENTRY,     "Cut",                   GADGET_MENU_CUT,               'X'},
    {MENU_KIND_ENTRY,     "Copy",                  GADGET_MENU_COPY,              'C'},
    {MENU_KIND_ENTRY,     "Paste",                 GADGET_MENU_PASTE,             'V'},
    {MENU_KIND_SEPARATOR, "",                      0,                             0},
    {MENU_KIND_ENTRY,     "Size to contents",      GADGET_MENU_SIZE_TO_CONTENTS,  'z'},
    {MENU_KIND_ENTRY,     "Align left edges",      GADGET_MENU_ALIGN_LEFT,        'l'},
    {MENU_KIND_ENTRY,     "Align top edges",       GADGET_MENU_ALIGN_TOP,         't'},
    {MENU_KIND_ENTRY,     "Apply same dimensions", GADGET_MENU_SAME_SIZE,         's'},
    {MENU_KIND_SEPARATOR, "",                      0,                             0},
    {MENU_KIND_ENTRY,     "Properties",            GADGET_MENU_PROPERTIES,        'P'},
    {MENU_KIND_ENTRY,     "Actions...",            PAGE_MENU_ACTIONS,             'A'},
    {MENU_KIND_ENTRY,     "Choose Font...",        PAGE_MENU_CHOOSE_FONT,         'F'},
    {MENU_KIND_ENTRY,     "Delete...",             PAGE_MENU_DELETE,              'D'},
    {MENU_KIND_SEPARATOR, "",                      0,                             0},
    {MENU_KIND_ENTRY,     "Window Properties",     PAGE_MENU_WINDOW_PROPERTIES,   'W'},
};

// The page background's menu.
static const T_CONTEXT_MENU_ROW page_menu_table[] = {
    {MENU_KIND_ENTRY,     "Resize to contents",    PAGE_MENU_RESIZE_TO_CONTENTS,  'R'},
    {MENU_KIND_ENTRY,     "Delete",                PAGE_MENU_DELETE,              'D'},
    {MENU_KIND_SEPARATOR, "",                      0,                             0},
    {MENU_KIND_ENTRY,     "Window Properties",     PAGE_MENU_WINDOW_PROPERTIES,   'W'},
};
// clang-format on

// Makes the rows' entries in `menu` through the menu handler.
static void AddMenuRows(T_MENU_HANDLER *handler, t_Menu *menu, const T_CONTEXT_MENU_ROW *rows, u32 count)
{
    T_MENUOBJECTINIT init;
    memset(&init, 0, sizeof(init));
    init.parent_list = &menu->items;
    for (u32 i = 0; i < count; i++) {
        init.kind = rows[i].kind;
        init.item_code = rows[i].item_code;
        init.shortcut = rows[i].shortcut;
        CreateObject(&handler->head, rows[i].label, &init);
    }
}

void BuildGadgetContextMenu(T_MENU_HANDLER *handler)
{
    // A start after a run that the module didn't end (the toolkit closed under it) finds that
    // run's entries still here.
    if (gadget_context_menu.items.first && !LIST_EMPTY(&gadget_context_menu.items))
        EmptyList(&gadget_context_menu.items, sizeof(t_Menu));
    InitContextMenu(&gadget_context_menu, "Multiple Modify");
    gadget_context_menu.menu_item_code = GADGET_MENU_CODE;
    gadget_context_menu.menu_flags = MENU_FLAG_NOTIFY_OPEN;
    AddMenuRows(handler, &gadget_context_menu, gadget_menu_table,
                sizeof(gadget_menu_table) / sizeof(gadget_menu_table[0]));
}

void BuildPageContextMenu(T_WINEDIT_HANDLER *record)
{
    InitContextMenu(&record->context_menu, "WindowBase");
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
    t_Menu *align_left = FindMenuByItemCode(&gadget_context_menu, GADGET_MENU_ALIGN_LEFT);
    if (!align_left)
        return;
    t_Gaget_Handler *handler = FindGadgetHandler(page);
    int nothing = handler ? NothingMarked(handler->first_gadget) : 1;
    // "Align left edges" and the entry that follows it, "Align top edges".
    t_Menu *entries[2] = {align_left, align_left->next && align_left->next->next ? align_left->next : NULL};
    for (t_Menu *entry : entries) {
        if (!entry)
            continue;
        if (nothing)
            entry->menu_flags |= MENU_FLAG_GREY;
        else
            entry->menu_flags &= ~MENU_FLAG_GREY;
    }
}
