// Colours: the HSI model both ways, on known colours and on a round trip.
#include <gtest/gtest.h>

#include "toolkit.h"

TEST(Colour, KnownColoursInHSI)
{
    const struct {
        const char *what;
        T_RGBA rgb;
        T_HSIA hsi;
    } cases[] = {
        {"black", {0, 0, 0, 255}, {0, 0, 0, 255}},
        {"white", {255, 255, 255, 255}, {0, 0, 255, 255}},
        {"grey", {128, 128, 128, 0}, {0, 0, 128, 0}},
        {"red", {255, 0, 0, 255}, {0, 255, 85, 255}},
        {"green", {0, 255, 0, 255}, {85, 255, 85, 255}},  // 120 degrees
        {"blue", {0, 0, 255, 255}, {170, 255, 85, 255}},  // 240 degrees
        {"yellow", {255, 255, 0, 255}, {42.5f, 255, 170, 255}},
        {"pale red", {200, 100, 100, 255}, {0, 63.75f, 133.333f, 255}},
    };
    for (auto c : cases) {
        SCOPED_TRACE(c.what);
        T_RGBA rgb = c.rgb;
        T_HSIA hsi;
        RGBToHSI(&rgb, &hsi);
        EXPECT_NEAR(hsi.h, c.hsi.h, 0.01);
        EXPECT_NEAR(hsi.s, c.hsi.s, 0.01);
        EXPECT_NEAR(hsi.i, c.hsi.i, 0.01);
        EXPECT_EQ(hsi.a, c.hsi.a);
        T_HSIA back = c.hsi;
        HSIToRGB(&back, &rgb);
        EXPECT_NEAR(rgb.r, c.rgb.r, 0.01);
        EXPECT_NEAR(rgb.g, c.rgb.g, 0.01);
        EXPECT_NEAR(rgb.b, c.rgb.b, 0.01);
    }
}

// Every colour of a 6-step cube, and some near the grey axis, survive the round trip.
TEST(Colour, HSIRoundTripIsStable)
{
    std::vector<T_RGBA> colours;
    for (int r = 0; r <= 255; r += 51)
        for (int g = 0; g <= 255; g += 51)
            for (int b = 0; b <= 255; b += 51)
                colours.push_back({(float)r, (float)g, (float)b, 255});
    colours.push_back({100, 100, 101, 0});
    colours.push_back({254, 255, 255, 0});
    colours.push_back({1, 0, 0, 0});
    for (const T_RGBA &colour : colours) {
        T_RGBA in = colour, out;
        T_HSIA hsi;
        RGBToHSI(&in, &hsi);
        HSIToRGB(&hsi, &out);
        ASSERT_NEAR(out.r, colour.r, 0.5) << colour.r << " " << colour.g << " " << colour.b;
        ASSERT_NEAR(out.g, colour.g, 0.5) << colour.r << " " << colour.g << " " << colour.b;
        ASSERT_NEAR(out.b, colour.b, 0.5) << colour.r << " " << colour.g << " " << colour.b;
        ASSERT_EQ(GetConstantTRGBA(&out), GetConstantTRGBA(&in));
    }
}
