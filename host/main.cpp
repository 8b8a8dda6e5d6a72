// The host application: the `quillform` executable.
//
// Quillform is a visual editor of user-interface pages. This program is only its host: it starts
// the toolkit on a display, loads the editor module (libquillform.so) from beside itself, hands
// it a T_CREATE_APPLICATION, and turns the toolkit's event loop until the session ends.
//
//   host/        this file, the script player and the user actions it plays (also used by tests)
//   toolkit/     the window toolkit the editor stands on, one folder per library: ostrand
//                (memory, lists, files), lumora (windows, gadgets, menus, the loop), brushel
//                (drawing, text), knobkit, marshalry (commands, settings), tenure (the session),
//                pickett (selectors); display/ holds the sdl and headless back ends
//   shell/       the module's entry (entry.cpp: start reading there), the main window, menus
//   page/        the module's records and the gadget catalogue
//   editor/      a page window and what is done on it
//   properties/  the dialogs
//   source/      the page source format: writer, reader, name tables, backups
//
// Everything the module does happens in message functions that the toolkit calls from
// RefreshHandlers; there is one thread and no loop of the module's own.
#include <dlfcn.h>
#include <limits.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

#include "display/display.h"
#include "host/script.h"
#include "host/tool_icons.h"
#include "toolkit.h"

typedef t_Window *(*T_OPEN_FN)(T_CREATE_APPLICATION *);

#define MAIN_WINDOW_MARGIN 16

typedef struct T_HOST_OPTIONS {
    int headless;
    const char *script;
    const char *home;
    i16 width, height;
    int log_level;
} T_HOST_OPTIONS;

static const char *const usage_text =
    "Usage: quillform [--headless] [--script FILE] [--home DIR] [--size WxH] [--log N] [--help] [--version]\n"
    "  --headless     run without a window (the framebuffer alone); implied by --script\n"
    "  --script FILE  play the actions in FILE, then exit (see the README for the format)\n"
    "  --home DIR     the data root (default: $XDG_DATA_HOME/quillform or ~/.local/share/quillform)\n"
    "  --size WxH     the size of the screen (default 1280x800)\n"
    "  --log N        print log lines up to level N (0 errors ... 3 information; default 1)\n";

// Reads the command line; returns 0 to go on, or the exit code to leave with.
static int ReadOptions(int argc, char **argv, T_HOST_OPTIONS *options)
{
    options->width = 1280;
    options->height = 800;
    options->log_level = 1;
    for (int i = 1; i < argc; i++) {
        const char *arg = argv[i];
        const char *value = i + 1 < argc ? argv[i + 1] : NULL;
        if (strcmp(arg, "--help") == 0) {
            fputs(usage_text, stdout);
            return -1;
        } else if (strcmp(arg, "--version") == 0) {
            puts("Quillform 0.62");
            return -1;
        } else if (strcmp(arg, "--headless") == 0) {
            options->headless = 1;
        } else if (strcmp(arg, "--script") == 0 && value) {
            options->script = value;
            options->headless = 1;
            i++;
        } else if (strcmp(arg, "--home") == 0 && value) {
            options->home = value;
            i++;
        } else if (strcmp(arg, "--size") == 0 && value) {
            int w, h;
            if (sscanf(value, "%dx%d", &w, &h) != 2 || w < 320 || h < 200 || w > 8192 || h > 8192) {
                fprintf(stderr, "quillform: --size wants WIDTHxHEIGHT between 320x200 and 8192x8192, not \"%s\"\n", value);
                return 2;
            }
            options->width = (i16)w;
            options->height = (i16)h;
            i++;
        } else if (strcmp(arg, "--log") == 0 && value) {
            options->log_level = atoi(value);
            i++;
        } else {
            fprintf(stderr, "quillform: unknown option \"%s\" (try --help)\n", arg);
            return 2;
        }
    }
    return 0;
}

// Loads the module from beside the executable, or from the install's lib folder.
static T_OPEN_FN LoadModule(void)
{
    char self[PATH_MAX];
    ssize_t length = readlink("/proc/self/exe", self, sizeof(self) - 1);
    if (length <= 0)
        return NULL;
    self[length] = '\0';
    char *slash = strrchr(self, '/');
    if (slash)
        *slash = '\0';
    static const char *const places[] = {"%s/libquillform.so", "%s/../lib/libquillform.so"};
    for (const char *place : places) {
        char path[PATH_MAX + 32];
        snprintf(path, sizeof(path), place, self);
        void *module = dlopen(path, RTLD_NOW);
        if (!module)
            continue;
        T_OPEN_FN open = (T_OPEN_FN)dlsym(module, "Dll_OpenQuillformWindow");
        if (open)
            return open;
    }
    fprintf(stderr, "quillform: cannot load libquillform.so: %s\n", dlerror());
    return NULL;
}

static int HasDisplay(void)
{
    const char *driver = getenv("SDL_VIDEODRIVER");
    if (driver && *driver)
        return 1;
    const char *x11 = getenv("DISPLAY");
    const char *wayland = getenv("WAYLAND_DISPLAY");
    return (x11 && *x11) || (wayland && *wayland);
}

int main(int argc, char **argv)
{
    T_HOST_OPTIONS options;
    memset(&options, 0, sizeof(options));
    int code = ReadOptions(argc, argv, &options);
    if (code)
        return code < 0 ? 0 : code;

    _OstrandBase->log_level = options.log_level;
    T_SCRIPT script;
    memset(&script, 0, sizeof(script));
    if (options.script && !LoadScript(&script, options.script)) {
        fprintf(stderr, "quillform: %s\n", script.error);
        return 2;
    }
    if (!options.headless && !HasDisplay()) {
        fprintf(stderr, "quillform: no display found; run it under a display (xvfb-run quillform) "
                        "or without one (quillform --headless --script FILE)\n");
        return 2;
    }
    if (!OpenToolkit(options.headless ? "headless" : "sdl", options.width, options.height, options.home)) {
        fprintf(stderr, "quillform: the display could not be opened; try xvfb-run quillform, "
                        "or quillform --headless --script FILE\n");
        return 2;
    }
    // The folders the editor's selectors start in.
    static const char *const folders[] = {"Projects/QfFiles", "System/Fonts", "Bitmaps"};
    for (const char *folder : folders)
        MakeEntireDirectory(MakePathFromSystem(folder));
    T_OPEN_FN open = LoadModule();
    if (!open) {
        CloseToolkit();
        return 1;
    }
    T_CREATE_APPLICATION create;
    memset(&create, 0, sizeof(create));
    create.icon_bank = MakeToolIconBank();
    create.application = NewApplication("Quillform");
    // The main window stands a little inside the screen, so that it can be moved and sized.
    create.x = MAIN_WINDOW_MARGIN;
    create.y = MAIN_WINDOW_MARGIN;
    create.w = (i16)(options.width - 2 * MAIN_WINDOW_MARGIN);
    create.h = (i16)(options.height - 2 * MAIN_WINDOW_MARGIN);
    if (!open(&create)) {
        fprintf(stderr, "quillform: the editor did not start\n");
        CloseToolkit();
        return 1;
    }

    int result = 0;
    if (options.script) {
        RefreshHandlers(NULL);
        if (!PlayScript(&script, options.script)) {
            fprintf(stderr, "quillform: %s\n", script.error);
            result = 1;
        }
        FreeScript(&script);
    } else {
        while (!SessionEnded())
            RefreshHandlers(NULL);
    }
    CloseToolkit();
    return result;
}
