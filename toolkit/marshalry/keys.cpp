// Key names: the one table of the keys' names, which menus and the key editor show and which
// scripts and written keys ("ctrl+s", "alt+f4", "escape") are read by.
#include <ctype.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <strings.h>

#include "toolkit.h"

typedef struct T_KEY_NAME {
    u16 code;           // a key code, or a qualifier bit
    const char *name;   // as shown
    const char *alias;  // also read, or null
} T_KEY_NAME;

// clang-format off
// Keys with a name of their own. Read, case and spaces do not count ("pagedown" is Page Down).
static const T_KEY_NAME key_names[] = {
    // key code       name          alias
    {KEY_BACKSPACE, "Backspace", NULL},
    {KEY_TAB,       "Tab",       NULL},
    {KEY_RETURN,    "Return",    "enter"},
    {KEY_ESCAPE,    "Escape",    "esc"},
    {' ',           "Space",     NULL},
    {KEY_UP,        "Up",        NULL},
    {KEY_DOWN,      "Down",      NULL},
    {KEY_LEFT,      "Left",      NULL},
    {KEY_RIGHT,     "Right",     NULL},
    {KEY_HOME,      "Home",      NULL},
    {KEY_END,       "End",       NULL},
    {KEY_PAGE_UP,   "Page Up",   NULL},
    {KEY_PAGE_DOWN, "Page Down", NULL},
    {KEY_INSERT,    "Insert",    NULL},
    {KEY_DELETE,    "Delete",    NULL},
};

// The qualifiers a written key may hold before its key, each followed by '+'.
static const T_KEY_NAME qualifier_names[] = {
    // bit            name     alias
    {QUAL_SHIFT,    "Shift",     NULL},
    {QUAL_CONTROL,  "Ctrl",      "control"},
    {QUAL_ALT,      "Alt",       NULL},
};
// clang-format on

#define KEY_F12 (KEY_F1 + KEY_FUNCTION_COUNT - 1)
#define KEY_CTRL_Z KEY_CTRL('Z')
#define KEY_WORD_SIZE 64  // the longest word of a written key

// Case and spaces aside, the same word.
static int SameKeyWord(const char *word, const char *name)
{
    if (!name)
        return 0;
    for (;;) {
        while (*word == ' ')
            word++;
        while (*name == ' ')
            name++;
        if (tolower((unsigned char)*word) != tolower((unsigned char)*name))
            return 0;
        if (!*word)
            return 1;
        word++, name++;
    }
}

static const T_KEY_NAME *FindKeyName(const T_KEY_NAME *table, size_t count, const char *word)
{
    for (size_t i = 0; i < count; i++)
        if (SameKeyWord(word, table[i].name) || SameKeyWord(word, table[i].alias))
            return &table[i];
    return NULL;
}

static const char *QualifierName(u16 bit)
{
    for (const T_KEY_NAME &q : qualifier_names)
        if (q.code == bit)
            return q.name;
    return "";
}

// Key 0 gives "" (no key); a code without a name gives "Key <code>".
const char *KeyName(u32 key, char *buffer)
{
    buffer[0] = 0;
    for (const T_KEY_NAME &k : key_names)
        if (k.code == key) {
            snprintf(buffer, KEY_NAME_SIZE, "%s", k.name);
            return buffer;
        }
    if (key == 0)
        buffer[0] = 0;
    else if (key >= KEY_F1 && key <= KEY_F12)
        snprintf(buffer, KEY_NAME_SIZE, "F%u", key - KEY_F1 + 1);
    else if (key >= KEY_CTRL_A && key <= KEY_CTRL_Z)
        snprintf(buffer, KEY_NAME_SIZE, "%s+%c", QualifierName(QUAL_CONTROL), (char)('A' + key - KEY_CTRL_A));
    else if (key > ' ' && key < 127)
        snprintf(buffer, KEY_NAME_SIZE, "%c", (char)toupper((int)key));
    else
        snprintf(buffer, KEY_NAME_SIZE, "Key %u", key);
    return buffer;
}

// The key of the last word of a written key: a named key, F1 to F12, or one character; false if none.
static int ReadKeyWord(const char *word, u16 qualifiers, u16 *key)
{
    if (const T_KEY_NAME *k = FindKeyName(key_names, sizeof key_names / sizeof *key_names, word)) {
        *key = k->code;
        return 1;
    }
    if ((word[0] == 'f' || word[0] == 'F') && isdigit((unsigned char)word[1])) {
        int n = atoi(word + 1);
        if (n < 1 || n > KEY_FUNCTION_COUNT)
            return 0;
        *key = (u16)(KEY_F1 + n - 1);
        return 1;
    }
    if (!word[0] || word[1])
        return 0;
    unsigned char c = (unsigned char)word[0];
    // Control with a letter has a code of its own; other keys are their character.
    if ((qualifiers & QUAL_CONTROL) && isalpha(c))
        *key = (u16)KEY_CTRL(toupper(c));
    else
        *key = (u16)tolower(c);
    return 1;
}

int ParseKeyName(const char *name, u16 *key, u16 *qualifiers)
{
    char word[KEY_WORD_SIZE];
    *qualifiers = 0;
    const char *at = name;
    for (;;) {
        const char *plus = strchr(at, '+');
        if (!plus || plus[1] == '\0')
            break;
        size_t length = (size_t)(plus - at);
        if (length == 0 || length >= sizeof(word))
            return 0;
        memcpy(word, at, length);
        word[length] = '\0';
        const T_KEY_NAME *q = FindKeyName(qualifier_names, sizeof qualifier_names / sizeof *qualifier_names, word);
        if (!q)
            return 0;
        *qualifiers |= q->code;
        at = plus + 1;
    }
    snprintf(word, sizeof(word), "%s", at);
    return ReadKeyWord(word, *qualifiers, key);
}
