// The toolkit's own suites' fixture: a headless toolkit in a temporary data root, windows and
// gadgets made through the toolkit's handlers, and the messages a window was given.
#pragma once
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "lumora/lumora_internal.h"
#include "tests/harness/input.h"

// A headless screen of 800 by 600 in a fresh data root for each test.
class LumoraTest : public ::testing::Test
{
  protected:
    void SetUp() override;
    void TearDown() override;
    std::string data_root;
    u64 blocks_at_start;  // every block the toolkit took is given back at close
};

// What a window's message function was given.
struct RECORDED_MESSAGE {
    t_Window *window;
    u32 item_code, msg;
    void *data;
};
extern std::vector<RECORDED_MESSAGE> recorded;
u32 RecordMessage(t_Window *window, u32 item_code, u32 msg, void *data);
u32 CountRecorded(u32 msg, t_Window *window = nullptr);

// A window made through the window class handler.
t_Window *MakeWindow(const char *name, i16 x, i16 y, i16 w, i16 h, u32 flags, u32 idcmp, t_Window *parent = nullptr,
                     T_MESSAGE_FN message = RecordMessage);
t_gadget *MakeGadget(t_Window *window, const char *name, u16 type, i16 x, i16 y, i16 w, i16 h, u32 item_code,
                     u32 action, u32 flags = 0);
