// Preview: the page as the finished program behaves, its gadgets the toolkit's own, the focus
// following the tab order, the editor's commands silent, and nothing of the page changed.
#include "editor/preview.h"
#include "shell/commands.h"
#include "source/gadget_blocks.h"
#include "tests/editor/editor_fixture.h"

class PreviewTest : public PageTest
{
  protected:
    t_Window *Preview() { return FindWindowByName(harness.main_window, "Test (preview)"); }
    // The page as a save would write its gadgets.
    std::string PageText()
    {
        std::vector<t_gadget *> list;
        for (t_gadget *g = gadgets->first_gadget; g->next; g = g->next)
            list.push_back(g);
        std::string text;
        WriteGadgetBlocks(list.data(), (u32)list.size(), &text);
        return text;
    }
    static t_gadget *Current(t_Window *window) { return FindGadgetHandler(window)->current_gadget; }
    // The preview's gadget in the place of the page's.
    t_gadget *Twin(t_Window *preview, const t_gadget *of)
    {
        t_gadget *twin = FindGadgetHandler(preview)->first_gadget;
        for (t_gadget *g = gadgets->first_gadget; g != of && g->next; g = g->next)
            twin = twin->next;
        return twin;
    }
};

TEST_F(PreviewTest, APreviewBehavesAsTheProgramAndLeavesThePageAlone)
{
    t_gadget *label = Make(TOOL_TEXT, 10, 10, 80, 16);
    t_gadget *button = Make(TOOL_BUTTON, 10, 30, 80, 24);
    t_gadget *field = Make(TOOL_STRING, 10, 60, 160, 20);
    t_gadget *box = Make(TOOL_CHECK_BOX, 10, 90, 100, 16);
    t_gadget *slider = Make(TOOL_SLIDER_H, 10, 120, 160, 20);
    // The tab order: the box, the field, the slider, the button.
    box->tab_index = 1;
    field->tab_index = 2;
    slider->tab_index = 3;
    button->tab_index = 4;
    Mark(button);
    std::string before = PageText();
    u32 records = Records();
    page->state_flags &= ~WSF_MODIFIED;

    UserKey(KEY_CTRL('R'), QUAL_CONTROL);
    t_Window *preview = Preview();
    ASSERT_NE(preview, nullptr);
    EXPECT_FALSE(IsPageWindow(preview));
    EXPECT_EQ(preview->user_w, page->user_w);
    EXPECT_EQ(preview->user_h, page->user_h);
    EXPECT_EQ(CURRENT_DISPLAY->window_class->current_window, preview);
    t_gadget *p_box = Twin(preview, box), *p_field = Twin(preview, field);
    t_gadget *p_slider = Twin(preview, slider), *p_button = Twin(preview, button);
    for (t_gadget *g = FindGadgetHandler(preview)->first_gadget; g->next; g = g->next) {
        EXPECT_EQ(g->action_fn, nullptr);
        EXPECT_EQ(g->menu_owner, nullptr);
    }
    EXPECT_STREQ(Twin(preview, label)->name, label->name);

    //  key           qualifiers   then the focus on
    struct {
        const char *name;
        u16 key, qualifiers;
        const char *typed;
        t_gadget *focus;
    } const steps[] = {
        {"the first of the tab order", 0, 0, NULL, p_box},
        {"space toggles the box", ' ', 0, NULL, p_box},
        {"Tab", KEY_TAB, 0, NULL, p_field},
        {"typing", 0, 0, "abc", p_field},
        {"Tab to the slider", KEY_TAB, 0, NULL, p_slider},
        {"Right moves it", KEY_RIGHT, 0, NULL, p_slider},
        {"Tab", KEY_TAB, 0, NULL, p_button},
        {"Tab round to the first", KEY_TAB, 0, NULL, p_box},
        {"Shift+Tab back", KEY_TAB, QUAL_SHIFT, NULL, p_button},
        {"a command's key does nothing here", KEY_CTRL('W'), QUAL_CONTROL, NULL, p_button},
        {"nor Delete", KEY_DELETE, 0, NULL, p_button},
    };
    i32 slider_value = ((T_SLIDER_DATA *)p_slider->class_data)->value;
    for (const auto &s : steps) {
        SCOPED_TRACE(s.name);
        if (s.key)
            UserKey(s.key, s.qualifiers);
        if (s.typed)
            UserType(s.typed);
        EXPECT_EQ(Current(preview), s.focus);
    }
    EXPECT_EQ(p_box->class_data, 1u);
    EXPECT_STREQ(GetStringGadgetText(p_field), "abcString Gadget");
    EXPECT_GT(((T_SLIDER_DATA *)p_slider->class_data)->value, slider_value);
    EXPECT_EQ(FindWindowByName(page, "Save Source as"), nullptr);
    EXPECT_EQ(Count(), 5u);

    UserKey(KEY_ESCAPE, 0);
    EXPECT_EQ(Preview(), nullptr);
    EXPECT_EQ(CURRENT_DISPLAY->window_class->current_window, page);
    EXPECT_EQ(PageText(), before);
    EXPECT_EQ(Records(), records);
    EXPECT_FALSE(Modified());
    EXPECT_TRUE(Marked(button));
    EXPECT_EQ(box->class_data, 0u);
    EXPECT_STREQ(GetStringGadgetText(field), "String Gadget");
    CHECK_PAGE();

    // The close gadget ends it too; a second preview of the page replaces the first.
    Command(CMD_PREVIEW);
    Command(CMD_PREVIEW);
    u32 previews = 0;
    for (t_Window *w = harness.main_window->first_child; w->next; w = w->next)
        previews += IsWindowLive(w) && w->message == PreviewMessage;
    EXPECT_EQ(previews, 1u);
    SendWindowMessage(Preview(), 0, ACT_TERMINATE, NULL);
    EXPECT_EQ(Preview(), nullptr);
}
