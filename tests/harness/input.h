// Input for every suite: synthetic events queued on the headless display, a person's gestures
// made of them, and turns of the loop.
#pragma once
#include "display/display.h"
#include "lumora.h"

#define INPUT_PAUSE_MS 500    // after a button goes up: the next press is no second click
#define INPUT_DRAG_STEPS 4    // the moves of a drag between its press and its release
#define INPUT_TURNS_MAX 1000  // turns that taking the queued input may need at most

// One event of `kind`, the rest zero but what is given.
T_INPUT_EVENT InputEvent(u16 kind, i16 x = 0, i16 y = 0, u16 button = 0, u16 key = 0, u16 qualifiers = 0);
// An event that carries a text: typed characters (INPUT_TEXT) or a dropped path (INPUT_DROP_FILE).
T_INPUT_EVENT TextEvent(u16 kind, const char *text);
// Queues an event without turning the loop.
void PushEvent(const T_INPUT_EVENT &event);
void PushEvent(u16 kind, i16 x, i16 y, u16 button = 0, u16 key = 0, u16 qualifiers = 0);

void Turn(int turns = 1);  // turns of the loop; each advances the virtual clock by a frame
// Turns the loop until the queued input has been taken, and once more, so that what it caused
// has been painted.
void TurnUntilTaken(void);
void Pause(void);  // virtual time past the double-click time

// Each gesture queues its events, then turns the loop until they have been taken.
void Move(i16 x, i16 y, u16 qualifiers = 0);
void Press(i16 x, i16 y, u16 button = 1, u16 qualifiers = 0);    // the pointer there, down
void Release(i16 x, i16 y, u16 button = 1, u16 qualifiers = 0);  // the pointer there, up, pause
void Click(i16 x, i16 y, u16 button = 1, u16 qualifiers = 0);    // press, release, pause
void DoubleClick(i16 x, i16 y);                                  // two clicks at once, pause
// The left button pressed at the start, moved in steps (each taken on its own), released at
// the end.
void Drag(i16 x1, i16 y1, i16 x2, i16 y2, u16 qualifiers = 0);
// The wheel where the pointer is: +1 up, -1 down, `count` notches queued at once.
void Wheel(i16 notches, u16 count = 1);
void Key(u16 key, u16 qualifiers = 0);
void TypeText(const char *text);
void DropFile(const char *path);  // on the window under the pointer's last position
