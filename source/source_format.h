// The fixed texts of the page source format, shared by the writer and the reader.
#pragma once

// Statements begin with a tab; a reader that looks for a word anywhere in a line takes the
// text behind it (the literal plus one).

// --- Markers: one comment on a line of its own. Two begin with a line feed (a blank line). -----
#define SRC_MESSAGE_START "/*Quillform: START_OBJECT: MESSAGE */\n"
#define SRC_MESSAGE_END "/*Quillform: END_OBJECT: MESSAGE */\n"
#define SRC_PAGE_START "/*Quillform: START_OBJECT: PAGE */\n"
#define SRC_WINDOW_START "\n/*Quillform: START_OBJECT: WINDOW */\n"
#define SRC_WINDOW_END "/*Quillform: END_OBJECT: WINDOW */\n"
#define SRC_GADGET_START "\n/*Quillform: START_OBJECT: GADGET */\n"
#define SRC_GADGET_END "/*Quillform: END_OBJECT: GADGET */\n"
#define SRC_PAGE_END "/*Quillform: END_OBJECT: PAGE */\n"

// The words by which a reader knows a marker.
#define SRC_WORD_START "START_OBJECT"
#define SRC_WORD_END "END_OBJECT"
#define SRC_WORD_MESSAGE "MESSAGE"
#define SRC_WORD_PAGE "PAGE"
#define SRC_WORD_WINDOW "WINDOW"
#define SRC_WORD_GADGET "GADGET"
// The creation calls whose lines hold a gadget's or the window's name.
#define SRC_WORD_CREATE_GADGET "CreateGadget"
#define SRC_WORD_CREATE_WINDOW "ICreateWindow"
#define SRC_WORD_CREATE_OBJECT "CreateObject"

// --- Values ------------------------------------------------------------------------------------
#define SRC_DECIMAL "%d"
#define SRC_HEX_PREFIX "0x"
#define SRC_HEX SRC_HEX_PREFIX "%x"
#define SRC_NAME_JOIN "|"
#define SRC_NAME_NONE "0"  // a name list in which no bit had a name
#define SRC_END_STATEMENT ";\n"
#define SRC_END_TEXT_STATEMENT "\";\n"

// --- MESSAGE block -----------------------------------------------------------------------------
#define SRC_MSG_HEAD_BEFORE "u32 "  // then the plain name
#define SRC_MSG_HEAD_AFTER "Msg(T_WINDOW *win,u32 item_code,u32 msg,void *data)\n"
#define SRC_OPEN_BRACE "{\n"
#define SRC_CLOSE_BRACE "}\n"
#define SRC_SWITCH_MSG "\tswitch(msg)\n\t{\n"
#define SRC_SWITCH_ITEM "\tswitch(item_code)\n\t{\n"
#define SRC_SWITCH_END "\t}\n"
#define SRC_CASE "\tcase "
#define SRC_CASE_END ":\n"
#define SRC_CASE_COMMENT ":\t\t/*"  // between an item code and the gadget's name
#define SRC_COMMENT_END "*/\n"
#define SRC_BREAK "\t\tbreak;\n"
#define SRC_TERMINATE_CASE "\t\tRemoveWindow(win);\n\t\treturn(0);\n"
#define SRC_RETURN_ZERO "\treturn(0);\n"
#define SRC_BLANK_LINE "\n"

// --- Head of the PAGE block --------------------------------------------------------------------
#define SRC_OPEN_BEFORE "T_WINDOW *Open"  // then the plain name
#define SRC_OPEN_AFTER "Window()\n{\n"
#define SRC_DECLARE_WINDOW "\tT_WINDOW_HANDLER *wh;\n\tT_WINDOW *win;\n\tT_WINDOWOBJINIT win_init;\n"
#define SRC_DECLARE_GADGETS "\tT_GADGET_HANDLER *gh;\n\tT_GADGET *gad;\n\tT_GADGETOBJECTINIT gadinit;\n"
#define SRC_DECLARE_MENUS "\tT_MENU_HANDLER *mh;\n\tT_MENU *menu;\n\tT_MENUOBJECTINIT menuinit;\n"
#define SRC_CLEAR_INITS "\n\tClearGadInit;\n\tClearWinInit;\n"

// --- WINDOW and GADGET blocks: the lines around the statements of the field tables -----------
// A statement is the indent, its word, "=", the value and the end of a statement; its word is in
// the field tables (page_fields.cpp), made of the record's name and the field's.
#define SRC_WINDOW_RECORD "win_init."
#define SRC_GADGET_RECORD "gadinit."
#define SRC_INDENT "\t"
#define SRC_ASSIGN "="
#define SRC_NULL "NULL"  // a text or a pointer that is none
#define SRC_QUOTE "\""
#define SRC_MESSAGE_SUFFIX "Msg"  // behind the plain name: the message function
#define SRC_WIN_HANDLER "\twh=FindWindowHandler();\n"
#define SRC_WIN_CREATE "\twin=ICreateWindow(\""
#define SRC_WIN_CREATE_AFTER "\");\n"
#define SRC_WIN_OWNER "win->"  // the user area colour is set on the window once it exists
#define SRC_WIN_GADGET_HANDLER "\tgh=(T_GADGET_HANDLER *)NewGadgetHandler(win);\n"
#define SRC_WIN_MENU_HANDLER "\tmh=NewMenuHandler(win);\n"
#define SRC_GAD_CREATE "\tgad=CreateGadget(\""
#define SRC_GAD_CREATE_AFTER "\");\n\n"
#define SRC_GAD_COLOURS_OPEN "(gad,"  // behind SetGadgetColours
#define SRC_GAD_COLOURS_JOIN ","
#define SRC_GAD_COLOURS_AFTER ");\n"

// --- Tail of the PAGE block --------------------------------------------------------------------
#define SRC_RETURN_WIN "\treturn(win);\n"

// --- Tab links ---------------------------------------------------------------------------------

// --- What a save tells the user ----------------------------------------------------------------
#define SRC_SAVE_BAR_TITLE "Saving page"
#define SRC_SAVE_BAR_BACKUP "Backing up document"
#define SRC_SAVE_BAR_UNTITLED "Untitled"
#define SRC_SAVE_ERROR_TITLE "Document Save error"
#define SRC_SAVE_ERROR_BACKUP                                                                                          \
    "A backup copy of the document could not be saved. Saving will be aborted. Check file and "                        \
    "path destinations, and check there is enough free memory for this operation."
// printf form: the file's path, then the reason that the toolkit gives.
#define SRC_SAVE_ERROR_WRITE                                                                                           \
    "The document could not be written to %s: %s. The file that stood there, if any, is "                              \
    "unchanged."
// printf form: the backup's path and the reason, as "PATH: REASON".
#define SRC_SAVE_ERROR_BACKUP_COPY                                                                                     \
    "A backup copy of the document could not be written to %s. The document is saved without "                         \
    "it; check the backup path in the settings."
#define SRC_SAVE_ERROR_STYLE MSGBOX_ERROR
#define SRC_SAVE_ERROR_ITEM_CODE 208

// --- What a read logs: each begins with the file (or the clipboard) and the line ------------------
#define SRC_READ_NO_PAGE_MARKER "\n%s:%u: OpenPage error, no page marker found"
#define SRC_READ_NO_WINDOW_MARKER "\n%s:%u: OpenPage error, no window marker found"
// Then the window's width and height, and the smallest page's.
#define SRC_READ_SMALL_WINDOW "\n%s:%u: OpenPage error, the window's size %dx%d is below the smallest page, %dx%d"
#define SRC_READ_NO_GADGET "%s:%u: ReadGadgetsFromFile: Could not create gadget %s\n"  // then its name
#define SRC_READ_CLIPBOARD "the clipboard"  // where pasted GADGET blocks come from

// --- Backups -----------------------------------------------------------------------------------
#define SRC_BACKUP_EXTENSION ".bak"
#define SRC_PATH_SIZE 256  // a path buffer; a path holds at most 255 characters
