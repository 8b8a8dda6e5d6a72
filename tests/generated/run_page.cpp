// Runs a page file that Quillform wrote: opens the toolkit headless, calls the page's open
// function, turns the loop, and prints the window and each gadget one per line; then closes the
// window as its close gadget does, so that the page's own message function has to remove it.
// Built once per page file: QF_PAGE_FILE names the file, QF_OPEN_PAGE its open function.
//
//   run_<page> [DATA_ROOT]    the data root holds the page's bitmaps; without one, a new temporary
//                             folder is used and removed at the end.
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include <filesystem>

#include "page_description.h"
#include "quillform_app.h"

#include QF_PAGE_FILE

#define TURNS_BEFORE 3  // the first turns deliver the first-run message and paint the window

int main(int argc, char **argv)
{
    char root[512];
    int own_root = argc < 2;
    if (own_root) {
        const char *base = getenv("TMPDIR");
        snprintf(root, sizeof(root), "%s/quillform-page-XXXXXX", base && *base ? base : "/tmp");
        if (!mkdtemp(root)) {
            fprintf(stderr, "run_page: no temporary folder\n");
            return 2;
        }
    } else {
        snprintf(root, sizeof(root), "%s", argv[1]);
    }
    if (!OpenToolkit("headless", RUN_PAGE_SCREEN_W, RUN_PAGE_SCREEN_H, root)) {
        fprintf(stderr, "run_page: the toolkit could not be opened in %s\n", root);
        return 2;
    }

    T_WINDOW *win = QF_OPEN_PAGE();
    int status = 0;
    if (!win) {
        fprintf(stderr, "run_page: the page's open function gave no window\n");
        status = 3;
    } else {
        for (int i = 0; i < TURNS_BEFORE; i++)
            RefreshHandlers(NULL);
        char line[DESCRIPTION_LINE_SIZE];
        puts(DescribeWindow(line, win->w, win->h, win->flags, win->idcmp));
        T_GADGET_HANDLER *gh = FindGadgetHandler(win);
        if (gh)
            for (T_GADGET *g = gh->first_gadget; g->next; g = g->next)
                puts(DescribeGadget(line, g->type, g->pos_x, g->pos_y, g->base_width, g->base_height, g->live_item_code,
                                    g->flags, g->back_colour, g->text_colour, g->live_action, g->icon));
        // The window is found again by name once the toolkit has freed what was removed.
        char name[256];
        snprintf(name, sizeof(name), "%s", win->name);
        PostWindowMessage(win, 0, ACT_TERMINATE, NULL);
        RefreshHandlers(NULL);
        puts(DescribeTermination(line, FindWindowByName(NULL, name) == NULL));
    }
    CloseToolkit();
    std::error_code error;
    if (own_root)
        std::filesystem::remove_all(root, error);
    return status;
}
