// What the editor's benchmarks share: the harness on a 1280x800 screen, a large page on it, and
// the time each gadget took.
#pragma once
#include <benchmark/benchmark.h>

#include "editor/page_window.h"
#include "tests/harness/harness.h"

// Starts the harness; false, with the benchmark skipped, when it does not start.
inline bool StartBenchHarness(benchmark::State &state, T_HARNESS *h)
{
    if (HarnessStart(h, NULL, 1280, 800))
        return true;
    state.SkipWithError("the harness did not start");
    return false;
}

// An empty page nearly as large as the screen.
inline t_Window *BenchPage(T_HARNESS *h, const char *name)
{
    return CreatePageWindow(h->main_window, (char *)name, 0x7C, 10, 60, 1200, 760);
}

// The counter "time_per_gadget": the time of one iteration over `gadgets` gadgets.
inline void CountTimePerGadget(benchmark::State &state, i64 gadgets)
{
    state.counters["time_per_gadget"] = benchmark::Counter((double)state.iterations() * gadgets,
                                                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}
