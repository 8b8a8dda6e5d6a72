// Texts: owned strings, small in-place edits, hexadecimal numbers and the value-to-text tables.
#include <ctype.h>
#include <string.h>

#include "ostrand_internal.h"

// A null text frees the string and gives null. The copy is made before the old text goes, so a
// string may be given its own text.
char *AllocString(const char *text, STRING *string)
{
    if (!text) {
        FreeString(string);
        return NULL;
    }
    u32 size = (u32)strlen(text) + 1;
    char *copy = (char *)AllocMemC(size);
    if (!copy)
        return string->text;
    memcpy(copy, text, size);
    FreeString(string);
    string->text = copy;
    string->size = size;
    return copy;
}

void FreeString(STRING *string)
{
    if (!string)
        return;
    FreeMem(string->text, string->size);
    string->text = NULL;
    string->size = 0;
}

char *RemoveSpacesFromString(char *text)
{
    if (!text)
        return text;
    char *to = text;
    for (char *from = text; *from; from++)
        if (*from != ' ')
            *to++ = *from;
    *to = 0;
    return text;
}

// Prefixes of the toolkit's symbolic names, dropped from the front of a name (repeatedly, for a
// name that stacks them) before it becomes a label.
// clang-format off
static const char *const symbol_prefixes[] = {
    "IDCMP_", "ACT_", "WF_", "WSF_", "GADGET_FLAGS_", "GADGET_TYPE_", "GADGET_MARK_",
    "MENU_FLAG_", "MENU_KIND_", "QUAL_", "KEY_", "RESOURCE_TYPE_",
};
// clang-format on

char *MakeReadable(char *text)
{
    if (!text)
        return text;
    char *start = text;
    for (int dropped = 1; dropped;) {
        dropped = 0;
        for (const char *prefix : symbol_prefixes) {
            size_t length = strlen(prefix);
            if (strncmp(start, prefix, length) == 0 && start[length]) {
                start += length;
                dropped = 1;
                break;
            }
        }
    }
    memmove(text, start, strlen(start) + 1);
    for (char *c = text; *c; c++) {
        if (*c == '_')
            *c = ' ';
        else
            *c = (char)(c == text ? toupper((unsigned char)*c) : tolower((unsigned char)*c));
    }
    return text;
}

u32 CalcHexNumber(const char *text)
{
    u32 value = 0;
    for (; text && isxdigit((unsigned char)*text); text++) {
        int c = tolower((unsigned char)*text);
        value = value * 16 + (u32)(c <= '9' ? c - '0' : c - 'a' + 10);
    }
    return value;
}

// Both walks stop at the terminator row, the first of value 0.
const char *FindV2SByCode(const T_VAL2STRING *table, u32 value)
{
    for (const T_VAL2STRING *row = table; row && row->value; row++)
        if (row->value == value)
            return row->text;
    return NULL;
}

u32 FindV2SByString(const T_VAL2STRING *table, const char *text)
{
    if (!text || !*text)
        return 0;
    for (const T_VAL2STRING *row = table; row && row->value; row++)
        if (row->text && strcmp(row->text, text) == 0)
            return row->value;
    return 0;
}
