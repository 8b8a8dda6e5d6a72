// Routing: keys in their order, gadgets and their action functions, capture, double clicks and
// dropped files.
#include "tests/harness/toolkit_fixture.h"

struct ACTION_CALL {
    t_gadget *gadget;
    u16 keyboard_flags, mouse_action;
    i16 x, y;
};
static std::vector<ACTION_CALL> actions;
static u32 action_result;

static u32 RecordAction(t_Window *window, t_gadget *gadget, T_MOUSE_MSG *msg)
{
    (void)window;
    actions.push_back({gadget, msg->keyboard_flags, msg->mouse_action, msg->x, msg->y});
    return action_result;
}

struct HANDLER_CALL {
    u32 event;
    u16 action;
};
static std::vector<HANDLER_CALL> handler_calls;
static u32 handler_result;

static u32 RecordHandler(t_Handler *handler, u32 event, void *data)
{
    (void)handler;
    u16 action = 0;
    if (event == HANDLER_EVENT_MOUSE)
        action = ((T_MOUSE_MSG *)data)->mouse_action;
    if (event == HANDLER_EVENT_KEY)
        action = ((T_KEY_MSG *)data)->key_code;
    handler_calls.push_back({event, action});
    return event == HANDLER_EVENT_END ? 0 : handler_result;
}

static void Reset()
{
    actions.clear();
    handler_calls.clear();
    recorded.clear();
    action_result = 0;
    handler_result = 0;
}

static u32 Count(u32 event, u16 action)
{
    u32 n = 0;
    for (const HANDLER_CALL &c : handler_calls)
        n += c.event == event && c.action == action;
    return n;
}

TEST_F(LumoraTest, KeyGoesToHandlersThenGadgetThenMessage)
{
    struct {
        u32 handler_takes, gadget_takes;
        u32 handler_calls, gadget_calls, key_messages;
    } rows[] = {
        {1, 0, 1, 0, 0},
        {0, 1, 1, 1, 0},
        {0, 0, 1, 1, 1},
    };
    for (const auto &row : rows) {
        t_Window *w = MakeWindow("Keys", 10, 10, 300, 200, 0, IDCMP_KEY);
        NewHandler(&w->handlers, RecordHandler, nullptr, "recorder", 0, sizeof(t_Handler), w);
        t_gadget *g = MakeGadget(w, "g", GADGET_TYPE_BUTTON, 10, 10, 50, 20, 7, 0x73);
        g->action_fn = RecordAction;
        Turn();
        Reset();
        handler_result = row.handler_takes, action_result = row.gadget_takes;
        Key('x', QUAL_SHIFT);
        EXPECT_EQ(Count(HANDLER_EVENT_KEY, 'x'), row.handler_calls);
        ASSERT_EQ(actions.size(), row.gadget_calls);
        if (row.gadget_calls) {
            EXPECT_EQ(actions[0].mouse_action, 'x');
            EXPECT_EQ(actions[0].keyboard_flags, QUAL_SHIFT | QUAL_GADGET_KEY);
        }
        EXPECT_EQ(CountRecorded(ACT_KEY, w), row.key_messages);
        if (row.key_messages) {
            EXPECT_EQ(recorded.back().item_code, (u32)'x');
        }
        RemoveWindow(w);
        Turn();
    }
}

TEST_F(LumoraTest, ActionFunctionGetsOnlyItsMaskAndNothingElseDoes)
{
    struct {
        u32 mask;
        std::vector<u16> expect;
    } rows[] = {
        {ACT_LMOUSE_UP, {ACT_LMOUSE_UP}},
        {ACT_LMOUSE_DOWN | ACT_LMOUSE_UP, {ACT_LMOUSE_DOWN, ACT_LMOUSE_UP}},
        {0, {}},
    };
    for (const auto &row : rows) {
        t_Window *w = MakeWindow("Mask", 10, 10, 300, 200, 0, 0);
        NewHandler(&w->handlers, RecordHandler, nullptr, "recorder", 0, sizeof(t_Handler), w);
        t_gadget *g = MakeGadget(w, "g", GADGET_TYPE_BUTTON, 10, 10, 50, 20, 7, row.mask);
        g->action_fn = RecordAction;
        Turn();
        Reset();
        Click(g->screen_x + 5, g->screen_y + 5);
        ASSERT_EQ(actions.size(), row.expect.size());
        for (size_t i = 0; i < actions.size(); i++)
            EXPECT_EQ(actions[i].mouse_action, row.expect[i]);
        EXPECT_EQ(Count(HANDLER_EVENT_MOUSE, ACT_LMOUSE_DOWN), 0u);  // the gadget took the press
        EXPECT_EQ(CountRecorded(ACT_LMOUSE_UP), 0u);                 // with an action_fn, no report either
        RemoveWindow(w);
        Turn();
    }
}

TEST_F(LumoraTest, PressMakesCurrentAndReleaseGoesToThePressingGadget)
{
    t_Window *w = MakeWindow("Capture", 10, 10, 400, 300, 0, 0);
    NewHandler(&w->handlers, RecordHandler, nullptr, "recorder", 0, sizeof(t_Handler), w);
    t_gadget *a = MakeGadget(w, "a", GADGET_TYPE_BUTTON, 10, 10, 50, 20, 1, 0x73);
    t_gadget *b = MakeGadget(w, "b", GADGET_TYPE_BUTTON, 100, 10, 50, 20, 2, 0x73);
    a->action_fn = b->action_fn = RecordAction;
    SetCurrentGadget(w, b);
    Turn();
    Reset();
    Press(a->screen_x + 5, a->screen_y + 5);
    EXPECT_EQ(GetCurrentGadget(w), a);
    Move(300, 200);
    Release(300, 200);
    ASSERT_EQ(actions.size(), 2u);
    EXPECT_EQ(actions[1].gadget, a);
    EXPECT_EQ(actions[1].mouse_action, ACT_LMOUSE_UP);
    EXPECT_EQ(actions[1].x, 300);
    EXPECT_EQ(Count(HANDLER_EVENT_MOUSE, ACT_LMOUSE_UP), 0u);
    EXPECT_EQ(lumora_state.capture.window, nullptr);
}

TEST_F(LumoraTest, SecondQuickPressMakesADoubleClick)
{
    t_Window *w = MakeWindow("Double", 10, 10, 400, 300, 0, 0);
    t_gadget *g = MakeGadget(w, "g", GADGET_TYPE_BUTTON, 10, 10, 50, 20, 1, 0x73);
    g->action_fn = RecordAction;
    Turn();
    Reset();
    i16 x = g->screen_x + 5, y = g->screen_y + 5;
    for (u16 kind : {INPUT_MOUSE_DOWN, INPUT_MOUSE_UP, INPUT_MOUSE_DOWN, INPUT_MOUSE_UP})
        PushEvent(kind, x, y, 1);
    Turn();
    std::vector<u16> expect = {ACT_LMOUSE_DOWN, ACT_LMOUSE_UP, ACT_LMOUSE_DOWN, ACT_LMOUSE_DBL, ACT_LMOUSE_UP};
    ASSERT_EQ(actions.size(), expect.size());
    for (size_t i = 0; i < expect.size(); i++)
        EXPECT_EQ(actions[i].mouse_action, expect[i]);
    Reset();
    HeadlessAdvance(500);  // too late for a double click
    PushEvent(INPUT_MOUSE_DOWN, x, y, 1);
    Turn();
    ASSERT_EQ(actions.size(), 1u);
    EXPECT_EQ(actions[0].mouse_action, ACT_LMOUSE_DOWN);
}

static std::string dropped_directory, dropped_name;
static u32 TakeDrop(t_Window *window, u32 item_code, u32 msg, void *data)
{
    RecordMessage(window, item_code, msg, data);
    if (msg == ACT_RECEIVE_OBJECT && item_code == 2) {
        dropped_directory = ((T_DROPPED_FILE *)data)->directory;
        dropped_name = ((T_DROPPED_FILE *)data)->name;
    }
    return 0;
}

TEST_F(LumoraTest, DroppedFileReachesTheWindowThatTakesIt)
{
    t_Window *parent = MakeWindow("Main", 0, 0, 600, 500, 0, IDCMP_RECEIVE_OBJECT, nullptr, TakeDrop);
    MakeWindow("Page", 50, 50, 200, 200, WF_CHILD, 0, parent);  // passes the drop on
    Move(100, 100);
    DropFile("/home/user/pages/About.cpp");
    EXPECT_EQ(CountRecorded(ACT_RECEIVE_OBJECT, parent), 1u);
    EXPECT_EQ(dropped_directory, "/home/user/pages");
    EXPECT_EQ(dropped_name, "About.cpp");
}

// A message function that turns the loop itself: the input still queued is taken inside.
static std::vector<u32> reentrant_log;
