// The writer's value forms: decimal, hexadecimal, name list and text statements, and where the
// writer's text goes: the file being saved, or a text being gathered (the clipboard's blocks).
#include <stdio.h>

#include "source/source_format.h"
#include "source/source_writer.h"

static std::string *gathered;  // the text being gathered, or null: the file

void BeginSourceText(std::string *text)
{
    gathered = text;
}

void EndSourceText(void)
{
    gathered = NULL;
}

void SourcePrint(const char *text)
{
    if (gathered)
        gathered->append(text ? text : "");
    else
        SavePrint(text);
}

void SaveDecimal(const char *before, i32 value)
{
    char number[16];
    snprintf(number, sizeof(number), SRC_DECIMAL, (int)value);
    SourcePrint(before);
    SourcePrint(number);
    SourcePrint(SRC_END_STATEMENT);
}

void SaveHex(const char *before, u32 value)
{
    char number[16];
    snprintf(number, sizeof(number), SRC_HEX, (unsigned)value);
    SourcePrint(before);
    SourcePrint(number);
    SourcePrint(SRC_END_STATEMENT);
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
            SourcePrint(SRC_NAME_JOIN);
        SourcePrint(name);
        written = 1;
    }
    if (!written)
        SourcePrint(SRC_NAME_NONE);
    SourcePrint(SRC_END_STATEMENT);
}

void SaveNames(const char *before, const T_VAL2STRING *table, u32 value)
{
    SourcePrint(before);
    SaveNameList(table, value);
}

void SaveText(const char *before, const char *text)
{
    SourcePrint(before);
    SourcePrint(text ? text : "");
    SourcePrint(SRC_END_TEXT_STATEMENT);
}
