// Undo lists: records in the order they were made, with `current` the one that Undo takes back
// next. Records after `current` are the redo half, which a new record drops.
#include "lumora/lumora_internal.h"

void InitUndoList(T_UNDO_LIST *list, const char *name)
{
    if (!list)
        return;
    InitList(&list->nodes, name);
    list->current = NULL;
    list->name = name;
}

// The record after `node`, or the first when `node` is null; null at the end.
static T_UNDO_NODE *NodeAfter(T_UNDO_LIST *list, T_UNDO_NODE *node)
{
    T_UNDO_NODE *next = node ? node->next : (T_UNDO_NODE *)list->nodes.first;
    return next && next->next ? next : NULL;
}

// Frees every record after `keep` (all of them when `keep` is null), data blocks and labels too.
static void DropAfter(T_UNDO_LIST *list, T_UNDO_NODE *keep)
{
    for (T_UNDO_NODE *node = NodeAfter(list, keep); node;) {
        T_UNDO_NODE *next = NodeAfter(list, node);
        FreeMem(node->data, node->data_size);
        SubNode((t_Node *)node);
        FreeMem(node, sizeof(T_UNDO_NODE));  // the label lives in the node's block
        node = next;
    }
}

// Drops the redo half, then appends a record with a cleared block of `data_size` bytes and the
// label copied, which becomes current. Null, with a log line, without a list.
T_UNDO_NODE *AddUndoNode(T_UNDO_LIST *list, T_UNDO_FN redo, T_UNDO_FN undo, T_UNDO_FN third, u32 data_size,
                         const char *label)
{
    if (!list) {
        myprintf(0, "AddUndoNode: no undo list\n");
        return NULL;
    }
    DropAfter(list, list->current);
    T_UNDO_NODE *node = (T_UNDO_NODE *)NewTail(&list->nodes, sizeof(T_UNDO_NODE), label ? label : "");
    node->redo = redo;
    node->undo = undo;
    node->third = third;
    node->data_size = data_size;
    node->data = data_size ? AllocMemC(data_size) : NULL;
    list->current = node;
    return node;
}

// Takes back the current record; the one before it becomes current.
void Undo(T_UNDO_LIST *list)
{
    T_UNDO_NODE *node = list ? list->current : NULL;
    if (!node)
        return;
    list->current = node->prev->prev ? node->prev : NULL;
    if (node->undo)
        node->undo(node->data);
}

// Does again the record after the current one, which becomes current.
void Redo(T_UNDO_LIST *list)
{
    T_UNDO_NODE *node = list ? NodeAfter(list, list->current) : NULL;
    if (!node)
        return;
    list->current = node;
    if (node->redo)
        node->redo(node->data);
}

int CanUndo(T_UNDO_LIST *list)
{
    return list && list->current != NULL;
}

int CanRedo(T_UNDO_LIST *list)
{
    return list && NodeAfter(list, list->current) != NULL;
}

T_UNDO_NODE *GetCurrentUndoNode(T_UNDO_LIST *list)
{
    return list ? list->current : NULL;
}

T_UNDO_NODE *GetCurrentRedoNode(T_UNDO_LIST *list)
{
    return list ? NodeAfter(list, list->current) : NULL;
}

void EmptyUndoList(T_UNDO_LIST *list)
{
    if (!list)
        return;
    DropAfter(list, NULL);
    list->current = NULL;
}
