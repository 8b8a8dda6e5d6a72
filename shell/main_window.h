// The main window: its message function, the handler that draws a new page's box, the active
// page, saving, and the documents of the last run.
#pragma once
#include "page/records.h"

#define MAIN_WINDOW_NAME "Quillform"
#define MAIN_HANDLER_NAME "WinEditMain"
#define SETTINGS_RESOURCE_NAME "AppQuillform"
#define RECENT_FILE_TYPE 1

u32 MainWindowMsg(t_Window *window, u32 item_code, u32 msg, void *data);
u32 MainHandlerInput(t_Handler *handler, u32 event, void *data);
void MainHandlerPaint(t_Handler *handler);

// The main window's record, found by name on its first handler; null if it has none.
T_WINEDIT_MAIN *FindMainRecord(t_Window *main_window);
// Makes `page` (a page window, or null) the active page of the main window that `window` is a
// child of.
void SetActivePage(t_Window *window, t_Window *page);
// Writes the page at once when it has a file and `ask` is false, giving SAVE_DOCUMENT_WRITTEN or,
// when the file couldn't be written (the writer told the person), SAVE_DOCUMENT_FAILED with the page
// still modified; otherwise opens the "Save Source as" selector, or first the question before a
// save over hand-written lines, and gives SAVE_DOCUMENT_PENDING (editor/page_window.h).
int SaveDocument(t_Window *window, T_WINEDIT_HANDLER *record, int ask);
// Refreshes the recent files in the "File" menu, first adding `path` when it isn't null.
void RefreshRecentFiles(t_Window *main_window, const char *path);
void StoreOpenDocuments(t_Window *main_window, T_EDITOR_CONFIG *config, t_Window *excluded);
void ReopenDocuments(t_Window *main_window);

// The three ways a file is opened, which differ in the order of their steps.
enum { OPEN_BY_SELECTOR, OPEN_BY_RECENT, OPEN_BY_DROP };
void OpenDocument(t_Window *main_window, const char *path, int how);
// Remembers the directory of the last file dialog; one too long for the settings is not kept.
void SetLastPath(const char *directory);
// Opens the "Open Source file" selector on the main window.
void OpenDocumentSelector(t_Window *main_window);
