// The gadget properties dialog. One scrolling combo holds every control: the rows of the table
// below for the gadget's type, then a check box for each flag bit the type shows, then the button
// to the action editor. Flags, the text and colours go to the gadget as they change; item code and
// cursor when their field reports; slider values and hover text when the dialog closes. There is
// no Cancel: Escape and the close gadget both apply.
#include "properties/gadget_properties.h"

#include <stdio.h>
#include <string.h>

#include "editor/page_commands.h"
#include "page/catalogue.h"
#include "properties/action_editor.h"
#include "properties/dialog_support.h"
#include "properties/texts.h"
#include "source/name_tables.h"

#define PROP_OFFSET 64  // the dialog opens this far up and left of the pointer
#define PROP_COMBO_FLAGS                                                                                               \
    (GADGET_FLAGS_NO_BORDER | GADGET_FLAGS_HORIZONTAL | GADGET_FLAGS_VERTICAL | GADGET_FLAGS_REPORT_DRAG)  // 0x20C08
#define PROP_MARGIN 8
#define FLAG_ROW_WIDTH 32      // the narrowest a flag row's box is
#define SECOND_CONTROL_GAP 32  // from a flag row's box to the control in the same row
#define ICON_SCROLL_GAP 4
#define ICON_SCROLL_WIDTH 80
#define FLAG_ROW_ACTION (ACT_LMOUSE_UP | ACT_LMOUSE_DBL)
#define ICON_ROW_ACTION (ACT_LMOUSE_UP | ACT_LMOUSE_DOWN | ACT_RMOUSE_UP | ACT_RMOUSE_DOWN)  // 0x33
#define SLIDER_ROW_ACTION (ACT_LMOUSE_UP | ACT_LMOUSE_DOWN | ACT_LMOUSE_DBL)                 // 112
#define COLOUR_DATA_MODE 5
#define COLOUR_SELECTOR_MODE 3
#define FLAG_BIT_CURSOR GADGET_FLAGS_CURSOR
#define FLAG_BIT_ICON GADGET_FLAGS_ICON
#define ITEM_OF_BIT(index) ((index) + 1)
#define FLAG_BITS 32          // the bits of a gadget's flags word that may have a row
#define LAST_FLAG_ROW_BIT 25  // GADGET_FLAGS_FROM_BOTTOM, the highest bit with a row
#define CURSOR_FIELD_MAX 30   // characters of the cursor's number field
#define TYPE_BIT(type) (1u << (type))

// The rows above the flag rows. Which text a control edits:
enum {
    FIELD_NAME,
    FIELD_SLIDER_MIN,
    FIELD_SLIDER_MAX,
    FIELD_SLIDER_STEP,
    FIELD_ITEM_CODE,
    FIELD_HOVER,
    FIELD_TEXT_COLOUR,
    FIELD_BACK_COLOUR
};

typedef struct T_PROPERTY_ROW {
    u32 types;  // TYPE_BIT of each type that shows the row; 0 for all
    const char *label;
    u16 control_type;
    const char *control_name;
    u32 item_code;
    i16 gap, width, max;
    u8 field;
    u32 flags;  // the control's own
} T_PROPERTY_ROW;

#define NAMED_TYPES                                                                                                    \
    (TYPE_BIT(GADGET_TYPE_BUTTON) | TYPE_BIT(GADGET_TYPE_CHECK_BOX) | TYPE_BIT(GADGET_TYPE_TEXT) |                     \
     TYPE_BIT(GADGET_TYPE_GROUP) | TYPE_BIT(GADGET_TYPE_RADIOBUTTON))
#define SLIDER_TYPE TYPE_BIT(GADGET_TYPE_SLIDER)

// clang-format off
//  types        label             control                   name                    item code              gap width max  field              flags
static const T_PROPERTY_ROW property_rows[] = {
    {NAMED_TYPES, TXT_GADGET_NAME, GADGET_TYPE_STRING,      "Gadget Name string",  PROP_ITEM_TEXT,        4, 120, 120, FIELD_NAME,        0},
    {SLIDER_TYPE, TXT_SLIDER_MIN,  GADGET_TYPE_STRING,      "Slider min",          PROP_ITEM_SLIDER_MIN,  4, 48,  16,  FIELD_SLIDER_MIN,  GADGET_FLAGS_REPORT_DRAG},
    {SLIDER_TYPE, TXT_SLIDER_MAX,  GADGET_TYPE_STRING,      "Slider max",          PROP_ITEM_SLIDER_MAX,  4, 48,  16,  FIELD_SLIDER_MAX,  GADGET_FLAGS_REPORT_DRAG},
    {SLIDER_TYPE, TXT_SLIDER_STEP, GADGET_TYPE_STRING,      "Slider step",         PROP_ITEM_SLIDER_STEP, 4, 48,  16,  FIELD_SLIDER_STEP, 0},
    {0,           TXT_ITEM_CODE,   GADGET_TYPE_STRING,      "Gadget ItemCode",     PROP_ITEM_ITEM_CODE,   8, 48,  16,  FIELD_ITEM_CODE,   0},
    {0,           TXT_HOVER,       GADGET_TYPE_STRING,      "Gadget hover string", PROP_ITEM_TEXT,        4, 120, 120, FIELD_HOVER,       0},
    {0,           TXT_TEXT_COLOUR, GADGET_TYPE_COLOUR_FLAT, "Colour",              PROP_ITEM_TEXT_COLOUR, 8, 32,  0,   FIELD_TEXT_COLOUR, GADGET_FLAGS_BOLD},
    {0,           TXT_BACK_COLOUR, GADGET_TYPE_COLOUR_FLAT, "Colour",              PROP_ITEM_BACK_COLOUR, 8, 32,  0,   FIELD_BACK_COLOUR, GADGET_FLAGS_BOLD},
};
// clang-format on

// clang-format off
static const T_DIALOG_FRAME properties_frame = {
    TXT_GADGET_PROPERTIES, 0, 0, 240, 240, WF_CHILD | WF_BORDER | WF_MOVE | WF_TITLE | WF_CLOSE,  // 0x274
    IDCMP_TERMINATE | IDCMP_KEY | IDCMP_FIRSTTIME_RUN | IDCMP_REQUESTER_OK | IDCMP_REQUESTER_CANCEL |
        IDCMP_REQUESTER_PREVIEW,  // 0x4C414
    0, GadgetPropertiesMsg};
// clang-format on

u32 GadgetRowMask(u16 type)
{
    const T_CATALOGUE_ROW *row = CatalogueRowOfType(type);
    return row ? row->row_mask : 0;
}

void SetGadgetFlagBit(t_gadget *gadget, u32 bit, int on)
{
    gadget->flags &= ~bit;
    gadget->live_flags &= ~bit;
    if (on) {
        gadget->flags |= bit;
        gadget->live_flags |= bit;
    }
}

static T_SLIDER_DATA *SliderOf(t_gadget *gadget)
{
    return gadget->type == GADGET_TYPE_SLIDER ? (T_SLIDER_DATA *)gadget->class_data : NULL;
}

static void SetDisabled(t_gadget *gadget, int disabled)
{
    if (!gadget || !gadget->next)
        return;
    gadget->live_flags &= ~GADGET_FLAGS_DISABLED;
    if (disabled)
        gadget->live_flags |= GADGET_FLAGS_DISABLED;
}

// The parts of the dialog's record that edit one of the gadget's two colours.
typedef struct T_COLOUR_EDIT {
    u32 *word;     // the gadget's colour word
    u32 *opening;  // the word when the dialog opened
    T_RGBA *rgba;  // the working colour
    T_HSIA *hsia;
    T_COLOUR_DATA *data;  // the swatch's data
} T_COLOUR_EDIT;

// The text colour's parts (index 0) or the background's (index 1).
static T_COLOUR_EDIT ColourEditOf(T_GADGET_PROPERTIES *record, int index)
{
    t_gadget *gadget = record->gadget;
    if (index)
        return T_COLOUR_EDIT{&gadget->back_colour, &record->opening_back_colour, &record->back_rgba, &record->back_hsia,
                             &record->back_colour_data};
    return T_COLOUR_EDIT{&gadget->text_colour, &record->opening_text_colour, &record->text_rgba, &record->text_hsia,
                         &record->text_colour_data};
}

// A colour word unpacked to the working colour; the top byte is dropped, alpha is 0.
static void UnpackColour(u32 word, T_RGBA *rgba, T_HSIA *hsia)
{
    rgba->r = (float)(word & 255);
    rgba->g = (float)((word >> 8) & 255);
    rgba->b = (float)((word >> 16) & 255);
    rgba->a = 0;
    RGBToHSI(rgba, hsia);
}

t_gadget *AddFlagRow(t_Gaget_Handler *handler, T_GADGETOBJECTINIT *init, u32 bit, u32 flags)
{
    for (const T_VAL2STRING *row = gadget_flag_labels; row->text[0]; row++) {
        if (!(row->value & bit))
            continue;
        init->init_val = (row->value & flags) != 0;
        return (t_gadget *)CreateObject(&handler->head, row->text, init);
    }
    return NULL;
}

// The control of a row above the flag rows, with its text or colour.
static void SetUpControl(T_GADGET_PROPERTIES *record, const T_PROPERTY_ROW *row, T_GADGETOBJECTINIT *init)
{
    t_gadget *gadget = record->gadget;
    T_SLIDER_DATA *slider = SliderOf(gadget);
    switch (row->field) {
    case FIELD_NAME:  // the gadget's own text buffer, edited in place
        init->data = gadget->user_data;
        break;
    case FIELD_SLIDER_MIN:  // the slider's own scale, as text
    case FIELD_SLIDER_MAX:
    case FIELD_SLIDER_STEP: {
        char *texts[3] = {record->slider_min_text, record->slider_max_text, record->slider_step_text};
        i32 values[3] = {slider ? slider->min : 0, slider ? slider->max : 0, slider ? slider->step : 0};
        int i = row->field - FIELD_SLIDER_MIN;
        snprintf(texts[i], sizeof(record->slider_min_text), "%d", (int)values[i]);
        init->data = texts[i];
        break;
    }
    case FIELD_ITEM_CODE:
        snprintf(record->item_code_text, sizeof(record->item_code_text), "%d", (int)gadget->item_code);
        init->data = record->item_code_text;
        break;
    case FIELD_HOVER:
        snprintf(record->hover_edit, sizeof(record->hover_edit), "%s", gadget->hover_text ? gadget->hover_text : "");
        memcpy(record->hover_opening, record->hover_edit, sizeof(record->hover_opening));
        init->data = record->hover_edit;
        break;
    case FIELD_TEXT_COLOUR:  // a swatch of the colour as the dialog opens
    case FIELD_BACK_COLOUR: {
        T_COLOUR_EDIT edit = ColourEditOf(record, row->field == FIELD_BACK_COLOUR);
        *edit.opening = *edit.word;
        UnpackColour(*edit.word, edit.rgba, edit.hsia);
        *edit.data = T_COLOUR_DATA{edit.rgba, edit.hsia, COLOUR_DATA_MODE};
        init->data = edit.data;
        init->base_height = (i16)GetFontHeight(DISPLAY_RECORD->system_font);
        break;
    }
    }
}

// The second control of the "Modify cursor" row: the cursor's number, greyed while unchecked.
static void AddCursorField(t_Gaget_Handler *handler, T_GADGET_PROPERTIES *record, t_gadget *box, i16 y, i16 row_h)
{
    snprintf(record->cursor_text, sizeof(record->cursor_text), "%d", (int)record->gadget->cursor);
    T_GADGETOBJECTINIT init = {};
    init.type = GADGET_TYPE_STRING;
    init.x = (i16)(box->base_width + SECOND_CONTROL_GAP);
    init.y = y;
    init.base_width = (i16)(3 * row_h);
    init.max = CURSOR_FIELD_MAX;
    init.item_code = PROP_ITEM_CURSOR;
    init.action = ACT_LMOUSE_UP;
    init.flags = box->class_data ? 0 : GADGET_FLAGS_DISABLED;
    init.data = record->cursor_text;
    CreateObject(&handler->head, "String Gad", &init);
}

// The second control of the "Icon" row: the bank's name, and a scroll bar that chooses the icon in
// it. A gadget without a bank shows the row greyed, saying so.
static void AddIconControls(t_Gaget_Handler *handler, T_GADGET_PROPERTIES *record, t_gadget *box, i16 y, i16 row_h)
{
    T_TEXTURE_BANK *bank = record->gadget->icon_bank;
    u32 disabled = (box->class_data && bank) ? 0 : GADGET_FLAGS_DISABLED;
    T_GADGETOBJECTINIT init = {};
    init.type = GADGET_TYPE_BUTTON;
    init.x = (i16)(box->base_width + SECOND_CONTROL_GAP);
    init.y = y;
    init.base_height = (i16)(row_h - 2);
    init.item_code = PROP_ITEM_ICON;
    init.flags = GADGET_FLAGS_AUTOSIZE | disabled;
    init.action = ACT_LMOUSE_UP;
    t_gadget *button = (t_gadget *)CreateObject(&handler->head, bank ? bank->name : TXT_NO_ICON_BANK, &init);
    init.type = GADGET_TYPE_SCROLLBAR;
    init.x = (i16)(init.x + (button ? button->base_width : 0) + ICON_SCROLL_GAP);
    init.base_width = ICON_SCROLL_WIDTH;
    init.min = 0;
    init.max = bank ? bank->count : 0;
    init.mark_width = 1;
    init.init_val = record->gadget->icon;
    init.flags = GADGET_FLAGS_HORIZONTAL | disabled;
    init.action = ICON_ROW_ACTION;
    CreateObject(&handler->head, "icon index scroll bar", &init);
}

void BuildGadgetProperties(t_Gaget_Handler *handler, T_GADGET_PROPERTIES *record, T_RPOS *user)
{
    t_Window *window = handler->head.window;
    t_gadget *gadget = record->gadget;
    i16 row_h = DialogRowHeight();
    T_RPOS rect = {PROP_MARGIN, PROP_MARGIN, (i16)(user->w - 2 * PROP_MARGIN), (i16)(user->h - 2 * PROP_MARGIN)};
    if (!AddDialogCombo(window, PROP_ITEM_COMBO, rect, PROP_COMBO_FLAGS, NULL, (void **)&record->combo_list,
                        &record->combo_gadget))
        return;
    T_GADGETOBJECTINIT init = {};

    int slider = gadget->type == GADGET_TYPE_SLIDER;
    i16 y = 0;
    for (const T_PROPERTY_ROW &row : property_rows) {
        if (row.types && !(row.types & TYPE_BIT(gadget->type)))
            continue;
        if (row.field == FIELD_NAME && !gadget->user_data)
            continue;
        init = T_GADGETOBJECTINIT{};
        init.type = GADGET_TYPE_TEXT;
        init.y = y;
        init.flags = GADGET_FLAGS_BOLD;
        t_gadget *label = (t_gadget *)CreateObject(&handler->head, row.label, &init);
        init = T_GADGETOBJECTINIT{};
        init.type = row.control_type;
        init.x = (i16)((label ? label->base_width : 0) + row.gap);
        init.y = y;
        init.base_width = row.width;
        init.max = row.max;
        init.item_code = row.item_code;
        init.flags = row.flags;
        init.action = slider && row.field >= FIELD_SLIDER_MIN ? SLIDER_ROW_ACTION : ACT_LMOUSE_UP;
        SetUpControl(record, &row, &init);
        CreateObject(&handler->head, row.control_name, &init);
        y = (i16)(y + row_h);
    }

    for (u32 index = 0; index < FLAG_BITS; index++) {
        u32 bit = 1u << index;
        if (!(record->row_mask & bit))
            continue;
        init = T_GADGETOBJECTINIT{};
        init.type = GADGET_TYPE_CHECK_BOX;
        init.y = y;
        init.base_height = row_h;
        init.item_code = ITEM_OF_BIT(index);
        init.action = bit == FLAG_BIT_ICON ? ICON_ROW_ACTION : FLAG_ROW_ACTION;
        t_gadget *box = AddFlagRow(handler, &init, bit, gadget->flags);
        if (!box)
            continue;
        // A box is as wide as its label; the table's widths are its least.
        i16 least = bit == FLAG_BIT_CURSOR ? (i16)(3 * row_h) : bit == FLAG_BIT_ICON ? 0 : FLAG_ROW_WIDTH;
        if (box->base_width < least)
            box->base_width = box->pos_width = least;
        if (bit == FLAG_BIT_CURSOR)
            AddCursorField(handler, record, box, y, row_h);
        else if (bit == FLAG_BIT_ICON)
            AddIconControls(handler, record, box, y, row_h);
        y = (i16)(y + row_h);
    }

    init = T_GADGETOBJECTINIT{};
    init.type = GADGET_TYPE_BUTTON;
    init.y = (i16)(y + 2);
    init.base_height = (i16)(row_h + 2);
    init.item_code = PROP_ITEM_ACTIONS;
    init.flags = GADGET_FLAGS_AUTOSIZE;
    init.action = ACT_LMOUSE_UP;  // a button that reported nothing could never open the editor
    CreateObject(&handler->head, TXT_GADGET_ACTIONS, &init);
    RestoreGadgetList(window);
}

void OpenGadgetProperties(t_Window *page, t_gadget *gadget)
{
    if (!page || !gadget)
        return;
    for (t_Window *child = page->first_child; child->next; child = child->next)
        if (child->name && strcmp(child->name, TXT_GADGET_PROPERTIES) == 0 && child->user_data &&
            *(t_gadget **)child->user_data == gadget) {
            ISetActiveWindow(child);
            return;
        }
    // Up and left of the pointer; a child's place is given from its parent's user area.
    T_DIALOG_FRAME frame = properties_frame;
    frame.x = (i16)(page->mouse_x - PROP_OFFSET - page->user_x);
    frame.y = (i16)(page->mouse_y - PROP_OFFSET - page->user_y);
    t_Window *window = OpenDialogWindow(page, &frame, NULL);
    if (!window)
        return;
    window->title_suffix = gadget->name;
    T_GADGET_PROPERTIES *record = (T_GADGET_PROPERTIES *)NewDialogRecord(window, sizeof(T_GADGET_PROPERTIES));
    if (!record) {
        RemoveWindow(window);
        return;
    }
    record->gadget = gadget;
    t_Gaget_Handler *handler = FindGadgetHandler(window);
    record->row_mask = GadgetRowMask(gadget->type);
    T_RPOS user = UserArea(window);
    BuildGadgetProperties(handler, record, &user);
    handler->current_gadget = NULL;  // Tab starts at the first field
    KeepDialogInView(window);
}

void EditGadgetColour(t_Window *window, T_GADGET_PROPERTIES *record, u32 msg, int index, const char *title)
{
    t_gadget *gadget = record->gadget;
    T_COLOUR_EDIT edit = ColourEditOf(record, index);
    if (msg & ACT_LMOUSE_DROP) {  // a colour dropped on the swatch: the gadget takes it at once
        *edit.word = GetConstantTRGBA(edit.rgba);
        return;
    }
    // One selector per colour: a press, release and double click of the same click open one.
    if (!(msg & ACT_LMOUSE_UP))
        return;
    // The selector may have gone without an answer, and been freed: it is only compared with the
    // dialog's children.
    t_Window *open = NULL;
    for (t_Window *child = window->first_child; child->next; child = child->next)
        if (child == record->colour_selector[index] && IsWindowLive(child))
            open = child;
    if (open) {
        ISetActiveWindow(open);
        return;
    }
    T_COLOURSEL_INIT init = {window, edit.rgba, edit.hsia, COLOUR_SELECTOR_MODE, (u32)index + 1, title, record};
    t_Window *selector = AddColourSelector(&init);
    record->colour_selector[index] = selector;
    if (selector)
        selector->title_suffix = gadget->name;
}

// An answer of a colour selector: item code 1 the text colour, 2 the background.
static void ColourAnswer(T_GADGET_PROPERTIES *record, u32 item_code, u32 msg)
{
    if (item_code != PROP_COLOUR_TEXT && item_code != PROP_COLOUR_BACK)
        return;
    int index = item_code == PROP_COLOUR_BACK;
    T_COLOUR_EDIT edit = ColourEditOf(record, index);
    switch (msg) {
    case ACT_REQUESTER_OK:  // the working colour becomes the gadget's
    case ACT_REQUESTER_PREVIEW:
        *edit.word = GetConstantTRGBA(edit.rgba);
        break;
    case ACT_REQUESTER_CANCEL:  // back to the colour of the dialog's opening, the swatch too
        *edit.word = *edit.opening;
        UnpackColour(*edit.word, edit.rgba, edit.hsia);
        break;
    }
    if (msg != ACT_REQUESTER_PREVIEW)
        record->colour_selector[index] = NULL;
}

// A flag row's box changed: the bit follows it, with what the bit brings along.
static void FlagRowChanged(t_Window *window, T_GADGET_PROPERTIES *record, u32 item_code, t_gadget *box)
{
    t_Window *page = window->parent;
    t_gadget *gadget = record->gadget;
    u32 bit = 1u << (item_code - 1);
    if (bit == GADGET_FLAGS_NO_DISPLAY)
        CURRENT_DISPLAY->window_class->refresh_request = 1;
    SetGadgetFlagBit(gadget, bit, box->class_data != 0);
    if (bit == FLAG_BIT_CURSOR || bit == FLAG_BIT_ICON) {
        int off = box->class_data == 0;
        SetDisabled(box->next, off || (bit == FLAG_BIT_ICON && !gadget->icon_bank));
        if (bit == FLAG_BIT_ICON && box->next)
            SetDisabled(box->next->next, off || !gadget->icon_bank);
    }
    if (bit == GADGET_FLAGS_AUTOSIZE && (gadget->live_flags & bit))
        SizeGadgetToContents(page, gadget);
    RecalcGadgetPosition(page, gadget, 0, 0, 0);  // the anchoring bits move it on the page
    page->state_flags |= WSF_MODIFIED;
}

// A control reported: by item code, data the control.
static void ControlReported(t_Window *window, T_GADGET_PROPERTIES *record, u32 item_code, u32 msg, t_gadget *control)
{
    t_Window *page = window->parent;
    t_gadget *gadget = record->gadget;
    switch (item_code) {
    case PROP_ITEM_CURSOR:
        gadget->cursor = (u16)FieldValue(record->cursor_text);
        page->state_flags |= WSF_MODIFIED;
        break;
    case PROP_ITEM_ITEM_CODE:
        SetGadgetItemCode(page, gadget, (u32)FieldValue(record->item_code_text));
        page->state_flags |= WSF_MODIFIED;
        break;
    case PROP_ITEM_ICON:  // the scroll bar picks the icon in the bank; the bank's button does nothing
        if (control && control->type == GADGET_TYPE_SCROLLBAR && control->class_data) {
            gadget->icon = ((T_SCROLLBAR_DATA *)control->class_data)->init_val;
            page->state_flags |= WSF_MODIFIED;
        }
        break;
    case PROP_ITEM_TEXT:  // the text or the hover text; slider values are taken at close
    case PROP_ITEM_SLIDER_MIN:
    case PROP_ITEM_SLIDER_MAX:
    case PROP_ITEM_SLIDER_STEP:
        page->state_flags |= WSF_MODIFIED;
        break;
    case PROP_ITEM_TEXT_COLOUR:
        EditGadgetColour(window, record, msg, 0, TXT_SET_TEXT_COLOUR);
        break;
    case PROP_ITEM_BACK_COLOUR:
        EditGadgetColour(window, record, msg, 1, TXT_SET_BACK_COLOUR);
        break;
    case PROP_ITEM_ACTIONS:
        OpenActionEditor(page);
        break;
    default:
        if (item_code >= ITEM_OF_BIT(0) && item_code <= ITEM_OF_BIT(LAST_FLAG_ROW_BIT) && control)
            FlagRowChanged(window, record, item_code, control);
        break;
    }
}

// The field being typed in when the dialog closes reports first, as leaving it would have.
static void ReportOpenField(t_Window *window, T_GADGET_PROPERTIES *record)
{
    t_gadget *current = GetCurrentGadget(window);
    if (current && current->type == GADGET_TYPE_STRING && current->parent_combo == record->combo_gadget)
        ControlReported(window, record, current->live_item_code, ACT_LMOUSE_UP, current);
}

// The close step: what the fields hold goes to the gadget, then the record and the window go.
static void CloseGadgetProperties(t_Window *window, T_GADGET_PROPERTIES *record)
{
    t_gadget *gadget = record->gadget;
    ReportOpenField(window, record);
    SetGadgetItemCode(window->parent, gadget, (u32)FieldValue(record->item_code_text));
    if (record->row_mask & FLAG_BIT_CURSOR)  // a type without the row keeps its cursor
        gadget->cursor = (u16)FieldValue(record->cursor_text);
    if (T_SLIDER_DATA *slider = SliderOf(gadget)) {
        slider->min = FieldValue(record->slider_min_text);
        slider->max = FieldValue(record->slider_max_text);
        slider->step = FieldValue(record->slider_step_text);
    }
    // An untouched field leaves the hover text as it was: a text longer than the field is kept.
    if (strcmp(record->hover_edit, record->hover_opening) != 0)
        SetGadgetHover(gadget, record->hover_edit);
    RemoveChildWindows(window);
    FreeDialogRecord(window);
    RemoveWindow(window);
}

void ShowNewItemCodes(t_Window *page)
{
    for (t_Window *child = page->first_child; child->next; child = child->next) {
        T_GADGET_PROPERTIES *record = (T_GADGET_PROPERTIES *)child->user_data;
        if (child->message != GadgetPropertiesMsg || !record || !IsWindowLive(child))
            continue;
        snprintf(record->item_code_text, sizeof(record->item_code_text), "%d", (int)record->gadget->item_code);
    }
}

u32 GadgetPropertiesMsg(t_Window *window, u32 item_code, u32 msg, void *data)
{
    T_GADGET_PROPERTIES *record = (T_GADGET_PROPERTIES *)window->user_data;
    if (!record)
        return 0;
    switch (msg) {
    case ACT_TERMINATE:  // the close gadget, or Escape: applies
        CloseGadgetProperties(window, record);
        return 0;
    case ACT_KEY:  // Escape closes and applies; other keys do nothing
        if (item_code == KEY_ESCAPE)
            SendWindowMessage(window, 0, ACT_TERMINATE, NULL);
        return 0;
    case ACT_FIRSTTIME_RUN:
        SetComboScrollBars(record->combo_gadget);
        return 0;
    case ACT_REQUESTER_OK:  // the colour selectors' answers
    case ACT_REQUESTER_PREVIEW:
    case ACT_REQUESTER_CANCEL:
        ColourAnswer(record, item_code, msg);
        return 0;
    default:
        ControlReported(window, record, item_code, msg, (t_gadget *)data);
        return 0;
    }
}
