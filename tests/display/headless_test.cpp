// The headless display: its framebuffer, the input queue in order, virtual time, and what the
// toolkit asked of the pointer.
#include <gtest/gtest.h>

#include "display/display.h"
#include "toolkit.h"

static T_INPUT_EVENT Event(u16 kind, i16 x, i16 y, u16 qualifiers) {
    T_INPUT_EVENT event{};
    event.kind = kind;
    event.x = x;
    event.y = y;
    event.qualifiers = qualifiers;
    return event;
}

class HeadlessTest : public ::testing::Test {
  protected:
    void SetUp() override { ASSERT_TRUE(display_headless.open(320, 200, "test")); }
    void TearDown() override { display_headless.close(); }
};

TEST_F(HeadlessTest, FramebufferIsClearedAtTheScreenSize) {
    i32 width, height, pitch;
    u32 *pixels = display_headless.pixels(&width, &height, &pitch);
    ASSERT_NE(pixels, nullptr);
    EXPECT_EQ(width, 320);
    EXPECT_EQ(height, 200);
    EXPECT_EQ(pitch, 320);
    for (i32 i = 0; i < width * height; i++) ASSERT_EQ(pixels[i], 0u);
    pixels[width * height - 1] = 0x123456;  // the whole buffer is ours
    display_headless.present();
}

// Events come out in the order pushed; qualifiers are those of the last key or mouse event.
TEST_F(HeadlessTest, QueueIsFirstInFirstOut) {
    const T_INPUT_EVENT pushed[] = {
        Event(INPUT_MOUSE_MOVE, 10, 20, 0),
        Event(INPUT_MOUSE_DOWN, 10, 20, QUAL_SHIFT),
        Event(INPUT_KEY_DOWN, 0, 0, QUAL_CONTROL),
        Event(INPUT_TEXT, 0, 0, 0),
        Event(INPUT_MOUSE_UP, 11, 21, QUAL_ALT),
    };
    const u16 qualifiers_after[] = {0, QUAL_SHIFT, QUAL_CONTROL, QUAL_CONTROL, QUAL_ALT};
    for (size_t i = 0; i < std::size(pushed); i++) {
        HeadlessPush(&pushed[i]);
        EXPECT_EQ(display_headless.qualifiers(), qualifiers_after[i]) << i;
    }
    EXPECT_EQ(HeadlessPending(), std::size(pushed));
    T_INPUT_EVENT event;
    for (const T_INPUT_EVENT &expected : pushed) {
        ASSERT_TRUE(display_headless.poll(&event));
        EXPECT_EQ(event.kind, expected.kind);
        EXPECT_EQ(event.x, expected.x);
        EXPECT_EQ(event.qualifiers, expected.qualifiers);
    }
    EXPECT_FALSE(display_headless.poll(&event));
    EXPECT_EQ(HeadlessPending(), 0u);
}

TEST_F(HeadlessTest, TimeMovesOnlyWhenTold) {
    EXPECT_EQ(display_headless.ticks(), 0u);
    display_headless.wait(16);
    EXPECT_EQ(display_headless.ticks(), 16u);
    HeadlessAdvance(500);
    EXPECT_EQ(display_headless.ticks(), 516u);
    display_headless.close();
    ASSERT_TRUE(display_headless.open(100, 100, "again"));
    EXPECT_EQ(display_headless.ticks(), 0u);
}

TEST_F(HeadlessTest, PointerRequestsAreRecordedNotQueued) {
    display_headless.set_cursor(MOUSE_IMAGE_SIZE_NWSE);
    EXPECT_EQ(HeadlessCursor(), MOUSE_IMAGE_SIZE_NWSE);
    T_RPOS rect;
    EXPECT_FALSE(HeadlessMouseRect(&rect));
    const T_RPOS limits = {10, 20, 100, 50};
    display_headless.set_mouse_rect(&limits);
    ASSERT_TRUE(HeadlessMouseRect(&rect));
    EXPECT_EQ((std::vector<int>{rect.x, rect.y, rect.w, rect.h}), (std::vector<int>{10, 20, 100, 50}));
    display_headless.set_mouse_rect(nullptr);
    EXPECT_FALSE(HeadlessMouseRect(&rect));
    display_headless.warp_mouse(33, 44);
    i16 x, y;
    HeadlessWarpXY(&x, &y);
    EXPECT_EQ(x, 33);
    EXPECT_EQ(y, 44);
    EXPECT_EQ(HeadlessPending(), 0u);
}

TEST_F(HeadlessTest, ResizeTakesEffectWhenPolled) {
    T_INPUT_EVENT resize = Event(INPUT_RESIZE, 640, 480, 0);
    HeadlessPush(&resize);
    i32 width, height, pitch;
    display_headless.pixels(&width, &height, &pitch);
    EXPECT_EQ(width, 320);
    T_INPUT_EVENT event;
    ASSERT_TRUE(display_headless.poll(&event));
    EXPECT_EQ(event.kind, INPUT_RESIZE);
    EXPECT_NE(display_headless.pixels(&width, &height, &pitch), nullptr);
    EXPECT_EQ(width, 640);
    EXPECT_EQ(height, 480);
    EXPECT_EQ(pitch, 640);
}
