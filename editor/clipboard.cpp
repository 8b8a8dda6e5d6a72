// Cut, Copy and Paste of gadgets through the desktop clipboard, whose text is the page format's own
// GADGET blocks: gadgets copied here paste into another page, another Quillform or a text editor,
// and blocks written anywhere paste onto a page.
//
// Copy takes the marked gadgets, or the current one when nothing is marked. Paste reads each block
// with the reader's statement rules, gives a gadget whose item code is taken a free one, puts
// gadgets pasted into the page they were copied from 8 pixels further down and right at each
// paste, marks the pasted gadgets alone, and leaves one "Create gadget" record for each. Cut is
// Copy, then Delete; pasting a cut back into its page puts it where it was.
#include "editor/clipboard.h"

#include <string>
#include <vector>

#include "editor/mouse_editing.h"
#include "editor/page_commands.h"
#include "editor/undo_records.h"
#include "source/gadget_blocks.h"

#define PASTE_OFFSET 8  // pixels, down and right, at each paste into the page copied from

// What the clipboard holds from this Quillform, so that a paste knows the page it came from.
static struct {
    std::string text;  // the text last put on the clipboard
    t_Window *page;    // the page it was copied from; null once that page has gone
    i16 pastes;        // the offsets taken there so far
} copied;

// The marked gadgets in list order, or the current gadget when none is marked.
static std::vector<t_gadget *> GadgetsToCopy(t_Window *page)
{
    std::vector<t_gadget *> gadgets;
    t_Gaget_Handler *handler = FindGadgetHandler(page);
    if (!handler)
        return gadgets;
    for (t_gadget *g = handler->first_gadget; g->next; g = g->next)
        if (IsGadgetMarked(g))
            gadgets.push_back(g);
    if (gadgets.empty() && handler->current_gadget)
        for (t_gadget *g = handler->first_gadget; g->next; g = g->next)
            if (g == handler->current_gadget)
                gadgets.push_back(g);
    return gadgets;
}

int CanCopyGadgets(t_Window *page)
{
    t_Gaget_Handler *handler = page && IsPageWindow(page) ? FindGadgetHandler(page) : NULL;
    if (!handler)
        return 0;
    return handler->current_gadget != NULL || CountMarkedGadgets(handler->first_gadget) > 0;
}

int ClipboardHoldsGadgets(void)
{
    return HoldsGadgetBlock(GetClipboardText());
}

// Puts the gadgets' blocks on the clipboard; `pastes` is the offset count a paste into the page
// starts from. Returns how many gadgets went.
static u32 CopyToClipboard(t_Window *page, i16 pastes)
{
    std::vector<t_gadget *> gadgets = GadgetsToCopy(page);
    if (gadgets.empty())
        return 0;
    std::string text;
    WriteGadgetBlocks(gadgets.data(), (u32)gadgets.size(), &text);
    if (!SetClipboardText(text.c_str()))
        return 0;
    copied.text = text;
    copied.page = page;
    copied.pastes = pastes;
    myprintf(3, "Copied %u gadgets to the clipboard\n", (unsigned)gadgets.size());
    return (u32)gadgets.size();
}

u32 CopyGadgets(t_Window *page)
{
    return IsPageWindow(page) ? CopyToClipboard(page, 0) : 0;
}

u32 CutGadgets(t_Window *page)
{
    if (!IsPageWindow(page))
        return 0;
    u32 cut = CopyToClipboard(page, -1);  // pasted back into this page, the first stands in place
    if (cut)
        DeleteMarkedGadgets(page);
    return cut;
}

typedef struct T_PASTE {
    t_Window *page;
    T_WINEDIT_HANDLER *record;
    i16 offset;
    u32 made;
} T_PASTE;

// A gadget read from the clipboard: a free item code where its own is taken, no tab links (they
// name gadgets of the page it came from), the offset, the mark and its record.
static void TakePastedGadget(t_gadget *gadget, void *data)
{
    T_PASTE *paste = (T_PASTE *)data;
    paste->made++;
    GiveFreeItemCodeIfTaken(paste->page, gadget);
    gadget->tab[0] = gadget->tab[1] = 0;
    if (paste->offset) {
        i16 dx = (gadget->live_flags & GADGET_FLAGS_FROM_RIGHT) ? -paste->offset : paste->offset;
        i16 dy = (gadget->live_flags & GADGET_FLAGS_FROM_BOTTOM) ? -paste->offset : paste->offset;
        RecalcGadgetPosition(paste->page, gadget, gadget->live_flags, dx, dy);
    }
    gadget->live_flags |= GADGET_MARK_SELECTED;
    AddPasteGadgetUndo(paste->record, gadget);
}

u32 PasteGadgets(t_Window *page)
{
    if (!IsPageWindow(page))
        return 0;
    const char *text = GetClipboardText();
    if (!HoldsGadgetBlock(text)) {
        myprintf(3, "Paste: the clipboard holds no GADGET block; nothing was pasted\n");
        return 0;
    }
    std::string held = text;  // the clipboard's text may change while the gadgets are made
    T_PASTE paste = {page, PageRecordOf(page), 0, 0};
    if (copied.page == page && copied.text == held) {
        copied.pastes++;
        paste.offset = (i16)(PASTE_OFFSET * (copied.pastes > 0 ? copied.pastes : 0));
    }
    if (t_gadget *first = FirstPageGadget(page))
        if (first->next)
            ClearAllMarkedGadgets(first);
    u32 blocks = ReadGadgetBlocks(page, held.c_str(), (u32)held.size(), TakePastedGadget, &paste);
    if (paste.made < blocks)
        myprintf(3, "Paste: %u of %u GADGET blocks made no gadget (a type without a tool)\n",
                 (unsigned)(blocks - paste.made), (unsigned)blocks);
    if (paste.made) {
        RecalcUserSize(page);
        page->state_flags |= WSF_MODIFIED;
    }
    return paste.made;
}

void ForgetClipboardPage(t_Window *page)
{
    if (copied.page == page)
        copied.page = NULL;
}
