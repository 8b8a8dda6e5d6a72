// The name tables: lookups by code, the row order that others count on, the terminators.
#include <gtest/gtest.h>
#include <string.h>

#include "source/name_tables.h"

namespace
{

struct CODE_LOOKUP {
    const T_VAL2STRING *table;
    u32 value;
    const char *text;  // null: no row
};

TEST(NameTables, LookupByCodeMatchesTheWholeValue)
{
    const CODE_LOOKUP cases[] = {
        {gadget_type_names, 3, "GADGET_TYPE_VU_16"},
        {gadget_type_names, 21, "GADGET_TYPE_SCENE"},
        {gadget_type_names, 19, NULL},  // a combo has no word
        {gadget_flag_names, 0x40000, NULL},
        {gadget_flag_names, 0x80, "GADGET_FLAGS_FROM_KEYBOARD"},
        {gadget_flag_names, 0xc00, "GADGET_FLAGS_XY"},
        {gadget_flag_labels, 0x40000, "Depressed"},
        {gadget_flag_labels, 0x80, NULL},
        {mouse_action_names, 0x100, NULL},
        {mouse_action_names, 0x200, NULL},
        {mouse_action_names, 0x300, "ACT_MOUSE_WHEEL"},
        {window_flag_names, 0x20000, NULL},
        {window_flag_names, 0x100000, "WF_SEETHROUGH"},
        {idcmp_names, 0x200, NULL},
        {idcmp_names, 0x100000, "IDCMP_REQUESTER_TERMINATE"},
        {message_names, 0x1009, NULL},
    };
    for (const CODE_LOOKUP &c : cases) {
        const char *text = FindV2SByCode(c.table, c.value);
        if (c.text)
            EXPECT_STREQ(text, c.text) << std::hex << c.value;
        else
            EXPECT_EQ(text, nullptr) << std::hex << c.value;
    }
}

struct STRING_LOOKUP {
    const T_VAL2STRING *table;
    const char *text;
    u32 value;
};

struct TABLE_SHAPE {
    const char *name;
    const T_VAL2STRING *table;
    u32 rows;
};

// Row counts and closing rows; message k answers to idcmp bit k (0x1000 plus the bit's number).
TEST(NameTables, RowsAndPairing)
{
    const TABLE_SHAPE shapes[] = {
        {"gadget_flag_labels", gadget_flag_labels, 20}, {"gadget_flag_names", gadget_flag_names, 21},
        {"gadget_type_names", gadget_type_names, 19},   {"mouse_action_names", mouse_action_names, 9},
        {"window_flag_names", window_flag_names, 20},   {"idcmp_names", idcmp_names, 20},
        {"message_names", message_names, 20},
    };
    for (const TABLE_SHAPE &s : shapes) {
        u32 rows = 0;
        while (s.table[rows].value)
            rows++;
        EXPECT_EQ(rows, s.rows) << s.name;
        EXPECT_STREQ(s.table[rows].text, "") << s.name;
    }
    for (u32 row = 0; idcmp_names[row].value; row++) {
        u32 bit = (u32)__builtin_ctz(idcmp_names[row].value);
        EXPECT_EQ(message_names[row].value, 0x1000 + bit) << idcmp_names[row].text;
        EXPECT_STREQ(message_names[row].text + 4, idcmp_names[row].text + 6);  // ACT_ / IDCMP_
    }
    // The order that the dialogs count on: rows 7 and 13 of the message table.
    EXPECT_STREQ(idcmp_names[7].text, "IDCMP_REQUESTER_OK");
    EXPECT_STREQ(idcmp_names[13].text, "IDCMP_MENU_OPEN");
}

}  // namespace
