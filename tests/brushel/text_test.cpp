// Fonts and text: drawing inside the box and the clip, UTF-8, font lookup by folder and family,
// and missing fonts.
#include <cstdio>
#include <filesystem>
#include <string>

#include "surface_fixture.h"

#define TEXT_INK 0x00FFFFFFu
#define FONT_FOLDER "/usr/share/fonts/truetype/dejavu"

class TextTest : public SurfaceTest
{
  protected:
    void SetUp() override
    {
        SurfaceTest::SetUp();
        ASSERT_TRUE(InitFonts(nullptr));
    }
    void TearDown() override
    {
        CloseFonts();
        SurfaceTest::TearDown();
    }
};

// "Hello" lights pixels, all inside the box of its width and the line height, and the same text
// cut by a clip changes nothing outside the clip.
TEST_F(TextTest, TextStaysInsideItsBoxAndClip)
{
    const i16 x = 5, y = 8;
    for (u16 style = 0; style < 4; style++) {
        SCOPED_TRACE(style);
        SetFontStyle(style);
        Clear();
        i32 width = DrawText(x, y, "Hello", TEXT_INK);
        EXPECT_EQ(width, GetStringWidth("Hello"));
        EXPECT_GT(CountChanged(), 20);
        for (i32 py = 0; py < kHeight; py++)
            for (i32 px = 0; px < kWidth; px++)
                if (Changed(px, py)) {
                    ASSERT_TRUE(px >= x && px < x + width && py >= y && py < y + GetActiveFontHeight())
                        << px << "," << py;
                }
        Clear();
        ClipInsideWindow(x + 6, y + 4, x + 20, y + 9);
        DrawText(x, y, "Hello", TEXT_INK);
        ClipAll();
        EXPECT_GT(CountChanged(), 0);
        for (i32 py = 0; py < kHeight; py++)
            for (i32 px = 0; px < kWidth; px++)
                if (Changed(px, py)) {
                    ASSERT_TRUE(px >= x + 6 && px < x + 20 && py >= y + 4 && py < y + 9);
                }
    }
    SetFontStyle(0);
}

TEST_F(TextTest, Utf8IsReadAndUnknownCharactersShowAsQuestionMarks)
{
    const struct {
        const char *text, *same_as;
    } cases[] = {
        {"caf\xC3\xA9", "caf\xE9"},     // two-byte UTF-8 and the Latin-1 byte
        {"\xE2\x82\xAC", "?"},          // the euro sign is past Latin-1
        {"a\xF0\x9F\x98\x80z", "a?z"},  // so is an emoji
        {"\xC3", "\xC3"},               // a cut sequence reads as Latin-1
        {"\x01", "?"},                  // a control character has no glyph
    };
    for (auto c : cases) {
        EXPECT_EQ(GetStringWidth(c.text), GetStringWidth(c.same_as)) << c.same_as;
        EXPECT_GT(GetStringWidth(c.text), 0) << c.same_as;
    }
}

TEST_F(TextTest, FontsAreFoundInFolderSystemAndPathWithTheirFamily)
{
    std::string folder = testing::TempDir() + "brushel_fonts";
    std::filesystem::create_directories(folder);
    std::filesystem::copy_file(FONT_FOLDER "/DejaVuSerif.ttf", folder + "/Custom.ttf",
                               std::filesystem::copy_options::overwrite_existing);
    ASSERT_TRUE(InitFonts(folder.c_str()));
    const struct {
        const char *name;
        bool has_bold_face;
    } cases[] = {
        {"Custom.ttf", false},                   // the font folder; no family beside it
        {"DejaVuSansMono.ttf", true},            // the system's fonts
        {FONT_FOLDER "/DejaVuSerif.ttf", true},  // a path; the family uses -Bold, -Italic
        {"DejaVuMathTeXGyre.ttf", false},        // no family at all
    };
    for (auto c : cases) {
        SCOPED_TRACE(c.name);
        T_FONT *font = LoadFont(c.name, 20);
        ASSERT_NE(font, nullptr);
        EXPECT_EQ(font->faces[1] != nullptr, c.has_bold_face);
        EXPECT_EQ(font->faces[3] != nullptr, c.has_bold_face);
        SetActiveFont(font);
        EXPECT_EQ(GetActiveFont(), font);
        i32 regular = GetStringWidth("Bold");
        SetFontStyle(1);
        if (c.has_bold_face)
            EXPECT_GE(GetStringWidth("Bold"), regular);
        else
            EXPECT_GT(GetStringWidth("Bold"), regular);  // a missing bold face is made bold
        SetFontStyle(0);
        SetActiveFont(nullptr);
        FreeFont(font);
    }
    T_FONT *system_font = GetActiveFont();
    EXPECT_STREQ(system_font->name, "DejaVuSans.ttf");
    std::filesystem::remove_all(folder);
}

TEST_F(TextTest, MissingFontIsLoggedAndTextWithoutFontsDrawsNothing)
{
    testing::internal::CaptureStderr();
    EXPECT_EQ(LoadFont("NoSuchFont.ttf", 13), nullptr);
    EXPECT_NE(testing::internal::GetCapturedStderr().find("NoSuchFont.ttf"), std::string::npos);
    EXPECT_EQ(LoadFont("", 13), nullptr);
    CloseFonts();
    EXPECT_EQ(GetActiveFont(), nullptr);
    EXPECT_EQ(GetStringWidth("Hello"), 0);
    EXPECT_EQ(DrawText(0, 0, "Hello", TEXT_INK), 0);
    EXPECT_EQ(GetActiveFontHeight(), 0);
    SetConsoleXY(0, 0);
    Print("Hello");
    EXPECT_EQ(CountChanged(), 0);
}
