// Open menus: a stack of popup windows (a bar title's menu or a detached menu, then its sub-menus),
// their painting, the pointer and keys over them, and picking an entry.
#include "lumora/menu_internal.h"

typedef struct T_OPEN_LEVEL {
    t_Menu *menu;
    t_Window *popup;
    i32 index;     // the highlighted entry, MENU_HIGHLIGHT_NONE for none
    T_RPOS panel;  // absolute; the popup is larger by the shadow
} T_OPEN_LEVEL;

static struct {
    T_OPEN_LEVEL levels[MENU_MAX_LEVELS];
    i32 depth;
    t_Window *owner;      // gets ACT_MENU_PICK
    T_MENU_HANDLER *bar;  // the bar whose title is open, null for a detached menu
    u8 pressed;           // a press began inside an open menu
} open_menus;

static u32 MenuPopupInput(t_Handler *head, u32 event, void *data);
static void MenuPopupPaint(t_Handler *head);
static void MenuPointerMoved(t_Window *window, void *data);

static void RequestRepaint(void)
{
    if (_LumoraBase && CURRENT_DISPLAY->window_class)
        CURRENT_DISPLAY->window_class->refresh_request = 1;
}

// The bar's own fields follow the stack, for those who read them.
static void SyncBar(void)
{
    T_MENU_HANDLER *bar = open_menus.bar;
    if (!bar)
        return;
    i32 depth = open_menus.depth;
    bar->open_title = depth > 0 ? open_menus.levels[0].menu : NULL;
    bar->open_index = depth > 0 ? open_menus.levels[0].index : MENU_HIGHLIGHT_NONE;
    bar->open_submenu = depth > 1 ? open_menus.levels[1].menu : NULL;
    bar->submenu_index = depth > 1 ? open_menus.levels[1].index : MENU_HIGHLIGHT_NONE;
}

static void CloseFromLevel(i32 level)
{
    if (level < 0)
        level = 0;
    while (open_menus.depth > level) {
        T_OPEN_LEVEL *open = &open_menus.levels[--open_menus.depth];
        if (open->popup)
            RemoveWindow(open->popup);
        open->popup = NULL;
        open->menu = NULL;
    }
    SyncBar();
    if (open_menus.depth == 0) {
        open_menus.bar = NULL;
        open_menus.owner = NULL;
        open_menus.pressed = 0;
    }
    RequestRepaint();
}

void CloseOpenMenus(void)
{
    CloseFromLevel(0);
}

T_MENU_HANDLER *OpenMenuBar(void)
{
    return open_menus.depth > 0 ? open_menus.bar : NULL;
}

static i32 LevelOfPopup(t_Window *popup)
{
    for (i32 level = 0; level < open_menus.depth; level++)
        if (open_menus.levels[level].popup == popup)
            return level;
    return -1;
}

// --- Places ------------------------------------------------------------------------------------------
// Keeps a panel on the screen; a sub-menu that doesn't fit right of its parent goes to its left.
static void KeepOnScreen(T_RPOS *panel, const T_RPOS *parent)
{
    i16 screen_w = CURRENT_DISPLAY->width, screen_h = CURRENT_DISPLAY->height;
    if (parent && panel->x + panel->w + MENU_SHADOW > screen_w)
        panel->x = (i16)(parent->x - panel->w + MENU_PANEL_BORDER);
    if (panel->x + panel->w + MENU_SHADOW > screen_w)
        panel->x = (i16)(screen_w - panel->w - MENU_SHADOW);
    if (panel->y + panel->h + MENU_SHADOW > screen_h)
        panel->y = (i16)(screen_h - panel->h - MENU_SHADOW);
    if (panel->x < 0)
        panel->x = 0;
    if (panel->y < 0)
        panel->y = 0;
}

static void MeasurePanel(t_Menu *menu, T_RPOS *panel, const T_RPOS *parent)
{
    menu->detached_width = 0;  // keys and labels may have changed since it was last open
    panel->w = MenuPanelWidth(menu);
    panel->h = MenuPanelHeight(menu);
    KeepOnScreen(panel, parent);
}

// The top of the entry at `index` in an open level.
static i16 EntryTop(i32 level, i32 index)
{
    T_OPEN_LEVEL *open = &open_menus.levels[level];
    i32 y = open->panel.y + MENU_PANEL_BORDER + MENU_PANEL_PAD;
    i32 place = 0;
    for (t_Menu *entry = (t_Menu *)open->menu->items.first; entry->next && place < index; entry = entry->next, place++)
        y += MenuEntryHeight(entry);
    return (i16)y;
}

// The entry under a point of an open level, and its place; null off the entries.
static t_Menu *EntryAt(i32 level, i16 x, i16 y, i32 *index)
{
    T_OPEN_LEVEL *open = &open_menus.levels[level];
    *index = MENU_HIGHLIGHT_NONE;
    if (!MenuInside(&open->panel, x, y))
        return NULL;
    i32 top = open->panel.y + MENU_PANEL_BORDER + MENU_PANEL_PAD;
    i32 place = 0;
    for (t_Menu *entry = (t_Menu *)open->menu->items.first; entry->next; entry = entry->next, place++) {
        i32 height = MenuEntryHeight(entry);
        if (y >= top && y < top + height) {
            *index = place;
            return entry;
        }
        top += height;
    }
    return NULL;
}

static i32 FirstPickable(t_Menu *menu)
{
    i32 place = 0;
    for (t_Menu *entry = (t_Menu *)menu->items.first; entry->next; entry = entry->next, place++)
        if (MenuEntryPickable(entry))
            return place;
    return MENU_HIGHLIGHT_NONE;
}

// --- Opening and picking -----------------------------------------------------------------------------
t_Window *OpenMenuLevel(i32 level, t_Window *owner, T_MENU_HANDLER *bar, t_Menu *menu, i16 x, i16 y, i32 highlight)
{
    if (!menu || level < 0 || !QF_EXPECT(level < MENU_MAX_LEVELS) || level > open_menus.depth)
        return NULL;
    CloseFromLevel(level);
    T_RPOS panel = {x, y, 0, 0};
    MeasurePanel(menu, &panel, level > 0 ? &open_menus.levels[level - 1].panel : NULL);
    t_Window *popup =
        CreatePopupWindow(panel.x, panel.y, (i16)(panel.w + MENU_SHADOW), (i16)(panel.h + MENU_SHADOW), NULL);
    if (!popup) {
        myprintf(0, "menu \"%s\" could not be opened\n", menu->label ? menu->label : "");
        return NULL;
    }
    popup->flags |= WF_NO_BACK;               // the panel paints itself; the shadow lets the screen show
    popup->mouse_move_fn = MenuPointerMoved;  // the highlight follows the pointer
    NewHandler(&popup->handlers, MenuPopupInput, MenuPopupPaint, "menu", 0, sizeof(t_Handler), popup);
    if (level == 0) {
        open_menus.owner = owner;
        open_menus.bar = bar;
    }
    T_OPEN_LEVEL *open = &open_menus.levels[level];
    open->menu = menu;
    open->popup = popup;
    open->panel = panel;
    open->index = highlight == MENU_HIGHLIGHT_FIRST ? FirstPickable(menu) : highlight;
    open_menus.depth = level + 1;
    SyncBar();
    RequestRepaint();
    return popup;
}

static void OpenSubMenu(i32 level, i32 index, i32 highlight)
{
    T_OPEN_LEVEL *open = &open_menus.levels[level];
    t_Menu *entry = MenuEntryByIndex(open->menu, index);
    if (!entry || entry->kind != MENU_KIND_SUBMENU || !MenuEntryPickable(entry))
        return;
    open->index = index;
    i16 x = (i16)(open->panel.x + open->panel.w - MENU_PANEL_BORDER);
    i16 y = (i16)(EntryTop(level, index) - MENU_PANEL_BORDER - MENU_PANEL_PAD);
    OpenMenuLevel(level + 1, open_menus.owner, open_menus.bar, entry, x, y, highlight);
}

// Closes every open menu, then tells the owner.
static void Pick(t_Menu *entry)
{
    t_Window *owner = open_menus.owner;
    u32 item_code = entry->menu_item_code;
    CloseOpenMenus();
    if (owner && IsWindowLive(owner))
        SendWindowMessage(owner, item_code, ACT_MENU_PICK, entry);
}

// Enter, a letter or a release on an entry: a sub-menu opens, an entry is picked, a greyed entry
// or a separator does nothing.
static void Activate(i32 level, i32 index)
{
    t_Menu *entry = MenuEntryByIndex(open_menus.levels[level].menu, index);
    if (!MenuEntryPickable(entry))
        return;
    if (entry->kind == MENU_KIND_SUBMENU)
        OpenSubMenu(level, index, MENU_HIGHLIGHT_FIRST);
    else
        Pick(entry);
}

t_Window *OpenDetachedMenu(t_Window *window, t_Menu *menu, i16 x, i16 y)
{
    if (!menu)
        return NULL;
    CloseOpenMenus();
    if (!window && CURRENT_DISPLAY->window_class)
        window = CURRENT_DISPLAY->window_class->current_window;
    if (window && (menu->menu_flags & MENU_FLAG_NOTIFY_OPEN))
        SendWindowMessage(window, menu->menu_item_code, ACT_MENU_OPEN, NULL);
    return OpenMenuLevel(0, window, NULL, menu, x, y, MENU_HIGHLIGHT_NONE);
}

void GetNewMenuDetachBoxPos(t_Menu *menu, T_RPOS *box, i16 x, i16 y)
{
    if (!menu || !box)
        return;
    box->x = x;
    box->y = y;
    MeasurePanel(menu, box, NULL);
}

// Re-measures a menu after a change of its entries; an open one is laid out again in place.
void ReDetachMenu(t_Window *window, t_Menu *menu)
{
    if (!menu)
        return;
    menu->detached_width = 0;
    SetDetachedMenuWidth(window, menu);
    for (i32 level = 0; level < open_menus.depth; level++) {
        T_OPEN_LEVEL *open = &open_menus.levels[level];
        if (open->menu != menu)
            continue;
        CloseFromLevel(level + 1);
        MeasurePanel(menu, &open->panel, level > 0 ? &open_menus.levels[level - 1].panel : NULL);
        T_RPOS frame = {open->panel.x, open->panel.y, (i16)(open->panel.w + MENU_SHADOW),
                        (i16)(open->panel.h + MENU_SHADOW)};
        ResizeWindow(open->popup, &frame);
        if (MenuEntryByIndex(menu, open->index) == NULL)
            open->index = MENU_HIGHLIGHT_NONE;
        RequestRepaint();
        break;
    }
}

void MenuEntryGoes(t_Menu *entry)
{
    for (i32 level = 0; level < open_menus.depth; level++) {
        t_Menu *menu = open_menus.levels[level].menu;
        int shown = menu == entry;
        for (t_Menu *each = (t_Menu *)menu->items.first; each->next && !shown; each = each->next)
            shown = each == entry;
        if (shown) {
            CloseOpenMenus();
            return;
        }
    }
}

// --- The pointer -------------------------------------------------------------------------------------
void MenuTrackPointer(i16 x, i16 y)
{
    for (i32 level = open_menus.depth - 1; level >= 0; level--) {
        T_OPEN_LEVEL *open = &open_menus.levels[level];
        if (!MenuInside(&open->panel, x, y))
            continue;
        i32 index;
        t_Menu *entry = EntryAt(level, x, y, &index);
        i32 shown = MenuEntryPickable(entry) ? index : MENU_HIGHLIGHT_NONE;
        if (open->index != shown) {
            open->index = shown;
            RequestRepaint();
        }
        // A sub-menu beyond this level stays while the pointer is on its entry or on nothing.
        if (entry && entry->kind != MENU_KIND_SEPARATOR && level + 1 < open_menus.depth &&
            open_menus.levels[level + 1].menu != entry)
            CloseFromLevel(level + 1);
        if (shown >= 0 && entry->kind == MENU_KIND_SUBMENU && level + 1 >= open_menus.depth)
            OpenSubMenu(level, index, MENU_HIGHLIGHT_NONE);
        SyncBar();
        return;
    }
    // Off the menus: over another title of the open bar, that title opens.
    T_MENU_HANDLER *bar = OpenMenuBar();
    if (bar) {
        t_Menu *title = MenuTitleAt(bar, x, y);
        if (title && title != open_menus.levels[0].menu)
            OpenBarTitle(bar, title, MENU_HIGHLIGHT_NONE);
    }
}

void MenuReleaseAt(i16 x, i16 y)
{
    for (i32 level = open_menus.depth - 1; level >= 0; level--) {
        if (!MenuInside(&open_menus.levels[level].panel, x, y))
            continue;
        i32 index;
        t_Menu *entry = EntryAt(level, x, y, &index);
        if (MenuEntryPickable(entry) && entry->kind != MENU_KIND_SUBMENU)
            Pick(entry);
        return;
    }
}

// A change of the pointer without a button: the highlight follows it.
static void MenuPointerMoved(t_Window *window, void *data)
{
    (void)window;
    (void)data;
    i16 x, y;
    GetMouseXY(&x, &y);
    MenuTrackPointer(x, y);
}

static u32 MenuPopupMouse(T_MOUSE_MSG *msg)
{
    switch (msg->mouse_action) {
    case ACT_LMOUSE_DOWN:  // a sub-menu opens at once; an entry waits for the release
    case ACT_RMOUSE_DOWN:
        open_menus.pressed = 1;
        MenuTrackPointer(msg->x, msg->y);
        return 1;
    case ACT_LMOUSE_UP:  // the release of a press in a menu picks what is under it
    case ACT_RMOUSE_UP:
        if (open_menus.pressed) {
            open_menus.pressed = 0;
            MenuReleaseAt(msg->x, msg->y);
        }
        return 1;
    case ACT_MOUSE_MOVE:  // dragged with a button held
        MenuTrackPointer(msg->x, msg->y);
        return 1;
    }
    return 1;
}

// A press outside every open menu closes them and is taken, but a press on another title of the
// open bar is left to the bar, which opens that title with it.
static u32 MenuPressOutside(T_MOUSE_MSG *msg)
{
    if (open_menus.depth == 0)
        return 0;
    T_MENU_HANDLER *bar = open_menus.bar;
    t_Menu *open_title = open_menus.levels[0].menu;
    T_RPOS rect;
    if (bar && MenuBarRect(bar->head.window, &rect) && MenuInside(&rect, msg->x, msg->y)) {
        t_Menu *title = MenuTitleAt(bar, msg->x, msg->y);
        CloseOpenMenus();
        return title && title != open_title ? 0 : 1;
    }
    CloseOpenMenus();
    return 1;
}

// --- Keys ----------------------------------------------------------------------------------------------
static void MoveHighlight(i32 level, i32 step)
{
    T_OPEN_LEVEL *open = &open_menus.levels[level];
    i32 count = (i32)CountListEntries(&open->menu->items);
    i32 index = open->index;
    for (i32 tries = 0; tries < count; tries++) {
        index = index < 0 ? (step > 0 ? 0 : count - 1) : (index + step + count) % count;
        if (MenuEntryPickable(MenuEntryByIndex(open->menu, index))) {
            open->index = index;
            break;
        }
    }
    SyncBar();
    RequestRepaint();
}

// The title before or after the open one, round the bar.
static void SwitchTitle(i32 step)
{
    T_MENU_HANDLER *bar = open_menus.bar;
    t_Menu *title = open_menus.levels[0].menu;
    if (step > 0)
        title = title->next->next ? title->next : (t_Menu *)bar->titles.first;
    else
        title = title->prev->prev ? title->prev : (t_Menu *)bar->titles.last;
    OpenBarTitle(bar, title, MENU_HIGHLIGHT_FIRST);
}

static u32 MenuKey(T_KEY_MSG *key)
{
    i32 level = open_menus.depth - 1;
    T_OPEN_LEVEL *open = &open_menus.levels[level];
    T_MENU_HANDLER *bar = open_menus.bar;
    switch (key->key_code) {
    case KEY_UP:  // the entry above, round the menu
        MoveHighlight(level, -1);
        return 1;
    case KEY_DOWN:  // the entry below
        MoveHighlight(level, 1);
        return 1;
    case KEY_RIGHT: {  // into a sub-menu, else the next title
        t_Menu *entry = MenuEntryByIndex(open->menu, open->index);
        if (entry && entry->kind == MENU_KIND_SUBMENU && MenuEntryPickable(entry))
            OpenSubMenu(level, open->index, MENU_HIGHLIGHT_FIRST);
        else if (bar)
            SwitchTitle(1);
        return 1;
    }
    case KEY_LEFT:  // out of a sub-menu, else the title before
        if (level > 0)
            CloseFromLevel(level);
        else if (bar)
            SwitchTitle(-1);
        return 1;
    case KEY_RETURN:  // the highlighted entry
        Activate(level, open->index);
        return 1;
    case KEY_ESCAPE:  // the innermost menu closes
        CloseFromLevel(level);
        return 1;
    }
    if ((key->qualifiers & QUAL_ALT) && bar) {  // Alt and a letter: another title of the bar
        if (t_Menu *title = MenuTitleByShortcut(bar, key->key_code, open_menus.levels[0].menu))
            OpenBarTitle(bar, title, MENU_HIGHLIGHT_FIRST);
        return 1;
    }
    i32 place = 0;  // a letter: the entry whose shortcut it is
    for (t_Menu *entry = (t_Menu *)open->menu->items.first; entry->next; entry = entry->next, place++)
        if (entry->kind != MENU_KIND_SEPARATOR && MenuShortcutMatches(entry->shortcut, key->key_code)) {
            Activate(level, place);
            break;
        }
    return 1;  // every other key waits while a menu is open
}

static u32 MenuPopupInput(t_Handler *head, u32 event, void *data)
{
    i32 level = LevelOfPopup(head->window);
    switch (event) {
    case HANDLER_EVENT_END:  // freed by someone else: its level and those above are gone
        if (level >= 0) {
            open_menus.levels[level].popup = NULL;
            CloseFromLevel(level);
        }
        return 0;
    case HANDLER_EVENT_MOUSE:  // presses, releases and drags in the menu
        return level >= 0 ? MenuPopupMouse((T_MOUSE_MSG *)data) : 0;
    case HANDLER_EVENT_KEY:  // keys come to the open menus first
        return open_menus.depth > 0 ? MenuKey((T_KEY_MSG *)data) : 0;
    case HANDLER_EVENT_OUTSIDE:  // a press outside every open menu
        return MenuPressOutside((T_MOUSE_MSG *)data);
    case HANDLER_EVENT_BREAK:  // the press was broken off
        open_menus.pressed = 0;
        return 0;
    }
    return 0;
}

// --- Painting ----------------------------------------------------------------------------------------
static void DrawEntry(t_Menu *entry, const T_RPOS *panel, i16 y, int highlighted)
{
    T_DISPLAY_RECORD *look = DISPLAY_RECORD;
    i16 height = MenuEntryHeight(entry);
    i16 left = (i16)(panel->x + MENU_PANEL_BORDER + MENU_PANEL_PAD);
    i16 right = (i16)(panel->x + panel->w - MENU_PANEL_BORDER - MENU_PANEL_PAD);
    if (entry->kind == MENU_KIND_SEPARATOR) {
        i16 line = (i16)(y + height / 2);
        DrawLine((i16)(left + 2), line, (i16)(right - 3), line, look->gadget_dark_colour);
        return;
    }
    int grey = entry->menu_flags & MENU_FLAG_GREY;
    u32 colour = grey ? look->disabled_text_colour : look->gadget_text_colour;
    if (highlighted) {
        DrawRectangle(left, y, (i16)(right - left), height, look->select_colour);
        colour = look->select_text_colour;
    }
    if (entry->icon_bank && entry->icon < entry->icon_bank->count) {
        i16 icon_x = (i16)(left + (MENU_ICON_COLUMN - MENU_ICON_SIZE) / 2 - 2);
        i16 icon_y = (i16)(y + (height - MENU_ICON_SIZE) / 2);
        DrawIconScaled(entry->icon_bank, entry->icon, icon_x, icon_y, MENU_ICON_SIZE, MENU_ICON_SIZE);
        if (grey)
            BlendRectangle(icon_x, icon_y, MENU_ICON_SIZE, MENU_ICON_SIZE, look->field_colour, 150);
    }
    i16 text_y = (i16)(y + (height - GetActiveFontHeight()) / 2);
    DrawMenuLabel((i16)(left + MENU_ICON_COLUMN), text_y, entry->label, entry->shortcut, colour);
    i16 key_right = right;
    if (entry->kind == MENU_KIND_SUBMENU) {  // a small arrow pointing right
        i16 tip = (i16)(right - 4), mid = (i16)(y + height / 2);
        for (i16 row = 0; row < 4; row++)
            DrawLine((i16)(tip - 3 + row), (i16)(mid - 3 + row), (i16)(tip - 3 + row), (i16)(mid + 3 - row), colour);
        key_right = (i16)(right - MENU_ARROW_ROOM);
    }
    if (u32 key = MenuEntryKey(entry)) {
        char name[KEY_NAME_SIZE];
        KeyName(key, name);
        DrawText((i16)(key_right - GetStringWidth(name) - 4), text_y, name, colour);
    }
}

static void MenuPopupPaint(t_Handler *head)
{
    i32 level = LevelOfPopup(head->window);
    if (level < 0)
        return;
    T_OPEN_LEVEL *open = &open_menus.levels[level];
    T_DISPLAY_RECORD *look = DISPLAY_RECORD;
    const T_RPOS *p = &open->panel;
    MenuClip(p->x, p->y, (i16)(p->w + MENU_SHADOW), (i16)(p->h + MENU_SHADOW));
    BlendRectangle((i16)(p->x + MENU_SHADOW), (i16)(p->y + p->h), p->w, MENU_SHADOW, 0, MENU_SHADOW_ALPHA);
    BlendRectangle((i16)(p->x + p->w), (i16)(p->y + MENU_SHADOW), MENU_SHADOW, (i16)(p->h - MENU_SHADOW), 0,
                   MENU_SHADOW_ALPHA);
    DrawRectangle(p->x, p->y, p->w, p->h, look->field_colour);
    DrawOutLineBox(p->x, p->y, p->w, p->h, look->frame_dark_colour);
    T_MENU_FONT_STATE font;
    MenuFontBegin(&font);
    i16 y = (i16)(p->y + MENU_PANEL_BORDER + MENU_PANEL_PAD);
    i32 place = 0;
    for (t_Menu *entry = (t_Menu *)open->menu->items.first; entry->next; entry = entry->next, place++) {
        DrawEntry(entry, p, y, place == open->index);
        y = (i16)(y + MenuEntryHeight(entry));
    }
    MenuFontEnd(&font);
}
