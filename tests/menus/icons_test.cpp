// Icon banks: the application's toolbar icons are drawn and tell apart.
#include <gtest/gtest.h>

#include "host/tool_icons.h"
#include "lumora/lumora_internal.h"

static u32 OpaquePixels(T_TEXTURE_BANK *bank, u16 icon)
{
    u32 size = bank->icon_width * bank->icon_height, count = 0;
    for (u32 i = 0; i < size; i++)
        if (bank->pixels[icon * size + i] >> 24)
            count++;
    return count;
}

static bool SameIcon(T_TEXTURE_BANK *bank, u16 a, u16 b)
{
    u32 size = bank->icon_width * bank->icon_height;
    return memcmp(bank->pixels + a * size, bank->pixels + b * size, size * 4) == 0;
}

TEST(IconBanks, TheToolIconsAreDrawnAndTellApart)
{
    T_TEXTURE_BANK *bank = MakeToolIconBank();
    ASSERT_NE(bank, nullptr);
    ASSERT_EQ(bank->count, TOOL_ICON_COUNT);
    const u16 used[] = {0, 2, 3, 4, 5, 6, 7, 9, 10, 11, 12, 13, 14, 15};
    for (u16 icon : used) {
        EXPECT_GT(OpaquePixels(bank, icon), 40u) << icon;
        EXPECT_LT(OpaquePixels(bank, icon), (u32)TOOL_ICON_SIZE * TOOL_ICON_SIZE) << icon;
        for (u16 other : used)
            if (other != icon) {
                EXPECT_FALSE(SameIcon(bank, icon, other)) << icon << " and " << other;
            }
    }
    EXPECT_EQ(OpaquePixels(bank, 1), 0u);
    EXPECT_EQ(OpaquePixels(bank, 8), 0u);
    FreeTextureBank(bank);
}
