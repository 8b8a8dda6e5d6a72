// Recent files: newest first, no duplicates, the limit, and a broken store.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ostrand/test_support.h"
#include "toolkit.h"

class RecentFiles : public DataRootTest
{
  protected:
    T_APPLICATION *app = nullptr;
    void SetUp() override
    {
        DataRootTest::SetUp();
        app = NewApplication("Quillform");
        AddRecentFileType(app, 1, 3);
    }
    void TearDown() override
    {
        FreeApplication(app);
        DataRootTest::TearDown();
    }
    void Restart()
    {
        FreeApplication(app);
        app = NewApplication("Quillform");
        AddRecentFileType(app, 1, 3);
    }
    std::vector<std::string> Paths(u32 type = 1)
    {
        std::vector<std::string> paths;
        for (T_RECENT_TYPE *t = (T_RECENT_TYPE *)app->recent_types.first; t->next; t = t->next)
            if (t->type == type)
                for (T_RECENT_FILE *f = (T_RECENT_FILE *)t->files.first; f->next; f = f->next) {
                    EXPECT_EQ(f->type, type);
                    paths.push_back(f->name);
                }
        return paths;
    }
    using Paths_ = std::vector<std::string>;
};

TEST_F(RecentFiles, NewestFirstWithoutDuplicatesUpToTheLimit)
{
    struct Step {
        const char *add;
        std::vector<std::string> after;
    } steps[] = {
        {"/p/a.cpp", {"/p/a.cpp"}},
        {"/p/b.cpp", {"/p/b.cpp", "/p/a.cpp"}},
        {"/p/a.cpp", {"/p/a.cpp", "/p/b.cpp"}},  // moves to the front
        {"/p/c.cpp", {"/p/c.cpp", "/p/a.cpp", "/p/b.cpp"}},
        {"/p/d.cpp", {"/p/d.cpp", "/p/c.cpp", "/p/a.cpp"}},  // the oldest drops out
        {"/p/a.cpp", {"/p/a.cpp", "/p/d.cpp", "/p/c.cpp"}},
        {"", {"/p/a.cpp", "/p/d.cpp", "/p/c.cpp"}},
    };
    for (const Step &s : steps) {
        AddRecentFile(app, s.add, 1);
        EXPECT_EQ(Paths(), s.after) << s.add;
    }
    std::string log = CaptureLog([&] {
        AddRecentFile(app, "/p/e.cpp", 7);     // a type never registered
        AddRecentFile(app, "/p/x\ny.cpp", 1);  // can't be a line of the store
    });
    size_t first = log.find("refused"), second = log.find("refused", first + 1);
    EXPECT_NE(second, std::string::npos) << log;  // one line for each refusal
    EXPECT_EQ(log.find("refused", second + 1), std::string::npos) << log;
    EXPECT_EQ(Paths(), (Paths_{"/p/a.cpp", "/p/d.cpp", "/p/c.cpp"}));
}

TEST_F(RecentFiles, ABrokenStoreGivesAnEmptyListAndOneLogLine)
{
    const char *stores[] = {"/p/a.cpp\n", "1 /p/a.cpp\nx /p/b.cpp\n", "1\n", "1 \n"};
    for (const char *store : stores) {
        ASSERT_TRUE(MakeEntireDirectory(Path("recent").c_str()));
        WriteWhole(Path("recent/Quillform.txt"), store);
        std::string log = CaptureLog([&] { Restart(); });
        EXPECT_EQ(CountLines(log), 1) << store << log;
        EXPECT_TRUE(Paths().empty()) << store;
    }
}
