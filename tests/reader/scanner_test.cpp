// The reader's scanners and the declaration words, which see nothing but one line.
#include <gtest/gtest.h>

#include "source/name_tables.h"
#include "source/open_page.h"

TEST(Scanner, LineHasWord)
{
    EXPECT_TRUE(LineHasWord("\tT_GADGET_HANDLER *gh;", "T_GADGET"));
    EXPECT_FALSE(LineHasWord("", ""));
    EXPECT_FALSE(LineHasWord("", "x"));
    EXPECT_FALSE(LineHasWord("gadinit.X", "gadinit.x"));
}

TEST(Scanner, FieldValues)
{
    struct {
        const char *line;
        int n;
        u32 value;
    } const cases[] = {
        {"\tgadinit.x=10;", 1, 10},
        {"\tgadinit.item_code=0x1f;", 1, 0x1f},
        {"\tgadinit.tab[0]=0x80000002;", 1, 0x80000002u},
        {"\tgadinit.x=0X10;", 1, 0},  // upper-case X is no hexadecimal prefix
        {"\tgadinit.min=-25536;", 1, (u32)-25536},
        {"\tgadinit.max=STRINGS_MAX_SIZE;", 1, 0},
        {"\tgadinit.x;", 1, 0},
        {"\tSetGadgetColours(gad,0xc0c0c0,0x0);", 1, 0xc0c0c0},
        {"\tSetGadgetColours(gad,0xc0c0c0,0xff00);", 2, 0xff00},
        {"\tSetGadgetColours(gad,0xc0c0c0,0xff00);", 3, 0},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.line);
        EXPECT_EQ(FieldValue(c.line, c.n), c.value);
    }
    EXPECT_STREQ(ValueText("a=b=c"), "b=c");
    EXPECT_STREQ(ValueText("none"), "");
}

TEST(Scanner, NameLists)
{
    struct {
        const char *line;
        const T_VAL2STRING *table;
        u32 value;
    } const cases[] = {
        {"\tgadinit.flags=GADGET_FLAGS_XY;", gadget_flag_names, 0xc00},
        {"\tgadinit.flags=0;", gadget_flag_names, 0},
        {"\tgadinit.flags=GADGET_FLAGS_PUSH|GADGET_FLAGS_SOLID;", gadget_flag_names, 0x10020},
        {"\tgadinit.flags=GADGET_FLAGS_PUSH | GADGET_FLAGS_SOLID;", gadget_flag_names, 0},
        {"\tgadinit.action=ACT_MOUSE_WHEEL;", mouse_action_names, 0x300},
        {"\twin_init.idcmp=IDCMP_TERMINATE|IDCMP_KEY;", idcmp_names, 0x14},
        {"\twin_init.flags=WF_CLOSE;WF_TITLE", window_flag_names, 0x14},  // behind the semicolon: more names
        {"no equals", window_flag_names, 0},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.line);
        EXPECT_EQ(ReadNameList(c.line, c.table), c.value);
    }
    char token[256];
    const char *rest = NextNameToken("WF_CLOSE|WF_MOVE;", token);
    EXPECT_STREQ(token, "WF_CLOSE");
    EXPECT_EQ(*rest, '|');
}

TEST(Scanner, DeclarationWords)
{
    struct {
        const char *line;
        int declaration, clear;
        u16 word_after;
    } const lines[] = {
        {"\tT_WINDOW_HANDLER *wh;", 0, 0, 0},
        {"\tT_WINDOW *win;", 1, 0, 0x2},
        {"\tT_WINDOWOBJINIT win_init;", 1, 0, 0x6},
        {"\tT_GADGET_HANDLER *gh;", 1, 0, 0x16},
        {"\tT_GADGET *gad;", 0, 0, 0x16},
        {"\tT_GADGETOBJECTINIT gadinit;", 1, 0, 0x36},
        {"\tClearGadInit;", 0, 0, 0x36},
        {"\tZeroMem(&win_init,sizeof(T_WINDOWOBJINIT));", 0, 1, 0x136},
        {"\tT_MENU_HANDLER *mh;", 1, 0, 0x176},
        {"\tT_MENU *menu;", 0, 0, 0x176},
        {"\tT_MENUOBJECTINIT menuinit;", 1, 0, 0x1F6},
        {"\tZeroMem(wh,sizeof(T_HANDLER *wh));", 0, 1, 0x1FE},
    };
    T_DECLARATIONS d = {};
    for (const auto &l : lines) {
        SCOPED_TRACE(l.line);
        EXPECT_EQ(MatchDeclaration(&d, l.line), l.declaration);
        EXPECT_EQ(MatchClearLine(&d, l.line), l.clear);
        EXPECT_EQ(d.saved, l.word_after);
    }
}

TEST(Scanner, ToolOfType)
{
    struct {
        u16 type;
        u32 flags;
        i16 tool;
    } const cases[] = {
        {1, 0, 12}, {2, 0x400, 4}, {2, 0x800, 5}, {2, 0, 5},   {5, 0, 1},   {6, 0, 13},  {7, 0, 6},
        {8, 0, 2},  {9, 0, 11},    {10, 0, 7},    {11, 0, 3},  {12, 0, 14}, {15, 0, 17}, {16, 0, 8},
        {17, 0, 15}, {18, 0x400, 10}, {18, 0x800, 9}, {21, 0, 16}, {0, 0, 0}, {3, 0, 0}, {4, 0, 0},
        {13, 0, 0}, {14, 0, 0},    {19, 0, 0},    {20, 0, 0},  {22, 0, 0},  {0x101, 0, 0},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.type);
        EXPECT_EQ(ToolOfType(c.type, c.flags), c.tool);
    }
}
