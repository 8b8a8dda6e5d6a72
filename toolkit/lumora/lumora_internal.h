// What the parts of Lumora call of each other and no user of the toolkit sees.
#pragma once
#include "display/display.h"
#include "toolkit.h"

// Menus (menu*.cpp): what CreateObject and RemoveObject do with a menu handler, the menu bar's
// height, and the painting and input of open menus.
t_Menu *CreateMenuObject(T_MENU_HANDLER *handler, const char *name, T_MENUOBJECTINIT *init);
void RemoveMenuObject(T_MENU_HANDLER *handler, t_Menu *menu);
i16 MenuBarHeight(t_Window *window);  // 0 when the window has no menu bar

// Icons (icons.cpp): the display's standard icon bank; icon 16 is the Save icon.
T_TEXTURE_BANK *MakeStandardIconBank(void);

// Windows (window.cpp): creation from an init record, used by CreateObject; a popup for menus.
t_Window *CreateWindowObject(const char *name, T_WINDOWOBJINIT *init);
// A window made while the input focus stays with the window that had it; null if it can't be made.
t_Window *CreateWindowKeepingFocus(const char *name, T_WINDOWOBJINIT *init);
// A popup (an open menu): a top-level window without frame at x, y, w, h, with WEX_POPUP set,
// drawn above everything and hit first. It doesn't take the input focus; keys still reach its
// handlers first. Remove it with RemoveWindow. Null only when memory runs out.
t_Window *CreatePopupWindow(i16 x, i16 y, i16 w, i16 h, T_MESSAGE_FN message);

// Paints the whole screen and presents it without taking input.
void RepaintScreen(void);
// Paints one top-level window over the screen as it stands and presents it (progress bars).
void RepaintWindowOnly(t_Window *window);

// List entries of list boxes, drop boxes and trees (the gadget types' step): what CreateObject
// makes on a gadget handler when the init record names a parent gadget.
void *CreateListEntry(t_Gaget_Handler *handler, const char *name, T_GADGETOBJECTINIT *init);

// --- The toolkit's private state -----------------------------------------------------------------

// A window as the toolkit allocates it: the public record first, then what only the toolkit reads.
typedef struct T_WINDOW_PRIVATE {
    t_Window window;
    char *own_name;  // the toolkit's copy of the creation name (the owner may repoint name)
    u32 own_name_size;
    u32 message_mask;        // the IDCMP_ mask given at creation; `idcmp` is the owner's to change
    t_Window *focus_before;  // the focus window when this one was made: it gets the focus back
} T_WINDOW_PRIVATE;

#define WINDOW_PRIVATE(w) ((T_WINDOW_PRIVATE *)(w))

// Who took the press in progress: every move and the release go there.
typedef struct T_CAPTURE {
    t_Window *window;    // null: nobody
    t_Handler *handler;  // a frame, menu or owner's handler
    t_gadget *gadget;    // or a gadget
} T_CAPTURE;

typedef struct T_LUMORA_STATE {
    t_List class_handlers;  // the window class and detached-menu class handlers
    t_List removed;         // removed windows, freed when no turn is on the stack
    t_List posted;          // T_POSTED_MESSAGE, delivered in the next turn
    t_List bitmaps;         // RESOURCE_TYPE_BITMAP resources of window backgrounds
    i16 mouse_x, mouse_y;   // the pointer, absolute
    u16 buttons;            // 1 left, 2 right: held now
    u16 qualifiers;         // QUAL_ bits of the input event in hand
    T_CAPTURE capture;
    u16 broken_buttons;  // buttons whose press was broken off: their release is swallowed
    u32 last_press_ms;   // for double clicks
    i16 last_press_x, last_press_y;
    t_Window *last_press_window;
    t_Window *press_window;  // the window under the press in progress
    u16 mouse_image;
    u16 mouse_image_locked;
    u16 border_image_shown;  // the frame or a gadget set the image on a hover
    T_RPOS mouse_limits;
    u16 mouse_limited;
    u32 last_move_ms;               // when the pointer last moved: hover texts wait for rest
    T_TEXTURE_BANK *own_icon_bank;  // made by the toolkit: freed at close
    T_DISPLAY_RECORD record;
    T_SURFACE screen;
    u16 paint_every_background;  // tests: fill each background whole, as the reference to compare
    u16 animating;               // a paint asked for the next turn's repaint (KeepAnimating)
    // What the turn must repaint: the whole screen, or the union of the areas its events changed
    // (LimitRepaint); an event that says nothing may have changed anything.
    u16 repaint_whole;
    T_RPOS repaint_area;  // w 0: none
    u16 event_limited;    // the event in hand called LimitRepaint
    T_RPOS event_area;
    u32 last_paint_ms;           // when the screen was last painted: a rest that ends after it shows
    void (*input_source)(void);  // SetInputSource's: called at the start of each turn
} T_LUMORA_STATE;

extern T_LUMORA_STATE lumora_state;

typedef struct T_POSTED_MESSAGE {
    T_NODE_FIELDS(struct T_POSTED_MESSAGE);
    t_Window *window;
    u32 item_code, msg;
    void *data;
} T_POSTED_MESSAGE;

// Handlers (handlers.cpp). Calls go through a snapshot of the list, each handler checked to be
// still on it before its call, so a handler may delete handlers or windows while it runs.
#define HANDLERS_MAX 64  // handlers of one window
u32 SnapshotHandlers(t_Window *window, t_Handler **out, u32 max);
int HandlerIsOn(t_Window *window, t_Handler *handler);
void ForgetHandler(t_Handler *handler);  // drops every reference the toolkit holds to it

// How long the pointer rests before a hover text shows: over a gadget or title, over a tool.
#define HOVER_DELAY_MS 600
#define TOOLBAR_HOVER_MS 600

// Dialogs (dialog.cpp): a window of a user area of user_w by user_h, centred on its live parent
// (a child of it) or on the screen (top level), kept on the screen, in the dialog colour.
typedef struct T_DIALOG_INIT {
    const char *title;
    t_Window *parent;  // null, or no longer live: a top-level window
    i16 user_w, user_h;
    u32 flags, idcmp;  // WF_CHILD is set or cleared by the parent
    T_MESSAGE_FN message;
    // The handler that holds the dialog's record, a block of handler_size bytes.
    T_HANDLER_INPUT input;
    T_HANDLER_PAINT paint;
    const char *handler_name;
    u32 handler_size;
} T_DIALOG_INIT;
// The frame's place and size in `init`, for a frame of frame_w by frame_h.
void PlaceDialog(T_WINDOWOBJINIT *init, t_Window *parent, i16 frame_w, i16 frame_h);
t_Window *OpenDialogWindow(const T_DIALOG_INIT *dialog);  // the window alone; null if it can't be made
// The dialog's handler block (its window at ->window); null, and no window, when either can't be
// made.
void *OpenDialog(const T_DIALOG_INIT *dialog);

// Windows (window.cpp).
#define WINDOW_TITLE_SIZE 512  // a title with its suffix, as the title bar shows it
#define CASCADE_STEP 16        // pixels between cascade places, down and right
#define CASCADE_STEPS 8        // places before the cascade starts again
t_Window *FocusWindow(void);
void FreeRemovedWindows(void);                                      // at the end of the outermost turn
void FreeWindowNow(t_Window *window);                               // handlers, gadgets, children, the block
void SetWindowFrame(t_Window *window, i16 x, i16 y, i16 w, i16 h);  // children follow a move
void FreeAllWindows(void);
int IsPopup(t_Window *window);
// A dependent window (a message box, a selector, the key editor) but a toolbar: it stands in front
// of everything its top-level window holds, toolbars too, and only the screen cuts it. Painted and
// hit after the window tree, back to front in the tree's order.
int IsFloating(t_Window *window);
#define FLOATING_MAX 32     // floating windows open at once
#define POPUPS_MAX 32       // menus and popups open at once
#define TOP_WINDOWS_MAX 64  // top-level windows told that the display closes
// The live, open floating windows, back to front, into `out`; returns how many.
u32 CollectFloatingWindows(t_Window **out, u32 max);
void BreakPress(void);  // event 33 to the window holding the press, and the capture ends
// Delivers a toolkit message to the message function when the creation mask enables it
// (ACT_MENU_PICK and mouse bits always pass). Removed windows get nothing. Returns its result.
u32 DeliverMessage(t_Window *window, u32 item_code, u32 msg, void *data);
u32 MessageMask(t_Window *window);
void ReleaseBitmap(T_RESOURCE *bitmap);

// The frame (frame.cpp).
T_RPOS TitleRect(t_Window *window);                       // the title bar, absolute; w 0 without one
u16 BorderHandleAt(t_Window *window, i16 x, i16 y);       // 1..8 on a resizable border, else 0
int MinimisedButtonRect(t_Window *window, T_RPOS *rect);  // false unless minimised
void MinimiseWindow(t_Window *window);
void RestoreMinimised(t_Window *window);
void ToggleMaximise(t_Window *window);
void CloseByFrame(t_Window *window);  // the close gadget and Alt+F4
t_Handler *FindHandlerOfKind(t_Window *window, u32 kind);
void PaintFrame(t_Window *window);
void PaintMinimisedButton(t_Window *window);

// Routing (routing.cpp).
void RouteInput(T_INPUT_EVENT *event);
t_Window *WindowAtPoint(i16 x, i16 y, t_Window **minimised);

// Painting (paint.cpp).
void PaintScreen(const T_RPOS *area);
int RectIntersect(T_RPOS *a, const T_RPOS *b);  // a becomes a ∩ b; false when empty

// Gadgets (gadget_handler.cpp, gadget_classes.cpp).
// The functions of a row of the class table, as types that also declare them.
typedef void T_GADGET_DRAW(t_gadget *gadget, int focused);
// Behaviour: the event against the gadget's rectangle changes its state and returns the mouse bit
// to report (0: nothing to report).
typedef u32 T_GADGET_MOUSE(t_gadget *gadget, const T_MOUSE_MSG *msg, const T_RPOS *rect);
// A key given to the gadget: 0 not taken, else GADGET_KEY_TAKEN or'ed with a mouse bit to report.
typedef u32 T_GADGET_KEY(t_gadget *gadget, u16 key, u16 qualifiers);
typedef void T_GADGET_FREE(t_gadget *gadget);
// The type's own belongings from the init record (class_data, a buffer); false when memory runs
// out, and the gadget is then freed unmade.
typedef int T_GADGET_INIT(t_gadget *gadget, const T_GADGETOBJECTINIT *init);
typedef T_GADGET_DRAW *T_GADGET_DRAW_FN;
typedef T_GADGET_MOUSE *T_GADGET_MOUSE_FN;
typedef T_GADGET_KEY *T_GADGET_KEY_FN;
typedef T_GADGET_FREE *T_GADGET_FREE_FN;
typedef T_GADGET_INIT *T_GADGET_INIT_FN;
#define GADGET_KEY_TAKEN 0x10000

typedef struct T_GADGET_CLASS {
    u16 type;
    const char *name;
    T_GADGET_DRAW_FN draw;
    T_GADGET_MOUSE_FN mouse;
    T_GADGET_KEY_FN key;
    T_GADGET_FREE_FN free;  // the class's own belongings (entries), or null
    T_GADGET_INIT_FN init;  // or null
    u8 holds_entries;       // CreateObject gives the T_LIST_DATA in class_data, not the gadget
} T_GADGET_CLASS;

const T_GADGET_CLASS *GadgetClass(u16 type);
// A field's ground: the field colour (the gadget's own when solid, grey when disabled) and its sunk
// border unless it has none.
void DrawFieldBackground(t_gadget *gadget, const T_RPOS &rect);
T_RPOS GadgetRect(t_gadget *gadget);  // screen_x, screen_y, base_width, base_height
int TextBearingType(u16 type);
void PaintGadgets(t_Window *window);
void FreeGadgetsOf(t_Gaget_Handler *handler);
// One mouse event for a gadget, as the routing gives it: its action_fn or its type's behaviour.
void GadgetMouseEvent(t_Window *window, t_gadget *gadget, T_MOUSE_MSG *msg);
// A key for the window's current gadget; true when taken.
int GadgetKeyEvent(t_Window *window, t_gadget *gadget, u16 key, u16 qualifiers);
int DialogWindow(t_Window *window);     // no gadget with an action_fn: Tab walks, focus frame shows
void GadgetTextFont(t_gadget *gadget);  // active font and style of the gadget's text
void GadgetTextFontEnd(void);
#define GSTATE_MARKED_BEFORE 0x100  // gadget_state: marked when the rubber band began

// The mouse events a gadget type reports as they come when its own behaviour has no use for them.
#define GADGET_PASSED_ON (ACT_LMOUSE_DBL | ACT_RMOUSE_DOWN | ACT_RMOUSE_UP)
// The release of a press that a gadget type's behaviour follows (GSTATE_DRAGGING, set at the
// press): clears the bit, and says whether it was set, that is, whether the press began on it.
int EndGadgetPress(t_gadget *gadget);

// Gadget look (gadget_button.cpp): shared by the types' drawing functions.
void DrawGadgetBevel(T_RPOS r, int pressed);
void DrawGadgetFocus(t_gadget *gadget);
u32 GadgetTextColour(t_gadget *gadget);
// Text at x, centred on the box's height, clipped to the box within the clip already set.
void DrawGadgetText(T_RPOS box, i16 x, const char *text, u32 colour);
void DrawGenericGadget(t_gadget *gadget, int focused);
u32 GenericGadgetMouse(t_gadget *gadget, const T_MOUSE_MSG *msg, const T_RPOS *rect);
void DrawButtonGadget(t_gadget *gadget, int focused);
u32 ButtonMouse(t_gadget *gadget, const T_MOUSE_MSG *msg, const T_RPOS *rect);
void DrawMarkLabel(t_gadget *gadget, T_RPOS rect, i16 text_x);  // a check box's or radio's text
// A check box's or radio button's ground (its back colour when solid), and the side of its box:
// CheckBoxSize, no taller than the gadget.
i16 DrawMarkGround(t_gadget *gadget, T_RPOS rect);
u32 ButtonKey(t_gadget *gadget, u16 key, u16 qualifiers);
void DrawTextGadget(t_gadget *gadget, int focused);
void DrawCheckBoxGadget(t_gadget *gadget, int focused);
u32 CheckBoxMouse(t_gadget *gadget, const T_MOUSE_MSG *msg, const T_RPOS *rect);
u32 CheckBoxKey(t_gadget *gadget, u16 key, u16 qualifiers);
i16 CheckBoxSize(void);  // the side of the box, from the system font

// The other types of Lumora (gadget_string.cpp, gadget_radio.cpp, gadget_group.cpp,
// gadget_colour.cpp, gadget_box.cpp).
int StringInit(t_gadget *gadget, const T_GADGETOBJECTINIT *init);
void DrawStringGadget(t_gadget *gadget, int focused);
u32 StringMouse(t_gadget *gadget, const T_MOUSE_MSG *msg, const T_RPOS *rect);
u32 StringKey(t_gadget *gadget, u16 key, u16 qualifiers);
void StringFree(t_gadget *gadget);
// What a field's paint does first: a field left since it was last painted reports ACT_LMOUSE_UP.
// An owner that doesn't paint a field (scrolled out of a combo's view) calls it in its stead.
void NoteStringFocus(t_gadget *gadget);
void DrawRadioGadget(t_gadget *gadget, int focused);
u32 RadioMouse(t_gadget *gadget, const T_MOUSE_MSG *msg, const T_RPOS *rect);
u32 RadioKey(t_gadget *gadget, u16 key, u16 qualifiers);
void DrawGroupGadget(t_gadget *gadget, int focused);
void DrawColourGadget(t_gadget *gadget, int focused);
void DrawBoxGadget(t_gadget *gadget, int focused);  // texture, scene and user gadgets

// Gadgets inside combos (knobkit/combo.cpp). A combo's children are placed from its inside,
// scrolled by its offsets, and found under a point through it.
void PlaceComboGadget(t_gadget *gadget);  // a child from its combo; a combo's children and bars
// The gadget that takes a point on `gadget`: null when it takes none (hidden, outside, a
// passive group of a dialog), a combo's child, or the gadget itself.
t_gadget *HitGadget(t_gadget *gadget, i16 x, i16 y);
// The wheel over a combo's child that has no use for it scrolls the combo.
t_gadget *WheelTarget(t_gadget *gadget, const T_MOUSE_MSG *msg);

// Message boxes (msgbox.cpp): its glyphs.
void DrawInfoGlyph(i16 x, i16 y, i16 size, int kind);  // kind: 1 error, 2 information, 3 question
// The whole text of a message box, or null when the window is none.
const char *MessageBoxText(t_Window *box);
void ScreenResized(void);                  // toolkit.cpp: the framebuffer and the display's size follow the screen
void PaintWindowBitmap(t_Window *window);  // window_bitmap.cpp
void CallMouseMoveHooks(void);             // loop.cpp: after a mouse move
void SetPointer(i16 x, i16 y);             // mouse.cpp: the toolkit's pointer, clamped to the limits
void ClampToLimits(i16 *x, i16 *y);
int TabStop(t_gadget *g);  // tab_walk.cpp: whether the tab walk stops at the gadget
