// The host application: the `quillform` executable.
//
// Quillform is a visual editor of user-interface pages. This program is only its host: it starts
// the toolkit on a display, loads the editor module (libquillform.so) from beside itself, hands
// it a T_CREATE_APPLICATION, and turns the toolkit's event loop until the session ends.
//
//   host/        this file, the script player and the user actions it plays (also used by
//                tests), and the toolbar's icons
//   toolkit/     the window toolkit the editor stands on, one folder per library: ostrand
//                (memory, lists, files), lumora (windows, gadgets, menus, the loop), brushel
//                (drawing, text), knobkit, marshalry (commands, settings), tenure (the session),
//                pickett (selectors); display/ holds the sdl and headless back ends, app/ what a
//                program built on pages runs by, include/ the libraries' headers
//   shell/       the module's entry (entry.cpp: start reading there), the main window, its
//                commands and menus; it stands on the folders below, and none of them on it
//   editor/      a page window and what is done on it
//   properties/  the dialogs
//   source/      the page source format: writer, reader, name tables, backups
//   page/        the module's records and the gadget catalogue
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

#ifndef QF_VERSION
#error "QF_VERSION comes from the project's version in CMakeLists.txt"
#endif
#ifndef QF_LIB_FROM_BIN
#define QF_LIB_FROM_BIN "../lib"
#endif

#define HOST_MAX_FILES 64    // page files named on one command line
#define SCRIPT_TIMEOUT_S 30  // the longest a script's step may take, by default

typedef struct T_HOST_OPTIONS {
    int headless;
    const char *script;
    u32 script_timeout;  // seconds; 0: no limit
    const char *home;
    i16 width, height;
    int log_level;
    const char *files[HOST_MAX_FILES];
    int file_count;
} T_HOST_OPTIONS;

// The same options, in the same words, as the manual page (docs/quillform.1).
static const char *const usage_text =
    "Usage: quillform [OPTION]... [FILE]...\n"
    "Opens each FILE (a page source file) as a page, as if it were dropped on the main window.\n"
    "  --headless     run without a window (the framebuffer alone); only with --script\n"
    "  --script FILE  play the actions in FILE headless, then exit (see the README for the format)\n"
    "  --script-timeout S  fail the script when one step takes longer than S seconds (default 30, 0 none)\n"
    "  --home DIR     the data root (default: $XDG_DATA_HOME/quillform or ~/.local/share/quillform)\n"
    "  --size WxH     the size of the screen (default 1280x800)\n"
    "  --log N        print log lines up to level N (0 errors ... 3 information; default 1)\n"
    "  --help         print this help and exit\n"
    "  --version      print the version and exit\n"
    "  --             what follows are files, even when their names begin with a dash\n"
    "Exit status: 0 after an ordinary end, 1 when a script step fails or the editor can't start,\n"
    "2 for a bad command line, an unreadable script, no display or a data root in use.\n";

static int AddFile(T_HOST_OPTIONS *options, const char *file)
{
    if (options->file_count == HOST_MAX_FILES) {
        fprintf(stderr, "quillform: at most %d files on one command line\n", HOST_MAX_FILES);
        return 0;
    }
    options->files[options->file_count++] = file;
    return 1;
}

// Reads the command line; returns 0 to go on, or the exit code to leave with.
static int ReadOptions(int argc, char **argv, T_HOST_OPTIONS *options)
{
    options->width = 1280;
    options->height = 800;
    options->log_level = 1;
    options->script_timeout = SCRIPT_TIMEOUT_S;
    for (int i = 1; i < argc; i++) {
        const char *arg = argv[i];
        const char *value = i + 1 < argc ? argv[i + 1] : NULL;
        if (strcmp(arg, "--help") == 0) {
            fputs(usage_text, stdout);
            return -1;
        } else if (strcmp(arg, "--version") == 0) {
            puts("Quillform " QF_VERSION);
            return -1;
        } else if (strcmp(arg, "--headless") == 0) {
            options->headless = 1;
        } else if (strcmp(arg, "--script") == 0 && value) {
            options->script = value;
            options->headless = 1;
            i++;
        } else if (strcmp(arg, "--script-timeout") == 0 && value) {
            char *end;
            unsigned long seconds = strtoul(value, &end, 10);
            if (end == value || *end || seconds > 86400) {
                fprintf(stderr, "quillform: --script-timeout wants seconds from 0 to 86400, not \"%s\"\n", value);
                return 2;
            }
            options->script_timeout = (u32)seconds;
            i++;
        } else if (strcmp(arg, "--home") == 0 && value) {
            options->home = value;
            i++;
        } else if (strcmp(arg, "--size") == 0 && value) {
            int w, h;
            if (sscanf(value, "%dx%d", &w, &h) != 2 || w < 320 || h < 200 || w > 8192 || h > 8192) {
                fprintf(stderr, "quillform: --size wants WIDTHxHEIGHT between 320x200 and 8192x8192, not \"%s\"\n",
                        value);
                return 2;
            }
            options->width = (i16)w;
            options->height = (i16)h;
            i++;
        } else if (strcmp(arg, "--log") == 0 && value) {
            options->log_level = atoi(value);
            i++;
        } else if (strcmp(arg, "--") == 0) {  // what follows are files, whatever their names
            for (i++; i < argc; i++)
                if (!AddFile(options, argv[i]))
                    return 2;
        } else if (arg[0] == '-') {
            fprintf(stderr, "quillform: unknown option \"%s\" (try --help)\n", arg);
            return 2;
        } else if (!AddFile(options, arg)) {
            return 2;
        }
    }
    if (options->headless && !options->script) {
        fprintf(stderr, "quillform: --headless shows nothing and waits for ever; give it a --script FILE to play\n");
        return 2;
    }
    return 0;
}

// Loads the module from beside the executable (a build), or from the install's lib folder, found
// from the executable's folder so that an installed tree can be moved.
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
    static const char *const places[] = {"%s/libquillform.so", "%s/" QF_LIB_FROM_BIN "/libquillform.so"};
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

// Whether a program is on the PATH, so that a hint names only what can be run.
static int OnPath(const char *program)
{
    const char *path = getenv("PATH");
    while (path && *path) {
        const char *end = strchr(path, ':');
        size_t length = end ? (size_t)(end - path) : strlen(path);
        char candidate[PATH_MAX];
        if (length > 0 && length + strlen(program) + 2 < sizeof(candidate)) {
            snprintf(candidate, sizeof(candidate), "%.*s/%s", (int)length, path, program);
            if (access(candidate, X_OK) == 0)
                return 1;
        }
        path = end ? end + 1 : NULL;
    }
    return 0;
}

static void TellNoDisplay(const char *what)
{
    if (OnPath("xvfb-run"))
        fprintf(stderr,
                "quillform: %s; run it on a desktop, under xvfb-run (xvfb-run quillform), "
                "or play a script headless (quillform --script FILE)\n",
                what);
    else
        fprintf(stderr,
                "quillform: %s; run it on a desktop, or play a script headless "
                "(quillform --script FILE)\n",
                what);
}

// Hands each file to the main window as a file dropped on it: the editor opens it as a page, or
// tells why it can't, and goes on. A relative name is taken from the current folder.
static void OpenFiles(t_Window *main_window, const T_HOST_OPTIONS *options)
{
    char cwd[PATH_MAX];
    if (!getcwd(cwd, sizeof(cwd)))
        cwd[0] = '\0';
    for (int i = 0; i < options->file_count; i++) {
        const char *file = options->files[i];
        char path[2 * PATH_MAX], directory[2 * PATH_MAX], name[PATH_MAX];
        if (file[0] == '/')
            snprintf(path, sizeof(path), "%s", file);
        else
            snprintf(path, sizeof(path), "%s/%s", cwd, file);
        XGetPath(directory, path);
        StripPath(name, path);
        T_DROPPED_FILE dropped = {directory, name};
        SendWindowMessage(main_window, DROPPED_FILE_ITEM_CODE, ACT_RECEIVE_OBJECT, &dropped);
    }
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

// Everything after the command line: the display, the data root's lock, the module, the files,
// then the script or the event loop until the session ends. Gives the exit status.
static int Run(const T_HOST_OPTIONS *options, T_SCRIPT *script)
{
    if (!options->headless && !HasDisplay()) {
        TellNoDisplay("no display found");
        return 2;
    }
    // One editor for each data root: a second would overwrite the first's stores at its end.
    if (options->home && !SetDataRoot(options->home)) {
        fprintf(stderr, "quillform: the data root %s can't be made or written\n", options->home);
        return 2;
    }
    u32 holder = 0;
    if (LockDataRoot(&holder) == 0) {
        if (holder)
            fprintf(stderr, "quillform: the data root %s is in use by process %u\n", MakePathFromSystem(NULL), holder);
        else
            fprintf(stderr, "quillform: the data root %s is in use by another process\n", MakePathFromSystem(NULL));
        return 2;
    }
    if (!OpenToolkit(options->headless ? "headless" : "sdl", options->width, options->height, options->home)) {
        TellNoDisplay("the display could not be opened");
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
    create.w = (i16)(options->width - 2 * MAIN_WINDOW_MARGIN);
    create.h = (i16)(options->height - 2 * MAIN_WINDOW_MARGIN);
    t_Window *main_window = open(&create);
    if (!main_window) {
        fprintf(stderr, "quillform: the editor did not start\n");
        CloseToolkit();
        FreeTextureBank(create.icon_bank);
        return 1;
    }
    // The first turn reopens the documents of the last run; the files named come after them.
    RefreshHandlers(NULL);
    OpenFiles(main_window, options);

    int result = 0;
    if (options->script) {
        if (!PlayScript(script, options->script, options->script_timeout)) {
            fprintf(stderr, "quillform: %s\n", script->error);
            result = 1;
        }
    } else {
        while (!SessionEnded())
            RefreshHandlers(NULL);
    }
    CloseToolkit();
    FreeTextureBank(create.icon_bank);
    return result;
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
    int result = Run(&options, &script);
    FreeScript(&script);
    return result;
}
