// A smoke test of the SDL display under SDL's dummy video driver: it opens, has pixels, presents,
// polls and closes. Skipped where SDL can't start.
#include <gtest/gtest.h>

#include <cstdlib>

#include "display/display.h"
#include "toolkit.h"

TEST(SdlDisplay, OpensPresentsPollsAndCloses)
{
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    if (!display_sdl.open(320, 200, "Quillform test"))
        GTEST_SKIP() << "SDL can't start here";
    i32 width, height, pitch;
    u32 *pixels = display_sdl.pixels(&width, &height, &pitch);
    ASSERT_NE(pixels, nullptr);
    EXPECT_EQ(width, 320);
    EXPECT_EQ(height, 200);
    EXPECT_GE(pitch, width);
    pixels[0] = 0x0000FF;
    display_sdl.present();
    T_INPUT_EVENT event;
    for (int i = 0; i < 100 && display_sdl.poll(&event); i++) {
    }
    EXPECT_FALSE(display_sdl.poll(&event));
    u32 before = display_sdl.ticks();
    display_sdl.wait(2);
    EXPECT_GE(display_sdl.ticks(), before + 2);
    display_sdl.set_cursor(MOUSE_IMAGE_TEXT);
    const T_RPOS limits = {0, 0, 100, 100};
    display_sdl.set_mouse_rect(&limits);
    display_sdl.set_mouse_rect(nullptr);
    display_sdl.close();
    EXPECT_EQ(display_sdl.pixels(&width, &height, &pitch), nullptr);
}
