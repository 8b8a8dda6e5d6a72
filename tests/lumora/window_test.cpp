// Windows: the user area, frame dragging and resizing, closing, maximise and minimise, deferred
// removal, focus, and the window's bitmap.
#include "tests/harness/toolkit_fixture.h"

static i16 TitleH()
{
    return (i16)DISPLAY_RECORD->title_height;
}

TEST_F(LumoraTest, UserAreaFollowsFrameFlags)
{
    struct {
        u32 flags;
        i16 border, title;
        const char *handler;  // the frame handler that must be there, or null
    } rows[] = {
        {0, 0, 0, nullptr},
        {WF_BORDER, 4, 0, "border"},
        {WF_TITLE, 0, 1, "titlebar"},
        {WF_BORDER | WF_TITLE | WF_CLOSE | WF_MOVE, 4, 1, "titlebar"},
    };
    for (const auto &row : rows) {
        t_Window *w = MakeWindow("Frame", 100, 50, 300, 200, row.flags, 0);
        ASSERT_NE(w, nullptr);
        i16 t = row.title ? TitleH() : 0;
        EXPECT_EQ(w->state, WINDOW_STATE_OPEN);
        EXPECT_EQ(w->border_size, row.border);
        EXPECT_EQ(w->user_x, 100 + row.border);
        EXPECT_EQ(w->user_y, 50 + row.border + t);
        EXPECT_EQ(w->user_w, 300 - 2 * row.border);
        EXPECT_EQ(w->user_h, 200 - 2 * row.border - t);
        EXPECT_EQ(w->UserAreaColour, DISPLAY_RECORD->default_area_colour);
        if (row.handler) {
            EXPECT_NE(FindNode(w->handlers.first, row.handler), nullptr);
        }
        EXPECT_EQ(FindNode(w->handlers.first, "border") != nullptr, row.border != 0);
        RemoveWindow(w);
    }
    Turn();
}

TEST_F(LumoraTest, GadgetsFromRightAndBottomFollowTheUserArea)
{
    t_Window *w = MakeWindow("G", 0, 0, 208, 108, WF_BORDER, 0);  // user area 4,4 200x100
    struct {
        u32 flags;
        i16 pos_x, pos_y, sx, sy;
    } rows[] = {
        {0, 10, 20, 14, 24},
        {GADGET_FLAGS_FROM_RIGHT, 10, 20, 4 + 200 - 10 - 30, 24},
        {GADGET_FLAGS_FROM_BOTTOM, 10, 20, 14, 4 + 100 - 20 - 15},
        {GADGET_FLAGS_FROM_RIGHT | GADGET_FLAGS_FROM_BOTTOM, 0, 0, 4 + 200 - 30, 4 + 100 - 15},
    };
    for (const auto &row : rows) {
        t_gadget *g = MakeGadget(w, "g", GADGET_TYPE_BUTTON, row.pos_x, row.pos_y, 30, 15, 1, 0, row.flags);
        EXPECT_EQ(g->screen_x, row.sx);
        EXPECT_EQ(g->screen_y, row.sy);
        g->pos_x += 5;  // editing writes the working place; the recalculation brings the rest
        g->base_width = 40;
        RecalcUserSize(w);
        EXPECT_EQ(g->x, row.pos_x + 5);
        EXPECT_EQ(g->pos_width, 40);
        EXPECT_EQ(g->screen_x,
                  (row.flags & GADGET_FLAGS_FROM_RIGHT) ? 4 + 200 - (row.pos_x + 5) - 40 : 4 + row.pos_x + 5);
    }
    T_RPOS bigger = {0, 0, 308, 208};
    ResizeWindow(w, &bigger);
    t_gadget *last = GetCurrentGadget(w);  // the gadget made last
    EXPECT_EQ(last->screen_x, 4 + 300 - 5 - 40);
    EXPECT_EQ(last->screen_y, 4 + 200 - 15);
}

TEST_F(LumoraTest, TitleDragMovesWindowAndChildren)
{
    t_Window *w = MakeWindow("Mover", 100, 100, 300, 200, WF_BORDER | WF_TITLE | WF_MOVE, IDCMP_WINDOW_MOVE);
    t_Window *child = MakeWindow("Child", 10, 10, 50, 40, WF_CHILD, 0, w);
    i16 cx = child->x, cy = child->y;
    Turn();
    recorded.clear();
    Drag(150, 106, 180, 126);
    EXPECT_EQ(w->x, 130);
    EXPECT_EQ(w->y, 120);
    EXPECT_EQ(child->x, cx + 30);
    EXPECT_EQ(child->y, cy + 20);
    EXPECT_EQ(CountRecorded(ACT_WINDOW_MOVE, w), 1u);
    Drag(150, 126, -600, -600);  // a top-level window stays on the screen
    EXPECT_EQ(w->x, 0);
    EXPECT_EQ(w->y, 0);
}

TEST_F(LumoraTest, BorderDragResizesAndReports)
{
    struct {
        i16 px, py, dx, dy;  // press point relative to the frame, and the drag
        T_RPOS expect;
    } rows[] = {
        {299, 100, 40, 0, {100, 100, 340, 200}},     // right edge
        {150, 199, 0, 30, {100, 100, 300, 230}},     // bottom edge
        {299, 199, -20, -10, {100, 100, 280, 190}},  // bottom right corner
        {1, 100, -50, 0, {50, 100, 350, 200}},       // left edge
        {299, 100, -400, 0, {100, 100, 40, 200}},    // past the left edge: the smallest width
    };
    for (const auto &row : rows) {
        t_Window *w = MakeWindow("Sizer", 100, 100, 300, 200, WF_BORDER | WF_RESIZE | WF_TITLE, IDCMP_WINDOW_RESIZE);
        Turn();
        recorded.clear();
        Drag(100 + row.px, 100 + row.py, 100 + row.px + row.dx, 100 + row.py + row.dy);
        EXPECT_EQ(w->x, row.expect.x);
        EXPECT_EQ(w->y, row.expect.y);
        EXPECT_EQ(w->w, row.expect.w);
        EXPECT_EQ(w->h, row.expect.h);
        EXPECT_EQ(w->user_w, w->w - 8);
        EXPECT_EQ(CountRecorded(ACT_WINDOW_RESIZE, w), 1u);
        RemoveWindow(w);
        Turn();
    }
}

static i16 close_x, close_y;
static void FindCloseButton(t_Window *w)
{
    T_RPOS t = TitleRect(w);
    i16 s = t.h - 6;
    close_x = t.x + t.w - 3 - s / 2;
    close_y = t.y + t.h / 2;
}

TEST_F(LumoraTest, CloseGadgetAndAltF4AskToTerminate)
{
    struct {
        u32 flags, idcmp;
        int by_key;
        u32 terminates;  // ACT_TERMINATE messages
        int removed;     // removed by the toolkit
    } rows[] = {
        {WF_TITLE | WF_CLOSE, IDCMP_TERMINATE, 0, 1, 0},
        {WF_TITLE | WF_CLOSE, 0, 0, 0, 1},
        {WF_TITLE | WF_ALTF4, IDCMP_TERMINATE, 1, 1, 0},
        {WF_TITLE, IDCMP_TERMINATE, 1, 0, 0},
    };
    for (const auto &row : rows) {
        t_Window *w = MakeWindow("Closing", 50, 50, 200, 150, row.flags, row.idcmp);
        Turn();
        recorded.clear();
        if (row.by_key) {
            Key(KEY_F1 + 3, QUAL_ALT);
        } else {
            FindCloseButton(w);
            Click(close_x, close_y);
        }
        EXPECT_EQ(CountRecorded(ACT_TERMINATE), row.terminates);
        EXPECT_EQ(FindWindowByName(nullptr, "Closing") == nullptr, row.removed != 0);
        if (!row.removed)
            RemoveWindow(w);
        Turn();
    }
}

// In a child that doesn't take Alt+F4 the key closes the nearest parent that does, unless the child
// is a dialog, in front of or dependent on its parent: then no one is closed.
TEST_F(LumoraTest, AltF4InAChildClosesTheParentThatTakesItUnlessTheChildIsADialog)
{
    struct {
        u32 child_flags;
        int main_closes, child_closes;
    } rows[] = {
        {WF_CHILD | WF_TITLE, 1, 0},
        {WF_CHILD | WF_TITLE | WF_IN_FRONT, 0, 0},
        {WF_CHILD | WF_TITLE | WF_DEPENDANT, 0, 0},
        {WF_CHILD | WF_TITLE | WF_IN_FRONT | WF_ALTF4, 0, 1},
    };
    for (const auto &row : rows) {
        t_Window *main = MakeWindow("Main", 10, 10, 400, 300, WF_TITLE | WF_ALTF4, IDCMP_TERMINATE);
        t_Window *child = MakeWindow("Child", 20, 20, 100, 80, row.child_flags, IDCMP_TERMINATE, main);
        ASSERT_EQ(FocusWindow(), child);
        Turn();
        recorded.clear();
        Key(KEY_F1 + 3, QUAL_ALT);
        EXPECT_EQ(CountRecorded(ACT_TERMINATE, main), (u32)row.main_closes) << row.child_flags;
        EXPECT_EQ(CountRecorded(ACT_TERMINATE, child), (u32)row.child_closes) << row.child_flags;
        RemoveWindow(main);
        Turn();
    }
}

TEST_F(LumoraTest, MaximiseAndMinimiseRestore)
{
    t_Window *w = MakeWindow("Big", 50, 60, 200, 150, WF_TITLE | WF_BORDER | WF_MAXIMISE | WF_MINIMISE | WF_CLOSE, 0);
    Turn();
    T_RPOS t = TitleRect(w);
    i16 s = t.h - 6;
    i16 max_x = t.x + t.w - 3 - s - 2 - s / 2, min_x = max_x - s - 2, y = t.y + t.h / 2;
    Click(max_x, y);
    EXPECT_EQ(w->x, 0);
    EXPECT_EQ(w->w, 800);
    EXPECT_EQ(w->h, 600);
    t = TitleRect(w);
    Click(t.x + t.w - 3 - s - 2 - s / 2, t.y + t.h / 2);
    EXPECT_EQ(w->x, 50);
    EXPECT_EQ(w->w, 200);
    Click(min_x, y);
    EXPECT_EQ(w->state, WINDOW_STATE_MINIMISED);
    T_RPOS button;
    ASSERT_TRUE(MinimisedButtonRect(w, &button));
    EXPECT_EQ(WindowAtPoint(60, 70, nullptr), nullptr);
    Click(button.x + 5, button.y + 5);
    EXPECT_EQ(w->state, WINDOW_STATE_OPEN);
    EXPECT_EQ(FocusWindow(), w);
}

// Closing with a nested wait, as a page's close query does: the window stays readable until the
// outermost turn ends.
static u16 state_in_wait;
static u32 flags_in_wait, depth_in_wait;
static u32 RemoveAndWait(t_Window *window, u32 item_code, u32 msg, void *data)
{
    RecordMessage(window, item_code, msg, data);
    if (msg != ACT_TERMINATE)
        return 0;
    RemoveWindow(window);
    RefreshHandlers(nullptr);
    state_in_wait = window->state;
    flags_in_wait = window->state_flags;
    depth_in_wait = _LumoraBase->turn_depth;
    return 0;
}

TEST_F(LumoraTest, RemovedWindowIsFreedOnlyAfterTheOutermostTurn)
{
    t_Window *w =
        MakeWindow("Query", 50, 50, 200, 150, WF_TITLE | WF_CLOSE | WF_ALTF4, IDCMP_TERMINATE, nullptr, RemoveAndWait);
    NewHandler(&w->handlers, nullptr, nullptr, "extra", 0, 64, w);
    Turn();
    u64 blocks = _OstrandBase->blocks_allocated;
    Key(KEY_F1 + 3, QUAL_ALT);
    EXPECT_EQ(state_in_wait, WINDOW_STATE_OPEN);
    EXPECT_TRUE(flags_in_wait & WSF_REMOVED);
    EXPECT_EQ(depth_in_wait, 1u);
    EXPECT_TRUE(LIST_EMPTY(&lumora_state.removed));
    EXPECT_LT(_OstrandBase->blocks_allocated, blocks);
}

TEST_F(LumoraTest, FocusChangeSendsLooseThenGain)
{
    u32 mask = IDCMP_GAIN_CONTEXT | IDCMP_LOOSE_CONTEXT;
    t_Window *a = MakeWindow("A", 10, 10, 200, 200, WF_BORDER, mask);
    t_Window *b = MakeWindow("B", 300, 10, 200, 200, WF_BORDER, mask);
    EXPECT_EQ(FocusWindow(), b);
    Turn();
    recorded.clear();
    Click(50, 50);
    ASSERT_EQ(recorded.size(), 2u);
    EXPECT_EQ(recorded[0].window, b);
    EXPECT_EQ(recorded[0].msg, (u32)ACT_LOOSE_CONTEXT);
    EXPECT_EQ(recorded[1].window, a);
    EXPECT_EQ(recorded[1].msg, (u32)ACT_GAIN_CONTEXT);
    EXPECT_EQ((t_Window *)CURRENT_DISPLAY->window_class->windows.last, a);
    Click(60, 60);  // already the focus: nothing more
    EXPECT_EQ(recorded.size(), 2u);
}

TEST_F(LumoraTest, BitmapIsFoundByNameOrLeftPlain)
{
    t_Window *w = MakeWindow("Pic", 0, 0, 100, 100, 0, 0);
    SetWindowBitmap(w, "absent.png");
    EXPECT_EQ(w->bitmap, nullptr);
    std::string dir = data_root + "/Bitmaps";
    ASSERT_TRUE(MakeEntireDirectory(dir.c_str()));
    u32 pixels[4 * 4];
    for (u32 &p : pixels)
        p = 0x00112233;
    T_SURFACE s = {pixels, 4, 4, 4};
    ASSERT_TRUE(WritePNG((dir + "/tile.png").c_str(), &s));
    SetWindowBitmap(w, "tile.png");
    ASSERT_NE(w->bitmap, nullptr);
    EXPECT_STREQ(w->bitmap->name, "tile.png");
    EXPECT_EQ(w->bitmap->type, (u32)RESOURCE_TYPE_BITMAP);
    Turn();
    EXPECT_EQ(lumora_state.screen.pixels[w->user_y * lumora_state.screen.pitch + w->user_x] & 0xFFFFFF, 0x112233u);
    SetWindowBitmap(w, "");
    EXPECT_EQ(w->bitmap, nullptr);
}
