// The menu suites' set-up: the recording owner window, sample menus and places on screen.
#include "menus/menu_fixture.h"

std::vector<T_SPY_MESSAGE> spy_messages;
void (*spy_on_menu_open)(u32 item_code);

u32 OpenPopups(void)
{
    u32 count = 0;
    t_List *windows = &CURRENT_DISPLAY->window_class->windows;
    for (t_Window *w = (t_Window *)windows->first; w->next; w = w->next)
        if (IsWindowLive(w) && (w->extra_flags & WEX_POPUP))
            count++;
    return count;
}

t_Window *PopupAt(u32 level)
{
    t_List *windows = &CURRENT_DISPLAY->window_class->windows;
    for (t_Window *w = (t_Window *)windows->first; w->next; w = w->next)
        if (IsWindowLive(w) && (w->extra_flags & WEX_POPUP) && level-- == 0)
            return w;
    return NULL;
}

u32 SpyMessage(t_Window *window, u32 item_code, u32 msg, void *data)
{
    (void)window;
    if (msg == ACT_MENU_OPEN && spy_on_menu_open)
        spy_on_menu_open(item_code);
    spy_messages.push_back({item_code, msg, data, OpenPopups()});
    return 0;
}

void ToolkitTest::SetUp()
{
    LumoraTest::SetUp();
    spy_messages.clear();
    spy_on_menu_open = nullptr;
    owner = MakeWindow("owner", 40, 30, 500, 400, WF_TITLE | WF_BORDER, IDCMP_MENU_OPEN | IDCMP_KEY | IDCMP_TERMINATE,
                       nullptr, SpyMessage);
    ASSERT_NE(owner, nullptr);
    Turn();
    spy_messages.clear();
}

std::vector<T_SPY_MESSAGE> ToolkitTest::MessagesOf(u32 msg) const
{
    std::vector<T_SPY_MESSAGE> found;
    for (const T_SPY_MESSAGE &m : spy_messages)
        if (m.msg == msg)
            found.push_back(m);
    return found;
}

void TitleCentre(T_MENU_HANDLER *handler, t_Menu *title, i16 *x, i16 *y)
{
    T_RPOS rect;
    MenuTitleRect(handler, title, &rect);
    *x = (i16)(rect.x + rect.w / 2);
    *y = (i16)(rect.y + rect.h / 2);
}

void EntryCentre(u32 level, t_Menu *menu, u32 index, i16 *x, i16 *y)
{
    t_Window *popup = PopupAt(level);
    ASSERT_NE(popup, nullptr);
    i32 top = popup->y + MENU_PANEL_BORDER + MENU_PANEL_PAD;
    t_Menu *entry = (t_Menu *)menu->items.first;
    for (u32 place = 0; place < index; place++, entry = entry->next)
        top += MenuEntryHeight(entry);
    *x = (i16)(popup->x + (popup->w - MENU_SHADOW) / 2);
    *y = (i16)(top + MenuEntryHeight(entry) / 2);
}

// What a row of the sample tree is.
enum { ROW_TITLE, ROW_ENTRY, ROW_SEPARATOR, ROW_SUBMENU, ROW_SUBMENU_END };

//  what            label     item code      shortcut
static const struct {
    u8 what;
    const char *label;
    u32 item_code;
    u8 shortcut;
} sample_rows[] = {
    {ROW_TITLE, "File", SAMPLE_FILE, 'F'},
    {ROW_ENTRY, "Open", SAMPLE_OPEN, 'O'},
    {ROW_ENTRY, "Close", SAMPLE_CLOSE, 'C'},
    {ROW_SEPARATOR, "", 0, 0},
    {ROW_ENTRY, "Save", SAMPLE_SAVE, 'S'},
    {ROW_SUBMENU, "Recent", SAMPLE_RECENT, 'R'},
    {ROW_ENTRY, "One", SAMPLE_ONE, '1'},
    {ROW_ENTRY, "Two", SAMPLE_TWO, '2'},
    {ROW_SUBMENU_END, NULL, 0, 0},
    {ROW_SEPARATOR, "", 0, 0},
    {ROW_ENTRY, "Exit", SAMPLE_EXIT, 'x'},
    {ROW_TITLE, "Edit", SAMPLE_EDIT, 'E'},
    {ROW_ENTRY, "Undo", SAMPLE_UNDO, 'U'},
    {ROW_ENTRY, "Redo", SAMPLE_REDO, 'R'},
    {ROW_TITLE, "Layout", SAMPLE_LAYOUT, 'e'},
    {ROW_ENTRY, "Centre", SAMPLE_CENTRE, 'C'},
};

// Built as the application builds its menus: one init record, reused and changed field by field.
T_MENU_HANDLER *BuildSampleMenus(t_Window *window)
{
    T_MENU_HANDLER *handler = NewMenuHandler(window);
    T_MENUOBJECTINIT init;
    memset(&init, 0, sizeof(init));
    for (const auto &row : sample_rows) {
        init.item_code = row.item_code;
        init.shortcut = row.shortcut;
        switch (row.what) {
        case ROW_TITLE:
            init.kind = MENU_KIND_TITLE;
            CreateObject(&handler->head, row.label, &init);
            break;
        case ROW_ENTRY:
            init.kind = MENU_KIND_ENTRY;
            CreateObject(&handler->head, row.label, &init);
            break;
        case ROW_SEPARATOR:
            init.kind = MENU_KIND_SEPARATOR;
            CreateObject(&handler->head, row.label, &init);
            break;
        case ROW_SUBMENU:
            init.kind = MENU_KIND_SUBMENU;
            init.parent_list = (t_List *)CreateObject(&handler->head, row.label, &init);
            break;
        case ROW_SUBMENU_END:
            init.parent_list = NULL;
            break;
        }
    }
    return handler;
}
