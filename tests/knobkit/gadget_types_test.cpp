// What holds across the gadget types: radio runs, the colour swatch and a dropped colour, disabled
// gadgets ignoring input, hover texts, and freeing each type's belongings.
#include "knobkit_fixture.h"

#include <functional>

TEST_F(GadgetTest, RadioButtonsClearTheirRunOnly)
{
    u32 action = ACT_LMOUSE_UP;
    t_gadget *r[5];
    const char *names[] = {"One", "Two", "Three", "Four", "Five"};
    for (int i = 0; i < 5; i++) {
        if (i == 3)
            Make("Between", Init(GADGET_TYPE_BUTTON, 200, 10, 80, 20, 9, 0));  // ends the run
        T_GADGETOBJECTINIT init = Init(GADGET_TYPE_RADIOBUTTON, 10, (i16)(10 + 25 * i), 120, 20, (u32)(i + 1), action);
        init.init_val = i == 0 || i == 3;
        r[i] = Make(names[i], init);
    }
    Turn();
    recorded.clear();
    struct {
        int click;
        uintptr_t states[5];
    } rows[] = {
        {2, {0, 0, 1, 1, 0}},
        {4, {0, 0, 1, 0, 1}},
        {2, {0, 0, 1, 0, 1}},  // a click on the set one keeps it
        {0, {1, 0, 0, 0, 1}},
    };
    for (const auto &row : rows) {
        Click(r[row.click]->screen_x + 5, MidY(r[row.click]));
        for (int i = 0; i < 5; i++)
            EXPECT_EQ(r[i]->class_data, row.states[i]) << "click " << row.click << " radio " << i;
    }
    EXPECT_EQ(CountRecorded(ACT_LMOUSE_UP), 4u);
    SetCurrentGadget(window, r[1]);
    Key(' ');
    EXPECT_EQ(r[1]->class_data, 1u);
    EXPECT_EQ(r[0]->class_data, 0u);
}

TEST_F(GadgetTest, ColourSwatchShowsAndTakesADroppedColour)
{
    T_RGBA rgba = {10, 20, 30, 0};
    T_HSIA hsia = {};
    T_COLOUR_DATA data = {&rgba, &hsia, 5};
    T_GADGETOBJECTINIT init = Init(GADGET_TYPE_COLOUR_FLAT, 10, 10, 40, 20, 169, ACT_LMOUSE_UP);
    init.data = &data;
    t_gadget *g = Make("Colour", init);
    Turn();
    T_RPOS middle = {MidX(g), MidY(g), 1, 1};
    EXPECT_EQ(Pixels(middle)[0], GetConstantTRGBA(&rgba));
    recorded.clear();
    Click(MidX(g), MidY(g));
    EXPECT_EQ(CountRecorded(ACT_LMOUSE_UP), 1u);
    T_RGBA dropped = {200, 100, 50, 0};
    DropColourOnGadget(window, g, &dropped);
    EXPECT_EQ(rgba.r, 200);
    EXPECT_EQ(rgba.b, 50);
    T_HSIA expected;
    RGBToHSI(&dropped, &expected);
    EXPECT_FLOAT_EQ(hsia.h, expected.h);
    ASSERT_EQ(CountRecorded(ACT_LMOUSE_DROP), 1u);  // reported although the mask lacks the bit
    EXPECT_EQ(recorded.back().item_code, 169u);
    Turn();
    EXPECT_EQ(Pixels(middle)[0], GetConstantTRGBA(&dropped));
}

// One gadget of a type, its state as a number, and how input reaches it.
struct TYPE_CASE {
    const char *name;
    std::function<t_gadget *(GadgetTest *, u32 flags)> make;
    std::function<i64(t_gadget *)> state;
};

static char type_case_buffer[64];

// A list-like gadget of five entries, with `flags` on it.
static t_gadget *FlaggedList(GadgetTest *t, u16 type, i16 h, u32 flags)
{
    t_gadget *g = t->MakeList(type, 10, 10, 150, h, 5);
    g->live_flags |= flags;
    return g;
}

static std::vector<TYPE_CASE> TypeCases()
{
    auto list_state = [](t_gadget *g) {
        return (i64)((T_LIST_DATA *)g->class_data)->selected * 2 + (g->gadget_state & GSTATE_OPEN ? 1 : 0);
    };
    return {
        {"string",
         [](GadgetTest *t, u32 f) {
             strcpy(type_case_buffer, "text");
             T_GADGETOBJECTINIT i = t->Init(GADGET_TYPE_STRING, 10, 10, 150, 0, 1, 0x73, f);
             i.data = type_case_buffer;
             return t->Make("s", i);
         },
         [](t_gadget *g) { return (i64)strlen((char *)g->data) * 1000 + g->value; }},
        {"radio",
         [](GadgetTest *t, u32 f) {
             return t->Make("r", t->Init(GADGET_TYPE_RADIOBUTTON, 10, 10, 150, 20, 1, 0x73, f));
         },
         [](t_gadget *g) { return (i64)g->class_data; }},
        {"slider",
         [](GadgetTest *t, u32 f) {
             T_GADGETOBJECTINIT i = t->Init(GADGET_TYPE_SLIDER, 10, 10, 150, 20, 1, 0x73, f | GADGET_FLAGS_HORIZONTAL);
             i.max = 100;
             return t->Make("sl", i);
         },
         [](t_gadget *g) { return (i64)((T_SLIDER_DATA *)g->class_data)->value; }},
        {"scroll bar",
         [](GadgetTest *t, u32 f) {
             T_GADGETOBJECTINIT i =
                 t->Init(GADGET_TYPE_SCROLLBAR, 10, 10, 150, 16, 1, 0x73, f | GADGET_FLAGS_HORIZONTAL);
             i.max = 64, i.mark_width = 4;
             return t->Make("sb", i);
         },
         [](t_gadget *g) { return (i64)((T_SCROLLBAR_DATA *)g->class_data)->init_val; }},
        {"list box", [](GadgetTest *t, u32 f) { return FlaggedList(t, GADGET_TYPE_LIST_BOX, 100, f); }, list_state},
        {"tree", [](GadgetTest *t, u32 f) { return FlaggedList(t, GADGET_TYPE_TREE, 100, f); }, list_state},
        {"drop box", [](GadgetTest *t, u32 f) { return FlaggedList(t, GADGET_TYPE_DROP_BOX, 0, f); }, list_state},
        {"colour",
         [](GadgetTest *t, u32 f) {
             return t->Make("c", t->Init(GADGET_TYPE_COLOUR_FLAT, 10, 10, 150, 20, 1, 0x73, f));
         },
         [](t_gadget *g) { return (i64)(g->gadget_state & GSTATE_PRESSED); }},
        {"user",
         [](GadgetTest *t, u32 f) { return t->Make("u", t->Init(GADGET_TYPE_USER, 10, 10, 150, 40, 1, 0x73, f)); },
         [](t_gadget *g) { return (i64)(g->gadget_state & ~GSTATE_HOVER); }},
    };
}

TEST_F(GadgetTest, DisabledGadgetsIgnoreInput)
{
    for (const TYPE_CASE &c : TypeCases()) {
        SCOPED_TRACE(c.name);
        t_gadget *g = c.make(this, GADGET_FLAGS_DISABLED);
        Turn();
        i64 before = c.state(g);
        recorded.clear();
        Click(g->screen_x + g->base_width / 3, MidY(g));
        SetCurrentGadget(window, g);
        Key(KEY_DOWN);
        Key(KEY_END);
        TypeText("x");
        EXPECT_EQ(c.state(g), before);
        EXPECT_TRUE(recorded.empty());
        RemoveObject(&handler->head, g);
        Turn();
    }
}

TEST_F(GadgetTest, EnabledGadgetsTakeTheSameInput)
{  // the counterpart: the input does reach them
    for (const TYPE_CASE &c : TypeCases()) {
        if (std::string(c.name) == "user" || std::string(c.name) == "colour")
            continue;  // no state to change
        SCOPED_TRACE(c.name);
        t_gadget *g = c.make(this, 0);
        Turn();
        i64 before = c.state(g);
        Click(g->screen_x + g->base_width / 3, MidY(g));
        SetCurrentGadget(window, g);
        Key(KEY_DOWN);
        Key(KEY_END);
        TypeText("x");
        EXPECT_NE(c.state(g), before);
        Key(KEY_ESCAPE);
        RemoveObject(&handler->head, g);
        Turn();
    }
}

TEST_F(GadgetTest, HoverTextShowsOverEachType)
{
    for (const TYPE_CASE &c : TypeCases()) {
        SCOPED_TRACE(c.name);
        t_gadget *g = c.make(this, 0);
        SetGadgetHover(g, "Help for this gadget");
        Turn();
        i16 x = g->screen_x + 4, y = g->screen_y + 4;
        Move(x, y);
        HeadlessAdvance(1000);
        Turn();
        EXPECT_EQ(Pixels(T_RPOS{(i16)(x + 13), (i16)(y + 21), 1, 1})[0], DISPLAY_RECORD->hover_back_colour);
        RemoveObject(&handler->head, g);
        Move(400, 350);
        Turn();
    }
}

TEST_F(GadgetTest, FreeingEachTypeGivesBackItsBlocks)
{
    std::vector<std::function<void(GadgetTest *)>> makers;
    for (const TYPE_CASE &c : TypeCases())
        makers.push_back([c](GadgetTest *t) { c.make(t, 0); });
    makers.push_back([](GadgetTest *t) {  // a string with a buffer of its own
        T_GADGETOBJECTINIT i = t->Init(GADGET_TYPE_STRING, 10, 10, 150, 0);
        i.data = PutStringName;
        t->Make("own", i);
    });
    makers.push_back([](GadgetTest *t) {  // a tree with branches
        t_gadget *g = t->MakeList(GADGET_TYPE_TREE, 10, 10, 150, 100, 3);
        T_LIST_ENTRY *e = (T_LIST_ENTRY *)((T_LIST_DATA *)g->class_data)->entries.first;
        NewBranch(&NewBranch(&e->children, nullptr, "leaf", BRANCH_OPEN)->children, nullptr, "twig", 0);
    });
    makers.push_back([](GadgetTest *t) {  // a drop box whose list is open
        t_gadget *g = t->MakeList(GADGET_TYPE_DROP_BOX, 10, 10, 150, 0, 12);
        Turn();
        Click(MidX(g), MidY(g));
    });
    makers.push_back([](GadgetTest *t) {  // a combo with children and scroll bars
        T_LIST_DATA *d =
            (T_LIST_DATA *)t->Create("Combo", t->Init(GADGET_TYPE_COMBO, 10, 10, 60, 40, 1, 0, GADGET_FLAGS_XY));
        SaveSetGadgetList(t->GetWindow(), &d->entries);
        T_GADGETOBJECTINIT i = t->Init(GADGET_TYPE_STRING, 0, 0, 150, 0);
        t->Make("inner string", i);
        t->MakeList(GADGET_TYPE_LIST_BOX, 0, 30, 150, 100, 4);
        RestoreGadgetList(t->GetWindow());
        SetComboScrollBars(d->gadget);
    });
    for (size_t m = 0; m < makers.size(); m++) {
        SCOPED_TRACE(m);
        u64 before = 0;
        for (int pass = 0; pass < 2; pass++) {  // the first pass fills the font's glyph cache
            before = _OstrandBase->blocks_allocated;
            makers[m](this);
            Turn();
            FreeGadgetsOf(handler);
            Turn();
        }
        EXPECT_EQ(_OstrandBase->blocks_allocated, before);
        EXPECT_EQ(_OstrandBase->size_mismatches, 0u);
    }
}
