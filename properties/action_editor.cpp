// The action editor: two combos of check boxes, left button and right button, then Defaults, Ok
// and Cancel. Each box writes to the gadget's `action` at once; Ok and the close gadget keep what
// is set, Cancel puts back the snapshot taken at opening. The mask is the finished program's: it
// doesn't change how the gadget behaves on the page, and it marks nothing modified.
#include "properties/action_editor.h"

#include "page/catalogue.h"
#include "properties/dialog_support.h"
#include "properties/texts.h"

// It opens narrow and is fitted to its contents.
// clang-format off
static const T_DIALOG_FRAME action_frame = {
    TXT_ACTION_EDITOR, 187, 173, 4, 179, WF_CHILD | WF_BORDER | WF_MOVE | WF_TITLE | WF_CLOSE,  // 0x274
    IDCMP_GAIN_CONTEXT | IDCMP_TERMINATE | IDCMP_MENU_OPEN | IDCMP_FIRSTTIME_RUN | IDCMP_REQUESTER_OK |
        IDCMP_REQUESTER_ABORT,  // 0x24486
    5, ActionEditorMsg};
// clang-format on
#define COMBO_FLAGS (GADGET_FLAGS_HORIZONTAL | GADGET_FLAGS_VERTICAL | GADGET_FLAGS_REPORT_DRAG)  // 0xC08
#define COMBO_WIDTH 140
#define COMBO_HEIGHT 96
#define BOX_FIRST_ACTION (ACT_LMOUSE_UP | ACT_LMOUSE_DOWN | ACT_LMOUSE_DBL | ACT_RMOUSE_UP | ACT_RMOUSE_DOWN)  // 0x73
#define TITLE_FLAGS (GADGET_FLAGS_AUTOSIZE | GADGET_FLAGS_BOLD)                                                // 0x4200
#define CORNER_FLAGS (GADGET_FLAGS_AUTOSIZE | GADGET_FLAGS_PUSH | GADGET_FLAGS_FROM_BOTTOM)  // 0x2010200
#define CORNER_RIGHT_FLAGS (CORNER_FLAGS | GADGET_FLAGS_FROM_RIGHT)                          // 0x3010200
#define BUTTON_GAP 12  // between "Ok" and "Cancel"

typedef struct T_ACTION_BOX {
    u32 item_code;
    u8 right;  // in the right combo
    const char *text;
    u32 mask;
} T_ACTION_BOX;

//  item code  combo  text                  mask
static const T_ACTION_BOX action_boxes[] = {
    {3, 0, "Left Down", ACT_LMOUSE_DOWN},
    {4, 0, "Left Up", ACT_LMOUSE_UP},
    {5, 0, "Left Double Click", ACT_LMOUSE_DBL},
    {6, 0, "Left Drop", ACT_LMOUSE_DROP},
    {7, 0, "Wheel", ACT_MOUSE_WHEEL},  // two bits, checked only with both
    {8, 1, "Right Down", ACT_RMOUSE_DOWN},
    {9, 1, "Right Up", ACT_RMOUSE_UP},
    {10, 1, "Right Double Click", ACT_RMOUSE_DBL},
    {11, 1, "Right Drop", ACT_RMOUSE_DROP},
};

u32 ActionBoxMask(u32 item_code)
{
    for (const T_ACTION_BOX &box : action_boxes)
        if (box.item_code == item_code)
            return box.mask;
    return 0;
}

// One combo and its boxes; the list and the gadget go to the record.
static void AddActionCombo(t_Window *window, t_Gaget_Handler *handler, int right, t_List **list, t_gadget **gadget)
{
    i16 row_h = DialogRowHeight();
    u32 action = (*(T_ACTION_EDITOR *)window->user_data).gadget->action;
    T_RPOS rect = {(i16)(right ? 148 : 4), (i16)(row_h + 12), COMBO_WIDTH, COMBO_HEIGHT};
    if (!AddDialogCombo(window, right ? ACTION_ITEM_RIGHT_COMBO : ACTION_ITEM_LEFT_COMBO, rect, COMBO_FLAGS, NULL,
                        (void **)list, gadget))
        return;
    T_GADGETOBJECTINIT init = {};
    i16 y = 4;
    for (const T_ACTION_BOX &box : action_boxes) {
        if (box.right != right)
            continue;
        init = T_GADGETOBJECTINIT{};
        init.type = GADGET_TYPE_CHECK_BOX;
        init.item_code = box.item_code;
        init.x = 4;
        init.y = y;
        init.flags = GADGET_FLAGS_AUTOSIZE;
        init.action = box.item_code == ACTION_ITEM_FIRST_BOX ? BOX_FIRST_ACTION : ACT_LMOUSE_UP;
        init.init_val = (action & box.mask) == box.mask;
        CreateObject(&handler->head, box.text, &init);
        y = (i16)(y + row_h);
    }
    RestoreGadgetList(window);
}

t_Window *OpenActionEditor(t_Window *page)
{
    t_Gaget_Handler *page_handler = page ? FindGadgetHandler(page) : NULL;
    t_gadget *gadget = page_handler ? page_handler->current_gadget : NULL;
    if (!gadget)
        return NULL;
    t_Window *window = OpenDialogWindow(page, &action_frame, NULL);
    if (!window)
        return NULL;
    window->title_suffix = gadget->name;
    T_ACTION_EDITOR *record = (T_ACTION_EDITOR *)NewDialogRecord(window, sizeof(T_ACTION_EDITOR));
    if (!record) {
        RemoveWindow(window);
        return NULL;
    }
    record->gadget = gadget;
    t_Gaget_Handler *handler = FindGadgetHandler(window);
    gadget->saved_action = gadget->action;
    AddActionCombo(window, handler, 0, &record->left_combo_list, &record->left_combo_gadget);
    AddActionCombo(window, handler, 1, &record->right_combo_list, &record->right_combo_gadget);
    AddDialogGadget(handler, TXT_LEFT_BUTTON, GADGET_TYPE_TEXT, 0, 6, 4, 0, 0, TITLE_FLAGS, 0);
    AddDialogGadget(handler, TXT_RIGHT_BUTTON, GADGET_TYPE_TEXT, 0, 156, 4, 0, 0, TITLE_FLAGS, 0);
    AddDialogGadget(handler, TXT_DEFAULTS, GADGET_TYPE_BUTTON, ACTION_ITEM_DEFAULTS, 4, 4, 8, 0, CORNER_FLAGS,
                    ACT_LMOUSE_UP);
    t_gadget *ok = AddDialogGadget(handler, TXT_OK, GADGET_TYPE_BUTTON, ACTION_ITEM_OK, 4, 4, 8, 0, CORNER_RIGHT_FLAGS,
                                   ACT_LMOUSE_UP);
    AddDialogGadget(handler, TXT_CANCEL, GADGET_TYPE_BUTTON, ACTION_ITEM_CANCEL,
                    (i16)((ok ? ok->base_width : 0) + BUTTON_GAP), 4, 8, 0, CORNER_RIGHT_FLAGS, ACT_LMOUSE_UP);
    handler->current_gadget = NULL;
    ResizeWindowToContents(window);
    KeepDialogInView(window);
    return window;
}

// Every box shows the bits of the mask as they stand now.
static void ShowMask(t_Window *window, u32 action)
{
    for (const T_ACTION_BOX &box : action_boxes)
        if (t_gadget *g = FindGadgetByItemCode(window, box.item_code))
            g->class_data = (action & box.mask) == box.mask;
}

u32 ActionEditorMsg(t_Window *window, u32 item_code, u32 msg, void *data)
{
    T_ACTION_EDITOR *record = (T_ACTION_EDITOR *)window->user_data;
    if (!record)
        return 0;
    t_gadget *gadget = record->gadget;
    switch (msg) {
    case ACT_TERMINATE:  // Ok, Cancel and the close gadget: what is set stays
        FreeDialogRecord(window);
        RemoveWindow(window);
        return 0;
    case ACT_FIRSTTIME_RUN:
        SetComboScrollBars(record->left_combo_gadget);
        SetComboScrollBars(record->right_combo_gadget);
        return 0;
    default:
        switch (item_code) {
        case ACTION_ITEM_DEFAULTS:  // the mask a new gadget of this type starts with
            gadget->action = DesignActionOfType(gadget->type);
            ShowMask(window, gadget->action);
            return 0;
        case ACTION_ITEM_OK:
            SendWindowMessage(window, 0, ACT_TERMINATE, NULL);
            return 0;
        case ACTION_ITEM_CANCEL:  // the snapshot of the opening, bit for bit
            gadget->action = gadget->saved_action;
            SendWindowMessage(window, 0, ACT_TERMINATE, NULL);
            return 0;
        default:
            if (u32 mask = ActionBoxMask(item_code)) {  // a box: its bits follow it
                gadget->action &= ~mask;
                if (data && ((t_gadget *)data)->class_data)
                    gadget->action |= mask;
            }
            return 0;
        }
    }
}
