// Files: loading, line reading, atomic saves and their failures, directories.
#include <gtest/gtest.h>
#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <string>
#include <vector>

#include "ostrand/test_support.h"
#include "toolkit.h"

// The lines ReadLine gives for `data`, and the bytes each consumed.
static std::vector<std::string> Lines(const std::string &data, std::vector<u32> *consumed) {
    std::vector<std::string> lines;
    char line[1024];
    const char *at = data.data(), *end = data.data() + data.size();
    for (u32 used; (used = ReadLine(line, at, end)) > 0; at += used) {
        lines.push_back(line);
        consumed->push_back(used);
    }
    return lines;
}

TEST(ReadLine, LineEndsEmptyLinesAndTheLastLine) {
    struct Case {
        std::string data;
        std::vector<std::string> lines;
        std::vector<u32> consumed;
    } cases[] = {
        {"a\nb", {"a", "b"}, {2, 1}},
        {"a\r\nb\r\n", {"a", "b"}, {3, 3}},
        {"\n\n", {"", ""}, {1, 1}},
        {"last without end", {"last without end"}, {16}},
        {"", {}, {}},
        {"x\r", {"x\r"}, {2}},  // a lone '\r' is no line end
        {"\r\n", {""}, {2}},
    };
    for (const Case &c : cases) {
        std::vector<u32> consumed;
        EXPECT_EQ(Lines(c.data, &consumed), c.lines) << c.data;
        EXPECT_EQ(consumed, c.consumed) << c.data;
    }
}

class Files : public DataRootTest {};

TEST_F(Files, AFailingFinishLeavesTheOldFileWhole) {
    std::string path = Path("page.cpp");
    WriteWhole(path, "the old page");
    // The temporary file's place is taken by a directory, so the write fails at the finish.
    std::string temp = Path(".page.cpp.tmp-" + std::to_string(getpid()));
    ASSERT_TRUE(MakeEntireDirectory(temp.c_str()));
    std::string log = CaptureLog([&] {
        EXPECT_TRUE(InitSaveFile(path.c_str()));
        SavePrint("the new page");
        EXPECT_FALSE(FinishSaveFile());
        EXPECT_TRUE(FinishSaveFile());  // reported once
    });
    EXPECT_EQ(ReadWhole(path), "the old page");
    EXPECT_EQ(CountLines(log), 1) << log;
    EXPECT_NE(log.find(path), std::string::npos);
    EXPECT_STREQ(SaveFileError(), "Is a directory");
}

TEST_F(Files, ASaveIntoAMissingDirectoryFailsAtFinish) {
    std::string path = Path("nowhere/page.cpp");
    std::string log = CaptureLog([&] {
        EXPECT_FALSE(InitSaveFile(path.c_str()));
        SavePrint("text");
        EXPECT_FALSE(FinishSaveFile());
    });
    EXPECT_STREQ(SaveFileError(), "No such file or directory");
    EXPECT_EQ(CountLines(log), 1) << log;
    EXPECT_FALSE(FileExists(path.c_str()));
}
