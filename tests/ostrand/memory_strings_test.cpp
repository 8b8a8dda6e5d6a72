// Memory blocks, texts, value-to-text tables and the log.
#include <gtest/gtest.h>

#include <string>

#include "ostrand/test_support.h"
#include "toolkit.h"

TEST(Memory, BlocksAreClearedCountedAndSizeChecked)
{
    u64 blocks = _OstrandBase->blocks_allocated;
    u64 mismatches = _OstrandBase->size_mismatches;
    u8 *block = (u8 *)AllocMemType(0, 100);
    u8 *other = (u8 *)AllocMemC(0);
    ASSERT_NE(block, nullptr);
    ASSERT_NE(other, nullptr);
    for (int i = 0; i < 100; i++)
        ASSERT_EQ(block[i], 0);
    EXPECT_EQ(_OstrandBase->blocks_allocated, blocks + 2);
    FreeMem(other, 0);
    EXPECT_EQ(_OstrandBase->size_mismatches, mismatches);
    std::string report = CaptureLog([&] { FreeMem(block, 99); });
    EXPECT_EQ(_OstrandBase->size_mismatches, mismatches + 1);
    EXPECT_NE(report.find("100"), std::string::npos) << report;
    EXPECT_NE(report.find("99"), std::string::npos) << report;
    EXPECT_EQ(_OstrandBase->blocks_allocated, blocks);
    FreeMem(nullptr, 5);
    EXPECT_EQ(_OstrandBase->blocks_allocated, blocks);
}

TEST(Strings, RemoveSpacesAndMakeReadable)
{
    struct Case {
        const char *in, *spaces_removed, *readable;
    } cases[] = {
        {"IDCMP_REQUESTER_OK", "IDCMP_REQUESTER_OK", "Requester ok"},
        {"ACT_LMOUSE_UP", "ACT_LMOUSE_UP", "Lmouse up"},
        {"GADGET_FLAGS_LEFT_JUSTIFY", "GADGET_FLAGS_LEFT_JUSTIFY", "Left justify"},
        {"WF_CLOSE", "WF_CLOSE", "Close"},
        {"New Window", "NewWindow", "New window"},
        {"PLAIN", "PLAIN", "Plain"},
        {"ACT_", "ACT_", "Act "},  // nothing would remain: the prefix stays
        {" a b ", "ab", " a b "},
        {"", "", ""},
    };
    for (const Case &c : cases) {
        std::string a = c.in, b = c.in;
        EXPECT_STREQ(RemoveSpacesFromString(a.data()), c.spaces_removed) << c.in;
        EXPECT_STREQ(MakeReadable(b.data()), c.readable) << c.in;
    }
}

TEST(Strings, CalcHexNumberStopsAtTheFirstNonDigit)
{
    struct Case {
        const char *text;
        u32 value;
    } cases[] = {
        {"ff", 255},       {"FF", 255},       {"80000002", 0x80000002u}, {"1g", 1}, {"", 0},
        {"x10", 0},        {"0x10", 0},  // "0x" is the caller's to skip
        {"ffffffff", ~0u}, {"00c00;", 0xc00},
    };
    for (const Case &c : cases)
        EXPECT_EQ(CalcHexNumber(c.text), c.value) << c.text;
}

// clang-format off
static const T_VAL2STRING flag_names[] = {
    {0x1, "FLAG_A"}, {0x400, "FLAG_H"}, {0x800, "FLAG_V"}, {0xc00, "FLAG_XY"},
    {0x300, "WHEEL"}, {3, "THREE"},     {0, ""},
};
// clang-format on

TEST(ValueTables, LookupsMatchWholeValuesAndWholeTexts)
{
    struct ByCode {
        u32 value;
        const char *text;
    } by_code[] = {
        {0x1, "FLAG_A"}, {0xc00, "FLAG_XY"}, {0x400, "FLAG_H"},
        {3, "THREE"},    {0x100, nullptr},  // one bit of a two-bit row
        {0x2, nullptr},  {0, nullptr},
    };
    for (const ByCode &c : by_code) {
        const char *found = FindV2SByCode(flag_names, c.value);
        if (c.text)
            EXPECT_STREQ(found, c.text) << c.value;
        else
            EXPECT_EQ(found, nullptr) << c.value;
    }
    struct ByText {
        const char *text;
        u32 value;
    } by_text[] = {
        {"FLAG_XY", 0xc00}, {"WHEEL", 0x300}, {"FLAG_A", 1}, {"0", 0}, {"", 0},
        {"flag_a", 0},      {"FLAG_A ", 0},   {nullptr, 0},
    };
    for (const ByText &c : by_text)
        EXPECT_EQ(FindV2SByString(flag_names, c.text), c.value) << (c.text ? c.text : "(null)");
}
