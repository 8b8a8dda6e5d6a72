// Gadgets: a check box's click and report, the dialog keys, and the tab walk along the tab
// chain and the list.
#include "tests/harness/toolkit_fixture.h"

TEST_F(LumoraTest, CheckBoxTogglesOnAReleaseInsideAndReports)
{
    struct {
        u32 flags;
        i16 release_dx;  // where the release lands, from the press
        uintptr_t state;
        u32 reports;
    } rows[] = {
        {0, 0, 1, 1},
        {0, 200, 0, 0},                    // released off the box: no toggle
        {GADGET_FLAGS_DISABLED, 0, 0, 0},  // disabled: nothing
    };
    for (const auto &row : rows) {
        t_Window *w = MakeWindow("Boxes", 10, 10, 400, 200, 0, 0);
        t_gadget *g = MakeGadget(w, "Option", GADGET_TYPE_CHECK_BOX, 10, 10, 100, 20, 5, ACT_LMOUSE_UP, row.flags);
        Turn();
        recorded.clear();
        i16 x = g->screen_x + 5, y = g->screen_y + 5;
        Press(x, y);
        Release(x + row.release_dx, y);
        EXPECT_EQ(g->class_data, row.state);
        EXPECT_EQ(CountRecorded(ACT_LMOUSE_UP, w), row.reports);
        if (row.reports) {
            EXPECT_EQ(recorded.back().item_code, 5u);
            EXPECT_EQ(recorded.back().data, g);
        }
        RemoveWindow(w);
        Turn();
        HeadlessAdvance(1000);
    }
}

TEST_F(LumoraTest, DialogKeysClickAndTabWalk)
{
    t_Window *w = MakeWindow("Dialog", 10, 10, 400, 200, 0, 0);
    t_gadget *label = MakeGadget(w, "Label", GADGET_TYPE_TEXT, 10, 10, 80, 20, 1, 0);
    t_gadget *ok = MakeGadget(w, "OK", GADGET_TYPE_BUTTON, 10, 40, 80, 20, 2, ACT_LMOUSE_UP);
    t_gadget *box = MakeGadget(w, "Box", GADGET_TYPE_CHECK_BOX, 10, 70, 80, 20, 3, ACT_LMOUSE_UP);
    (void)label;
    Turn();
    recorded.clear();
    Key(KEY_TAB);  // from the box, round past the label to OK
    EXPECT_EQ(GetCurrentGadget(w), ok);
    Key(KEY_RETURN);
    ASSERT_EQ(CountRecorded(ACT_LMOUSE_UP), 1u);
    EXPECT_EQ(recorded.back().item_code, 2u);
    Key(KEY_TAB);
    EXPECT_EQ(GetCurrentGadget(w), box);
    Key(' ');
    EXPECT_EQ(box->class_data, 1u);
    Key(KEY_TAB, QUAL_SHIFT);
    EXPECT_EQ(GetCurrentGadget(w), ok);
}

// Tab follows the window's tab chain, past labels, round its ring and back with Shift; from a
// gadget off the chain it walks in list order.
TEST_F(LumoraTest, TabFollowsTheTabChainAndOffItTheList)
{
    t_Window *w = MakeWindow("Page", 10, 10, 400, 220, 0, 0);
    // In list order: A, B, the label C, D, and E off the chain. The chain: D (its head), A, C, B.
    struct {
        const char *name;
        u16 type;
        u32 tab0, tab1;
    } rows[] = {
        {"A", GADGET_TYPE_BUTTON, 4, 3},    {"B", GADGET_TYPE_CHECK_BOX, 3, 4},
        {"C", GADGET_TYPE_TEXT, 1, 2},      {"D", GADGET_TYPE_BUTTON, TAB_LINK_FIRST | 2, 1},
        {"E", GADGET_TYPE_CHECK_BOX, 0, 0},
    };
    t_gadget *g[5];
    for (u32 i = 0; i < 5; i++) {
        g[i] = MakeGadget(w, rows[i].name, rows[i].type, 10, (i16)(10 + 30 * i), 80, 20, i + 1, ACT_LMOUSE_UP);
        g[i]->tab[0] = rows[i].tab0, g[i]->tab[1] = rows[i].tab1;
    }
    Turn();
    SetCurrentGadget(w, FirstTabGadget(w));
    EXPECT_EQ(GetCurrentGadget(w), g[3]);
    struct {
        u16 qualifiers;
        int expected;
    } steps[] = {
        {0, 0},          {0, 1},          {0, 3},           // A, B past the label, round to D
        {QUAL_SHIFT, 1}, {QUAL_SHIFT, 0}, {QUAL_SHIFT, 3},  // and back
    };
    for (const auto &step : steps) {
        Key(KEY_TAB, step.qualifiers);
        EXPECT_EQ(GetCurrentGadget(w), g[step.expected]) << "to " << rows[step.expected].name;
    }
    SetCurrentGadget(w, g[4]);
    Key(KEY_TAB);
    EXPECT_EQ(GetCurrentGadget(w), g[0]) << "off the chain: round the list to A";
    SetCurrentGadget(w, g[4]);
    Key(KEY_TAB, QUAL_SHIFT);
    EXPECT_EQ(GetCurrentGadget(w), g[3]) << "and back to D";
}

static u32 IgnoreAction(t_Window *, t_gadget *, T_MOUSE_MSG *)
{
    return 0;
}

// A group made after the gadgets it frames lies over them in the list: a plain group lets the
// mouse through everywhere, an editor's (with an action_fn) only where a gadget stands.
TEST_F(LumoraTest, GadgetsInsideAGroupStayWithinReach)
{
    for (int editor = 0; editor < 2; editor++) {
        SCOPED_TRACE(editor ? "an editor's group" : "a plain group");
        t_Window *w = MakeWindow("Page", 10, 10, 400, 220, 0, 0);
        t_gadget *box = MakeGadget(w, "Box", GADGET_TYPE_CHECK_BOX, 20, 20, 100, 20, 1, ACT_LMOUSE_UP);
        t_gadget *group = MakeGadget(w, "Group", GADGET_TYPE_GROUP, 10, 10, 200, 100, 0, 0);
        if (editor)
            group->action_fn = IgnoreAction;
        Turn();
        EXPECT_EQ(GadgetAtPoint(w, box->screen_x + 5, box->screen_y + 5), box);
        EXPECT_EQ(GadgetAtPoint(w, group->screen_x + 150, group->screen_y + 80), editor ? group : nullptr);
        RemoveWindow(w);
        Turn();
    }
}
