// Opening a page file: refuses a file already open, reads it, and repairs what no file stores
// (duplicate item codes, the numbers of the tab order).
#include <stdio.h>
#include <string.h>

#include "shell/texts.h"
#include "source/open_page.h"
#include "source/source_format.h"

#define OPEN_ERROR_STYLE 16
#define OPEN_ERROR_ITEM_CODE 32
#define DUPLICATES_STYLE 64
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

static int CodeInUse(t_gadget *first, u32 code)
{
    for (t_gadget *g = first; g->next; g = g->next)
        if (g->item_code == code)
            return 1;
    return 0;
}

// Gives each later gadget that shares an item code with one before it the smallest free code.
static int RepairDuplicateItemCodes(t_gadget *first)
{
    int changed = 0;
    for (t_gadget *g = first; g->next; g = g->next) {
        if (g->item_code == 0)
            continue;
        int duplicate = 0;
        for (t_gadget *before = first; before != g; before = before->next)
            if (before->item_code == g->item_code) {
                duplicate = 1;
                break;
            }
        if (!duplicate)
            continue;
        u32 code = 1;
        while (CodeInUse(first, code))
            code++;
        g->item_code = code;
        changed = 1;
    }
    return changed;
}

void ResolveTabOrder(t_Window *window)
{
    t_Gaget_Handler *handler = FindGadgetHandler(window);
    if (!handler)
        return;
    t_gadget *head = NULL;
    for (t_gadget *g = handler->first_gadget; g->next; g = g->next)
        if (g->tab[0] & SRC_TAB_FIRST) {
            head = g;
            break;
        }
    if (!head)
        return;
    head->tab_index = 1;
    u32 code = head->tab[1];
    u32 n = 2;
    // A chain longer than the list can only be a loop that misses the head: it stops there.
    u32 limit = CountListEntries(&handler->gadget_list);
    while (n <= limit + 1) {
        t_gadget *g = FindGadgetByCode(window, code);
        if (!g || g == head)
            return;
        g->tab_index = n;
        if (g->tab[1] == 0)
            return;
        code = g->tab[1];
        n++;
    }
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
        ShowPathMessage(main_window, TXT_ERROR_TITLE, TXT_COULD_NOT_OPEN, path, OPEN_ERROR_STYLE,
                        OPEN_ERROR_ITEM_CODE);
        return NULL;
    }
    T_WINEDIT_HANDLER *record = (T_WINEDIT_HANDLER *)page->user_data;
    AllocString(path, &record->file_name);
    SetTitleBarHoverTitle(page, record->file_name.text);
    t_Gaget_Handler *handler = FindGadgetHandler(page);
    if (handler && RepairDuplicateItemCodes(handler->first_gadget)) {
        NewMsgBox(page, TXT_WARNING_TITLE, TXT_DUPLICATES_REMAPPED, DUPLICATES_STYLE, DUPLICATES_ITEM_CODE);
        page->state_flags |= WSF_MODIFIED;
    }
    ResolveTabOrder(page);
    return page;
}
