// Handlers: blocks that begin with the toolkit's head, kept on a window's list by priority.
#include <string.h>

#include "lumora/lumora_internal.h"

// The name is not copied: it must outlive the handler (handlers are named by literals).
t_Handler *NewHandler(t_List *list, T_HANDLER_INPUT input, T_HANDLER_PAINT paint, const char *name, i16 priority,
                      u32 size, t_Window *window)
{
    if (size < sizeof(t_Handler))
        size = sizeof(t_Handler);
    t_Handler *h = (t_Handler *)AllocMemC(size);
    if (!h) {
        myprintf(0, "NewHandler: no memory for %s\n", name ? name : "a handler");
        return NULL;
    }
    h->name = (char *)name;
    h->priority = priority;
    h->input = input;
    h->paint = paint;
    h->window = window;
    h->size = size;
    h->kind = HANDLER_KIND_USER;
    h->list = list;
    if (list)
        AddQueue(list, (t_Node *)h);
    return h;
}

void DelHandler(t_Handler *handler)
{
    if (!handler)
        return;
    if (handler->input)
        handler->input(handler, HANDLER_EVENT_END, NULL);
    if (handler->kind == HANDLER_KIND_GADGET)
        FreeGadgetsOf((t_Gaget_Handler *)handler);
    ForgetHandler(handler);
    if (handler->list)
        SubNode((t_Node *)handler);
    FreeMem(handler, handler->size);
}

u32 SnapshotHandlers(t_Window *window, t_Handler **out, u32 max)
{
    u32 n = 0;
    for (t_Node *node = window->handlers.first; node->next; node = node->next) {
        if (!QF_EXPECT(n < max))
            break;
        out[n++] = (t_Handler *)node;
    }
    return n;
}

int HandlerIsOn(t_Window *window, t_Handler *handler)
{
    if (window->state_flags & WSF_REMOVED)
        return 0;
    for (t_Node *node = window->handlers.first; node->next; node = node->next)
        if ((t_Handler *)node == handler)
            return 1;
    return 0;
}

t_Handler *FindHandlerOfKind(t_Window *window, u32 kind)
{
    for (t_Node *node = window->handlers.first; node->next; node = node->next)
        if (((t_Handler *)node)->kind == kind)
            return (t_Handler *)node;
    return NULL;
}

void ForgetHandler(t_Handler *handler)
{
    T_CAPTURE *c = &lumora_state.capture;
    if (c->handler == handler)
        c->handler = NULL, c->window = NULL;
    if (handler->kind == HANDLER_KIND_GADGET && c->gadget && c->gadget->handler == (t_Gaget_Handler *)handler)
        c->gadget = NULL, c->window = NULL;
}
