// GADGET blocks on their own, outside a page file: written for the clipboard, read back onto a page.
#pragma once
#include <string>

#include "page/records.h"

// Appends to `text` one GADGET block for each gadget, in the full form, as the writer writes them.
void WriteGadgetBlocks(t_gadget *const *gadgets, u32 count, std::string *text);
// Whether the text holds a line that starts a GADGET block.
int HoldsGadgetBlock(const char *text);

typedef void (*T_GADGET_MADE_FN)(t_gadget *gadget, void *data);
// Reads the GADGET blocks of `text` onto the page window, with the statement rules of a page file
// (each block starts with what the block before left), and calls `made` for each gadget made, in
// the text's order. A block of a type without a tool makes nothing. Returns the number of blocks.
u32 ReadGadgetBlocks(t_Window *window, const char *text, u32 length, T_GADGET_MADE_FN made, void *data);
