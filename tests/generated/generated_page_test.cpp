// Generated pages compile and run: each golden file, built into a program against the page
// header, opens a window whose description matches the editor's page that the file was written
// from, and its message function removes the window on ACT_TERMINATE.
#include "generated/generated_page.h"
#include "source/golden_pages.h"

namespace
{

struct GENERATED_ROW {
    const char *golden;
    const char *program;  // the golden file built by run_page.cpp
    const T_TEST_PAGE *page;
    const std::vector<T_TEST_GADGET> *gadgets;
};

const GENERATED_ROW generated_rows[] = {
    {"demo_page_optimised.cpp", QF_RUN_DEMO_PAGE_OPTIMISED, &demo_page, &demo_gadgets},
    {"demo_page_full.cpp", QF_RUN_DEMO_PAGE_FULL, &demo_page, &demo_gadgets},
    {"every_kind_optimised.cpp", QF_RUN_EVERY_KIND_OPTIMISED, &every_kind_page, &every_kind_gadgets},
    {"every_kind_full.cpp", QF_RUN_EVERY_KIND_FULL, &every_kind_page, &every_kind_gadgets},
};

class GeneratedPage : public SourceTest
{
};

TEST_F(GeneratedPage, OpensTheWindowThatTheEditorDrew)
{
    for (const GENERATED_ROW &row : generated_rows) {
        SCOPED_TRACE(row.golden);
        t_Window *window = MakePage(*row.page, *row.gadgets);
        ASSERT_TRUE(window);
        ExpectSameWindow(window, std::string(row.program) + " '" + root + "'");
        RemoveWindow(window);
    }
}

}  // namespace
