// The reader under libFuzzer: each input is a page file, opened as a dropped file would be
// (OpenPageFile: the reader, the repair of item codes, the tab order), then closed. The toolkit
// runs headless on a small screen with the module's main window, made once.
//   qf_reader_fuzz CORPUS_DIR tests/golden            (see the README for a long run)
#include <ftw.h>
#include <stdio.h>
#include <stdlib.h>
#include <sys/mman.h>
#include <unistd.h>

#include "editor/page_window.h"
#include "source/open_page.h"
#include "toolkit.h"

extern "C" t_Window *Dll_OpenQuillformWindow(T_CREATE_APPLICATION *create);

static t_Window *main_window;
static int input_fd = -1;
static char input_path[64];
static char root[] = "/tmp/qf-fuzz-XXXXXX";  // the data root of the run, removed at its end

static void RemoveRoot(void)
{
    nftw(
        root, [](const char *path, const struct stat *, int, struct FTW *) { return remove(path); }, 16,
        FTW_DEPTH | FTW_PHYS);
}

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    if (!mkdtemp(root))
        return 1;
    atexit(RemoveRoot);
    if (!OpenToolkit("headless", 320, 200, root))
        return 1;
    _OstrandBase->log_level = -1;  // the reader's complaints about bad input are the point here
    T_CREATE_APPLICATION create = {};
    create.application = NewApplication("QuillformFuzz");
    create.w = 320;
    create.h = 200;
    main_window = Dll_OpenQuillformWindow(&create);
    RefreshHandlers(NULL);
    // The input goes to a file in memory that the reader loads by its path.
    input_fd = memfd_create("page.cpp", 0);
    snprintf(input_path, sizeof(input_path), "/proc/self/fd/%d", input_fd);
    return main_window && input_fd >= 0 ? 0 : 1;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (ftruncate(input_fd, 0) != 0 || pwrite(input_fd, data, size, 0) != (ssize_t)size)
        return 0;
    OpenPageFile(main_window, input_path);
    // Every page and message box goes again; the turn frees them.
    for (t_Window *child = main_window->first_child, *next; child->next; child = next) {
        next = child->next;  // a removed window leaves the list
        if (IsPageWindow(child)) {
            child->state_flags &= ~WSF_MODIFIED;
            RemovePage(child, 0);
        } else if (child->flags & WF_DEPENDANT) {
            RemoveWindow(child);
        }
    }
    RefreshHandlers(NULL);
    return 0;
}
