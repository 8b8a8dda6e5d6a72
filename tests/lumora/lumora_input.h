// Input for the toolkit's own tests: a headless toolkit in a temporary data root, synthetic
// presses, moves, keys and typing, and turns of the loop.
#pragma once
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "lumora/lumora_internal.h"

// A headless screen of 800 by 600 in a fresh data root for each test.
class LumoraTest : public ::testing::Test {
  protected:
    void SetUp() override;
    void TearDown() override;
    std::string data_root;
    u64 blocks_at_start;  // every block the toolkit took is given back at close
};

void Turn(int turns = 1);  // turns of the loop; each advances the virtual clock by a frame
void Move(i16 x, i16 y, u16 qualifiers = 0);
void Press(i16 x, i16 y, u16 button = 1, u16 qualifiers = 0);
void Release(i16 x, i16 y, u16 button = 1, u16 qualifiers = 0);
// Press and release in one turn, then a pause long enough that the next press is no double click.
void Click(i16 x, i16 y, u16 button = 1, u16 qualifiers = 0);
void DoubleClick(i16 x, i16 y);               // two quick clicks in one turn, then the pause
void Drag(i16 x1, i16 y1, i16 x2, i16 y2);  // press, two moves, release, one turn
void Key(u16 key, u16 qualifiers = 0);      // pushed and taken in one turn
void TypeText(const char *text);

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
t_Window *MakeWindow(const char *name, i16 x, i16 y, i16 w, i16 h, u32 flags, u32 idcmp,
                     t_Window *parent = nullptr, T_MESSAGE_FN message = RecordMessage);
t_gadget *MakeGadget(t_Window *window, const char *name, u16 type, i16 x, i16 y, i16 w, i16 h,
                     u32 item_code, u32 action, u32 flags = 0);
