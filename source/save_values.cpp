// The writer's statements and value forms: a row of the field tables with its value as decimal,
// hexadecimal, name list or text; the WINDOW block's statements; and where the writer's text goes:
// the file being saved, or a text being gathered (the clipboard's blocks).
#include <string.h>

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

// A statement's line as it is made: the head of the row, then the value and the end, printed in
// one piece where it fits.
#define STATEMENT_SIZE 96
typedef struct T_STATEMENT {
    char text[STATEMENT_SIZE];
    size_t length;
} T_STATEMENT;

static void BeginStatement(T_STATEMENT *line, const T_PAGE_FIELD *field)
{
    const char *head = FieldHead(field, &line->length);
    memcpy(line->text, head, line->length + 1);
}

// Appends `length` characters of `text` to the line, or prints what the line holds and then
// `text` when they don't fit.
static void AppendBytes(T_STATEMENT *line, const char *text, size_t length)
{
    if (line->length + length < STATEMENT_SIZE) {
        memcpy(line->text + line->length, text, length);
        line->length += length;
        line->text[line->length] = '\0';
        return;
    }
    SourcePrint(line->text);
    SourcePrint(text);
    line->length = 0;
    line->text[0] = '\0';
}

static void Append(T_STATEMENT *line, const char *text)
{
    AppendBytes(line, text, strlen(text));
}

// The number forms, made by hand: printf is the most of a save's time. The same forms as SRC_HEX
// and SRC_DECIMAL: lower-case digits behind the prefix, a minus sign, no leading zeros.
static void AppendHex(T_STATEMENT *line, u32 value)
{
    static const char digits[] = "0123456789abcdef";
    char number[16];
    size_t at = sizeof(number);
    number[--at] = '\0';
    do {
        number[--at] = digits[value & 0xF];
        value >>= 4;
    } while (value);
    Append(line, SRC_HEX_PREFIX);
    AppendBytes(line, number + at, sizeof(number) - 1 - at);
}

static void AppendDecimal(T_STATEMENT *line, i32 value)
{
    char number[16];
    size_t at = sizeof(number);
    number[--at] = '\0';
    u32 magnitude = value < 0 ? 0u - (u32)value : (u32)value;
    do {
        number[--at] = (char)('0' + magnitude % 10);
        magnitude /= 10;
    } while (magnitude);
    if (value < 0)
        number[--at] = '-';
    AppendBytes(line, number + at, sizeof(number) - 1 - at);
}

static void EndStatement(T_STATEMENT *line, const char *end)
{
    Append(line, end);
    SourcePrint(line->text);
}

void SaveItemCase(u32 item_code, const char *name)
{
    T_STATEMENT line = {SRC_CASE, sizeof(SRC_CASE) - 1};
    AppendHex(&line, item_code);
    Append(&line, SRC_CASE_COMMENT);
    Append(&line, name);
    Append(&line, SRC_COMMENT_END);
    EndStatement(&line, SRC_BREAK);
}

void SaveFieldText(const T_PAGE_FIELD *field, const char *value)
{
    T_STATEMENT line;
    BeginStatement(&line, field);
    Append(&line, value);
    EndStatement(&line, SRC_END_STATEMENT);
}

int SaveFieldNumber(const T_PAGE_FIELD *field, i64 value)
{
    T_STATEMENT line;
    BeginStatement(&line, field);
    const char *name = field->kind == FIELD_TYPE ? FindV2SByCode(field->names, (u32)value) : NULL;
    switch (field->kind) {
    case FIELD_NAMES:  // the list prints its own end
        SourcePrint(line.text);
        SaveNameList(field->names, (u32)value);
        return 1;
    case FIELD_HEX:
    case FIELD_AREA_COLOUR:
        AppendHex(&line, (u32)value);
        break;
    case FIELD_TYPE:  // the type's name; a type without one is written as a number
        if (name)
            Append(&line, name);
        else
            AppendDecimal(&line, (i32)value);
        break;
    default:  // decimal
        AppendDecimal(&line, (i32)value);
        break;
    }
    EndStatement(&line, SRC_END_STATEMENT);
    return field->kind != FIELD_TYPE || name;
}

void SaveFieldString(const T_PAGE_FIELD *field, const char *text)
{
    if (!text) {
        SaveFieldText(field, SRC_NULL);
        return;
    }
    T_STATEMENT line;
    BeginStatement(&line, field);
    Append(&line, SRC_QUOTE);
    Append(&line, text);
    EndStatement(&line, SRC_END_TEXT_STATEMENT);
}

void SaveFieldColours(const T_PAGE_FIELD *field, u32 back, u32 text)
{
    T_STATEMENT line;
    BeginStatement(&line, field);
    AppendHex(&line, back);
    Append(&line, SRC_GAD_COLOURS_JOIN);
    AppendHex(&line, text);
    EndStatement(&line, SRC_GAD_COLOURS_AFTER);
}

// The name of a font or bitmap resource, or null.
const char *ResourceName(const void *resource)
{
    return resource ? ((const T_RESOURCE *)resource)->name : NULL;
}

void SaveWindowStatements(t_Window *window, const char *plain_name, int after_create)
{
    for (const T_PAGE_FIELD *field = window_fields; field->word; field++) {
        if (((field->flags & FIELD_AFTER_CREATE) != 0) != (after_create != 0))
            continue;
        switch (field->kind) {
        case FIELD_RESOURCE:  // the bitmap's name, or NULL
            SaveFieldString(field, ResourceName(PlacePointer(window, field->object)));
            break;
        case FIELD_MESSAGE: {  // the page's own message function
            T_STATEMENT line;
            BeginStatement(&line, field);
            Append(&line, plain_name);
            Append(&line, SRC_MESSAGE_SUFFIX);
            EndStatement(&line, SRC_END_STATEMENT);
            break;
        }
        case FIELD_NULL:  // nothing the program must give
            SaveFieldText(field, SRC_NULL);
            break;
        case FIELD_AREA_COLOUR:  // only a colour of the page's own
            if (window->UserAreaColour != DISPLAY_RECORD->default_area_colour)
                SaveFieldNumber(field, PlaceValue(window, field->object));
            break;
        default:  // a number or a name list
            SaveFieldNumber(field, PlaceValue(window, field->object));
            break;
        }
    }
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
