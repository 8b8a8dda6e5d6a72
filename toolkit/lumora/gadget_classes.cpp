// The table of gadget types: each type's drawing, mouse and key behaviour and its own freeing.
// Types without a row of their own yet are drawn as a framed box with their name and report the
// mouse like a plain area; the step that brings them adds their rows here.
#include "lumora/lumora_internal.h"

static const T_GADGET_CLASS generic_class = {0, "generic", DrawGenericGadget, GenericGadgetMouse,
                                             NULL, NULL};

// type                      name           draw                 mouse           key         free
static const T_GADGET_CLASS gadget_classes[] = {
    {GADGET_TYPE_BUTTON,    "button",    DrawButtonGadget,   ButtonMouse,   ButtonKey,   NULL},
    {GADGET_TYPE_TEXT,      "text",      DrawTextGadget,     NULL,          NULL,        NULL},
    {GADGET_TYPE_CHECK_BOX, "check box", DrawCheckBoxGadget, CheckBoxMouse, CheckBoxKey, NULL},
};

const T_GADGET_CLASS *GadgetClass(u16 type) {
    for (const T_GADGET_CLASS &c : gadget_classes)
        if (c.type == type) return &c;
    return &generic_class;
}
