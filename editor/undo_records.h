// The page's undo records: the creation of a gadget with a tool, and a gadget's geometry.
#pragma once
#include "page/records.h"

#define UNDO_LABEL_CREATE "Create gadget"
#define UNDO_LABEL_MOVE "Move gadget"
#define UNDO_LABEL_RESIZE "Resize gadget"

// Data of a "Create gadget" record.
typedef struct T_CREATE_UNDO {
    t_gadget *gadget;  // the gadget while it exists; null after undo or once it was deleted
    t_Window *window;  // the page window
    u16 tool;          // given to CreateGadgetByTool
    i16 x, y;          // from the creation record
    i16 base_width, base_height;
    u16 gone;  // the gadget was deleted outside the history: neither undo nor redo acts
} T_CREATE_UNDO;

// Data of a geometry record.
typedef struct T_GEOMETRY_UNDO {
    t_gadget *gadget;       // the gadget, when it wasn't made by a record still on the list
    t_Window *window;       // the page window
    T_RPOS after, before;   // x, y, base width and base height after and before the change
    T_CREATE_UNDO *origin;  // the "Create gadget" record that made the gadget, or null
} T_GEOMETRY_UNDO;

// A zeroed creation record for a new gadget at x, y of the user area, w by h, with the values
// every gadget made with a tool starts with (no hover text, range 0 to 100, step 1).
void FillNewGadgetInit(T_GADGETOBJECTINIT *init, i16 x, i16 y, i16 w, i16 h);
// Puts a "Create gadget" record on the page's list and makes the gadget from `init` with `tool`;
// the gadget becomes the only marked one and the page's drag_gadget. A tool that makes nothing
// leaves a record that does nothing, and a log line.
void AddCreateGadgetUndo(T_WINEDIT_HANDLER *record, T_GADGETOBJECTINIT *init, u16 tool);
// One geometry record for each marked gadget of the list that holds `gadget`. The caller ran
// SnapshotGeometry before the change and RecalcUserSize after it. `flag` is 1 from the alignment
// commands and 0 otherwise; the label doesn't depend on it.
void AddGeometryUndo(T_WINEDIT_HANDLER *record, t_gadget *gadget, u32 flag);
// Puts a "Create gadget" record for a gadget that Paste made: behind its creation record it keeps
// the gadget's GADGET block, from which Redo makes the gadget again as it was pasted (its own
// item code, or a free one when that has been taken since). Undo is UndoCreateGadget.
void AddPasteGadgetUndo(T_WINEDIT_HANDLER *record, t_gadget *gadget);
void UndoCreateGadget(void *data);
void RedoCreateGadget(void *data);
void RedoPasteGadget(void *data);
// A gadget new on the page whose item code another gadget holds gets the smallest free one.
void GiveFreeItemCodeIfTaken(t_Window *window, t_gadget *gadget);
void UndoGeometry(void *data);
void RedoGeometry(void *data);
// The gadget leaves the page outside the history (deleted): records that name it stop acting on
// it, so that a later gadget at the same address is never taken for it.
void ForgetGadgetInHistory(T_WINEDIT_HANDLER *record, t_gadget *gadget);
