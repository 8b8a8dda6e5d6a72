// The file selector as a person uses it: browsing by double clicks, picking and typing names,
// Enter and Escape, the pattern field, and a folder that can't be read.
#include <sys/stat.h>
#include <unistd.h>

#include "pickett_fixture.h"

#define SELECTOR_CODE 7  // the item code the tests give their selectors

enum { PATH_FIELD = 1, LIST, NAME_FIELD, PATTERN_FIELD, OK_BUTTON, CANCEL_BUTTON, NOTE };

class FileSelector : public PickettTest
{
  protected:
    t_Window *selector = nullptr;

    void SetUp() override
    {
        PickettTest::SetUp();
        MakeFiles({"a.cpp", "B.cpp", "notes.txt", "sub/", "sub/b.cpp", "sub/c.h", "Zed/"});
        MakeParent();
    }

    t_Window *Open(const std::string &path, const char *name = "", const char *pattern = "*.cpp")
    {
        T_FILE_REQUESTER_INIT init = {};
        init.parent = parent;
        init.item_code = SELECTOR_CODE;
        init.title = "Open Source file";
        init.single_file = 1;
        init.ok_text = "Open";
        init.cancel_text = "Cancel";
        init.path = path.c_str();
        init.name = name;
        init.pattern = pattern;
        selector = NewFileSelector(&init);
        Turn();
        return selector;
    }

    t_gadget *Gadget(u32 code) { return FindGadgetByItemCode(selector, code); }
    std::string Field(u32 code) { return (const char *)Gadget(code)->data; }
    std::vector<std::string> Entries() { return ListTexts(Gadget(LIST)); }

    void DoubleClickEntry(const char *text)
    {
        i16 x, y;
        int index = ListIndexOf(Gadget(LIST), text);
        ASSERT_GE(index, 0) << text;
        ListRowPoint(Gadget(LIST), index, &x, &y);
        DoubleClick(x, y);
    }

    void ClickEntry(const char *text)
    {
        i16 x, y;
        int index = ListIndexOf(Gadget(LIST), text);
        ASSERT_GE(index, 0) << text;
        ListRowPoint(Gadget(LIST), index, &x, &y);
        Click(x, y);
    }

    bool SelectorStands() { return FindWindowByName(parent, "Open Source file") != nullptr; }
};

TEST_F(FileSelector, OpensAtTheNearestExistingFolder)
{
    struct {
        std::string path, folder;
    } rows[] = {
        {scratch + "/sub/missing/deeper", scratch + "/sub"},
        {scratch + "/sub/", scratch + "/sub"},
        {"/no-such-root-folder/x", "/"},
    };
    for (auto &r : rows) {
        ASSERT_NE(Open(r.path), nullptr);
        EXPECT_EQ(Field(PATH_FIELD), r.folder) << r.path;
        RemoveWindow(selector);
        Turn();
    }
}

TEST_F(FileSelector, DoubleClicksGoIntoAFolderAndUpAgain)
{
    Open(scratch);
    DoubleClickEntry("sub/");
    EXPECT_EQ(Field(PATH_FIELD), scratch + "/sub");
    EXPECT_EQ(Entries(), (std::vector<std::string>{"../", "b.cpp"}));
    DoubleClickEntry("../");
    EXPECT_EQ(Field(PATH_FIELD), scratch);
    EXPECT_EQ(Entries(), (std::vector<std::string>{"../", "sub/", "Zed/", "a.cpp", "B.cpp"}));
    EXPECT_TRUE(spy.empty());
    EXPECT_TRUE(SelectorStands());
}

TEST_F(FileSelector, AClickedFileThenEnterAnswersOkWithDirectoryAndName)
{
    Open(scratch);
    DoubleClickEntry("sub/");
    ClickEntry("b.cpp");
    EXPECT_EQ(Field(NAME_FIELD), "b.cpp");
    Key(KEY_RETURN);
    ASSERT_EQ(MessagesOf(ACT_REQUESTER_OK), std::vector<u32>{SELECTOR_CODE});
    EXPECT_EQ(spy[0].directory, scratch + "/sub");
    EXPECT_EQ(spy[0].name, "b.cpp");
    Turn();
    EXPECT_FALSE(SelectorStands());
}

TEST_F(FileSelector, TypedNamesAnswerWithTheirOwnPathOrGoIntoAFolder)
{
    struct {
        std::string typed;
        bool answers;
        std::string directory, name, folder_after;
    } rows[] = {
        {"new.cpp", true, scratch, "new.cpp", ""},           {"/a/b/c.cpp", true, "/a/b", "c.cpp", ""},
        {"sub/d.cpp", true, scratch + "/sub", "d.cpp", ""},  {"sub", false, "", "", scratch + "/sub"},
        {scratch + "/Zed", false, "", "", scratch + "/Zed"}, {"", false, "", "", scratch},
    };
    for (auto &r : rows) {
        spy.clear();
        Open(scratch);
        ASSERT_EQ(GetCurrentGadget(selector), Gadget(NAME_FIELD));
        TypeText(r.typed.c_str());
        Key(KEY_RETURN);
        if (r.answers) {
            ASSERT_EQ(MessagesOf(ACT_REQUESTER_OK).size(), 1u) << r.typed;
            EXPECT_EQ(spy[0].directory, r.directory) << r.typed;
            EXPECT_EQ(spy[0].name, r.name) << r.typed;
            Turn();
            EXPECT_FALSE(SelectorStands()) << r.typed;
        } else {
            EXPECT_TRUE(spy.empty()) << r.typed;
            ASSERT_TRUE(SelectorStands()) << r.typed;
            EXPECT_EQ(Field(PATH_FIELD), r.folder_after) << r.typed;
            RemoveWindow(selector);
            Turn();
        }
    }
}

TEST_F(FileSelector, EscapeCancelButtonAndCloseGadgetCancel)
{
    for (int way = 0; way < 3; way++) {
        spy.clear();
        Open(scratch, "kept.cpp");
        if (way == 0)
            Key(KEY_ESCAPE);
        if (way == 1)
            ClickGadget(selector, CANCEL_BUTTON);
        if (way == 2)
            SendWindowMessage(selector, 0, ACT_TERMINATE, nullptr);
        EXPECT_EQ(MessagesOf(ACT_REQUESTER_CANCEL), std::vector<u32>{SELECTOR_CODE}) << way;
        EXPECT_TRUE(MessagesOf(ACT_REQUESTER_OK).empty()) << way;
        Turn();
        EXPECT_FALSE(SelectorStands()) << way;
    }
}

TEST_F(FileSelector, ThePatternAndPathFieldsTakeEffectOnEnter)
{
    Open(scratch + "/sub");
    ClickGadget(selector, PATTERN_FIELD);
    Key(KEY_CTRL('A'));
    TypeText("*.h");
    Key(KEY_RETURN);
    EXPECT_EQ(Entries(), (std::vector<std::string>{"../", "c.h"}));
    ClickGadget(selector, PATH_FIELD);
    Key(KEY_CTRL('A'));
    TypeText(scratch.c_str());
    Key(KEY_RETURN);
    EXPECT_EQ(Entries(), (std::vector<std::string>{"../", "sub/", "Zed/"}));
    EXPECT_TRUE(spy.empty());
}

TEST_F(FileSelector, AnUnreadableFolderShowsNothingAndSaysSo)
{
    if (geteuid() == 0)
        GTEST_SKIP() << "root reads every folder";
    MakeFiles({"locked/", "locked/inside.cpp"});
    chmod((scratch + "/locked").c_str(), 0);
    Open(scratch);
    DoubleClickEntry("locked/");
    EXPECT_EQ(Field(PATH_FIELD), scratch + "/locked");
    EXPECT_TRUE(Entries().empty());
    EXPECT_FALSE(Gadget(NOTE)->live_flags & GADGET_FLAGS_NO_DISPLAY);
    Turn(2);
    ClickGadget(selector, PATH_FIELD);
    Key(KEY_CTRL('A'));
    TypeText(scratch.c_str());
    Key(KEY_RETURN);
    EXPECT_EQ(Entries().size(), 6u);  // "locked/" among them
    EXPECT_TRUE(Gadget(NOTE)->live_flags & GADGET_FLAGS_NO_DISPLAY);
}
