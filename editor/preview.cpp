// Preview: a copy of a page as the finished program will behave. Its gadgets are made from the
// page's own GADGET blocks through the reader, then handed back to the toolkit's own behaviour
// (strings take typing, boxes toggle, sliders move) with nothing of the editor left on them; the
// window takes the page's name, user area, colour and bitmap. Tab follows the page's tab order,
// Escape or the close gadget ends the preview, and nothing of the page changes. While the preview
// has the keys, no command of the editor runs.
#include "editor/preview.h"

#include <stdio.h>
#include <string.h>

#include <string>
#include <vector>

#include "editor/texts.h"
#include "source/gadget_blocks.h"
#include "source/source_writer.h"

#define PREVIEW_HANDLER_NAME "preview"
#define PREVIEW_FLAGS (WF_CHILD | WF_TITLE | WF_MOVE | WF_BORDER | WF_CLOSE | WF_IN_FRONT | WF_DEPENDANT)

// The preview's handler: keys first. `page` names the page it was made from, for comparing only.
typedef struct T_PREVIEW {
    t_Handler head;
    t_Window *page;
} T_PREVIEW;

static T_PREVIEW *PreviewOf(t_Window *window)
{
    return window && window->user_data && window->message == PreviewMessage ? (T_PREVIEW *)window->user_data : NULL;
}

static u32 PreviewInput(t_Handler *handler, u32 event, void *data)
{
    t_Window *window = handler->window;
    switch (event) {
    case HANDLER_EVENT_KEY: {  // Escape ends the preview; Tab follows the tab order
        const T_KEY_MSG *key = (const T_KEY_MSG *)data;
        if (key->key_code == KEY_ESCAPE) {
            RemoveWindow(window);
            return 1;
        }
        if (key->key_code == KEY_TAB && !(key->qualifiers & ~QUAL_SHIFT)) {
            TabToNextGadget(window, (key->qualifiers & QUAL_SHIFT) != 0);
            return 1;
        }
        return 0;
    }
    default:
        return 0;
    }
}

u32 PreviewMessage(t_Window *window, u32 item_code, u32 msg, void *data)
{
    (void)item_code;
    (void)data;
    switch (msg) {
    case ACT_TERMINATE:  // the close gadget
        RemoveWindow(window);
        return 0;
    case ACT_KEY:  // the keys stay with the preview: no command of the editor runs from it
        return 1;
    default:  // what the gadgets report: a finished program's own code would answer
        return 0;
    }
}

typedef struct T_PREVIEW_READ {
    std::vector<t_gadget *> made;
} T_PREVIEW_READ;

// A gadget read for the preview loses what the editor hangs on gadgets and behaves as the
// toolkit's own, with the flags, the mouse actions and the item code that the page gave it.
static void TakePreviewGadget(t_gadget *gadget, void *data)
{
    ((T_PREVIEW_READ *)data)->made.push_back(gadget);
    gadget->action_fn = NULL;
    gadget->menu_owner = NULL;
    gadget->live_flags = gadget->flags;
    gadget->live_action = gadget->action;
    gadget->live_item_code = gadget->item_code;
}

// Ends a preview of the page that is still open: a new one shows the page as it is now.
static void ClosePreviewOf(t_Window *main_window, t_Window *page)
{
    for (t_Window *child = main_window->first_child; child->next; child = child->next)
        if (T_PREVIEW *preview = PreviewOf(child))
            if (preview->page == page && IsWindowLive(child))
                RemoveWindow(child);
}

t_Window *OpenPreview(t_Window *page)
{
    t_Window *main_window = page ? page->parent : NULL;
    t_Gaget_Handler *page_gadgets = IsPageWindow(page) ? FindGadgetHandler(page) : NULL;
    if (!main_window || !page_gadgets)
        return NULL;
    ClosePreviewOf(main_window, page);

    // The page's source text: every gadget's GADGET block.
    std::vector<t_gadget *> gadgets;
    for (t_gadget *g = page_gadgets->first_gadget; g->next; g = g->next)
        gadgets.push_back(g);
    std::string text;
    WriteGadgetBlocks(gadgets.data(), (u32)gadgets.size(), &text);

    char title[sizeof(((T_WINEDIT_HANDLER *)0)->page_name) + 32];
    snprintf(title, sizeof(title), TXT_PREVIEW_TITLE, page->name ? page->name : "");
    T_WINDOWOBJINIT init;
    memset(&init, 0, sizeof(init));
    init.x = (i16)(page->x - main_window->user_x);
    init.y = (i16)(page->y - main_window->user_y);
    init.w = page->w;
    init.h = page->h;
    init.flags = PREVIEW_FLAGS;
    init.idcmp = IDCMP_TERMINATE | IDCMP_KEY;
    init.message = PreviewMessage;
    init.parent = main_window;
    t_Window *window = (t_Window *)CreateObject(&CURRENT_DISPLAY->window_class->head, title, &init);
    if (!window)
        return NULL;
    // The user area is the page's, whatever frame the preview has.
    T_RPOS frame = {window->x, window->y, (i16)(window->w + page->user_w - window->user_w),
                    (i16)(window->h + page->user_h - window->user_h)};
    ResizeWindow(window, &frame);
    window->UserAreaColour = page->UserAreaColour;
    SetWindowBitmap(window, page->bitmap ? page->bitmap->name : NULL);
    T_PREVIEW *preview = (T_PREVIEW *)NewHandler(&window->handlers, PreviewInput, NULL, PREVIEW_HANDLER_NAME, 0,
                                                 sizeof(T_PREVIEW), window);
    preview->page = page;
    window->user_data = preview;
    NewGadgetHandler(window);

    T_PREVIEW_READ read;
    ReadGadgetBlocks(window, text.c_str(), (u32)text.size(), TakePreviewGadget, &read);
    // The tab order as a save would write it: the page's numbers, linked on the preview's gadgets.
    for (size_t i = 0; i < read.made.size() && i < gadgets.size(); i++)
        read.made[i]->tab_index = gadgets[i]->tab_index;
    BuildTabLinks(window);
    RecalcUserSize(window);
    SetCurrentGadget(window, FirstTabGadget(window));
    return window;
}
