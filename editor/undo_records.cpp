// The page's undo records: "Create gadget" (of a tool, or of Paste, which keeps the pasted block),
// and a gadget's geometry ("Move gadget" when the size stayed, "Resize gadget" when it changed,
// whatever the caller's flag).
//
// A record never owns its gadget and never touches one that has left the page:
// - before use, the gadget pointer is compared with the pointers of the page's gadget list, and a
//   record whose gadget isn't there does nothing (comparing addresses reads nothing of a freed
//   gadget);
// - a geometry record of a gadget made by a "Create gadget" record still on the list goes through
//   that record, so that after Undo and Redo of the creation it follows the new gadget (the
//   creation record stands before it on the list and so outlives it);
// - a gadget deleted outside the history is forgotten by every record that names it, so that a
//   later gadget that happens to get the same address is never taken for it.
#include "editor/undo_records.h"

#include <string.h>

#include <unordered_map>

#include "editor/mouse_editing.h"
#include "editor/page_commands.h"
#include "page/catalogue.h"
#include "source/gadget_blocks.h"
#include "source/open_page.h"

#define NEW_GADGET_MAX 100  // the value range of a gadget made with a tool
#define NEW_GADGET_STEP 1

// The page's own pointers leave a gadget that goes.
static void ForgetInPage(t_Window *window, const t_gadget *gadget)
{
    T_WINEDIT_HANDLER *record = PageRecordOf(window);
    if (!record)
        return;
    if (record->drag_gadget == gadget) {
        record->drag_gadget = NULL;
        record->drag_handle = HANDLE_NONE;
    }
    if (record->handle_gadget == gadget)
        record->handle_gadget = NULL;
}

// --- Create gadget -------------------------------------------------------------------------------

void FillNewGadgetInit(T_GADGETOBJECTINIT *init, i16 x, i16 y, i16 w, i16 h)
{
    memset(init, 0, sizeof(*init));
    init->x = x;
    init->y = y;
    init->base_width = w;
    init->base_height = h;
    init->hover_text = "";
    init->min = 0;
    init->max = NEW_GADGET_MAX;
    init->step = NEW_GADGET_STEP;
}

void AddCreateGadgetUndo(T_WINEDIT_HANDLER *record, T_GADGETOBJECTINIT *init, u16 tool)
{
    T_UNDO_NODE *node =
        AddUndoNode(&record->undo, RedoCreateGadget, UndoCreateGadget, NULL, sizeof(T_CREATE_UNDO), UNDO_LABEL_CREATE);
    T_CREATE_UNDO *data = node ? (T_CREATE_UNDO *)node->data : NULL;
    t_Window *window = record->head.window;
    t_gadget *gadget = CreateGadgetByTool(window, (i16)tool, init);
    if (data) {
        data->tool = tool;
        data->window = window;
        data->x = init->x;
        data->y = init->y;
        data->base_width = init->base_width;
        data->base_height = init->base_height;
        data->gadget = gadget;
    }
    if (!gadget) {
        myprintf(0, "tool %u makes no gadget\n", (unsigned)tool);
        return;
    }
    ClearAllMarkedGadgets(gadget);
    gadget->live_flags |= GADGET_MARK_SELECTED;
    record->drag_gadget = gadget;
}

void UndoCreateGadget(void *block)
{
    T_CREATE_UNDO *data = (T_CREATE_UNDO *)block;
    t_gadget *gadget = data->gadget;
    if (!GadgetIsOnPage(data->window, gadget))
        return;
    t_Gaget_Handler *handler = FindGadgetHandler(data->window);
    ForgetInPage(data->window, gadget);
    CloseGadgetDialogs(data->window, gadget);
    ForgetGadgetItemCode(data->window, gadget);
    RemoveGadget(gadget, handler);
    SubNode((t_Node *)gadget);
    FreeGadget(gadget);
    data->gadget = NULL;
}

void RedoCreateGadget(void *block)
{
    T_CREATE_UNDO *data = (T_CREATE_UNDO *)block;
    if (data->gadget || data->gone)
        return;
    T_GADGETOBJECTINIT init;
    FillNewGadgetInit(&init, data->x, data->y, data->base_width, data->base_height);
    data->gadget = CreateGadgetByTool(data->window, (i16)data->tool, &init);
}

// --- Create gadget, by Paste --------------------------------------------------------------------

void GiveFreeItemCodeIfTaken(t_Window *window, t_gadget *gadget)
{
    if (gadget->item_code != 0 && GadgetsWithItemCode(window, gadget->item_code) > 1)
        SetGadgetItemCode(window, gadget, NextFreeItemCodeOf(window));
}

// The GADGET block stands behind the creation record, with its NUL.
static const char *PastedBlock(T_CREATE_UNDO *data)
{
    return (const char *)(data + 1);
}

void AddPasteGadgetUndo(T_WINEDIT_HANDLER *record, t_gadget *gadget)
{
    std::string block;
    WriteGadgetBlocks(&gadget, 1, &block);
    T_UNDO_NODE *node = AddUndoNode(&record->undo, RedoPasteGadget, UndoCreateGadget, NULL,
                                    (u32)(sizeof(T_CREATE_UNDO) + block.size() + 1), UNDO_LABEL_CREATE);
    if (!node)
        return;
    T_CREATE_UNDO *data = (T_CREATE_UNDO *)node->data;
    data->gadget = gadget;
    data->window = record->head.window;
    data->tool = (u16)ToolOfType(gadget->type, gadget->flags);
    data->x = gadget->x;
    data->y = gadget->y;
    data->base_width = gadget->base_width;
    data->base_height = gadget->base_height;
    memcpy((char *)(data + 1), block.c_str(), block.size() + 1);
}

static void KeepMadeGadget(t_gadget *gadget, void *data)
{
    *(t_gadget **)data = gadget;
}

void RedoPasteGadget(void *block)
{
    T_CREATE_UNDO *data = (T_CREATE_UNDO *)block;
    if (data->gadget || data->gone)
        return;
    const char *text = PastedBlock(data);
    t_gadget *gadget = NULL;
    ReadGadgetBlocks(data->window, text, (u32)strlen(text), KeepMadeGadget, &gadget);
    if (gadget)
        GiveFreeItemCodeIfTaken(data->window, gadget);
    data->gadget = gadget;
}

// --- Geometry ------------------------------------------------------------------------------------

// The "Create gadget" records on the list, by the gadget each made: one walk of the list, however
// many gadgets a move takes along.
typedef std::unordered_map<const t_gadget *, T_CREATE_UNDO *> T_CREATIONS;

static void CollectCreations(T_WINEDIT_HANDLER *record, T_CREATIONS *creations)
{
    for (T_UNDO_NODE *node = (T_UNDO_NODE *)record->undo.nodes.first; node->next; node = node->next)
        if (node->undo == UndoCreateGadget)
            creations->emplace(((T_CREATE_UNDO *)node->data)->gadget, (T_CREATE_UNDO *)node->data);
}

void AddGeometryUndo(T_WINEDIT_HANDLER *record, t_gadget *gadget, u32 flag)
{
    (void)flag;  // moves and resizes are told apart by the size, not by the caller
    if (!gadget)
        return;
    T_CREATIONS creations;
    CollectCreations(record, &creations);
    for (t_gadget *g = (t_gadget *)FindFirstNode((t_Node *)gadget); g->next; g = g->next) {
        if (!IsGadgetMarked(g))
            continue;
        int same_size = g->base_width == g->prev_width && g->base_height == g->prev_height;
        T_UNDO_NODE *node = AddUndoNode(&record->undo, RedoGeometry, UndoGeometry, NULL, sizeof(T_GEOMETRY_UNDO),
                                        same_size ? UNDO_LABEL_MOVE : UNDO_LABEL_RESIZE);
        if (!node)
            return;
        T_GEOMETRY_UNDO *data = (T_GEOMETRY_UNDO *)node->data;
        data->after = T_RPOS{g->x, g->y, g->base_width, g->base_height};
        data->before = T_RPOS{g->prev_x, g->prev_y, g->prev_width, g->prev_height};
        data->window = record->head.window;
        data->gadget = g;
        T_CREATIONS::const_iterator found = creations.find(g);
        data->origin = found == creations.end() ? NULL : found->second;
    }
}

static void ApplyGeometry(T_GEOMETRY_UNDO *data, const T_RPOS &box)
{
    t_gadget *gadget = data->origin ? data->origin->gadget : data->gadget;
    if (!GadgetIsOnPage(data->window, gadget))
        return;
    gadget->pos_x = box.x;
    gadget->pos_y = box.y;
    gadget->pos_width = gadget->base_width = box.w;
    gadget->pos_height = gadget->base_height = box.h;
    RecalcGadgetPosition(data->window, gadget, gadget->live_flags, 0, 0);
    CURRENT_DISPLAY->window_class->refresh_request = 1;
}

void UndoGeometry(void *block)
{
    T_GEOMETRY_UNDO *data = (T_GEOMETRY_UNDO *)block;
    ApplyGeometry(data, data->before);
}

void RedoGeometry(void *block)
{
    T_GEOMETRY_UNDO *data = (T_GEOMETRY_UNDO *)block;
    ApplyGeometry(data, data->after);
}

void ForgetGadgetInHistory(T_WINEDIT_HANDLER *record, t_gadget *gadget)
{
    for (T_UNDO_NODE *node = (T_UNDO_NODE *)record->undo.nodes.first; node->next; node = node->next) {
        if (node->undo == UndoCreateGadget) {
            T_CREATE_UNDO *data = (T_CREATE_UNDO *)node->data;
            if (data->gadget == gadget) {
                data->gadget = NULL;
                data->gone = 1;
            }
        } else if (node->undo == UndoGeometry) {
            T_GEOMETRY_UNDO *data = (T_GEOMETRY_UNDO *)node->data;
            if (data->gadget == gadget && !data->origin)
                data->gadget = NULL;
        }
    }
    ForgetInPage(record->head.window, gadget);
}
