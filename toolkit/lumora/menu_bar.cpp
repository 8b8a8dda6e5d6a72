// The menu bar: its handler on a window, its place above the user area, painting, and the presses
// and Alt+letter keys that open its titles. What an open menu does is in menu_popup.cpp.
#include "lumora/menu_internal.h"

static T_MENU_HANDLER *bar_pressed;  // the bar that took the press in progress, or null

static u32 MenuBarInput(t_Handler *head, u32 event, void *data);
static void MenuBarPaint(t_Handler *head);

static void InitMenuHandler(T_MENU_HANDLER *handler)
{
    handler->head.kind = HANDLER_KIND_MENU;
    InitList(&handler->titles, "titles");
    handler->last_title = NULL;
    handler->open_title = NULL;
    handler->open_index = MENU_HIGHLIGHT_NONE;
    handler->open_submenu = NULL;
    handler->submenu_index = MENU_HIGHLIGHT_NONE;
}

// The window's menu bar, which takes room above its user area. Null, with a log line, without a
// window.
T_MENU_HANDLER *NewMenuHandler(t_Window *window)
{
    if (!window) {
        myprintf(0, "NewMenuHandler: no window\n");
        return NULL;
    }
    T_MENU_HANDLER *handler = (T_MENU_HANDLER *)NewHandler(&window->handlers, MenuBarInput, MenuBarPaint, "menus", 100,
                                                           sizeof(T_MENU_HANDLER), window);
    InitMenuHandler(handler);
    RecalcUserSize(window);
    return handler;
}

// A menu handler on a list of its own, with no bar, for building context menus. The entries it
// makes belong to the lists they go into; titles made on it go with it at DelHandler.
T_MENU_HANDLER *CreateMenuHandler(t_List *list)
{
    if (!list) {
        myprintf(0, "CreateMenuHandler: no list\n");
        return NULL;
    }
    T_MENU_HANDLER *handler =
        (T_MENU_HANDLER *)NewHandler(list, MenuBarInput, NULL, "menus", 100, sizeof(T_MENU_HANDLER), NULL);
    InitMenuHandler(handler);
    return handler;
}

// The bar is as high as the system font plus a margin whenever the window has a menu handler, so
// that the user area doesn't move as titles are added.
i16 MenuBarHeight(t_Window *window)
{
    return FindMenuHandler(window) ? (i16)(MenuFontHeight() + MENU_BAR_HEIGHT_EXTRA) : 0;
}

int MenuBarRect(t_Window *window, T_RPOS *rect)
{
    i16 height = window ? MenuBarHeight(window) : 0;
    if (!height)
        return 0;
    rect->x = window->user_x;
    rect->y = (i16)(window->user_y - height);
    rect->w = window->user_w;
    rect->h = height;
    return 1;
}

// Titles stand side by side from the bar's left, each its label's width plus a margin.
void MenuTitleRect(T_MENU_HANDLER *handler, t_Menu *title, T_RPOS *rect)
{
    T_RPOS bar = {0, 0, 0, 0};
    MenuBarRect(handler->head.window, &bar);
    T_MENU_FONT_STATE font;
    MenuFontBegin(&font);
    i32 x = bar.x + MENU_BAR_LEFT;
    for (t_Menu *each = (t_Menu *)handler->titles.first; each->next; each = each->next) {
        i32 width = GetStringWidth(each->label ? each->label : "") + 2 * MENU_TITLE_PAD;
        if (each == title) {
            rect->x = (i16)x;
            rect->w = (i16)width;
            break;
        }
        x += width;
    }
    MenuFontEnd(&font);
    rect->y = bar.y;
    rect->h = bar.h;
}

t_Menu *MenuTitleAt(T_MENU_HANDLER *handler, i16 x, i16 y)
{
    T_RPOS bar;
    if (!MenuBarRect(handler->head.window, &bar) || !MenuInside(&bar, x, y))
        return NULL;
    for (t_Menu *title = (t_Menu *)handler->titles.first; title->next; title = title->next) {
        T_RPOS rect;
        MenuTitleRect(handler, title, &rect);
        if (MenuInside(&rect, x, y))
            return title;
    }
    return NULL;
}

// Titles may share a letter ("Edit" and "Layout" both answer to E): pressing it again moves on to
// the next title with it.
t_Menu *MenuTitleByShortcut(T_MENU_HANDLER *handler, u32 key, t_Menu *after)
{
    if (LIST_EMPTY(&handler->titles))
        return NULL;
    t_Menu *start = after && after->next && after->next->next ? after->next : (t_Menu *)handler->titles.first;
    t_Menu *title = start;
    do {
        if (MenuShortcutMatches(title->shortcut, key))
            return title;
        title = title->next->next ? title->next : (t_Menu *)handler->titles.first;
    } while (title != start);
    return NULL;
}

void OpenBarTitle(T_MENU_HANDLER *handler, t_Menu *title, i32 highlight)
{
    t_Window *owner = handler->head.window;
    if (!owner || !title)
        return;
    CloseOpenMenus();
    // The owner greys what it must before the menu is measured and shown.
    if (owner->idcmp & IDCMP_MENU_OPEN)
        SendWindowMessage(owner, title->menu_item_code, ACT_MENU_OPEN, NULL);
    if (!IsWindowLive(owner))
        return;
    T_RPOS rect;
    MenuTitleRect(handler, title, &rect);
    OpenMenuLevel(0, owner, handler, title, rect.x, (i16)(rect.y + rect.h), highlight);
}

static void MenuBarPaint(t_Handler *head)
{
    T_MENU_HANDLER *handler = (T_MENU_HANDLER *)head;
    T_DISPLAY_RECORD *look = DISPLAY_RECORD;
    T_RPOS bar;
    if (!MenuBarRect(head->window, &bar))
        return;
    MenuClip(bar.x, bar.y, bar.w, bar.h);
    DrawRectangle(bar.x, bar.y, bar.w, bar.h, look->gadget_colour);
    DrawLine(bar.x, (i16)(bar.y + bar.h - 1), (i16)(bar.x + bar.w - 1), (i16)(bar.y + bar.h - 1),
             look->gadget_dark_colour);
    T_MENU_FONT_STATE font;
    MenuFontBegin(&font);
    i16 text_y = (i16)(bar.y + (bar.h - GetActiveFontHeight()) / 2);
    for (t_Menu *title = (t_Menu *)handler->titles.first; title->next; title = title->next) {
        T_RPOS rect;
        MenuTitleRect(handler, title, &rect);
        u32 colour = look->gadget_text_colour;
        if (title == handler->open_title) {
            DrawRectangle(rect.x, (i16)(rect.y + 1), rect.w, (i16)(rect.h - 2), look->select_colour);
            colour = look->select_text_colour;
        }
        DrawMenuLabel((i16)(rect.x + MENU_TITLE_PAD), text_y, title->label, title->shortcut, colour);
    }
    MenuFontEnd(&font);
}

static u32 MenuBarMouse(T_MENU_HANDLER *handler, T_MOUSE_MSG *msg)
{
    T_RPOS bar;
    if (!MenuBarRect(handler->head.window, &bar))
        return 0;
    switch (msg->mouse_action) {
    case ACT_LMOUSE_DOWN:  // a title opens, or closes when it is open; the bar keeps the press
        if (!MenuInside(&bar, msg->x, msg->y))
            return 0;
        bar_pressed = handler;
        if (t_Menu *title = MenuTitleAt(handler, msg->x, msg->y)) {
            if (title == handler->open_title)
                CloseOpenMenus();
            else
                OpenBarTitle(handler, title, MENU_HIGHLIGHT_NONE);
        }
        return 1;
    case ACT_MOUSE_MOVE:  // dragged from the title over titles and entries
        if (bar_pressed != handler)
            return 0;
        MenuTrackPointer(msg->x, msg->y);
        return 1;
    case ACT_LMOUSE_UP:  // released over an entry: it is picked
        if (bar_pressed != handler)
            return 0;
        bar_pressed = NULL;
        MenuReleaseAt(msg->x, msg->y);
        return 1;
    case ACT_RMOUSE_DOWN:  // the right button does nothing on the bar
    case ACT_RMOUSE_UP:
    case ACT_LMOUSE_DBL:
        return MenuInside(&bar, msg->x, msg->y);
    }
    return 0;
}

static u32 MenuBarKey(T_MENU_HANDLER *handler, T_KEY_MSG *key)
{
    if (!(key->qualifiers & QUAL_ALT) || !handler->head.window)
        return 0;
    t_Menu *title = MenuTitleByShortcut(handler, key->key_code, handler->open_title);
    if (!title)
        return 0;
    OpenBarTitle(handler, title, MENU_HIGHLIGHT_FIRST);
    return 1;
}

static u32 MenuBarInput(t_Handler *head, u32 event, void *data)
{
    T_MENU_HANDLER *handler = (T_MENU_HANDLER *)head;
    switch (event) {
    case HANDLER_EVENT_END:  // the handler goes, and its titles with it
        if (OpenMenuBar() == handler)
            CloseOpenMenus();
        if (bar_pressed == handler)
            bar_pressed = NULL;
        while (!LIST_EMPTY(&handler->titles))
            RemoveMenuObject(handler, (t_Menu *)handler->titles.first);
        return 0;
    case HANDLER_EVENT_MOUSE:  // presses on the bar
        return head->window ? MenuBarMouse(handler, (T_MOUSE_MSG *)data) : 0;
    case HANDLER_EVENT_KEY:  // Alt and a title's letter
        return MenuBarKey(handler, (T_KEY_MSG *)data);
    case HANDLER_EVENT_BREAK:  // the press was broken off
        if (bar_pressed == handler)
            bar_pressed = NULL;
        return 0;
    }
    return 0;
}
