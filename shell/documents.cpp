// The documents of the main window: the Open selector, the recent files, the three ways of
// opening a file, and the list of open documents kept in the settings from one run to the next.
#include <string.h>

#include "editor/texts.h"
#include "shell/commands.h"
#include "shell/main_window.h"
#include "shell/menus.h"
#include "shell/texts.h"
#include "source/open_page.h"

void OpenDocumentSelector(t_Window *main_window)
{
    OpenSourceSelector(main_window, ITEM_OPEN_SELECTOR, TXT_OPEN_TITLE, TXT_OPEN_BUTTON, editor_config->last_path, "");
}

void RefreshRecentFiles(t_Window *main_window, const char *path)
{
    T_WINEDIT_MAIN *record = FindMainRecord(main_window);
    T_MENU_HANDLER *handler = FindMenuHandler(main_window);
    if (!record || !handler)
        return;
    t_Menu *file_menu = FindMenuInHandler(handler, MENU_FILE);
    if (path)
        AddRecentFile(record->application, path, RECENT_FILE_TYPE);
    AddRecentFilesToMenu(handler, file_menu, record->application, RECENT_FILE_TYPE, ITEM_RECENT_OR_DROP);
    ReDetachMenu(main_window, file_menu);
}

void OpenDocument(t_Window *main_window, const char *path, int how)
{
    switch (how) {
    case OPEN_BY_SELECTOR:  // the selector's and the recent list's files enter the list first
    case OPEN_BY_RECENT: {
        RefreshRecentFiles(main_window, path);
        t_Window *page = OpenPageFile(main_window, path);
        if (page)
            SetActivePage(page, page);
        break;
    }
    case OPEN_BY_DROP: {  // a dropped file enters the list only when it opened
        t_Window *page = OpenPageFile(main_window, path);
        if (page)
            RefreshRecentFiles(main_window, path);
        break;
    }
    }
}

// Whether a child's document is remembered: a page with a file, other than `excluded`.
static int CountsAsDocument(t_Window *child, t_Window *excluded)
{
    if (child == excluded || !IsPageWindow(child))
        return 0;
    return PageRecordOf(child)->file_name.text != NULL;
}

void StoreOpenDocuments(t_Window *main_window, T_EDITOR_CONFIG *config, t_Window *excluded)
{
    T_RESOURCE *resource = config_resource;
    u32 count = 0, tail_size = 0;
    for (t_Window *child = main_window->first_child; child->next; child = child->next)
        if (CountsAsDocument(child, excluded)) {
            count++;
            tail_size += (u32)strlen(PageRecordOf(child)->file_name.text) + 5;
        }
    config->open_count = count;
    u32 new_size = EDITOR_CONFIG_SIZE + tail_size;
    u8 *block = (u8 *)AllocMemType(_OstrandBase->default_memory_type, new_size);
    memcpy(block, config, EDITOR_CONFIG_SIZE);
    ((T_EDITOR_CONFIG *)block)->size = new_size;
    u8 *at = block + EDITOR_CONFIG_SIZE;
    for (t_Window *child = main_window->first_child; child->next; child = child->next)
        if (CountsAsDocument(child, excluded)) {
            const char *path = PageRecordOf(child)->file_name.text;
            u32 length = (u32)strlen(path) + 1;
            memcpy(at, &length, 4);  // little-endian on this machine, as the stored format is
            memcpy(at + 4, path, length);
            at += 4 + length;
        }
    FreeMem(config, config->size);
    editor_config = (T_EDITOR_CONFIG *)block;
    if (resource) {
        resource->data = block;
        resource->data_size = new_size;
    }
}

void ReopenDocuments(t_Window *main_window)
{
    T_EDITOR_CONFIG *config = editor_config;
    T_PROGRESS_BAR *bar = NewProgressBar(TXT_REOPEN_PROGRESS, config->open_count);
    const u8 *at = (const u8 *)config + EDITOR_CONFIG_SIZE;
    const u8 *end = (const u8 *)config + config->size;
    for (u32 number = 0; number < config->open_count; number++) {
        u32 length;
        if (at + 4 > end)
            break;
        memcpy(&length, at, 4);
        if (length == 0 || at + 4 + length > end)
            break;  // a damaged tail: the rest is passed over
        // A path too long for the reader's buffer is passed over, not cut into another path.
        char path[128];
        if (length <= sizeof(path)) {
            memcpy(path, at + 4, length);
            path[length - 1] = '\0';
            UpdateProgressBar(bar, number, path);
            t_Window *page = OpenPageFile(main_window, path);
            if (page)
                SetActivePage(page, page);
        } else {
            myprintf(0, "A document path of %u characters is too long to reopen", length - 1);
        }
        at += 4 + length;
    }
    KillProgressBar(bar);
}
