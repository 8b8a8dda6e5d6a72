// The table of gadget types: each type's drawing, mouse and key behaviour, its own freeing and
// making. Types without a row (the VU meters, colour bar and colour box) are drawn as a framed box
// with their name and report the mouse like a plain area.
#include "knobkit/knobkit_internal.h"
#include "lumora/lumora_internal.h"

static const T_GADGET_CLASS generic_class = {0, "generic", DrawGenericGadget, GenericGadgetMouse, NULL, NULL, NULL, 0};

// clang-format off
//   type                     name            draw                 mouse               key           free           init           entries
static const T_GADGET_CLASS gadget_classes[] = {
    {GADGET_TYPE_BUTTON,      "button",       DrawButtonGadget,    ButtonMouse,        ButtonKey,    NULL,          NULL,          0},
    {GADGET_TYPE_TEXT,        "text",         DrawTextGadget,      NULL,               NULL,         NULL,          NULL,          0},
    {GADGET_TYPE_CHECK_BOX,   "check box",    DrawCheckBoxGadget,  CheckBoxMouse,      CheckBoxKey,  NULL,          NULL,          0},
    {GADGET_TYPE_STRING,      "string",       DrawStringGadget,    StringMouse,        StringKey,    StringFree,    StringInit,    0},
    {GADGET_TYPE_RADIOBUTTON, "radio button", DrawRadioGadget,     RadioMouse,         RadioKey,     NULL,          NULL,          0},
    {GADGET_TYPE_GROUP,       "group",        DrawGroupGadget,     NULL,               NULL,         NULL,          NULL,          0},
    {GADGET_TYPE_COLOUR_FLAT, "colour flat",  DrawColourGadget,    ButtonMouse,        ButtonKey,    NULL,          NULL,          0},
    {GADGET_TYPE_TEXTURE,     "texture",      DrawBoxGadget,       GenericGadgetMouse, NULL,         NULL,          NULL,          0},
    {GADGET_TYPE_SCENE,       "scene",        DrawBoxGadget,       GenericGadgetMouse, NULL,         NULL,          NULL,          0},
    {GADGET_TYPE_USER,        "user",         DrawBoxGadget,       GenericGadgetMouse, NULL,         NULL,          NULL,          0},
    {GADGET_TYPE_SLIDER,      "slider",       DrawSliderGadget,    SliderMouse,        SliderKey,    SliderFree,    SliderInit,    0},
    {GADGET_TYPE_SCROLLBAR,   "scroll bar",   DrawScrollBarGadget, ScrollBarMouse,     ScrollBarKey, ScrollBarFree, ScrollBarInit, 0},
    {GADGET_TYPE_LIST_BOX,    "list box",     DrawListBoxGadget,   ListBoxMouse,       ListBoxKey,   FreeListData,  ListBoxInit,   1},
    {GADGET_TYPE_TREE,        "tree",         DrawListBoxGadget,   ListBoxMouse,       ListBoxKey,   FreeListData,  ListBoxInit,   1},
    {GADGET_TYPE_DROP_BOX,    "drop box",     DrawDropBoxGadget,   DropBoxMouse,       DropBoxKey,   DropBoxFree,   DropBoxInit,   1},
    {GADGET_TYPE_COMBO,       "combo",        DrawComboGadget,     ComboMouse,         NULL,         ComboFree,     ComboInit,     1},
};
// clang-format on

const T_GADGET_CLASS *GadgetClass(u16 type)
{
    for (const T_GADGET_CLASS &c : gadget_classes)
        if (c.type == type)
            return &c;
    return &generic_class;
}
