// What the gadget type tests share: a dialog window, gadgets made from a filled init record, the
// pixels of a rectangle of the screen, and the toolkit's live block count.
#pragma once
#include <string>
#include <vector>

#include "knobkit/knobkit_internal.h"
#include "tests/harness/toolkit_fixture.h"

class GadgetTest : public LumoraTest
{
  public:
    void SetUp() override
    {
        LumoraTest::SetUp();
        window = MakeWindow("Dialog", 20, 20, 500, 400, WF_BORDER | WF_TITLE, IDCMP_TERMINATE);
        handler = NewGadgetHandler(window);
        Turn();
    }
    // A zeroed init record with the usual fields filled.
    static T_GADGETOBJECTINIT Init(u16 type, i16 x, i16 y, i16 w, i16 h, u32 item_code = 1, u32 action = 0x73,
                                   u32 flags = 0)
    {
        T_GADGETOBJECTINIT init = {};
        init.type = type, init.x = x, init.y = y, init.base_width = w, init.base_height = h;
        init.item_code = item_code, init.action = action, init.flags = flags;
        return init;
    }
    void *Create(const char *name, T_GADGETOBJECTINIT init) { return CreateObject(&handler->head, name, &init); }
    t_gadget *Make(const char *name, T_GADGETOBJECTINIT init) { return (t_gadget *)Create(name, init); }
    // A list box, drop box or tree with `count` entries named "<prefix> <n>".
    t_gadget *MakeList(u16 type, i16 x, i16 y, i16 w, i16 h, int count, u32 item_code = 1)
    {
        T_GADGETOBJECTINIT init = Init(type, x, y, w, h, item_code);
        void *holder = Create("List", init);
        init.parent_gadget = holder;
        for (int i = 0; i < count; i++)
            Create(("Entry " + std::to_string(i)).c_str(), init);
        return GetCurrentGadget(window);
    }
    t_Window *GetWindow() { return window; }
    t_Window *window = nullptr;
    t_Gaget_Handler *handler = nullptr;
};

static inline i16 MidX(t_gadget *g)
{
    return g->screen_x + g->base_width / 2;
}
static inline i16 MidY(t_gadget *g)
{
    return g->screen_y + g->base_height / 2;
}

// The screen's pixels inside a rectangle, row by row.
static inline std::vector<u32> Pixels(T_RPOS r)
{
    T_SURFACE *s = &lumora_state.screen;
    std::vector<u32> out;
    for (int y = r.y; y < r.y + r.h; y++)
        for (int x = r.x; x < r.x + r.w; x++)
            out.push_back(s->pixels[y * s->pitch + x] & 0xFFFFFF);
    return out;
}
