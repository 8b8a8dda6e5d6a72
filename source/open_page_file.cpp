// Opening a page file: refuses a file already open, reads it, and repairs what no file stores
// (duplicate item codes, the numbers of the tab order).
#include <stdio.h>
#include <string.h>

#include "source/open_page.h"
#include "source/source_format.h"
#include "source/texts.h"

#define OPEN_ERROR_STYLE MSGBOX_ERROR
#define OPEN_ERROR_ITEM_CODE 32
#define DUPLICATES_STYLE MSGBOX_INFO
#define DUPLICATES_ITEM_CODE 22

// Shows a message about a path; the text takes the whole path, however long.
static void ShowPathMessage(t_Window *parent, const char *title, const char *format, const char *path, u32 style,
                            u32 item_code)
{
    u32 size = (u32)(strlen(format) + strlen(path) + 1);
    char *text = (char *)AllocMemC(size);
    snprintf(text, size, format, path);
    NewMsgBox(parent, title, text, style, item_code);
    FreeMem(text, size);
}

// The repair of duplicate item codes and the numbering of the tab order, in one walk of the page:
// each later gadget that shares its code with one before it takes the smallest code that no gadget
// holds (the page's own set of codes gives it); the codes seen so far, each with its first holder,
// are then the index by which the tab links are followed from the head. True when a code changed.
static int RepairCodesAndNumberTabs(t_Window *page)
{
    t_Gaget_Handler *handler = FindGadgetHandler(page);
    if (!handler)
        return 0;
    T_ITEM_CODES seen;
    InitItemCodes(&seen);
    int changed = 0;
    u32 count = 0;
    t_gadget *head = NULL;
    for (t_gadget *g = handler->first_gadget; g->next; g = g->next, count++) {
        if (g->item_code != 0 && ItemCodeCount(&seen, g->item_code)) {
            SetGadgetItemCode(page, g, NextFreeItemCodeOf(page));
            changed = 1;
        }
        if (!head && (g->tab[0] & TAB_LINK_FIRST))
            head = g;
        if (!AddItemCodeOf(&seen, g->item_code, g)) {
            myprintf(0, "No memory to repair the item codes of %s\n", page->name);
            FreeItemCodes(&seen);
            return changed;
        }
    }
    if (head) {
        head->tab_index = 1;
        u32 code = head->tab[1];
        // A chain longer than the list can only be a loop that misses the head: it stops there.
        for (u32 n = 2; n <= count + 1; n++) {
            t_gadget *g = (t_gadget *)FirstHolder(&seen, code);
            if (!g || g == head)
                break;
            g->tab_index = n;
            if (g->tab[1] == 0)
                break;
            code = g->tab[1];
        }
    }
    FreeItemCodes(&seen);
    return changed;
}

t_Window *OpenPageFile(t_Window *main_window, const char *path)
{
    for (t_Window *child = main_window->first_child; child->next; child = child->next) {
        if (!(child->flags & WF_CLIP_PARENT) || !IsPageWindow(child))
            continue;
        const char *name = ((T_WINEDIT_HANDLER *)child->user_data)->file_name.text;
        if (name && strcmp(name, path) == 0) {
            WindowToFront(child);
            ShowPathMessage(main_window, TXT_ERROR_TITLE, TXT_ALREADY_OPEN, path, OPEN_ERROR_STYLE,
                            OPEN_ERROR_ITEM_CODE);
            return NULL;
        }
    }
    t_Window *page = OpenPage(main_window, path);
    if (!page) {
        ShowPathMessage(main_window, TXT_ERROR_TITLE, TXT_COULD_NOT_OPEN, path, OPEN_ERROR_STYLE, OPEN_ERROR_ITEM_CODE);
        return NULL;
    }
    T_WINEDIT_HANDLER *record = (T_WINEDIT_HANDLER *)page->user_data;
    AllocString(path, &record->file_name);
    SetTitleBarHoverTitle(page, record->file_name.text);
    if (RepairCodesAndNumberTabs(page)) {
        NewMsgBox(page, TXT_WARNING_TITLE, TXT_DUPLICATES_REMAPPED, DUPLICATES_STYLE, DUPLICATES_ITEM_CODE);
        page->state_flags |= WSF_MODIFIED;
    }
    return page;
}
