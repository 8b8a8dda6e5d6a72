// The seven name tables. The writer turns numbers into these words, the reader turns them back.
#include "source/name_tables.h"

// A row whose text is the name of its own constant.
// clang-format off
#define NAME_ROW(constant) {constant, #constant}
// clang-format on

// Labels of the gadget flags in the gadget properties dialog.
// clang-format off
const T_VAL2STRING gadget_flag_labels[] = {
    // value                   text
    {GADGET_FLAGS_DISABLED,     "Disabled"},
    {GADGET_FLAGS_NO_DISPLAY,   "Hide gadget"},
    {GADGET_FLAGS_REPORT_DRAG,  "Report drag"},
    {GADGET_FLAGS_SOLID,        "Solid background"},
    {GADGET_FLAGS_PASSIVE,      "Passive"},
    {GADGET_FLAGS_CURSOR,       "Modify cursor"},
    {GADGET_FLAGS_AUTOSIZE,     "Auto size"},
    {GADGET_FLAGS_HORIZONTAL,   "Horizontal"},
    {GADGET_FLAGS_VERTICAL,     "Vertical"},
    {GADGET_FLAGS_LEFT_JUSTIFY, "Left justify"},
    {GADGET_FLAGS_HILIGHT,      "Hilight"},
    {GADGET_FLAGS_BOLD,         "Bold"},
    {GADGET_FLAGS_ITALICS,      "Italics"},
    {GADGET_FLAGS_PUSH,         "Push button"},
    {GADGET_FLAGS_NO_BORDER,    "No border"},
    {GADGET_FLAGS_DEPRESSED,    "Depressed"},
    {GADGET_FLAGS_ICON,         "Icon"},
    {GADGET_FLAGS_SECRET,       "Secret"},
    {GADGET_FLAGS_FROM_RIGHT,   "Display from right"},
    {GADGET_FLAGS_FROM_BOTTOM,  "Display from bottom"},
    {0,                         ""},
};

// Source words of the gadget flags. GADGET_FLAGS_DEPRESSED has none; GADGET_FLAGS_XY holds two
// bits, so a walk by single bits never finds it.
const T_VAL2STRING gadget_flag_names[] = {
    NAME_ROW(GADGET_FLAGS_DISABLED),
    NAME_ROW(GADGET_FLAGS_NO_DISPLAY),
    NAME_ROW(GADGET_FLAGS_REPORT_DRAG),
    NAME_ROW(GADGET_FLAGS_SOLID),
    NAME_ROW(GADGET_FLAGS_PASSIVE),
    NAME_ROW(GADGET_FLAGS_FROM_KEYBOARD),
    NAME_ROW(GADGET_FLAGS_CURSOR),
    NAME_ROW(GADGET_FLAGS_AUTOSIZE),
    NAME_ROW(GADGET_FLAGS_HORIZONTAL),
    NAME_ROW(GADGET_FLAGS_VERTICAL),
    NAME_ROW(GADGET_FLAGS_XY),
    NAME_ROW(GADGET_FLAGS_LEFT_JUSTIFY),
    NAME_ROW(GADGET_FLAGS_HILIGHT),
    NAME_ROW(GADGET_FLAGS_BOLD),
    NAME_ROW(GADGET_FLAGS_ITALICS),
    NAME_ROW(GADGET_FLAGS_PUSH),
    NAME_ROW(GADGET_FLAGS_NO_BORDER),
    NAME_ROW(GADGET_FLAGS_ICON),
    NAME_ROW(GADGET_FLAGS_SECRET),
    NAME_ROW(GADGET_FLAGS_FROM_RIGHT),
    NAME_ROW(GADGET_FLAGS_FROM_BOTTOM),
    {0,                         ""},
};

// A gadget's type, looked up by the whole value.
const T_VAL2STRING gadget_type_names[] = {
    NAME_ROW(GADGET_TYPE_BUTTON),
    NAME_ROW(GADGET_TYPE_SLIDER),
    NAME_ROW(GADGET_TYPE_STRING),
    NAME_ROW(GADGET_TYPE_TEXT),
    NAME_ROW(GADGET_TYPE_GROUP),
    NAME_ROW(GADGET_TYPE_CHECK_BOX),
    NAME_ROW(GADGET_TYPE_RADIOBUTTON),
    NAME_ROW(GADGET_TYPE_VU_16),
    NAME_ROW(GADGET_TYPE_VU_32),
    NAME_ROW(GADGET_TYPE_LIST_BOX),
    NAME_ROW(GADGET_TYPE_COLOUR_FLAT),
    NAME_ROW(GADGET_TYPE_COLOUR_BAR),
    NAME_ROW(GADGET_TYPE_COLOUR_BOX),
    NAME_ROW(GADGET_TYPE_USER),
    NAME_ROW(GADGET_TYPE_TREE),
    NAME_ROW(GADGET_TYPE_TEXTURE),
    NAME_ROW(GADGET_TYPE_SCROLLBAR),
    NAME_ROW(GADGET_TYPE_DROP_BOX),
    NAME_ROW(GADGET_TYPE_SCENE),
    {0,                         ""},
};

// Bits of a gadget's action word. The wheel's row holds two bits, so a walk by single bits
// never finds it.
const T_VAL2STRING mouse_action_names[] = {
    NAME_ROW(ACT_LMOUSE_UP),
    NAME_ROW(ACT_LMOUSE_DOWN),
    NAME_ROW(ACT_RMOUSE_UP),
    NAME_ROW(ACT_RMOUSE_DOWN),
    NAME_ROW(ACT_LMOUSE_DBL),
    NAME_ROW(ACT_RMOUSE_DBL),
    NAME_ROW(ACT_LMOUSE_DROP),
    NAME_ROW(ACT_RMOUSE_DROP),
    NAME_ROW(ACT_MOUSE_WHEEL),
    {0,                         ""},
};

// Bits of a window's flags word.
const T_VAL2STRING window_flag_names[] = {
    NAME_ROW(WF_BACKDROP),
    NAME_ROW(WF_OPEN_FULLSCREEN),
    NAME_ROW(WF_CLOSE),
    NAME_ROW(WF_RESIZE),
    NAME_ROW(WF_TITLE),
    NAME_ROW(WF_MOVE),
    NAME_ROW(WF_BORDER),
    NAME_ROW(WF_MAXIMISE),
    NAME_ROW(WF_MINIMISE),
    NAME_ROW(WF_CHILD),
    NAME_ROW(WF_DEPENDANT),
    NAME_ROW(WF_CLIP_PARENT),
    NAME_ROW(WF_IN_FRONT_MODIFY),
    NAME_ROW(WF_NO_MOUSE),
    NAME_ROW(WF_NO_BACK),
    NAME_ROW(WF_IN_FRONT),
    NAME_ROW(WF_TASKBAR),
    NAME_ROW(WF_ALTF4),
    NAME_ROW(WF_CLEAR_ZBUFFER),
    NAME_ROW(WF_SEETHROUGH),
    {0,                         ""},
};

// Bits of a window's idcmp word; row k pairs with row k of message_names.
const T_VAL2STRING idcmp_names[] = {
    NAME_ROW(IDCMP_LOOSE_CONTEXT),
    NAME_ROW(IDCMP_GAIN_CONTEXT),
    NAME_ROW(IDCMP_TERMINATE),
    NAME_ROW(IDCMP_HOVER),
    NAME_ROW(IDCMP_KEY),
    NAME_ROW(IDCMP_WINDOW_MOVE),
    NAME_ROW(IDCMP_WINDOW_RESIZE),
    NAME_ROW(IDCMP_REQUESTER_OK),
    NAME_ROW(IDCMP_REQUESTER_CANCEL),
    NAME_ROW(IDCMP_REQUESTER_RETRY),
    NAME_ROW(IDCMP_REQUESTER_ABORT),
    NAME_ROW(IDCMP_REQUESTER_PREVIEW),
    NAME_ROW(IDCMP_REQUESTER_TERMINATE),
    NAME_ROW(IDCMP_MENU_OPEN),
    NAME_ROW(IDCMP_RECEIVE_OBJECT),
    NAME_ROW(IDCMP_FIRSTTIME_RUN),
    NAME_ROW(IDCMP_TITLEBAR),
    NAME_ROW(IDCMP_REFRESH_DAMAGED),
    NAME_ROW(IDCMP_EXTERNAL_REBUILD),
    NAME_ROW(IDCMP_INTERNAL_REBUILD),
    {0,                         ""},
};

// The messages that the idcmp bits enable, in the rows of idcmp_names.
const T_VAL2STRING message_names[] = {
    NAME_ROW(ACT_LOOSE_CONTEXT),
    NAME_ROW(ACT_GAIN_CONTEXT),
    NAME_ROW(ACT_TERMINATE),
    NAME_ROW(ACT_HOVER),
    NAME_ROW(ACT_KEY),
    NAME_ROW(ACT_WINDOW_MOVE),
    NAME_ROW(ACT_WINDOW_RESIZE),
    NAME_ROW(ACT_REQUESTER_OK),
    NAME_ROW(ACT_REQUESTER_CANCEL),
    NAME_ROW(ACT_REQUESTER_RETRY),
    NAME_ROW(ACT_REQUESTER_ABORT),
    NAME_ROW(ACT_REQUESTER_PREVIEW),
    NAME_ROW(ACT_REQUESTER_TERMINATE),
    NAME_ROW(ACT_MENU_OPEN),
    NAME_ROW(ACT_RECEIVE_OBJECT),
    NAME_ROW(ACT_FIRSTTIME_RUN),
    NAME_ROW(ACT_TITLEBAR),
    NAME_ROW(ACT_REFRESH_DAMAGED),
    NAME_ROW(ACT_EXTERNAL_REBUILD),
    NAME_ROW(ACT_INTERNAL_REBUILD),
    {0,                         ""},
};
// clang-format on
