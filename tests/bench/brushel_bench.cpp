// Brushel's speed: a full-screen fill, a line of text with a warm and a cold glyph cache, and a
// repaint of a screen with a window frame and text.
#include <benchmark/benchmark.h>

#include <vector>

#include "toolkit.h"

#define BENCH_WIDTH 1280
#define BENCH_HEIGHT 800
#define BENCH_LINE "Quillform page editor: 40 characters ok"

// A 1280 by 800 surface set for drawing, and the fonts started, for the length of one benchmark.
struct BenchScreen {
    std::vector<u32> pixels;
    T_SURFACE surface;
    BenchScreen() : pixels(BENCH_WIDTH * BENCH_HEIGHT), surface{pixels.data(), BENCH_WIDTH, BENCH_HEIGHT, BENCH_WIDTH}
    {
        SetDrawSurface(&surface);
        InitFonts(nullptr);
    }
    ~BenchScreen()
    {
        CloseFonts();
        SetDrawSurface(nullptr);
    }
};

static void BM_FillScreen(benchmark::State &state)
{
    BenchScreen screen;
    u32 colour = 0;
    for (auto _ : state) {
        DrawRectangle(0, 0, BENCH_WIDTH, BENCH_HEIGHT, colour++);
        benchmark::DoNotOptimize(screen.pixels.data());
    }
    state.SetBytesProcessed(state.iterations() * BENCH_WIDTH * BENCH_HEIGHT * 4);
}
BENCHMARK(BM_FillScreen);

static void BM_TextLineWarmCache(benchmark::State &state)
{
    BenchScreen screen;
    DrawText(10, 10, BENCH_LINE, 0);
    for (auto _ : state)
        benchmark::DoNotOptimize(DrawText(10, 10, BENCH_LINE, 0x00FFFFFF));
}
BENCHMARK(BM_TextLineWarmCache);

// Every line renders its glyphs anew from a font just loaded.
static void BM_TextLineColdCache(benchmark::State &state)
{
    BenchScreen screen;
    for (auto _ : state) {
        state.PauseTiming();
        T_FONT *font = LoadFont("DejaVuSans.ttf", 13);
        SetActiveFont(font);
        state.ResumeTiming();
        benchmark::DoNotOptimize(DrawText(10, 10, BENCH_LINE, 0x00FFFFFF));
        state.PauseTiming();
        SetActiveFont(nullptr);
        FreeFont(font);
        state.ResumeTiming();
    }
}
BENCHMARK(BM_TextLineColdCache);

// What a turn of the loop paints: the desktop, a framed window with a title, gadget bevels with
// labels, and a dotted rubber band.
static void BM_RepaintScreen(benchmark::State &state)
{
    BenchScreen screen;
    for (auto _ : state) {
        DrawRectangle(0, 0, BENCH_WIDTH, BENCH_HEIGHT, 0x705030);
        DrawBevelBox(100, 80, 900, 600, 0xFFFFFF, 0x404040);
        DrawRectangle(101, 81, 898, 20, 0x803000);
        DrawText(106, 83, "Quillform - page1.cpp", 0xFFFFFF);
        DrawRectangle(101, 101, 898, 578, 0xD0D0D0);
        for (i16 row = 0; row < 20; row++) {
            DrawBevelBox(120, 110 + row * 28, 200, 24, 0xFFFFFF, 0x606060);
            DrawText(126, 114 + row * 28, "Button with a label", 0x000000);
            DrawText(340, 114 + row * 28, BENCH_LINE, 0x000000);
        }
        DrawDottedBox(400, 300, -150, -120, 0x0000FF, 2);
        benchmark::DoNotOptimize(screen.pixels.data());
    }
}
BENCHMARK(BM_RepaintScreen);
