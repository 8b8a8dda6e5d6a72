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

// --- Values ------------------------------------------------------------------------------------
#define SRC_DECIMAL "%d"
#define SRC_HEX "0x%x"
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

// --- WINDOW block ------------------------------------------------------------------------------
#define SRC_WIN_HANDLER "\twh=FindWindowHandler();\n"
#define SRC_WIN_FLAGS "\twin_init.flags="
#define SRC_WIN_X "\twin_init.x="
#define SRC_WIN_Y "\twin_init.y="
#define SRC_WIN_W "\twin_init.w="
#define SRC_WIN_H "\twin_init.h="
#define SRC_WIN_ICON "\twin_init.icon="
#define SRC_WIN_IDCMP "\twin_init.idcmp="
#define SRC_WIN_BITMAP "\twin_init.bitmap=\""
#define SRC_WIN_BITMAP_NULL "\twin_init.bitmap=NULL;\n"
#define SRC_WIN_MESSAGE "\twin_init.message="  // then the plain name
#define SRC_WIN_MESSAGE_AFTER "Msg;\n"
#define SRC_WIN_ICON_BANK "\twin_init.icon_bank=NULL;\n"
#define SRC_WIN_CREATE "\twin=ICreateWindow(\""
#define SRC_WIN_CREATE_AFTER "\");\n"
#define SRC_WIN_COLOUR "\twin->UserAreaColour="
#define SRC_WIN_GADGET_HANDLER "\tgh=(T_GADGET_HANDLER *)NewGadgetHandler(win);\n"
#define SRC_WIN_MENU_HANDLER "\tmh=NewMenuHandler(win);\n"

// --- GADGET block ------------------------------------------------------------------------------
#define SRC_GAD_X "\tgadinit.x="
#define SRC_GAD_Y "\tgadinit.y="
#define SRC_GAD_WIDTH "\tgadinit.base_width="
#define SRC_GAD_HEIGHT "\tgadinit.base_height="
#define SRC_GAD_ITEM_CODE "\tgadinit.item_code="
#define SRC_GAD_FLAGS "\tgadinit.flags="
#define SRC_GAD_ACTION "\tgadinit.action="
#define SRC_GAD_TAB0 "\tgadinit.tab[0]="
#define SRC_GAD_TAB1 "\tgadinit.tab[1]="
#define SRC_GAD_HOVER "\tgadinit.hover_text=\""
#define SRC_GAD_HOVER_NULL "\tgadinit.hover_text=NULL;\n"
#define SRC_GAD_TYPE "\tgadinit.type="
#define SRC_GAD_FONT "\tgadinit.font=\""
#define SRC_GAD_FONT_NULL "\tgadinit.font=NULL;\n"
#define SRC_GAD_CURSOR "\tgadinit.cursor="
#define SRC_GAD_ICON "\tgadinit.icon="
#define SRC_GAD_MIN "\tgadinit.min="
#define SRC_GAD_MAX "\tgadinit.max="
#define SRC_GAD_STEP "\tgadinit.step="
#define SRC_GAD_MARK_WIDTH "\tgadinit.mark_width="
#define SRC_GAD_MARK_HEIGHT "\tgadinit.mark_height="
#define SRC_GAD_INIT_VAL "\tgadinit.init_val="
#define SRC_GAD_STRING_DATA "\tgadinit.data=&PutStringName;\n\tgadinit.max=STRINGS_MAX_SIZE;\n"
#define SRC_GAD_COLOUR_DATA "\tgadinit.data=&cb;\n"
#define SRC_GAD_TEXTURE_DATA "\tgadinit.data=&tg;\n"
#define SRC_GAD_SCENE_DATA "\tgadinit.data=&sg;\n"
#define SRC_GAD_CREATE "\tgad=CreateGadget(\""
#define SRC_GAD_CREATE_AFTER "\");\n\n"
#define SRC_GAD_COLOURS "\tSetGadgetColours(gad,"
#define SRC_GAD_COLOURS_JOIN ","
#define SRC_GAD_COLOURS_AFTER ");\n"

// --- Tail of the PAGE block --------------------------------------------------------------------
#define SRC_RETURN_WIN "\treturn(win);\n"

// --- Tab links ---------------------------------------------------------------------------------
#define SRC_TAB_FIRST 0x80000000u  // on tab[0] of the first gadget of the tab order

// --- What a save tells the user ----------------------------------------------------------------
#define SRC_SAVE_BAR_TITLE "Saving page"
#define SRC_SAVE_BAR_BACKUP "Backing up document"
#define SRC_SAVE_BAR_UNTITLED "Untitled"
#define SRC_SAVE_ERROR_TITLE "Document Save error"
#define SRC_SAVE_ERROR_BACKUP                                                                      \
    "A backup copy of the document could not be saved. Saving will be aborted. Check file and "   \
    "path destinations, and check there is enough free memory for this operation."
// printf form: the file's path, then the reason that the toolkit gives.
#define SRC_SAVE_ERROR_WRITE                                                                       \
    "The document could not be written to %s: %s. The file that stood there, if any, is "        \
    "unchanged."
// printf form: the backup's path and the reason, as "PATH: REASON".
#define SRC_SAVE_ERROR_BACKUP_COPY                                                                 \
    "A backup copy of the document could not be written to %s. The document is saved without "    \
    "it; check the backup path in the settings."
#define SRC_SAVE_ERROR_STYLE 16
#define SRC_SAVE_ERROR_ITEM_CODE 208

// --- Backups -----------------------------------------------------------------------------------
#define SRC_BACKUP_EXTENSION ".bak"
#define SRC_PATH_SIZE 256  // a path buffer; a path holds at most 255 characters
