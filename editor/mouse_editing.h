// The mouse and keys on a page: the background (PageInput), a gadget (GadgetEditAction) and the
// drag of gadgets (GadgetDragMove).
#pragma once
#include "page/records.h"

// Size handles, numbered as SetBorderMouseImage and GenericResize number them.
#define HANDLE_NONE 0
#define HANDLE_TOP 1
#define HANDLE_BOTTOM 2
#define HANDLE_LEFT 3
#define HANDLE_RIGHT 4
#define HANDLE_TOP_LEFT 5
#define HANDLE_TOP_RIGHT 6
#define HANDLE_BOTTOM_RIGHT 7
#define HANDLE_BOTTOM_LEFT 8
#define HANDLE_SIZE 6
#define DRAG_THRESHOLD 4

u32 PageInput(t_Handler *handler, u32 event, void *data);
u32 GadgetEditAction(t_Window *window, t_gadget *gadget, T_MOUSE_MSG *msg);
void GadgetDragMove(t_Window *window, void *gadget);
u16 HandleUnderMouse(t_Window *window, t_gadget *gadget);
void ToggleStyleFlag(t_Window *window, u32 bit);
void SnapshotGeometry(void *gadget);  // for ApplyFuncToList

#define ITEM_MENU_REFRESH 0xF001  // the item code of ACT_MENU_OPEN after a drag of gadgets

// Helpers that the page editor's files share.
// The first gadget of the page (the tail mark for an empty page), or null without a gadget handler.
t_gadget *FirstPageGadget(t_Window *window);
// Keeps the pointer inside the window's user area; FreeMouse gives it the whole screen again.
void LimitMouseToUserArea(t_Window *window);
void FreeMouse(void);
// The main window's toolbar, or null when the page has no main window with one.
T_TOOLBAR_HANDLER *PageToolBar(t_Window *window);
// ACT_MENU_OPEN to the main window, which refreshes its menus.
void TellMainWindow(t_Window *window, u32 item_code);
