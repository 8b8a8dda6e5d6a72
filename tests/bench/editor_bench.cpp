// The editor's own measures: a headless start to the first presented frame, one full repaint of
// a 1280x800 screen holding the main window, and making gadgets through the catalogue.
#include <benchmark/benchmark.h>
#include <string.h>

#include "display/display.h"
#include "editor/page_window.h"
#include "page/catalogue.h"
#include "tests/harness/harness.h"

// From OpenToolkit to the first turn of the loop (which presents the frame), with the module's
// whole set-up, in a fresh data root each time.
static void BM_StartToFirstFrame(benchmark::State &state)
{
    for (auto _ : state) {
        T_HARNESS h;
        if (!HarnessStart(&h, NULL, 1280, 800))
            state.SkipWithError("the harness did not start");
        state.PauseTiming();
        HarnessStop(&h, 0);
        state.ResumeTiming();
    }
}
BENCHMARK(BM_StartToFirstFrame)->Unit(benchmark::kMillisecond);

static void BM_RepaintMainWindow(benchmark::State &state)
{
    T_HARNESS h;
    if (!HarnessStart(&h, NULL, 1280, 800)) {
        state.SkipWithError("the harness did not start");
        return;
    }
    for (auto _ : state) {
        CURRENT_DISPLAY->window_class->refresh_request = 1;
        RefreshHandlers(NULL);
    }
    HarnessStop(&h, 0);
}
BENCHMARK(BM_RepaintMainWindow)->Unit(benchmark::kMicrosecond);

// Gadgets one after another on one page: the time per gadget must not grow with the page.
static void BM_CreateGadgets(benchmark::State &state)
{
    const i64 count = state.range(0);
    for (auto _ : state) {
        state.PauseTiming();
        T_HARNESS h;
        HarnessStart(&h, NULL, 1280, 800);
        t_Window *page = CreatePageWindow(h.main_window, (char *)"Bench", 0x7C, 10, 60, 1200, 760);
        T_GADGETOBJECTINIT init;
        memset(&init, 0, sizeof(init));
        init.base_width = 60;
        init.base_height = 20;
        init.hover_text = "";
        init.max = 100;
        init.step = 1;
        state.ResumeTiming();
        for (i64 i = 0; i < count; i++) {
            init.x = (i16)(i % 1000);
            init.y = (i16)(i % 600);
            CreateGadgetByTool(page, TOOL_BUTTON, &init);
        }
        state.PauseTiming();
        HarnessStop(&h, 0);
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * count);
}
BENCHMARK(BM_CreateGadgets)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->Iterations(3);

// A page of `count` buttons in rows, all of them selected, on a fresh harness.
static t_Window *SelectedPage(T_HARNESS *h, i64 count)
{
    t_Window *page = CreatePageWindow(h->main_window, (char *)"Bench", 0x7C, 10, 60, 1200, 760);
    T_GADGETOBJECTINIT init;
    memset(&init, 0, sizeof(init));
    init.base_width = 30;
    init.base_height = 16;
    init.hover_text = "";
    for (i64 i = 0; i < count; i++) {
        init.x = (i16)(i % 36 * 32);
        init.y = (i16)(i / 36 % 40 * 17);
        CreateGadgetByTool(page, TOOL_BUTTON, &init);
    }
    for (t_gadget *g = FindGadgetHandler(page)->first_gadget; g->next; g = g->next)
        g->live_flags |= GADGET_MARK_SELECTED;
    ISetActiveWindow(page);
    RefreshHandlers(NULL);
    return page;
}

// One turn of the loop with the page of selected gadgets on the screen and no input.
static void BM_RepaintPage(benchmark::State &state)
{
    T_HARNESS h;
    if (!HarnessStart(&h, NULL, 1280, 800)) {
        state.SkipWithError("the harness did not start");
        return;
    }
    SelectedPage(&h, state.range(0));
    for (auto _ : state)
        RefreshHandlers(NULL);
    state.counters["time_per_gadget"] = benchmark::Counter((double)state.iterations() * state.range(0),
                                                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
    HarnessStop(&h, 0);
}
BENCHMARK(BM_RepaintPage)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

// One step of dragging the whole selection: a mouse move and the turn that takes it.
static void BM_DragStep(benchmark::State &state)
{
    T_HARNESS h;
    if (!HarnessStart(&h, NULL, 1280, 800)) {
        state.SkipWithError("the harness did not start");
        return;
    }
    t_Window *page = SelectedPage(&h, state.range(0));
    t_gadget *first = FindGadgetHandler(page)->first_gadget;
    i16 x = (i16)(first->screen_x + 10), y = (i16)(first->screen_y + 8);
    PushEvent(INPUT_MOUSE_MOVE, x, y, 1);
    PushEvent(INPUT_MOUSE_DOWN, x, y, 1);
    RefreshHandlers(NULL);
    for (int i = 0; i < 8; i++) {  // past the drag threshold
        PushEvent(INPUT_MOUSE_MOVE, (i16)(x + i), y, 1);
        RefreshHandlers(NULL);
    }
    i16 step = 1;
    for (auto _ : state) {
        step = (i16)-step;
        PushEvent(INPUT_MOUSE_MOVE, (i16)(x + 8 + step), y, 1);
        RefreshHandlers(NULL);
    }
    PushEvent(INPUT_MOUSE_UP, x, y, 1);
    RefreshHandlers(NULL);
    state.counters["time_per_gadget"] = benchmark::Counter((double)state.iterations() * state.range(0),
                                                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
    HarnessStop(&h, 0);
}
BENCHMARK(BM_DragStep)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
