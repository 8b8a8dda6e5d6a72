// The gadget catalogue: a tool index and a creation record make a live gadget on a page, with its
// type's defaults and sample contents and the next free item code.
#pragma once
#include "page/records.h"

#define TOOL_FIRST 1
#define TOOL_LAST 17

// What CreateGadgetByTool hands to each creator.
typedef struct T_GADGET_TOOL_ARGS {
    t_Window *window;
    t_Gaget_Handler *gadget_handler;
    i16 x, y;
    i16 base_width, base_height;
    const char *font;
    const char *hover_text;
    u32 flags;  // the caller's flags with the tool's orientation
    i32 min, max, step;
    u16 cursor;
    u32 tab[2];
} T_GADGET_TOOL_ARGS;

// The new gadget, or null for a tool outside 1 to 17.
t_gadget *CreateGadgetByTool(t_Window *window, i16 tool, T_GADGETOBJECTINIT *init);
// The action mask a new gadget of this type starts with: what a finished program's gadget reports.
u32 DesignActionOfType(u16 type);
// The smallest positive item code that no gadget of the list has; 1 for an empty list.
u32 NextFreeItemCode(t_gadget *first);
