// The command vocabulary of the main window: item codes, the command table and its registration.
#pragma once
#include "page/records.h"

// Item codes of the commands.
enum {
    CMD_OPEN = 256,
    CMD_CLOSE,
    CMD_CLOSE_ALL,
    CMD_SAVE,
    CMD_SAVE_AS,
    CMD_SAVE_ALL,
    CMD_EXIT,
    CMD_UNDO,
    CMD_REDO,
    CMD_CUT,
    CMD_COPY,
    CMD_PASTE,
    CMD_SELECT_ALL,
    CMD_SELECT_NONE,
    CMD_INVERSE_SELECTION,
    CMD_REORDER_ITEM_CODES,
    CMD_SETTINGS,
    CMD_CENTRE_HORIZONTAL,
    CMD_CENTRE_VERTICAL,
    CMD_SIZE_TO_CONTENT,
    CMD_FLIP_HORIZONTAL,
    CMD_TAB_ORDER,
    CMD_KEYBOARD,
    CMD_PREVIEW,  // after the commands of the first version, which keep their codes
};

// Item codes that are no commands.
#define ITEM_OPEN_SELECTOR 1                        // the "Open Source file" selector
#define ITEM_RECENT_OR_DROP DROPPED_FILE_ITEM_CODE  // a recent-file entry, or with ACT_RECEIVE_OBJECT a dropped file
#define ITEM_MAIN_MESSAGE_BOX 32                    // the program's message boxes on the main window
#define ITEM_ABOUT 0x501

typedef struct T_COMMAND_ROW {
    const char *group;
    const char *name;
    const char *description;
    u32 item_code;
    u32 key;  // the toolkit's key code, 0 for none
} T_COMMAND_ROW;

extern const T_COMMAND_ROW command_table[];
extern const u32 command_count;

// Registers every row, group by group, from top to bottom.
void RegisterCommands(T_APPLICATION *application);
