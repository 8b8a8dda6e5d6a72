// The font selector: its record, the fonts it lists, its preview, OK and Cancel answers, and the
// font loaded from it, which the caller finds again as a font resource by its name.
#include <filesystem>

#include "pickett_fixture.h"

#define FONT_CODE 2

enum { FONT_LIST = 1, FONT_OK, FONT_CANCEL };

// What the parent saw of the selector while an answer was being delivered.
struct FONT_ANSWER {
    u32 msg, item_code;
    bool data_is_window;
    std::string chosen, initial_font, loaded;  // loaded: LoadFontFromSelector's font's name
    void *user_data;
};
static std::vector<FONT_ANSWER> font_answers;
static t_Window *font_window;

static u32 FontParentMessage(t_Window *window, u32 item_code, u32 msg, void *data)
{
    (void)window;
    if (msg < ACT_REQUESTER_OK || msg > ACT_REQUESTER_PREVIEW)
        return 0;
    T_FONTSEL *sel = (T_FONTSEL *)((t_Window *)data)->user_data;
    T_FONT *font = LoadFontFromSelector(data, 0);
    font_answers.push_back({msg, item_code, data == font_window, sel->chosen,
                            sel->initial_font ? sel->initial_font : "(null)", font ? font->name : "", sel->user_data});
    FreeFont(font);
    return 0;
}

class FontSelector : public PickettTest
{
  protected:
    std::string fonts;
    int user_thing = 0;

    void SetUp() override
    {
        PickettTest::SetUp();
        fonts = MakePathFromSystem("System\\Fonts");
        std::filesystem::create_directories(fonts);
        std::filesystem::copy_file(FONT_MACHINE_FOLDER "/DejaVuSerif.ttf", fonts + "/Serif.fnt");
        MakeFiles({"../System/Fonts/readme.txt"});
        MakeParent();
        parent->message = FontParentMessage;
        font_answers.clear();
    }

    // As a page opens it: patterns in a local list of 16-byte nodes, emptied at once.
    t_Window *Open(const char *initial_font)
    {
        t_List patterns;
        InitList(&patterns, "font patterns");
        NewTail(&patterns, 16, "*.fnt");
        NewTail(&patterns, 16, "*.*");
        T_FONTSEL_INIT init = {parent, FONT_CODE, "Choose font", fonts.c_str(), "*.*",
                               "Open", &patterns, initial_font,  &user_thing};
        font_window = NewFontSelector(&init);
        EmptyList(&patterns, 16);
        Turn();
        return font_window;
    }

    T_FONTSEL *Record() { return (T_FONTSEL *)font_window->user_data; }
    t_gadget *List() { return FindGadgetByItemCode(font_window, FONT_LIST); }

    void ClickEntry(const char *text, bool twice = false)
    {
        i16 x, y;
        int index = ListIndexOf(List(), text);
        ASSERT_GE(index, 0) << text;
        T_LIST_DATA *data = (T_LIST_DATA *)List()->class_data;
        data->top = index;  // scrolled to it, as a person would
        ListRowPoint(List(), index, &x, &y);
        if (twice)
            DoubleClick(x, y);
        else
            Click(x, y);
    }
};

TEST_F(FontSelector, AClickPreviewsAndTheFontIsFoundAgainByItsName)
{
    Open(nullptr);
    for (const char *name : {"Serif.fnt", "DejaVuSansMono.ttf"}) {
        font_answers.clear();
        ClickEntry(name);
        ASSERT_EQ(font_answers.size(), 1u) << name;
        FONT_ANSWER a = font_answers[0];
        EXPECT_EQ(a.msg, (u32)ACT_REQUESTER_PREVIEW);
        EXPECT_EQ(a.item_code, (u32)FONT_CODE);
        EXPECT_TRUE(a.data_is_window);
        EXPECT_EQ(a.chosen, name);
        EXPECT_EQ(a.loaded, name);
        EXPECT_EQ(a.user_data, &user_thing);
        T_FONT *font = LoadFontFromSelector(Record(), 0);  // by its record as well
        ASSERT_NE(font, nullptr);
        T_RESOURCE *resource = OpenResource(&_FontBase->fonts, font->name, RESOURCE_TYPE_FONT, 0);
        ASSERT_NE(resource, nullptr) << name;
        T_FONT *again = FontOfResource(resource);
        ASSERT_NE(again, nullptr) << name;
        EXPECT_EQ(std::filesystem::file_size(again->path), std::filesystem::file_size(font->path));
        RemoveResource(resource);
        FreeFont(font);
    }
}

TEST_F(FontSelector, OkAndCancelAnswerWhileTheRecordIsReadableThenTheSelectorGoes)
{
    struct {
        int way;  // 0 Open button, 1 Enter, 2 double click, 3 Cancel button, 4 Escape, 5 close
        u32 msg;
    } rows[] = {
        {0, ACT_REQUESTER_OK},     {1, ACT_REQUESTER_OK},     {2, ACT_REQUESTER_OK},
        {3, ACT_REQUESTER_CANCEL}, {4, ACT_REQUESTER_CANCEL}, {5, ACT_REQUESTER_CANCEL},
    };
    for (auto &r : rows) {
        Open("Serif.fnt");
        font_answers.clear();
        ClickEntry("DejaVuSerif.ttf", r.way == 2);
        ASSERT_FALSE(font_answers.empty());
        EXPECT_EQ(font_answers[0].msg, (u32)ACT_REQUESTER_PREVIEW);
        font_answers.erase(font_answers.begin());  // the click's preview
        switch (r.way) {
        case 0:
            ClickGadget(font_window, FONT_OK);
            break;
        case 1:
            Key(KEY_RETURN);
            break;
        case 3:
            ClickGadget(font_window, FONT_CANCEL);
            break;
        case 4:
            Key(KEY_ESCAPE);
            break;
        case 5:
            SendWindowMessage(font_window, 0, ACT_TERMINATE, nullptr);
            break;
        }
        ASSERT_EQ(font_answers.size(), 1u) << r.way;
        FONT_ANSWER a = font_answers[0];
        EXPECT_EQ(a.msg, r.msg) << r.way;
        EXPECT_EQ(a.item_code, (u32)FONT_CODE);
        EXPECT_TRUE(a.data_is_window);
        EXPECT_EQ(a.initial_font, "Serif.fnt");
        EXPECT_EQ(a.loaded, "DejaVuSerif.ttf");
        Turn();
        EXPECT_EQ(FindWindowByName(parent, "Choose font"), nullptr) << r.way;
        EXPECT_EQ(LoadFontFromSelector(font_window, 0), nullptr);  // gone: no longer known
    }
}
