// Lists of nodes: initialising, linking, unlinking, ordering, finding and walking.
// A t_List is two overlapping pseudo-nodes, the head {first, null_word} and the tail mark
// {null_word, last}, so that every entry has a real prev and next and unlinking needs
// only the node. A node made by NewTail carries its name in its own block, behind the node, so
// that freeing the node in any way (EmptyList, or SubNode and FreeMem) frees the name with it.
#include <string.h>

#include "ostrand_internal.h"

#define LIST_HEAD(list) ((t_Node *)&(list)->first)
#define LIST_TAIL(list) ((t_Node *)&(list)->null_word)

void InitList(t_List *list, const char *name)
{
    list->first = LIST_TAIL(list);
    list->null_word = NULL;
    list->last = LIST_HEAD(list);
    list->list_name = name;
}

// Short node sizes (a record counted in 32-bit words) still get a whole t_Node.
u32 NodeBlockSize(u32 node_size)
{
    return node_size < sizeof(t_Node) ? (u32)sizeof(t_Node) : node_size;
}

t_Node *NewNamedNode(u32 node_size, const char *name)
{
    u32 size = NodeBlockSize(node_size);
    u32 name_size = name ? (u32)strlen(name) + 1 : 0;
    t_Node *node = (t_Node *)AllocMemExtra(_OstrandBase->default_memory_type, size, name_size);
    if (!node)
        return NULL;
    if (name) {
        node->name = (char *)node + size;
        memcpy(node->name, name, name_size);
    }
    return node;
}

t_Node *NewTail(t_List *list, u32 node_size, const char *name)
{
    t_Node *node = NewNamedNode(node_size, name);
    if (node)
        AddTail(list, node);
    return node;
}

// Links `node` in after `prev`, which may be the head pseudo-node.
static void InsertAfter(t_Node *prev, t_Node *node)
{
    node->prev = prev;
    node->next = prev->next;
    prev->next->prev = node;
    prev->next = node;
}

void AddTail(t_List *list, t_Node *node)
{
    InsertAfter(list->last, node);
}

void AddHead(t_List *list, t_Node *node)
{
    InsertAfter(LIST_HEAD(list), node);
}

void AddQueue(t_List *list, t_Node *node)
{
    t_Node *at = list->first;
    while (at->next && at->priority >= node->priority)
        at = at->next;
    InsertAfter(at->prev, node);
}

// A node that is on no list (both links null) or a tail mark is left alone.
void SubNode(t_Node *node)
{
    if (!node || !node->next || !node->prev)
        return;
    node->prev->next = node->next;
    node->next->prev = node->prev;
    node->next = NULL;
    node->prev = NULL;
}

void EmptyList(t_List *list, u32 node_size)
{
    t_Node *node = list->first;
    while (node->next) {
        t_Node *next = node->next;
        FreeMem(node, NodeBlockSize(node_size));
        node = next;
    }
    InitList(list, list->list_name);
}

void TransferList(t_List *to, t_List *from)
{
    if (LIST_EMPTY(from))
        return;
    t_Node *first = from->first;
    t_Node *last = from->last;
    first->prev = to->last;
    to->last->next = first;
    last->next = LIST_TAIL(to);
    to->last = last;
    InitList(from, from->list_name);
}

u32 CountListEntries(t_List *list)
{
    u32 count = 0;
    for (t_Node *node = list->first; node->next; node = node->next)
        count++;
    return count;
}

// The first node is the one whose prev is the head, the only node with a null prev.
t_Node *FindFirstNode(t_Node *node)
{
    if (!node || !node->prev)
        return node;
    while (node->prev->prev)
        node = node->prev;
    return node;
}

t_Node *FindNode(t_Node *first, const char *name)
{
    if (!name)
        return NULL;
    for (t_Node *node = first; node && node->next; node = node->next)
        if (node->name && strcmp(node->name, name) == 0)
            return node;
    return NULL;
}

t_Node *FindNodeByIndex(t_List *list, u32 index)
{
    for (t_Node *node = list->first; node->next; node = node->next)
        if (index-- == 0)
            return node;
    return NULL;
}

t_Node *FindNodeByField(t_List *list, size_t offset, u32 value)
{
    for (t_Node *node = list->first; node->next; node = node->next)
        if (*(const u32 *)((const char *)node + offset) == value)
            return node;
    return NULL;
}

// The next node is fetched before the call, so that the function may unlink or free its node.
void ApplyFuncToList(t_Node *first, void (*fn)(void *node))
{
    for (t_Node *node = first; node && node->next;) {
        t_Node *next = node->next;
        fn(node);
        node = next;
    }
}

void ApplyFuncToListData(t_Node *first, void (*fn)(void *node, void *data), void *data)
{
    for (t_Node *node = first; node && node->next;) {
        t_Node *next = node->next;
        fn(node, data);
        node = next;
    }
}
