// The reader's errors name the text read and the line: the file's path, or the clipboard.
#include <gtest/gtest.h>

#include <string>

#include "source/open_page.h"
#include "tests/harness/harness.h"

class ReadErrors : public ::testing::Test
{
  protected:
    void SetUp() override { ASSERT_TRUE(HarnessStart(&h, NULL, 1024, 700)); }
    void TearDown() override { HarnessStop(&h, 0); }
    T_HARNESS h;
};

TEST_F(ReadErrors, TheLogNamesTheFileAndTheLine)
{
    const std::string page_head = "/*Quillform: START_OBJECT: PAGE */\nT_WINDOW *OpenTWindow()\n{\n";
    struct {
        const char *name;
        std::string text;
        const char *where;  // behind the path
    } const cases[] = {
        {"a window marker without a page", "\n\n/*Quillform: START_OBJECT: WINDOW */\n", ":3: "},
        {"a marker in the page that isn't a window", page_head + "\n/*Quillform: START_OBJECT: MENU */\n", ":5: "},
        {"a window too small",
         page_head + "/*Quillform: START_OBJECT: WINDOW */\n\twin_init.w=20;\n"
                     "\twin_init.h=20;\n/*Quillform: END_OBJECT: WINDOW */\n",
         ":4: "},
    };
    int n = 0;
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name);
        std::string path = std::string(h.root) + "/e" + std::to_string(n++) + ".cpp";
        ASSERT_TRUE(SaveFile(path.c_str(), c.text.data(), (u32)c.text.size()));
        HarnessClearLog();
        EXPECT_EQ(OpenPage(h.main_window, path.c_str()), nullptr);
        std::string log = HarnessLog();
        EXPECT_NE(log.find(path + c.where + "OpenPage error"), std::string::npos) << log;
    }
}
