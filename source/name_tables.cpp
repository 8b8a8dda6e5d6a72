// The seven name tables. The writer turns numbers into these words, the reader turns them back.
#include "source/name_tables.h"

// Labels of the gadget flags in the gadget properties dialog.
const T_VAL2STRING gadget_flag_labels[] = {
    // value        text
    {0x1, "Disabled"},
    {0x2, "Hide gadget"},
    {0x8, "Report drag"},
    {0x20, "Solid background"},
    {0x40, "Passive"},
    {0x100, "Modify cursor"},
    {0x200, "Auto size"},
    {0x400, "Horizontal"},
    {0x800, "Vertical"},
    {0x1000, "Left justify"},
    {0x2000, "Hilight"},
    {0x4000, "Bold"},
    {0x8000, "Italics"},
    {0x10000, "Push button"},
    {0x20000, "No border"},
    {0x40000, "Depressed"},
    {0x80000, "Icon"},
    {0x800000, "Secret"},
    {0x1000000, "Display from right"},
    {0x2000000, "Display from bottom"},
    {0, ""},
};

// Source words of the gadget flags. 0x40000 has none; 0xc00 is never found by a single bit.
const T_VAL2STRING gadget_flag_names[] = {
    // value        text
    {0x1, "GADGET_FLAGS_DISABLED"},
    {0x2, "GADGET_FLAGS_NO_DISPLAY"},
    {0x8, "GADGET_FLAGS_REPORT_DRAG"},
    {0x20, "GADGET_FLAGS_SOLID"},
    {0x40, "GADGET_FLAGS_PASSIVE"},
    {0x80, "GADGET_FLAGS_FROM_KEYBOARD"},
    {0x100, "GADGET_FLAGS_CURSOR"},
    {0x200, "GADGET_FLAGS_AUTOSIZE"},
    {0x400, "GADGET_FLAGS_HORIZONTAL"},
    {0x800, "GADGET_FLAGS_VERTICAL"},
    {0xc00, "GADGET_FLAGS_XY"},
    {0x1000, "GADGET_FLAGS_LEFT_JUSTIFY"},
    {0x2000, "GADGET_FLAGS_HILIGHT"},
    {0x4000, "GADGET_FLAGS_BOLD"},
    {0x8000, "GADGET_FLAGS_ITALICS"},
    {0x10000, "GADGET_FLAGS_PUSH"},
    {0x20000, "GADGET_FLAGS_NO_BORDER"},
    {0x80000, "GADGET_FLAGS_ICON"},
    {0x800000, "GADGET_FLAGS_SECRET"},
    {0x1000000, "GADGET_FLAGS_FROM_RIGHT"},
    {0x2000000, "GADGET_FLAGS_FROM_BOTTOM"},
    {0, ""},
};

// A gadget's type, looked up by the whole value.
const T_VAL2STRING gadget_type_names[] = {
    // value  text
    {1, "GADGET_TYPE_BUTTON"},
    {2, "GADGET_TYPE_SLIDER"},
    {10, "GADGET_TYPE_STRING"},
    {7, "GADGET_TYPE_TEXT"},
    {9, "GADGET_TYPE_GROUP"},
    {5, "GADGET_TYPE_CHECK_BOX"},
    {11, "GADGET_TYPE_RADIOBUTTON"},
    {3, "GADGET_TYPE_VU_16"},
    {4, "GADGET_TYPE_VU_32"},
    {8, "GADGET_TYPE_LIST_BOX"},
    {12, "GADGET_TYPE_COLOUR_FLAT"},
    {13, "GADGET_TYPE_COLOUR_BAR"},
    {14, "GADGET_TYPE_COLOUR_BOX"},
    {15, "GADGET_TYPE_USER"},
    {16, "GADGET_TYPE_TREE"},
    {17, "GADGET_TYPE_TEXTURE"},
    {18, "GADGET_TYPE_SCROLLBAR"},
    {6, "GADGET_TYPE_DROP_BOX"},
    {21, "GADGET_TYPE_SCENE"},
    {0, ""},
};

// Bits of a gadget's action word. The wheel's row holds two bits, so a walk by single bits
// never finds it.
const T_VAL2STRING mouse_action_names[] = {
    // value   text
    {0x10, "ACT_LMOUSE_UP"},
    {0x20, "ACT_LMOUSE_DOWN"},
    {0x1, "ACT_RMOUSE_UP"},
    {0x2, "ACT_RMOUSE_DOWN"},
    {0x40, "ACT_LMOUSE_DBL"},
    {0x4, "ACT_RMOUSE_DBL"},
    {0x80, "ACT_LMOUSE_DROP"},
    {0x8, "ACT_RMOUSE_DROP"},
    {0x300, "ACT_MOUSE_WHEEL"},
    {0, ""},
};

// Bits of a window's flags word.
const T_VAL2STRING window_flag_names[] = {
    // value       text
    {0x1, "WF_BACKDROP"},
    {0x2, "WF_OPEN_FULLSCREEN"},
    {0x4, "WF_CLOSE"},
    {0x8, "WF_RESIZE"},
    {0x10, "WF_TITLE"},
    {0x20, "WF_MOVE"},
    {0x40, "WF_BORDER"},
    {0x80, "WF_MAXIMISE"},
    {0x100, "WF_MINIMISE"},
    {0x200, "WF_CHILD"},
    {0x400, "WF_DEPENDANT"},
    {0x800, "WF_CLIP_PARENT"},
    {0x1000, "WF_IN_FRONT_MODIFY"},
    {0x2000, "WF_NO_MOUSE"},
    {0x4000, "WF_NO_BACK"},
    {0x8000, "WF_IN_FRONT"},
    {0x10000, "WF_TASKBAR"},
    {0x40000, "WF_ALTF4"},
    {0x80000, "WF_CLEAR_ZBUFFER"},
    {0x100000, "WF_SEETHROUGH"},
    {0, ""},
};

// Bits of a window's idcmp word; row k pairs with row k of message_names.
const T_VAL2STRING idcmp_names[] = {
    // value       text
    {0x1, "IDCMP_LOOSE_CONTEXT"},
    {0x2, "IDCMP_GAIN_CONTEXT"},
    {0x4, "IDCMP_TERMINATE"},
    {0x8, "IDCMP_HOVER"},
    {0x10, "IDCMP_KEY"},
    {0x20, "IDCMP_WINDOW_MOVE"},
    {0x40, "IDCMP_WINDOW_RESIZE"},
    {0x4000, "IDCMP_REQUESTER_OK"},
    {0x8000, "IDCMP_REQUESTER_CANCEL"},
    {0x10000, "IDCMP_REQUESTER_RETRY"},
    {0x20000, "IDCMP_REQUESTER_ABORT"},
    {0x40000, "IDCMP_REQUESTER_PREVIEW"},
    {0x100000, "IDCMP_REQUESTER_TERMINATE"},
    {0x80, "IDCMP_MENU_OPEN"},
    {0x100, "IDCMP_RECEIVE_OBJECT"},
    {0x400, "IDCMP_FIRSTTIME_RUN"},
    {0x800, "IDCMP_TITLEBAR"},
    {0x2000, "IDCMP_REFRESH_DAMAGED"},
    {0x200000, "IDCMP_EXTERNAL_REBUILD"},
    {0x400000, "IDCMP_INTERNAL_REBUILD"},
    {0, ""},
};

// The messages that the idcmp bits enable, in the rows of idcmp_names.
const T_VAL2STRING message_names[] = {
    // value     text
    {0x1000, "ACT_LOOSE_CONTEXT"},
    {0x1001, "ACT_GAIN_CONTEXT"},
    {0x1002, "ACT_TERMINATE"},
    {0x1003, "ACT_HOVER"},
    {0x1004, "ACT_KEY"},
    {0x1005, "ACT_WINDOW_MOVE"},
    {0x1006, "ACT_WINDOW_RESIZE"},
    {0x100e, "ACT_REQUESTER_OK"},
    {0x100f, "ACT_REQUESTER_CANCEL"},
    {0x1010, "ACT_REQUESTER_RETRY"},
    {0x1011, "ACT_REQUESTER_ABORT"},
    {0x1012, "ACT_REQUESTER_PREVIEW"},
    {0x1014, "ACT_REQUESTER_TERMINATE"},
    {0x1007, "ACT_MENU_OPEN"},
    {0x1008, "ACT_RECEIVE_OBJECT"},
    {0x100a, "ACT_FIRSTTIME_RUN"},
    {0x100b, "ACT_TITLEBAR"},
    {0x100d, "ACT_REFRESH_DAMAGED"},
    {0x1015, "ACT_EXTERNAL_REBUILD"},
    {0x1016, "ACT_INTERNAL_REBUILD"},
    {0, ""},
};
