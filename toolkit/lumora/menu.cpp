// The menu tree: making and removing entries, context menus, finding entries, greying, measuring.
// The bar is in menu_bar.cpp, open menus in menu_popup.cpp.
#include <ctype.h>
#include <string.h>

#include "lumora/menu_internal.h"

// --- The font menus use ----------------------------------------------------------------------------
void MenuFontBegin(T_MENU_FONT_STATE *state)
{
    state->font = GetActiveFont();
    state->style = _FontBase ? _FontBase->style : 0;
    SetActiveFont(NULL);
    SetFontStyle(0);
}

void MenuFontEnd(T_MENU_FONT_STATE *state)
{
    SetActiveFont(state->font);
    SetFontStyle(state->style);
}

i16 MenuFontHeight(void)
{
    T_FONT *font = DISPLAY_RECORD ? DISPLAY_RECORD->system_font : NULL;
    u16 height = font ? GetFontHeight(font) : 0;
    return height ? (i16)height : (i16)MENU_FALLBACK_FONT_HEIGHT;
}

// --- Measuring ---------------------------------------------------------------------------------------
i16 MenuEntryHeight(const t_Menu *entry)
{
    if (entry->kind == MENU_KIND_SEPARATOR)
        return MENU_SEPARATOR_HEIGHT;
    i16 text = (i16)(MenuFontHeight() + MENU_ENTRY_EXTRA);
    return text > MENU_ICON_SIZE + 4 ? text : (i16)(MENU_ICON_SIZE + 4);
}

i16 MenuPanelHeight(const t_Menu *menu)
{
    i32 height = 2 * (MENU_PANEL_BORDER + MENU_PANEL_PAD);
    for (t_Menu *entry = (t_Menu *)menu->items.first; entry->next; entry = entry->next)
        height += MenuEntryHeight(entry);
    return (i16)height;
}

i16 MenuPanelWidth(t_Menu *menu)
{
    if (menu->detached_width == 0)
        SetDetachedMenuWidth(NULL, menu);
    return (i16)menu->detached_width;
}

u32 MenuEntryKey(const t_Menu *entry)
{
    if (entry->application) {
        // Read from the command, so that a key changed in the key editor shows at once.
        T_APP_COMMAND *command = FindAppCommandByCode(entry->application, entry->menu_item_code);
        if (command)
            return command->key;
    }
    return entry->command_key;
}

int MenuEntryPickable(const t_Menu *entry)
{
    return entry && entry->kind != MENU_KIND_SEPARATOR && entry->kind != MENU_KIND_TITLE &&
           !(entry->menu_flags & MENU_FLAG_GREY);
}

t_Menu *MenuEntryByIndex(t_Menu *menu, i32 index)
{
    if (index < 0)
        return NULL;
    i32 place = 0;
    for (t_Menu *entry = (t_Menu *)menu->items.first; entry->next; entry = entry->next, place++)
        if (place == index)
            return entry;
    return NULL;
}

i32 MenuShortcutMatches(u8 shortcut, u32 key)
{
    return shortcut && key < 256 && tolower(shortcut) == tolower((int)key);
}

// An entry's own width: its label and room around it, measured with the system font. The same
// measure as a program that relabels an entry uses (the label plus twice the font's height).
static void MeasureMenuEntry(t_Menu *entry)
{
    if (entry->kind == MENU_KIND_SEPARATOR) {
        entry->menu_width = 0;
        return;
    }
    T_MENU_FONT_STATE font;
    MenuFontBegin(&font);
    entry->menu_width = (u16)(GetStringWidth(entry->label ? entry->label : "") + 2 * GetActiveFontHeight());
    MenuFontEnd(&font);
}

// The panel's width: the icon column, the widest entry, the widest key text and a sub-menu's
// arrow. Kept while it isn't 0; a program that relabels an entry sets it to 0 first.
void SetDetachedMenuWidth(t_Window *window, t_Menu *menu)
{
    (void)window;  // the panel is measured with the system font, whatever the window
    if (!menu || menu->detached_width != 0)
        return;
    T_MENU_FONT_STATE font;
    MenuFontBegin(&font);
    i32 widest = 0, widest_key = 0, arrow = 0;
    for (t_Menu *entry = (t_Menu *)menu->items.first; entry->next; entry = entry->next) {
        if (entry->kind == MENU_KIND_SEPARATOR)
            continue;
        if (entry->menu_width > widest)
            widest = entry->menu_width;
        if (entry->kind == MENU_KIND_SUBMENU)
            arrow = MENU_ARROW_ROOM;
        u32 key = MenuEntryKey(entry);
        if (key) {
            char name[KEY_NAME_SIZE];
            i32 width = GetStringWidth(KeyName(key, name));
            if (width > widest_key)
                widest_key = width;
        }
    }
    MenuFontEnd(&font);
    i32 width = 2 * (MENU_PANEL_BORDER + MENU_PANEL_PAD) + MENU_ICON_COLUMN + widest + arrow;
    if (widest_key)
        width += MENU_KEY_GAP + widest_key;
    menu->detached_width = (u16)width;
}

// --- Making and removing entries -------------------------------------------------------------------
// An entry's label was copied into its own block by NewTail, so the block is all there is to free.
static void FreeMenuNode(t_Menu *menu)
{
    SubNode((t_Node *)menu);
    FreeMem(menu, sizeof(t_Menu));
}

// What receives an entry. `parent_list` is either a list (a context menu's items) or a title or
// sub-menu that CreateObject returned. They are told apart by their second word: a list's is
// always null (the head's prev), a linked node's prev never is.
static t_List *ResolveParentList(T_MENU_HANDLER *handler, T_MENUOBJECTINIT *init, t_Menu **parent)
{
    *parent = NULL;
    if (init->parent_list) {
        t_Node *as_node = (t_Node *)init->parent_list;
        if (as_node->prev == NULL)
            return init->parent_list;
        *parent = (t_Menu *)init->parent_list;
        return &(*parent)->items;
    }
    if (handler && handler->last_title) {
        *parent = handler->last_title;
        return &(*parent)->items;
    }
    return NULL;
}

// Makes a title (kind 0, on the handler's titles), an entry (1), a sub-menu (2, whose address can
// be the parent_list of the entries that go into it) or a separator (3). The label lives in the
// node's own name block, so that EmptyList on a context menu's items frees it; label_string owns
// a label given later. Null, with a log line, for a bad kind or an entry with nowhere to go.
t_Menu *CreateMenuObject(T_MENU_HANDLER *handler, const char *name, T_MENUOBJECTINIT *init)
{
    if (!init || init->kind > MENU_KIND_SEPARATOR) {
        myprintf(0, "menu entry \"%s\": no init record or an unknown kind\n", name ? name : "");
        return NULL;
    }
    t_Menu *parent = NULL;
    t_List *list;
    if (init->kind == MENU_KIND_TITLE) {
        if (!handler) {
            myprintf(0, "menu title \"%s\" needs a menu handler\n", name ? name : "");
            return NULL;
        }
        list = &handler->titles;
    } else {
        list = ResolveParentList(handler, init, &parent);
        if (!list) {
            myprintf(0, "menu entry \"%s\" has no title or list to go in\n", name ? name : "");
            return NULL;
        }
    }
    const char *label = init->kind == MENU_KIND_SEPARATOR || !name ? "" : name;
    t_Menu *menu = (t_Menu *)NewTail(list, sizeof(t_Menu), label);
    menu->label = menu->name;
    InitList(&menu->items, menu->name);
    menu->kind = init->kind;
    menu->menu_item_code = init->item_code;
    menu->shortcut = init->shortcut;
    menu->icon = init->icon;
    menu->icon_bank = init->icon_bank;
    menu->parent_menu = parent;
    if (parent)
        parent->detached_width = 0;
    if (init->kind == MENU_KIND_TITLE)
        handler->last_title = menu;
    MeasureMenuEntry(menu);
    return menu;
}

// Unlinks and frees an entry, its sub-entries and its label. Open menus that show it close.
void RemoveMenuObject(T_MENU_HANDLER *handler, t_Menu *menu)
{
    if (!menu)
        return;
    MenuEntryGoes(menu);
    while (!LIST_EMPTY(&menu->items))
        RemoveMenuObject(handler, (t_Menu *)menu->items.first);
    if (menu->parent_menu)
        menu->parent_menu->detached_width = 0;
    FreeString(&menu->label_string);
    FreeMenuNode(menu);
    if (handler && handler->last_title == menu)
        handler->last_title = LIST_EMPTY(&handler->titles) ? NULL : (t_Menu *)handler->titles.last;
}

void InitContextMenu(t_Menu *menu, const char *name)
{
    if (!menu)
        return;
    ZeroMem(menu, sizeof(t_Menu));
    InitList(&menu->items, name);
    menu->name = (char *)name;  // not copied: a context menu's name is a constant text
    menu->label = (char *)name;
}

// --- Finding and greying ---------------------------------------------------------------------------
T_MENU_HANDLER *FindMenuHandler(t_Window *window)
{
    if (!window)
        return NULL;
    for (t_Handler *handler = (t_Handler *)window->handlers.first; handler->next; handler = handler->next)
        if (handler->kind == HANDLER_KIND_MENU)
            return (T_MENU_HANDLER *)handler;
    return NULL;
}

t_Menu *FindMenuInHandler(T_MENU_HANDLER *handler, u32 item_code)
{
    if (!handler)
        return NULL;
    return (t_Menu *)FindNodeByField(&handler->titles, offsetof(t_Menu, menu_item_code), item_code);
}

t_Menu *FindMenuByItemCode(t_Menu *menu, u32 item_code)
{
    if (!menu)
        return NULL;
    for (t_Menu *entry = (t_Menu *)menu->items.first; entry->next; entry = entry->next) {
        if (entry->kind == MENU_KIND_SEPARATOR)
            continue;
        if (entry->menu_item_code == item_code)
            return entry;
        if (t_Menu *inner = FindMenuByItemCode(entry, item_code))
            return inner;
    }
    return NULL;
}

void SetAllMenuItemFlags(t_Menu *menu, u16 bits, u16 on)
{
    if (!menu)
        return;
    for (t_Menu *entry = (t_Menu *)menu->items.first; entry->next; entry = entry->next) {
        if (on)
            entry->menu_flags |= bits;
        else
            entry->menu_flags &= (u16)~bits;
        SetAllMenuItemFlags(entry, bits, on);
    }
}

// --- Drawing -----------------------------------------------------------------------------------------
void MenuClip(i16 x, i16 y, i16 w, i16 h)
{
    T_RPOS clip;
    GetClip(&clip);
    i32 left = x > clip.x ? x : clip.x, top = y > clip.y ? y : clip.y;
    i32 right = x + w < clip.x + clip.w ? x + w : clip.x + clip.w;
    i32 bottom = y + h < clip.y + clip.h ? y + h : clip.y + clip.h;
    if (right < left)
        right = left;
    if (bottom < top)
        bottom = top;
    ClipInsideWindow((i16)left, (i16)top, (i16)right, (i16)bottom);
}

void DrawMenuLabel(i16 x, i16 y, const char *label, u8 shortcut, u32 colour)
{
    if (!label)
        return;
    DrawText(x, y, label, colour);
    if (!shortcut)
        return;
    const char *letter = strchr(label, tolower(shortcut));
    const char *upper = strchr(label, toupper(shortcut));
    if (!letter || (upper && upper < letter))
        letter = upper;
    T_FONT *font = GetActiveFont();
    if (!letter || !font)
        return;
    i16 left = (i16)(x + GetStringWidthN(label, (u32)(letter - label)));
    i16 width = (i16)GetStringWidthN(letter, 1);
    i16 under = (i16)(y + font->ascent + 2);
    DrawLine(left, under, (i16)(left + width - 1), under, colour);
}
