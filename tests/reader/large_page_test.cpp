// Large pages open with the indexes the reader builds: item codes repaired and the tab order
// numbered exactly as a plain walk of the page does it, on a page of 2,000 gadgets compared gadget
// by gadget, and on one of 20,000 that must hold together.
#include <gtest/gtest.h>
#include <string.h>

#include <string>
#include <vector>

#include "page/catalogue.h"
#include "source/open_page.h"
#include "source/source_format.h"
#include "tests/harness/harness.h"

namespace
{

// A page file of `count` buttons: every seventh shares its code with an earlier one, some have no
// code, and the tab links run as a chain from a head, a ring that misses it, and stray links.
std::string LargePageFile(u32 count)
{
    std::string text = "/*Quillform: START_OBJECT: PAGE */\nT_WINDOW *OpenLargeWindow()\n{\n"
                       "/*Quillform: START_OBJECT: WINDOW */\n"
                       "\twin_init.flags=WF_CLOSE|WF_TITLE|WF_MOVE|WF_CHILD|WF_CLIP_PARENT;\n"
                       "\twin_init.w=640;\n\twin_init.h=480;\n\twin_init.idcmp=IDCMP_TERMINATE;\n"
                       "\twin=ICreateWindow(\"Large\");\n/*Quillform: END_OBJECT: WINDOW */\n";
    char block[512];
    for (u32 i = 0; i < count; i++) {
        u32 code = i % 7 == 6 ? i / 3 + 1 : i % 11 == 10 ? 0 : i + 1;
        u32 before = i == 0 ? TAB_LINK_FIRST | (count / 2) : i;   // the head is gadget 0
        u32 after = i < count / 2 ? i + 2 : (i + 3) % count + 1;  // a chain, then a ring of its own
        if (i % 97 == 50)
            after = 999999;  // a link to no gadget
        snprintf(block, sizeof(block),
                 "/*Quillform: START_OBJECT: GADGET */\n\tgadinit.x=%u;\n\tgadinit.y=%u;\n"
                 "\tgadinit.base_width=30;\n\tgadinit.base_height=16;\n\tgadinit.item_code=0x%x;\n"
                 "\tgadinit.tab[0]=0x%x;\n\tgadinit.tab[1]=0x%x;\n\tgadinit.type=GADGET_TYPE_BUTTON;\n"
                 "\tgad=CreateGadget(\"B%u\");\n/*Quillform: END_OBJECT: GADGET */\n",
                 i % 20 * 32, i / 20 % 25 * 18, code, before, after, i);
        text += block;
    }
    return text + "\treturn(win);\n}\n/*Quillform: END_OBJECT: PAGE */\n";
}

// The plain walks the indexes stand in for: each later holder of a code before it takes the
// smallest code no gadget holds; the links are followed from the head, gadget by gadget.
void ReferenceRepair(std::vector<t_gadget *> &gadgets)
{
    for (size_t i = 0; i < gadgets.size(); i++) {
        t_gadget *g = gadgets[i];
        bool duplicate = false;
        for (size_t j = 0; j < i && !duplicate; j++)
            duplicate = g->item_code != 0 && gadgets[j]->item_code == g->item_code;
        if (!duplicate)
            continue;
        u32 code = 1;
        for (bool used = true; used; code += used) {
            used = false;
            for (t_gadget *other : gadgets)
                used = used || other->item_code == code;
        }
        g->item_code = code;
    }
}

void ReferenceTabOrder(std::vector<t_gadget *> &gadgets)
{
    t_gadget *head = NULL;
    for (t_gadget *g : gadgets)
        if (!head && (g->tab[0] & TAB_LINK_FIRST))
            head = g;
    if (!head)
        return;
    head->tab_index = 1;
    u32 code = head->tab[1];
    for (u32 n = 2; n <= gadgets.size() + 1; n++) {
        t_gadget *next = NULL;
        for (t_gadget *g : gadgets)
            if (!next && g->item_code == code)
                next = g;
        if (!next || next == head)
            return;
        next->tab_index = n;
        if (next->tab[1] == 0)
            return;
        code = next->tab[1];
    }
}

std::vector<t_gadget *> GadgetsOf(t_Window *page)
{
    std::vector<t_gadget *> list;
    for (t_gadget *g = FindGadgetHandler(page)->first_gadget; g->next; g = g->next)
        list.push_back(g);
    return list;
}

class LargePage : public ::testing::Test
{
  protected:
    void SetUp() override { ASSERT_TRUE(HarnessStart(&h, NULL, 1024, 700)); }
    void TearDown() override { HarnessStop(&h, 0); }

    std::string Write(u32 count)
    {
        std::string path = std::string(h.root) + "/large" + std::to_string(count) + ".cpp";
        std::string text = LargePageFile(count);
        EXPECT_TRUE(SaveFile(path.c_str(), text.data(), (u32)text.size()));
        return path;
    }

    T_HARNESS h;
};

TEST_F(LargePage, RepairAndTabOrderMatchThePlainWalks)
{
    std::string path = Write(2000);
    t_Window *raw = OpenPage(h.main_window, path.c_str());  // as read, before any repair
    ASSERT_NE(raw, nullptr);
    std::vector<t_gadget *> expected = GadgetsOf(raw);
    ReferenceRepair(expected);
    ReferenceTabOrder(expected);
    t_Window *page = OpenPageFile(h.main_window, path.c_str());
    ASSERT_NE(page, nullptr);
    std::vector<t_gadget *> opened = GadgetsOf(page);
    ASSERT_EQ(opened.size(), expected.size());
    u32 numbered = 0;
    for (size_t i = 0; i < opened.size(); i++) {
        ASSERT_EQ(opened[i]->item_code, expected[i]->item_code) << "gadget " << i;
        ASSERT_EQ(opened[i]->tab_index, expected[i]->tab_index) << "gadget " << i;
        numbered += opened[i]->tab_index != 0;
    }
    EXPECT_GT(numbered, 20u);  // the chain was followed past its first gaps
}

TEST_F(LargePage, TwentyThousandGadgetsHoldTogether)
{
    t_Window *page = OpenPageFile(h.main_window, Write(20000).c_str());
    ASSERT_NE(page, nullptr);
    std::vector<t_gadget *> opened = GadgetsOf(page);
    ASSERT_EQ(opened.size(), 20000u);
    std::vector<u8> seen(opened.size() * 2 + 2);
    std::vector<u8> index_seen(opened.size() + 2);
    for (t_gadget *g : opened) {
        ASSERT_LT(g->item_code, seen.size());
        if (g->item_code) {
            EXPECT_EQ(seen[g->item_code]++, 0) << "code " << g->item_code << " twice";
        }
        if (g->tab_index) {
            EXPECT_EQ(index_seen[g->tab_index]++, 0) << "tab index " << g->tab_index << " twice";
        }
    }
    EXPECT_EQ(NextFreeItemCodeOf(page), NextFreeItemCode(FindGadgetHandler(page)->first_gadget));
}

}  // namespace
