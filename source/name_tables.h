// The seven name tables: the words of the page source and the labels of the flag check boxes.
#pragma once
#include "toolkit.h"

// Each table is closed by the row {0, ""}; no other row has the value 0. Row order matters:
// idcmp_names and message_names pair row by row, the message dialog numbers its check boxes by
// row, and the gadget dialog labels a flag with the first row that has its bit.
extern const T_VAL2STRING gadget_flag_labels[];
extern const T_VAL2STRING gadget_flag_names[];
extern const T_VAL2STRING gadget_type_names[];
extern const T_VAL2STRING mouse_action_names[];
extern const T_VAL2STRING window_flag_names[];
extern const T_VAL2STRING idcmp_names[];
extern const T_VAL2STRING message_names[];
