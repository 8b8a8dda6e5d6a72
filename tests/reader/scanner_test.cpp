// The reader's scanners, which see nothing but one line: field values and name lists.
#include <gtest/gtest.h>

#include "source/name_tables.h"
#include "source/open_page.h"

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
