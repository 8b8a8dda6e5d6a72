// Lumora's speed: one full turn of the loop (input, repaint, present) on a 1280 by 800 headless
// screen holding one large window with a title bar, a border and 20 buttons.
#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <filesystem>
#include <string>

#include "lumora/lumora_internal.h"

#define BENCH_WIDTH 1280
#define BENCH_HEIGHT 800
#define BENCH_BUTTONS 20

static void BM_LumoraFullRepaint(benchmark::State &state)
{
    char pattern[] = "/tmp/lumora_bench_XXXXXX";
    if (!mkdtemp(pattern) || !OpenToolkit("headless", BENCH_WIDTH, BENCH_HEIGHT, pattern)) {
        state.SkipWithError("the headless toolkit can't be opened");
        return;
    }
    T_WINDOWOBJINIT init = {};
    init.x = 20, init.y = 20, init.w = BENCH_WIDTH - 40, init.h = BENCH_HEIGHT - 40;
    init.flags = WF_BORDER | WF_TITLE | WF_MOVE | WF_RESIZE | WF_CLOSE | WF_MAXIMISE | WF_MINIMISE;
    t_Window *w = (t_Window *)CreateObject(&CURRENT_DISPLAY->window_class->head, "Benchmark", &init);
    t_Gaget_Handler *gh = NewGadgetHandler(w);
    T_GADGETOBJECTINIT gi = {};
    gi.type = GADGET_TYPE_BUTTON, gi.base_width = 120, gi.base_height = 24;
    gi.action = ACT_LMOUSE_UP;
    for (u32 i = 0; i < BENCH_BUTTONS; i++) {
        gi.x = (i16)(10 + (i % 5) * 130), gi.y = (i16)(10 + (i / 5) * 34), gi.item_code = i + 1;
        std::string name = "Button " + std::to_string(i + 1);
        CreateObject(&gh->head, name.c_str(), &gi);
    }
    RefreshHandlers(nullptr);  // warms the glyph cache
    for (auto _ : state)
        RefreshHandlers(nullptr);
    CloseToolkit();
    std::filesystem::remove_all(pattern);
}
BENCHMARK(BM_LumoraFullRepaint)->Unit(benchmark::kMicrosecond);
