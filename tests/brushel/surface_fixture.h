// An off-screen surface for the drawing tests: set as the draw surface, cleared to a known colour.
#pragma once
#include <gtest/gtest.h>

#include <vector>

#include "toolkit.h"

#define TEST_BACKGROUND 0x00203040u

class SurfaceTest : public ::testing::Test
{
  protected:
    static constexpr i32 kWidth = 64, kHeight = 48;
    std::vector<u32> pixels;
    T_SURFACE surface{};

    void SetUp() override
    {
        pixels.assign(kWidth * kHeight, TEST_BACKGROUND);
        surface = {pixels.data(), kWidth, kHeight, kWidth};
        SetDrawSurface(&surface);
    }
    void TearDown() override { SetDrawSurface(nullptr); }

    void Clear() { std::fill(pixels.begin(), pixels.end(), TEST_BACKGROUND); }
    u32 At(i32 x, i32 y) const { return pixels[y * kWidth + x]; }
    bool Changed(i32 x, i32 y) const { return At(x, y) != TEST_BACKGROUND; }
    int CountChanged() const
    {
        int n = 0;
        for (u32 p : pixels)
            n += p != TEST_BACKGROUND;
        return n;
    }
};
