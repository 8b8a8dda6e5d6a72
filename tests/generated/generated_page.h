// What a generated page's program prints of its window, compared with the editor's page.
#pragma once
#include <gtest/gtest.h>
#include <stdio.h>
#include <sys/wait.h>

#include <string>
#include <vector>

#include "generated/page_description.h"
#include "page/records.h"

// The editor's page as the generated program should open it: the design fields.
inline std::vector<std::string> Describe(t_Window *window)
{
    char line[DESCRIPTION_LINE_SIZE];
    std::vector<std::string> lines;
    // A window that opens full screen takes the program's whole screen; the page keeps its size.
    int full = (window->flags & WF_OPEN_FULLSCREEN) != 0;
    lines.push_back(DescribeWindow(line, full ? RUN_PAGE_SCREEN_W : window->w, full ? RUN_PAGE_SCREEN_H : window->h,
                                   window->flags, window->idcmp));
    for (t_gadget *g = FindGadgetHandler(window)->first_gadget; g->next; g = g->next)
        lines.push_back(DescribeGadget(line, g->type, g->pos_x, g->pos_y, g->base_width, g->base_height, g->item_code,
                                       g->flags, g->back_colour, g->text_colour, g->action, g->icon));
    lines.push_back(DescribeTermination(line, (window->idcmp & IDCMP_TERMINATE) != 0));
    return lines;
}

// The program's standard output, line by line, and its exit status.
inline std::vector<std::string> Run(const std::string &command, int *status)
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

// Compares what the program printed with the editor's page.
inline void ExpectSameWindow(t_Window *window, const std::string &command)
{
    std::vector<std::string> expected = Describe(window);
    int status = 0;
    std::vector<std::string> printed = Run(command, &status);
    EXPECT_EQ(status, 0);
    for (size_t i = 0; i < expected.size() && i < printed.size(); i++)
        EXPECT_EQ(printed[i], expected[i]) << "line " << i + 1;
    EXPECT_EQ(printed.size(), expected.size());
}
