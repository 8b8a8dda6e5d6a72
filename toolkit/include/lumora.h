// Lumora: windows, the display, message delivery, gadget handlers and gadgets, menus, toolbars,
// undo lists, message boxes, progress bars and the mouse.
#pragma once
#include "ostrand.h"

struct T_FONT;
struct T_TEXTURE_BANK;
struct t_Menu;
struct t_gadget;
struct t_Window;

// --- Input messages ------------------------------------------------------------------------------
// A mouse event: x, y absolute (the coordinates of a window's mouse_x, user_x and a gadget's
// screen_x); keyboard_flags holds the qualifiers (QUAL_), and QUAL_GADGET_KEY when the message is
// a key given to a gadget, with the key code in mouse_action; mouse_action one ACT_ mouse value.
typedef struct T_MOUSE_MSG {
    i16 x, y;
    u16 keyboard_flags;
    u16 mouse_action;
} T_MOUSE_MSG;

typedef struct T_KEY_MSG {
    u16 key_code;    // the toolkit's key code
    u16 qualifiers;  // QUAL_ bits
} T_KEY_MSG;

typedef u32 (*T_MESSAGE_FN)(struct t_Window *window, u32 item_code, u32 msg, void *data);
typedef u32 (*T_ACTION_FN)(struct t_Window *window, struct t_gadget *gadget, T_MOUSE_MSG *msg);
typedef void (*T_FREE_FN)(void *any, struct t_gadget *gadget);
typedef void (*T_MOUSE_MOVE_FN)(struct t_Window *window, void *data);

// --- Windows -------------------------------------------------------------------------------------
typedef struct t_Window {
    T_NODE_FIELDS(struct t_Window);      // name: the title
    u16 state;                           // WINDOW_STATE_OPEN while it stands as a window
    i16 x, y, w, h;                      // frame, absolute
    i16 user_x, user_y, user_w, user_h;  // user area, absolute
    t_List handlers;
    union {
        t_List children;               // child windows, back to front
        struct t_Window *first_child;  // the first child; a walk stops at the tail mark
    };
    void *user_data;
    struct t_Window *parent;
    struct T_TEXTURE_BANK *icon_bank;
    T_RESOURCE *bitmap;  // background bitmap, or null; its name is the file name
    T_MOUSE_MOVE_FN mouse_move_fn;
    void *mouse_move_data;
    const char *title_suffix;  // shown behind the name in the title bar, or null
    u32 idcmp;                 // the message mask
    u32 flags;                 // WF_ bits
    u32 state_flags;           // WSF_ bits and the owner's bits
    u32 extra_flags;
    u32 UserAreaColour;
    u16 border_size;
    i16 icon;
    i16 mouse_x, mouse_y;  // last mouse position, absolute
    u16 cascade_index;     // the next child's cascade place, 16 pixels a step
    u16 cascade_start;     // the first cascade place: clear of a toolbar in the window
    // The toolkit's own:
    T_MESSAGE_FN message;
    char *hover_title;    // the title bar's hover text (owned copy), or null
    u16 title_height;     // 0 without a title bar
    T_RPOS restore_rect;  // the place before maximising
    u32 turn_depth_at_removal;
} t_Window;

typedef t_Window T_WINDOW;

typedef struct T_WINDOWOBJINIT {
    i16 x, y, w, h;  // the frame; for a child, x and y relative to the parent's user area
    u32 flags;
    u32 idcmp;
    u16 icon;
    struct T_TEXTURE_BANK *icon_bank;
    const char *bitmap;  // the file name of a background bitmap, or null
    T_MESSAGE_FN message;
    t_Window *parent;
} T_WINDOWOBJINIT;

// --- The display ---------------------------------------------------------------------------------
typedef struct T_DISPLAY_RECORD {
    u32 window_colour;
    u32 default_area_colour;
    u32 dialog_colour;
    u32 rubber_box_colour;
    u32 handle_colour;
    u32 number_back_colour;
    u32 number_text_colour;
    struct T_FONT *system_font;
    struct T_TEXTURE_BANK *icon_bank;  // the display's standard icon bank
    u16 border_size;
    // The toolkit's own look:
    u16 title_height;
    u32 frame_colour, frame_light_colour, frame_dark_colour;
    u32 title_colour, title_inactive_colour, title_text_colour;
    u32 gadget_colour, gadget_text_colour, gadget_light_colour, gadget_dark_colour;
    u32 field_colour, select_colour, select_text_colour, disabled_text_colour;
    u32 desktop_colour;
    u32 hover_back_colour;
} T_DISPLAY_RECORD;

// The display's window class handler, the first argument of CreateObject for windows.
typedef struct T_WINDOW_CLASS {
    t_Handler head;
    u32 refresh_request;       // set where a change needs all windows redrawn
    t_Window *current_window;  // the window with the input focus
    t_List windows;            // the top-level windows, back to front
} T_WINDOW_CLASS;

typedef struct T_DISPLAY {
    T_DISPLAY_RECORD *record;
    T_WINDOW_CLASS *window_class;
    t_Handler *detached_menu_class;
    i16 width, height;
} T_DISPLAY;

#define LUMORA_MAX_DISPLAYS 2

typedef struct T_LUMORA_BASE {
    u16 current_display;
    T_DISPLAY displays[LUMORA_MAX_DISPLAYS];
    u32 turn_depth;  // how many RefreshHandlers turns stand on the stack
    u32 time_ms;     // the display's clock at the start of the turn
    u32 running;     // nonzero until the session ends
} T_LUMORA_BASE;

extern T_LUMORA_BASE *_LumoraBase;

#define CURRENT_DISPLAY (&_LumoraBase->displays[_LumoraBase->current_display])
#define DISPLAY_RECORD (CURRENT_DISPLAY->record)

// extra_flags bits of the toolkit's own.
// A popup (an open menu): drawn above all other windows, no frame; while one is open, a press
// outside it goes first to its handlers as event HANDLER_EVENT_OUTSIDE, and a nonzero answer takes
// the press.
#define WEX_POPUP 0x100

// The data of ACT_RECEIVE_OBJECT with item code DROPPED_FILE_ITEM_CODE: a file dropped from the
// desktop.
#define DROPPED_FILE_ITEM_CODE 2
typedef struct T_DROPPED_FILE {
    char *directory;  // without a trailing separator
    char *name;       // the file name
} T_DROPPED_FILE;

// --- Window operations ---------------------------------------------------------------------------
t_Window *ISetActiveWindow(t_Window *window);  // to the front and the input focus
void WindowToFront(t_Window *window);
void WindowToBack(t_Window *window);
// Marks the window (WSF_REMOVED), unlinks it and its children; handlers get event 1 and gadgets
// their free_fn when the toolkit frees it, once no loop turn is on the stack.
void RemoveWindow(t_Window *window);
void ResizeWindow(t_Window *window, T_RPOS *rect);
T_RPOS UserArea(const t_Window *window);        // the user area, absolute
void ResizeWindowToContents(t_Window *window);  // the frame around the gadgets, with a margin
void RecalcUserSize(t_Window *window);          // user area from the frame, then the gadgets' places
u32 SendWindowMessage(t_Window *window, u32 item_code, u32 msg, void *data);  // direct call
// Queues a message for delivery in the next turn when the window's mask enables it.
void PostWindowMessage(t_Window *window, u32 item_code, u32 msg, void *data);
void SetWindowBitmap(t_Window *window, const char *name);  // null or "" clears
void SetTitleBarHoverTitle(t_Window *window, const char *text);
t_Handler *NewBorderHandler(t_Window *window);
t_Handler *NewTitleBarHandler(t_Window *window);
int IsWindowLive(t_Window *window);                              // not removed
t_Window *FindWindowByName(t_Window *parent, const char *name);  // null parent: top level

// --- Mouse ---------------------------------------------------------------------------------------
void GetMouseXY(i16 *x, i16 *y);
void SetMouseXY(i16 x, i16 y);
void SetMouseLimits(T_RPOS *rect);  // the pointer stays inside
void SetMouseImage(u16 image);
void SetBorderMouseImage(u16 handle);  // 1 top, 2 bottom, 3 left, 4 right, 5..8 the corners
void LockMouseImage(void);
void UnLockMouseImage(void);
u16 GetKeyboardFlags(void);
void GetPhysicalScreenRes(T_RPOS *rect);
// Normalises a rectangle given by two corners (x, y, x2, y2 in w, h) into x, y, w, h.
void NormArea(T_RPOS *rect);
int PointBoxColl(i16 x, i16 y, T_RPOS *box);
// Resizes `rect` so that the side or corner named by `handle` goes to (mx, my), keeping at least
// min_w by min_h; a side moved past the opposite one stops there.
void GenericResize(T_RPOS *rect, i16 min_w, i16 min_h, i16 mx, i16 my, u16 handle);

// --- Gadgets -------------------------------------------------------------------------------------
typedef struct t_gadget {
    T_NODE_FIELDS(struct t_gadget);  // name: the gadget's text
    i16 x, y;                        // position as saved
    i16 base_width, base_height;
    i16 pos_x, pos_y;  // working position in the user area (from the right or bottom with those flags)
    i16 pos_width, pos_height;
    i16 screen_x, screen_y;  // absolute
    i16 prev_x, prev_y, prev_width, prev_height;
    char *hover_text;  // the toolkit's own copy, or null
    struct T_TEXTURE_BANK *icon_bank;
    T_RESOURCE *font;  // null: the system font
    T_FREE_FN free_fn;
    T_ACTION_FN action_fn;
    uintptr_t class_data;  // by type: a record's address, or a check box's state 0 or 1
    void *user_data;
    u32 tab[2];
    u32 back_colour, text_colour;
    u32 live_item_code;
    u32 live_flags;
    u16 type;
    u16 cursor;
    u32 action;
    u32 saved_action;
    u32 item_code;
    u32 flags;
    u32 tab_index;
    // The toolkit's own:
    u32 live_action;  // the mouse mask that the gadget reports
    struct t_Menu *menu_owner;
    struct t_Gaget_Handler *handler;
    t_Window *window;
    u16 icon;
    u16 gadget_state;               // GSTATE_ bits
    i32 value;                      // a slider's or scroll bar's value, a string's cursor
    i32 select_from;                // a string's selection anchor
    i32 scroll;                     // first visible character / entry
    i16 max_chars;                  // a string's maximum length
    void *data;                     // the init record's data
    struct t_gadget *parent_combo;  // the combo that holds the gadget, or null
    char *own_name;                 // the toolkit's copy of the creation name (the owner may repoint name)
} t_gadget;

typedef t_gadget T_GADGET;

#define GSTATE_PRESSED 0x1
#define GSTATE_HOVER 0x2
#define GSTATE_OPEN 0x4      // a drop box's list is open
#define GSTATE_DRAGGING 0x8  // a slider's or scroll bar's mark is dragged
#define GSTATE_FOCUS 0x10

typedef struct t_Gaget_Handler {
    t_Handler head;
    union {
        t_List gadget_list;
        t_gadget *first_gadget;
    };
    t_List *list_in_use;  // where new gadgets go: the gadget list, or a combo's
    t_gadget *current_gadget;
    t_gadget *pressed_gadget;  // the gadget that took the press in progress
    t_gadget *hover_gadget;
    u32 hover_since_ms;
    t_List *saved_list;  // the list in use before SaveSetGadgetList
} t_Gaget_Handler;

typedef t_Gaget_Handler T_GADGET_HANDLER;

typedef struct T_GADGETOBJECTINIT {
    i16 x, y;
    u16 type;
    i16 base_height, base_width;
    i16 mark_height, mark_width;
    u16 icon;
    u8 cursor;
    u32 item_code;
    i32 init_val, min, max, step;
    u32 flags;
    u32 action;
    struct t_Menu *menu_owner;
    struct T_TEXTURE_BANK *icon_bank;
    u32 tab[2];
    const char *hover_text;
    void *data;
    void *parent_gadget;  // with a list box, drop box or tree: the object that holds the entries
    const char *font;
} T_GADGETOBJECTINIT;

t_Gaget_Handler *NewGadgetHandler(t_Window *window);
t_Gaget_Handler *FindGadgetHandler(t_Window *window);
t_gadget *GetCurrentGadget(t_Window *window);
void SetCurrentGadget(t_Window *window, t_gadget *gadget);
void SetGadgetColours(t_gadget *gadget, u32 back_colour, u32 text_colour);
void SetGadgetHover(t_gadget *gadget, const char *text);  // keeps its own copy; null clears
// Unlinks nothing: takes the gadget out of the handler's care (current, pressed, hover) and calls
// its free_fn. The caller unlinks it with SubNode and frees it.
void RemoveGadget(t_gadget *gadget, t_Gaget_Handler *handler);
void RecalcGadgetPosition(t_Window *window, t_gadget *gadget, u32 flags, i16 dx, i16 dy);
u32 CountMarkedGadgets(t_gadget *any);
void ClearAllMarkedGadgets(t_gadget *any);
void MarkGadgetsInArea(t_gadget *first, T_RPOS *area, u32 first_time);
// Searches the list in use and, inside combos, their gadgets, by live item code.
t_gadget *FindGadgetByItemCode(t_Window *window, u32 item_code);
// The topmost visible gadget at the point, or null. A group is a frame whose inside is free, or,
// when it has an action_fn (an editor's), is found where no other gadget stands.
t_gadget *GadgetAtPoint(t_Window *window, i16 x, i16 y);
// A string gadget's text ("" for another type); a new text, cut to the field's length, with the
// cursor at its end.
const char *GetStringGadgetText(t_gadget *gadget);
void SetStringGadgetText(t_gadget *gadget, const char *text);
// The top bit of a gadget's tab[0]: the gadget heads its window's tab chain.
#define TAB_LINK_FIRST 0x80000000u
// Tab (or Shift+Tab, `backwards`): the next gadget that takes the focus becomes the current one.
// From a gadget on the window's tab chain (tab[1] names the gadget after, tab[0] the one before, by
// item code) the walk follows the chain, passing over gadgets that are hidden, disabled, labels or
// frames; off the chain, or where it leads nowhere, it goes in list order and into shown combos,
// round at the ends.
void TabToNextGadget(t_Window *window, int backwards);
// The gadget that Tab from nowhere makes current: the first that takes the focus along the tab
// chain from its head, or else the first stop in list order; null when none takes it. Changes
// nothing.
t_gadget *FirstTabGadget(t_Window *window);
// The keys that every gadget knows, for a gadget's action function to pass on: Tab and Shift+Tab,
// and the arrow keys, move the current gadget to the next or previous one in list order. True
// when the key was one of them.
int DoDefaultGadgetKeys(t_Window *window, t_gadget *gadget, T_MOUSE_MSG *msg);
// Frees a gadget that was unlinked: its free_fn, its entries, its hover copy, its block.
void FreeGadget(t_gadget *gadget);

// --- Message boxes and progress bars -------------------------------------------------------------
// A message box's style: the buttons in the low four bits, the glyph in the bits above them.
#define MSGBOX_BUTTONS_MASK 0x0F
#define MSGBOX_BUTTONS_OK 0x00             // "OK" alone
#define MSGBOX_BUTTONS_YES_NO_CANCEL 0x03  // "Yes" (OK), "No" (ABORT), "Cancel" (CANCEL)
#define MSGBOX_GLYPH_ERROR 16
#define MSGBOX_GLYPH_QUESTION 32
#define MSGBOX_GLYPH_INFO 64
#define MSGBOX_ERROR (MSGBOX_GLYPH_ERROR | MSGBOX_BUTTONS_OK)                   // 16
#define MSGBOX_INFO (MSGBOX_GLYPH_INFO | MSGBOX_BUTTONS_OK)                     // 64
#define MSGBOX_QUESTION (MSGBOX_GLYPH_QUESTION | MSGBOX_BUTTONS_YES_NO_CANCEL)  // 35
// Opens a message box as a child of `parent` and returns at once; the answer reaches the parent
// with `item_code`. Styles: MSGBOX_ERROR, MSGBOX_INFO ("OK"); MSGBOX_QUESTION: "Yes" (OK), "No"
// (ABORT), "Cancel" (CANCEL). Enter is the first button, Escape Cancel (or OK).
t_Window *NewMsgBox(t_Window *parent, const char *title, const char *text, u32 style, u32 item_code);
// The same with the buttons' labels given, in the style's order; a null `labels`, or a null
// label, keeps the style's own.
t_Window *NewMsgBoxLabels(t_Window *parent, const char *title, const char *text, u32 style, u32 item_code,
                          const char *const *labels);
void SetMessageBoxIcon(t_Window *box, struct T_TEXTURE_BANK *bank, u16 icon);

typedef struct T_PROGRESS_BAR T_PROGRESS_BAR;
T_PROGRESS_BAR *NewProgressBar(const char *title, u32 steps);
void UpdateProgressBar(T_PROGRESS_BAR *bar, u32 step, const char *text);
void KillProgressBar(T_PROGRESS_BAR *bar);

// --- Undo lists ----------------------------------------------------------------------------------
typedef void (*T_UNDO_FN)(void *data);

typedef struct T_UNDO_NODE {
    T_NODE_FIELDS(struct T_UNDO_NODE);  // name: the label
    T_UNDO_FN redo, undo, third;
    u32 data_size;
    void *data;  // the block behind the node
} T_UNDO_NODE;

typedef struct T_UNDO_LIST {
    t_List nodes;
    T_UNDO_NODE *current;  // the next to undo, or null
    const char *name;
} T_UNDO_LIST;

void InitUndoList(T_UNDO_LIST *list, const char *name);
// Drops the redo half, appends a node with a cleared block of data_size bytes and returns it.
T_UNDO_NODE *AddUndoNode(T_UNDO_LIST *list, T_UNDO_FN redo, T_UNDO_FN undo, T_UNDO_FN third, u32 data_size,
                         const char *label);
void Undo(T_UNDO_LIST *list);
void Redo(T_UNDO_LIST *list);
int CanUndo(T_UNDO_LIST *list);
int CanRedo(T_UNDO_LIST *list);
T_UNDO_NODE *GetCurrentUndoNode(T_UNDO_LIST *list);
T_UNDO_NODE *GetCurrentRedoNode(T_UNDO_LIST *list);
void EmptyUndoList(T_UNDO_LIST *list);

// --- Menus ---------------------------------------------------------------------------------------
#define MENU_KIND_TITLE 0
#define MENU_KIND_ENTRY 1
#define MENU_KIND_SUBMENU 2
#define MENU_KIND_SEPARATOR 3

#define MENU_FLAG_GREY 0x1
#define MENU_FLAG_NOTIFY_OPEN 0x20  // opening sends ACT_MENU_OPEN with the menu's item code

typedef struct t_Menu {
    T_NODE_FIELDS(struct t_Menu);
    char *label;          // what is shown
    STRING label_string;  // owns the label
    u16 menu_width;       // the entry's width
    u16 detached_width;   // the width of this menu when it is open
    u32 menu_item_code;
    u16 menu_flags;
    u16 kind;
    u8 shortcut;
    u16 icon;
    struct T_TEXTURE_BANK *icon_bank;
    t_List items;  // entries of a title, sub-menu or context menu
    void *user_data;
    u32 command_key;  // key shown at the right, for an entry made from a command; 0 none
    struct T_APPLICATION *application;
    struct t_Menu *parent_menu;
} t_Menu;

typedef t_Menu T_MENU;

typedef struct T_MENUOBJECTINIT {
    t_List *parent_list;  // what receives the entry; null: the title made last
    struct T_TEXTURE_BANK *icon_bank;
    u32 item_code;
    u16 kind;
    u16 icon;
    u8 shortcut;
} T_MENUOBJECTINIT;

typedef struct T_MENU_HANDLER {
    t_Handler head;
    t_List titles;
    t_Menu *last_title;
    t_Menu *open_title;  // the title whose menu is open, or null
    i32 open_index;      // highlighted entry of the open menu
    t_Menu *open_submenu;
    i32 submenu_index;
} T_MENU_HANDLER;

// The record given to the detached-menu class handler: the menu and where it opens.
typedef struct T_DETACH_MENU {
    t_Menu *menu;
    T_RPOS box;
    t_Window *window;  // the window that gets the picks; null: the window under the point
} T_DETACH_MENU;

T_MENU_HANDLER *NewMenuHandler(t_Window *window);
// A menu handler on its own list, for building context menus; freed with DelHandler.
T_MENU_HANDLER *CreateMenuHandler(t_List *list);
T_MENU_HANDLER *FindMenuHandler(t_Window *window);
t_Menu *FindMenuInHandler(T_MENU_HANDLER *handler, u32 item_code);
t_Menu *FindMenuByItemCode(t_Menu *menu, u32 item_code);  // in its items and their sub-menus
void InitContextMenu(t_Menu *menu, const char *name);
void SetAllMenuItemFlags(t_Menu *menu, u16 bits, u16 on);
void SetDetachedMenuWidth(t_Window *window, t_Menu *menu);
void ReDetachMenu(t_Window *window, t_Menu *menu);  // re-measures an open menu after a change
void GetNewMenuDetachBoxPos(t_Menu *menu, T_RPOS *box, i16 x, i16 y);
// Opens `menu` as a popup at x, y; its picks go to `window` as ACT_MENU_PICK with the entry's item
// code and the entry as data. The window's message function gets ACT_MENU_OPEN with the menu's
// item code first when its menu_flags has MENU_FLAG_NOTIFY_OPEN. Returns the popup window.
t_Window *OpenDetachedMenu(t_Window *window, t_Menu *menu, i16 x, i16 y);
void CloseOpenMenus(void);
#define MENU_BAR_HEIGHT_EXTRA 6  // the bar is the system font's height plus this

// --- Toolbars ------------------------------------------------------------------------------------
typedef struct T_TOOLBAR_ENTRY {
    T_NODE_FIELDS(struct T_TOOLBAR_ENTRY);  // name: the label, shown as hover text
    u16 icon;
    u32 item_code;
} T_TOOLBAR_ENTRY;

typedef struct T_TOOLBAR_HANDLER {
    t_Window *window;  // the toolbar's window
    t_List entries;
    u16 active;
    t_Window *owner;
} T_TOOLBAR_HANDLER;

#define TOOLBAR_EXTRA_ENDING 0x4  // extra_flags of the toolbar's window

T_TOOLBAR_HANDLER *NewToolBar(t_Window *window, const char *name);
void AddToolBarIcon(T_TOOLBAR_HANDLER *toolbar, const char *label, u16 icon, u32 item_code);
u16 GetActiveToolBarEntry(T_TOOLBAR_HANDLER *toolbar);
void SetActiveToolBarEntry(T_TOOLBAR_HANDLER *toolbar, u16 entry);
// The absolute rectangle of an entry's button; false when there is no such entry.
int GetToolBarEntryRect(T_TOOLBAR_HANDLER *toolbar, u16 entry, T_RPOS *rect);

// --- The clipboard -------------------------------------------------------------------------------
// Puts text on the desktop clipboard (headless: one in memory); false, logged, when it can't.
int SetClipboardText(const char *text);
// The clipboard's text, "" when it holds none; valid until the next clipboard call.
const char *GetClipboardText(void);

// --- The loop ------------------------------------------------------------------------------------
// For a paint function that draws something moving by itself (running dots): the next turn
// repaints even when nothing else happens. A real display stops repainting a while after the last
// input otherwise, and waits for input.
void KeepAnimating(void);
// For the handler of an input event: what this event changed lies inside this rectangle of the
// screen (its painter's marks too), so that the turn repaints that part alone. Calls in one event
// add up; an event that makes none may have changed anything, and the whole screen repaints.
void LimitRepaint(i16 x, i16 y, i16 w, i16 h);
// A function that each turn of the loop calls at its start, before it takes the display's input,
// so that it may queue input: a script player that goes on playing while a message function turns
// the loop inside itself (a query's wait). Null: none. Ends with the toolkit.
void SetInputSource(void (*source)(void));
// Starts the toolkit on the chosen display back end; false when the display can't be opened.
int OpenToolkit(const char *backend, i16 width, i16 height, const char *data_root);
void CloseToolkit(void);
