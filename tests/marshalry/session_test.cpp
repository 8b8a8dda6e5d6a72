// The end of a session: pages asked to end one by one, a cancelled query, the orderly close.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "marshalry/toolkit_fixture.h"

// How a child answers ACT_TERMINATE.
enum Answer { CLOSES, CANCELS, STAYS, CLOSES_NEXT_SIBLING };

static std::vector<std::string> asked;
static std::vector<Answer> answers;

static u32 ChildMessage(t_Window *window, u32, u32 msg, void *)
{
    if (msg != ACT_TERMINATE)
        return 0;
    asked.push_back(window->name);
    switch (answers[(size_t)(window->name[0] - 'a')]) {
    case CLOSES:  // the page wasn't modified
        RemoveWindow(window);
        break;
    case CANCELS:  // the user cancelled the query
        if (_TenureBase->session_state == SESSION_ENDING)
            _TenureBase->session_state = SESSION_CANCELLED;
        break;
    case STAYS:  // a selector is still up
        break;
    case CLOSES_NEXT_SIBLING:  // a nested turn took another child away
        if (window->next->next)
            RemoveWindow(window->next);
        RemoveWindow(window);
        break;
    }
    return 0;
}

static u32 MainMessage(t_Window *, u32, u32, void *)
{
    return 0;
}

class Session : public ToolkitTest
{
};

TEST_F(Session, WaitAsksEachPageAndCountsWhatIsLeft)
{
    struct Case {
        std::vector<Answer> answers;
        int result;
        std::vector<std::string> asked;
        u32 state;
    } cases[] = {
        {{CLOSES, CLOSES, CLOSES}, 1, {"a", "b", "c"}, SESSION_ENDING},
        {{CLOSES, CANCELS, CLOSES}, 0, {"a", "b"}, SESSION_RUNNING},
        {{CLOSES, STAYS, CLOSES}, 0, {"a", "b", "c"}, SESSION_RUNNING},
        {{CLOSES_NEXT_SIBLING, CLOSES, CLOSES}, 1, {"a", "c"}, SESSION_ENDING},
        {{}, 1, {}, SESSION_ENDING},
    };
    for (const Case &c : cases) {
        t_Window *main = MakeWindow("Quillform", nullptr, {0, 0, 600, 400}, MainMessage);
        // A dependant child (the toolbar's kind) is neither asked nor counted.
        MakeWindow("toolbar", main, {0, 0, 40, 200}, ChildMessage, WF_BORDER | WF_DEPENDANT);
        std::string name = "a";
        for (size_t i = 0; i < c.answers.size(); i++, name[0]++)
            MakeWindow(name.c_str(), main, {50, 50, 100, 80}, ChildMessage);
        answers = c.answers;
        asked.clear();
        EXPECT_EQ(WaitForNDependantWindowLeft(main, 1), c.result);
        EXPECT_EQ(asked, c.asked);
        EXPECT_EQ(_TenureBase->session_state, c.state);
        _TenureBase->session_state = SESSION_RUNNING;
        RemoveWindow(main);
        RefreshHandlers(nullptr);
    }
}

TEST_F(Session, TheCloseStoresSettingsAndPlacesAndEndsTheLoop)
{
    t_Window *main = MakeWindow("Quillform", nullptr, {30, 40, 500, 300}, MainMessage);
    T_RESOURCE *settings = CreateResource(&_MarshalryBase->resources, "AppQuillform", 548, RESOURCE_TYPE_SETTINGS);
    ((u8 *)settings->data)[0] = 42;
    AddToolSetupObject(settings, main, 0, 0);
    ASSERT_TRUE(InitSaveFile(Path("pending.cpp").c_str()));
    SavePrint("pending");
    EXPECT_FALSE(SessionEnded());
    SaveAndCloseSessionApplication(main, settings);
    EXPECT_TRUE(SessionEnded());
    EXPECT_EQ(_LumoraBase->running, 0u);
    EXPECT_FALSE(IsWindowLive(main));
    EXPECT_EQ(ReadWhole(Path("pending.cpp")), "pending");
    EXPECT_EQ(ReadWhole(Path("places/AppQuillform.txt")), "0 30 40 500 300\n");
    t_List fresh;
    InitList(&fresh, "fresh");
    T_RESOURCE *stored = OpenResource(&fresh, "AppQuillform", RESOURCE_TYPE_SETTINGS, 0);
    ASSERT_NE(stored, nullptr);
    EXPECT_EQ(((u8 *)stored->data)[0], 42);
    RemoveResource(stored);
    RemoveResource(settings);
    _LumoraBase->running = 1;  // so that the toolkit closes as usual
}
