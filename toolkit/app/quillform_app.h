// What a page file written by Quillform compiles against: the toolkit's records under the names
// the page uses, and the statements it is written in.
//
//   #include "quillform_app.h"
//   #include "my_page.cpp"
//   ...  T_WINDOW *window = OpenMyPageWindow();  then turn RefreshHandlers(NULL) until it ends.
#pragma once
#include <string.h>

#include "toolkit.h"

typedef T_WINDOW_CLASS T_WINDOW_HANDLER;

// The records that a page's statements fill: cleared, filled, then handed to the toolkit.
#define ClearGadInit memset(&gadinit, 0, sizeof(gadinit))
#define ClearWinInit memset(&win_init, 0, sizeof(win_init))

// The display's window class handler, which makes windows.
static inline T_WINDOW_HANDLER *FindWindowHandler(void)
{
    return CURRENT_DISPLAY->window_class;
}

// A window of the name from the local record `win_init`, through the local handler `wh`.
#define ICreateWindow(name) ((T_WINDOW *)CreateObject(&wh->head, (name), &win_init))
// A gadget of the name from the local record `gadinit`, through the local handler `gh`; null when
// it could not be made. For list boxes, drop boxes and trees CreateObject gives the record that
// holds the entries, but the statements that follow (SetGadgetColours) want the gadget, which the
// creation made the current one.
static inline T_GADGET *CreatePageGadget(T_GADGET_HANDLER *gh, const char *name, T_GADGETOBJECTINIT *init)
{
    return CreateObject(&gh->head, name, init) ? gh->current_gadget : NULL;
}
#define CreateGadget(name) CreatePageGadget(gh, (name), &gadinit)

// The data records that colour, texture and scene gadgets of a page point at.
extern T_COLOUR_DATA cb;
extern u32 tg[8];
extern u32 sg[8];
