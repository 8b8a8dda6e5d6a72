// A person's actions on the headless display: pointer, buttons, keys, typing, turns of the loop,
// screenshots. The script player and the tests' harness both act through these.
#pragma once
#include "display/display.h"
#include "toolkit.h"

#define USER_CLICK_GAP_MS 500  // after a click: the next press is no second click
#define DRAG_STEPS 8           // the moves of a drag between its press and its release

// What a person does, as one record: the script player and the calls below share its shapes.
typedef enum {
    USER_MOVE,
    USER_PRESS,
    USER_RELEASE,
    USER_CLICK,
    USER_DOUBLE_CLICK,
    USER_DRAG,
    USER_KEY,
    USER_TYPE,
} T_USER_ACTION_KIND;

typedef struct T_USER_ACTION {
    u16 kind;
    i16 x1, y1, x2, y2;  // the point; a drag's start and end
    u16 button;          // 1 left, 3 right
    u16 key, qualifiers;
    const char *text;  // typed
} T_USER_ACTION;

// The input of an action in batches: the events of a batch are queued together, and the loop
// turns until they have been taken, and once more; then the time goes on by `advance_ms`.
typedef struct T_INPUT_BATCH {
    T_INPUT_EVENT events[2];
    u16 count;
    u32 advance_ms;
} T_INPUT_BATCH;

typedef struct T_USER_BATCHES {
    T_INPUT_BATCH batches[DRAG_STEPS + 2];
    u32 count;
} T_USER_BATCHES;

// An action of `kind` at a point (a drag's start), the left button, nothing else set.
T_USER_ACTION UserAction(u16 kind, i16 x, i16 y);
// The batches that make `action`.
void UserActionBatches(const T_USER_ACTION *action, T_USER_BATCHES *out);

// Each action queues its input and turns the loop until the input has been taken, plus one turn
// so that what it caused has been painted.
void UserMove(i16 x, i16 y);
void UserPress(i16 x, i16 y, u16 button);  // button 1 left, 3 right
void UserRelease(i16 x, i16 y, u16 button);
void UserClick(i16 x, i16 y, u16 button);
void UserDoubleClick(i16 x, i16 y);
void UserDrag(i16 x1, i16 y1, i16 x2, i16 y2);  // left button, in steps
void UserKey(u16 key, u16 qualifiers);
void UserType(const char *text);
void UserTurns(u32 turns);
// Writes the screen as a PNG; false (with a log line) when it can't be written.
int UserScreenshot(const char *path);
// The centre of a gadget of a live window found by name (any level), by item code; false if none.
int FindGadgetCentre(const char *window_name, u32 item_code, i16 *x, i16 *y);
t_Window *FindLiveWindow(const char *name);
// The centre of a toolbar's button, the toolbar found as a live window by name; false if none.
int FindToolCentre(const char *toolbar_name, u16 entry, i16 *x, i16 *y);
