// Opening page files of 1,000 to 50,000 gadgets, and opening then saving them: the time per gadget
// must stay flat as the page grows.
#include <benchmark/benchmark.h>
#include <string.h>

#include <string>

#include "editor/undo_records.h"
#include "page/catalogue.h"
#include "source/open_page.h"
#include "source/source_writer.h"
#include "tests/bench/bench_support.h"

namespace
{

// A page file of `count` gadgets of mixed kinds, each with a hover text, the tab order running
// through all of them, and a tenth of the item codes doubled, written by the editor itself.
std::string WriteLargePage(T_HARNESS *h, u32 count)
{
    static const i16 tools[] = {TOOL_BUTTON,       TOOL_STRING,   TOOL_TEXT,     TOOL_CHECK_BOX,
                                TOOL_RADIO_BUTTON, TOOL_SLIDER_H, TOOL_DROP_BOX, TOOL_LIST_BOX};
    t_Window *page = BenchPage(h, "Large Page");
    T_GADGETOBJECTINIT init;
    FillNewGadgetInit(&init, 0, 0, 40, 18);
    init.hover_text = "A gadget";
    u32 n = 0;
    for (t_gadget *g; n < count; n++) {
        init.x = (i16)(n % 29 * 40);
        init.y = (i16)(n / 29 % 34 * 20);
        g = CreateGadgetByTool(page, tools[n % 8], &init);
        g->tab_index = n + 1;
        if (n % 10 == 9)
            SetGadgetItemCode(page, g, n / 2 + 1);
    }
    std::string path = std::string(h->root) + "/large.cpp";
    editor_config->flags = CONFIG_OPTIMISE;
    SavePage(page, path.c_str());
    RemoveWindow(page);
    RefreshHandlers(NULL);
    return path;
}

void OpenPages(benchmark::State &state, int and_save)
{
    T_HARNESS h;
    if (!StartBenchHarness(state, &h))
        return;
    u32 count = (u32)state.range(0);
    std::string path = WriteLargePage(&h, count);
    std::string copy = std::string(h.root) + "/saved.cpp";
    for (auto _ : state) {
        t_Window *page = OpenPageFile(h.main_window, path.c_str());
        if (!page) {
            state.SkipWithError("the page could not be opened");
            break;
        }
        if (and_save)
            SavePage(page, copy.c_str());
        state.PauseTiming();
        RemoveWindow(page);
        for (t_Window *c = h.main_window->first_child; c->next;) {  // the duplicate codes' message
            t_Window *next = c->next;
            if (!IsPageWindow(c))
                RemoveWindow(c);
            c = next;
        }
        RefreshHandlers(NULL);
        state.ResumeTiming();
    }
    CountTimePerGadget(state, count);
    HarnessStop(&h, 0);
}

void BM_OpenPage(benchmark::State &state)
{
    OpenPages(state, 0);
}
void BM_OpenAndSavePage(benchmark::State &state)
{
    OpenPages(state, 1);
}

BENCHMARK(BM_OpenPage)->Arg(1000)->Arg(10000)->Arg(50000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_OpenAndSavePage)->Arg(1000)->Arg(10000)->Arg(50000)->Unit(benchmark::kMillisecond);

}  // namespace
