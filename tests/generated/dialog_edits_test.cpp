// A page edited through the property dialogs: the file it is saved to is a golden file
// (regenerated with QF_REGENERATE_GOLDEN=1), and that file, compiled into a program, opens a window
// with the flags, colours, actions, icon, window flags and messages that the dialogs set.
#include "editor/editor_fixture.h"
#include "generated/generated_page.h"
#include "properties/action_editor.h"
#include "properties/gadget_properties.h"
#include "properties/message_control.h"
#include "properties/window_properties.h"
#include "source/source_fixture.h"
#include "source/source_writer.h"

namespace
{

#define ITEM_DISABLED 1
#define ITEM_SOLID 6
#define ITEM_BOLD 15
#define ITEM_ICON 20
#define ITEM_ALTF4 16
#define ITEM_FULLSCREEN 5
#define ROW_KEY 4     // idcmp_names: IDCMP_KEY
#define ROW_RESIZE 6  // IDCMP_WINDOW_RESIZE

class DialogEditedPage : public PageTest
{
  protected:
    // A control of a dialog reports as a person's click leaves it: a box toggled first.
    static void Report(t_Window *dialog, u32 item_code, int nth = 0)
    {
        t_gadget *control = FindGadgetByItemCode(dialog, item_code);
        for (; nth > 0 && control; nth--)
            for (control = control->next; control && control->next && control->live_item_code != item_code;)
                control = control->next;
        ASSERT_TRUE(control && control->next);
        if (control->type == GADGET_TYPE_CHECK_BOX)
            control->class_data = !control->class_data;
        SendWindowMessage(dialog, item_code, ACT_LMOUSE_UP, control);
    }
    t_Window *Properties(t_gadget *gadget)
    {
        gadgets->current_gadget = gadget;  // as the double click that opens it leaves it
        OpenGadgetProperties(page, gadget);
        return FindGadgetPropertyWindow(page, gadget);
    }
};

TEST_F(DialogEditedPage, CompilesIntoTheWindowTheDialogsSet)
{
    t_gadget *button = Make(TOOL_BUTTON, 20, 20, 100, 24);
    t_gadget *slider = Make(TOOL_SLIDER_H, 20, 60, 160, 20);
    t_gadget *check = Make(TOOL_CHECK_BOX, 20, 100, 140, 20);
    t_gadget *swatch = Make(TOOL_FLAT_COLOUR, 200, 20, 40, 40);

    t_Window *dialog = Properties(button);
    T_GADGET_PROPERTIES *r = (T_GADGET_PROPERTIES *)dialog->user_data;
    snprintf((char *)button->user_data, 256, "Log in");
    snprintf(r->item_code_text, sizeof(r->item_code_text), "42");
    Report(dialog, PROP_ITEM_ITEM_CODE);
    Report(dialog, ITEM_DISABLED);
    Report(dialog, ITEM_BOLD);
    r->text_rgba = T_RGBA{200, 16, 32, 0};
    SendWindowMessage(dialog, PROP_COLOUR_TEXT, ACT_REQUESTER_OK, NULL);
    T_RGBA back = {240, 240, 200, 0};
    DropColourOnGadget(dialog, FindGadgetByItemCode(dialog, PROP_ITEM_BACK_COLOUR), &back);
    Report(dialog, PROP_ITEM_ACTIONS);
    t_Window *editor = FindWindowByName(page, "Action Edtior");
    ASSERT_NE(editor, nullptr);
    Report(editor, 3);  // Left Down
    Report(editor, 9);  // Right Up
    Report(editor, ACTION_ITEM_OK);
    SendWindowMessage(dialog, 0, ACT_TERMINATE, NULL);

    dialog = Properties(slider);
    r = (T_GADGET_PROPERTIES *)dialog->user_data;
    snprintf(r->slider_min_text, 32, "-5");
    snprintf(r->slider_max_text, 32, "50");
    snprintf(r->slider_step_text, 32, "5");
    Report(dialog, ITEM_SOLID);
    SendWindowMessage(dialog, 0, ACT_TERMINATE, NULL);

    dialog = Properties(check);
    snprintf(((T_GADGET_PROPERTIES *)dialog->user_data)->hover_edit, 256, "Remember me");
    SendWindowMessage(dialog, 0, ACT_TERMINATE, NULL);

    dialog = Properties(swatch);
    Report(dialog, ITEM_ICON);
    t_gadget *bar = FindGadgetByItemCode(dialog, PROP_ITEM_ICON)->next;
    ((T_SCROLLBAR_DATA *)bar->class_data)->init_val = 3;
    SendWindowMessage(dialog, PROP_ITEM_ICON, ACT_LMOUSE_UP, bar);
    SendWindowMessage(dialog, 0, ACT_TERMINATE, NULL);

    t_Window *window_dialog = OpenWindowProperties(page);
    Report(window_dialog, WINPROP_ITEM_BORDER);
    Report(window_dialog, ITEM_ALTF4);
    Report(window_dialog, ITEM_FULLSCREEN);
    Report(window_dialog, WINPROP_ITEM_SET_IDCMP);
    t_Window *messages = FindWindowByName(page, "Window Message control");
    ASSERT_NE(messages, nullptr);
    Report(messages, ROW_KEY + MSG_ITEM_FIRST_ROW);
    Report(messages, ROW_RESIZE + MSG_ITEM_FIRST_ROW);
    SendWindowMessage(messages, 0, ACT_TERMINATE, NULL);
    SendWindowMessage(window_dialog, 0, ACT_TERMINATE, NULL);
    UserTurns(1);

    EXPECT_EQ(button->item_code, 42u);
    EXPECT_EQ(button->action, (u32)(ACT_LMOUSE_UP | ACT_LMOUSE_DBL | ACT_LMOUSE_DOWN | ACT_RMOUSE_UP));
    EXPECT_EQ(page->idcmp, (u32)(IDCMP_TERMINATE | IDCMP_KEY | IDCMP_WINDOW_RESIZE));
    EXPECT_EQ(page->flags & (WF_BORDER | WF_ALTF4 | WF_OPEN_FULLSCREEN), (u32)(WF_ALTF4 | WF_OPEN_FULLSCREEN));

    editor_config->flags = CONFIG_OPTIMISE;
    std::string path = std::string(harness.root) + "/dialog_edits.cpp";
    SavePage(page, path.c_str());
    ExpectGoldenFile(ReadWholeFile(path), "dialog_edits.cpp", 1);
    ExpectSameWindow(page, std::string(QF_RUN_DIALOG_EDITS) + " '" + harness.root + "'");
}

}  // namespace
