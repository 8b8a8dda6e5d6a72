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

TEST(ReadLine, ALongLineIsCutAndItsRestSkipped) {
    std::string data = std::string(2000, 'x') + "\nnext";
    std::vector<u32> consumed;
    std::vector<std::string> lines = Lines(data, &consumed);
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0], std::string(1023, 'x'));
    EXPECT_EQ(consumed[0], 2001u);
    EXPECT_EQ(lines[1], "next");
}

class Files : public DataRootTest {};

// The names in a directory, hidden ones too, sorted, each followed by a space.
static std::string Listing(const std::string &directory) {
    std::vector<std::string> names;
    DIR *dir = opendir(directory.c_str());
    while (dirent *entry = dir ? readdir(dir) : nullptr)
        if (strcmp(entry->d_name, ".") && strcmp(entry->d_name, ".."))
            names.push_back(entry->d_name);
    if (dir)
        closedir(dir);
    std::sort(names.begin(), names.end());
    std::string listing;
    for (const std::string &name : names)
        listing += name + " ";
    return listing;
}

TEST_F(Files, LoadFileGivesTheBytesAndAClosingNul) {
    WriteWhole(Path("a.txt"), std::string("ab\0cd", 5));
    u64 mismatches = _OstrandBase->size_mismatches;
    char *data = (char *)LoadFile(Path("a.txt").c_str());
    ASSERT_NE(data, nullptr);
    EXPECT_EQ(GetLoadFileSize(), 5u);
    EXPECT_EQ(std::string(data, 5), std::string("ab\0cd", 5));
    EXPECT_EQ(data[5], 0);
    FreeMem(data, GetLoadFileSize());
    EXPECT_EQ(_OstrandBase->size_mismatches, mismatches);

    WriteWhole(Path("empty"), "");
    data = (char *)LoadFile(Path("empty").c_str());
    ASSERT_NE(data, nullptr);
    EXPECT_EQ(GetLoadFileSize(), 0u);
    FreeMem(data, 0);
}

TEST_F(Files, LoadFileOfWhatIsNoFileGivesNull) {
    CaptureLog([&] {
        EXPECT_EQ(LoadFile(Path("missing.cpp").c_str()), nullptr);
        EXPECT_EQ(LoadFile(root.c_str()), nullptr);
    });
}

TEST_F(Files, SaveFileReplacesAtomicallyAndLeavesNoTemporary) {
    std::string path = Path("page.cpp");
    WriteWhole(path, "old text");
    ASSERT_TRUE(SaveFile(path.c_str(), "new", 3));
    EXPECT_EQ(ReadWhole(path), "new");
    EXPECT_EQ(Listing(root), "page.cpp ");
    EXPECT_TRUE(SaveFile(Path("zero").c_str(), nullptr, 0));
    EXPECT_EQ(ReadWhole(Path("zero")), "");
}

TEST_F(Files, ASaveThatCantBeMadeFailsAndLeavesNothing) {
    std::string log = CaptureLog([&] {
        EXPECT_FALSE(SaveFile(Path("missing/page.cpp").c_str(), "x", 1));
    });
    EXPECT_STREQ(SaveFileError(), "No such file or directory");
    EXPECT_NE(log.find("missing/page.cpp"), std::string::npos);
    EXPECT_FALSE(DirectoryExists(Path("missing").c_str()));
}

TEST_F(Files, TheTextStreamWritesItsBytesOnFinish) {
    std::string path = Path("page.cpp");
    ASSERT_TRUE(InitSaveFile(path.c_str()));
    SavePrint("// PAGE\n");
    SavePrint("");
    SavePrint(nullptr);
    SavePrint(std::string(10000, 'g').c_str());
    EXPECT_FALSE(FileExists(path.c_str()));  // nothing before the finish
    EXPECT_TRUE(FinishSaveFile());
    EXPECT_EQ(ReadWhole(path), "// PAGE\n" + std::string(10000, 'g'));
    EXPECT_TRUE(FinishSaveFile());  // nothing pending: cheap and true
    EXPECT_EQ(ReadWhole(path), "// PAGE\n" + std::string(10000, 'g'));
}

TEST_F(Files, TheNextInitSaveFileFinishesThePendingOne) {
    ASSERT_TRUE(InitSaveFile(Path("one").c_str()));
    SavePrint("1");
    ASSERT_TRUE(InitSaveFile(Path("two").c_str()));
    SavePrint("2");
    EXPECT_EQ(ReadWhole(Path("one")), "1");
    EXPECT_TRUE(FinishSaveFile());
    EXPECT_EQ(ReadWhole(Path("two")), "2");
}

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

TEST_F(Files, DirectoriesAllLevelsAndExistenceTests) {
    std::string deep = Path("a/b\\c/d");
    EXPECT_TRUE(MakeEntireDirectory(deep.c_str()));
    EXPECT_TRUE(DirectoryExists(Path("a/b/c/d").c_str()));
    EXPECT_TRUE(MakeEntireDirectory(deep.c_str()));  // already there
    WriteWhole(Path("a/f"), "x");
    struct Case {
        std::string path;
        int file, directory;
    } cases[] = {
        {Path("a/f"), 1, 0}, {Path("a"), 0, 1}, {Path("none"), 0, 0}, {"", 0, 0},
    };
    for (const Case &c : cases) {
        EXPECT_EQ(FileExists(c.path.c_str()), c.file) << c.path;
        EXPECT_EQ(DirectoryExists(c.path.c_str()), c.directory) << c.path;
    }
    CaptureLog([&] { EXPECT_FALSE(MakeEntireDirectory(Path("a/f/g").c_str())); });
}
