// Generated pages compile and run: each golden file, built into a program against the page
// header, opens a window whose description matches the editor's page that the file was written
// from, and its message function removes the window on ACT_TERMINATE.
#include <stdio.h>
#include <sys/wait.h>

#include <string>
#include <vector>

#include "generated/page_description.h"
#include "source/golden_pages.h"

namespace {

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

class GeneratedPage : public SourceTest {
protected:
    // The editor's page as the generated program should open it: the design fields.
    static std::vector<std::string> Describe(t_Window *window)
    {
        char line[DESCRIPTION_LINE_SIZE];
        std::vector<std::string> lines;
        lines.push_back(DescribeWindow(line, window->w, window->h, window->flags, window->idcmp));
        for (t_gadget *g = FindGadgetHandler(window)->first_gadget; g->next; g = g->next)
            lines.push_back(DescribeGadget(line, g->type, g->pos_x, g->pos_y, g->base_width, g->base_height,
                                           g->item_code, g->flags, g->back_colour, g->text_colour));
        lines.push_back(DescribeTermination(line, (window->idcmp & IDCMP_TERMINATE) != 0));
        return lines;
    }

    // The program's standard output, line by line, and its exit status.
    static std::vector<std::string> Run(const std::string &command, int *status)
    {
        std::vector<std::string> lines;
        FILE *out = popen(command.c_str(), "r");
        if (!out) {
            *status = -1;
            return lines;
        }
        char line[1024];
        while (fgets(line, sizeof(line), out)) {
            std::string text = line;
            if (!text.empty() && text.back() == '\n')
                text.pop_back();
            lines.push_back(text);
        }
        int raw = pclose(out);
        *status = WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
        return lines;
    }
};

TEST_F(GeneratedPage, OpensTheWindowThatTheEditorDrew)
{
    for (const GENERATED_ROW &row : generated_rows) {
        SCOPED_TRACE(row.golden);
        t_Window *window = MakePage(*row.page, *row.gadgets);
        ASSERT_TRUE(window);
        std::vector<std::string> expected = Describe(window);
        int status = 0;
        std::vector<std::string> printed = Run(std::string(row.program) + " '" + root + "'", &status);
        EXPECT_EQ(status, 0);
        for (size_t i = 0; i < expected.size() && i < printed.size(); i++)
            EXPECT_EQ(printed[i], expected[i]) << "line " << i + 1;
        EXPECT_EQ(printed.size(), expected.size());
        RemoveWindow(window);
    }
}

}  // namespace
