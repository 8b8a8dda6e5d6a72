// The module's own records (page, settings) and the few helpers that read them.
#pragma once
#include "page/item_codes.h"
#include "toolkit.h"

// The page record: the handler "WinEdit" of a page window, reached through its user_data.
typedef struct T_WINEDIT_HANDLER {
    t_Handler head;  // head.window: the page window
    char tag[4];     // "WEH0"
    t_Handler *border;
    t_Handler *titlebar;
    STRING head_line;  // the line behind the PAGE marker, as read
    u16 saved;         // nonzero: the page has a file of its own
    T_UNDO_LIST undo;
    t_Window *source_window;
    u8 *line_map;  // one byte per source line, 2 bytes per line allocated; null if not read
    u32 lines_read, lines_total;
    char page_name[128];  // the window's name points here
    STRING file_name;     // the source file's full path; null text for none
    t_Menu context_menu;  // "WindowBase"
    t_gadget *drag_gadget;
    t_gadget *handle_gadget;
    u16 drag_handle;  // 1 to 8, 0 for none
    u16 edit_state;   // EDIT_ bits
    u16 rubber_active;
    i16 rubber_x1, rubber_y1, rubber_x2, rubber_y2;
    i16 drag_start_x, drag_start_y;
    i16 drag_last_x, drag_last_y;
    u16 last_tool;
    u16 close_after_save;
    u16 query_state;     // PAGE_QUERY_: the query on closing (or on the exit) and what it came to
    u16 query_for_exit;  // the standing query asks for the exit: its answers don't close the page
    u16 drop_at_exit;    // answered No in the exit's query: the page goes without its changes
    u16 lines_checked;   // a save over the page's file can't drop hand-written lines any more
    u16 tab_next;
    u16 dash_phase;  // 0 to 31
    t_gadget *msg_combo_first;
    void *msg_combo;
    t_gadget *win_combo_first;
    void *win_combo;
    T_ITEM_CODES item_codes;  // the codes of the page's gadgets; see SetGadgetItemCode
    u16 item_codes_valid;     // 0: built again from the gadgets at the next use
} T_WINEDIT_HANDLER;

// What the query on a modified page came to (query_state).
#define PAGE_QUERY_NONE 0     // no query stands
#define PAGE_QUERY_OPEN 1     // the query, or the save that its Yes started, is under way
#define PAGE_QUERY_SAVED 2    // Yes, and the page was written
#define PAGE_QUERY_DROPPED 3  // No: the changes go with the page
#define PAGE_QUERY_KEPT 4     // Cancel, a save that failed, or a Save as that was given up

#define EDIT_TAB_ORDER 2
#define EDIT_RUBBER_PAINTED 4
#define EDIT_PRESSED_GADGET 8
#define EDIT_DRAGGING 16

// The settings: the data block of the resource "AppQuillform", stored as these bytes,
// little-endian, followed by a tail of `open_count` entries (a u32 length, then the path with its
// NUL). The 4-byte `resource` word can't hold a pointer on this machine: it is written as 0, and
// the run-time back pointer is `config_resource`.
typedef struct T_EDITOR_CONFIG {
    u32 reserved;
    char last_path[256];
    char backup_path[256];
    u32 size;   // the whole block, tail included
    u32 flags;  // CONFIG_ bits
    u32 resource;
    u32 open_count;
    T_RPOS msg_dialog_rect;
    T_RPOS win_dialog_rect;
} T_EDITOR_CONFIG;

static_assert(sizeof(T_EDITOR_CONFIG) == 548, "the stored settings block is 548 bytes");

#define EDITOR_CONFIG_SIZE 548
#define CONFIG_OPTIMISE 1
#define CONFIG_TYPE_ORDER 2
#define CONFIG_BACKUPS 4
// What a new settings block holds, and what a save uses when the module has none.
#define CONFIG_DEFAULT_FLAGS (CONFIG_OPTIMISE | CONFIG_TYPE_ORDER | CONFIG_BACKUPS)

// The smallest page: a window below it is no page (a box drawn smaller makes none).
#define PAGE_MIN_WIDTH 32
#define PAGE_MIN_HEIGHT 12

// What the layers below the editor call of it, given by the editor when the module starts
// (ConnectEditor): they stand below it and don't call it by name.
typedef struct T_EDITOR_HOOKS {
    // Makes a page window from the box x1, y1 to x2, y2 of the parent (the reader opens pages so).
    t_Window *(*make_page_window)(t_Window *parent, char *name, u32 flags, i16 x1, i16 y1, i16 x2, i16 y2);
    // The action function of every gadget on a page: the catalogue hangs it on what it makes.
    T_ACTION_FN gadget_action;
} T_EDITOR_HOOKS;
extern T_EDITOR_HOOKS editor_hooks;

// Module-wide state.
extern T_EDITOR_CONFIG *editor_config;  // moves at exit: read through this pointer at each use
extern T_RESOURCE *config_resource;     // the settings resource behind editor_config
extern t_Menu gadget_context_menu;      // "Multiple Modify"

// A child of the main window is a page when it is not dependant, has a user_data, and that
// record's tag begins with "WEH".
int IsPageWindow(t_Window *window);
// The page record of a page window; null for any other window.
T_WINEDIT_HANDLER *PageRecordOf(t_Window *window);
// True when `gadget` is marked (selected) on its page.
static inline int IsGadgetMarked(const t_gadget *gadget)
{
    return (gadget->live_flags & GADGET_MARK_SELECTED) != 0;
}
// True when `gadget` is still on the window's gadget list (a dialog's gadget may have gone while it
// stood); compares addresses only.
int GadgetIsOnPage(t_Window *window, const t_gadget *gadget);
// Walks the list from its first node, clearing each drag mark; false at the first selected
// gadget, true at the tail. Null gives false.
int NothingMarked(t_gadget *gadget);
// The page's item codes are kept in a counted set, so that a new gadget's code costs no walk. Every
// change of a page gadget's `item_code` goes through SetGadgetItemCode; a gadget made on the page
// enters the set with AddGadgetItemCode and leaves it, before it goes, with ForgetGadgetItemCode.
// Windows that are no page go without a set: the calls then only write the field.
void SetGadgetItemCode(t_Window *window, t_gadget *gadget, u32 code);
void AddGadgetItemCode(t_Window *window, t_gadget *gadget);
void ForgetGadgetItemCode(t_Window *window, t_gadget *gadget);
// The smallest positive item code that no gadget of the window holds: from the set on a page, by a
// walk elsewhere.
u32 NextFreeItemCodeOf(t_Window *window);
// How many gadgets the window has: from the set on a page, by a walk elsewhere.
u32 PageGadgetCount(t_Window *window);
// How many gadgets of the window hold the item code: from the set on a page, by a walk elsewhere.
u32 GadgetsWithItemCode(t_Window *window, u32 code);
// The first gadget with this design item code in the list that the window's gadget handler has
// in use, or null.
t_gadget *FindGadgetByCode(t_Window *window, u32 code);
