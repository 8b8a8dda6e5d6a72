// "Choose Font..." on a page: the selector for the current gadget, its preview, and what OK and
// Cancel leave on the gadget and the page.
#include "pagewin_fixture.h"

namespace
{

#define FOLDER_FONT "Serif.fnt"  // the first entry of the selector: the fonts folder comes first

struct FONT_ROW {
    const char *what;
    const char *initial;  // the gadget's font before, null: none
    int previews;         // Down keys, each a preview of the next entry
    u16 answer;           // KEY_RETURN (OK), KEY_ESCAPE (Cancel), 0: the selector stays up
    const char *after;    // the gadget's font afterwards, null: none
    int modified;
};

// clang-format off
const FONT_ROW font_rows[] = {
    // what                               initial           previews answer       after             modified
    {"preview, then cancel, had none", NULL,             1, KEY_ESCAPE, NULL,             0},
    {"preview, then cancel, had one",  "DejaVuSans.ttf", 1, KEY_ESCAPE, "DejaVuSans.ttf", 0},
    {"two previews, then cancel",      "DejaVuSans.ttf", 2, KEY_ESCAPE, "DejaVuSans.ttf", 0},
    {"cancel without a preview",       "DejaVuSans.ttf", 0, KEY_ESCAPE, "DejaVuSans.ttf", 0},
    {"a preview alone",                NULL,             1, 0,          FOLDER_FONT,      0},
    {"preview, then OK",               NULL,             1, KEY_RETURN, FOLDER_FONT,      1},
    {"OK without a choice",            "DejaVuSans.ttf", 0, KEY_RETURN, "DejaVuSans.ttf", 1},
};
// clang-format on

class FontChoice : public PageWindowTest
{
  protected:
    void SetUp() override
    {
        PageWindowTest::SetUp();
        std::string fonts = MakePathFromSystem("System\\Fonts");
        std::filesystem::create_directories(fonts);
        std::filesystem::copy_file("/usr/share/fonts/truetype/dejavu/DejaVuSerif.ttf", fonts + "/" FOLDER_FONT);
    }
};

TEST_F(FontChoice, PreviewOkAndCancel)
{
    for (const FONT_ROW &row : font_rows) {
        SCOPED_TRACE(row.what);
        t_gadget *gadget = Make(TOOL_BUTTON, 20, 20, 80, 24);
        ASSERT_EQ(GetCurrentGadget(page), gadget);
        if (row.initial)
            gadget->font = OpenResource(&_FontBase->fonts, row.initial, RESOURCE_TYPE_FONT, 0);
        ASSERT_EQ(gadget->font != NULL, row.initial != NULL);
        page->state_flags &= ~WSF_MODIFIED;

        SendWindowMessage(page, PAGE_MENU_CHOOSE_FONT, ACT_MENU_PICK, NULL);
        t_Window *selector = FindWindowByName(page, TXT_FONT_TITLE);
        ASSERT_NE(selector, nullptr);
        const T_FONTSEL *sel = (const T_FONTSEL *)selector->user_data;
        EXPECT_EQ(sel->user_data, gadget);
        EXPECT_STREQ(sel->initial_font ? sel->initial_font : "", row.initial ? row.initial : "");
        for (int i = 0; i < row.previews; i++) {
            UserKey(KEY_DOWN, 0);
            ASSERT_NE(gadget->font, nullptr);
            EXPECT_STREQ(gadget->font->name, sel->chosen);
        }
        EXPECT_FALSE(page->state_flags & WSF_MODIFIED);  // a preview leaves the page clean
        if (row.answer)
            UserKey(row.answer, 0);
        EXPECT_EQ(FindWindowByName(page, TXT_FONT_TITLE) != NULL, row.answer == 0);

        if (row.after) {
            ASSERT_NE(gadget->font, nullptr);
            EXPECT_STREQ(gadget->font->name, row.after);
        } else {
            EXPECT_EQ(gadget->font, nullptr);
        }
        EXPECT_EQ((page->state_flags & WSF_MODIFIED) != 0, (bool)row.modified);
        if (t_Window *still = FindWindowByName(page, TXT_FONT_TITLE)) {
            RemoveWindow(still);
            UserTurns(1);
        }
    }
}

}  // namespace
