// The source writer: a page window, its gadgets and the settings become the text of a page file.
#pragma once
#include <string>

#include "page/records.h"
#include "source/page_fields.h"

// Writes the page `window` to the file `path` in the form the settings choose (optimised or
// full, type order, backup first). Changes only the tab links, and with the type order the order
// and priorities of the gadget list. True when the file was written. A document that can't be
// read for its backup aborts the save with a message box and leaves the old file untouched; a
// backup copy that can't be written gets a message box naming it and the reason, and the save
// goes on; a file that can't be written leaves the old one whole and a message box naming the
// file and the reason. False in the first and the last case.
int SavePage(t_Window *window, const char *path);

// Works out tab[0] and tab[1] of every gadget of the page from their tab_index.
void BuildTabLinks(t_Window *window);

// The MESSAGE block: a case for each idcmp row set, one for each gadget with an item code.
// `gadget_handler` may be null (no gadget cases).
void SaveMessageFunction(u32 idcmp, const char *plain_name, t_Gaget_Handler *gadget_handler);

// One GADGET block. With `full` false a statement is written only when the gadget's value differs
// from `previous_values`; either way each field of `previous_values` takes the gadget's value.
void SaveGadget(t_gadget *gadget, T_GADGETOBJECTINIT *previous_values, int full);

// Writes the names of the bits of `value` found alone in `table`, joined by '|' ("0" when none),
// then ";\n".
void SaveNameList(const T_VAL2STRING *table, u32 value);

// Where the writer's values and GADGET blocks go: the file begun by InitSaveFile, or, between
// BeginSourceText and EndSourceText, the end of `text`.
void SourcePrint(const char *text);
void BeginSourceText(std::string *text);
void EndSourceText(void);

// The statements of a row of the field tables: the indent, the word, "=", the value, ";\n".
// SaveFieldText writes `value` as it stands; SaveFieldNumber as the row's kind says (false for a
// type without a name, written as a number); SaveFieldString between quotes, or NULL for none;
// SaveFieldColours the two colours of SetGadgetColours.
void SaveFieldText(const T_PAGE_FIELD *field, const char *value);
// The MESSAGE block's case of a gadget: its item code, its name in a comment, and the break.
void SaveItemCase(u32 item_code, const char *name);
int SaveFieldNumber(const T_PAGE_FIELD *field, i64 value);
void SaveFieldString(const T_PAGE_FIELD *field, const char *text);
void SaveFieldColours(const T_PAGE_FIELD *field, u32 back, u32 text);
// The name of a font or bitmap resource, or null.
const char *ResourceName(const void *resource);

// The WINDOW block's statements of the field table: those before the line that creates the
// window, or with `after_create` those behind it.
void SaveWindowStatements(t_Window *window, const char *plain_name, int after_create);
