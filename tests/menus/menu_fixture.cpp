// The menu suites' set-up: headless toolkit, the recording owner window, input and places.
#include "menus/menu_fixture.h"

#include <ftw.h>
#include <unistd.h>

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

static int RemoveEntry(const char *path, const struct stat *, int, struct FTW *)
{
    return remove(path);
}

void ToolkitTest::SetUp()
{
    char root[] = "/tmp/qf_menus_XXXXXX";
    ASSERT_NE(mkdtemp(root), nullptr);
    data_root = root;
    ASSERT_TRUE(OpenToolkit("headless", 800, 600, root));
    spy_messages.clear();
    spy_on_menu_open = nullptr;
    T_WINDOWOBJINIT init;
    memset(&init, 0, sizeof(init));
    init.x = 40;
    init.y = 30;
    init.w = 500;
    init.h = 400;
    init.flags = WF_TITLE | WF_BORDER;
    init.idcmp = IDCMP_MENU_OPEN | IDCMP_KEY | IDCMP_TERMINATE;
    init.message = SpyMessage;
    owner = (t_Window *)CreateObject(&CURRENT_DISPLAY->window_class->head, "owner", &init);
    ASSERT_NE(owner, nullptr);
    Turn();
    spy_messages.clear();
    blocks_at_start = _OstrandBase->blocks_allocated;
}

void ToolkitTest::TearDown()
{
    CloseToolkit();
    nftw(data_root.c_str(), RemoveEntry, 8, FTW_DEPTH | FTW_PHYS);
}

static void Push(T_INPUT_EVENT event)
{
    HeadlessPush(&event);
    RefreshHandlers(NULL);
}

void ToolkitTest::Move(i16 x, i16 y)
{
    T_INPUT_EVENT e = {};
    e.kind = INPUT_MOUSE_MOVE, e.x = x, e.y = y;
    Push(e);
}

void ToolkitTest::Press(i16 x, i16 y, u16 button)
{
    T_INPUT_EVENT e = {};
    e.kind = INPUT_MOUSE_DOWN, e.x = x, e.y = y, e.button = button;
    Push(e);
}

void ToolkitTest::Release(i16 x, i16 y, u16 button)
{
    T_INPUT_EVENT e = {};
    e.kind = INPUT_MOUSE_UP, e.x = x, e.y = y, e.button = button;
    Push(e);
}

void ToolkitTest::Click(i16 x, i16 y, u16 button)
{
    Press(x, y, button);
    Release(x, y, button);
}

void ToolkitTest::Key(u16 key, u16 qualifiers)
{
    T_INPUT_EVENT e = {};
    e.kind = INPUT_KEY_DOWN, e.key = key, e.qualifiers = qualifiers;
    Push(e);
}

void ToolkitTest::Turn(u32 turns)
{
    while (turns--)
        RefreshHandlers(NULL);
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
