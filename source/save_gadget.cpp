// One GADGET block: the statements of a gadget, in full or left out where the block before left
// the same value in the creation record.
#include <stdio.h>
#include <string.h>

#include "source/name_tables.h"
#include "source/source_format.h"
#include "source/source_writer.h"

// A hover text or font name: written when it differs from the record's text, the record holding
// none counting as different; "NULL" when the gadget has none and the record holds a text.
static void SaveOptionalText(const char *before, const char *null_statement, const char *text,
                             const char **previous, int full)
{
    if (text) {
        if (full || !*previous || strcmp(text, *previous) != 0)
            SaveText(before, text);
    } else if (full || *previous) {
        SourcePrint(null_statement);
    }
    *previous = text;
}

// A slider's values, each against its field of the record.
static void SaveSliderValues(t_gadget *gadget, T_GADGETOBJECTINIT *previous, int full)
{
    static const T_SLIDER_DATA none = {};
    const T_SLIDER_DATA *slider =
        gadget->class_data ? (const T_SLIDER_DATA *)gadget->class_data : &none;
    if (full || slider->min != previous->min)
        SaveDecimal(SRC_GAD_MIN, slider->min);
    previous->min = slider->min;
    if (full || slider->max != previous->max)
        SaveDecimal(SRC_GAD_MAX, slider->max);
    previous->max = slider->max;
    if (full || slider->step != previous->step)
        SaveDecimal(SRC_GAD_STEP, slider->step);
    previous->step = slider->step;
    if (full || slider->mark_width != previous->mark_width)
        SaveDecimal(SRC_GAD_MARK_WIDTH, slider->mark_width);
    previous->mark_width = slider->mark_width;
    if (full || slider->mark_height != previous->mark_height)
        SaveDecimal(SRC_GAD_MARK_HEIGHT, slider->mark_height);
    previous->mark_height = slider->mark_height;
}

// A scroll bar's values; its 16-bit init_val against the record's 32-bit field.
static void SaveScrollBarValues(t_gadget *gadget, T_GADGETOBJECTINIT *previous, int full)
{
    static const T_SCROLLBAR_DATA none = {};
    const T_SCROLLBAR_DATA *bar =
        gadget->class_data ? (const T_SCROLLBAR_DATA *)gadget->class_data : &none;
    if (full || bar->min != previous->min)
        SaveDecimal(SRC_GAD_MIN, bar->min);
    previous->min = bar->min;
    if (full || bar->max != previous->max)
        SaveDecimal(SRC_GAD_MAX, bar->max);
    previous->max = bar->max;
    i32 init_val = bar->init_val;
    if (full || init_val != previous->init_val)
        SaveDecimal(SRC_GAD_INIT_VAL, init_val);
    previous->init_val = init_val;
}

// The statements of the gadget's type. The fixed ones are written in both forms and leave the
// record alone.
static void SaveTypeStatements(t_gadget *gadget, T_GADGETOBJECTINIT *previous, int full)
{
    switch (gadget->type) {
    case GADGET_TYPE_SLIDER:  // range, step and mark size
        SaveSliderValues(gadget, previous, full);
        break;
    case GADGET_TYPE_SCROLLBAR:  // range and value
        SaveScrollBarValues(gadget, previous, full);
        break;
    case GADGET_TYPE_STRING:  // the program's text buffer and its size
        SourcePrint(SRC_GAD_STRING_DATA);
        break;
    case GADGET_TYPE_COLOUR_FLAT:  // the program's colour record
    case GADGET_TYPE_COLOUR_BAR:
    case GADGET_TYPE_COLOUR_BOX:
        SourcePrint(SRC_GAD_COLOUR_DATA);
        break;
    case GADGET_TYPE_TEXTURE:  // the program's texture record
        SourcePrint(SRC_GAD_TEXTURE_DATA);
        break;
    case GADGET_TYPE_SCENE:  // the program's scene record
        SourcePrint(SRC_GAD_SCENE_DATA);
        break;
    }
}

void SaveGadget(t_gadget *gadget, T_GADGETOBJECTINIT *previous, int full)
{
    SourcePrint(SRC_GADGET_START);

    if (full || gadget->x != previous->x)
        SaveDecimal(SRC_GAD_X, gadget->x);
    previous->x = gadget->x;
    if (full || gadget->y != previous->y)
        SaveDecimal(SRC_GAD_Y, gadget->y);
    previous->y = gadget->y;
    if (full || gadget->base_width != previous->base_width)
        SaveDecimal(SRC_GAD_WIDTH, gadget->base_width);
    previous->base_width = gadget->base_width;
    if (full || gadget->base_height != previous->base_height)
        SaveDecimal(SRC_GAD_HEIGHT, gadget->base_height);
    previous->base_height = gadget->base_height;
    if (full || gadget->item_code != previous->item_code)
        SaveHex(SRC_GAD_ITEM_CODE, gadget->item_code);
    previous->item_code = gadget->item_code;
    // The whole words are compared, bits without a name too.
    if (full || gadget->flags != previous->flags)
        SaveNames(SRC_GAD_FLAGS, gadget_flag_names, gadget->flags);
    previous->flags = gadget->flags;
    if (full || gadget->action != previous->action)
        SaveNames(SRC_GAD_ACTION, mouse_action_names, gadget->action);
    previous->action = gadget->action;
    if (full || gadget->tab[0] != previous->tab[0])
        SaveHex(SRC_GAD_TAB0, gadget->tab[0]);
    previous->tab[0] = gadget->tab[0];
    if (full || gadget->tab[1] != previous->tab[1])
        SaveHex(SRC_GAD_TAB1, gadget->tab[1]);
    previous->tab[1] = gadget->tab[1];

    SaveOptionalText(SRC_GAD_HOVER, SRC_GAD_HOVER_NULL, gadget->hover_text,
                     &previous->hover_text, full);

    if (full || gadget->type != previous->type) {
        const char *type_name = FindV2SByCode(gadget_type_names, gadget->type);
        if (type_name) {
            SourcePrint(SRC_GAD_TYPE);
            SourcePrint(type_name);
            SourcePrint(SRC_END_STATEMENT);
        } else {
            myprintf(0, "Gadget \"%s\" has type %u, which has no name; written as a number",
                     gadget->name ? gadget->name : "", (unsigned)gadget->type);
            SaveDecimal(SRC_GAD_TYPE, gadget->type);
        }
    }
    previous->type = gadget->type;

    SaveOptionalText(SRC_GAD_FONT, SRC_GAD_FONT_NULL, gadget->font ? gadget->font->name : NULL,
                     &previous->font, full);

    // The record's cursor is one byte: a number above 255 never equals it and is written at
    // every gadget.
    if (gadget->live_flags & GADGET_FLAGS_CURSOR) {
        if (full || gadget->cursor != previous->cursor)
            SaveDecimal(SRC_GAD_CURSOR, gadget->cursor);
        previous->cursor = (u8)gadget->cursor;
    }

    // The icon in the gadget's bank counts only with the Icon flag: written then, like the cursor.
    if (gadget->live_flags & GADGET_FLAGS_ICON) {
        if (full || gadget->icon != previous->icon)
            SaveDecimal(SRC_GAD_ICON, gadget->icon);
        previous->icon = gadget->icon;
    }

    SaveTypeStatements(gadget, previous, full);

    SourcePrint(SRC_GAD_CREATE);
    SourcePrint(gadget->name ? gadget->name : "");
    SourcePrint(SRC_GAD_CREATE_AFTER);

    char colour[16];
    SourcePrint(SRC_GAD_COLOURS);
    snprintf(colour, sizeof(colour), SRC_HEX, (unsigned)gadget->back_colour);
    SourcePrint(colour);
    SourcePrint(SRC_GAD_COLOURS_JOIN);
    snprintf(colour, sizeof(colour), SRC_HEX, (unsigned)gadget->text_colour);
    SourcePrint(colour);
    SourcePrint(SRC_GAD_COLOURS_AFTER);
    SourcePrint(SRC_GADGET_END);
}
