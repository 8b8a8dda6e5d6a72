// The page painter: frames by mark, handles on a single selection, and a slider's marks when it is
// resized by a handle.
#include "tests/editor/editor_fixture.h"

#include <algorithm>
#include <vector>

#include "lumora/lumora_internal.h"

static u32 Pixel(i16 x, i16 y)
{
    i32 width, height, pitch;
    u32 *pixels = display->pixels(&width, &height, &pitch);
    return pixels[y * pitch + x];
}

// How many pixels of the row from x1 to x2 have the colour.
static int CountInRow(i16 y, i16 x1, i16 x2, u32 colour)
{
    int n = 0;
    for (i16 x = x1; x <= x2; x++)
        n += Pixel(x, y) == colour;
    return n;
}

TEST_F(PageTest, FrameColourFollowsTheMarks)
{
    struct {
        u32 marks;
        u32 colour;  // 0: no frame
    } const cases[] = {
        {GADGET_MARK_SELECTED, 0xFFFFFF},
        {GADGET_MARK_SELECTED | GADGET_MARK_DRAG, 0xFF00FF},
        {GADGET_MARK_DRAG, 0xFFFF00},
        {0, 0},
    };
    t_gadget *g = Make(TOOL_BUTTON, 60, 60, 80, 24);
    gadgets->current_gadget = NULL;  // no handles over the frame
    const u32 colours[] = {0xFFFFFF, 0xFF00FF, 0xFFFF00};
    for (const auto &c : cases) {
        SCOPED_TRACE(c.marks);
        g->live_flags = (g->live_flags & ~(GADGET_MARK_SELECTED | GADGET_MARK_DRAG)) | c.marks;
        UserTurns(1);
        i16 y = (i16)(g->screen_y - 1), x1 = (i16)(g->screen_x - 1), x2 = (i16)(g->screen_x + g->base_width);
        for (u32 colour : colours) {
            if (colour == c.colour) {
                EXPECT_GT(CountInRow(y, x1, x2, colour), g->base_width / 4);
            } else {
                EXPECT_EQ(CountInRow(y, x1, x2, colour), 0);
            }
        }
    }
}

TEST_F(PageTest, HandlesShowOnTheCurrentGadgetWhenExactlyOneIsMarked)
{
    t_gadget *a = Make(TOOL_BUTTON, 40, 40, 60, 20);
    t_gadget *b = Make(TOOL_BUTTON, 40, 120, 60, 20);
    u32 handle_colour = DISPLAY_RECORD->handle_colour;
    struct {
        int mark_a, mark_b;
        t_gadget *current;
        int tab_mode;
        t_gadget *expected;
    } const cases[] = {
        {1, 0, a, 0, a},       {0, 1, a, 0, a},  // one marked while another is current: the current one has the handles
        {1, 1, a, 0, NULL},    {0, 0, a, 0, NULL},
        {1, 0, NULL, 0, NULL}, {1, 0, a, 1, NULL},  // tab-order mode draws numbers instead
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(testing::Message() << c.mark_a << c.mark_b << (c.current != NULL) << c.tab_mode);
        ClearAllMarkedGadgets(a);
        if (c.mark_a)
            Mark(a);
        if (c.mark_b)
            Mark(b);
        gadgets->current_gadget = c.current;
        record->edit_state = c.tab_mode ? EDIT_TAB_ORDER : 0;
        UserTurns(1);
        CHECK_PAGE();
        EXPECT_EQ(record->handle_gadget, c.expected);
        // The bottom right handle box, solid in the handle colour, only when handles show.
        EXPECT_EQ(Pixel((i16)(a->screen_x + a->base_width + 3), (i16)(a->screen_y + a->base_height + 3)) ==
                      handle_colour,
                  c.expected == a);
        if (c.mark_b && !c.tab_mode) {  // the marked gadget keeps its frame
            EXPECT_GT(CountInRow((i16)(b->screen_y - 1), b->screen_x, (i16)(b->screen_x + 59), 0xFFFFFF), 0);
        }
    }
}

TEST_F(PageTest, SliderResizeSetsItsMarksByOrientation)
{
    struct {
        u16 tool;
        u32 orientation;  // as set on the gadget before the resize
        i16 mark_width, mark_height;
    } const cases[] = {
        {TOOL_SLIDER_H, GADGET_FLAGS_HORIZONTAL, 8, 26},
        {TOOL_SLIDER_V, GADGET_FLAGS_VERTICAL, 116, 8},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.tool);
        t_gadget *g = Make(c.tool, 50, 50, 100, 20);
        ASSERT_NE(g->class_data, 0u);
        EXPECT_EQ(g->live_flags & GADGET_FLAGS_XY, c.orientation);
        T_SLIDER_DATA *slider = (T_SLIDER_DATA *)g->class_data;
        page->mouse_x = (i16)(g->screen_x + 120);
        page->mouse_y = (i16)(g->screen_y + 30);
        ApplyHandleResize(page, g, HANDLE_BOTTOM_RIGHT);
        EXPECT_EQ(g->base_width, 120);
        EXPECT_EQ(g->base_height, 30);
        EXPECT_EQ(slider->mark_width, c.mark_width);
        EXPECT_EQ(slider->mark_height, c.mark_height);
        EXPECT_EQ(slider->slider_width, 120);
        EXPECT_EQ(slider->slider_height, 30);
        EXPECT_EQ(slider->track_width, 120);
        EXPECT_EQ(slider->track_height, 30);
        EXPECT_TRUE(Modified());
        CHECK_PAGE();
        // Without an orientation the record stays as it was.
        g->live_flags &= ~GADGET_FLAGS_XY;
        page->mouse_x = (i16)(g->screen_x + 90);
        ApplyHandleResize(page, g, HANDLE_RIGHT);
        EXPECT_EQ(g->base_width, 90);
        EXPECT_EQ(slider->slider_width, 120);
        EXPECT_EQ(slider->mark_width, c.mark_width);
    }
}

// A repaint fills each background only where no window above covers it; what shows is the same,
// pixel for pixel, as filling every background whole, with a screen of pages and dialogs over
// each other, a page that clips to the main window, a window without a background, and a second
// page partly off the main window. The screen is wiped first, so a hole left unpainted shows.
TEST_F(PageTest, RepaintLeavingCoveredBackgroundsShowsTheSame)
{
    Make(TOOL_BUTTON, 20, 20, 100, 24);
    Make(TOOL_CHECK_BOX, 20, 60, 120, 20);
    t_Window *other = CreatePageWindow(harness.main_window, (char *)"Other", 0x7C, 380, 200, 1100, 600);
    ASSERT_NE(other, nullptr);
    t_Window *bare = CreatePageWindow(harness.main_window, (char *)"Bare", 0x7C, 600, 40, 800, 160);
    bare->flags |= WF_NO_BACK;
    T_WINDOWOBJINIT init;
    memset(&init, 0, sizeof(init));
    init.x = 30, init.y = 30, init.w = 200, init.h = 120;
    init.flags = WF_CHILD | WF_TITLE | WF_BORDER | WF_CLOSE;
    init.parent = page;
    ASSERT_NE(CreateObject(&CURRENT_DISPLAY->window_class->head, "Dialog", &init), nullptr);
    UserTurns(2);
    i32 width, height, pitch;
    u32 *pixels = display->pixels(&width, &height, &pitch);
    std::vector<u32> screens[2];
    for (int reference = 0; reference < 2; reference++) {
        lumora_state.paint_every_background = (u16)reference;
        std::fill(pixels, pixels + (size_t)height * pitch, 0xFF00FFu);
        PaintScreen(NULL);
        screens[reference].assign(pixels, pixels + (size_t)height * pitch);
    }
    lumora_state.paint_every_background = 0;
    size_t differ = 0;
    for (size_t i = 0; i < screens[0].size(); i++)
        differ += screens[0][i] != screens[1][i];
    EXPECT_EQ(differ, 0u);
}

// A drag step repaints only round the gadgets it moves, marks and all: a pixel far from them is
// left as it stood, and the screen then shows, pixel for pixel, what a whole repaint shows. The
// gadgets are of every tool, so that none draws outside its box, and several are marked, one of
// them from the right and bottom.
TEST_F(PageTest, DragStepRepaintsOnlyRoundTheMovedGadgetsAndShowsTheSame)
{
    std::vector<t_gadget *> made;
    for (u16 tool = TOOL_FIRST; tool < TOOL_COUNT; tool++)
        made.push_back(Make(tool, (i16)(10 + (tool - 1) % 4 * 100), (i16)(10 + (tool - 1) / 4 * 60), 80, 40));
    made[5]->live_flags |= GADGET_FLAGS_FROM_RIGHT | GADGET_FLAGS_FROM_BOTTOM;
    RecalcUserSize(page);
    for (size_t i = 0; i < made.size(); i += 3)
        Mark(made[i]);
    UserTurns(1);
    i16 x = MidX(made[0]), y = MidY(made[0]);
    Press(x, y);
    Move((i16)(x + 8), (i16)(y + 8));  // past the threshold: the drag begins
    i32 width, height, pitch;
    u32 *pixels = display->pixels(&width, &height, &pitch);
    const i16 far_x = (i16)(width - 3), far_y = (i16)(height - 3);
    static const i16 steps[][2] = {{5, 0}, {0, 7}, {-12, -3}, {30, 25}, {-1, 1}};
    for (const auto &step : steps) {
        u32 far_before = Pixel(far_x, far_y);
        pixels[far_y * pitch + far_x] = 0xFF00FFu;
        x = (i16)(x + step[0]), y = (i16)(y + step[1]);
        PushEvent(INPUT_MOUSE_MOVE, x, y, 1);
        Turn();
        EXPECT_EQ(Pixel(far_x, far_y), 0xFF00FFu) << "a step of " << step[0] << ", " << step[1];
        pixels[far_y * pitch + far_x] = far_before;
        std::vector<u32> stepped(pixels, pixels + (size_t)height * pitch);
        record->dash_phase = (u16)((record->dash_phase + 31) % 32);  // the marks' dots as they stood
        PaintScreen(NULL);
        size_t differ = 0;
        for (size_t i = 0; i < stepped.size(); i++)
            differ += stepped[i] != pixels[i];
        EXPECT_EQ(differ, 0u) << "a step of " << step[0] << ", " << step[1];
    }
    Release(x, y);
    CHECK_PAGE();
}
