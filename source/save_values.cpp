// The writer's value forms: decimal, hexadecimal, name list and text statements.
#include <stdio.h>

#include "source/source_format.h"
#include "source/source_writer.h"

void SaveDecimal(const char *before, i32 value)
{
    char number[16];
    snprintf(number, sizeof(number), SRC_DECIMAL, (int)value);
    SavePrint(before);
    SavePrint(number);
    SavePrint(SRC_END_STATEMENT);
}

void SaveHex(const char *before, u32 value)
{
    char number[16];
    snprintf(number, sizeof(number), SRC_HEX, (unsigned)value);
    SavePrint(before);
    SavePrint(number);
    SavePrint(SRC_END_STATEMENT);
}

// Each set bit is looked up alone, from bit 0 up; a bit without a row leaves no trace, so a row
// of two bits is never written.
void SaveNameList(const T_VAL2STRING *table, u32 value)
{
    int written = 0;
    for (int bit = 0; bit < 32; bit++) {
        u32 mask = 1u << bit;
        if (!(value & mask))
            continue;
        const char *name = FindV2SByCode(table, mask);
        if (!name)
            continue;
        if (written)
            SavePrint(SRC_NAME_JOIN);
        SavePrint(name);
        written = 1;
    }
    if (!written)
        SavePrint(SRC_NAME_NONE);
    SavePrint(SRC_END_STATEMENT);
}

void SaveNames(const char *before, const T_VAL2STRING *table, u32 value)
{
    SavePrint(before);
    SaveNameList(table, value);
}

void SaveText(const char *before, const char *text)
{
    SavePrint(before);
    SavePrint(text ? text : "");
    SavePrint(SRC_END_TEXT_STATEMENT);
}
