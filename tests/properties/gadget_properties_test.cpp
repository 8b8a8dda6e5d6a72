// The gadget properties dialog: its rows for each type, what each control writes to the gadget
// and when, the colour selectors' answers, the page-modified mark, and how it ends.
#include "tests/properties/properties_fixture.h"

#include "pickett.h"
#include "source/name_tables.h"

#define ITEM_DISABLED 1
#define ITEM_HIDE 2
#define ITEM_CURSOR_BOX 9
#define ITEM_AUTO_SIZE 10
#define ITEM_ICON_BOX 20

// The rows a type shows: the labels of its fields and the texts of its flag boxes.
TEST_F(PropertiesTest, RowsFollowTheGadgetsType)
{
    const std::vector<std::string> common = {"Disabled",  "Hide gadget",        "Report drag",        "Modify cursor",
                                             "No border", "Display from right", "Display from bottom"};
    struct {
        u16 tool;
        std::vector<std::string> labels;
        std::vector<std::string> extra_boxes;  // beside the seven every type with rows has
        int no_boxes = 0;
    } const cases[] = {
        {TOOL_BUTTON,
         {"Gadget name", "Gadget item code", "Hover text", "Text colour", "background colour"},
         {"Solid background", "Auto size", "Left justify", "Hilight", "Bold", "Italics", "Push button", "Depressed",
          "Icon"}},
        {TOOL_SLIDER_H,
         {"Slider min", "Slider max", "Slider step", "Gadget item code", "Hover text", "Text colour",
          "background colour"},
         {"Solid background", "Horizontal", "Vertical", "Depressed"}},
        {TOOL_CHECK_BOX,
         {"Gadget name", "Gadget item code", "Hover text", "Text colour", "background colour"},
         {"Auto size", "Left justify", "Bold", "Italics"}},
        {TOOL_FLAT_COLOUR, {"Gadget item code", "Hover text", "Text colour", "background colour"}, {"Icon"}},
        {TOOL_TEXTURE, {"Gadget item code", "Hover text", "Text colour", "background colour"}, {}, 1},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.tool);
        t_gadget *g = Make(c.tool, 20, 20, 80, 24);
        OpenGadgetProperties(page, g);
        t_Window *dialog = Dialog(TXT_GADGET_PROPERTIES);
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->flags, 0x274u);
        EXPECT_EQ(dialog->title_suffix, g->name);
        EXPECT_EQ(Texts(dialog, GADGET_TYPE_TEXT), c.labels);
        std::vector<std::string> boxes = Texts(dialog, GADGET_TYPE_CHECK_BOX), expected;
        if (!c.no_boxes)
            for (u32 bit = 1; bit; bit <<= 1)
                for (const T_VAL2STRING *row = gadget_flag_labels; row->text[0]; row++)
                    if (row->value == bit &&
                        (std::find(common.begin(), common.end(), row->text) != common.end() ||
                         std::find(c.extra_boxes.begin(), c.extra_boxes.end(), row->text) != c.extra_boxes.end()))
                        expected.push_back(row->text);
        EXPECT_EQ(boxes, expected);
        ASSERT_NE(Control(dialog, PROP_ITEM_ACTIONS), nullptr);
        EXPECT_STREQ(Control(dialog, PROP_ITEM_ACTIONS)->name, TXT_GADGET_ACTIONS);
        // A box's item code is its bit's index plus one, and it starts as the gadget's flag.
        if (t_gadget *disabled = Control(dialog, ITEM_DISABLED)) {
            EXPECT_STREQ(disabled->name, "Disabled");
        }
        SendWindowMessage(dialog, 0, ACT_TERMINATE, NULL);
        UserTurns(1);
        CHECK_PAGE();
    }
}

// As a person: rename, item code 42, Disabled; Escape closes and applies what the fields hold.
TEST_F(PropertiesTest, APersonRenamesAButtonAndEscapeApplies)
{
    t_gadget *button = Make(TOOL_BUTTON, 20, 20, 100, 24);
    page->state_flags &= ~WSF_MODIFIED;
    t_Window *dialog = OpenProperties(button);
    ASSERT_NE(dialog, nullptr);
    EXPECT_FALSE(Modified());  // opening changes nothing
    TypeInto(Control(dialog, PROP_ITEM_TEXT), "Log in");
    EXPECT_STREQ(button->name, "Log in");  // each key is on the page at once
    TypeInto(Control(dialog, PROP_ITEM_ITEM_CODE), "42");
    ClickControl(Control(dialog, ITEM_DISABLED));
    EXPECT_TRUE(button->flags & GADGET_FLAGS_DISABLED);
    EXPECT_TRUE(button->live_flags & GADGET_FLAGS_DISABLED);
    TypeInto(Control(dialog, PROP_ITEM_TEXT, 1), "Sends the name");
    UserKey(KEY_ESCAPE, 0);
    EXPECT_EQ(Dialog(TXT_GADGET_PROPERTIES), nullptr);
    EXPECT_EQ(button->item_code, 42u);
    EXPECT_STREQ(button->hover_text, "Sends the name");
    EXPECT_TRUE(Modified());
    CHECK_PAGE();
    // The saved file carries each change.
    std::string path = std::string(harness.root) + "/login.cpp";
    SavePage(page, path.c_str());
    char *text = (char *)LoadFile(path.c_str());
    ASSERT_NE(text, nullptr);
    std::string saved(text, GetLoadFileSize());
    FreeMem(text, GetLoadFileSize());
    for (const char *line : {"\tgad=CreateGadget(\"Log in\");\n", "\tgadinit.item_code=0x2a;\n",
                             "\tgadinit.flags=GADGET_FLAGS_DISABLED;\n", "\tgadinit.hover_text=\"Sends the name\";\n"})
        EXPECT_NE(saved.find(line), std::string::npos) << line;
}

// Texts at their limits and no texts: a page name of 127 characters, a hover text of 255 from a
// file, an empty page name; each is kept and saved, and nothing breaks.
TEST_F(PropertiesTest, TextsAtTheirLimits)
{
    t_gadget *button = Make(TOOL_BUTTON, 20, 20, 100, 24);
    std::string hover(255, 'x');
    SetGadgetHover(button, hover.c_str());
    OpenGadgetProperties(page, button);
    SendWindowMessage(Dialog(TXT_GADGET_PROPERTIES), 0, ACT_TERMINATE, NULL);
    EXPECT_EQ(std::string(button->hover_text), hover);
    struct {
        std::string name;
    } const cases[] = {{std::string(127, 'N')}, {""}};
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name.size());
        t_Window *dialog = OpenWindowProperties(page);
        TypeInto(Control(dialog, WINPROP_ITEM_NAME), c.name.empty() ? "x" : c.name.c_str());
        if (c.name.empty())
            UserKey(KEY_BACKSPACE, 0);
        UserKey(KEY_RETURN, 0);
        EXPECT_EQ(std::string(page->name), c.name);
        SendWindowMessage(dialog, 0, ACT_TERMINATE, NULL);
        std::string path = std::string(harness.root) + "/limits.cpp";
        SavePage(page, path.c_str());
        char *text = (char *)LoadFile(path.c_str());
        ASSERT_NE(text, nullptr);
        std::string saved(text, GetLoadFileSize());
        FreeMem(text, GetLoadFileSize());
        EXPECT_NE(saved.find("win=ICreateWindow(\"" + c.name + "\");"), std::string::npos);
    }
}

// Text colour and background colour through the selector's answers; Cancel goes back to the
// colour of the dialog's opening, also after an earlier OK, and no colour marks the page.
TEST_F(PropertiesTest, ColourAnswersAndCancelGoBackToTheOpening)
{
    t_gadget *button = Make(TOOL_BUTTON, 20, 20, 100, 24);
    button->text_colour = 0x102030;
    button->back_colour = 0x405060;
    page->state_flags &= ~WSF_MODIFIED;
    OpenGadgetProperties(page, button);
    t_Window *dialog = Dialog(TXT_GADGET_PROPERTIES);
    T_GADGET_PROPERTIES *r = (T_GADGET_PROPERTIES *)dialog->user_data;
    EXPECT_EQ(r->text_rgba.r, 0x30);
    EXPECT_EQ(r->text_rgba.b, 0x10);
    struct {
        u32 item;    // the swatch
        u32 answer;  // what the selector answers
        T_RGBA set;  // the working colour before the answer
        u32 text_after, back_after;
    } const steps[] = {
        {PROP_ITEM_TEXT_COLOUR, ACT_REQUESTER_PREVIEW, {255, 0, 0, 0}, 0x0000ff, 0x405060},
        {PROP_ITEM_TEXT_COLOUR, ACT_REQUESTER_OK, {0, 255, 0, 0}, 0x00ff00, 0x405060},
        {PROP_ITEM_TEXT_COLOUR, ACT_REQUESTER_CANCEL, {0, 0, 255, 0}, 0x102030, 0x405060},
        {PROP_ITEM_BACK_COLOUR, ACT_REQUESTER_OK, {1, 2, 3, 0}, 0x102030, 0x030201},
        {PROP_ITEM_BACK_COLOUR, ACT_REQUESTER_CANCEL, {9, 9, 9, 0}, 0x102030, 0x405060},
    };
    for (const auto &s : steps) {
        SCOPED_TRACE(s.answer);
        int index = s.item == PROP_ITEM_BACK_COLOUR;
        ClickControl(Control(dialog, s.item));
        t_Window *selector = FindWindowByName(dialog, index ? TXT_SET_BACK_COLOUR : TXT_SET_TEXT_COLOUR);
        ASSERT_NE(selector, nullptr);
        EXPECT_EQ(selector->title_suffix, button->name);
        T_COLOURSEL *sel = (T_COLOURSEL *)selector->user_data;
        EXPECT_EQ(sel->user_data, r);
        *sel->rgba = s.set;
        SendWindowMessage(dialog, (u32)index + 1, s.answer, sel);
        EXPECT_EQ(button->text_colour, s.text_after);
        EXPECT_EQ(button->back_colour, s.back_after);
        RemoveWindow(selector);
        UserTurns(1);
    }
    // A colour dropped on a swatch is the gadget's at once.
    T_RGBA dropped = {10, 20, 30, 0};
    DropColourOnGadget(dialog, Control(dialog, PROP_ITEM_BACK_COLOUR), &dropped);
    EXPECT_EQ(button->back_colour, 0x1e140au);
    EXPECT_FALSE(Modified());
    SendWindowMessage(dialog, 0, ACT_TERMINATE, NULL);
    EXPECT_FALSE(Modified());
}

// Which control marks the page modified: flags, the fields' reports; not colours, not the button
// to the action editor, not opening and closing.
TEST_F(PropertiesTest, TheModifiedMarkFollowsTheControl)
{
    struct {
        const char *what;
        u32 item;
        u32 msg;
        int marks;
    } const cases[] = {
        {"a flag", ITEM_HIDE, ACT_LMOUSE_UP, 1},
        {"the cursor field", PROP_ITEM_CURSOR, ACT_LMOUSE_UP, 1},
        {"the item code field", PROP_ITEM_ITEM_CODE, ACT_LMOUSE_UP, 1},
        {"the text field", PROP_ITEM_TEXT, ACT_LMOUSE_UP, 1},
        {"a colour dropped", PROP_ITEM_TEXT_COLOUR, ACT_LMOUSE_DROP, 0},
        {"the actions button", PROP_ITEM_ACTIONS, ACT_LMOUSE_UP, 0},
        {"an unknown code", 999, ACT_LMOUSE_UP, 0},
        {"nothing", 0, 0, 0},
    };
    t_gadget *button = Make(TOOL_BUTTON, 20, 20, 100, 24);
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        page->state_flags &= ~WSF_MODIFIED;
        OpenGadgetProperties(page, button);
        t_Window *dialog = Dialog(TXT_GADGET_PROPERTIES);
        if (c.item)
            SendWindowMessage(dialog, c.item, c.msg, Control(dialog, c.item));
        SendWindowMessage(dialog, 0, ACT_TERMINATE, NULL);
        UserTurns(1);
        EXPECT_EQ(Modified(), c.marks);
        for (t_Window *editor; (editor = Dialog(TXT_ACTION_EDITOR));)
            SendWindowMessage(editor, 0, ACT_TERMINATE, NULL);
    }
}

// "Modify cursor" greys its field and keeps the number, which the close still writes; "Icon"
// chooses the icon in the bank with the scroll bar; "Auto size" fits the gadget to its text.
TEST_F(PropertiesTest, FlagRowsBringTheirControlsAlong)
{
    t_gadget *button = Make(TOOL_BUTTON, 20, 20, 200, 40);
    OpenGadgetProperties(page, button);
    t_Window *dialog = Dialog(TXT_GADGET_PROPERTIES);
    t_gadget *cursor_box = Control(dialog, ITEM_CURSOR_BOX), *field = Control(dialog, PROP_ITEM_CURSOR);
    ASSERT_TRUE(cursor_box && field);
    EXPECT_EQ(cursor_box->next, field);
    EXPECT_TRUE(field->live_flags & GADGET_FLAGS_DISABLED);
    ClickControl(cursor_box);
    EXPECT_FALSE(field->live_flags & GADGET_FLAGS_DISABLED);
    TypeInto(field, "6");
    ClickControl(cursor_box);
    EXPECT_TRUE(field->live_flags & GADGET_FLAGS_DISABLED);
    EXPECT_FALSE(button->flags & GADGET_FLAGS_CURSOR);

    t_gadget *icon_box = Control(dialog, ITEM_ICON_BOX), *bar = Control(dialog, PROP_ITEM_ICON, 1);
    ASSERT_TRUE(icon_box && bar);
    EXPECT_EQ(bar->type, GADGET_TYPE_SCROLLBAR);
    EXPECT_STREQ(Control(dialog, PROP_ITEM_ICON)->name, button->icon_bank->name);
    EXPECT_TRUE(bar->live_flags & GADGET_FLAGS_DISABLED);
    ClickControl(icon_box);
    EXPECT_FALSE(bar->live_flags & GADGET_FLAGS_DISABLED);
    ((T_SCROLLBAR_DATA *)bar->class_data)->init_val = 3;
    SendWindowMessage(dialog, PROP_ITEM_ICON, ACT_LMOUSE_UP, bar);
    EXPECT_EQ(button->icon, 3);

    ClickControl(Control(dialog, ITEM_AUTO_SIZE));
    EXPECT_LT(button->base_width, 200);
    UserKey(KEY_ESCAPE, 0);
    EXPECT_EQ(button->cursor, 6);
    CHECK_PAGE();
}

// One dialog per gadget; the hover text: untouched it stays as it was (a long one too), emptied it
// becomes an empty text; a slider's values and bad numbers are taken as they stand.
TEST_F(PropertiesTest, OneDialogPerGadgetAndTheCloseStep)
{
    t_gadget *a = Make(TOOL_BUTTON, 20, 20, 100, 24), *slider = Make(TOOL_SLIDER_H, 20, 80, 160, 20);
    std::string long_hover(300, 'h');
    SetGadgetHover(a, long_hover.c_str());
    OpenGadgetProperties(page, a);
    OpenGadgetProperties(page, a);
    EXPECT_EQ(Dialogs(TXT_GADGET_PROPERTIES), 1);
    OpenGadgetProperties(page, slider);
    EXPECT_EQ(Dialogs(TXT_GADGET_PROPERTIES), 2);
    t_Window *slider_dialog = Dialog(TXT_GADGET_PROPERTIES);
    T_GADGET_PROPERTIES *r = (T_GADGET_PROPERTIES *)slider_dialog->user_data;
    EXPECT_EQ(Control(slider_dialog, PROP_ITEM_SLIDER_MIN)->live_action, 112u);
    snprintf(r->slider_min_text, sizeof(r->slider_min_text), "50");
    snprintf(r->slider_max_text, sizeof(r->slider_max_text), "-7x");
    snprintf(r->slider_step_text, sizeof(r->slider_step_text), "step");
    snprintf(r->item_code_text, sizeof(r->item_code_text), "%d", (int)a->item_code);  // a duplicate
    SendWindowMessage(slider_dialog, 0, ACT_TERMINATE, NULL);
    T_SLIDER_DATA *values = (T_SLIDER_DATA *)slider->class_data;
    EXPECT_EQ(values->min, 50);
    EXPECT_EQ(values->max, -7);
    EXPECT_EQ(values->step, 0);
    EXPECT_EQ(slider->item_code, a->item_code);

    t_Window *dialog = Dialog(TXT_GADGET_PROPERTIES);
    SendWindowMessage(dialog, 0, ACT_TERMINATE, NULL);
    EXPECT_EQ(std::string(a->hover_text), long_hover);
    OpenGadgetProperties(page, a);
    dialog = Dialog(TXT_GADGET_PROPERTIES);
    ((T_GADGET_PROPERTIES *)dialog->user_data)->hover_edit[0] = 0;
    SendWindowMessage(dialog, 0, ACT_TERMINATE, NULL);
    ASSERT_NE(a->hover_text, nullptr);
    EXPECT_STREQ(a->hover_text, "");
}

// Deleting a gadget ends its dialogs, action editors and selectors without applying anything,
// and frees their records; opening and closing a thousand times leaks nothing.
TEST_F(PropertiesTest, DeletingAGadgetEndsItsDialogsAndNothingLeaks)
{
    t_gadget *button = Make(TOOL_BUTTON, 20, 20, 100, 24);
    auto open_and_close_each = [&]() {
        OpenGadgetProperties(page, button);
        t_Window *dialog = Dialog(TXT_GADGET_PROPERTIES);
        SendWindowMessage(dialog, PROP_ITEM_TEXT_COLOUR, ACT_LMOUSE_UP, NULL);
        SendWindowMessage(dialog, 0, ACT_TERMINATE, NULL);
        OpenActionEditor(page);
        SendWindowMessage(Dialog(TXT_ACTION_EDITOR), 0, ACT_TERMINATE, NULL);
        OpenWindowProperties(page);
        SendWindowMessage(Dialog(TXT_WINDOW_PROPERTIES), 0, ACT_TERMINATE, NULL);
        OpenMessageControl(page);
        SendWindowMessage(Dialog(TXT_MESSAGE_CONTROL), 0, ACT_TERMINATE, NULL);
        OpenSourceFileInfo(page);
        SendWindowMessage(Dialog(TXT_SOURCE_INFO), 0, ACT_TERMINATE, NULL);
        UserTurns(1);
    };
    open_and_close_each();  // what the toolkit makes once (caches) is made before counting
    i64 before = Blocks();
    for (int i = 0; i < 1000; i++)
        open_and_close_each();
    EXPECT_EQ(Blocks(), before);

    OpenGadgetProperties(page, button);
    t_Window *dialog = Dialog(TXT_GADGET_PROPERTIES);
    snprintf(((T_GADGET_PROPERTIES *)dialog->user_data)->item_code_text, 32, "77");
    SendWindowMessage(dialog, PROP_ITEM_BACK_COLOUR, ACT_LMOUSE_UP, NULL);
    EXPECT_NE(FindWindowByName(dialog, TXT_SET_BACK_COLOUR), nullptr);
    OpenActionEditor(page);
    OpenActionEditor(page);
    EXPECT_EQ(FindGadgetPropertyWindow(page, button) != nullptr, true);
    before = Blocks();
    DeleteMarkedGadgets(page);
    EXPECT_EQ(FindGadgetPropertyWindow(page, button), nullptr);
    EXPECT_EQ(Dialogs(TXT_GADGET_PROPERTIES) + Dialogs(TXT_ACTION_EDITOR), 0);
    EXPECT_LT(Blocks(), before);
    EXPECT_EQ(_OstrandBase->size_mismatches, 0u);
    CHECK_PAGE();
}

// Undoing the creation of a gadget ends its dialog as deleting it does.
TEST_F(PropertiesTest, UndoingTheCreationEndsTheDialog)
{
    SetActiveToolBarEntry(Toolbar(), TOOL_BUTTON);
    Drag(AbsX(40), AbsY(40), AbsX(140), AbsY(70));
    ASSERT_EQ(Count(), 1u);
    t_gadget *made = gadgets->first_gadget;
    OpenGadgetProperties(page, made);
    OpenActionEditor(page);
    EXPECT_EQ(Dialogs(TXT_GADGET_PROPERTIES) + Dialogs(TXT_ACTION_EDITOR), 2);
    Command(COMMAND_UNDO);
    EXPECT_EQ(Count(), 0u);
    EXPECT_EQ(Dialogs(TXT_GADGET_PROPERTIES) + Dialogs(TXT_ACTION_EDITOR), 0);
    UserTurns(2);
    CHECK_PAGE();
}
