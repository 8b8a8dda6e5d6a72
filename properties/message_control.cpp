// The window message control: a resizable window whose combo fills it, with one check box per row
// of idcmp_names, labelled in readable words. Each box writes its bit to the page's `idcmp` at once
// (the mask of the generated window, not Quillform's own); bits without a row are never touched.
// The change marks nothing modified, as the source writer saves the mask but the page looks the same.
#include "properties/message_control.h"

#include <stdio.h>

#include "properties/dialog_support.h"
#include "properties/texts.h"
#include "source/name_tables.h"

// clang-format off
static const T_DIALOG_FRAME message_frame = {
    TXT_MESSAGE_CONTROL, 32, 32, 340, 200, WF_CHILD | WF_BORDER | WF_MOVE | WF_TITLE | WF_RESIZE | WF_CLOSE,  // 0x27C
    IDCMP_TERMINATE | IDCMP_KEY | IDCMP_WINDOW_RESIZE | IDCMP_FIRSTTIME_RUN,  // 0x454
    5, MessageControlMsg};
// clang-format on
#define COMBO_FLAGS (GADGET_FLAGS_HORIZONTAL | GADGET_FLAGS_VERTICAL | GADGET_FLAGS_REPORT_DRAG)  // 0xC08
#define ROW_X 8
#define ROW_WIDTH 32
#define ROW_GAP 4  // between one row's box and the next

t_Window *OpenMessageControl(t_Window *page)
{
    if (!page || !IsPageWindow(page))
        return NULL;
    if (t_Window *open = (t_Window *)FindNode((t_Node *)page->first_child, TXT_MESSAGE_CONTROL)) {
        ISetActiveWindow(open);
        return open;
    }
    T_WINEDIT_HANDLER *page_record = PageRecordOf(page);
    t_Window *window = OpenDialogWindow(page, &message_frame, NULL);
    if (!window)
        return NULL;
    window->user_data = page_record;
    window->UserAreaColour = DISPLAY_RECORD->dialog_colour;
    window->title_suffix = page->name;
    t_Gaget_Handler *handler = FindGadgetHandler(window);

    T_RPOS rect = {0, 0, 8, 8};  // the combo takes the window's size at the first ACT_FIRSTTIME_RUN
    if (AddDialogCombo(window, MSG_ITEM_COMBO, rect, COMBO_FLAGS, NULL, &page_record->msg_combo,
                       &page_record->msg_combo_first)) {
        i16 font_h = (i16)GetFontHeight(DISPLAY_RECORD->system_font);
        i16 y = 8;
        for (u32 row = 0; idcmp_names[row].text[0]; row++) {
            char label[64];  // the table's own text never changes: the label is made in a copy
            snprintf(label, sizeof(label), "%s", idcmp_names[row].text);
            T_GADGETOBJECTINIT init =
                DialogGadgetInit(GADGET_TYPE_CHECK_BOX, row + MSG_ITEM_FIRST_ROW, T_RPOS{ROW_X, y, ROW_WIDTH, font_h},
                                 GADGET_FLAGS_AUTOSIZE, ACT_LMOUSE_UP);
            init.init_val = (page->idcmp & idcmp_names[row].value) != 0;
            CreateObject(&handler->head, MakeReadable(label), &init);
            y = (i16)(y + font_h + ROW_GAP);
        }
        RestoreGadgetList(window);
    }
    handler->current_gadget = NULL;
    if (editor_config->msg_dialog_rect.w != 0)  // it comes back where it was closed
        PlaceDialog(window, &editor_config->msg_dialog_rect);
    KeepDialogInView(window);
    return window;
}

// The combo always fills the window.
static void FillWithCombo(t_Window *window, T_WINEDIT_HANDLER *page_record)
{
    t_gadget *combo = page_record->msg_combo_first;
    if (!combo)
        return;
    combo->base_width = combo->pos_width = window->user_w;
    combo->base_height = combo->pos_height = window->user_h;
    RecalcGadgetPosition(window, combo, 0, 0, 0);
    SetComboScrollBars(combo);
}

u32 MessageControlMsg(t_Window *window, u32 item_code, u32 msg, void *data)
{
    T_WINEDIT_HANDLER *page_record = PageRecordOf(window);
    t_Window *page = window->parent;
    if (!page_record || !page)
        return 0;
    switch (msg) {
    case ACT_TERMINATE:  // the close gadget: the place is kept for the next opening
        DialogRectOf(window, &editor_config->msg_dialog_rect);
        RemoveWindow(window);
        return 0;
    case ACT_KEY:  // Escape closes without keeping the place
        if (item_code == KEY_ESCAPE)
            RemoveWindow(window);
        return 0;
    case ACT_WINDOW_RESIZE:
    case ACT_FIRSTTIME_RUN:
        FillWithCombo(window, page_record);
        return 0;
    default:
        if (item_code >= MSG_ITEM_FIRST_ROW && data) {  // a row's box: its bit follows it
            u32 row = item_code - MSG_ITEM_FIRST_ROW;
            for (u32 i = 0; i <= row; i++)
                if (!idcmp_names[i].text[0])
                    return 0;
            page->idcmp &= ~idcmp_names[row].value;
            if (((t_gadget *)data)->class_data)
                page->idcmp |= idcmp_names[row].value;
        }
        return 0;
    }
}
