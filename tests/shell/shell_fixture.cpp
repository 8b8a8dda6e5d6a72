// Where the main window's titles, entries and tools are on screen, and a person's use of them.
#include "tests/shell/shell_fixture.h"

#include <stdio.h>

#include "lumora/lumora_internal.h"

void ShellTest::ClickTitle(u32 code)
{
    t_Menu *title = Title(code);
    ASSERT_NE(title, nullptr) << code;
    T_RPOS rect;
    MenuTitleRect(Menus(), title, &rect);
    UserClick((i16)(rect.x + rect.w / 2), (i16)(rect.y + rect.h / 2), 1);
}

// The open menus are popups; level 0 opened first.
static t_Window *PopupAt(u32 level)
{
    t_List *windows = &CURRENT_DISPLAY->window_class->windows;
    for (t_Window *w = (t_Window *)windows->first; w->next; w = w->next)
        if (IsWindowLive(w) && (w->extra_flags & WEX_POPUP) && level-- == 0)
            return w;
    return NULL;
}

u32 ShellTest::OpenMenus()
{
    u32 count = 0;
    while (PopupAt(count))
        count++;
    return count;
}

void ShellTest::ClickEntry(u32 level, t_Menu *menu, u32 code)
{
    ASSERT_NE(menu, nullptr);
    t_Menu *entry = (t_Menu *)menu->items.first;
    while (entry->next && (entry->kind == MENU_KIND_SEPARATOR || entry->menu_item_code != code))
        entry = entry->next;
    ASSERT_NE(entry->next, nullptr) << "no entry " << code;
    ClickEntryItself(level, menu, entry);
}

void ShellTest::ClickEntryItself(u32 level, t_Menu *menu, t_Menu *entry)
{
    t_Window *popup = PopupAt(level);
    ASSERT_NE(popup, nullptr) << "no menu open at level " << level;
    i32 top = popup->y + MENU_PANEL_BORDER + MENU_PANEL_PAD;
    for (t_Menu *e = (t_Menu *)menu->items.first; e->next && e != entry; e = e->next)
        top += MenuEntryHeight(e);
    UserClick((i16)(popup->x + (popup->w - MENU_SHADOW) / 2), (i16)(top + MenuEntryHeight(entry) / 2), 1);
}

void ShellTest::DrawGadget(t_Window *page, u16 tool, i16 x1, i16 y1, i16 x2, i16 y2)
{
    i16 x, y;
    ASSERT_TRUE(FindToolCentre(TOOLBAR_NAME, tool, &x, &y));
    UserClick(x, y, 1);
    UserDrag((i16)(page->user_x + x1), (i16)(page->user_y + y1), (i16)(page->user_x + x2), (i16)(page->user_y + y2));
}

std::vector<t_Window *> ShellTest::Pages()
{
    std::vector<t_Window *> pages;
    for (t_Window *child = h.main_window->first_child; child->next; child = child->next)
        if (IsPageWindow(child) && IsWindowLive(child))
            pages.push_back(child);
    return pages;
}

std::vector<std::string> ShellTest::RecentEntries()
{
    std::vector<std::string> paths;
    for (t_Menu *e = (t_Menu *)Title(MENU_FILE)->items.first; e->next; e = e->next)
        if (e->menu_item_code == ITEM_RECENT_OR_DROP)
            paths.push_back(e->user_data ? ((T_RECENT_FILE *)e->user_data)->name : "(no file)");
    return paths;
}

static u32 CountLive(t_List *list)
{
    u32 count = 0;
    for (t_Window *w = (t_Window *)list->first; w->next; w = w->next)
        if (IsWindowLive(w) && !(w->extra_flags & WEX_POPUP))
            count += 1 + CountLive(&w->children);
    return count;
}

u32 ShellTest::LiveWindows()
{
    return CountLive(&CURRENT_DISPLAY->window_class->windows);
}

std::string MessageBoxTextOf(const char *title)
{
    t_Window *box = FindLiveWindow(title);
    const char *text = box ? MessageBoxText(box) : NULL;
    return text ? text : "";
}

std::string TailOf(const std::vector<std::string> &paths)
{
    std::string tail;
    for (const std::string &path : paths) {
        u32 length = (u32)path.size() + 1;
        tail.append((const char *)&length, 4).append(path.c_str(), length);
    }
    return tail;
}

bool WriteTextFile(const std::string &path, const std::string &text)
{
    FILE *f = fopen(path.c_str(), "wb");
    if (!f)
        return false;
    bool written = fwrite(text.data(), 1, text.size(), f) == text.size();
    return fclose(f) == 0 && written;
}

static std::vector<T_ANSWER> answers;

T_ANSWER AnswerKeys(const char *window, std::vector<u16> keys)
{
    T_ANSWER answer = {window, {}, nullptr};
    for (u16 key : keys)
        answer.input.push_back(InputEvent(INPUT_KEY_DOWN, 0, 0, 0, key));
    return answer;
}

T_ANSWER AnswerYes()
{
    return AnswerKeys(QUERY_TITLE, {KEY_RETURN});
}
T_ANSWER AnswerNo()
{
    return AnswerKeys(QUERY_TITLE, {KEY_TAB, KEY_RETURN});
}
T_ANSWER AnswerCancel()
{
    return AnswerKeys(QUERY_TITLE, {KEY_ESCAPE});
}

T_ANSWER AnswerSaveAs(const std::string &path)
{
    T_ANSWER answer = {SAVE_AS_TITLE, {InputEvent(INPUT_KEY_DOWN, 0, 0, 0, KEY_CTRL('A'), QUAL_CONTROL)}, nullptr};
    answer.input.push_back(TextEvent(INPUT_TEXT, path.c_str()));
    answer.input.push_back(InputEvent(INPUT_KEY_DOWN, 0, 0, 0, KEY_RETURN));
    return answer;
}

// At each repaint of the main window: the next answer, once its window stands and nothing waits.
static void Answer(t_Handler *)
{
    if (answers.empty() || HeadlessPending() || !FindLiveWindow(answers.front().window))
        return;
    T_ANSWER answer = answers.front();
    answers.erase(answers.begin());
    for (const T_INPUT_EVENT &event : answer.input)
        PushEvent(event);
    if (answer.action)
        answer.action();
}

static u32 TakesNothing(t_Handler *, u32, void *)
{
    return 0;
}

void ExpectAnswers(t_Window *main_window, std::vector<T_ANSWER> given)
{
    answers = std::move(given);
    if (!FindNode(main_window->handlers.first, "person"))
        NewHandler(&main_window->handlers, TakesNothing, Answer, "person", -20, sizeof(t_Handler), main_window);
}

size_t AnswersLeft()
{
    return answers.size();
}
