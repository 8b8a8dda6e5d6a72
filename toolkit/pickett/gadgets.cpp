// The gadgets the selectors are built of: labels, buttons, string fields over the selector's own
// buffers, and a list box filled from folder entries.
#include <stdio.h>
#include <string.h>

#include "lumora/lumora_internal.h"
#include "pickett/pickett_internal.h"

#define ROW_EXTRA 8  // a field's or button's height beyond the system font's

i16 SelectorRowHeight(void)
{
    return (i16)GetFontHeight(DISPLAY_RECORD->system_font) + ROW_EXTRA;
}

t_gadget *MakeSelectorGadget(t_Gaget_Handler *handler, u16 type, const char *name, u32 item_code, u32 action,
                             void *data)
{
    T_GADGETOBJECTINIT gi = {};
    gi.type = type;
    gi.item_code = item_code;
    gi.action = action;
    gi.data = data;
    gi.base_width = SELECTOR_BUTTON_W, gi.base_height = SelectorRowHeight();
    if (type == GADGET_TYPE_STRING)
        gi.max = SELECTOR_FIELD_SIZE - 1;
    if (type == GADGET_TYPE_TEXT)
        gi.flags = GADGET_FLAGS_LEFT_JUSTIFY;
    return (t_gadget *)CreateObject(&handler->head, name, &gi);
}

// The field reports nothing: the selector's handler sees Enter before it.
t_gadget *MakeSelectorField(t_Gaget_Handler *handler, char *buffer, u32 item_code)
{
    return MakeSelectorGadget(handler, GADGET_TYPE_STRING, "", item_code, 0, buffer);
}

void SetSelectorField(t_gadget *field, char *buffer, const char *text)
{
    size_t length = strlen(text);
    if (length > SELECTOR_FIELD_SIZE - 1)
        length = SELECTOR_FIELD_SIZE - 1;
    memmove(buffer, text, length);
    buffer[length] = 0;
    if (!field)
        return;
    field->value = field->select_from = (i32)length;
    field->scroll = 0;
}

// A click (its release) and a double click are reported.
t_gadget *MakeSelectorList(t_Gaget_Handler *handler, u32 item_code, T_LIST_DATA **list)
{
    T_GADGETOBJECTINIT gi = {};
    gi.type = GADGET_TYPE_LIST_BOX;
    gi.item_code = item_code;
    gi.action = ACT_LMOUSE_UP | ACT_LMOUSE_DBL;
    gi.base_width = 100, gi.base_height = 100;
    *list = (T_LIST_DATA *)CreateObject(&handler->head, "", &gi);
    return *list ? (*list)->gadget : NULL;
}

void ClearSelectorList(T_LIST_DATA *list)
{
    EmptyList(&list->entries, sizeof(T_LIST_ENTRY));
    list->selected = -1;
    list->top = 0;
    list->resized_flags |= LIST_RESIZED;
}

void FillSelectorList(t_gadget *gadget, T_LIST_DATA *list, t_List *entries)
{
    ClearSelectorList(list);
    T_GADGETOBJECTINIT gi = {};
    gi.parent_gadget = list;
    for (T_FOLDER_ENTRY *e = (T_FOLDER_ENTRY *)entries->first; e->next; e = e->next) {
        char text[PICKETT_PATH_SIZE];
        snprintf(text, sizeof text, "%s%s", e->name, e->is_folder ? "/" : "");
        CreateObject(&gadget->handler->head, text, &gi);
    }
}

t_Node *SelectedNode(T_LIST_DATA *list, t_List *entries)
{
    return list && list->selected >= 0 ? FindNodeByIndex(entries, (u32)list->selected) : NULL;
}

void PlaceGadget(t_gadget *gadget, i16 x, i16 y, i16 w, i16 h)
{
    gadget->pos_x = x, gadget->pos_y = y;
    gadget->base_width = w > 1 ? w : 1, gadget->base_height = h > 1 ? h : 1;
    RecalcGadgetPosition(gadget->window, gadget, 0, 0, 0);
    if (GadgetClass(gadget->type)->holds_entries && gadget->class_data)
        ((T_LIST_DATA *)gadget->class_data)->resized_flags |= LIST_RESIZED;
}
