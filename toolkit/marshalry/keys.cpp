// Key names: the text that menus and the key editor show for a key code.
#include <ctype.h>
#include <stdio.h>

#include "toolkit.h"

// Keys with a name of their own.
static const T_VAL2STRING key_names[] = {
    // key code        name
    {KEY_BACKSPACE, "Backspace"},
    {KEY_TAB, "Tab"},
    {KEY_RETURN, "Return"},
    {KEY_ESCAPE, "Escape"},
    {' ', "Space"},
    {KEY_UP, "Up"},
    {KEY_DOWN, "Down"},
    {KEY_LEFT, "Left"},
    {KEY_RIGHT, "Right"},
    {KEY_HOME, "Home"},
    {KEY_END, "End"},
    {KEY_PAGE_UP, "Page Up"},
    {KEY_PAGE_DOWN, "Page Down"},
    {KEY_INSERT, "Insert"},
    {KEY_DELETE, "Delete"},
    {0, ""},
};

#define KEY_F12 (KEY_F1 + 11)
#define KEY_CTRL_Z KEY_CTRL('Z')
#define KEY_NAME_SIZE 16  // the callers' buffers hold at least this many bytes

// Key 0 gives "" (no key); a code without a name gives "Key <code>".
const char *KeyName(u32 key, char *buffer) {
    const char *name = FindV2SByCode(key_names, key);
    if (name)
        snprintf(buffer, KEY_NAME_SIZE, "%s", name);
    else if (key == 0)
        buffer[0] = 0;
    else if (key >= KEY_F1 && key <= KEY_F12)
        snprintf(buffer, KEY_NAME_SIZE, "F%u", key - KEY_F1 + 1);
    else if (key >= KEY_CTRL_A && key <= KEY_CTRL_Z)
        snprintf(buffer, KEY_NAME_SIZE, "Ctrl+%c", (char)('A' + key - KEY_CTRL_A));
    else if (key > ' ' && key < 127)
        snprintf(buffer, KEY_NAME_SIZE, "%c", (char)toupper((int)key));
    else
        snprintf(buffer, KEY_NAME_SIZE, "Key %u", key);
    return buffer;
}
