// PNG files: a surface written and read back, and files that fail.
#include <png.h>

#include <fstream>
#include <string>

#include "surface_fixture.h"

using PngTest = SurfaceTest;

static std::string TempPath(const char *name)
{
    return testing::TempDir() + name;
}

TEST_F(PngTest, SurfaceRoundTripsThroughAFile)
{
    for (i32 y = 0; y < kHeight; y++)
        for (i32 x = 0; x < kWidth; x++)
            pixels[y * kWidth + x] = (u32)(x * 4) | (u32)(y * 5) << 8 | 0x7F0000u;
    std::string path = TempPath("brushel_round_trip.png");
    ASSERT_TRUE(WritePNG(path.c_str(), &surface));
    i32 width, height;
    u32 *read = ReadPNG(path.c_str(), &width, &height);
    ASSERT_NE(read, nullptr);
    ASSERT_EQ(width, kWidth);
    ASSERT_EQ(height, kHeight);
    for (i32 i = 0; i < kWidth * kHeight; i++)
        ASSERT_EQ(read[i], pixels[i] | 0xFF000000u) << i;
    FreeMem(read, (u32)width * height * 4);
    std::remove(path.c_str());
}

TEST_F(PngTest, BadFilesFailWithoutHarm)
{
    std::string not_png = TempPath("brushel_not.png");
    std::ofstream(not_png) << "this is no image";
    const char *paths[] = {"/no/such/folder/image.png", not_png.c_str()};
    for (const char *path : paths) {
        i32 width = 7, height = 7;
        EXPECT_EQ(ReadPNG(path, &width, &height), nullptr) << path;
        EXPECT_EQ(width, 0);
        EXPECT_EQ(height, 0);
    }
    EXPECT_FALSE(WritePNG("/no/such/folder/image.png", &surface));
    T_SURFACE empty{};
    EXPECT_FALSE(WritePNG(not_png.c_str(), &empty));
    std::remove(not_png.c_str());
}
