// Reading page files: the file's structure, the statements, and opening through OpenPageFile.
#include <gtest/gtest.h>
#include <string.h>

#include <string>
#include <vector>

#include "knobkit.h"
#include "source/open_page.h"
#include "tests/harness/harness.h"

class Reader : public ::testing::Test
{
  protected:
    void SetUp() override { ASSERT_TRUE(HarnessStart(&h, NULL, 1024, 700)); }
    void TearDown() override { HarnessStop(&h, 0); }

    std::string Write(const char *name, const std::string &text)
    {
        std::string path = std::string(h.root) + "/" + name;
        EXPECT_TRUE(SaveFile(path.c_str(), text.data(), (u32)text.size()));
        return path;
    }

    t_Window *Open(const std::string &path) { return OpenPageFile(h.main_window, path.c_str()); }

    static t_gadget *Gadget(t_Window *page, int index)
    {
        t_gadget *g = FindGadgetHandler(page)->first_gadget;
        while (index-- > 0 && g->next)
            g = g->next;
        return g->next ? g : nullptr;
    }

    T_HARNESS h;
};

// A page file as the writer makes it, with the given WINDOW statements and GADGET blocks.
static std::string PageFile(const std::string &window_lines, const std::string &gadgets)
{
    return "/*Quillform: START_OBJECT: MESSAGE */\n"
           "u32 TMsg(T_WINDOW *win,u32 item_code,u32 msg,void *data)\n{\n\treturn(0);\n}\n"
           "/*Quillform: END_OBJECT: MESSAGE */\n\n"
           "/*Quillform: START_OBJECT: PAGE */\n"
           "T_WINDOW *OpenTWindow()\n{\n"
           "\tT_WINDOW_HANDLER *wh;\n\tT_WINDOW *win;\n\tT_WINDOWOBJINIT win_init;\n"
           "\tT_GADGET_HANDLER *gh;\n\tT_GADGET *gad;\n\tT_GADGETOBJECTINIT gadinit;\n\n"
           "\tClearGadInit;\n\tClearWinInit;\n\n"
           "/*Quillform: START_OBJECT: WINDOW */\n"
           "\twh=FindWindowHandler();\n" +
           window_lines +
           "\twin=ICreateWindow(\"Test Page\");\n"
           "\tgh=(T_GADGET_HANDLER *)NewGadgetHandler(win);\n"
           "/*Quillform: END_OBJECT: WINDOW */\n" +
           gadgets + "\treturn(win);\n}\n/*Quillform: END_OBJECT: PAGE */\n";
}

static const char *const standard_window =
    "\twin_init.flags=WF_CLOSE|WF_TITLE|WF_MOVE|WF_CHILD|WF_CLIP_PARENT;\n"
    "\twin_init.x=100;\n\twin_init.y=100;\n\twin_init.w=320;\n\twin_init.h=200;\n"
    "\twin_init.icon=0;\n\twin_init.idcmp=IDCMP_TERMINATE|IDCMP_KEY;\n\twin_init.bitmap=NULL;\n"
    "\twin_init.message=TMsg;\n\twin_init.icon_bank=NULL;\n";

static std::string Block(const std::string &lines, const char *name, const std::string &after = "")
{
    return "\n/*Quillform: START_OBJECT: GADGET */\n" + lines + "\tgad=CreateGadget(\"" + name + "\");\n\n" + after +
           "/*Quillform: END_OBJECT: GADGET */\n";
}

TEST_F(Reader, AWriterFileOpensWithItsWindowAndDeclarations)
{
    std::string path = Write("t.cpp", PageFile(standard_window, ""));
    t_Window *page = Open(path);
    ASSERT_NE(page, nullptr);
    T_WINEDIT_HANDLER *record = (T_WINEDIT_HANDLER *)page->user_data;
    EXPECT_STREQ(page->name, "Test Page");
    EXPECT_EQ(page->w, 320);
    EXPECT_EQ(page->h, 200);
    EXPECT_EQ(page->idcmp, (u32)(IDCMP_TERMINATE | IDCMP_KEY));
    EXPECT_EQ(page->flags & 0x7C, (u32)(WF_CLOSE | WF_TITLE | WF_MOVE));
    EXPECT_EQ(record->saved, 0x36);
    EXPECT_EQ(record->lines_read, record->lines_total);
    EXPECT_STREQ(record->head_line.text, "T_WINDOW *OpenTWindow()");
    EXPECT_STREQ(record->file_name.text, path.c_str());
    EXPECT_EQ(page->state_flags & WSF_MODIFIED, 0u);
    // The MESSAGE block is never taken; the two lines behind the PAGE marker are passed over.
    EXPECT_EQ(record->line_map[0], 1);
    EXPECT_EQ(record->line_map[8], 0);
    EXPECT_EQ(record->line_map[9], 0);
}

TEST_F(Reader, FileStructures)
{
    struct {
        const char *name;
        std::string text;
        int opens;
        const char *log;  // a text the log must hold, or null for none of the reader's errors
    } const cases[] = {
        {"empty", "", 0, nullptr},
        {"message only", "/*Quillform: START_OBJECT: MESSAGE */\nu32 x;\n/*Quillform: END_OBJECT: MESSAGE */", 0,
         nullptr},
        {"window without page", "/*Quillform: START_OBJECT: WINDOW */\n\twin_init.w=100;\n", 0, "no page marker found"},
        {"page before message",
         PageFile(standard_window, "") + "/*Quillform: START_OBJECT: MESSAGE */\n/*Quillform: END_OBJECT: MESSAGE */",
         1, "no window marker found"},
        {"no line end at the last line",
         PageFile(standard_window, "").substr(0, PageFile(standard_window, "").size() - 1), 1, nullptr},
        {"crlf",
         [] {
             std::string t = PageFile(standard_window, ""), out;
             for (char c : t) {
                 if (c == '\n')
                     out += '\r';
                 out += c;
             }
             return out;
         }(),
         1, nullptr},
        {"binary", std::string("/*Quillform: START_OBJECT: PAGE */\n\x01\x02"), 0, nullptr},
    };
    int n = 0;
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name);
        HarnessClearLog();
        std::string path = Write((std::string("s") + std::to_string(n++) + ".cpp").c_str(), c.text);
        t_Window *page = Open(path);
        EXPECT_EQ(page != nullptr, c.opens != 0);
        std::string log = HarnessLog();
        if (c.log) {
            EXPECT_NE(log.find(c.log), std::string::npos) << log;
        } else {
            EXPECT_EQ(log.find("OpenPage error"), std::string::npos) << log;
        }
        if (!page) {
            EXPECT_NE(FindLiveWindow("Quillform error"), nullptr);
        }
        if (page) {
            T_WINEDIT_HANDLER *record = (T_WINEDIT_HANDLER *)page->user_data;
            EXPECT_EQ(record->lines_read, record->lines_total);
        }
    }
}

TEST_F(Reader, BlocksCarryForwardAndColoursDoNot)
{
    std::string gadgets =
        Block("\tgadinit.x=10;\n\tgadinit.y=20;\n\tgadinit.base_width=80;\n\tgadinit.base_height=24;\n"
              "\tgadinit.item_code=0x1;\n\tgadinit.flags=GADGET_FLAGS_PUSH;\n\tgadinit.action=ACT_LMOUSE_UP;\n"
              "\tgadinit.hover_text=\"gadinit.y says the hover\";\n\tgadinit.type=GADGET_TYPE_BUTTON;\n",
              "OK", "\tSetGadgetColours(gad,0x123456,0x654321);\n") +
        Block("\tgadinit.y=40;\n\tgadinit.item_code=0x2;\n\tgadinit.cursor=300;\n", "Second") +
        Block("\tgadinit.item_code=0x3;\n\tgadinit.type=GADGET_TYPE_SLIDER;\n\tgadinit.flags=GADGET_FLAGS_HORIZONTAL;\n"
              "\tgadinit.min=40000;\n\tgadinit.max=100;\n\tgadinit.step=1;\n",
              "Slider") +
        Block("\tgadinit.item_code=0x4;\n\tgadinit.type=GADGET_TYPE_LIST_BOX;\n", "List");
    t_Window *page = Open(Write("b.cpp", PageFile(standard_window, gadgets)));
    ASSERT_NE(page, nullptr);
    t_gadget *ok = Gadget(page, 0), *second = Gadget(page, 1), *slider = Gadget(page, 2), *list = Gadget(page, 3);
    ASSERT_NE(list, nullptr);
    EXPECT_STREQ(ok->name, "OK");
    EXPECT_EQ(ok->pos_x, 10);
    // The hover line holds the word gadinit.y, so it was taken as that statement.
    EXPECT_EQ(ok->hover_text, nullptr);
    EXPECT_STREQ(second->name, "Second");
    EXPECT_EQ(second->pos_x, 10);  // x carried from the block before
    EXPECT_EQ(second->pos_y, 40);
    EXPECT_EQ(second->type, GADGET_TYPE_BUTTON);
    EXPECT_EQ(second->cursor, 44);  // 300 in a byte
    EXPECT_EQ(second->item_code, 2u);
    EXPECT_EQ(second->action, (u32)ACT_LMOUSE_UP);
    EXPECT_EQ(ok->back_colour, 0x123456u);
    EXPECT_EQ(ok->text_colour, 0x654321u);
    EXPECT_NE(second->back_colour, 0x123456u);  // colours are the creator's, not carried
    const T_SLIDER_DATA *s = (const T_SLIDER_DATA *)slider->class_data;
    EXPECT_EQ(s->min, -25536);
    EXPECT_EQ(s->value, (100 - -25536) / 2);
    EXPECT_EQ(list->type, GADGET_TYPE_LIST_BOX);
    EXPECT_EQ(CountListEntries(&((T_LIST_DATA *)list->class_data)->entries), 16u);
}

TEST_F(Reader, NamesAndTexts)
{
    std::string gadgets =
        Block("\tgadinit.item_code=0x1;\n\tgadinit.type=GADGET_TYPE_BUTTON;\n\tgadinit.hover_text=\"say \"hi\"\";\n",
              "a \"quoted\" name") +
        Block("\tgadinit.item_code=0x2;\n\tgadinit.hover_text=\"\";\n", "empty hover") +
        Block("\tgadinit.item_code=0x3;\n\tgadinit.hover_text=NULL;\n", "no hover") +
        Block("\tgadinit.item_code=0x4;\n", "stops at END_OBJECT here");
    t_Window *page = Open(Write("c.cpp", PageFile(standard_window, gadgets)));
    ASSERT_NE(page, nullptr);
    EXPECT_STREQ(Gadget(page, 0)->name, "a ");
    EXPECT_STREQ(Gadget(page, 0)->hover_text, "say \"hi\"");
    ASSERT_NE(Gadget(page, 1)->hover_text, nullptr);
    EXPECT_STREQ(Gadget(page, 1)->hover_text, "");
    EXPECT_EQ(Gadget(page, 2)->hover_text, nullptr);
    // A name that holds END_OBJECT ends its block at its own name line.
    ASSERT_NE(Gadget(page, 3), nullptr);
    EXPECT_STREQ(Gadget(page, 3)->name, "");
    EXPECT_EQ(Gadget(page, 3)->item_code, 4u);
}

// A size that no page can have (too small, zero, negative) opens nothing, with the reader's
// message and a log line that gives the size: never a page that can't be seen.
TEST_F(Reader, AWindowWithoutAPageSizeOpensNothing)
{
    const char *const sizes[] = {"w=20", "w=0", "w=-200", "h=-5", "h=0", "w=-32768"};
    for (const char *size : sizes) {
        SCOPED_TRACE(size);
        std::string window = standard_window;
        const char *field = size[0] == 'w' ? "win_init.w=320" : "win_init.h=200";
        window.replace(window.find(field), 14, std::string("win_init.") + size);
        std::string path = Write("d.cpp", PageFile(window, ""));
        HarnessClearLog();
        EXPECT_EQ(Open(path), nullptr);
        t_Window *box = FindLiveWindow("Quillform error");
        ASSERT_NE(box, nullptr);
        RemoveWindow(box);
        EXPECT_NE(std::string(HarnessLog()).find("is below the smallest page"), std::string::npos) << HarnessLog();
    }
}

TEST_F(Reader, TheSamePathTwiceGivesOnePage)
{
    std::string path = Write("e.cpp", PageFile(standard_window, ""));
    t_Window *page = Open(path);
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(Open(path), nullptr);
    EXPECT_NE(FindLiveWindow("Quillform error"), nullptr);
    u32 pages = 0;
    for (t_Window *c = h.main_window->first_child; c->next; c = c->next)
        pages += IsPageWindow(c) && !(c->state_flags & WSF_REMOVED);
    EXPECT_EQ(pages, 1u);
}

TEST_F(Reader, DuplicateItemCodesAreRepaired)
{
    struct {
        const char *name;
        std::vector<u32> codes, expected;
    } const cases[] = {
        {"1 1 2", {1, 1, 2}, {1, 3, 2}},
        {"5 5", {5, 5}, {5, 1}},
        {"three of one", {4, 4, 4}, {4, 1, 2}},
        {"groups", {0, 0, 1}, {0, 0, 1}},
    };
    int n = 0;
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name);
        std::string gadgets;
        for (u32 code : c.codes) {
            char line[64];
            snprintf(line, sizeof(line), "\tgadinit.item_code=0x%x;\n\tgadinit.type=GADGET_TYPE_BUTTON;\n", code);
            gadgets += Block(line, "B");
        }
        t_Window *page = Open(
            Write((std::string("dup") + std::to_string(n++) + ".cpp").c_str(), PageFile(standard_window, gadgets)));
        ASSERT_NE(page, nullptr);
        for (size_t i = 0; i < c.expected.size(); i++)
            EXPECT_EQ(Gadget(page, (int)i)->item_code, c.expected[i]) << i;
        int repaired = c.codes != c.expected;
        EXPECT_EQ((page->state_flags & WSF_MODIFIED) != 0, repaired != 0);
    }
}

TEST_F(Reader, TabOrderComesBackFromTheRing)
{
    std::string gadgets =
        Block("\tgadinit.item_code=0x1;\n\tgadinit.type=GADGET_TYPE_BUTTON;\n\tgadinit.tab[0]=0x3;\n\tgadinit.tab[1]="
              "0x3;\n",
              "outside") +
        Block("\tgadinit.item_code=0x2;\n\tgadinit.tab[0]=0x80000004;\n\tgadinit.tab[1]=0x3;\n", "head") +
        Block("\tgadinit.item_code=0x3;\n\tgadinit.tab[0]=0x2;\n\tgadinit.tab[1]=0x4;\n", "second") +
        Block("\tgadinit.item_code=0x4;\n\tgadinit.tab[0]=0x3;\n\tgadinit.tab[1]=0x2;\n", "third") +
        Block("\tgadinit.item_code=0x5;\n\tgadinit.tab[0]=0x0;\n\tgadinit.tab[1]=0x9;\n", "loose");
    t_Window *page = Open(Write("f.cpp", PageFile(standard_window, gadgets)));
    ASSERT_NE(page, nullptr);
    const u32 expected[] = {0, 1, 2, 3, 0};
    for (int i = 0; i < 5; i++)
        EXPECT_EQ(Gadget(page, i)->tab_index, expected[i]) << i;
}
