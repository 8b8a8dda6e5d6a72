// The gadget catalogue: what each tool makes, the item code rules, slider marks and start values,
// the sample entries of lists and trees.
#include <gtest/gtest.h>
#include <string.h>

#include "editor/page_window.h"
#include "editor/undo_records.h"
#include "page/catalogue.h"
#include "tests/harness/harness.h"

class Catalogue : public ::testing::Test
{
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(HarnessStart(&h, NULL, 1024, 700));
        page = CreatePageWindow(h.main_window, (char *)"Catalogue", 0x7C, 20, 60, 620, 560);
        ASSERT_NE(page, nullptr);
    }
    void TearDown() override { HarnessStop(&h, 0); }

    t_gadget *Make(i16 tool, i16 x = 10, i16 y = 10, i16 w = 100, i16 h = 20, i32 min = 0, i32 max = 100)
    {
        T_GADGETOBJECTINIT init;
        FillNewGadgetInit(&init, x, y, w, h);
        init.min = min;
        init.max = max;
        return CreateGadgetByTool(page, tool, &init);
    }

    T_HARNESS h;
    t_Window *page = nullptr;
};

static u32 CountEntries(t_List *list)
{
    u32 n = 0;
    for (T_LIST_ENTRY *e = (T_LIST_ENTRY *)list->first; e->next; e = e->next)
        n += 1 + CountEntries(&e->children);
    return n;
}

TEST_F(Catalogue, EachToolMakesItsTypeWithItsDefaults)
{
    struct {
        i16 tool;
        u16 type;
        const char *name;
        u32 action;
        int created_mark;  // 0x100000 in live_flags
    } const rows[] = {
        {1, GADGET_TYPE_CHECK_BOX, "New Checkbox", 0x50, 0},
        {2, GADGET_TYPE_LIST_BOX, "My Listbox", 0x50, 1},
        {3, GADGET_TYPE_RADIOBUTTON, "New Radio button", 0x50, 1},
        {4, GADGET_TYPE_SLIDER, "My slider", 0x50, 1},
        {5, GADGET_TYPE_SLIDER, "My slider", 0x50, 1},
        {6, GADGET_TYPE_TEXT, "New Text", 0x50, 1},
        {7, GADGET_TYPE_STRING, "My String", 0x50, 1},
        {8, GADGET_TYPE_TREE, "My Tree", 0x50, 1},
        {9, GADGET_TYPE_SCROLLBAR, "My ScrollBar", 0x50, 1},
        {10, GADGET_TYPE_SCROLLBAR, "My ScrollBar", 0x50, 1},
        {11, GADGET_TYPE_GROUP, "New Group", 0, 1},
        {12, GADGET_TYPE_BUTTON, "New Button", 0x50, 1},
        {13, GADGET_TYPE_DROP_BOX, "My DropBox", 0x50, 1},
        {14, GADGET_TYPE_COLOUR_FLAT, "", 0x50, 1},
        {15, GADGET_TYPE_TEXTURE, "New Texture gadget", 0x50, 1},
        {16, GADGET_TYPE_SCENE, "New Scene gadget", 0x50, 1},
        {17, GADGET_TYPE_USER, "New User gadget", 0x50, 1},
    };
    for (const auto &r : rows) {
        SCOPED_TRACE(r.tool);
        t_gadget *g = Make(r.tool);
        ASSERT_NE(g, nullptr);
        EXPECT_EQ(g->type, r.type);
        EXPECT_STREQ(g->name, r.name);
        EXPECT_EQ(g->action, r.action);
        EXPECT_EQ(g->live_action, 0x73u);
        EXPECT_EQ(g->live_item_code, 1u);
        EXPECT_EQ((g->live_flags & GADGET_MARK_CREATED) != 0, r.created_mark != 0);
        EXPECT_EQ(g->flags & GADGET_MARK_CREATED, 0u);
        EXPECT_EQ(g->menu_owner, &gadget_context_menu);
        EXPECT_EQ(g->action_fn, GadgetEditAction);
    }
    EXPECT_EQ(Make(0), nullptr);
    EXPECT_EQ(Make(18), nullptr);
}

TEST_F(Catalogue, ItemCodes)
{
    t_gadget *group = Make(TOOL_GROUP);
    EXPECT_EQ(group->item_code, 0u);
    t_gadget *first = Make(TOOL_BUTTON);
    EXPECT_EQ(first->item_code, 1u);  // the group's 0 takes no number
    t_gadget *second = Make(TOOL_BUTTON);
    t_gadget *third = Make(TOOL_BUTTON);
    EXPECT_EQ(second->item_code, 2u);
    EXPECT_EQ(third->item_code, 3u);
    SetGadgetItemCode(page, third, 4);
    EXPECT_EQ(Make(TOOL_CHECK_BOX)->item_code, 3u);  // 1, 2, 4 in use
    t_Gaget_Handler *gh = FindGadgetHandler(page);
    EXPECT_EQ(NextFreeItemCode(gh->first_gadget), 5u);
}

TEST_F(Catalogue, SlidersFollowTheirOrientation)
{
    struct {
        i16 tool;
        i16 w, h;
        i32 min, max;
        u32 orientation;
        i16 mark_width, mark_height;
        i32 start;
    } const rows[] = {
        {4, 100, 20, 0, 100, GADGET_FLAGS_HORIZONTAL, 16, 18, 50},
        {5, 20, 100, 0, 100, GADGET_FLAGS_VERTICAL, 16, 18, 50},
        {4, 120, 30, 10, 20, GADGET_FLAGS_HORIZONTAL, 26, 28, 5},
        {5, 30, 90, -7, 8, GADGET_FLAGS_VERTICAL, 26, 28, 7},
    };
    for (const auto &r : rows) {
        SCOPED_TRACE(r.tool);
        t_gadget *g = Make(r.tool, 10, 10, r.w, r.h, r.min, r.max);
        ASSERT_NE(g, nullptr);
        EXPECT_EQ(g->flags & GADGET_FLAGS_XY, r.orientation);
        const T_SLIDER_DATA *slider = (const T_SLIDER_DATA *)g->class_data;
        ASSERT_NE(slider, nullptr);
        EXPECT_EQ(slider->mark_width, r.mark_width);
        EXPECT_EQ(slider->mark_height, r.mark_height);
        EXPECT_EQ(slider->min, r.min);
        EXPECT_EQ(slider->max, r.max);
        EXPECT_EQ(slider->value, r.start);
    }
    // Tools 9 and 10 are the other way round: "Horizontal scrollbar" is vertical.
    EXPECT_EQ(Make(9)->flags & GADGET_FLAGS_XY, (u32)GADGET_FLAGS_VERTICAL);
    EXPECT_EQ(Make(10)->flags & GADGET_FLAGS_XY, (u32)GADGET_FLAGS_HORIZONTAL);
}

TEST_F(Catalogue, SampleEntries)
{
    t_gadget *list = Make(TOOL_LIST_BOX);
    t_gadget *drop = Make(TOOL_DROP_BOX);
    t_gadget *tree = Make(TOOL_TREE);
    EXPECT_EQ(CountEntries(&((T_LIST_DATA *)list->class_data)->entries), 16u);
    EXPECT_EQ(CountEntries(&((T_LIST_DATA *)drop->class_data)->entries), 10u);
    EXPECT_EQ(CountEntries(&((T_LIST_DATA *)tree->class_data)->entries), 584u);
    T_LIST_ENTRY *first = (T_LIST_ENTRY *)((T_LIST_DATA *)list->class_data)->entries.first;
    EXPECT_STREQ(first->name, "Example List box entry 0");
    T_LIST_ENTRY *branch = (T_LIST_ENTRY *)((T_LIST_DATA *)tree->class_data)->entries.last;
    EXPECT_STREQ(branch->name, "Branch 7");
    T_LIST_ENTRY *leaf = (T_LIST_ENTRY *)branch->children.last;
    EXPECT_STREQ(leaf->name, "Leaf 7 Entry 7");
    EXPECT_STREQ(((T_LIST_ENTRY *)leaf->children.first)->name, "Subleaf 7 Entry 0");
}

TEST_F(Catalogue, TextsAndFlags)
{
    t_gadget *text = Make(TOOL_TEXT);
    EXPECT_EQ(text->live_flags & GADGET_FLAGS_PASSIVE, 0u);
    EXPECT_EQ(text->flags, (u32)GADGET_FLAGS_NO_BORDER);
    t_gadget *string = Make(TOOL_STRING);
    EXPECT_STREQ((const char *)string->user_data, "String Gadget");
    EXPECT_STREQ(string->name, "My String");
    // A tree takes none of the caller's flags.
    T_GADGETOBJECTINIT init;
    memset(&init, 0, sizeof(init));
    init.base_width = 100;
    init.base_height = 100;
    init.flags = GADGET_FLAGS_BOLD | GADGET_FLAGS_SOLID;
    t_gadget *tree = CreateGadgetByTool(page, TOOL_TREE, &init);
    EXPECT_EQ(tree->flags & (GADGET_FLAGS_BOLD | GADGET_FLAGS_SOLID), 0u);
    t_gadget *button = CreateGadgetByTool(page, TOOL_BUTTON, &init);
    EXPECT_EQ(button->flags, (u32)(GADGET_FLAGS_BOLD | GADGET_FLAGS_SOLID));
}

// The reader's way from a type and its flags back to a tool: each tool's own gadget leads back to
// it, GADGET_FLAGS_HORIZONTAL decides between the two sliders and the two scroll bars, and a type
// that no tool makes has none.
TEST_F(Catalogue, ToolOfTypeLeadsBackToTheTool)
{
    for (i16 tool = TOOL_FIRST; tool < TOOL_COUNT; tool++) {
        t_gadget *g = Make(tool);
        ASSERT_NE(g, nullptr);
        EXPECT_EQ(ToolOfType(g->type, g->flags), tool) << tool;
    }
    struct {
        u16 type;
        u32 flags;
        i16 tool;
    } const rows[] = {
        {GADGET_TYPE_SLIDER, 0, 5},
        {GADGET_TYPE_SLIDER, GADGET_FLAGS_XY, 4},
        {GADGET_TYPE_SCROLLBAR, 0, 9},
        {GADGET_TYPE_SCROLLBAR, GADGET_FLAGS_XY, 10},
        {GADGET_TYPE_BUTTON, GADGET_FLAGS_HORIZONTAL, 12},
        {0, 0, 0},
        {GADGET_TYPE_VU_16, 0, 0},
        {GADGET_TYPE_VU_32, 0, 0},
        {GADGET_TYPE_COLOUR_BAR, 0, 0},
        {GADGET_TYPE_COLOUR_BOX, 0, 0},
        {GADGET_TYPE_COMBO, 0, 0},
        {20, 0, 0},
        {0xFFFF, 0, 0},
    };
    for (const auto &r : rows)
        EXPECT_EQ(ToolOfType(r.type, r.flags), r.tool) << r.type << " " << r.flags;
}

// What the properties dialog and the page commands look up by type comes from the type's first
// row: the rows of one type must agree on it.
TEST_F(Catalogue, RowsOfOneTypeAgree)
{
    for (i16 tool = TOOL_FIRST; tool < TOOL_COUNT; tool++) {
        const T_CATALOGUE_ROW *row = &catalogue_rows[tool], *first = CatalogueRowOfType(row->type);
        ASSERT_NE(first, nullptr);
        EXPECT_EQ(row->row_mask, first->row_mask) << tool;
        EXPECT_EQ(row->traits, first->traits) << tool;
    }
}
