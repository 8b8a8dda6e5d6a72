// What the property dialogs share: their row height, the record a dialog keeps behind its
// user_data, the place of a dialog on the screen, the texts it reads, and the value of a number field.
#pragma once
#include "page/records.h"

// Where and how a dialog's window opens: one row of each dialog.
typedef struct T_DIALOG_FRAME {
    const char *title;
    i16 x, y, w, h;  // from the page's user area
    u32 flags;
    u32 idcmp;
    u16 icon;
    T_MESSAGE_FN message;
} T_DIALOG_FRAME;

// Opens the dialog's window as a child of the page, with a gadget handler; null when it can't be
// made (nothing is left open then).
t_Window *OpenDialogWindow(t_Window *page, const T_DIALOG_FRAME *frame, struct T_TEXTURE_BANK *icon_bank);

// A zeroed creation record of a dialog's gadget with the values that differ between its gadgets.
T_GADGETOBJECTINIT DialogGadgetInit(u16 type, u32 item_code, T_RPOS rect, u32 flags, u32 action);
// A gadget of a dialog from the values that differ between its gadgets; the gadget, or null.
t_gadget *AddDialogGadget(t_Gaget_Handler *handler, const char *text, u16 type, u32 item_code, i16 x, i16 y, i16 width,
                          i16 height, u32 flags, u32 action);
// A combo "Combo" of the dialog at `rect` that reports ACT_LMOUSE_UP, with what CreateObject gave
// for it and its gadget; when both were made, the gadgets made next go into it (until
// RestoreGadgetList) and the result is true.
int AddDialogCombo(t_Window *dialog, u32 item_code, T_RPOS rect, u32 flags, struct T_TEXTURE_BANK *icon_bank,
                   void **list, t_gadget **gadget);

// The height of one row of controls: the display's system font and 4.
i16 DialogRowHeight(void);

// Allocates a cleared record of `size` bytes as the window's user_data. A small handler keeps it:
// when the window goes without its close step (its gadget was deleted, its page closed), the
// record is freed with the window. Null when memory runs out (the window is then left alone).
void *NewDialogRecord(t_Window *window, u32 size);
// The close step's release: frees the record and clears user_data. A null record is ignored.
void FreeDialogRecord(t_Window *window);

// Moves a dialog so that it stands wholly inside the area where its page's windows show (the
// main window's user area), as far as it fits.
void KeepDialogInView(t_Window *dialog);

// The place of a dialog relative to its parent's user area, and back: how a dialog's place is
// stored across runs.
void DialogRectOf(t_Window *dialog, T_RPOS *rect);
void PlaceDialog(t_Window *dialog, const T_RPOS *rect);

// The value of a number field: leading digits with an optional sign after leading blanks, 0 if
// there are none.
i32 FieldValue(const char *text);

// Removes every child window of a dialog (its colour selectors) before the dialog's record goes.
void RemoveChildWindows(t_Window *window);
