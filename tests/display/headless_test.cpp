// The headless display: the input queue in order.
#include <gtest/gtest.h>

#include "display/display.h"
#include "toolkit.h"

static T_INPUT_EVENT Event(u16 kind, i16 x, i16 y, u16 qualifiers)
{
    T_INPUT_EVENT event{};
    event.kind = kind;
    event.x = x;
    event.y = y;
    event.qualifiers = qualifiers;
    return event;
}

class HeadlessTest : public ::testing::Test
{
  protected:
    void SetUp() override { ASSERT_TRUE(display_headless.open(320, 200, "test")); }
    void TearDown() override { display_headless.close(); }
};

// Events come out in the order pushed; qualifiers are those of the last key or mouse event.
TEST_F(HeadlessTest, QueueIsFirstInFirstOut)
{
    const T_INPUT_EVENT pushed[] = {
        Event(INPUT_MOUSE_MOVE, 10, 20, 0),        Event(INPUT_MOUSE_DOWN, 10, 20, QUAL_SHIFT),
        Event(INPUT_KEY_DOWN, 0, 0, QUAL_CONTROL), Event(INPUT_TEXT, 0, 0, 0),
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
