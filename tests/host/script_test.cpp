// Reading scripts: every action, comments and blank lines, and the line number of a line that
// can't be read.
#include <gtest/gtest.h>

#include "host/script.h"
#include "host/user_actions.h"

TEST(Script, ReadsEveryAction)
{
    const char *text = "# a comment\n"
                       "\n"
                       "move 10 20\n"
                       "press 1 2\n"
                       "release 3 4\n"
                       "click 5 6\n"
                       "dclick 7 8\n"
                       "rclick 9 10\n"
                       "drag 1 2 3 4\n"
                       "key ctrl+s\n"
                       "type hello world\n"
                       "turns 5\n"
                       "screenshot /tmp/x.png\n"
                       "click-gadget \"Settings for Quillform\" 3\n"
                       "expect-window \"Quillform\"\r\n"
                       "  expect-no-window \"New Window\"";
    T_SCRIPT script;
    ASSERT_TRUE(ParseScript(&script, "t", text)) << script.error;
    struct {
        u16 verb;
        u32 line;
        i32 n0, n1;
        const char *text;
    } const expected[] = {
        {SCRIPT_MOVE, 3, 10, 20, ""},
        {SCRIPT_PRESS, 4, 1, 2, ""},
        {SCRIPT_RELEASE, 5, 3, 4, ""},
        {SCRIPT_CLICK, 6, 5, 6, ""},
        {SCRIPT_DCLICK, 7, 7, 8, ""},
        {SCRIPT_RCLICK, 8, 9, 10, ""},
        {SCRIPT_DRAG, 9, 1, 2, ""},
        {SCRIPT_KEY, 10, 0, 0, "ctrl+s"},
        {SCRIPT_TYPE, 11, 0, 0, "hello world"},
        {SCRIPT_TURNS, 12, 5, 0, ""},
        {SCRIPT_SCREENSHOT, 13, 0, 0, "/tmp/x.png"},
        {SCRIPT_CLICK_GADGET, 14, 3, 0, "Settings for Quillform"},
        {SCRIPT_EXPECT_WINDOW, 15, 0, 0, "Quillform"},
        {SCRIPT_EXPECT_NO_WINDOW, 16, 0, 0, "New Window"},
    };
    ASSERT_EQ(script.count, sizeof(expected) / sizeof(expected[0]));
    for (u32 i = 0; i < script.count; i++) {
        SCOPED_TRACE(i);
        EXPECT_EQ(script.steps[i].verb, expected[i].verb);
        EXPECT_EQ(script.steps[i].line, expected[i].line);
        EXPECT_EQ(script.steps[i].numbers[0], expected[i].n0);
        EXPECT_EQ(script.steps[i].numbers[1], expected[i].n1);
        EXPECT_STREQ(script.steps[i].text, expected[i].text);
    }
    EXPECT_EQ(script.steps[6].numbers[3], 4);
    EXPECT_EQ(script.steps[7].key, KEY_CTRL('S'));
    EXPECT_EQ(script.steps[7].qualifiers, QUAL_CONTROL);
    FreeScript(&script);
}

TEST(Script, NamesTheLineThatCantBeRead)
{
    struct {
        const char *text;
        const char *error;
    } const cases[] = {
        {"move 1\n", "t:1: cannot read \"move 1\""},
        {"# ok\nclick 1 2\njump 3 4\n", "t:3: cannot read \"jump 3 4\""},
        {"key ctrl+nothing\n", "t:1: cannot read \"key ctrl+nothing\""},
        {"click-gadget Settings 3\n", "t:1: cannot read \"click-gadget Settings 3\""},
        {"turns 3 4\n", "t:1: cannot read \"turns 3 4\""},
        {"type\n", "t:1: cannot read \"type\""},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.text);
        T_SCRIPT script;
        EXPECT_FALSE(ParseScript(&script, "t", c.text));
        EXPECT_STREQ(script.error, c.error);
        EXPECT_EQ(script.count, 0u);
    }
}

TEST(Script, WrittenKeys)
{
    struct {
        const char *name;
        u16 key, qualifiers;
    } const cases[] = {
        {"ctrl+s", KEY_CTRL('S'), QUAL_CONTROL},
        {"ctrl+S", KEY_CTRL('S'), QUAL_CONTROL},
        {"alt+f4", KEY_F1 + 3, QUAL_ALT},
        {"escape", KEY_ESCAPE, 0},
        {"f10", 275, 0},
        {"shift+tab", KEY_TAB, QUAL_SHIFT},
        {"delete", KEY_DELETE, 0},
        {"a", 'a', 0},
        {"alt+f", 'f', QUAL_ALT},
        {"return", KEY_RETURN, 0},
        {"z", 'z', 0},
        {"space", ' ', 0},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name);
        u16 key = 0, qualifiers = 0;
        ASSERT_TRUE(ParseKeyName(c.name, &key, &qualifiers));
        EXPECT_EQ(key, c.key);
        EXPECT_EQ(qualifiers, c.qualifiers);
    }
    u16 key, qualifiers;
    EXPECT_FALSE(ParseKeyName("f13", &key, &qualifiers));
    EXPECT_FALSE(ParseKeyName("hyper+a", &key, &qualifiers));
    EXPECT_FALSE(ParseKeyName("", &key, &qualifiers));
}
