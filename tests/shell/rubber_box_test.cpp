// A new page drawn as a box on the main window's background: the smallest box that makes one, and
// the mouse kept inside the user area while the box is drawn.
#include <algorithm>
#include <cstdlib>

#include "tests/shell/shell_fixture.h"

// How many pixels of the rubber box's colour stand on a horizontal line of the screen.
static u32 RubberPixels(i16 y, i16 x1, i16 x2)
{
    i32 width, height, pitch;
    u32 *pixels = display->pixels(&width, &height, &pitch);
    u32 count = 0;
    for (i16 x = x1; x <= x2; x++)
        if ((pixels[y * pitch + x] & 0xFFFFFF) == (DISPLAY_RECORD->rubber_box_colour & 0xFFFFFF))
            count++;
    return count;
}

TEST_F(ShellTest, ABoxOfAtLeast32By12BecomesTheActivePage)
{
    //  box                  from        to          page
    const struct {
        const char *name;
        i16 x1, y1, x2, y2;
        bool page;
    } rows[] = {
        {"31 by 100", 300, 100, 331, 200, false},
        {"100 by 11", 300, 100, 400, 111, false},
        {"a dot", 300, 100, 300, 100, false},
        {"32 by 12", 300, 100, 332, 112, true},
        {"32 by 12 drawn upwards", 432, 212, 400, 200, true},
        {"400 by 300", 500, 250, 900, 550, true},
    };
    t_Window *w = h.main_window;
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        size_t pages = Pages().size();
        t_Window *active = ActivePage();
        DrawBox(row.x1, row.y1, row.x2, row.y2);
        EXPECT_FALSE(HeadlessMouseRect(NULL)) << "the mouse is free again";
        EXPECT_EQ(Main()->box_active, 0u);
        if (!row.page) {
            EXPECT_EQ(Pages().size(), pages);
            EXPECT_EQ(ActivePage(), active);
            continue;
        }
        ASSERT_EQ(Pages().size(), pages + 1);
        t_Window *page = Pages().back();
        EXPECT_EQ(ActivePage(), page);
        EXPECT_STREQ(page->name, "New Window");
        EXPECT_EQ(w->title_suffix, page->name);
        ASSERT_NE(page->hover_title, nullptr);
        EXPECT_STREQ(page->hover_title, "New document");
        EXPECT_EQ(page->x, w->user_x + std::min(row.x1, row.x2));
        EXPECT_EQ(page->y, w->user_y + std::min(row.y1, row.y2));
        EXPECT_EQ(page->w, std::abs(row.x2 - row.x1));
        EXPECT_EQ(page->h, std::abs(row.y2 - row.y1));
    }
}

// While the button is down the mouse stays in the user area and the dotted box follows it; at the
// release both end.
TEST_F(ShellTest, WhileTheBoxIsDrawnTheMouseStaysInTheUserArea)
{
    t_Window *w = h.main_window;
    T_RPOS rect;
    EXPECT_FALSE(HeadlessMouseRect(&rect));
    i16 x1 = (i16)(w->user_x + 300), y1 = (i16)(w->user_y + 200);
    UserPress(x1, y1, 1);
    ASSERT_TRUE(HeadlessMouseRect(&rect));
    EXPECT_EQ(rect.x, w->user_x);
    EXPECT_EQ(rect.y, w->user_y);
    EXPECT_EQ(rect.w, w->user_w);
    EXPECT_EQ(rect.h, w->user_h);
    EXPECT_EQ(Main()->box_active, 1u);

    UserMove((i16)(x1 + 200), (i16)(y1 + 100));
    UserTurns(1);
    EXPECT_EQ(Main()->box_x2 - Main()->box_x1, 200);
    EXPECT_EQ(Main()->box_y2 - Main()->box_y1, 100);
    EXPECT_GT(RubberPixels(y1, x1, (i16)(x1 + 200)), 50u);
    EXPECT_GT(RubberPixels((i16)(y1 + 99), x1, (i16)(x1 + 200)), 50u);

    // Towards the top left of the screen: the pointer stops at the user area's corner.
    UserMove(0, 0);
    UserTurns(1);
    EXPECT_EQ(w->mouse_x, w->user_x);
    EXPECT_EQ(w->mouse_y, w->user_y);
    EXPECT_TRUE(HeadlessMouseRect(NULL));

    UserRelease(w->user_x, w->user_y, 1);
    EXPECT_FALSE(HeadlessMouseRect(NULL));
    ASSERT_EQ(Pages().size(), 1u);
    t_Window *page = Pages().back();
    EXPECT_EQ(page->x, w->user_x);
    EXPECT_EQ(page->y, w->user_y);
    EXPECT_EQ(page->w, 300);
    EXPECT_EQ(page->h, 200);
    UserTurns(1);
    EXPECT_EQ(RubberPixels((i16)(y1 + 99), (i16)(x1 + 10), (i16)(x1 + 200)), 0u) << "the box is gone";
}
