// Progress bars: a window in front while the work runs, painted at most every 30 ms of display
// time, and gone without a trace afterwards.
#include "menus/menu_fixture.h"

// Pixels of the bar's fill colour in the window's user area.
static u32 FilledPixels(t_Window *window)
{
    T_SURFACE *s = GetDrawSurface();
    u32 count = 0;
    for (i32 y = window->user_y; y < window->user_y + window->user_h; y++)
        for (i32 x = window->user_x; x < window->user_x + window->user_w; x++)
            if (s->pixels[y * s->pitch + x] == DISPLAY_RECORD->select_colour)
                count++;
    return count;
}

TEST_F(ToolkitTest, AProgressBarShowsItsStepsAndLeavesNothingBehind)
{
    T_PROGRESS_BAR *warm = NewProgressBar("Saving page", 10);  // caches the glyphs of its texts
    HeadlessAdvance(30);
    UpdateProgressBar(warm, 1, "Gadget");
    KillProgressBar(warm);
    Turn();
    u64 blocks = _OstrandBase->blocks_allocated;
    T_PROGRESS_BAR *bar = NewProgressBar("Saving page", 10);
    ASSERT_NE(bar, nullptr);
    t_Window *window = FindWindowByName(NULL, "Saving page");
    ASSERT_NE(window, nullptr);
    EXPECT_NEAR(window->x + window->w / 2, 400, 1);
    EXPECT_EQ(CURRENT_DISPLAY->window_class->current_window, owner);
    EXPECT_EQ(FilledPixels(window), 0u);

    UpdateProgressBar(bar, 10, "Gadget");  // no display time has passed: no repaint yet
    EXPECT_EQ(FilledPixels(window), 0u);
    HeadlessAdvance(30);
    UpdateProgressBar(bar, 5, "Gadget");
    u32 half = FilledPixels(window);
    EXPECT_GT(half, 0u);
    HeadlessAdvance(30);
    UpdateProgressBar(bar, 10, NULL);
    EXPECT_GT(FilledPixels(window), half + half / 2);

    KillProgressBar(bar);
    EXPECT_EQ(FindWindowByName(NULL, "Saving page"), nullptr);
    Turn();
    EXPECT_EQ(_OstrandBase->blocks_allocated, blocks);
    KillProgressBar(NULL);
    UpdateProgressBar(NULL, 1, "nothing");
}
