// The main menu's commands on the active page that are no group operation of their own: the
// selection commands, tab-order entry, Undo and Redo, the clipboard and flip, and the preview.
#include "editor/page_operations.h"

#include "editor/clipboard.h"
#include "editor/mouse_editing.h"
#include "editor/page_commands.h"
#include "editor/preview.h"

// Sets, clears or toggles the selection mark of every gadget of the page.
void MarkAllGadgets(t_Window *page, u32 how)
{
    t_Gaget_Handler *handler = FindGadgetHandler(page);
    if (!handler)
        return;
    for (t_gadget *g = handler->first_gadget; g->next; g = g->next) {
        if (how == MARK_SET)
            g->live_flags |= GADGET_MARK_SELECTED;
        else if (how == MARK_CLEAR)
            g->live_flags &= ~GADGET_MARK_SELECTED;
        else
            g->live_flags ^= GADGET_MARK_SELECTED;
    }
}

void EnterTabOrder(t_Window *page)
{
    T_WINEDIT_HANDLER *record = PageRecordOf(page);
    record->edit_state |= EDIT_TAB_ORDER;
    record->tab_next = 1;
    t_Gaget_Handler *handler = FindGadgetHandler(page);
    if (!handler)
        return;
    u32 counter = 1;
    for (t_gadget *g = handler->first_gadget; g->next; g = g->next) {
        if (g->tab_index == 0)
            g->tab_index = counter++;
        else
            counter = g->tab_index + 1;
    }
}

void StepHistory(t_Window *page, u32 direction)
{
    T_WINEDIT_HANDLER *record = PageRecordOf(page);
    int forward = direction == HISTORY_FORTH;
    if (forward)
        Redo(&record->undo);
    else
        Undo(&record->undo);
    if (t_Gaget_Handler *handler = FindGadgetHandler(page))
        handler->current_gadget = NULL;
    RecalcUserSize(page);
    if (forward)
        page->state_flags |= WSF_MODIFIED;
    else if (!CanUndo(&record->undo))
        page->state_flags &= ~WSF_MODIFIED;
    TellMainWindow(page, ITEM_MENU_REFRESH);
}

void EditMarkedGadgets(t_Window *page, u32 operation)
{
    switch (operation) {
    case EDIT_CUT:
        CutGadgets(page);
        break;
    case EDIT_COPY:
        CopyGadgets(page);
        break;
    case EDIT_PASTE:
        PasteGadgets(page);
        break;
    default:  // EDIT_FLIP
        FlipMarkedGadgets(page);
        break;
    }
    TellMainWindow(page, 0);
}

void PreviewPage(t_Window *page)
{
    OpenPreview(page);
}
