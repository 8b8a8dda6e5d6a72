// A headless toolkit in a temporary data root, for the tests that need windows and menus.
#pragma once
#include "ostrand/test_support.h"
#include "toolkit.h"

class ToolkitTest : public DataRootTest
{
  protected:
    void SetUp() override
    {
        DataRootTest::SetUp();
        ASSERT_TRUE(OpenToolkit("headless", 800, 600, root.c_str()));
        _TenureBase->session_state = SESSION_RUNNING;
    }
    void TearDown() override
    {
        CloseToolkit();
        _TenureBase->session_state = SESSION_RUNNING;
        DataRootTest::TearDown();
    }
    static t_Window *MakeWindow(const char *name, t_Window *parent, T_RPOS place, T_MESSAGE_FN message,
                                u32 flags = WF_TITLE | WF_BORDER)
    {
        T_WINDOWOBJINIT init = {};
        init.x = place.x, init.y = place.y, init.w = place.w, init.h = place.h;
        init.flags = flags | (parent ? WF_CHILD : 0);
        init.message = message;
        init.parent = parent;
        return (t_Window *)CreateObject(&CURRENT_DISPLAY->window_class->head, name, &init);
    }
};
