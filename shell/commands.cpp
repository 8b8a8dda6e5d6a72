// The command table: each command's group, name, help text, item code and default key.
#include "shell/commands.h"

#include <string.h>

//  group     name                   description                                              code                   key
const T_COMMAND_ROW command_table[] = {
    {"File", "Open", "Open a document", CMD_OPEN, KEY_CTRL('O')},
    {"File", "Close", "Close the active document", CMD_CLOSE, 0},
    {"File", "Close all", "Close all open documents", CMD_CLOSE_ALL, 0},
    {"File", "Save", "Save the active document", CMD_SAVE, KEY_CTRL('S')},
    {"File", "Save as", "Save the active document under a new name", CMD_SAVE_AS, KEY_CTRL('W')},
    {"File", "Save all", "Save all open documents", CMD_SAVE_ALL, 0},
    {"File", "Exit", "Exit the program", CMD_EXIT, 0},
    {"Edit", "Undo", "Undo the last operation", CMD_UNDO, KEY_CTRL('Z')},
    {"Edit", "Redo", "Redo the next undo operation", CMD_REDO, KEY_CTRL('Y')},
    {"Edit", "Cut", "Cut the current object to the clipboard", CMD_CUT, KEY_CTRL('X')},
    {"Edit", "Copy", "Copy the current object to the clipboard", CMD_COPY, KEY_CTRL('C')},
    {"Edit", "Paste", "Paste the clipboards contents in the current document", CMD_PASTE, KEY_CTRL('V')},
    {"Edit", "Select All", "Select all the objects in the current document", CMD_SELECT_ALL, KEY_CTRL('A')},
    {"Edit", "Select None", "Select no objects in the current document", CMD_SELECT_NONE, 0},
    {"Edit", "Inverse Selection", "Inverse all the objects selection", CMD_INVERSE_SELECTION, 0},
    {"Edit", "Re-order Item codes", "Reorder item codes, removing holes", CMD_REORDER_ITEM_CODES, 0},
    {"Edit", "Settings", "Quillform Settings", CMD_SETTINGS, KEY_F1 + 9},
    {"Layout", "Horizontal", "Centre object horizontally", CMD_CENTRE_HORIZONTAL, 0},
    {"Layout", "Vertical", "Centre object vertically", CMD_CENTRE_VERTICAL, 0},
    {"Layout", "Size to content", "Size to object to its contents", CMD_SIZE_TO_CONTENT, 0},
    {"Layout", "Flip Horizontal", "Flip selected objects horizontally", CMD_FLIP_HORIZONTAL, 0},
    {"Layout", "Tab order", "Define the tab order of the active document", CMD_TAB_ORDER, 0},
    {"Layout", "Keyboard", "Customise keyboard", CMD_KEYBOARD, 0},
    {"Tools", "Preview", "Try the active document as the finished program", CMD_PREVIEW, KEY_CTRL('R')},
};

const u32 command_count = sizeof(command_table) / sizeof(command_table[0]);

void RegisterCommands(T_APPLICATION *application)
{
    const char *group = NULL;
    for (u32 i = 0; i < command_count; i++) {
        const T_COMMAND_ROW *row = &command_table[i];
        if (!group || strcmp(group, row->group) != 0) {
            group = row->group;
            SetAppCommandGroup(application, group);
        }
        RegisterAppCommand(application, row->name, row->description, row->item_code, row->key, 0);
    }
}
