// List entries: the nodes of list boxes, drop boxes and trees, made through CreateObject (with
// parent_gadget) or NewBranch and freed with their children; the record that holds them; and the
// walk over the rows that a list shows, which for a tree goes into the open branches.
#include "knobkit/knobkit_internal.h"

static int HoldsListEntries(t_gadget *g)
{
    return g && (g->type == GADGET_TYPE_LIST_BOX || g->type == GADGET_TYPE_DROP_BOX || g->type == GADGET_TYPE_TREE);
}

// init->parent_gadget is the T_LIST_DATA that CreateObject gave for the list; the entry goes at
// its end. Null (logged) for a holder of no list or when memory runs out.
void *CreateListEntry(t_Gaget_Handler *handler, const char *name, T_GADGETOBJECTINIT *init)
{
    (void)handler;
    T_LIST_DATA *data = (T_LIST_DATA *)init->parent_gadget;
    if (!HoldsListEntries(data->gadget)) {
        myprintf(0, "CreateObject: %s: the parent holds no list entries\n", name ? name : "");
        return NULL;
    }
    return NewBranch(&data->entries, NULL, name, 0);
}

// Null (logged) when memory runs out.
T_LIST_ENTRY *NewBranch(t_List *list, T_LIST_ENTRY *after, const char *text, u32 flags)
{
    if (!list)
        return NULL;
    T_LIST_ENTRY *e = (T_LIST_ENTRY *)NewTail(list, sizeof(T_LIST_ENTRY), text ? text : "");
    if (!e) {
        myprintf(0, "NewBranch: no memory for the entry %s\n", text ? text : "");
        return NULL;
    }
    InitList(&e->children, "branches");
    e->open = (flags & BRANCH_OPEN) != 0;
    if (after && after->next) {  // move it from the end to behind `after`
        SubNode((t_Node *)e);
        e->prev = after;
        e->next = after->next;
        after->next->prev = e;
        after->next = e;
    }
    return e;
}

void FreeListEntries(t_List *entries)
{
    if (!entries)
        return;
    while (!LIST_EMPTY(entries)) {
        T_LIST_ENTRY *e = (T_LIST_ENTRY *)entries->first;
        FreeListEntries(&e->children);
        SubNode((t_Node *)e);
        FreeMem(e, sizeof(T_LIST_ENTRY));
    }
}

int HasChildren(T_LIST_ENTRY *entry)
{
    return !LIST_EMPTY(&entry->children);
}

T_LIST_DATA *NewListData(t_gadget *gadget)
{
    T_LIST_DATA *data = (T_LIST_DATA *)AllocMemC(sizeof(T_LIST_DATA));
    if (!data)
        return NULL;
    InitList(&data->entries, "entries");
    data->gadget = gadget;
    data->selected = -1;
    gadget->class_data = (uintptr_t)data;
    return data;
}

void FreeListData(t_gadget *gadget)
{
    T_LIST_DATA *data = (T_LIST_DATA *)gadget->class_data;
    if (!data)
        return;
    FreeListEntries(&data->entries);
    FreeMem(data, sizeof(T_LIST_DATA));
    gadget->class_data = 0;
}

// --- Rows ------------------------------------------------------------------------------------------

static void Arrive(T_ROW_WALK *walk, T_LIST_ENTRY *entry)
{
    walk->entry = entry;
    if (entry)
        entry->level = walk->level;
}

void FirstRow(T_ROW_WALK *walk, T_LIST_DATA *data, int tree)
{
    walk->tree = tree;
    walk->level = 0;
    Arrive(walk, LIST_EMPTY(&data->entries) ? NULL : (T_LIST_ENTRY *)data->entries.first);
}

// Depth first: into an open branch, else to the next sibling of the nearest level that has one.
void NextRow(T_ROW_WALK *walk)
{
    T_LIST_ENTRY *e = walk->entry;
    if (!e)
        return;
    if (walk->tree && e->open && HasChildren(e) && walk->level < TREE_MAX_DEPTH) {
        walk->stack[walk->level++] = e;
        Arrive(walk, (T_LIST_ENTRY *)e->children.first);
        return;
    }
    for (;;) {
        if (e->next->next) {
            Arrive(walk, e->next);
            return;
        }
        if (walk->level == 0) {
            walk->entry = NULL;
            return;
        }
        e = walk->stack[--walk->level];
    }
}

i32 CountRows(T_LIST_DATA *data, int tree)
{
    if (!tree)
        return (i32)CountListEntries(&data->entries);
    T_ROW_WALK walk;
    i32 n = 0;
    for (FirstRow(&walk, data, tree); walk.entry; NextRow(&walk))
        n++;
    return n;
}

T_LIST_ENTRY *RowEntry(T_LIST_DATA *data, int tree, i32 row, u16 *level)
{
    if (row < 0)
        return NULL;
    T_ROW_WALK walk;
    FirstRow(&walk, data, tree);
    for (i32 i = 0; i < row && walk.entry; i++)
        NextRow(&walk);
    if (level)
        *level = walk.level;
    return walk.entry;
}

i32 RowOfEntry(T_LIST_DATA *data, int tree, T_LIST_ENTRY *entry)
{
    T_ROW_WALK walk;
    i32 row = 0;
    for (FirstRow(&walk, data, tree); walk.entry; NextRow(&walk), row++)
        if (walk.entry == entry)
            return row;
    return -1;
}
