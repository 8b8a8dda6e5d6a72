// Gadgets: creation fields, the types' behaviour, reports, marks by area, the mouse helpers.
#include "lumora_input.h"

TEST_F(LumoraTest, CreationFillsTheRecord) {
    t_Window *w = MakeWindow("Make", 10, 10, 300, 200, WF_BORDER, 0);
    t_Gaget_Handler *gh = NewGadgetHandler(w);
    EXPECT_EQ(NewGadgetHandler(w), gh);
    EXPECT_STREQ(gh->head.name, "gadgets");
    T_GADGETOBJECTINIT init = {};
    init.type = GADGET_TYPE_BUTTON, init.x = 12, init.y = 34, init.base_width = 60;
    init.item_code = 9, init.action = ACT_LMOUSE_UP, init.flags = GADGET_MARK_CREATED;
    init.hover_text = "Tip", init.tab[0] = 0x80000003, init.tab[1] = 4;
    t_gadget *g = (t_gadget *)CreateObject(&gh->head, "Press me", &init);
    ASSERT_NE(g, nullptr);
    EXPECT_STREQ(g->name, "Press me");
    EXPECT_EQ(g->x, 12);
    EXPECT_EQ(g->pos_y, 34);
    EXPECT_EQ(g->screen_x, w->user_x + 12);
    EXPECT_EQ(g->base_height, (i16)GetFontHeight(DISPLAY_RECORD->system_font) + 4);
    EXPECT_EQ(g->live_item_code, 9u);
    EXPECT_EQ(g->live_flags, (u32)GADGET_MARK_CREATED);
    EXPECT_EQ(g->live_action, (u32)ACT_LMOUSE_UP);
    EXPECT_STREQ(g->hover_text, "Tip");
    EXPECT_NE(g->hover_text, init.hover_text);
    EXPECT_EQ(g->tab[0], 0x80000003u);
    EXPECT_EQ(GetCurrentGadget(w), g);
    EXPECT_EQ(FindGadgetByItemCode(w, 9), g);
    EXPECT_EQ(GadgetAtPoint(w, g->screen_x + 1, g->screen_y + 1), g);
    g->live_flags |= GADGET_FLAGS_NO_DISPLAY;
    EXPECT_EQ(GadgetAtPoint(w, g->screen_x + 1, g->screen_y + 1), nullptr);
    SetGadgetHover(g, "");  // an empty text stays, apart from none
    ASSERT_NE(g->hover_text, nullptr);
    EXPECT_STREQ(g->hover_text, "");
    SetGadgetHover(g, nullptr);
    EXPECT_EQ(g->hover_text, nullptr);

    init.flags = GADGET_FLAGS_AUTOSIZE, init.base_width = 0, init.type = GADGET_TYPE_CHECK_BOX;
    t_gadget *box = (t_gadget *)CreateObject(&gh->head, "Check", &init);
    SetActiveFont(nullptr);
    EXPECT_EQ(box->base_width, GetStringWidth("Check") + CheckBoxSize() + 8);
}

static int freed_count;
static void CountFree(void *any, t_gadget *gadget) {
    (void)any, (void)gadget;
    freed_count++;
}

TEST_F(LumoraTest, RemoveObjectFreesOnceAndForgetsTheGadget) {
    t_Window *w = MakeWindow("Free", 10, 10, 300, 200, 0, 0);
    t_gadget *g = MakeGadget(w, "g", GADGET_TYPE_TEXT, 10, 10, 50, 20, 1, 0);
    t_gadget *kept = MakeGadget(w, "kept", GADGET_TYPE_TEXT, 10, 40, 50, 20, 2, 0);
    g->free_fn = kept->free_fn = CountFree;
    char buffer[16] = "own buffer";
    g->name = buffer;  // as the owner's text buffer does
    SetCurrentGadget(w, g);
    freed_count = 0;
    u64 mismatches = _OstrandBase->size_mismatches;
    RemoveObject(&FindGadgetHandler(w)->head, g);
    EXPECT_EQ(freed_count, 1);
    EXPECT_EQ(GetCurrentGadget(w), nullptr);
    EXPECT_EQ(FindGadgetHandler(w)->first_gadget, kept);
    RemoveWindow(w);
    Turn();
    EXPECT_EQ(freed_count, 2);
    EXPECT_EQ(_OstrandBase->size_mismatches, mismatches);
}

TEST_F(LumoraTest, CheckBoxTogglesOnAReleaseInsideAndReports) {
    struct {
        u32 flags;
        i16 release_dx;  // where the release lands, from the press
        uintptr_t state;
        u32 reports;
    } rows[] = {
        {0, 0, 1, 1},
        {0, 200, 0, 0},                      // released off the box: no toggle
        {GADGET_FLAGS_DISABLED, 0, 0, 0},    // disabled: nothing
    };
    for (const auto &row : rows) {
        t_Window *w = MakeWindow("Boxes", 10, 10, 400, 200, 0, 0);
        t_gadget *g = MakeGadget(w, "Option", GADGET_TYPE_CHECK_BOX, 10, 10, 100, 20, 5,
                                 ACT_LMOUSE_UP, row.flags);
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

TEST_F(LumoraTest, ButtonBehaviourWithoutPixels) {
    t_gadget g = {};
    T_RPOS r = {10, 10, 50, 20};
    T_MOUSE_MSG down = {20, 20, 0, ACT_LMOUSE_DOWN}, out = {100, 100, 0, ACT_MOUSE_MOVE};
    T_MOUSE_MSG back = {20, 20, 0, ACT_MOUSE_MOVE}, up = {20, 20, 0, ACT_LMOUSE_UP};
    EXPECT_EQ(ButtonMouse(&g, &down, &r), (u32)ACT_LMOUSE_DOWN);
    EXPECT_TRUE(g.gadget_state & GSTATE_PRESSED);
    ButtonMouse(&g, &out, &r);
    EXPECT_FALSE(g.gadget_state & GSTATE_PRESSED);
    ButtonMouse(&g, &back, &r);
    EXPECT_TRUE(g.gadget_state & GSTATE_PRESSED);
    EXPECT_EQ(ButtonMouse(&g, &up, &r), (u32)ACT_LMOUSE_UP);
    EXPECT_EQ(g.gadget_state, 0);
    EXPECT_EQ(ButtonMouse(&g, &up, &r), 0u);  // a release without its press is no click
    EXPECT_EQ(ButtonKey(&g, ' ', 0) & 0xFFFF, (u32)ACT_LMOUSE_UP);
    EXPECT_EQ(ButtonKey(&g, 'q', 0), 0u);
}

TEST_F(LumoraTest, DialogKeysClickAndTabWalk) {
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

TEST_F(LumoraTest, BandMarksKeepWhatStoodBeforeAndDropWhatItLeaves) {
    t_Window *w = MakeWindow("Band", 0, 0, 400, 200, 0, 0);
    t_gadget *g[3];
    for (int i = 0; i < 3; i++) g[i] = MakeGadget(w, "g", GADGET_TYPE_BUTTON, 10 + 50 * i, 10, 40, 20, i + 1, 0);
    g[0]->live_flags |= GADGET_MARK_SELECTED;
    T_RPOS wide = {55, 0, 120, 50}, narrow = {55, 0, 30, 50}, none = {300, 100, 10, 10};
    MarkGadgetsInArea(g[0], &wide, 1);
    EXPECT_EQ(CountMarkedGadgets(g[2]), 3u);
    MarkGadgetsInArea(g[0], &narrow, 0);
    EXPECT_TRUE(g[0]->live_flags & GADGET_MARK_SELECTED);
    EXPECT_TRUE(g[1]->live_flags & GADGET_MARK_SELECTED);
    EXPECT_FALSE(g[2]->live_flags & GADGET_MARK_SELECTED);
    MarkGadgetsInArea(g[0], &none, 1);  // a new band: what is marked now stays
    EXPECT_EQ(CountMarkedGadgets(g[0]), 2u);
    g[1]->live_flags |= GADGET_MARK_DRAG;
    ClearAllMarkedGadgets(g[1]);
    EXPECT_EQ(CountMarkedGadgets(g[0]), 0u);
    EXPECT_TRUE(g[1]->live_flags & GADGET_MARK_DRAG);  // the drag mark is the owner's
}

TEST(LumoraRects, GenericResize) {
    struct {
        u16 handle;
        i16 mx, my;
        T_RPOS expect;
    } rows[] = {
        {1, 0, 5, {10, 5, 100, 55}},      // top up
        {2, 0, 90, {10, 10, 100, 80}},    // bottom down
        {3, 0, 0, {0, 10, 110, 50}},      // left out
        {4, 50, 0, {10, 10, 40, 50}},     // right in
        {5, 20, 20, {20, 20, 90, 40}},    // top left
        {6, 200, 0, {10, 0, 190, 60}},    // top right
        {7, 60, 70, {10, 10, 50, 60}},    // bottom right
        {8, 5, 80, {5, 10, 105, 70}},     // bottom left
        {1, 0, 100, {10, 44, 100, 16}},   // top past the bottom: stops at the minimum
        {3, 500, 0, {94, 10, 16, 50}},    // left past the right
        {4, -50, 0, {10, 10, 16, 50}},    // right past the left
        {2, 0, -50, {10, 10, 100, 16}},   // bottom past the top
        {0, 500, 500, {10, 10, 100, 50}},  // no handle: unchanged
    };
    for (const auto &row : rows) {
        T_RPOS r = {10, 10, 100, 50};
        GenericResize(&r, 16, 16, row.mx, row.my, row.handle);
        EXPECT_EQ(r.x, row.expect.x) << "handle " << row.handle;
        EXPECT_EQ(r.y, row.expect.y) << "handle " << row.handle;
        EXPECT_EQ(r.w, row.expect.w) << "handle " << row.handle;
        EXPECT_EQ(r.h, row.expect.h) << "handle " << row.handle;
    }
}

TEST(LumoraRects, NormAreaAndPointBoxColl) {
    struct {
        T_RPOS corners, expect;
    } norm[] = {
        {{10, 20, 30, 50}, {10, 20, 20, 30}},
        {{30, 50, 10, 20}, {10, 20, 20, 30}},
        {{-5, 7, 5, -7}, {-5, -7, 10, 14}},
        {{4, 4, 4, 4}, {4, 4, 0, 0}},
    };
    for (const auto &row : norm) {
        T_RPOS r = row.corners;
        NormArea(&r);
        EXPECT_EQ(r.x, row.expect.x);
        EXPECT_EQ(r.y, row.expect.y);
        EXPECT_EQ(r.w, row.expect.w);
        EXPECT_EQ(r.h, row.expect.h);
    }
    T_RPOS box = {10, 10, 5, 5};
    struct {
        i16 x, y;
        int in;
    } points[] = {{10, 10, 1}, {14, 14, 1}, {15, 10, 0}, {10, 15, 0}, {9, 12, 0}};
    for (const auto &p : points) EXPECT_EQ(PointBoxColl(p.x, p.y, &box), p.in) << p.x << "," << p.y;
}

TEST_F(LumoraTest, MouseLimitsClampThePointer) {
    T_RPOS limits = {100, 100, 50, 40};
    SetMouseLimits(&limits);
    T_RPOS seen;
    ASSERT_TRUE(HeadlessMouseRect(&seen));
    struct {
        i16 x, y, ex, ey;
    } rows[] = {{10, 10, 100, 100}, {500, 500, 149, 139}, {120, 120, 120, 120}};
    for (const auto &row : rows) {
        Move(row.x, row.y);
        i16 x, y;
        GetMouseXY(&x, &y);
        EXPECT_EQ(x, row.ex);
        EXPECT_EQ(y, row.ey);
    }
    GetPhysicalScreenRes(&limits);
    SetMouseLimits(&limits);
    EXPECT_FALSE(HeadlessMouseRect(&seen));
    Move(700, 500);
    i16 x, y;
    GetMouseXY(&x, &y);
    EXPECT_EQ(x, 700);
}

TEST_F(LumoraTest, BorderHoverSetsTheResizeImageUnlessLocked) {
    MakeWindow("Hover", 100, 100, 200, 100, WF_BORDER | WF_RESIZE, 0);
    struct {
        i16 x, y;
        u16 image;
    } rows[] = {
        {150, 101, MOUSE_IMAGE_SIZE_NS},  {101, 150, MOUSE_IMAGE_SIZE_WE},
        {101, 101, MOUSE_IMAGE_SIZE_NWSE}, {298, 101, MOUSE_IMAGE_SIZE_NESW},
        {150, 150, MOUSE_IMAGE_ARROW},
    };
    for (const auto &row : rows) {
        Move(row.x, row.y);
        EXPECT_EQ(HeadlessCursor(), row.image) << row.x << "," << row.y;
    }
    SetMouseImage(MOUSE_IMAGE_MOVE);
    LockMouseImage();
    Move(150, 101);
    EXPECT_EQ(HeadlessCursor(), MOUSE_IMAGE_MOVE);
    UnLockMouseImage();
}
