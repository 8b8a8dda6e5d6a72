// Key names: what is shown for a key, and that a shown name reads back as the same key.
#include <gtest/gtest.h>

#include "toolkit.h"

TEST(KeyNames, ShownAndReadBack)
{
    static const struct {
        u32 key;
        const char *shown;
        u16 qualifiers;  // read back from the shown name
    } rows[] = {
        // key              shown         qualifiers
        {KEY_CTRL('O'), "Ctrl+O", QUAL_CONTROL},
        {KEY_F1 + 9, "F10", 0},
        {KEY_F1 + 11, "F12", 0},
        {KEY_DELETE, "Delete", 0},
        {KEY_PAGE_DOWN, "Page Down", 0},
        {KEY_ESCAPE, "Escape", 0},
        {' ', "Space", 0},
        {'q', "Q", 0},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.shown);
        char name[KEY_NAME_SIZE];
        EXPECT_STREQ(KeyName(row.key, name), row.shown);
        u16 key = 0, qualifiers = 0;
        ASSERT_TRUE(ParseKeyName(row.shown, &key, &qualifiers));
        EXPECT_EQ(key, row.key);
        EXPECT_EQ(qualifiers, row.qualifiers);
    }
    char name[KEY_NAME_SIZE];
    EXPECT_STREQ(KeyName(0, name), "");
    EXPECT_STREQ(KeyName(1000, name), "Key 1000");
    u16 key, qualifiers;
    EXPECT_TRUE(ParseKeyName("pagedown", &key, &qualifiers));  // spaces do not count
    EXPECT_EQ(key, KEY_PAGE_DOWN);
    EXPECT_TRUE(ParseKeyName("esc", &key, &qualifiers));  // an alias
    EXPECT_EQ(key, KEY_ESCAPE);
}
