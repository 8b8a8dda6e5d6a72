// Copy and Paste of many gadgets through the clipboard: the blocks written, put on the clipboard,
// read back onto a page with a free item code and a creation record each.
#include <benchmark/benchmark.h>
#include <string.h>

#include "editor/clipboard.h"
#include "editor/undo_records.h"
#include "page/catalogue.h"
#include "tests/bench/bench_support.h"

// A page of `count` gadgets of several kinds, all marked.
static t_Window *MarkedPage(T_HARNESS *h, i64 count)
{
    static const i16 tools[] = {TOOL_BUTTON, TOOL_CHECK_BOX, TOOL_TEXT, TOOL_STRING, TOOL_SLIDER_H, TOOL_DROP_BOX};
    t_Window *page = BenchPage(h, "Bench");
    for (i64 i = 0; i < count; i++) {
        T_GADGETOBJECTINIT init;
        FillNewGadgetInit(&init, (i16)(i % 40 * 28), (i16)(i / 40 % 36 * 18), 26, 16);
        t_gadget *g = CreateGadgetByTool(page, tools[i % 6], &init);
        g->live_flags |= GADGET_MARK_SELECTED;
    }
    RecalcUserSize(page);
    return page;
}

static void BM_CopyAndPasteGadgets(benchmark::State &state)
{
    const i64 count = state.range(0);
    for (auto _ : state) {
        state.PauseTiming();
        T_HARNESS h;
        if (!StartBenchHarness(state, &h))
            return;
        t_Window *source = MarkedPage(&h, count);
        t_Window *target = BenchPage(&h, "Target");
        state.ResumeTiming();
        u32 copied = CopyGadgets(source);
        u32 pasted = PasteGadgets(target);
        state.PauseTiming();
        if (copied != count || pasted != count)
            state.SkipWithError("not every gadget went through the clipboard");
        HarnessStop(&h, 0);
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * count);
}
BENCHMARK(BM_CopyAndPasteGadgets)->Arg(1000)->Unit(benchmark::kMillisecond)->Iterations(5);

// Pasted into their own page: each gadget's item code is taken, so each takes a free one.
static void BM_PasteIntoOwnPage(benchmark::State &state)
{
    const i64 count = state.range(0);
    for (auto _ : state) {
        state.PauseTiming();
        T_HARNESS h;
        if (!StartBenchHarness(state, &h))
            return;
        t_Window *page = MarkedPage(&h, count);
        CopyGadgets(page);
        state.ResumeTiming();
        u32 pasted = PasteGadgets(page);
        state.PauseTiming();
        if (pasted != count)
            state.SkipWithError("not every gadget was pasted");
        HarnessStop(&h, 0);
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * count);
}
BENCHMARK(BM_PasteIntoOwnPage)->Arg(1000)->Unit(benchmark::kMillisecond)->Iterations(5);
