// The property dialogs' texts that a person reads: titles, labels and buttons, in one place.
#pragma once

// The gadget properties dialog.
#define TXT_GADGET_PROPERTIES "Properties for"
#define TXT_GADGET_NAME "Gadget name"
#define TXT_SLIDER_MIN "Slider min"
#define TXT_SLIDER_MAX "Slider max"
#define TXT_SLIDER_STEP "Slider step"
#define TXT_ITEM_CODE "Gadget item code"
#define TXT_HOVER "Hover text"
#define TXT_TEXT_COLOUR "Text colour"
#define TXT_BACK_COLOUR "background colour"
#define TXT_SET_TEXT_COLOUR "Set text colour"
#define TXT_SET_BACK_COLOUR "Set back colour"
#define TXT_GADGET_ACTIONS "Gadget actions..."
#define TXT_NO_ICON_BANK "No icon bank"

// The action editor.
#define TXT_ACTION_EDITOR "Action Edtior"
#define TXT_LEFT_BUTTON "Left Button"
#define TXT_RIGHT_BUTTON "Right Button"
#define TXT_DEFAULTS "Defaults"
#define TXT_OK "Ok"
#define TXT_CANCEL "Cancel"

// The window properties dialog.
#define TXT_WINDOW_PROPERTIES "Properties for "
#define TXT_WINDOW_FLAGS "Window Flags"
#define TXT_WINDOW_NAME "Window Name"
#define TXT_SET_IDCMP "Set Idcmp"
#define TXT_SOURCE_FILE "Source file..."

// The window message control.
#define TXT_MESSAGE_CONTROL "Window Message control"

// The source file information.
#define TXT_SOURCE_INFO "Source File information"
#define TXT_FILENAME "Filename:"
#define TXT_INFO_PATH "File: %s"
#define TXT_INFO_SIZE "Size: %ld bytes, changed %s"
#define TXT_INFO_NO_FILE "The file can't be read now: %s"
#define TXT_INFO_LINES "Lines read: %lu of %lu"
#define TXT_INFO_NOTHING_PASSED "The reader took every line: the next save loses nothing."
#define TXT_INFO_NOT_READ "The page was not read from this file: nothing of it was passed over."
#define TXT_INFO_PASSED_HEAD "Lines the reader passed over; the next save writes the page anew and keeps none of them:"
#define TXT_INFO_PASSED_LINE "%5lu: %s"
