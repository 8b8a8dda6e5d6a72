// Golden files: the writer's text, byte for byte, for the format's own example (written by hand)
// and for a page with one gadget of each kind that the catalogue makes (regenerated with
// QF_REGENERATE_GOLDEN=1, then read against the format).
#include "golden_pages.h"

namespace
{

class GoldenTest : public SourceTest
{
};

TEST_F(GoldenTest, DemoPageInBothForms)
{
    t_Window *window = MakePage(demo_page, demo_gadgets);
    ASSERT_TRUE(window);
    ExpectGolden(SaveAndRead(window, CONFIG_OPTIMISE), "demo_page_optimised.cpp", 0);
    ExpectGolden(SaveAndRead(window, 0), "demo_page_full.cpp", 0);
}

TEST_F(GoldenTest, EveryKindInBothForms)
{
    t_Window *window = MakePage(every_kind_page, every_kind_gadgets);
    ASSERT_TRUE(window);
    ASSERT_TRUE(window->bitmap != NULL);
    ExpectGolden(SaveAndRead(window, CONFIG_OPTIMISE), "every_kind_optimised.cpp", 1);
    ExpectGolden(SaveAndRead(window, 0), "every_kind_full.cpp", 1);
}

}  // namespace
