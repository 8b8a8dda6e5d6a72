// The editor's own measures: a headless start to the first presented frame, one full repaint of
// a 1280x800 screen holding the main window, and making gadgets through the catalogue.
#include <benchmark/benchmark.h>
#include <string.h>

#include "display/display.h"
#include "editor/undo_records.h"
#include "page/catalogue.h"
#include "tests/bench/bench_support.h"

// From OpenToolkit to the first turn of the loop (which presents the frame), with the module's
// whole set-up, in a fresh data root each time.
static void BM_StartToFirstFrame(benchmark::State &state)
{
    for (auto _ : state) {
        T_HARNESS h;
        if (!StartBenchHarness(state, &h))
            return;
        state.PauseTiming();
        HarnessStop(&h, 0);
        state.ResumeTiming();
    }
}
BENCHMARK(BM_StartToFirstFrame)->Unit(benchmark::kMillisecond);

static void BM_RepaintMainWindow(benchmark::State &state)
{
    T_HARNESS h;
    if (!StartBenchHarness(state, &h))
        return;
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
        if (!StartBenchHarness(state, &h))
            return;
        t_Window *page = BenchPage(&h, "Bench");
        T_GADGETOBJECTINIT init;
        FillNewGadgetInit(&init, 0, 0, 60, 20);
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
    t_Window *page = BenchPage(h, "Bench");
    T_GADGETOBJECTINIT init;
    FillNewGadgetInit(&init, 0, 0, 30, 16);
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
    if (!StartBenchHarness(state, &h))
        return;
    SelectedPage(&h, state.range(0));
    for (auto _ : state)
        RefreshHandlers(NULL);
    CountTimePerGadget(state, state.range(0));
    HarnessStop(&h, 0);
}
BENCHMARK(BM_RepaintPage)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

// One step of dragging the whole selection: a mouse move and the turn that takes it.
static void BM_DragStep(benchmark::State &state)
{
    T_HARNESS h;
    if (!StartBenchHarness(state, &h))
        return;
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
    CountTimePerGadget(state, state.range(0));
    HarnessStop(&h, 0);
}
BENCHMARK(BM_DragStep)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
