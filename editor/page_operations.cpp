// The main menu's commands on the active page that are no group operation of their own: the
// selection commands, tab-order entry, Undo and Redo, and the forms of the clipboard, flip, centre
// and preview that the command table calls.
#include "editor/page_operations.h"

#include "editor/clipboard.h"
#include "editor/mouse_editing.h"
#include "editor/page_commands.h"
#include "editor/preview.h"

enum { MARK_SET, MARK_CLEAR, MARK_TOGGLE };

// Sets, clears or toggles the selection mark of every gadget of the page.
static void MarkAllGadgets(t_Window *page, int how)
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

void SelectAllGadgets(t_Window *page)
{
    MarkAllGadgets(page, MARK_SET);
}

void SelectNoGadgets(t_Window *page)
{
    MarkAllGadgets(page, MARK_CLEAR);
}

void InvertGadgetSelection(t_Window *page)
{
    MarkAllGadgets(page, MARK_TOGGLE);
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

// Takes one step back or forth in the page's history.
static void StepHistory(t_Window *page, int forward)
{
    T_WINEDIT_HANDLER *record = PageRecordOf(page);
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

void UndoPageStep(t_Window *page)
{
    StepHistory(page, 0);
}

void RedoPageStep(t_Window *page)
{
    StepHistory(page, 1);
}

void CutToClipboard(t_Window *page)
{
    CutGadgets(page);
    TellMainWindow(page, 0);
}

void CopyToClipboard(t_Window *page)
{
    CopyGadgets(page);
    TellMainWindow(page, 0);
}

void PasteFromClipboard(t_Window *page)
{
    PasteGadgets(page);
    TellMainWindow(page, 0);
}

void FlipHorizontal(t_Window *page)
{
    FlipMarkedGadgets(page);
    TellMainWindow(page, 0);
}

void CentreHorizontally(t_Window *page)
{
    CentreMarkedGadgets(page, CENTRE_HORIZONTAL);
}

void CentreVertically(t_Window *page)
{
    CentreMarkedGadgets(page, CENTRE_VERTICAL);
}

void PreviewPage(t_Window *page)
{
    OpenPreview(page);
}
