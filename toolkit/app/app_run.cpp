// How a program built on a page runs: the toolkit opened on the SDL display (or headless, for
// tests), the page's window made the program's window (its title, its size, the focus on the first
// gadget of its tab order), the loop turned until that window is gone.
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "app/quillform_app.h"
#include "display/display.h"
#include "lumora/lumora_internal.h"

#define APP_SCREEN_W 800  // the screen until it takes the page's size
#define APP_SCREEN_H 600
#define APP_FIRST_TURNS 3    // headless: the first-run message is delivered and the window painted
#define APP_CLOSE_TURNS 100  // headless: the turns the page has to remove its window once told to end
#define APP_HEADLESS_OPTION "--headless"
#define APP_HEADLESS_VARIABLE "QF_HEADLESS"

// What a person reads: the program's name comes first.
#define TXT_NO_DISPLAY "%s: no display could be opened; run it on a desktop, or with --headless\n"
#define TXT_NO_HEADLESS "%s: the headless display could not be opened\n"
#define TXT_NO_WINDOW "%s: the page's window could not be made (was the toolkit opened first?)\n"
#define TXT_NOT_CLOSED "%s: the page's window stayed open when told to end (ACT_TERMINATE)\n"

#define APP_NAME_SIZE 64

static struct {
    int headless;
    char name[APP_NAME_SIZE];  // the program's name, for its messages
} app;

static int HeadlessAsked(int argc, char **argv)
{
    for (int i = 1; i < argc; i++)
        if (argv[i] && strcmp(argv[i], APP_HEADLESS_OPTION) == 0)
            return 1;
    const char *variable = getenv(APP_HEADLESS_VARIABLE);
    return variable && variable[0] && strcmp(variable, "0") != 0;
}

int OpenAppToolkit(int argc, char **argv)
{
    const char *path = argc > 0 && argv && argv[0] ? argv[0] : "program";
    const char *slash = strrchr(path, '/');
    snprintf(app.name, sizeof(app.name), "%s", slash ? slash + 1 : path);
    app.headless = HeadlessAsked(argc, argv);
    if (OpenToolkit(app.headless ? "headless" : "sdl", APP_SCREEN_W, APP_SCREEN_H, NULL))
        return 1;
    fprintf(stderr, app.headless ? TXT_NO_HEADLESS : TXT_NO_DISPLAY, app.name);
    return 0;
}

// Whether the window still stands on the screen. Only pointers are compared: a removed window may
// already be freed.
static int WindowStands(T_WINDOW *window)
{
    if (!_LumoraBase->running || !CURRENT_DISPLAY->window_class)
        return 0;
    for (t_Node *n = CURRENT_DISPLAY->window_class->windows.first; n->next; n = n->next)
        if ((T_WINDOW *)n == window)
            return 1;
    return 0;
}

// The screen takes the size of the window's frame, which moves to its corner; a page opened
// full screen keeps the screen and fills it.
static void FitScreenToWindow(T_WINDOW *window)
{
    if (window->flags & WF_OPEN_FULLSCREEN)
        return;
    T_RPOS frame = {0, 0, window->w, window->h};
    ResizeWindow(window, &frame);
    if (app.headless) {
        T_INPUT_EVENT resize;
        memset(&resize, 0, sizeof(resize));
        resize.kind = INPUT_RESIZE;
        resize.x = frame.w;
        resize.y = frame.h;
        HeadlessPush(&resize);
    } else {
        SdlSetSize(frame.w, frame.h);
    }
}

// A resizable (or full-screen) window follows the screen when the user resizes the program's window.
static void FollowScreen(T_WINDOW *window, i16 *last_w, i16 *last_h)
{
    i16 w = CURRENT_DISPLAY->width, h = CURRENT_DISPLAY->height;
    if (w == *last_w && h == *last_h)
        return;
    *last_w = w, *last_h = h;
    if (!(window->flags & (WF_RESIZE | WF_OPEN_FULLSCREEN)))
        return;
    T_RPOS frame = {0, 0, w, h};
    ResizeWindow(window, &frame);
}

// The window and each gadget one a line (a string by its text), for a headless run to show what
// it opened.
static void DescribeWindow(T_WINDOW *window)
{
    printf("window \"%s\" %dx%d\n", window->name, window->w, window->h);
    T_GADGET_HANDLER *gh = FindGadgetHandler(window);
    if (!gh)
        return;
    for (T_GADGET *g = gh->first_gadget; g->next; g = g->next) {
        const char *text = g->type == GADGET_TYPE_STRING ? GetStringGadgetText(g) : g->name ? g->name : "";
        printf("gadget %u %s \"%s\" at %d,%d size %dx%d%s\n", g->live_item_code, GadgetClass(g->type)->name, text,
               g->pos_x, g->pos_y, g->pos_width, g->pos_height, gh->current_gadget == g ? " focus" : "");
    }
    fflush(stdout);
}

// Headless: the window is shown for a few turns, described, and told to end as its close gadget
// does; the page's message function has to remove it.
static int RunHeadless(T_WINDOW *window)
{
    for (int i = 0; i < APP_FIRST_TURNS && WindowStands(window); i++)
        RefreshHandlers(NULL);
    if (!WindowStands(window))
        return 0;
    DescribeWindow(window);
    PostWindowMessage(window, 0, ACT_TERMINATE, NULL);
    for (int i = 0; i < APP_CLOSE_TURNS && WindowStands(window); i++)
        RefreshHandlers(NULL);
    if (!WindowStands(window))
        return 0;
    fprintf(stderr, TXT_NOT_CLOSED, app.name);
    return 1;
}

int RunAppWindow(T_WINDOW *window)
{
    if (!window || !WindowStands(window)) {
        fprintf(stderr, TXT_NO_WINDOW, app.name[0] ? app.name : "program");
        return 1;
    }
    if (!app.headless)
        SdlSetTitle(window->name);
    FitScreenToWindow(window);
    ISetActiveWindow(window);
    T_GADGET *first = FirstTabGadget(window);
    if (first)
        SetCurrentGadget(window, first);
    if (app.headless)
        return RunHeadless(window);
    // The screen's own size first: the answer to the fitting above counts as a change, which the
    // window follows, so a window manager that gives another size is obeyed.
    i16 last_w = CURRENT_DISPLAY->width, last_h = CURRENT_DISPLAY->height;
    while (WindowStands(window)) {
        RefreshHandlers(NULL);
        if (WindowStands(window))
            FollowScreen(window, &last_w, &last_h);
    }
    return 0;
}
