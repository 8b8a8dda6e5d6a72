// CreateObject and RemoveObject: what a handler makes depends on its kind.
#include "lumora/lumora_internal.h"

t_gadget *CreateGadgetObject(t_Gaget_Handler *handler, const char *name, T_GADGETOBJECTINIT *init);

void *CreateObject(t_Handler *handler, const char *name, void *init)
{
    if (!handler || !init) {
        myprintf(0, "CreateObject: no handler or no init record for %s\n", name ? name : "(null)");
        return NULL;
    }
    switch (handler->kind) {
    case HANDLER_KIND_WINDOW_CLASS:  // a window
        return CreateWindowObject(name, (T_WINDOWOBJINIT *)init);
    case HANDLER_KIND_GADGET: {  // a gadget, or an entry of the list it is given
        T_GADGETOBJECTINIT *gi = (T_GADGETOBJECTINIT *)init;
        if (gi->parent_gadget)
            return CreateListEntry((t_Gaget_Handler *)handler, name, gi);
        t_gadget *g = CreateGadgetObject((t_Gaget_Handler *)handler, name, gi);
        // list boxes, drop boxes, trees and combos give the record that holds their entries
        if (g && GadgetClass(g->type)->holds_entries)
            return (void *)g->class_data;
        return g;
    }
    case HANDLER_KIND_MENU:  // a menu entry
        return CreateMenuObject((T_MENU_HANDLER *)handler, name, (T_MENUOBJECTINIT *)init);
    case HANDLER_KIND_DETACHED_MENU_CLASS: {  // a menu opened at a place
        T_DETACH_MENU *d = (T_DETACH_MENU *)init;
        t_Window *window = d->window;
        if (!window)
            window = WindowAtPoint(d->box.x, d->box.y, NULL);
        if (!window)
            window = FocusWindow();
        return OpenDetachedMenu(window, d->menu, d->box.x, d->box.y);
    }
    default:
        myprintf(0, "CreateObject: the handler %s makes no objects\n", handler->name ? handler->name : "(unnamed)");
        return NULL;
    }
}

void RemoveObject(t_Handler *handler, void *object)
{
    if (!handler || !object)
        return;
    switch (handler->kind) {
    case HANDLER_KIND_GADGET: {  // a gadget: out of the handler's care, unlinked, freed
        t_gadget *g = (t_gadget *)object;
        RemoveGadget(g, (t_Gaget_Handler *)handler);
        SubNode((t_Node *)g);
        FreeGadget(g);
        break;
    }
    case HANDLER_KIND_WINDOW_CLASS:  // a window
        RemoveWindow((t_Window *)object);
        break;
    case HANDLER_KIND_MENU:  // a menu entry
        RemoveMenuObject((T_MENU_HANDLER *)handler, (t_Menu *)object);
        break;
    default:
        myprintf(0, "RemoveObject: the handler %s holds no objects\n", handler->name ? handler->name : "(unnamed)");
        break;
    }
}
