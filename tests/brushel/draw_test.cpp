// Drawing primitives: clipping, lines, frames, dotted boxes, bevels, blends, images and icons.
#include <algorithm>
#include <cstdlib>
#include <map>
#include <set>
#include <utility>

#include "surface_fixture.h"

#define INK 0x00112233u

using DrawTest = SurfaceTest;

struct ClipCase {
    const char *what;
    i16 clip_left, clip_top, clip_right, clip_bottom;
    i16 x, y, w, h;
};

// A filled rectangle changes exactly the pixels inside it, the clip and the surface.
TEST_F(DrawTest, RectangleIsCutByClipAndSurface) {
    const ClipCase cases[] = {
        {"inside", 0, 0, kWidth, kHeight, 5, 6, 10, 7},
        {"straddles left and top", 10, 10, 40, 40, 4, 3, 12, 12},
        {"straddles right and bottom", 10, 10, 40, 40, 30, 35, 20, 20},
        {"outside the clip", 10, 10, 20, 20, 25, 25, 5, 5},
        {"negative origin", 0, 0, kWidth, kHeight, -5, -5, 8, 9},
        {"clip larger than surface", -100, -100, 1000, 1000, 50, 40, 30, 30},
        {"empty clip", 30, 30, 20, 20, 0, 0, kWidth, kHeight},
        {"zero width", 0, 0, kWidth, kHeight, 5, 5, 0, 10},
        {"negative height", 0, 0, kWidth, kHeight, 5, 5, 10, -3},
    };
    for (const ClipCase &c : cases) {
        SCOPED_TRACE(c.what);
        Clear();
        ClipInsideWindow(c.clip_left, c.clip_top, c.clip_right, c.clip_bottom);
        DrawRectangle(c.x, c.y, c.w, c.h, INK);
        for (i32 y = 0; y < kHeight; y++)
            for (i32 x = 0; x < kWidth; x++) {
                bool in_rect = x >= c.x && x < c.x + c.w && y >= c.y && y < c.y + c.h;
                bool in_clip = x >= c.clip_left && x < c.clip_right && y >= c.clip_top && y < c.clip_bottom;
                ASSERT_EQ(At(x, y), in_rect && in_clip ? INK : TEST_BACKGROUND) << x << "," << y;
            }
    }
}

TEST_F(DrawTest, ClipIsKeptInsideTheSurfaceAndReset) {
    T_RPOS rect;
    ClipInsideWindow(-10, 5, 500, 20);
    GetClip(&rect);
    EXPECT_EQ((std::vector<int>{rect.x, rect.y, rect.w, rect.h}), (std::vector<int>{0, 5, kWidth, 15}));
    ClipAll();
    GetClip(&rect);
    EXPECT_EQ((std::vector<int>{rect.x, rect.y, rect.w, rect.h}), (std::vector<int>{0, 0, kWidth, kHeight}));
}

TEST_F(DrawTest, NothingIsDrawnWithoutASurface) {
    SetDrawSurface(nullptr);
    DrawRectangle(0, 0, kWidth, kHeight, INK);
    DrawLine(0, 0, 20, 30, INK);
    DrawPixel(1, 1, INK);
    DrawDottedBox(0, 0, 10, 10, INK, 0);
    EXPECT_EQ(CountChanged(), 0);
}

struct LineCase {
    const char *what;
    i16 x1, y1, x2, y2;
};

static const LineCase line_cases[] = {
    {"horizontal", 3, 7, 40, 7},       {"horizontal backwards", 40, 9, 3, 9},
    {"vertical", 12, 2, 12, 30},       {"diagonal", 2, 2, 30, 30},
    {"anti-diagonal", 30, 4, 4, 30},   {"shallow", 1, 1, 50, 12},
    {"steep backwards", 20, 40, 14, 3}, {"one point", 9, 9, 9, 9},
};

// Both ends are drawn, and a line has one pixel per step along its longer axis.
TEST_F(DrawTest, LineCoversEndPointsWithOnePixelPerStep) {
    for (const LineCase &c : line_cases) {
        SCOPED_TRACE(c.what);
        Clear();
        DrawLine(c.x1, c.y1, c.x2, c.y2, INK);
        EXPECT_EQ(At(c.x1, c.y1), INK);
        EXPECT_EQ(At(c.x2, c.y2), INK);
        EXPECT_EQ(CountChanged(), std::max(std::abs(c.x2 - c.x1), std::abs(c.y2 - c.y1)) + 1);
    }
    Clear();
    DrawLine(2, 2, 30, 30, INK);
    for (int i = 0; i <= 28; i++) EXPECT_EQ(At(2 + i, 2 + i), INK);
}

// A clipped line is the unclipped line cut to the clip, pixel for pixel.
TEST_F(DrawTest, ClippedLineIsTheLineCutToTheClip) {
    for (const LineCase &c : line_cases) {
        SCOPED_TRACE(c.what);
        Clear();
        ClipAll();
        DrawLine(c.x1, c.y1, c.x2, c.y2, INK);
        std::vector<u32> whole = pixels;
        Clear();
        ClipInsideWindow(8, 5, 25, 20);
        DrawLine(c.x1, c.y1, c.x2, c.y2, INK);
        for (i32 y = 0; y < kHeight; y++)
            for (i32 x = 0; x < kWidth; x++) {
                bool in_clip = x >= 8 && x < 25 && y >= 5 && y < 20;
                ASSERT_EQ(At(x, y), in_clip ? whole[y * kWidth + x] : TEST_BACKGROUND);
            }
    }
}

static std::set<std::pair<int, int>> FramePixels(int x, int y, int w, int h) {
    std::set<std::pair<int, int>> set;
    for (int i = 0; i < w; i++) set.insert({x + i, y}), set.insert({x + i, y + h - 1});
    for (int j = 0; j < h; j++) set.insert({x, y + j}), set.insert({x + w - 1, y + j});
    return set;
}

TEST_F(DrawTest, OutlineBoxIsAOnePixelFrame) {
    const T_RPOS boxes[] = {{5, 5, 1, 1}, {5, 5, 1, 6}, {5, 5, 6, 1}, {5, 5, 2, 2}, {3, 4, 20, 11}};
    for (const T_RPOS &b : boxes) {
        SCOPED_TRACE(testing::Message() << b.w << "x" << b.h);
        Clear();
        DrawOutLineBox(b.x, b.y, b.w, b.h, INK);
        auto frame = FramePixels(b.x, b.y, b.w, b.h);
        EXPECT_EQ(CountChanged(), (int)frame.size());
        for (auto [x, y] : frame) EXPECT_EQ(At(x, y), INK);
    }
}

// The dotted box of a negative size is the box normalised to positive size, in every phase.
TEST_F(DrawTest, DottedBoxWithNegativeSizeEqualsNormalisedBox) {
    const T_RPOS boxes[] = {{30, 25, -12, -9}, {30, 25, 12, -9}, {30, 25, -12, 9}, {40, 40, -2, -3}};
    for (const T_RPOS &b : boxes)
        for (u16 phase = 0; phase < 4; phase++) {
            SCOPED_TRACE(testing::Message() << b.w << "x" << b.h << " phase " << phase);
            Clear();
            DrawDottedBox(b.x, b.y, b.w, b.h, INK, phase);
            std::vector<u32> negative = pixels;
            Clear();
            DrawDottedBox(b.w < 0 ? b.x + b.w : b.x, b.h < 0 ? b.y + b.h : b.y, std::abs(b.w), std::abs(b.h),
                          INK, phase);
            EXPECT_EQ(pixels, negative);
            EXPECT_GT(CountChanged(), 0);
        }
}

// Dots two on, two off, on the frame only; each phase moves them one pixel on, so that over the
// four phases every frame pixel is lit exactly twice.
TEST_F(DrawTest, DottedBoxRunsWithPhase) {
    const i16 x = 4, y = 6, w = 17, h = 10;
    auto frame = FramePixels(x, y, w, h);
    std::map<std::pair<int, int>, int> lit;
    std::vector<std::vector<u32>> by_phase;
    for (u16 phase = 0; phase < 4; phase++) {
        Clear();
        DrawDottedBox(x, y, w, h, INK, phase);
        by_phase.push_back(pixels);
        for (i32 py = 0; py < kHeight; py++)
            for (i32 px = 0; px < kWidth; px++)
                if (Changed(px, py)) {
                    EXPECT_TRUE(frame.count({px, py})) << px << "," << py;
                    lit[{px, py}]++;
                }
    }
    for (auto p : frame) EXPECT_EQ(lit[p], 2) << p.first << "," << p.second;
    for (u16 phase = 0; phase < 4; phase++) {
        const std::vector<u32> &now = by_phase[phase], &next = by_phase[(phase + 1) % 4];
        EXPECT_EQ(now[y * kWidth + x] == INK && now[y * kWidth + x + 1] == INK, phase == 0);
        for (i32 i = 0; i + 1 < w; i++)  // along the top edge the pattern moves right
            EXPECT_EQ(now[y * kWidth + x + i], next[y * kWidth + x + i + 1]) << "phase " << phase;
    }
    Clear();
    DrawDottedBox(x, y, w, h, INK, 4);
    EXPECT_EQ(pixels, by_phase[0]);
}

TEST_F(DrawTest, BevelBoxIsLightTopLeftAndDarkBottomRight) {
    const u32 light = 0xEEEEEE, dark = 0x333333;
    DrawBevelBox(10, 10, 8, 6, light, dark);
    const struct {
        i32 x, y;
        u32 colour;
    } expected[] = {
        {10, 10, light}, {16, 10, light}, {10, 14, light}, {17, 10, dark}, {17, 15, dark},
        {10, 15, dark},  {13, 12, TEST_BACKGROUND},
    };
    for (auto e : expected) EXPECT_EQ(At(e.x, e.y), e.colour) << e.x << "," << e.y;
    EXPECT_EQ(CountChanged(), 2 * 8 + 2 * 6 - 4);
}

TEST_F(DrawTest, BlendRectangleMixesByAlphaInsideClip) {
    const struct {
        u8 alpha;
        u32 expected;
    } cases[] = {{0, TEST_BACKGROUND}, {255, 0x00FFFFFF}, {128, 0x009098A0}};
    for (auto c : cases) {
        Clear();
        ClipInsideWindow(0, 0, 10, 10);
        BlendRectangle(5, 5, 10, 10, 0x00FFFFFF, c.alpha);
        EXPECT_EQ(At(7, 7), c.expected) << (int)c.alpha;
        EXPECT_EQ(At(12, 7), TEST_BACKGROUND);
    }
}

TEST_F(DrawTest, ImagesBlendByTheirAlpha) {
    const u32 image[4] = {0xFF0000FF, 0x00FFFFFF, 0x80FFFFFF, 0xFF00FF00};  // opaque, clear, half
    DrawImage(image, 2, 2, 3, 3);
    EXPECT_EQ(At(3, 3), 0x000000FFu);
    EXPECT_EQ(At(4, 3), TEST_BACKGROUND);
    EXPECT_EQ(At(3, 4), MixColour(TEST_BACKGROUND, 0xFFFFFF, 0x80));
    EXPECT_EQ(At(4, 4), 0x0000FF00u);
    Clear();
    ClipInsideWindow(0, 0, 4, 4);
    DrawImage(image, 2, 2, 3, 3);
    EXPECT_EQ(CountChanged(), 1);
}

TEST_F(DrawTest, IconsComeFromTheirBankAndScale) {
    T_TEXTURE_BANK *bank = NewTextureBank("test", 3, 2, 2);
    ASSERT_NE(bank, nullptr);
    EXPECT_TRUE(std::all_of(bank->pixels, bank->pixels + 12, [](u32 p) { return p == 0; }));
    const u32 icon[4] = {0xFF0000FF, 0xFF00FF00, 0xFFFF0000, 0xFFFFFFFF};
    std::copy(icon, icon + 4, bank->pixels + 4);  // icon 1
    DrawIcon(bank, 0, 0, 0);                       // fully transparent
    DrawIcon(bank, 3, 0, 0);                       // no such icon
    EXPECT_EQ(CountChanged(), 0);
    DrawIcon(bank, 1, 10, 10);
    EXPECT_EQ(At(11, 11), 0x00FFFFFFu);
    Clear();
    DrawIconScaled(bank, 1, 20, 20, 4, 4);  // each icon pixel becomes a 2 by 2 block
    for (i32 y = 0; y < 4; y++)
        for (i32 x = 0; x < 4; x++) EXPECT_EQ(At(20 + x, 20 + y), icon[(y / 2) * 2 + x / 2] & 0xFFFFFF);
    EXPECT_EQ(CountChanged(), 16);
    FreeTextureBank(bank);
}
