// Input for the toolkit's own tests: headless events pushed and the loop turned.
#include "lumora_input.h"

#include <stdlib.h>
#include <string.h>

#include <filesystem>

std::vector<RECORDED_MESSAGE> recorded;

#define PAUSE_AFTER_CLICK_MS 1000  // past the double-click time

void LumoraTest::SetUp() {
    char pattern[] = "/tmp/lumora_test_XXXXXX";
    ASSERT_NE(mkdtemp(pattern), nullptr);
    data_root = pattern;
    _OstrandBase->log_level = 0;
    blocks_at_start = _OstrandBase->blocks_allocated;
    ASSERT_TRUE(OpenToolkit("headless", 800, 600, data_root.c_str()));
    recorded.clear();
}

void LumoraTest::TearDown() {
    CloseToolkit();
    EXPECT_EQ(_OstrandBase->blocks_allocated, blocks_at_start);
    EXPECT_EQ(_OstrandBase->size_mismatches, 0u);
    std::filesystem::remove_all(data_root);
}

void Turn(int turns) {
    for (int i = 0; i < turns; i++) RefreshHandlers(nullptr);
}

static void Push(u16 kind, i16 x, i16 y, u16 button, u16 key, u16 qualifiers) {
    T_INPUT_EVENT e = {};
    e.kind = kind, e.x = x, e.y = y, e.button = button, e.key = key, e.qualifiers = qualifiers;
    HeadlessPush(&e);
}

void Move(i16 x, i16 y, u16 qualifiers) {
    Push(INPUT_MOUSE_MOVE, x, y, 0, 0, qualifiers);
    Turn();
}

void Press(i16 x, i16 y, u16 button, u16 qualifiers) {
    Push(INPUT_MOUSE_DOWN, x, y, button, 0, qualifiers);
    Turn();
}

void Release(i16 x, i16 y, u16 button, u16 qualifiers) {
    Push(INPUT_MOUSE_UP, x, y, button, 0, qualifiers);
    Turn();
}

void Click(i16 x, i16 y, u16 button, u16 qualifiers) {
    Push(INPUT_MOUSE_MOVE, x, y, 0, 0, qualifiers);
    Push(INPUT_MOUSE_DOWN, x, y, button, 0, qualifiers);
    Push(INPUT_MOUSE_UP, x, y, button, 0, qualifiers);
    Turn();
    HeadlessAdvance(PAUSE_AFTER_CLICK_MS);
}

void DoubleClick(i16 x, i16 y) {
    Push(INPUT_MOUSE_MOVE, x, y, 0, 0, 0);
    for (int i = 0; i < 2; i++) {
        Push(INPUT_MOUSE_DOWN, x, y, 1, 0, 0);
        Push(INPUT_MOUSE_UP, x, y, 1, 0, 0);
    }
    Turn();
    HeadlessAdvance(PAUSE_AFTER_CLICK_MS);
}

void Drag(i16 x1, i16 y1, i16 x2, i16 y2) {
    Push(INPUT_MOUSE_MOVE, x1, y1, 0, 0, 0);
    Push(INPUT_MOUSE_DOWN, x1, y1, 1, 0, 0);
    Push(INPUT_MOUSE_MOVE, (i16)((x1 + x2) / 2), (i16)((y1 + y2) / 2), 0, 0, 0);
    Push(INPUT_MOUSE_MOVE, x2, y2, 0, 0, 0);
    Push(INPUT_MOUSE_UP, x2, y2, 1, 0, 0);
    Turn();
    HeadlessAdvance(PAUSE_AFTER_CLICK_MS);
}

void Key(u16 key, u16 qualifiers) {
    Push(INPUT_KEY_DOWN, 0, 0, 0, key, qualifiers);
    Turn();
}

void TypeText(const char *text) {
    T_INPUT_EVENT e = {};
    e.kind = INPUT_TEXT;
    snprintf(e.text, sizeof(e.text), "%s", text);
    HeadlessPush(&e);
    Turn();
}

u32 RecordMessage(t_Window *window, u32 item_code, u32 msg, void *data) {
    recorded.push_back({window, item_code, msg, data});
    return 0;
}

u32 CountRecorded(u32 msg, t_Window *window) {
    u32 n = 0;
    for (const RECORDED_MESSAGE &m : recorded)
        n += m.msg == msg && (!window || m.window == window);
    return n;
}

t_Window *MakeWindow(const char *name, i16 x, i16 y, i16 w, i16 h, u32 flags, u32 idcmp,
                     t_Window *parent, T_MESSAGE_FN message) {
    T_WINDOWOBJINIT init = {};
    init.x = x, init.y = y, init.w = w, init.h = h;
    init.flags = flags, init.idcmp = idcmp, init.message = message, init.parent = parent;
    return (t_Window *)CreateObject(&CURRENT_DISPLAY->window_class->head, name, &init);
}

t_gadget *MakeGadget(t_Window *window, const char *name, u16 type, i16 x, i16 y, i16 w, i16 h,
                     u32 item_code, u32 action, u32 flags) {
    t_Gaget_Handler *gh = NewGadgetHandler(window);
    T_GADGETOBJECTINIT init = {};
    init.type = type, init.x = x, init.y = y, init.base_width = w, init.base_height = h;
    init.item_code = item_code, init.action = action, init.flags = flags;
    return (t_gadget *)CreateObject(&gh->head, name, &init);
}
