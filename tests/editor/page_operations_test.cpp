// The main menu's selection commands on the active page: the marks alone change, never the
// history or the modified mark.
#include "shell/commands.h"
#include "tests/editor/editor_fixture.h"

TEST_F(PageTest, SelectionCommandsSetClearAndToggleEveryMark)
{
    t_gadget *g[3];
    for (int i = 0; i < 3; i++)
        g[i] = Make(TOOL_BUTTON, 20, (i16)(20 + 40 * i), 60, 20);
    page->state_flags &= ~WSF_MODIFIED;
    const u32 records = Records();
    //  marks before   command                 marks after
    struct {
        int before[3];
        u32 command;
        int after[3];
    } const cases[] = {
        {{0, 1, 0}, CMD_SELECT_ALL, {1, 1, 1}},
        {{1, 0, 1}, CMD_SELECT_NONE, {0, 0, 0}},
        {{1, 0, 1}, CMD_INVERSE_SELECTION, {0, 1, 0}},
        {{1, 1, 1}, CMD_INVERSE_SELECTION, {0, 0, 0}},  // Select All, then Inverse: nothing marked
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.command);
        for (int i = 0; i < 3; i++)
            g[i]->live_flags =
                c.before[i] ? g[i]->live_flags | GADGET_MARK_SELECTED : g[i]->live_flags & ~GADGET_MARK_SELECTED;
        Command(c.command);
        for (int i = 0; i < 3; i++)
            EXPECT_EQ(Marked(g[i]), c.after[i]) << i;
        EXPECT_FALSE(Modified());
        EXPECT_EQ(Records(), records);
        CHECK_PAGE();
    }
}
