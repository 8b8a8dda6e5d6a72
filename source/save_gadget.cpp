// One GADGET block: the gadget's statements, from the field table, in full or left out where the
// block before left the same value in the creation record.
#include <string.h>

#include "source/source_format.h"
#include "source/source_writer.h"

// Where the gadget's value of `field` stands: the gadget, or the record behind its class_data (a
// gadget without one counts as all 0); null when the statement has no turn at this gadget.
static const void *FieldObject(const T_PAGE_FIELD *field, const t_gadget *gadget)
{
    static const union {
        T_SLIDER_DATA slider;
        T_SCROLLBAR_DATA bar;
    } none = {};
    switch (field->from) {
    case FROM_OBJECT:  // some have their turn only with a bit of live_flags
        return !field->live_bit || (gadget->live_flags & field->live_bit) ? gadget : NULL;
    case FROM_CLASS:  // the types whose class record holds it
        if (gadget->type >= 32 || !(field->types & (1u << gadget->type)))
            return NULL;
        return gadget->class_data ? (const void *)gadget->class_data : (const void *)&none;
    default:  // a fixed text only
        return NULL;
    }
}

// A text: written when it differs from the record's text, the record holding none counting as
// different; NULL when the gadget has none and the record holds a text.
static void SaveGadgetText(const T_PAGE_FIELD *field, const char *text, T_GADGETOBJECTINIT *previous, int full)
{
    const char *before = (const char *)PlacePointer(previous, field->record);
    if (text ? (full || !before || strcmp(text, before) != 0) : (full || before))
        SaveFieldString(field, text);
    StorePlacePointer(previous, field->record, text);
}

// One statement in its turn: a fixed text of the gadget's type, written in both forms; or the
// gadget's value, compared with the record in the optimised form and then copied to it.
static void SaveGadgetField(const T_PAGE_FIELD *field, t_gadget *gadget, T_GADGETOBJECTINIT *previous, int full)
{
    const char *fixed = field->fixed ? FixedFieldText(field, gadget->type) : NULL;
    if (fixed) {
        SaveFieldText(field, fixed);
        return;
    }
    const void *object = FieldObject(field, gadget);
    if (!object)
        return;
    switch (field->kind) {
    case FIELD_TEXT:
        SaveGadgetText(field, (const char *)PlacePointer(object, field->object), previous, full);
        return;
    case FIELD_RESOURCE:  // by the resource's name
        SaveGadgetText(field, ResourceName(PlacePointer(object, field->object)), previous, full);
        return;
    case FIELD_COLOURS:  // always written, and not in the record
        SaveFieldColours(field, gadget->back_colour, gadget->text_colour);
        return;
    default:
        break;
    }
    i64 value = PlaceValue(object, field->object);
    if ((full || value != PlaceValue(previous, field->record)) && !SaveFieldNumber(field, value))
        myprintf(0, "Gadget \"%s\" has type %u, which has no name; written as a number",
                 gadget->name ? gadget->name : "", (unsigned)gadget->type);
    StorePlaceValue(previous, field->record, value);
}

// The rows behind the line that creates the gadget close the table.
void SaveGadget(t_gadget *gadget, T_GADGETOBJECTINIT *previous, int full)
{
    SourcePrint(SRC_GADGET_START);
    int created = 0;
    for (const T_PAGE_FIELD *field = gadget_fields; field->word; field++) {
        if ((field->flags & FIELD_AFTER_CREATE) && !created) {
            SourcePrint(SRC_GAD_CREATE);
            SourcePrint(gadget->name ? gadget->name : "");
            SourcePrint(SRC_GAD_CREATE_AFTER);
            created = 1;
        }
        SaveGadgetField(field, gadget, previous, full);
    }
    SourcePrint(SRC_GADGET_END);
}
