// The window properties dialog. A combo of check boxes, one per window flag that a page can
// switch, then the page's name, "Set Idcmp" and "Source file...". Every change goes to the page
// at once, so the page itself is the preview; nothing is undone. The dialog keeps no record: the
// page record holds its combo, and its place is kept in the settings when the close gadget ends it.
#include "properties/window_properties.h"

#include "properties/dialog_support.h"
#include "properties/message_control.h"
#include "properties/source_file_info.h"
#include "properties/texts.h"

// The first place and size, before it is fitted to its contents.
// clang-format off
static const T_DIALOG_FRAME window_frame = {
    TXT_WINDOW_PROPERTIES, 32, 32, 32, 32, WF_CHILD | WF_BORDER | WF_MOVE | WF_TITLE | WF_CLOSE,  // 0x274
    IDCMP_TERMINATE | IDCMP_KEY | IDCMP_FIRSTTIME_RUN,  // 0x414
    0, WindowPropertiesMsg};
// clang-format on
#define COMBO_FLAGS                                                                                                    \
    (GADGET_FLAGS_HORIZONTAL | GADGET_FLAGS_VERTICAL | GADGET_FLAGS_SOLID | GADGET_FLAGS_REPORT_DRAG)  // 0xC28
#define COMBO_WIDTH 170
#define COMBO_HEIGHT 96
#define BOX_ACTION (ACT_LMOUSE_UP | ACT_LMOUSE_DBL)
#define NAME_MAX 127
#define NAME_WIDTH 160
#define BUTTON_WIDTH 80

// What a box brings along after its bit changed.
enum { AFTER_NOTHING, AFTER_BACKDROP, AFTER_RECALC, AFTER_TITLE_BAR, AFTER_BORDER };

typedef struct T_WINDOW_BOX {
    u32 item_code;
    const char *text;
    i16 x;
    u32 bit;
    u8 after;
    u32 flags;  // the box's own
} T_WINDOW_BOX;

// The boxes' places in the combo: under "Title Bar" and "Border", and under "Always in front".
#define BOX_X 4
#define BOX_X_UNDER 12
#define BOX_X_UNDER_TWICE 20

// In list order: the enable rule counts the boxes after "Border" and "Title Bar".
// clang-format off
//   item code                text                   x                  bit                 after the change flags
static const T_WINDOW_BOX window_boxes[] = {
    {WINPROP_ITEM_BACKDROP,   "Window as Backdrop",  BOX_X,             WF_BACKDROP,        AFTER_BACKDROP,  GADGET_FLAGS_AUTOSIZE},
    {WINPROP_ITEM_FULLSCREEN, "Open FullScreen",     BOX_X,             WF_OPEN_FULLSCREEN, AFTER_NOTHING,   GADGET_FLAGS_AUTOSIZE},  // the saved source carries it
    {WINPROP_ITEM_TITLE_BAR,  "Title Bar",           BOX_X,             WF_TITLE,           AFTER_TITLE_BAR, 0},
    {6,                       "Minimise Gadget",     BOX_X_UNDER,       WF_MINIMISE,        AFTER_RECALC,    0},
    {7,                       "Maximise Gadget",     BOX_X_UNDER,       WF_MAXIMISE,        AFTER_RECALC,    0},
    {8,                       "Close Gadget",        BOX_X_UNDER,       WF_CLOSE,           AFTER_RECALC,    0},
    {13,                      "Move Allowed",        BOX_X_UNDER,       WF_MOVE,            AFTER_NOTHING,   0},
    {14,                      "Always in front",     BOX_X_UNDER,       WF_IN_FRONT,        AFTER_NOTHING,   0},
    {15,                      "Let user modify",     BOX_X_UNDER_TWICE, WF_IN_FRONT_MODIFY, AFTER_RECALC,    0},
    {WINPROP_ITEM_BORDER,     "Border",              BOX_X,             WF_BORDER,          AFTER_BORDER,    0},
    {11,                      "Resize allowed",      BOX_X_UNDER,       WF_RESIZE,          AFTER_NOTHING,   0},
    {16,                      "AltF4 Closes window", BOX_X,             WF_ALTF4,           AFTER_NOTHING,   0},
    {17,                      "Clear ZBuffer",       BOX_X,             WF_CLEAR_ZBUFFER,   AFTER_NOTHING,   0},
    {18,                      "See through",         BOX_X,             WF_SEETHROUGH,      AFTER_RECALC,    0},
    {19,                      "No background",       BOX_X,             WF_NO_BACK,         AFTER_RECALC,    0},
};
// clang-format on

#define BORDER_FOLLOWERS 1     // "Resize allowed"
#define TITLE_BAR_FOLLOWERS 6  // "Minimise Gadget" to "Let user modify"

static const T_WINDOW_BOX *FindBox(u32 item_code)
{
    for (const T_WINDOW_BOX &box : window_boxes)
        if (box.item_code == item_code)
            return &box;
    return NULL;
}

u32 WindowBoxBit(u32 item_code)
{
    const T_WINDOW_BOX *box = FindBox(item_code);
    return box ? box->bit : 0;
}

static T_WINEDIT_HANDLER *PageOf(t_Window *dialog)
{
    return PageRecordOf(dialog->parent);
}

// Greys (or not) the `count` boxes after `box` in the combo.
static void GreyFollowers(t_gadget *box, int count, int grey)
{
    for (t_gadget *g = box ? box->next : NULL; g && g->next && count > 0; g = g->next, count--) {
        g->live_flags &= ~GADGET_FLAGS_DISABLED;
        if (grey)
            g->live_flags |= GADGET_FLAGS_DISABLED;
    }
}

void UpdateFrameBoxes(t_Window *dialog)
{
    t_gadget *border = FindGadgetByItemCode(dialog, WINPROP_ITEM_BORDER);
    t_gadget *title = FindGadgetByItemCode(dialog, WINPROP_ITEM_TITLE_BAR);
    GreyFollowers(border, BORDER_FOLLOWERS, border && !border->class_data);
    GreyFollowers(title, TITLE_BAR_FOLLOWERS, title && !title->class_data);
}

t_Window *OpenWindowProperties(t_Window *page)
{
    T_WINEDIT_HANDLER *page_record = PageRecordOf(page);
    if (!page_record)
        return NULL;
    t_Window *window = OpenDialogWindow(page, &window_frame, page->icon_bank);
    if (!window)
        return NULL;
    window->title_suffix = page->name;
    window->icon_bank = NULL;
    t_Gaget_Handler *handler = FindGadgetHandler(window);
    i16 row_h = DialogRowHeight();

    T_RPOS rect = {12, (i16)(row_h + 12), COMBO_WIDTH, COMBO_HEIGHT};
    T_GADGETOBJECTINIT init = {};
    if (AddDialogCombo(window, WINPROP_ITEM_COMBO, rect, COMBO_FLAGS, DISPLAY_RECORD->icon_bank,
                       &page_record->win_combo, &page_record->win_combo_first)) {
        i16 y = 4;
        for (const T_WINDOW_BOX &box : window_boxes) {
            init =
                DialogGadgetInit(GADGET_TYPE_CHECK_BOX, box.item_code, T_RPOS{box.x, y, 0, 0}, box.flags, BOX_ACTION);
            init.init_val = (i32)(page->flags & box.bit);
            CreateObject(&handler->head, box.text, &init);
            y = (i16)(y + row_h);
        }
        UpdateFrameBoxes(window);
        RestoreGadgetList(window);
    }

    AddDialogGadget(handler, TXT_WINDOW_FLAGS, GADGET_TYPE_TEXT, 0, 8, 8, 0, 0,
                    GADGET_FLAGS_BOLD | GADGET_FLAGS_AUTOSIZE, BOX_ACTION);
    AddDialogGadget(handler, TXT_WINDOW_NAME, GADGET_TYPE_TEXT, 0, 4, (i16)(row_h + 112), 0, 0, GADGET_FLAGS_BOLD,
                    BOX_ACTION);
    init = DialogGadgetInit(GADGET_TYPE_STRING, WINPROP_ITEM_NAME, T_RPOS{4, (i16)(2 * row_h + 116), NAME_WIDTH, 0}, 0,
                            BOX_ACTION);
    init.max = NAME_MAX;
    init.data = page_record->page_name;  // in place: the title and the undo list follow each key
    CreateObject(&handler->head, "Window name string", &init);
    // The two buttons are at least 80 wide, and as wide as their text.
    t_gadget *buttons[2] = {AddDialogGadget(handler, TXT_SET_IDCMP, GADGET_TYPE_BUTTON, WINPROP_ITEM_SET_IDCMP, 4,
                                            (i16)(3 * row_h + 120), 0, row_h, GADGET_FLAGS_AUTOSIZE, ACT_LMOUSE_UP),
                            AddDialogGadget(handler, TXT_SOURCE_FILE, GADGET_TYPE_BUTTON, WINPROP_ITEM_SOURCE_FILE, 4,
                                            (i16)(4 * row_h + 124), 0, row_h,
                                            GADGET_FLAGS_AUTOSIZE | (page_record->saved ? 0 : GADGET_FLAGS_DISABLED),
                                            ACT_LMOUSE_UP)};
    for (t_gadget *button : buttons)
        if (button && button->base_width < BUTTON_WIDTH)
            button->base_width = button->pos_width = BUTTON_WIDTH;
    handler->current_gadget = NULL;

    ResizeWindowToContents(window);
    if (editor_config->win_dialog_rect.w != 0)  // it comes back where it was closed
        PlaceDialog(window, &editor_config->win_dialog_rect);
    KeepDialogInView(window);
    return window;
}

// "Border" or "Title Bar" (`bit`): the page gets a new handler of that part of its frame, or
// loses it, with the window flag; the border brings the display's border size along.
static void SwitchFramePart(t_Window *page, t_Handler **part, u32 bit, int on)
{
    int border = bit == WF_BORDER;
    if (on) {
        if (*part && (border || (page->flags & bit)))  // it has one already
            return;
        if (border)
            page->border_size = DISPLAY_RECORD->border_size;
        *part = border ? NewBorderHandler(page) : NewTitleBarHandler(page);
        page->flags |= bit;
    } else {
        if (*part)
            DelHandler(*part);
        *part = NULL;
        page->flags &= ~bit;
        if (border)
            page->border_size = 0;
    }
    RecalcUserSize(page);
}

// A box changed: the page is marked, its bit follows the box, and what the bit brings along.
static void BoxChanged(t_Window *dialog, const T_WINDOW_BOX *box, t_gadget *gadget)
{
    t_Window *page = dialog->parent;
    T_WINEDIT_HANDLER *record = PageOf(dialog);
    if (!record || !gadget)
        return;
    int on = gadget->class_data != 0;
    page->state_flags |= WSF_MODIFIED;
    switch (box->after) {
    case AFTER_BORDER:
        UpdateFrameBoxes(dialog);
        SwitchFramePart(page, &record->border, WF_BORDER, on);
        return;
    case AFTER_TITLE_BAR:
        UpdateFrameBoxes(dialog);
        SwitchFramePart(page, &record->titlebar, WF_TITLE, on);
        return;
    default:
        break;
    }
    page->flags &= ~box->bit;
    if (on)
        page->flags |= box->bit;
    if (box->after == AFTER_BACKDROP && on)
        WindowToBack(page);
    else if (box->after == AFTER_RECALC)
        RecalcUserSize(page);
}

// The name field being typed in when the dialog closes reports first, as leaving it would have.
static void ReportOpenNameField(t_Window *window)
{
    t_gadget *current = GetCurrentGadget(window);
    if (current && current->live_item_code == WINPROP_ITEM_NAME)
        window->parent->state_flags |= WSF_MODIFIED;
}

u32 WindowPropertiesMsg(t_Window *window, u32 item_code, u32 msg, void *data)
{
    t_Window *page = window->parent;
    switch (msg) {
    case ACT_TERMINATE:  // the close gadget: the place is kept for the next opening
        ReportOpenNameField(window);
        DialogRectOf(window, &editor_config->win_dialog_rect);
        RemoveWindow(window);
        return 0;
    case ACT_KEY:  // Escape closes without keeping the place
        if (item_code == KEY_ESCAPE) {
            ReportOpenNameField(window);
            RemoveWindow(window);
        }
        return 0;
    case ACT_FIRSTTIME_RUN:
        if (T_WINEDIT_HANDLER *record = PageOf(window))
            SetComboScrollBars(record->win_combo_first);
        return 0;
    default:
        switch (item_code) {
        case WINPROP_ITEM_NAME:  // the name is edited in place: the page is changed
            page->state_flags |= WSF_MODIFIED;
            return 0;
        case WINPROP_ITEM_SET_IDCMP:
            OpenMessageControl(page);
            return 0;
        case WINPROP_ITEM_SOURCE_FILE:
            OpenSourceFileInfo(page);
            return 0;
        default:
            if (const T_WINDOW_BOX *box = FindBox(item_code))
                BoxChanged(window, box, (t_gadget *)data);
            return 0;
        }
    }
}
