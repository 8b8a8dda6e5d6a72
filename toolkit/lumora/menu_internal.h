// What the menu files share: the metrics of bars and panels, measuring, and the open-menu stack.
#pragma once
#include "lumora/lumora_internal.h"

// Metrics of the menu bar and of open menus, in pixels.
enum {
    MENU_BAR_LEFT = 4,      // room before the first title
    MENU_TITLE_PAD = 9,     // on each side of a title's label
    MENU_PANEL_BORDER = 1,  // the panel's frame
    MENU_PANEL_PAD = 3,     // between the frame and the entries
    MENU_SHADOW = 4,        // the soft shadow to the right and below a panel
    MENU_ICON_SIZE = 16,    // an entry's icon is shown at this size
    MENU_ICON_COLUMN = 26,  // from the panel's inner left to the label
    MENU_KEY_GAP = 18,      // between the widest label and the key column
    MENU_ARROW_ROOM = 14,   // the right arrow of a sub-menu
    MENU_ENTRY_EXTRA = 8,   // an entry is the font's height plus this
    MENU_SEPARATOR_HEIGHT = 7,
    MENU_MAX_LEVELS = 8,  // sub-menus nest up to this depth
    MENU_SHADOW_ALPHA = 60,
    MENU_FALLBACK_FONT_HEIGHT = 13,  // when no font could be read
};

#define MENU_HIGHLIGHT_NONE (-1)
#define MENU_HIGHLIGHT_FIRST (-2)  // opening highlights the first entry that can be picked

static inline int MenuInside(const T_RPOS *rect, i16 x, i16 y)
{
    return x >= rect->x && y >= rect->y && x < rect->x + rect->w && y < rect->y + rect->h;
}

// The font that menus are measured and drawn with is the system font; these keep the caller's.
typedef struct T_MENU_FONT_STATE {
    T_FONT *font;
    u16 style;
} T_MENU_FONT_STATE;

void MenuFontBegin(T_MENU_FONT_STATE *state);
void MenuFontEnd(T_MENU_FONT_STATE *state);
i16 MenuFontHeight(void);  // the system font's line height

// Measuring (menu.cpp). Heights and widths are measured with the system font active.
i16 MenuEntryHeight(const t_Menu *entry);
i16 MenuPanelHeight(const t_Menu *menu);
i16 MenuPanelWidth(t_Menu *menu);            // detached_width, computed when it is 0
u32 MenuEntryKey(const t_Menu *entry);       // the key shown at the right, or 0
int MenuEntryPickable(const t_Menu *entry);  // neither greyed, a separator, nor a title
// The entry of `menu` at place `index` (counting separators), or null.
t_Menu *MenuEntryByIndex(t_Menu *menu, i32 index);
i32 MenuShortcutMatches(u8 shortcut, u32 key);  // case-insensitive letter test
// Narrows the clip that the loop set to `rect`.
void MenuClip(i16 x, i16 y, i16 w, i16 h);
// Draws a label with its top left at x, y and the shortcut's first letter in it underlined.
void DrawMenuLabel(i16 x, i16 y, const char *label, u8 shortcut, u32 colour);

// The menu bar (menu_bar.cpp).
int MenuBarRect(t_Window *window, T_RPOS *rect);  // false without a bar
void MenuTitleRect(T_MENU_HANDLER *handler, t_Menu *title, T_RPOS *rect);
t_Menu *MenuTitleAt(T_MENU_HANDLER *handler, i16 x, i16 y);
// The next title after `after` (or the first) whose shortcut is `key`, or null.
t_Menu *MenuTitleByShortcut(T_MENU_HANDLER *handler, u32 key, t_Menu *after);
// Sends ACT_MENU_OPEN to the owner when it asks for it, then opens the title's menu below it.
void OpenBarTitle(T_MENU_HANDLER *handler, t_Menu *title, i32 highlight);

// The open menus (menu_popup.cpp): level 0 is a bar title's menu or a detached menu, the levels
// above are its sub-menus.
t_Window *OpenMenuLevel(i32 level, t_Window *owner, T_MENU_HANDLER *bar, t_Menu *menu, i16 x, i16 y, i32 highlight);
T_MENU_HANDLER *OpenMenuBar(void);  // the bar whose title is open, or null
// Follows the pointer over open menus and the open bar: highlights, sub-menus, switching titles.
void MenuTrackPointer(i16 x, i16 y);
// A release of a press that began on the bar: picks the entry under the pointer, if any.
void MenuReleaseAt(i16 x, i16 y);
// An entry is about to be freed: open menus that show it, or hold it, close.
void MenuEntryGoes(t_Menu *entry);
