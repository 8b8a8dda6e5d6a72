// A page window: its creation from a box, and its message function.
#pragma once
#include "editor/mouse_editing.h"
#include "page/records.h"

#define PAGE_HANDLER_NAME "WinEdit"
#define PAGE_HANDLER_PRIORITY -10
#define FONT_PATTERN_NODE_SIZE 16  // the nodes of the font selector's pattern list

// Item codes of what answers a page.
#define PAGE_ITEM_SAVE_AS 0   // the "Save Source as" selector
#define PAGE_ITEM_QUERY 1     // the close query; with ACT_RECEIVE_OBJECT a colour
#define PAGE_ITEM_FONT 2      // the "Choose font" selector; with ACT_RECEIVE_OBJECT a bitmap
#define PAGE_ITEM_LINES 3     // the question before a save over hand-written lines
#define PAGE_ITEM_MESSAGE 32  // the page's own message boxes, whose answers are ignored

// What a save of a document came to (SaveDocument, WriteDocument).
#define SAVE_DOCUMENT_PENDING 0  // a selector or a question is up; the save ends when it answers
#define SAVE_DOCUMENT_WRITTEN 1
#define SAVE_DOCUMENT_FAILED 2     // told to the person; the page keeps its mark and its file
#define SAVE_DOCUMENT_CANCELLED 3  // a selector or a question was given up

// What a page needs of the main window it stands in, which the shell fills in when it starts.
// Each function is given the main window (or, for set_active_page, the page); one that isn't the
// shell's main window gets nothing done.
typedef struct T_PAGE_HOST {
    // Makes `page` (the window itself, or null) the active page of the main window that `window`
    // is a child of: its title and its menus follow.
    void (*set_active_page)(t_Window *window, t_Window *page);
    // Greys the main window's menus for the page of `record`, or for no page.
    void (*refresh_menus)(t_Window *main_window, T_WINEDIT_HANDLER *record);
    // Runs the command that the key is given to; its result.
    u32 (*run_key)(t_Window *main_window, T_KEY_MSG *key);
    // The toolbar of gadget tools, or null.
    T_TOOLBAR_HANDLER *(*toolbar)(t_Window *main_window);
} T_PAGE_HOST;

extern T_PAGE_HOST page_host;

// Makes a page window from a box given by two corners relative to the parent's user area; null
// when the box is below 32 by 12, in which case nothing was created.
t_Window *CreatePageWindow(t_Window *parent, char *name, u32 flags, i16 x1, i16 y1, i16 x2, i16 y2);
// Gives the layers below the editor what they call of it (editor_hooks); the module's start calls it.
void ConnectEditor(void);
u32 PageMessage(t_Window *window, u32 item_code, u32 msg, void *data);
// Removes a page: the main window forgets it as the active page first.
void RemovePage(t_Window *window, int second_refresh);

// Writes the page at once when it has a file and `ask` is false, giving SAVE_DOCUMENT_WRITTEN or,
// when the file couldn't be written (the writer told the person), SAVE_DOCUMENT_FAILED with the page
// still modified; otherwise opens the "Save Source as" selector, or first the question before a
// save over hand-written lines, and gives SAVE_DOCUMENT_PENDING.
int SaveDocument(t_Window *window, T_WINEDIT_HANDLER *record, int ask);
// Opens a file selector of page files with the given parent, item code, title, button, path and
// name: the page's "Save Source as", and the shell's "Open Source file".
void OpenSourceSelector(t_Window *parent, u32 item_code, const char *title, const char *ok_text, const char *path,
                        const char *name);
// Remembers the directory of the last file selector; one too long for the settings is not kept.
void SetLastPath(const char *directory);
// Writes the page to `path`. Written: the page takes the file (its name, the title bar's hover
// text, `saved`), is clean and the active page. Failed (told by the writer): the page keeps its
// modified mark, its file name and everything else. Either way PageSaveEnded follows.
int WriteDocument(t_Window *window, T_WINEDIT_HANDLER *record, const char *path, int by_save_as);
// A save of the page came to an end (SAVE_DOCUMENT_WRITTEN, _FAILED or _CANCELLED): a query that
// waits on it is settled (saved; or kept, which stops an exit under way), the page goes when the
// close query asked, or when a Save as ends a close that waited for its name (close_after_save).
void PageSaveEnded(t_Window *window, T_WINEDIT_HANDLER *record, int outcome, int by_save_as);
// Before a save to `path`, the page's own file that the reader passed over hand-written lines in:
// opens the question (Save, Save as..., Cancel) and gives true; the save waits for its answer.
// False when there is nothing to ask: another file, a page never read, no such lines, or the
// person answered before (asked once per page).
int AskBeforeDroppingLines(t_Window *window, T_WINEDIT_HANDLER *record, const char *path);
// The exit's query on a modified page: asks, turns the loop until it is settled and gives the
// PAGE_QUERY_ it came to. Its answers don't close the page: Yes saves it (SAVED), No marks nothing
// and gives DROPPED, Cancel or a save that failed or was given up gives KEPT.
int AskToSavePage(t_Window *window);
