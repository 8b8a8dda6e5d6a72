// A consistency check over a page's records, run after each step of the editor's tests: what every
// gesture and command must leave true. Returns the violations found, one a line; empty when none.
#pragma once
#include <stdio.h>

#include <string>

#include "editor/mouse_editing.h"
#include "editor/undo_records.h"
#include "page/records.h"

static inline int GadgetOnPage(t_Window *page, const t_gadget *gadget)
{
    t_Gaget_Handler *handler = FindGadgetHandler(page);
    if (!handler || !gadget)
        return 0;
    for (t_gadget *g = handler->first_gadget; g->next; g = g->next)
        if (g == gadget)
            return 1;
    return 0;
}

// One line of the report; `format` has at most one %ld, for `value`.
static inline void Violation(std::string &out, const char *format, long value = 0)
{
    char line[256];
    snprintf(line, sizeof(line), format, value);
    out += line;
    out += '\n';
}

// Every pointer that the history holds names a gadget on the page, or nothing.
static inline void CheckHistory(t_Window *page, T_WINEDIT_HANDLER *record, std::string &out)
{
    for (T_UNDO_NODE *node = (T_UNDO_NODE *)record->undo.nodes.first; node->next; node = node->next) {
        if (node->undo == UndoCreateGadget) {
            T_CREATE_UNDO *data = (T_CREATE_UNDO *)node->data;
            if (data->window != page)
                Violation(out, "a creation record of another window");
            if (data->gadget && !GadgetOnPage(page, data->gadget))
                Violation(out, "a creation record names a gadget that has gone");
        } else if (node->undo == UndoGeometry) {
            T_GEOMETRY_UNDO *data = (T_GEOMETRY_UNDO *)node->data;
            if (data->window != page)
                Violation(out, "a geometry record of another window");
            if (!data->origin && data->gadget && !GadgetOnPage(page, data->gadget))
                Violation(out, "a geometry record names a gadget that has gone");
        } else {
            Violation(out, "an undo record of an unknown kind");
        }
    }
}

// The page's kept set of item codes counts exactly the codes its gadgets hold, and no code below
// its lowest free one is free.
static inline void CheckItemCodes(t_Window *page, T_WINEDIT_HANDLER *record, t_Gaget_Handler *handler, std::string &out)
{
    (void)page;
    if (!record->item_codes_valid)
        return;
    T_ITEM_CODES recount;
    InitItemCodes(&recount);
    u32 gadgets = 0;
    for (t_gadget *g = handler->first_gadget; g->next; g = g->next, gadgets++)
        AddItemCode(&recount, g->item_code);
    for (t_gadget *g = handler->first_gadget; g->next; g = g->next)
        if (ItemCodeCount(&record->item_codes, g->item_code) != ItemCodeCount(&recount, g->item_code))
            Violation(out, "item code %ld is counted wrongly", (long)g->item_code);
    if (record->item_codes.total != gadgets)
        Violation(out, "the set counts %ld holders more than the gadgets",
                  (long)record->item_codes.total - (long)gadgets);
    if (record->item_codes.used != recount.used)
        Violation(out, "the set holds %ld codes more than the gadgets",
                  (long)record->item_codes.used - (long)recount.used);
    for (u32 code = 1; code < record->item_codes.lowest_free && code <= gadgets + 1; code++)
        if (!ItemCodeCount(&recount, code))
            Violation(out, "code %ld is free below the lowest free one", (long)code);
    FreeItemCodes(&recount);
}

static inline std::string CheckPageInvariants(t_Window *page)
{
    std::string out;
    if (!IsPageWindow(page))
        return "not a page\n";
    T_WINEDIT_HANDLER *record = (T_WINEDIT_HANDLER *)page->user_data;
    t_Gaget_Handler *handler = FindGadgetHandler(page);
    if (!handler)
        return "no gadget handler\n";
    int pressed = (record->edit_state & EDIT_PRESSED_GADGET) != 0;
    long index = 0;  // of the gadget in the list, in the report
    for (t_gadget *g = handler->first_gadget; g->next; g = g->next, index++) {
        if (g->window != page || g->handler != handler)
            Violation(out, "gadget %ld belongs to another window", index);
        if (g->x != g->pos_x || g->y != g->pos_y)
            Violation(out, "gadget %ld: saved position differs from the working one", index);
        if (g->pos_width != g->base_width || g->pos_height != g->base_height)
            Violation(out, "gadget %ld: working size differs from the base size", index);
        i16 sx = (g->live_flags & GADGET_FLAGS_FROM_RIGHT) ? page->user_x + page->user_w - g->pos_x - g->base_width
                                                           : page->user_x + g->pos_x;
        i16 sy = (g->live_flags & GADGET_FLAGS_FROM_BOTTOM) ? page->user_y + page->user_h - g->pos_y - g->base_height
                                                            : page->user_y + g->pos_y;
        if (g->screen_x != sx || g->screen_y != sy)
            Violation(out, "gadget %ld: screen position out of step", index);
        // A drag mark outlives the press only on a gadget whose selection went during it.
        if (!pressed && (g->live_flags & GADGET_MARK_DRAG) && (g->live_flags & GADGET_MARK_SELECTED))
            Violation(out, "gadget %ld keeps a drag mark after the press", index);
    }
    if (record->handle_gadget && !GadgetOnPage(page, record->handle_gadget))
        Violation(out, "handle_gadget is not on the page");
    if (record->drag_gadget && !GadgetOnPage(page, record->drag_gadget))
        Violation(out, "drag_gadget is not on the page");
    if (handler->current_gadget && !GadgetOnPage(page, handler->current_gadget))
        Violation(out, "current_gadget is not on the page");
    if (record->drag_handle && !record->drag_gadget)
        Violation(out, "handle %ld in use without a gadget", record->drag_handle);
    if (record->drag_handle > HANDLE_BOTTOM_LEFT)
        Violation(out, "no handle %ld", record->drag_handle);
    if ((record->edit_state & EDIT_DRAGGING) && !pressed)
        Violation(out, "a drag without a press");
    if (page->mouse_move_fn && (!pressed || page->mouse_move_fn != GadgetDragMove))
        Violation(out, "a mouse hook without a press on a gadget");
    if (record->rubber_active && (record->drag_gadget || record->drag_handle))
        Violation(out, "a rubber band during a handle resize");
    if (record->dash_phase > 31)
        Violation(out, "dash phase %ld", record->dash_phase);
    if ((record->edit_state & EDIT_TAB_ORDER) && record->handle_gadget)
        Violation(out, "handles in tab-order mode");
    CheckItemCodes(page, record, handler, out);
    CheckHistory(page, record, out);
    return out;
}
