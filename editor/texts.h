// The page editor's texts that a person reads: its questions, messages and selectors, in one place.
#pragma once

// The close query on a modified page.
#define TXT_QUERY_TITLE "Quillform query"
#define TXT_QUERY_UNSAVED "The Page '%s' has not been saved, save before closing ?"
// The question before a save over a file with lines that the reader passed over: the file's name,
// how many lines, their first numbers. Its answers are the buttons.
#define TXT_LINES_TITLE "Hand-written lines"
#define TXT_LINES_QUESTION                                                                                             \
    "The file %s holds %u hand-written line%s that Quillform does not read (line%s %s). Saving "                       \
    "over the file drops them; Save as... keeps them in the old file."
#define TXT_LINES_SAVE "Save"
#define TXT_LINES_SAVE_AS "Save as..."
#define TXT_PATH_TOO_LONG "The path %s is too long: a path holds at most 1023 characters."
// The file selectors of page files ("Save Source as" here, "Open Source file" in the shell) and
// the font selector.
#define TXT_SAVE_AS_TITLE "Save Source as"
#define TXT_OPEN_BUTTON "Open"
#define TXT_SAVE_BUTTON "Save"
#define TXT_CANCEL_BUTTON "Cancel"
#define TXT_SOURCE_PATTERN "*.cpp"
#define TXT_FONT_TITLE "Choose font"
#define TXT_FONT_PATTERN "*.fnt"
#define TXT_ALL_FILES_PATTERN "*.*"
// The context menus' names: a gadget's, and the page background's.
#define TXT_GADGET_MENU "Multiple Modify"
#define TXT_PAGE_MENU "WindowBase"
#define TXT_PREVIEW_TITLE "%s (preview)"  // the page's name
