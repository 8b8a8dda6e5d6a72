// A person's actions on the headless display, queued as input and carried out by turning the loop.
#include "host/user_actions.h"

#include <ctype.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <strings.h>

#include "display/display.h"

// A turn more than the input needs, so that what it caused has been painted.
static void TurnUntilTaken(void)
{
    for (u32 guard = 0; HeadlessPending() && guard < 1000; guard++)
        RefreshHandlers(NULL);
    RefreshHandlers(NULL);
}

static T_INPUT_EVENT Event(u16 kind, i16 x, i16 y, u16 button, u16 key, u16 qualifiers)
{
    return T_INPUT_EVENT{
        .kind = kind, .x = x, .y = y, .button = button, .wheel = 0, .key = key, .qualifiers = qualifiers, .text = ""};
}

// Adds a batch of one or two events; the time goes on by `advance_ms` once it has been taken.
static void AddBatch(T_USER_BATCHES *out, const T_INPUT_EVENT &first, const T_INPUT_EVENT *second, u32 advance_ms)
{
    const u32 capacity = sizeof(out->batches) / sizeof(out->batches[0]);
    if (!QF_EXPECT(out->count < capacity))  // an action makes no more batches than a drag
        return;
    T_INPUT_BATCH *batch = &out->batches[out->count++];
    batch->events[0] = first;
    batch->count = 1;
    if (second)
        batch->events[batch->count++] = *second;
    batch->advance_ms = advance_ms;
}

static void AddPress(T_USER_BATCHES *out, i16 x, i16 y, u16 button)
{
    T_INPUT_EVENT down = Event(INPUT_MOUSE_DOWN, x, y, button, 0, 0);
    AddBatch(out, Event(INPUT_MOUSE_MOVE, x, y, 0, 0, 0), &down, 0);
}

static void AddRelease(T_USER_BATCHES *out, i16 x, i16 y, u16 button, u32 advance_ms)
{
    T_INPUT_EVENT up = Event(INPUT_MOUSE_UP, x, y, button, 0, 0);
    AddBatch(out, Event(INPUT_MOUSE_MOVE, x, y, 0, 0, 0), &up, advance_ms);
}

void UserActionBatches(const T_USER_ACTION *action, T_USER_BATCHES *out)
{
    out->count = 0;
    const i16 x = action->x1, y = action->y1;
    switch (action->kind) {
    case USER_MOVE:
        AddBatch(out, Event(INPUT_MOUSE_MOVE, x, y, 0, 0, 0), NULL, 0);
        break;
    case USER_PRESS:
        AddPress(out, x, y, action->button);
        break;
    case USER_RELEASE:
        AddRelease(out, x, y, action->button, 0);
        break;
    case USER_CLICK:  // then past the double-click time, so that the next click is one of its own
        AddPress(out, x, y, action->button);
        AddRelease(out, x, y, action->button, USER_CLICK_GAP_MS);
        break;
    case USER_DOUBLE_CLICK:
        AddPress(out, x, y, 1);
        AddRelease(out, x, y, 1, 0);
        AddPress(out, x, y, 1);
        AddRelease(out, x, y, 1, USER_CLICK_GAP_MS);
        break;
    case USER_DRAG:  // left button down, moved in steps, released
        AddPress(out, x, y, 1);
        for (int i = 1; i <= DRAG_STEPS; i++)
            AddBatch(out,
                     Event(INPUT_MOUSE_MOVE, (i16)(x + (action->x2 - x) * i / DRAG_STEPS),
                           (i16)(y + (action->y2 - y) * i / DRAG_STEPS), 0, 0, 0),
                     NULL, 0);
        AddRelease(out, action->x2, action->y2, 1, USER_CLICK_GAP_MS);
        break;
    case USER_KEY:
        AddBatch(out, Event(INPUT_KEY_DOWN, 0, 0, 0, action->key, action->qualifiers), NULL, 0);
        break;
    case USER_TYPE: {
        T_INPUT_EVENT event = Event(INPUT_TEXT, 0, 0, 0, 0, 0);
        snprintf(event.text, sizeof(event.text), "%s", action->text ? action->text : "");
        AddBatch(out, event, NULL, 0);
        break;
    }
    default:
        break;
    }
}

T_USER_ACTION UserAction(u16 kind, i16 x, i16 y)
{
    return T_USER_ACTION{
        .kind = kind, .x1 = x, .y1 = y, .x2 = 0, .y2 = 0, .button = 1, .key = 0, .qualifiers = 0, .text = NULL};
}

// Plays an action here and now: each batch queued, the loop turned until it is taken.
static void RunAction(const T_USER_ACTION &action)
{
    static T_USER_BATCHES batches;  // large (texts); one action runs at a time
    UserActionBatches(&action, &batches);
    for (u32 i = 0; i < batches.count; i++) {
        for (u32 e = 0; e < batches.batches[i].count; e++)
            HeadlessPush(&batches.batches[i].events[e]);
        TurnUntilTaken();
        if (batches.batches[i].advance_ms)
            HeadlessAdvance(batches.batches[i].advance_ms);
    }
}

void UserMove(i16 x, i16 y)
{
    RunAction(UserAction(USER_MOVE, x, y));
}

void UserPress(i16 x, i16 y, u16 button)
{
    T_USER_ACTION action = UserAction(USER_PRESS, x, y);
    action.button = button;
    RunAction(action);
}

void UserRelease(i16 x, i16 y, u16 button)
{
    T_USER_ACTION action = UserAction(USER_RELEASE, x, y);
    action.button = button;
    RunAction(action);
}

void UserClick(i16 x, i16 y, u16 button)
{
    T_USER_ACTION action = UserAction(USER_CLICK, x, y);
    action.button = button;
    RunAction(action);
}

void UserDoubleClick(i16 x, i16 y)
{
    RunAction(UserAction(USER_DOUBLE_CLICK, x, y));
}

void UserDrag(i16 x1, i16 y1, i16 x2, i16 y2)
{
    T_USER_ACTION action = UserAction(USER_DRAG, x1, y1);
    action.x2 = x2;
    action.y2 = y2;
    RunAction(action);
}

void UserKey(u16 key, u16 qualifiers)
{
    T_USER_ACTION action = UserAction(USER_KEY, 0, 0);
    action.key = key;
    action.qualifiers = qualifiers;
    RunAction(action);
}

void UserType(const char *text)
{
    T_USER_ACTION action = UserAction(USER_TYPE, 0, 0);
    action.text = text;
    RunAction(action);
}

void UserTurns(u32 turns)
{
    for (u32 i = 0; i < turns; i++)
        RefreshHandlers(NULL);
}

int UserScreenshot(const char *path)
{
    T_SURFACE surface;
    surface.pixels = display->pixels(&surface.width, &surface.height, &surface.pitch);
    return WritePNG(path, &surface);
}

static t_Window *FindInList(t_List *list, const char *name)
{
    for (t_Node *n = list->first; n->next; n = n->next) {
        t_Window *window = (t_Window *)n;
        if (window->state_flags & WSF_REMOVED)
            continue;
        if (window->name && strcmp(window->name, name) == 0)
            return window;
        if (t_Window *child = FindInList(&window->children, name))
            return child;
    }
    return NULL;
}

t_Window *FindLiveWindow(const char *name)
{
    return FindInList(&CURRENT_DISPLAY->window_class->windows, name);
}

int FindGadgetCentre(const char *window_name, u32 item_code, i16 *x, i16 *y)
{
    t_Window *window = FindLiveWindow(window_name);
    if (!window)
        return 0;
    t_gadget *gadget = FindGadgetByItemCode(window, item_code);
    if (!gadget)
        return 0;
    if (gadget->parent_combo) {  // a person scrolls a control in a combo into view before clicking it
        ScrollComboToGadget(gadget);
        UserTurns(1);
    }
    *x = (i16)(gadget->screen_x + gadget->base_width / 2);
    *y = (i16)(gadget->screen_y + gadget->base_height / 2);
    return 1;
}

int FindToolCentre(const char *toolbar_name, u16 entry, i16 *x, i16 *y)
{
    t_Window *window = FindLiveWindow(toolbar_name);
    T_RPOS rect;
    if (!window || !GetToolBarEntryRect((T_TOOLBAR_HANDLER *)window->user_data, entry, &rect))
        return 0;
    *x = (i16)(rect.x + rect.w / 2);
    *y = (i16)(rect.y + rect.h / 2);
    return 1;
}
