// The gadget properties dialog "Properties for": one gadget's text, item code, hover text,
// colours, slider range, cursor, icon and flags, edited live; closing applies.
#pragma once
#include "page/records.h"

typedef struct T_GADGET_PROPERTIES {
    t_gadget *gadget;  // first: FindGadgetPropertyWindow reads this word
    t_gadget *combo_gadget;
    t_List *combo_list;
    u32 row_mask;  // the flag rows this gadget's type shows
    T_RGBA text_rgba, back_rgba;
    T_HSIA text_hsia, back_hsia;
    u32 opening_text_colour, opening_back_colour;
    char item_code_text[32];
    char slider_min_text[32], slider_max_text[32], slider_step_text[32];
    char cursor_text[32];
    char hover_edit[256];
    // The dialog's own:
    char hover_opening[256];  // what the hover field began with: an untouched field changes nothing
    T_COLOUR_DATA text_colour_data, back_colour_data;  // the swatches' data
    t_Window *colour_selector[2];                      // the open selector of each colour, or null
} T_GADGET_PROPERTIES;

// Item codes of the dialog's controls (the flag rows are the bit's index plus 1).
#define PROP_ITEM_CURSOR 160
#define PROP_ITEM_ITEM_CODE 161
#define PROP_ITEM_ICON 162
#define PROP_ITEM_TEXT 164
#define PROP_ITEM_SLIDER_MIN 165
#define PROP_ITEM_SLIDER_MAX 166
#define PROP_ITEM_SLIDER_STEP 167
#define PROP_ITEM_TEXT_COLOUR 169
#define PROP_ITEM_BACK_COLOUR 170
#define PROP_ITEM_ACTIONS 171
#define PROP_ITEM_COMBO 192
#define PROP_COLOUR_TEXT 1  // the item codes of the colour selectors' answers
#define PROP_COLOUR_BACK 2

// Opens the dialog on the gadget, or brings its open dialog to the front.
void OpenGadgetProperties(t_Window *page, t_gadget *gadget);
u32 GadgetPropertiesMsg(t_Window *window, u32 item_code, u32 msg, void *data);
// The page's item codes were renumbered: each open dialog shows its gadget's code again, so that
// closing it keeps the new code.
void ShowNewItemCodes(t_Window *page);
void BuildGadgetProperties(t_Gaget_Handler *handler, T_GADGET_PROPERTIES *record, T_RPOS *user);
// One flag row's check box, or null when no row of gadget_flag_labels has the bit.
t_gadget *AddFlagRow(t_Gaget_Handler *handler, T_GADGETOBJECTINIT *init, u32 bit, u32 flags);
// The one place where a property bit changes: in `flags` and `live_flags` together.
void SetGadgetFlagBit(t_gadget *gadget, u32 bit, int on);
// The flag rows a type shows, from its kind's catalogue row; 0 for a type without any.
u32 GadgetRowMask(u16 type);
void EditGadgetColour(t_Window *window, T_GADGET_PROPERTIES *record, u32 msg, int index, const char *title);
