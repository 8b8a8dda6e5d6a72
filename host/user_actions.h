// A person's actions on the headless display: pointer, buttons, keys, typing, turns of the loop,
// screenshots. The script player and the tests' harness both act through these.
#pragma once
#include "toolkit.h"

// Each action queues its input and turns the loop until the input has been taken, plus one turn
// so that what it caused has been painted.
void UserMove(i16 x, i16 y);
void UserPress(i16 x, i16 y, u16 button);    // button 1 left, 3 right
void UserRelease(i16 x, i16 y, u16 button);
void UserClick(i16 x, i16 y, u16 button);
void UserDoubleClick(i16 x, i16 y);
void UserDrag(i16 x1, i16 y1, i16 x2, i16 y2);  // left button, in steps
void UserKey(u16 key, u16 qualifiers);
void UserType(const char *text);
void UserTurns(u32 turns);
// Writes the screen as a PNG; false (with a log line) when it can't be written.
int UserScreenshot(const char *path);
// Parses "ctrl+s", "alt+f4", "escape", "f10", "shift+tab", "a", "delete"...; false when unknown.
int ParseKeyName(const char *name, u16 *key, u16 *qualifiers);
// The centre of a gadget of a live window found by name (any level), by item code; false if none.
int FindGadgetCentre(const char *window_name, u32 item_code, i16 *x, i16 *y);
t_Window *FindLiveWindow(const char *name);
// The centre of a toolbar's button, the toolbar found as a live window by name; false if none.
int FindToolCentre(const char *toolbar_name, u16 entry, i16 *x, i16 *y);
