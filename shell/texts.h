// The shell's texts that a person reads: the About box, the Open selector, the reopening of the
// last run's documents and a page drawn on the main window, in one place.
#pragma once

#define TXT_ABOUT_TITLE "About Quillform"
#define TXT_ABOUT_TEXT "Quillform Version " QF_VERSION  // the project's version, from CMakeLists.txt
#define TXT_OPEN_TITLE "Open Source file"
#define TXT_REOPEN_PROGRESS "Opening documents"
#define TXT_NEW_WINDOW "New Window"
#define TXT_NEW_DOCUMENT "New document"
// The Edit menu's history entries: the word, then the name of the record next in turn.
#define TXT_UNDO "Undo"
#define TXT_REDO "Redo"
#define TXT_SETTINGS_TITLE "Settings for Quillform"
