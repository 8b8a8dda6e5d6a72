// Drawing primitives: clipping of rectangles and lines, the running dotted box, and icons.
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
TEST_F(DrawTest, RectangleIsCutByClipAndSurface)
{
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

struct LineCase {
    const char *what;
    i16 x1, y1, x2, y2;
};

// clang-format off
static const LineCase line_cases[] = {
    {"horizontal",      3,  7,  40, 7},       {"horizontal backwards", 40, 9, 3,  9},
    {"vertical",        12, 2,  12, 30},       {"diagonal",            2,  2, 30, 30},
    {"anti-diagonal",   30, 4,  4,  30},   {"shallow",                 1,  1, 50, 12},
    {"steep backwards", 20, 40, 14, 3}, {"one point",                  9,  9, 9,  9},
};
// clang-format on

// A clipped line is the unclipped line cut to the clip, pixel for pixel.
TEST_F(DrawTest, ClippedLineIsTheLineCutToTheClip)
{
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

static std::set<std::pair<int, int>> FramePixels(int x, int y, int w, int h)
{
    std::set<std::pair<int, int>> set;
    for (int i = 0; i < w; i++)
        set.insert({x + i, y}), set.insert({x + i, y + h - 1});
    for (int j = 0; j < h; j++)
        set.insert({x, y + j}), set.insert({x + w - 1, y + j});
    return set;
}

// Dots two on, two off, on the frame only; each phase moves them one pixel on, so that over the
// four phases every frame pixel is lit exactly twice.
TEST_F(DrawTest, DottedBoxRunsWithPhase)
{
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
    for (auto p : frame)
        EXPECT_EQ(lit[p], 2) << p.first << "," << p.second;
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

TEST_F(DrawTest, IconsComeFromTheirBankAndScale)
{
    T_TEXTURE_BANK *bank = NewTextureBank("test", 3, 2, 2);
    ASSERT_NE(bank, nullptr);
    EXPECT_TRUE(std::all_of(bank->pixels, bank->pixels + 12, [](u32 p) { return p == 0; }));
    const u32 icon[4] = {0xFF0000FF, 0xFF00FF00, 0xFFFF0000, 0xFFFFFFFF};
    std::copy(icon, icon + 4, bank->pixels + 4);  // icon 1
    DrawIcon(bank, 0, 0, 0);                      // fully transparent
    DrawIcon(bank, 3, 0, 0);                      // no such icon
    EXPECT_EQ(CountChanged(), 0);
    DrawIcon(bank, 1, 10, 10);
    EXPECT_EQ(At(11, 11), 0x00FFFFFFu);
    Clear();
    DrawIconScaled(bank, 1, 20, 20, 4, 4);  // each icon pixel becomes a 2 by 2 block
    for (i32 y = 0; y < 4; y++)
        for (i32 x = 0; x < 4; x++)
            EXPECT_EQ(At(20 + x, 20 + y), icon[(y / 2) * 2 + x / 2] & 0xFFFFFF);
    EXPECT_EQ(CountChanged(), 16);
    FreeTextureBank(bank);
}
