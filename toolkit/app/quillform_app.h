// What a page file written by Quillform compiles against: the toolkit's records under the names
// the page uses, the statements it is written in, and the one way a program built on pages runs:
//
//   #include "quillform_app.h"
//   #include "my_page.cpp"
//   int main(int argc, char **argv) {
//       if (!OpenAppToolkit(argc, argv)) return 2;
//       int status = RunAppWindow(OpenMyPageWindow());
//       CloseToolkit();
//       return status;
//   }
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

// --- Running a program ---------------------------------------------------------------------------
// Opens the toolkit on the SDL display, or headless when the command line holds --headless or the
// environment variable QF_HEADLESS is set (and not "0"). False, with a line on standard error, when
// the display can't be opened. The page's open function may only be called after this.
int OpenAppToolkit(int argc, char **argv);
// Runs the page's window as the program's window: it takes the window's name as its title and the
// size of its frame (a page opened full screen keeps the screen), the focus starts on the first
// gadget of the page's tab order, and the loop turns until the window is gone; a resizable window
// follows the program's window when the user resizes it. Headless, the window is shown for a few
// turns, printed to standard output (its name and size, then each gadget, one a line) and told to
// end as its close gadget does. Gives 0, or 1 when there is no window or it wouldn't end.
int RunAppWindow(T_WINDOW *window);
