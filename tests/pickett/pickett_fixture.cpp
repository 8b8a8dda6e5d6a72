// The selector suites' set-up and a person's input through the headless display.
#include "pickett_fixture.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include <filesystem>
#include <fstream>

#define PAUSE_AFTER_CLICK_MS 1000  // past the double-click time

std::vector<SPY_MESSAGE> spy;
void (*spy_check)(u32 item_code, u32 msg, void *data);

u32 SpyParentMessage(t_Window *window, u32 item_code, u32 msg, void *data) {
    (void)window;
    SPY_MESSAGE m = {item_code, msg, data, "", ""};
    if (msg == ACT_REQUESTER_OK && data && item_code == 7) {  // the file selectors of the tests
        T_FILE_REQUESTER_ANSWER *answer = (T_FILE_REQUESTER_ANSWER *)data;
        m.directory = answer->directory;
        m.name = answer->name;
    }
    spy.push_back(m);
    if (spy_check) spy_check(item_code, msg, data);
    return 0;
}

void PickettTest::SetUp() {
    char pattern[] = "/tmp/pickett_test_XXXXXX";
    ASSERT_NE(mkdtemp(pattern), nullptr);
    data_root = pattern;
    scratch = data_root + "/files";
    std::filesystem::create_directories(scratch);
    _OstrandBase->log_level = -1;
    blocks_at_start = _OstrandBase->blocks_allocated;
    ASSERT_TRUE(OpenToolkit("headless", 800, 600, data_root.c_str()));
    spy.clear();
    spy_check = nullptr;
}

void PickettTest::TearDown() {
    CloseToolkit();
    EXPECT_EQ(_OstrandBase->blocks_allocated, blocks_at_start) << "blocks left behind";
    std::filesystem::permissions(scratch, std::filesystem::perms::owner_all,
                                 std::filesystem::perm_options::add);
    for (auto &e : std::filesystem::recursive_directory_iterator(scratch))
        if (e.is_directory())
            std::filesystem::permissions(e.path(), std::filesystem::perms::owner_all,
                                         std::filesystem::perm_options::add);
    std::filesystem::remove_all(data_root);
}

t_Window *PickettTest::MakeParent(u32 idcmp) {
    T_WINDOWOBJINIT init = {};
    init.x = 40, init.y = 20, init.w = 700, init.h = 540;
    init.flags = WF_TITLE | WF_BORDER | WF_CLOSE;
    init.idcmp = idcmp;
    init.message = SpyParentMessage;
    parent = (t_Window *)CreateObject(&CURRENT_DISPLAY->window_class->head, "Parent", &init);
    return parent;
}

void PickettTest::MakeFiles(const std::vector<std::string> &paths) {
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

std::vector<u32> PickettTest::MessagesOf(u32 msg) const {
    std::vector<u32> codes;
    for (const SPY_MESSAGE &m : spy)
        if (m.msg == msg) codes.push_back(m.item_code);
    return codes;
}

static void Push(u16 kind, i16 x, i16 y, u16 button, u16 key, u16 qualifiers) {
    T_INPUT_EVENT e = {};
    e.kind = kind, e.x = x, e.y = y, e.button = button, e.key = key, e.qualifiers = qualifiers;
    HeadlessPush(&e);
}

void PickettTest::Turn(u32 turns) {
    for (u32 i = 0; i < turns; i++) RefreshHandlers(nullptr);
}

void PickettTest::Click(i16 x, i16 y) {
    Push(INPUT_MOUSE_MOVE, x, y, 0, 0, 0);
    Push(INPUT_MOUSE_DOWN, x, y, 1, 0, 0);
    Push(INPUT_MOUSE_UP, x, y, 1, 0, 0);
    Turn();
    HeadlessAdvance(PAUSE_AFTER_CLICK_MS);
}

void PickettTest::DoubleClick(i16 x, i16 y) {
    Push(INPUT_MOUSE_MOVE, x, y, 0, 0, 0);
    for (int i = 0; i < 2; i++) {
        Push(INPUT_MOUSE_DOWN, x, y, 1, 0, 0);
        Push(INPUT_MOUSE_UP, x, y, 1, 0, 0);
    }
    Turn();
    HeadlessAdvance(PAUSE_AFTER_CLICK_MS);
}

void PickettTest::Drag(i16 x1, i16 y1, i16 x2, i16 y2) {
    Push(INPUT_MOUSE_MOVE, x1, y1, 0, 0, 0);
    Push(INPUT_MOUSE_DOWN, x1, y1, 1, 0, 0);
    Push(INPUT_MOUSE_MOVE, (i16)((x1 + x2) / 2), (i16)((y1 + y2) / 2), 0, 0, 0);
    Push(INPUT_MOUSE_MOVE, x2, y2, 0, 0, 0);
    Push(INPUT_MOUSE_UP, x2, y2, 1, 0, 0);
    Turn();
    HeadlessAdvance(PAUSE_AFTER_CLICK_MS);
}

void PickettTest::Key(u16 key, u16 qualifiers) {
    Push(INPUT_KEY_DOWN, 0, 0, 0, key, qualifiers);
    Turn();
}

void PickettTest::Type(const char *text) {
    T_INPUT_EVENT e = {};
    e.kind = INPUT_TEXT;
    snprintf(e.text, sizeof(e.text), "%s", text);
    HeadlessPush(&e);
    Turn();
}

void PickettTest::ClickGadget(t_Window *window, u32 item_code) {
    t_gadget *g = FindGadgetByItemCode(window, item_code);
    ASSERT_NE(g, nullptr) << "no gadget " << item_code;
    Click(g->screen_x + g->base_width / 2, g->screen_y + g->base_height / 2);
}

std::vector<std::string> ListTexts(t_gadget *list) {
    std::vector<std::string> texts;
    T_LIST_DATA *data = (T_LIST_DATA *)list->class_data;
    for (T_LIST_ENTRY *e = (T_LIST_ENTRY *)data->entries.first; e->next; e = e->next)
        texts.push_back(e->name);
    return texts;
}

int ListIndexOf(t_gadget *list, const char *text) {
    std::vector<std::string> texts = ListTexts(list);
    for (size_t i = 0; i < texts.size(); i++)
        if (texts[i] == text) return (int)i;
    return -1;
}

void ListRowPoint(t_gadget *list, int index, i16 *x, i16 *y) {
    T_LIST_LAYOUT layout;
    ListLayout(list, &layout);
    T_LIST_DATA *data = (T_LIST_DATA *)list->class_data;
    *x = layout.inner.x + layout.inner.w / 2;
    *y = (i16)(layout.inner.y + (index - data->top) * layout.row_h + layout.row_h / 2);
}
