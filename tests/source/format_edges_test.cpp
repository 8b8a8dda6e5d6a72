// The format's edge cases, one table: each page is saved and its text searched for what must and
// must not stand in it, and for the lines of one statement in their order.
#include "source_fixture.h"

namespace
{

const u32 act = ACT_LMOUSE_UP;

struct EDGE_CASE {
    const char *label;
    T_TEST_PAGE page;
    std::vector<T_TEST_GADGET> gadgets;
    u32 settings;
    std::vector<std::string> present;
    std::vector<std::string> absent;
    const char *statement;  // the lines that hold this word must be `lines`, in order
    std::vector<std::string> lines;
};

const std::string long_page_name = std::string(60, 'P') + " " + std::string(66, 'q');  // 127
const std::string long_text = std::string(254, 'T') + "!";                             // 255

const std::vector<EDGE_CASE> &EdgeCases()
{
    static const std::vector<EDGE_CASE> cases = {
        {"no gadgets and idcmp 0",
         {.name = "Empty"},
         {},
         0,
         {"\tswitch(msg)\n\t{\n\t}\n", "\tswitch(item_code)\n\t{\n\t}\n", "\twin_init.idcmp=0;\n",
          "/*Quillform: END_OBJECT: WINDOW */\n\treturn(win);\n}\n"
          "/*Quillform: END_OBJECT: PAGE */\n"},
         {"START_OBJECT: GADGET", "case "},
         NULL,
         {}},
        {"a name with a space",
         {.name = "My Page", .idcmp = IDCMP_TERMINATE},
         {},
         0,
         {"u32 MyPageMsg(T_WINDOW *win,u32 item_code,u32 msg,void *data)\n", "T_WINDOW *OpenMyPageWindow()\n{\n",
          "\twin_init.message=MyPageMsg;\n", "\twin=ICreateWindow(\"My Page\");\n"},
         {"My Page(", "My PageMsg"},
         NULL,
         {}},
        {"gadget flags 0, 0x40000 and 0xc00",
         {.name = "Flags"},
         {{.type = GADGET_TYPE_BUTTON, .text = "a", .item_code = 1},
          {.type = GADGET_TYPE_BUTTON, .text = "b", .item_code = 2, .flags = GADGET_FLAGS_DEPRESSED},
          {.type = GADGET_TYPE_BUTTON, .text = "c", .item_code = 3, .flags = GADGET_FLAGS_XY}},
         0,
         {},
         {"GADGET_FLAGS_XY", "DEPRESSED"},
         "gadinit.flags=",
         {"\tgadinit.flags=0;", "\tgadinit.flags=0;",
          "\tgadinit.flags=GADGET_FLAGS_HORIZONTAL|GADGET_FLAGS_VERTICAL;"}},
        {"optimised: a word changed only in unnamed bits is written again",
         {.name = "Bits"},
         {{.type = GADGET_TYPE_BUTTON, .text = "a", .item_code = 1, .flags = 0},
          {.type = GADGET_TYPE_BUTTON, .text = "b", .item_code = 2, .flags = GADGET_FLAGS_DEPRESSED}},
         CONFIG_OPTIMISE,
         {},
         {},
         "gadinit.flags=",
         {"\tgadinit.flags=0;"}},
        {"optimised: hover text appears, repeats and vanishes",
         {.name = "Hover"},
         {{.type = GADGET_TYPE_BUTTON, .text = "a", .item_code = 1, .hover = "Tip"},
          {.type = GADGET_TYPE_BUTTON, .text = "b", .item_code = 2, .hover = "Tip"},
          {.type = GADGET_TYPE_BUTTON, .text = "c", .item_code = 3},
          {.type = GADGET_TYPE_BUTTON, .text = "d", .item_code = 4},
          {.type = GADGET_TYPE_BUTTON, .text = "e", .item_code = 5, .hover = "Other"}},
         CONFIG_OPTIMISE,
         {},
         {},
         "hover_text",
         {"\tgadinit.hover_text=\"Tip\";", "\tgadinit.hover_text=NULL;", "\tgadinit.hover_text=\"Other\";"}},
        {"optimised: a font comes and goes like a hover text",
         {.name = "Fonts"},
         {{.type = GADGET_TYPE_BUTTON, .text = "a", .item_code = 1},
          {.type = GADGET_TYPE_BUTTON, .text = "b", .item_code = 2, .font = "DejaVuSans.ttf"},
          {.type = GADGET_TYPE_BUTTON, .text = "c", .item_code = 3, .font = "DejaVuSans.ttf"},
          {.type = GADGET_TYPE_BUTTON, .text = "d", .item_code = 4}},
         CONFIG_OPTIMISE,
         {},
         {},
         "gadinit.font",
         {"\tgadinit.font=\"DejaVuSans.ttf\";", "\tgadinit.font=NULL;"}},
        {"optimised: a cursor above 255 is written every time",
         {.name = "Cursor"},
         {{.type = GADGET_TYPE_BUTTON, .text = "a", .item_code = 1, .with_cursor = 1, .cursor = 300},
          {.type = GADGET_TYPE_BUTTON, .text = "b", .item_code = 2, .with_cursor = 1, .cursor = 300},
          {.type = GADGET_TYPE_BUTTON, .text = "c", .item_code = 3, .with_cursor = 1, .cursor = 7},
          {.type = GADGET_TYPE_BUTTON, .text = "d", .item_code = 4, .cursor = 9},
          {.type = GADGET_TYPE_BUTTON, .text = "e", .item_code = 5, .with_cursor = 1, .cursor = 7}},
         CONFIG_OPTIMISE,
         {},
         {},
         "gadinit.cursor",
         {"\tgadinit.cursor=300;", "\tgadinit.cursor=300;", "\tgadinit.cursor=7;"}},
        {"item code 0: no case, 0x0, both links 0",
         {.name = "Codes"},
         {{.type = GADGET_TYPE_GROUP, .text = "frame", .tab_index = 3},
          {.type = GADGET_TYPE_BUTTON, .text = "one", .item_code = 1, .tab_index = 1},
          {.type = GADGET_TYPE_BUTTON, .text = "two", .item_code = 2, .tab_index = 2}},
         0,
         {"\tcase 0x1:\t\t/*one*/\n\t\tbreak;\n\tcase 0x2:\t\t/*two*/\n\t\tbreak;\n\t}\n",
          "\tgadinit.item_code=0x0;\n\tgadinit.flags=0;\n\tgadinit.action=0;\n"
          "\tgadinit.tab[0]=0x0;\n\tgadinit.tab[1]=0x0;\n"},
         {"/*frame*/"},
         "gadinit.tab[0]",
         {"\tgadinit.tab[0]=0x0;", "\tgadinit.tab[0]=0x80000002;", "\tgadinit.tab[0]=0x1;"}},
        {"message cases in table order, names in bit order",
         {.name = "Messages",
          .idcmp = IDCMP_REQUESTER_OK | IDCMP_MENU_OPEN | IDCMP_TERMINATE | IDCMP_LOOSE_CONTEXT | 0x200 | 0x1000},
         {},
         0,
         {"\twin_init.idcmp=IDCMP_LOOSE_CONTEXT|IDCMP_TERMINATE|IDCMP_MENU_OPEN|"
          "IDCMP_REQUESTER_OK;\n",
          "\tcase ACT_TERMINATE:\n\t\tRemoveWindow(win);\n\t\treturn(0);\n"
          "\tcase ACT_REQUESTER_OK:\n\t\tbreak;\n"},
         {},
         "\tcase ",
         {"\tcase ACT_LOOSE_CONTEXT:", "\tcase ACT_TERMINATE:", "\tcase ACT_REQUESTER_OK:", "\tcase ACT_MENU_OPEN:"}},
        {"the wheel's bits have no single-bit word",
         {.name = "Wheel"},
         {{.type = GADGET_TYPE_BUTTON, .text = "a", .item_code = 1, .action = ACT_MOUSE_WHEEL | ACT_LMOUSE_UP}},
         0,
         {"\tgadinit.action=ACT_LMOUSE_UP;\n"},
         {"ACT_MOUSE_WHEEL"},
         NULL,
         {}},
        {"user area colour only when it differs from the display's",
         {.name = "Colour", .area_colour = 0x123456},
         {},
         0,
         {"\twin=ICreateWindow(\"Colour\");\n\twin->UserAreaColour=0x123456;\n"
          "\tgh=(T_GADGET_HANDLER *)NewGadgetHandler(win);\n"},
         {"mh=", "T_MENU_HANDLER"},
         NULL,
         {}},
        {"menu handler lines",
         {.name = "Menus", .with_menus = 1},
         {},
         0,
         {"\tT_GADGETOBJECTINIT gadinit;\n\tT_MENU_HANDLER *mh;\n\tT_MENU *menu;\n"
          "\tT_MENUOBJECTINIT menuinit;\n\n\tClearGadInit;\n",
          "\tgh=(T_GADGET_HANDLER *)NewGadgetHandler(win);\n\tmh=NewMenuHandler(win);\n"
          "/*Quillform: END_OBJECT: WINDOW */\n"},
         {"UserAreaColour"},
         NULL,
         {}},
        {"optimised: slider and scroll bar share the record; a string's max leaves it",
         {.name = "Shared"},
         {{.type = GADGET_TYPE_SCROLLBAR, .text = "bar", .item_code = 1, .min = 0, .max = 100, .init_val = 40000},
          {.type = GADGET_TYPE_STRING, .text = "field", .item_code = 2},
          {.type = GADGET_TYPE_STRING, .text = "field2", .item_code = 3},
          {.type = GADGET_TYPE_SLIDER,
           .text = "knob",
           .item_code = 4,
           .min = -5,
           .max = 100,
           .step = 2,
           .mark_width = -3,
           .mark_height = 6}},
         CONFIG_OPTIMISE,
         {"\tgadinit.type=GADGET_TYPE_SCROLLBAR;\n\tgadinit.max=100;\n"
          "\tgadinit.init_val=40000;\n",
          "\tgadinit.item_code=0x3;\n\tgadinit.data=&PutStringName;\n"
          "\tgadinit.max=STRINGS_MAX_SIZE;\n\tgad=CreateGadget(\"field2\");\n",
          "\tgadinit.type=GADGET_TYPE_SLIDER;\n\tgadinit.min=-5;\n\tgadinit.step=2;\n"
          "\tgadinit.mark_width=-3;\n\tgadinit.mark_height=6;\n"},
         {},
         "gadinit.max=",
         {"\tgadinit.max=100;", "\tgadinit.max=STRINGS_MAX_SIZE;", "\tgadinit.max=STRINGS_MAX_SIZE;"}},
        {"a page name of 127 characters",
         {.name = long_page_name.c_str()},
         {},
         0,
         {"\twin=ICreateWindow(\"" + long_page_name + "\");\n",
          "u32 " + std::string(60, 'P') + std::string(66, 'q') + "Msg(",
          "T_WINDOW *Open" + std::string(60, 'P') + std::string(66, 'q') + "Window()\n"},
         {},
         NULL,
         {}},
        {"a gadget text of 255 characters",
         {.name = "Long"},
         {{.type = GADGET_TYPE_BUTTON, .text = long_text.c_str(), .item_code = 1, .hover = long_text.c_str()}},
         CONFIG_OPTIMISE,
         {"\tgad=CreateGadget(\"" + long_text + "\");\n\n", "/*" + long_text + "*/\n",
          "\tgadinit.hover_text=\"" + long_text + "\";\n"},
         {},
         NULL,
         {}},
        {"quotes and line feeds are written as they stand",
         {.name = "Raw"},
         {{.type = GADGET_TYPE_BUTTON, .text = "say \"hi\"\nnow", .item_code = 1, .hover = "C:\\dir"}},
         CONFIG_OPTIMISE,
         {"\tgad=CreateGadget(\"say \"hi\"\nnow\");\n", "\tgadinit.hover_text=\"C:\\dir\";\n"},
         {},
         NULL,
         {}},
    };
    return cases;
}

class FormatEdgeTest : public SourceTest
{
};

TEST_F(FormatEdgeTest, Table)
{
    int n = 0;
    for (const EDGE_CASE &c : EdgeCases()) {
        SCOPED_TRACE(c.label);
        t_Window *window = MakePage(c.page, c.gadgets);
        ASSERT_TRUE(window);
        std::string file = "edge" + std::to_string(n++) + ".cpp";
        std::string text = SaveAndRead(window, c.settings, file.c_str());
        ASSERT_FALSE(text.empty());
        for (const std::string &want : c.present)
            EXPECT_NE(text.find(want), std::string::npos) << "missing: " << want;
        for (const std::string &not_wanted : c.absent)
            EXPECT_EQ(text.find(not_wanted), std::string::npos) << "present: " << not_wanted;
        if (c.statement) {
            EXPECT_EQ(LinesWith(text, c.statement), c.lines);
        }
        RemoveWindow(window);
    }
}

}  // namespace
