// Files: loading, line reading, atomic saves and their failures (a save killed halfway, a
// write-protected file, the mode a new file gets), paths too long, directories.
#include <dirent.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <algorithm>
#include <string>
#include <vector>

#include "ostrand/ostrand_internal.h"
#include "ostrand/test_support.h"
#include "tests/harness/lock_holder.h"
#include "toolkit.h"

// The lines ReadLine gives for `data`, and the bytes each consumed.
static std::vector<std::string> Lines(const std::string &data, std::vector<u32> *consumed)
{
    std::vector<std::string> lines;
    char line[1024];
    const char *at = data.data(), *end = data.data() + data.size();
    for (u32 used; (used = ReadLine(line, at, end)) > 0; at += used) {
        lines.push_back(line);
        consumed->push_back(used);
    }
    return lines;
}

TEST(ReadLine, LineEndsEmptyLinesAndTheLastLine)
{
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

class Files : public DataRootTest
{
};

TEST_F(Files, AFailingFinishLeavesTheOldFileWhole)
{
    std::string path = Path("page.cpp");
    WriteWhole(path, "the old page");
    // The temporary file's place is taken by a directory, so the write fails at the finish.
    std::string temp = Path(".page.cpp.tmp");
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

TEST_F(Files, ASaveIntoAMissingDirectoryFailsAtFinish)
{
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

// The names in a folder, sorted, "." and ".." left out.
static std::vector<std::string> Names(const std::string &folder)
{
    std::vector<std::string> names;
    if (DIR *dir = opendir(folder.c_str())) {
        while (struct dirent *entry = readdir(dir))
            if (strcmp(entry->d_name, ".") != 0 && strcmp(entry->d_name, ".."))
                names.push_back(entry->d_name);
        closedir(dir);
    }
    std::sort(names.begin(), names.end());
    return names;
}

static void KillMyself(void)
{
    raise(SIGKILL);
}

// A save killed between writing and renaming leaves the old page whole and one temporary file of a
// fixed name beside it; the next save takes that file over and leaves nothing else behind. The
// page keeps its mode through both saves.
TEST_F(Files, AKilledSaveLeavesOneFixedTemporaryFileThatTheNextSaveReplaces)
{
    std::string path = Path("page.cpp");
    WriteWhole(path, "the old page");
    ASSERT_EQ(chmod(path.c_str(), 0640), 0);
    for (int kill = 0; kill < 2; kill++) {  // killed twice: still one temporary file
        pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            save_pause_hook = KillMyself;
            InitSaveFile(path.c_str());
            SavePrint("a new page that never arrives");
            FinishSaveFile();
            _exit(0);
        }
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
        EXPECT_EQ(ReadWhole(path), "the old page");
        EXPECT_EQ(Names(root), (std::vector<std::string>{".page.cpp.tmp", "page.cpp"}));
    }
    ASSERT_TRUE(InitSaveFile(path.c_str()));
    SavePrint("the new page");
    ASSERT_TRUE(FinishSaveFile());
    EXPECT_EQ(ReadWhole(path), "the new page");
    EXPECT_EQ(Names(root), std::vector<std::string>{"page.cpp"});
    struct stat st;
    ASSERT_EQ(stat(path.c_str(), &st), 0);
    EXPECT_EQ(st.st_mode & 07777, 0640u);
}

// A document that no one may write is not replaced, root or not; a store is, and a broken store's
// mode doesn't stay with the good file that replaces it.
TEST_F(Files, WriteProtectedDocumentsStayAndStoresGetTheOrdinaryMode)
{
    mode_t mask = umask(022);
    std::string page = Path("page.cpp"), store = Path("store.res");
    WriteWhole(page, "protected");
    WriteWhole(store, "broken");
    ASSERT_EQ(chmod(page.c_str(), 0444), 0);
    ASSERT_EQ(chmod(store.c_str(), 0), 0);
    std::string log = CaptureLog([&] {
        EXPECT_FALSE(InitSaveFile(page.c_str()));
        SavePrint("replaced");
        EXPECT_FALSE(FinishSaveFile());
    });
    EXPECT_STREQ(SaveFileError(), "The file is write-protected");
    EXPECT_NE(log.find(page), std::string::npos) << log;
    EXPECT_EQ(ReadWhole(page), "protected");
    EXPECT_TRUE(SaveFile(store.c_str(), "good", 4));
    EXPECT_EQ(ReadWhole(store), "good");
    struct stat st;
    ASSERT_EQ(stat(store.c_str(), &st), 0);
    EXPECT_EQ(st.st_mode & 07777, 0644u);
    umask(mask);
}

// A path too long for the buffers is refused by every operation, with a log line; none of them
// reaches the file that its cut prefix names.
TEST_F(Files, APathTooLongIsRefusedAndNeverCut)
{
    std::string folder = root;
    while (folder.size() < FILE_PATH_SIZE - 80)
        folder += "/" + std::string(60, 'd');
    ASSERT_TRUE(MakeEntireDirectory(folder.c_str()));
    std::string prefix = folder + "/" + std::string(FILE_PATH_SIZE - 2 - folder.size(), 'p');
    ASSERT_EQ(prefix.size(), (size_t)FILE_PATH_SIZE - 1);
    WriteWhole(prefix, "the file at the prefix");
    ASSERT_EQ(ReadWhole(prefix), "the file at the prefix");
    const std::string longer = prefix + ".cpp-and-more";  // 1,036 characters
    char buffer[FILE_PATH_SIZE];
    std::string log = CaptureLog([&] {
        EXPECT_EQ(LoadFile(longer.c_str()), nullptr);
        EXPECT_FALSE(FileExists(longer.c_str()));
        EXPECT_FALSE(DirectoryExists(longer.c_str()));
        EXPECT_FALSE(MakeEntireDirectory(longer.c_str()));
        EXPECT_FALSE(SaveFile(longer.c_str(), "x", 1));
        EXPECT_FALSE(InitSaveFile(longer.c_str()));
        EXPECT_FALSE(FinishSaveFile());
        EXPECT_EQ(XGetPath(buffer, longer.c_str()), nullptr);
        EXPECT_STREQ(buffer, "");
        EXPECT_EQ(StripPath(buffer, longer.c_str()), nullptr);
        EXPECT_EQ(MakeFilename(buffer, prefix.c_str(), "page.cpp"), nullptr);
        EXPECT_STREQ(buffer, "");
    });
    EXPECT_GE(CountLines(log), 9) << log;
    EXPECT_EQ(ReadWhole(prefix), "the file at the prefix");
}

// The data root is one process's: the lock says who holds it, and goes when that process dies.
TEST_F(Files, TheDataRootLockNamesItsHolderAndDiesWithIt)
{
    pid_t holder = ForkLockHolder(NULL);
    ASSERT_GT(holder, 0);
    u32 who = 0;
    EXPECT_EQ(LockDataRoot(&who), 0);
    EXPECT_EQ(who, (u32)holder);
    kill(holder, SIGKILL);
    waitpid(holder, NULL, 0);
    EXPECT_EQ(LockDataRoot(&who), 1);
    EXPECT_EQ(LockDataRoot(&who), 1) << "a holder takes it again";
}
