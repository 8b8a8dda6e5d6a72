// Combos: gadgets made between SaveSetGadgetList and RestoreGadgetList go into the combo, are
// found by item code, and are scrolled by its bars and the wheel; Tab walks into them, scrolling
// the stop into view, and keys reach the stop.
#include "knobkit_fixture.h"

// A combo 150 by 80 holding eight check boxes 20 apart (item codes 2 to 9), then a button
// (item code 20) made after the list was restored.
struct COMBO_PAGE {
    t_gadget *combo, *boxes[8], *button;
    T_LIST_DATA *data;
};

static COMBO_PAGE MakeComboPage(GadgetTest *t, t_Window *window, u32 combo_flags,
                                T_GADGETOBJECTINIT (*init)(u16, i16, i16, i16, i16, u32, u32, u32))
{
    (void)t;
    COMBO_PAGE p;
    t_Gaget_Handler *gh = FindGadgetHandler(window);
    T_GADGETOBJECTINIT ci = init(GADGET_TYPE_COMBO, 10, 10, 150, 80, 192, ACT_LMOUSE_UP, combo_flags);
    p.data = (T_LIST_DATA *)CreateObject(&gh->head, "Combo", &ci);
    p.combo = GetCurrentGadget(window);
    SaveSetGadgetList(window, &p.data->entries);
    for (int i = 0; i < 8; i++) {
        T_GADGETOBJECTINIT bi =
            init(GADGET_TYPE_CHECK_BOX, 4, (i16)(4 + 20 * i), 100, 18, (u32)(2 + i), ACT_LMOUSE_UP, 0);
        bi.hover_text = "inside";
        p.boxes[i] = (t_gadget *)CreateObject(&gh->head, "Option", &bi);
    }
    RestoreGadgetList(window);
    T_GADGETOBJECTINIT bu = init(GADGET_TYPE_BUTTON, 200, 10, 80, 20, 20, ACT_LMOUSE_UP, 0);
    p.button = (t_gadget *)CreateObject(&gh->head, "Button", &bu);
    SetComboScrollBars(p.combo);
    return p;
}

TEST_F(GadgetTest, ComboHoldsWhatIsMadeBetweenSaveAndRestore)
{
    COMBO_PAGE p = MakeComboPage(this, window, GADGET_FLAGS_VERTICAL | GADGET_FLAGS_HORIZONTAL, Init);
    ASSERT_NE(p.data, nullptr);
    EXPECT_EQ(p.combo->type, GADGET_TYPE_COMBO);
    EXPECT_EQ(p.combo->class_data, (uintptr_t)p.data);
    EXPECT_EQ(CountListEntries(&p.data->entries), 8u);
    t_Node *n = p.data->entries.first;
    for (int i = 0; i < 8; i++, n = n->next) {
        EXPECT_EQ((t_gadget *)n, p.boxes[i]);  // in order
        EXPECT_EQ(p.boxes[i]->parent_combo, p.combo);
    }
    EXPECT_EQ(CountListEntries(&handler->gadget_list), 2u);  // the combo and the button
    EXPECT_EQ(handler->list_in_use, &handler->gadget_list);
    EXPECT_EQ(FindGadgetByItemCode(window, 5), p.boxes[3]);
    EXPECT_EQ(FindGadgetByItemCode(window, 20), p.button);
    T_RPOS view = ComboView(p.combo);
    EXPECT_EQ(p.boxes[1]->screen_x, view.x + 4);
    EXPECT_EQ(p.boxes[1]->screen_y, view.y + 24);
    EXPECT_NE(p.data->scroll_v, nullptr);  // 164 high content in a 76 high inside
    EXPECT_EQ(p.data->scroll_h, nullptr);  // 108 wide content fits beside the bar
    EXPECT_EQ(p.data->content_h, 8 * 20 + 2 + 4);
}

TEST_F(GadgetTest, ComboScrollsItsChildren)
{
    COMBO_PAGE p = MakeComboPage(this, window, GADGET_FLAGS_VERTICAL, Init);
    Turn();
    t_gadget *first = p.boxes[0];
    i16 y0 = first->screen_y;
    Move(MidX(first), MidY(first));  // the wheel over a child scrolls the combo
    Wheel(-1);
    i32 top = p.data->top;
    EXPECT_GT(top, 0);
    EXPECT_EQ(first->screen_y, y0 - top);
    EXPECT_EQ(((T_SCROLLBAR_DATA *)p.data->scroll_v->class_data)->init_val, top);
    // A child scrolled out of the inside is not under the point any more.
    T_RPOS view = ComboView(p.combo);
    ASSERT_LE(first->screen_y + first->base_height, view.y);
    EXPECT_NE(GadgetAtPoint(window, first->screen_x + 5, first->screen_y + 2), first);
    T_SCROLL_RANGE range = {0, p.data->content_h, view.h, top, 1};
    T_SCROLL_PARTS parts;
    ScrollParts(GadgetRect(p.data->scroll_v), 0, &range, &parts);
    i16 tx = parts.thumb.x + parts.thumb.w / 2, ty = parts.thumb.y + parts.thumb.h / 2;
    Drag(tx, ty, tx, ty + 200);
    EXPECT_EQ(p.data->top, p.data->content_h - view.h);  // dragged to the end
    EXPECT_EQ(p.boxes[7]->screen_y + p.boxes[7]->base_height, view.y + view.h - 4);
}

// A dialog whose controls stand in combos: a field before, an outer combo 150 by 80 holding a
// box, a field, a disabled box, a label, an inner combo 120 by 50 (two boxes, the second below
// its view) and a last box far down; then OK, a hidden button and a label. Item codes: fields
// and boxes 10 to 18, inner combo 15, outer 19, OK 20.
struct TAB_PAGE {
    t_gadget *outer, *inner;
    char field[32];
};

static t_gadget *MakeIn(GadgetTest *t, u16 type, const char *name, i16 x, i16 y, i16 w, i16 h, u32 code, u32 flags = 0,
                        void *data = nullptr)
{
    T_GADGETOBJECTINIT init = GadgetTest::Init(type, x, y, w, h, code, ACT_LMOUSE_UP, flags);
    init.data = data;
    if (type == GADGET_TYPE_STRING)
        init.max = 31;
    void *made = t->Create(name, init);
    return type == GADGET_TYPE_COMBO ? ((T_LIST_DATA *)made)->gadget : (t_gadget *)made;
}

static void MakeTabPage(GadgetTest *t, TAB_PAGE *p)
{
    t_Window *w = t->GetWindow();
    p->field[0] = 0;
    MakeIn(t, GADGET_TYPE_TEXT, "Name", 10, 10, 60, 20, 1);
    MakeIn(t, GADGET_TYPE_STRING, "", 80, 10, 120, 20, 10, 0, p->field);
    p->outer = MakeIn(t, GADGET_TYPE_COMBO, "Outer", 10, 40, 150, 80, 19, GADGET_FLAGS_VERTICAL);
    SaveSetGadgetList(w, &((T_LIST_DATA *)p->outer->class_data)->entries);
    MakeIn(t, GADGET_TYPE_CHECK_BOX, "First", 4, 4, 100, 18, 11);
    MakeIn(t, GADGET_TYPE_STRING, "", 4, 30, 100, 20, 12);
    MakeIn(t, GADGET_TYPE_CHECK_BOX, "Off", 4, 56, 100, 18, 13, GADGET_FLAGS_DISABLED);
    MakeIn(t, GADGET_TYPE_TEXT, "Label", 4, 80, 100, 18, 14);
    p->inner = MakeIn(t, GADGET_TYPE_COMBO, "Inner", 4, 100, 120, 50, 15, GADGET_FLAGS_VERTICAL);
    SaveSetGadgetList(w, &((T_LIST_DATA *)p->inner->class_data)->entries);
    MakeIn(t, GADGET_TYPE_CHECK_BOX, "Inner one", 4, 4, 90, 18, 16);
    MakeIn(t, GADGET_TYPE_CHECK_BOX, "Inner two", 4, 70, 90, 18, 18);
    RestoreGadgetList(w);
    MakeIn(t, GADGET_TYPE_CHECK_BOX, "Last", 4, 170, 100, 18, 17);
    RestoreGadgetList(w);
    MakeIn(t, GADGET_TYPE_BUTTON, "OK", 200, 40, 80, 20, 20);
    MakeIn(t, GADGET_TYPE_BUTTON, "Hidden", 200, 70, 80, 20, 21, GADGET_FLAGS_NO_DISPLAY);
    MakeIn(t, GADGET_TYPE_TEXT, "Note", 200, 100, 80, 20, 22);
    SetComboScrollBars(p->inner);
    SetComboScrollBars(p->outer);
    SetCurrentGadget(w, nullptr);
}

// The data of the window's ACT_LMOUSE_UP reports with this item code.
static std::vector<void *> ReportsOf(u32 item_code)
{
    std::vector<void *> data;
    for (const RECORDED_MESSAGE &m : recorded)
        if (m.msg == ACT_LMOUSE_UP && m.item_code == item_code)
            data.push_back(m.data);
    return data;
}

static T_RPOS Rect(t_gadget *g)
{
    return T_RPOS{g->screen_x, g->screen_y, g->base_width, g->base_height};
}

static bool Inside(T_RPOS a, T_RPOS b)
{
    return a.x >= b.x && a.y >= b.y && a.x + a.w <= b.x + b.w && a.y + a.h <= b.y + b.h;
}

TEST_F(GadgetTest, TabWalksIntoCombosAndScrollsTheStopIntoView)
{
    TAB_PAGE p;
    MakeTabPage(this, &p);
    Turn();
    struct {
        u16 qualifiers;
        std::vector<u32> codes;  // the current gadget's item code after each Tab
    } walks[] = {
        {0, {10, 11, 12, 16, 18, 17, 20, 10, 11}},
        {QUAL_SHIFT, {20, 17, 18, 16, 12, 11, 10, 20}},
    };
    for (const auto &walk : walks) {
        SetCurrentGadget(window, nullptr);
        for (u32 code : walk.codes) {
            SCOPED_TRACE(testing::Message() << "Tab " << walk.qualifiers << " to " << code);
            T_LIST_DATA *outer = (T_LIST_DATA *)p.outer->class_data;
            i32 top_before = outer->top;
            Key(KEY_TAB, walk.qualifiers);
            t_gadget *g = GetCurrentGadget(window);
            ASSERT_NE(g, nullptr);
            EXPECT_EQ(g->live_item_code, code);
            // Wholly inside each combo around it.
            for (t_gadget *c = g->parent_combo; c; c = c->parent_combo)
                EXPECT_TRUE(Inside(Rect(g), ComboView(c))) << c->name;
            // The least move: a scrolled combo stops with the stop at one of its edges.
            if (g->parent_combo == p.outer && outer->top != top_before) {
                T_RPOS view = ComboView(p.outer);
                EXPECT_TRUE(g->screen_y == view.y || g->screen_y + g->base_height == view.y + view.h);
            }
        }
    }
}

TEST_F(GadgetTest, ScrollComboToGadgetMovesNoMoreThanNeeded)
{
    COMBO_PAGE p = MakeComboPage(this, window, GADGET_FLAGS_VERTICAL, Init);
    T_RPOS view = ComboView(p.combo);
    struct {
        int box;
        i32 top;  // the combo's offset after
    } steps[] = {
        {7, 4 + 20 * 7 + 18 - view.h},  // below: its bottom at the view's bottom
        {5, 4 + 20 * 7 + 18 - view.h},  // already in view: no move
        {1, 24},                        // above: its top at the view's top
        {0, 4},
        {4, 4 + 20 * 4 + 18 - view.h},
    };
    for (const auto &s : steps) {
        SCOPED_TRACE(s.box);
        ScrollComboToGadget(p.boxes[s.box]);
        EXPECT_EQ(p.data->top, s.top);
        EXPECT_EQ(((T_SCROLLBAR_DATA *)p.data->scroll_v->class_data)->init_val, s.top);
        EXPECT_TRUE(Inside(Rect(p.boxes[s.box]), view));
    }
    ScrollComboToGadget(p.button);  // outside any combo: nothing moves
    EXPECT_EQ(p.data->top, 4 + 20 * 4 + 18 - view.h);
}

TEST_F(GadgetTest, KeysReachTheStopInACombo)
{
    TAB_PAGE p;
    MakeTabPage(this, &p);
    Turn();
    recorded.clear();
    Key(KEY_TAB);  // the field before the combo
    TypeText("ab");
    EXPECT_STREQ(p.field, "ab");
    Key(KEY_TAB);
    Key(KEY_TAB);  // the field in the combo
    t_gadget *field = FindGadgetByItemCode(window, 12);
    ASSERT_EQ(GetCurrentGadget(window), field);
    TypeText("xyz");
    Key(KEY_BACKSPACE);
    EXPECT_STREQ((char *)field->data, "xy");
    // The box, toggled by Space and reported as a click. Shift+Tab is taken in one turn, so that
    // the field's report of its edit, posted as it is left, comes in the next.
    PushEvent(INPUT_KEY_DOWN, 0, 0, 0, KEY_TAB, QUAL_SHIFT);
    Turn();
    t_gadget *box = FindGadgetByItemCode(window, 11);
    ASSERT_EQ(GetCurrentGadget(window), box);
    recorded.clear();
    Key(' ');
    EXPECT_EQ(box->class_data, 1u);
    EXPECT_EQ(ReportsOf(11), std::vector<void *>{box});
    EXPECT_EQ(ReportsOf(12), std::vector<void *>{field});  // the field left tells its edit
    Key(' ');
    EXPECT_EQ(box->class_data, 0u);
}

// A field that the wheel scrolled out of its combo's view still tells that it was left.
TEST_F(GadgetTest, AFieldScrolledOutOfViewReportsLeaving)
{
    TAB_PAGE p;
    MakeTabPage(this, &p);
    Turn();
    t_gadget *field = FindGadgetByItemCode(window, 12);
    Click(MidX(field), MidY(field));
    TypeText("z");
    Move(MidX(p.outer), MidY(p.outer));
    Wheel(-1, 3);
    T_RPOS view = ComboView(p.outer), shown = Rect(field);
    ASSERT_FALSE(RectIntersect(&shown, &view));
    recorded.clear();
    t_gadget *ok = FindGadgetByItemCode(window, 20);
    Click(MidX(ok), MidY(ok));
    Turn();
    EXPECT_EQ(ReportsOf(12), std::vector<void *>{field});
}
