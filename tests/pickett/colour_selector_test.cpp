// The colour selector: sliders change the caller's colour in place with a preview each time, and
// OK and Cancel answer with a record that leads back to the caller's user pointer.
#include "pickett_fixture.h"

#define COLOUR_CODE 2

enum { SLIDER_RED = 1, SLIDER_GREEN, SLIDER_BLUE, COLOUR_OK, COLOUR_CANCEL };

static T_RGBA rgba;
static T_HSIA hsia;
static int owner;  // the caller's record, reached through the user pointer

// Every answer's data leads back to the owner while it is delivered.
static void CheckAnswer(u32 item_code, u32 msg, void *data) {
    (void)msg;
    T_COLOURSEL *sel = (T_COLOURSEL *)data;
    EXPECT_EQ(item_code, (u32)COLOUR_CODE);
    ASSERT_NE(sel, nullptr);
    EXPECT_EQ(sel->user_data, &owner);
    EXPECT_EQ(sel->rgba, &rgba);
    EXPECT_EQ(sel->item_code, (u32)COLOUR_CODE);
}

class ColourSelector : public PickettTest {
  protected:
    t_Window *selector = nullptr;

    void SetUp() override {
        PickettTest::SetUp();
        rgba = T_RGBA{10, 20, 30, 255};
        hsia = T_HSIA{};
        spy_check = CheckAnswer;
        MakeParent();
        T_COLOURSEL_INIT init = {parent, &rgba, &hsia, 3, COLOUR_CODE, "Set text colour", &owner};
        selector = AddColourSelector(&init);
        ASSERT_NE(selector, nullptr);
        Turn();
    }

    i32 Value(u32 code) {
        return ((T_SLIDER_DATA *)FindGadgetByItemCode(selector, code)->class_data)->value;
    }
};

TEST_F(ColourSelector, MovingASliderChangesTheColourInPlaceAndPreviews) {
    t_gadget *red = FindGadgetByItemCode(selector, SLIDER_RED);
    i16 y = red->screen_y + red->base_height / 2;
    Drag(red->screen_x + 2, y, red->screen_x + red->base_width + 40, y);
    EXPECT_EQ(rgba.r, 255.0f);
    EXPECT_EQ(rgba.g, 20.0f);
    EXPECT_EQ(rgba.a, 255.0f);
    T_HSIA expected;
    RGBToHSI(&rgba, &expected);
    EXPECT_EQ(hsia.h, expected.h);
    EXPECT_EQ(hsia.i, expected.i);
    EXPECT_FALSE(MessagesOf(ACT_REQUESTER_PREVIEW).empty());
    EXPECT_EQ(MessagesOf(ACT_REQUESTER_PREVIEW)[0], (u32)COLOUR_CODE);

    spy.clear();
    ClickGadget(selector, SLIDER_BLUE);  // the focus, and the mark jumps to the middle
    Key(KEY_END);
    EXPECT_EQ(rgba.b, 255.0f);
    Key(KEY_LEFT);
    EXPECT_EQ(rgba.b, 254.0f);
    EXPECT_GE(MessagesOf(ACT_REQUESTER_PREVIEW).size(), 3u);
}

TEST_F(ColourSelector, OkAndCancelAnswerAndClose) {
    struct {
        int way;  // 0 OK button, 1 Enter, 2 Cancel button, 3 Escape, 4 close gadget
        u32 msg;
    } rows[] = {{0, ACT_REQUESTER_OK},
                {1, ACT_REQUESTER_OK},
                {2, ACT_REQUESTER_CANCEL},
                {3, ACT_REQUESTER_CANCEL},
                {4, ACT_REQUESTER_CANCEL}};
    for (auto &r : rows) {
        if (!selector) {
            T_COLOURSEL_INIT init = {parent, &rgba, &hsia, 3, COLOUR_CODE, "Set text colour",
                                     &owner};
            selector = AddColourSelector(&init);
            Turn();
        }
        spy.clear();
        switch (r.way) {
        case 0:
            ClickGadget(selector, COLOUR_OK);
            break;
        case 1:
            Key(KEY_RETURN);
            break;
        case 2:
            ClickGadget(selector, COLOUR_CANCEL);
            break;
        case 3:
            Key(KEY_ESCAPE);
            break;
        case 4:
            SendWindowMessage(selector, 0, ACT_TERMINATE, nullptr);
            break;
        }
        EXPECT_EQ(MessagesOf(r.msg), std::vector<u32>{COLOUR_CODE}) << r.way;
        EXPECT_EQ(spy.size(), 1u) << r.way;
        Turn();
        EXPECT_EQ(FindWindowByName(parent, "Set text colour"), nullptr) << r.way;
        selector = nullptr;
    }
    EXPECT_EQ(rgba.r, 10.0f);  // no slider moved: the colour is as it was
}
