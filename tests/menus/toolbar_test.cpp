// Toolbars: children cascading in the owner stand below the toolbar.
#include "menus/menu_fixture.h"

static const char *const tool_labels[] = {"Selector", "Checkbox", "Listbox", "Radio button"};

class ToolBarTest : public ToolkitTest
{
  protected:
    T_TOOLBAR_HANDLER *toolbar = nullptr;
    u64 blocks_before = 0;

    void SetUp() override
    {
        ToolkitTest::SetUp();
        blocks_before = _OstrandBase->blocks_allocated;
        toolbar = NewToolBar(owner, "qftoolbar");
        ASSERT_NE(toolbar, nullptr);
        toolbar->window->extra_flags &= ~TOOLBAR_EXTRA_ENDING;
        for (u32 i = 0; i < 4; i++)
            AddToolBarIcon(toolbar, tool_labels[i], (u16)i, 0xF000 + i);
        Turn();
    }

    void ClickButton(u32 index)
    {
        t_Window *w = toolbar->window;
        Click((i16)(w->user_x + 2 + index * 30 + 15), (i16)(w->user_y + 17));
    }
};

// Children made at the owner's cascade place stand below the toolbar, a step further each, and
// start again after eight; a child made elsewhere leaves the cascade where it is.
TEST_F(ToolBarTest, CascadedChildrenStandBelowItAndStartAgainAfterEight)
{
    t_Window *bar = toolbar->window;
    i16 first = (i16)(owner->cascade_index * 16);
    EXPECT_GE(owner->user_y + first, bar->y + bar->h);
    EXPECT_LT(owner->user_y + first - 16, bar->y + bar->h);
    T_WINDOWOBJINIT init = {};
    init.w = 100, init.h = 60, init.flags = WF_CHILD | WF_BORDER, init.parent = owner;
    init.x = init.y = 200;
    ASSERT_NE(CreateObject(&CURRENT_DISPLAY->window_class->head, "elsewhere", &init), nullptr);
    for (int i = 0; i < 9; i++) {
        init.x = init.y = (i16)(owner->cascade_index * 16);
        EXPECT_EQ(init.x, first + 16 * (i % 8)) << i;
        ASSERT_NE(CreateObject(&CURRENT_DISPLAY->window_class->head, "cascaded", &init), nullptr);
    }
}
