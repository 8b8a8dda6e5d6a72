// The field tables: every statement the writer writes is read back into the same place of the
// creation record, so a row whose word, kind or place is wrong on one side shows here.
#include <sstream>

#include "source/open_page.h"
#include "source/page_fields.h"
#include "source_fixture.h"

namespace
{

std::vector<std::string> Lines(const std::string &text)
{
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    return lines;
}

// The row whose statement `line` is, by the writer's head it begins with; null for none.
const T_PAGE_FIELD *WrittenRow(const std::string &line, const T_PAGE_FIELD *table)
{
    for (const T_PAGE_FIELD *field = table; field->word; field++) {
        size_t length;
        const char *head = FieldHead(field, &length);
        if (line.compare(0, length, head) == 0)
            return field;
    }
    return nullptr;
}

// Whether the value of `field` in `read` equals the one in `written`: texts by their bytes.
void ExpectSameField(const T_PAGE_FIELD *field, const void *written, const void *read)
{
    SCOPED_TRACE(field->word);
    if (field->kind == FIELD_TEXT || field->kind == FIELD_RESOURCE) {
        const char *want = (const char *)PlacePointer(written, field->record);
        const char *got = (const char *)PlacePointer(read, field->record);
        ASSERT_EQ(want == nullptr, got == nullptr);
        if (want) {
            EXPECT_STREQ(got, want);
        }
    } else {
        EXPECT_EQ(PlaceValue(read, field->record), PlaceValue(written, field->record));
    }
}

class PageFieldsTest : public SourceTest
{
};

// Each gadget in the full form, then read line by line into a clear record: every field the
// writer's record took comes back the same, and no statement goes by unread.
TEST_F(PageFieldsTest, EveryGadgetStatementReadsBackIntoItsField)
{
    // clang-format off
    const std::vector<T_TEST_GADGET> gadgets = {
        {.type = GADGET_TYPE_BUTTON, .text = "b", .x = -7, .y = 9, .w = 81, .h = 23, .item_code = 0x1f,
         .flags = GADGET_FLAGS_PUSH | GADGET_FLAGS_BOLD, .action = ACT_LMOUSE_UP | ACT_RMOUSE_DBL, .hover = "tip",
         .font = "DejaVuSans.ttf", .with_cursor = 1, .cursor = 77, .back_colour = 0x123456, .text_colour = 0x654321},
        {.type = GADGET_TYPE_SLIDER, .text = "s", .x = 3, .y = 4, .w = 200, .h = 20, .item_code = 2,
         .flags = GADGET_FLAGS_HORIZONTAL, .min = -5, .max = 300, .step = 3, .mark_width = 8, .mark_height = 16},
        {.type = GADGET_TYPE_SCROLLBAR, .text = "r", .x = 5, .y = 6, .w = 20, .h = 100, .item_code = 3, .min = 2,
         .max = 90, .init_val = 40},
        {.type = GADGET_TYPE_STRING, .text = "t", .x = 1, .y = 2, .w = 90, .h = 20, .item_code = 4},
    };
    // clang-format on
    t_Window *window = MakePage({.name = "Fields"}, gadgets);
    ASSERT_TRUE(window);
    std::vector<t_gadget *> made = Gadgets(window);
    made[0]->live_flags |= GADGET_FLAGS_ICON;
    made[0]->icon = 12;
    for (t_gadget *gadget : made) {
        SCOPED_TRACE(gadget->name);
        T_GADGETOBJECTINIT written = {};
        std::string text;
        BeginSourceText(&text);
        SaveGadget(gadget, &written, 1);
        EndSourceText();
        T_GADGET_BLOCK block = {};
        u32 checked = 0;
        for (const std::string &line : Lines(text)) {
            T_GADGETOBJECTINIT read = {};
            const T_PAGE_FIELD *field = WrittenRow(line, gadget_fields);
            EXPECT_EQ(ParseGadgetLine(line.c_str(), &read, &block) != 0, field && field->decides) << line;
            if (field && field->decides && field->record.width) {
                EXPECT_EQ(DecidingField(line.c_str(), &gadget_field_index), field) << line;
                ExpectSameField(field, &written, &read);
                checked++;
            }
        }
        // x, y, width, height, item code, flags, action, links, hover, type, font: at least.
        EXPECT_GE(checked, 12u);
        EXPECT_EQ(block.has_colours, 1);
        EXPECT_EQ(block.colours[0], gadget->back_colour);
        EXPECT_EQ(block.colours[1], gadget->text_colour);
    }
    EXPECT_EQ(made[0]->cursor, 77);  // the fields that only some gadgets have were in the test
    RemoveWindow(window);
}

// The WINDOW block's statements read back into the window record, the colour beside it.
TEST_F(PageFieldsTest, EveryWindowStatementReadsBackIntoItsField)
{
    // clang-format off
    t_Window *window = MakePage({.name = "Window Fields", .flags = WF_CLOSE | WF_TITLE,
                                 .idcmp = IDCMP_TERMINATE | IDCMP_KEY, .x = 11, .y = 12, .w = 320, .h = 200,
                                 .area_colour = 0x123456, .bitmap = "back.png"},
                                {});
    // clang-format on
    ASSERT_TRUE(window);
    window->icon = 5;
    std::string text;
    BeginSourceText(&text);
    SaveWindowStatements(window, "WindowFields", 0);
    SaveWindowStatements(window, "WindowFields", 1);
    EndSourceText();
    u32 checked = 0;
    T_WINDOW_READ all = {};
    for (const std::string &line : Lines(text)) {
        const T_PAGE_FIELD *field = WrittenRow(line, window_fields);
        ASSERT_TRUE(field) << line;
        T_WINDOW_READ read = {};
        ParseWindowLine(line.c_str(), &all);
        if (!ParseWindowLine(line.c_str(), &read) || !field->record.width || !field->decides)
            continue;
        // "win_init.icon_bank=NULL;" holds the icon's word and reads as an icon of 0.
        EXPECT_EQ(DecidingField(line.c_str(), &window_field_index), field) << line;
        T_WINDOWOBJINIT written = {};
        if (field->kind == FIELD_RESOURCE)
            StorePlacePointer(&written, field->record, ResourceName(PlacePointer(window, field->object)));
        else
            StorePlaceValue(&written, field->record, PlaceValue(window, field->object));
        ExpectSameField(field, &written, &read.init);
        checked++;
    }
    EXPECT_EQ(checked, 8u);  // flags, x, y, w, h, icon, idcmp, bitmap
    EXPECT_EQ(all.colour, 0x123456u);
    RemoveWindow(window);
}

}  // namespace
