// SavePage of large pages: the time per gadget must stay flat from 1,000 to 10,000 gadgets.
#include <benchmark/benchmark.h>
#include <string.h>

#include <string>

#include "page/records.h"
#include "source/source_writer.h"
#include "tests/bench/bench_support.h"

namespace
{

// A page of `count` gadgets of mixed types, every one with an item code and a tab index in
// reverse list order, so that the tab links and the type order have real work.
t_Window *MakeLargePage(u32 count)
{
    static const u16 types[] = {GADGET_TYPE_BUTTON, GADGET_TYPE_STRING, GADGET_TYPE_TEXT, GADGET_TYPE_CHECK_BOX,
                                GADGET_TYPE_RADIOBUTTON};
    T_WINDOWOBJINIT win_init;
    memset(&win_init, 0, sizeof(win_init));
    win_init.x = 16, win_init.y = 16, win_init.w = 640, win_init.h = 480;
    win_init.flags = WF_TITLE | WF_CLOSE | WF_MOVE;
    t_Window *window = (t_Window *)CreateObject(&CURRENT_DISPLAY->window_class->head, "Large Page", &win_init);
    window->idcmp = IDCMP_TERMINATE | IDCMP_KEY;
    t_Gaget_Handler *gh = NewGadgetHandler(window);
    for (u32 i = 0; i < count; i++) {
        T_GADGETOBJECTINIT init;
        memset(&init, 0, sizeof(init));
        init.x = (i16)(i % 32 * 20), init.y = (i16)(i / 32 % 24 * 20);
        init.base_width = 18, init.base_height = 18;
        init.type = types[i % 5];
        init.flags = GADGET_MARK_CREATED;
        char name[32];
        snprintf(name, sizeof(name), "Gadget %u", i);
        CreateObject(&gh->head, name, &init);
        t_gadget *g = (t_gadget *)gh->gadget_list.last;
        g->item_code = i + 1;
        g->tab_index = count - i;
        g->action = ACT_LMOUSE_UP | ACT_LMOUSE_DBL;
        g->flags = i % 3 ? GADGET_FLAGS_PUSH : 0;
    }
    return window;
}

void BM_SavePage(benchmark::State &state)
{
    char root[512];
    if (!MakeTempRoot(root, sizeof(root)) || !OpenToolkit("headless", 1280, 800, root)) {
        state.SkipWithError("the toolkit can't be opened");
        return;
    }
    T_EDITOR_CONFIG config;
    memset(&config, 0, sizeof(config));
    config.size = EDITOR_CONFIG_SIZE;
    config.flags = (u32)state.range(1);
    T_EDITOR_CONFIG *saved_config = editor_config;
    editor_config = &config;

    u32 count = (u32)state.range(0);
    t_Window *window = MakeLargePage(count);
    std::string path = std::string(root) + "/large.cpp";
    for (auto _ : state)
        SavePage(window, path.c_str());
    state.SetItemsProcessed(state.iterations() * count);
    CountTimePerGadget(state, count);

    editor_config = saved_config;
    CloseToolkit();
    RemoveTree(root);
}

// Optimised form with and without the type order (the settings bits 1 and 2).
BENCHMARK(BM_SavePage)
    ->ArgsProduct({{1000, 10000}, {CONFIG_OPTIMISE, CONFIG_OPTIMISE | CONFIG_TYPE_ORDER}})
    ->Unit(benchmark::kMillisecond);

}  // namespace
