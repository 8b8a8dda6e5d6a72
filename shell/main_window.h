// The main window: its record and message function, the handler that draws a new page's box, the
// active page, and the documents: opening, saving all, and those of the last run.
#pragma once
#include "editor/page_window.h"
#include "page/records.h"

#define MAIN_WINDOW_NAME "Quillform"
#define MAIN_HANDLER_NAME "WinEditMain"
#define SETTINGS_RESOURCE_NAME "AppQuillform"
#define RECENT_FILE_TYPE 1

// The main window's handler, named "WinEditMain", reached through the window's user_data.
typedef struct T_WINEDIT_MAIN {
    t_Handler head;  // head.window: the main window
    t_Window *active_page;
    t_Window *toolbar;  // its user_data is the T_TOOLBAR_HANDLER
    T_TOOL_SETUP *tool_setup;
    T_APPLICATION *application;
    i16 box_x1, box_y1, box_x2, box_y2;  // rubber box for a new page, relative to the user area
    u16 box_active;
    u16 box_phase;  // 0 to 31
} T_WINEDIT_MAIN;

u32 MainWindowMsg(t_Window *window, u32 item_code, u32 msg, void *data);
u32 MainHandlerInput(t_Handler *handler, u32 event, void *data);
void MainHandlerPaint(t_Handler *handler);

// The main window's record, found by name on its first handler; null if it has none.
T_WINEDIT_MAIN *FindMainRecord(t_Window *main_window);
// Makes `page` (a page window, or null) the active page of the main window that `window` is a
// child of.
void SetActivePage(t_Window *window, t_Window *page);
// Fills in what the pages need of the main window (editor/page_window.h): done at the start.
void FillPageHost(T_PAGE_HOST *host);
// Refreshes the recent files in the "File" menu, first adding `path` when it isn't null.
void RefreshRecentFiles(t_Window *main_window, const char *path);
void StoreOpenDocuments(t_Window *main_window, T_EDITOR_CONFIG *config, t_Window *excluded);
void ReopenDocuments(t_Window *main_window);

// The three ways a file is opened, which differ in the order of their steps.
enum { OPEN_BY_SELECTOR, OPEN_BY_RECENT, OPEN_BY_DROP };
void OpenDocument(t_Window *main_window, const char *path, int how);
// Opens the "Open Source file" selector on the main window.
void OpenDocumentSelector(t_Window *main_window);
