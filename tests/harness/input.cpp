// Input for every suite: events queued on the headless display and the loop turned until taken.
#include "tests/harness/input.h"

#include <stdio.h>
#include <string.h>

T_INPUT_EVENT InputEvent(u16 kind, i16 x, i16 y, u16 button, u16 key, u16 qualifiers)
{
    T_INPUT_EVENT event;
    memset(&event, 0, sizeof(event));
    event.kind = kind;
    event.x = x;
    event.y = y;
    event.button = button;
    event.key = key;
    event.qualifiers = qualifiers;
    return event;
}

T_INPUT_EVENT TextEvent(u16 kind, const char *text)
{
    T_INPUT_EVENT event = InputEvent(kind);
    snprintf(event.text, sizeof(event.text), "%s", text);
    return event;
}

void PushEvent(const T_INPUT_EVENT &event)
{
    HeadlessPush(&event);
}

void PushEvent(u16 kind, i16 x, i16 y, u16 button, u16 key, u16 qualifiers)
{
    PushEvent(InputEvent(kind, x, y, button, key, qualifiers));
}

void Turn(int turns)
{
    for (int i = 0; i < turns; i++)
        RefreshHandlers(NULL);
}

void TurnUntilTaken(void)
{
    for (u32 guard = 0; HeadlessPending() && guard < INPUT_TURNS_MAX; guard++)
        RefreshHandlers(NULL);
    RefreshHandlers(NULL);
}

void Pause(void)
{
    HeadlessAdvance(INPUT_PAUSE_MS);
}

void Move(i16 x, i16 y, u16 qualifiers)
{
    PushEvent(INPUT_MOUSE_MOVE, x, y, 0, 0, qualifiers);
    TurnUntilTaken();
}

void Press(i16 x, i16 y, u16 button, u16 qualifiers)
{
    PushEvent(INPUT_MOUSE_MOVE, x, y, 0, 0, qualifiers);
    PushEvent(INPUT_MOUSE_DOWN, x, y, button, 0, qualifiers);
    TurnUntilTaken();
}

void Release(i16 x, i16 y, u16 button, u16 qualifiers)
{
    PushEvent(INPUT_MOUSE_MOVE, x, y, 0, 0, qualifiers);
    PushEvent(INPUT_MOUSE_UP, x, y, button, 0, qualifiers);
    TurnUntilTaken();
    Pause();
}

void Click(i16 x, i16 y, u16 button, u16 qualifiers)
{
    PushEvent(INPUT_MOUSE_MOVE, x, y, 0, 0, qualifiers);
    PushEvent(INPUT_MOUSE_DOWN, x, y, button, 0, qualifiers);
    PushEvent(INPUT_MOUSE_UP, x, y, button, 0, qualifiers);
    TurnUntilTaken();
    Pause();
}

void DoubleClick(i16 x, i16 y)
{
    PushEvent(INPUT_MOUSE_MOVE, x, y);
    for (int i = 0; i < 2; i++) {
        PushEvent(INPUT_MOUSE_DOWN, x, y, 1);
        PushEvent(INPUT_MOUSE_UP, x, y, 1);
    }
    TurnUntilTaken();
    Pause();
}

void Drag(i16 x1, i16 y1, i16 x2, i16 y2, u16 qualifiers)
{
    Press(x1, y1, 1, qualifiers);
    for (int i = 1; i <= INPUT_DRAG_STEPS; i++)
        Move((i16)(x1 + (x2 - x1) * i / INPUT_DRAG_STEPS), (i16)(y1 + (y2 - y1) * i / INPUT_DRAG_STEPS), qualifiers);
    Release(x2, y2, 1, qualifiers);
}

void Wheel(i16 notches, u16 count)
{
    T_INPUT_EVENT event = InputEvent(INPUT_WHEEL);
    event.wheel = notches;
    for (u16 i = 0; i < count; i++)
        PushEvent(event);
    TurnUntilTaken();
}

void Key(u16 key, u16 qualifiers)
{
    PushEvent(INPUT_KEY_DOWN, 0, 0, 0, key, qualifiers);
    TurnUntilTaken();
}

void TypeText(const char *text)
{
    PushEvent(TextEvent(INPUT_TEXT, text));
    TurnUntilTaken();
}

void DropFile(const char *path)
{
    PushEvent(TextEvent(INPUT_DROP_FILE, path));
    TurnUntilTaken();
}
