// The toolkit's own suites' fixture: a headless toolkit per test, recorded messages, windows and
// gadgets made through the handlers.
#include "tests/harness/toolkit_fixture.h"

#include <stdlib.h>
#include <string.h>

#include <filesystem>

std::vector<RECORDED_MESSAGE> recorded;

void LumoraTest::SetUp()
{
    char pattern[] = "/tmp/lumora_test_XXXXXX";
    ASSERT_NE(mkdtemp(pattern), nullptr);
    data_root = pattern;
    _OstrandBase->log_level = 0;
    blocks_at_start = _OstrandBase->blocks_allocated;
    ASSERT_TRUE(OpenToolkit("headless", 800, 600, data_root.c_str()));
    recorded.clear();
}

void LumoraTest::TearDown()
{
    CloseToolkit();
    EXPECT_EQ(_OstrandBase->blocks_allocated, blocks_at_start);
    EXPECT_EQ(_OstrandBase->size_mismatches, 0u);
    std::filesystem::remove_all(data_root);
}

u32 RecordMessage(t_Window *window, u32 item_code, u32 msg, void *data)
{
    recorded.push_back({window, item_code, msg, data});
    return 0;
}

u32 CountRecorded(u32 msg, t_Window *window)
{
    u32 n = 0;
    for (const RECORDED_MESSAGE &m : recorded)
        n += m.msg == msg && (!window || m.window == window);
    return n;
}

t_Window *MakeWindow(const char *name, i16 x, i16 y, i16 w, i16 h, u32 flags, u32 idcmp, t_Window *parent,
                     T_MESSAGE_FN message)
{
    T_WINDOWOBJINIT init = {};
    init.x = x, init.y = y, init.w = w, init.h = h;
    init.flags = flags, init.idcmp = idcmp, init.message = message, init.parent = parent;
    return (t_Window *)CreateObject(&CURRENT_DISPLAY->window_class->head, name, &init);
}

t_gadget *MakeGadget(t_Window *window, const char *name, u16 type, i16 x, i16 y, i16 w, i16 h, u32 item_code,
                     u32 action, u32 flags)
{
    t_Gaget_Handler *gh = NewGadgetHandler(window);
    T_GADGETOBJECTINIT init = {};
    init.type = type, init.x = x, init.y = y, init.base_width = w, init.base_height = h;
    init.item_code = item_code, init.action = action, init.flags = flags;
    return (t_gadget *)CreateObject(&gh->head, name, &init);
}
