// The selector suites' set-up: the spy parent, the scratch folders and the list helpers.
#include "pickett_fixture.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include <filesystem>
#include <fstream>

std::vector<SPY_MESSAGE> spy;
void (*spy_check)(u32 item_code, u32 msg, void *data);

u32 SpyParentMessage(t_Window *window, u32 item_code, u32 msg, void *data)
{
    (void)window;
    SPY_MESSAGE m = {item_code, msg, data, "", ""};
    if (msg == ACT_REQUESTER_OK && data && item_code == 7) {  // the file selectors of the tests
        T_FILE_REQUESTER_ANSWER *answer = (T_FILE_REQUESTER_ANSWER *)data;
        m.directory = answer->directory;
        m.name = answer->name;
    }
    spy.push_back(m);
    if (spy_check)
        spy_check(item_code, msg, data);
    return 0;
}

void PickettTest::SetUp()
{
    LumoraTest::SetUp();
    scratch = data_root + "/files";
    std::filesystem::create_directories(scratch);
    _OstrandBase->log_level = -1;
    spy.clear();
    spy_check = nullptr;
}

// Folders a test locked are opened again, so that the data root can go.
void PickettTest::TearDown()
{
    for (auto &e : std::filesystem::recursive_directory_iterator(scratch))
        if (e.is_directory())
            std::filesystem::permissions(e.path(), std::filesystem::perms::owner_all,
                                         std::filesystem::perm_options::add);
    LumoraTest::TearDown();
}

t_Window *PickettTest::MakeParent(u32 idcmp)
{
    T_WINDOWOBJINIT init = {};
    init.x = 40, init.y = 20, init.w = 700, init.h = 540;
    init.flags = WF_TITLE | WF_BORDER | WF_CLOSE;
    init.idcmp = idcmp;
    init.message = SpyParentMessage;
    parent = (t_Window *)CreateObject(&CURRENT_DISPLAY->window_class->head, "Parent", &init);
    return parent;
}

void PickettTest::MakeFiles(const std::vector<std::string> &paths)
{
    for (const std::string &p : paths) {
        std::filesystem::path full = scratch + "/" + p;
        if (!p.empty() && p.back() == '/') {
            std::filesystem::create_directories(full);
        } else {
            std::filesystem::create_directories(full.parent_path());
            std::ofstream(full) << "x\n";
        }
    }
}

std::vector<u32> PickettTest::MessagesOf(u32 msg) const
{
    std::vector<u32> codes;
    for (const SPY_MESSAGE &m : spy)
        if (m.msg == msg)
            codes.push_back(m.item_code);
    return codes;
}

void PickettTest::ClickGadget(t_Window *window, u32 item_code)
{
    t_gadget *g = FindGadgetByItemCode(window, item_code);
    ASSERT_NE(g, nullptr) << "no gadget " << item_code;
    Click(g->screen_x + g->base_width / 2, g->screen_y + g->base_height / 2);
}

std::vector<std::string> ListTexts(t_gadget *list)
{
    std::vector<std::string> texts;
    T_LIST_DATA *data = (T_LIST_DATA *)list->class_data;
    for (T_LIST_ENTRY *e = (T_LIST_ENTRY *)data->entries.first; e->next; e = e->next)
        texts.push_back(e->name);
    return texts;
}

int ListIndexOf(t_gadget *list, const char *text)
{
    std::vector<std::string> texts = ListTexts(list);
    for (size_t i = 0; i < texts.size(); i++)
        if (texts[i] == text)
            return (int)i;
    return -1;
}

void ListRowPoint(t_gadget *list, int index, i16 *x, i16 *y)
{
    T_LIST_LAYOUT layout;
    ListLayout(list, &layout);
    T_LIST_DATA *data = (T_LIST_DATA *)list->class_data;
    *x = layout.inner.x + layout.inner.w / 2;
    *y = (i16)(layout.inner.y + (index - data->top) * layout.row_h + layout.row_h / 2);
}
