// The action editor "Action Edtior": a check box for each mouse event that the finished program's
// gadget reports, live on the gadget's action mask; Cancel goes back to the mask of its opening.
#pragma once
#include "page/records.h"

typedef struct T_ACTION_EDITOR {
    t_gadget *gadget;  // first: FindGadgetPropertyWindow reads this word
    t_List *left_combo_list;
    t_gadget *left_combo_gadget;
    t_List *right_combo_list;
    t_gadget *right_combo_gadget;
} T_ACTION_EDITOR;

#define ACTION_ITEM_LEFT_COMBO 1
#define ACTION_ITEM_RIGHT_COMBO 2
#define ACTION_ITEM_FIRST_BOX 3
#define ACTION_ITEM_LAST_BOX 11
#define ACTION_ITEM_DEFAULTS 12
#define ACTION_ITEM_OK 13
#define ACTION_ITEM_CANCEL 14

// Opens an editor on the page's current gadget; null, and no window, without one.
t_Window *OpenActionEditor(t_Window *page);
u32 ActionEditorMsg(t_Window *window, u32 item_code, u32 msg, void *data);
// The mask of the check box with this item code (3 to 11), or 0.
u32 ActionBoxMask(u32 item_code);
