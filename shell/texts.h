// The module's texts that the user reads: titles and messages, in one place.
#pragma once

#define TXT_ABOUT_TITLE "About Quillform"
#define TXT_ABOUT_TEXT "Quillform Version " QF_VERSION  // the project's version, from CMakeLists.txt
#define TXT_OPEN_TITLE "Open Source file"
#define TXT_SAVE_AS_TITLE "Save Source as"
#define TXT_OPEN_BUTTON "Open"
#define TXT_SAVE_BUTTON "Save"
#define TXT_CANCEL_BUTTON "Cancel"
#define TXT_SOURCE_PATTERN "*.cpp"
#define TXT_REOPEN_PROGRESS "Opening documents"
#define TXT_NEW_WINDOW "New Window"
#define TXT_NEW_DOCUMENT "New document"
#define TXT_QUERY_TITLE "Quillform query"
#define TXT_QUERY_UNSAVED "The Page '%s' has not been saved, save before closing ?"
// The question before a save over a file with lines that the reader passed over: the file's name,
// how many lines, their first numbers. Its answers are the buttons.
#define TXT_LINES_TITLE "Hand-written lines"
#define TXT_LINES_QUESTION                                                                         \
    "The file %s holds %u hand-written line%s that Quillform does not read (line%s %s). Saving "  \
    "over the file drops them; Save as... keeps them in the old file."
#define TXT_LINES_SAVE "Save"
#define TXT_LINES_SAVE_AS "Save as..."
#define TXT_PATH_TOO_LONG "The path %s is too long: a path holds at most 1023 characters."
#define TXT_ERROR_TITLE "Quillform error"
#define TXT_WARNING_TITLE "Quillform warning"
#define TXT_ALREADY_OPEN "File %s is already open."
#define TXT_COULD_NOT_OPEN "Could not open page in file %s"
#define TXT_DUPLICATES_REMAPPED \
    "Duplicate item codes were found in this page, duplicate item codes have been remapped."
#define TXT_FONT_TITLE "Choose font"
#define TXT_PREVIEW_TITLE "%s (preview)"  // the page's name
