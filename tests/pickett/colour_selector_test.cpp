// The colour selector: the RGB and HSI sliders change the caller's colour in place and follow each
// other, Preview decides whether the parent hears of each change, OK and Cancel answer with a
// record that leads back to the caller's user pointer, the swatch's colour is dragged onto colour
// gadgets and windows, and the window stands aligned inside the screen.
#include "pickett_fixture.h"

#include <cmath>

#define COLOUR_CODE 2

enum {
    SLIDER_RED = 1,
    SLIDER_GREEN,
    SLIDER_BLUE,
    SLIDER_HUE,
    SLIDER_SATURATION,
    SLIDER_INTENSITY,
    COLOUR_PREVIEW,
    COLOUR_OK,
    COLOUR_CANCEL
};

static T_RGBA rgba;
static T_HSIA hsia;
static int owner;  // the caller's record, reached through the user pointer

// Every answer's data leads back to the owner while it is delivered.
static void CheckAnswer(u32 item_code, u32 msg, void *data)
{
    (void)msg;
    T_COLOURSEL *sel = (T_COLOURSEL *)data;
    EXPECT_EQ(item_code, (u32)COLOUR_CODE);
    ASSERT_NE(sel, nullptr);
    EXPECT_EQ(sel->user_data, &owner);
    EXPECT_EQ(sel->rgba, &rgba);
    EXPECT_EQ(sel->item_code, (u32)COLOUR_CODE);
}

static i32 Round(float v)
{
    return (i32)std::floor(v + 0.5f);
}

class ColourSelector : public PickettTest
{
  protected:
    t_Window *selector = nullptr;

    void SetUp() override
    {
        PickettTest::SetUp();
        rgba = T_RGBA{10, 20, 30, 255};
        hsia = T_HSIA{};
        spy_check = CheckAnswer;
        MakeParent();
        Open();
    }

    void Open()
    {
        T_COLOURSEL_INIT init = {parent, &rgba, &hsia, 3, COLOUR_CODE, "Set text colour", &owner};
        selector = AddColourSelector(&init);
        ASSERT_NE(selector, nullptr);
        Turn();
    }

    t_gadget *Gadget(u32 code) { return FindGadgetByItemCode(selector, code); }
    i32 Value(u32 code) { return ((T_SLIDER_DATA *)Gadget(code)->class_data)->value; }

    // A key given to a gadget of the selector made current.
    void KeyOn(u32 code, u16 key)
    {
        SetCurrentGadget(selector, Gadget(code));
        Key(key);
    }

    // Each slider shows its channel of the caller's colour, rounded.
    void ExpectSlidersShowTheColour()
    {
        float shown[] = {rgba.r, rgba.g, rgba.b, hsia.h, hsia.s, hsia.i};
        for (u32 code = SLIDER_RED; code <= SLIDER_INTENSITY; code++)
            EXPECT_EQ(Value(code), Round(shown[code - SLIDER_RED])) << "slider " << code;
    }
};

// The slider's value after a key, from its value before.
static i32 AfterKey(u16 key, i32 before)
{
    switch (key) {
    case KEY_HOME:
        return 0;
    case KEY_END:
        return 255;
    case KEY_LEFT:
        return before - 1;
    default:
        return before + 1;
    }
}

TEST_F(ColourSelector, TheRgbAndHsiSlidersFollowEachOther)
{
    struct {
        u32 slider;
        u16 key;
    } steps[] = {
        {SLIDER_RED, KEY_END},          {SLIDER_HUE, KEY_END},
        {SLIDER_INTENSITY, KEY_LEFT},   {SLIDER_SATURATION, KEY_HOME},  // a grey: the hue stays on its slider
        {SLIDER_SATURATION, KEY_RIGHT}, {SLIDER_GREEN, KEY_HOME},
    };
    for (const auto &step : steps) {
        SCOPED_TRACE(testing::Message() << "slider " << step.slider << " key " << step.key);
        T_HSIA hsi_before = hsia;
        i32 value = AfterKey(step.key, Value(step.slider));
        spy.clear();
        KeyOn(step.slider, step.key);
        EXPECT_EQ(Value(step.slider), value);
        EXPECT_EQ(MessagesOf(ACT_REQUESTER_PREVIEW), std::vector<u32>{COLOUR_CODE});
        EXPECT_EQ(rgba.a, 255.0f);
        if (step.slider <= SLIDER_BLUE) {  // the HSI follow the RGB
            T_HSIA expected;
            RGBToHSI(&rgba, &expected);
            EXPECT_FLOAT_EQ(hsia.h, expected.h);
            EXPECT_FLOAT_EQ(hsia.s, expected.s);
            EXPECT_FLOAT_EQ(hsia.i, expected.i);
        } else {  // the RGB follow the HSI, which keep the sliders' values
            float *channel[] = {&hsia.h, &hsia.s, &hsia.i};
            EXPECT_EQ(*channel[step.slider - SLIDER_HUE], (float)value);
            EXPECT_EQ(hsia.h, step.slider == SLIDER_HUE ? (float)value : hsi_before.h);
            T_RGBA expected;
            HSIToRGB(&hsia, &expected);
            EXPECT_FLOAT_EQ(rgba.r, expected.r);
            EXPECT_FLOAT_EQ(rgba.g, expected.g);
            EXPECT_FLOAT_EQ(rgba.b, expected.b);
        }
        ExpectSlidersShowTheColour();
    }
    // A press that leaves the value as it was changes nothing and tells nothing.
    spy.clear();
    T_RGBA before = rgba;
    KeyOn(SLIDER_GREEN, KEY_HOME);
    EXPECT_TRUE(spy.empty());
    EXPECT_EQ(GetConstantTRGBA(&rgba), GetConstantTRGBA(&before));
}

// Preview off: the colour still changes, the parent hears nothing until Preview is on again.
TEST_F(ColourSelector, PreviewDecidesWhetherTheParentHears)
{
    EXPECT_EQ(Gadget(COLOUR_PREVIEW)->class_data, 1u);  // on at opening
    struct {
        const char *what;
        u32 code;
        u16 key;
        u32 previews;
        float red;
    } steps[] = {
        {"preview off", COLOUR_PREVIEW, ' ', 0, 10},
        {"a change unheard", SLIDER_RED, KEY_END, 0, 255},
        {"another", SLIDER_RED, KEY_LEFT, 0, 254},
        {"preview on: the parent catches up", COLOUR_PREVIEW, ' ', 1, 254},
        {"a change heard", SLIDER_RED, KEY_HOME, 1, 0},
    };
    for (const auto &step : steps) {
        SCOPED_TRACE(step.what);
        spy.clear();
        KeyOn(step.code, step.key);
        EXPECT_EQ(MessagesOf(ACT_REQUESTER_PREVIEW).size(), step.previews);
        EXPECT_EQ(rgba.r, step.red);
    }
    ClickGadget(selector, COLOUR_PREVIEW);  // the mouse toggles it as well
    EXPECT_EQ(Gadget(COLOUR_PREVIEW)->class_data, 0u);
}

TEST_F(ColourSelector, OkAndCancelAnswerAndClose)
{
    struct {
        int way;  // 0 OK button, 1 Enter, 2 Cancel button, 3 Escape, 4 close gadget
        u32 msg;
    } rows[] = {{0, ACT_REQUESTER_OK},
                {1, ACT_REQUESTER_OK},
                {2, ACT_REQUESTER_CANCEL},
                {3, ACT_REQUESTER_CANCEL},
                {4, ACT_REQUESTER_CANCEL}};
    for (auto &r : rows) {
        if (!selector)
            Open();
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

// What a drop target window was given with ACT_RECEIVE_OBJECT, copied while it is delivered.
static std::vector<T_RGBA> received;
static u32 ReceiveColour(t_Window *window, u32 item_code, u32 msg, void *data)
{
    if (msg == ACT_RECEIVE_OBJECT && item_code == 1)
        received.push_back(*(T_RGBA *)data);
    return RecordMessage(window, item_code, msg, data);
}

TEST_F(ColourSelector, TheSwatchsColourIsDraggedOntoColourGadgetsAndWindows)
{
    // Below the selector: a window that takes objects, with a swatch, a disabled swatch, a button
    // and a swatch in a combo; and a window that takes none.
    i16 y = (i16)(selector->y + selector->h + 8 - parent->user_y);
    t_Window *swatches = MakeWindow("Swatches", 10, y, 260, 90, WF_BORDER, IDCMP_RECEIVE_OBJECT, parent, ReceiveColour);
    t_Window *deaf = MakeWindow("Deaf", 440, y, 200, 90, WF_BORDER, 0, parent, ReceiveColour);
    T_RGBA flat_rgba = {}, off_rgba = {}, inner_rgba = {};
    T_COLOUR_DATA flat_data = {&flat_rgba, nullptr, 0}, off_data = {&off_rgba, nullptr, 0},
                  inner_data = {&inner_rgba, nullptr, 0};
    t_gadget *flat = MakeGadget(swatches, "Flat", GADGET_TYPE_COLOUR_FLAT, 10, 10, 40, 30, 41, ACT_LMOUSE_UP);
    t_gadget *off =
        MakeGadget(swatches, "Off", GADGET_TYPE_COLOUR_FLAT, 60, 10, 40, 30, 44, ACT_LMOUSE_UP, GADGET_FLAGS_DISABLED);
    t_gadget *button = MakeGadget(swatches, "Button", GADGET_TYPE_BUTTON, 10, 50, 60, 24, 42, ACT_LMOUSE_UP);
    T_GADGETOBJECTINIT ci = {};
    ci.type = GADGET_TYPE_COMBO, ci.x = 120, ci.y = 10, ci.base_width = 100, ci.base_height = 60, ci.item_code = 45;
    T_LIST_DATA *combo = (T_LIST_DATA *)CreateObject(&FindGadgetHandler(swatches)->head, "Combo", &ci);
    SaveSetGadgetList(swatches, &combo->entries);
    t_gadget *inner = MakeGadget(swatches, "Inner", GADGET_TYPE_COLOUR_FLAT, 10, 10, 40, 30, 43, ACT_LMOUSE_UP);
    RestoreGadgetList(swatches);
    flat->data = &flat_data, off->data = &off_data, inner->data = &inner_data;
    Turn();
    T_RGBA *targets[] = {&flat_rgba, &off_rgba, &inner_rgba};
    struct {
        const char *what;
        t_Window *window;  // released in the middle of the gadget, or at the window's inside corner
        t_gadget *gadget;
        T_RGBA *takes;   // the colour record that takes the colour, or null
        u32 dropped;     // the item code reported with ACT_LMOUSE_DROP, 0 none
        size_t offered;  // ACT_RECEIVE_OBJECT given
    } rows[] = {
        {"a swatch", swatches, flat, &flat_rgba, 41, 0},
        {"a swatch in a combo", swatches, inner, &inner_rgba, 43, 0},
        {"a disabled swatch", swatches, off, nullptr, 0, 0},
        {"a button", swatches, button, nullptr, 0, 0},
        {"a window's background", swatches, nullptr, nullptr, 0, 1},
        {"a window that takes no objects", deaf, nullptr, nullptr, 0, 0},
        {"the selector itself", selector, FindGadgetByItemCode(selector, SLIDER_GREEN), nullptr, 0, 0},
    };
    i16 sx = selector->user_x + SELECTOR_PAD + 20, sy = selector->user_y + SELECTOR_PAD + 10;
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        for (T_RGBA *t : targets)
            *t = T_RGBA{};
        received.clear(), recorded.clear(), spy.clear();
        i16 x = row.gadget ? row.gadget->screen_x + row.gadget->base_width / 2 : row.window->user_x + 150;
        i16 y = row.gadget ? row.gadget->screen_y + row.gadget->base_height / 2 : row.window->user_y + 70;
        Press(sx, sy);
        Move(x, y);
        EXPECT_EQ(HeadlessCursor(), MOUSE_IMAGE_HAND);
        Release(x, y);
        EXPECT_EQ(HeadlessCursor(), MOUSE_IMAGE_ARROW);
        for (T_RGBA *t : targets)
            EXPECT_EQ(GetConstantTRGBA(t), t == row.takes ? 0x1e140au : 0u);
        EXPECT_EQ(CountRecorded(ACT_LMOUSE_DROP), row.dropped ? 1u : 0u);
        if (row.dropped) {
            EXPECT_EQ(recorded.back().item_code, row.dropped);
        }
        ASSERT_EQ(received.size(), row.offered);
        if (row.offered) {
            EXPECT_EQ(GetConstantTRGBA(&received[0]), 0x1e140au);
        }
        EXPECT_TRUE(spy.empty());  // the selector's own colour didn't change
        EXPECT_EQ(GetConstantTRGBA(&rgba), 0x1e140au);
        HeadlessAdvance(1000);
    }
}

// The window stays inside the screen wherever its parent stands, and without one.
TEST_F(ColourSelector, TheWindowStaysInsideTheScreen)
{
    struct {
        i16 x, y, w, h;  // the parent's frame; w 0: no parent
    } parents[] = {{40, 20, 700, 540}, {0, 0, 120, 80}, {700, 520, 100, 80}, {-50, 400, 300, 300}, {0, 0, 0, 0}};
    for (const auto &p : parents) {
        SCOPED_TRACE(testing::Message() << p.x << "," << p.y << " " << p.w << "x" << p.h);
        RemoveWindow(selector);
        Turn();
        T_RPOS frame = {p.x, p.y, p.w, p.h};
        if (p.w)
            ResizeWindow(parent, &frame);
        T_COLOURSEL_INIT init = {p.w ? parent : nullptr, &rgba, &hsia, 3, COLOUR_CODE, "Set text colour", &owner};
        selector = AddColourSelector(&init);
        ASSERT_NE(selector, nullptr);
        Turn();
        EXPECT_GE(selector->x, 0);
        EXPECT_GE(selector->y, 0);
        EXPECT_LE(selector->x + selector->w, CURRENT_DISPLAY->width);
        EXPECT_LE(selector->y + selector->h, CURRENT_DISPLAY->height);
    }
}
