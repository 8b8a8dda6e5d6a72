// Message boxes: each button answers the parent with its message and the box's item code.
#include "tests/harness/toolkit_fixture.h"

static const u32 ALL_ANSWERS = IDCMP_REQUESTER_OK | IDCMP_REQUESTER_CANCEL | IDCMP_REQUESTER_ABORT;

static t_gadget *Button(t_Window *box, u32 index)
{
    return FindGadgetByItemCode(box, index);
}

TEST_F(LumoraTest, EachButtonOfAQuestionAnswersItsParent)
{
    struct {
        u32 button;
        u32 answer;
    } rows[] = {{1, ACT_REQUESTER_OK}, {2, ACT_REQUESTER_ABORT}, {3, ACT_REQUESTER_CANCEL}};
    for (const auto &row : rows) {
        t_Window *page = MakeWindow("Page", 50, 50, 500, 400, WF_BORDER | WF_TITLE, ALL_ANSWERS);
        t_Window *box = NewMsgBox(page, "Quillform query", "Save before closing ?", 35, 1);
        ASSERT_NE(box, nullptr);
        EXPECT_EQ(box->parent, page);
        EXPECT_EQ(FocusWindow(), box);
        EXPECT_STREQ(Button(box, 1)->name, "Yes");
        EXPECT_STREQ(Button(box, 3)->name, "Cancel");
        Turn();
        recorded.clear();
        t_gadget *g = Button(box, row.button);
        Click(g->screen_x + 5, g->screen_y + 5);
        ASSERT_EQ(recorded.size(), 1u);
        EXPECT_EQ(recorded[0].window, page);
        EXPECT_EQ(recorded[0].msg, row.answer);
        EXPECT_EQ(recorded[0].item_code, 1u);
        EXPECT_EQ(FindWindowByName(page, "Quillform query"), nullptr);
        EXPECT_EQ(FocusWindow(), page);
        RemoveWindow(page);
        Turn();
    }
}

TEST_F(LumoraTest, EnterEscapeAndTheMaskDecideTheAnswer)
{
    struct {
        u32 style, mask;
        u16 key;
        u32 answers, answer;
    } rows[] = {
        {35, ALL_ANSWERS, KEY_RETURN, 1, ACT_REQUESTER_OK}, {35, ALL_ANSWERS, KEY_ESCAPE, 1, ACT_REQUESTER_CANCEL},
        {16, ALL_ANSWERS, KEY_ESCAPE, 1, ACT_REQUESTER_OK}, {64, ALL_ANSWERS, KEY_RETURN, 1, ACT_REQUESTER_OK},
        {35, IDCMP_REQUESTER_OK, KEY_ESCAPE, 0, 0},  // an answer the parent didn't ask for
    };
    for (const auto &row : rows) {
        t_Window *parent = MakeWindow("Parent", 50, 50, 500, 400, WF_BORDER, row.mask);
        t_Window *box = NewMsgBox(parent, "Box", "A line\nand a second line", row.style, 7);
        ASSERT_NE(box, nullptr);
        Turn();
        recorded.clear();
        Key(row.key);
        ASSERT_EQ(recorded.size(), row.answers);
        if (row.answers) {
            EXPECT_EQ(recorded[0].msg, row.answer);
            EXPECT_EQ(recorded[0].item_code, 7u);
        }
        EXPECT_EQ(FindWindowByName(parent, "Box"), nullptr);
        RemoveWindow(parent);
        Turn();
    }
}
