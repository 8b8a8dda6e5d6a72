// Backups before a save, and what a save does when the old file or the new one can't be handled.
#include <unistd.h>

#include <algorithm>
#include <filesystem>

#include "source_fixture.h"

namespace
{

// clang-format off
const std::vector<T_TEST_GADGET> one_button = {
    {.type = GADGET_TYPE_BUTTON, .text = "OK", .item_code = 1, .tab_index = 1}};

class BackupTest : public SourceTest {
protected:
    // The message box of a failed save, a child of the page; null when there is none.
    t_Window *SaveErrorBox(t_Window *page) { return FindWindowByName(page, SRC_SAVE_ERROR_TITLE); }
    // Everything below the data root.
    std::vector<std::string> ListTree()
    {
        std::vector<std::string> paths;
        for (const auto &entry : std::filesystem::recursive_directory_iterator(root))
            paths.push_back(entry.path().string());
        std::sort(paths.begin(), paths.end());
        return paths;
    }
};
// clang-format on

struct RULE_CASE {
    const char *label;
    const char *backup_path;  // below the data root when `absolute`
    int absolute;
    const char *document;  // below the data root
    const char *backup;    // below the data root
};

TEST_F(BackupTest, WhereTheCopyGoes)
{
    const RULE_CASE cases[] = {
        {"empty: beside it as .bak", "", 0, "work/Page.cpp", "work/Page.bak"},
        {"empty, no extension", "", 0, "work/Notes", "work/Notes.bak"},
        {"absolute: that folder, the full name", "saves", 1, "work/Page.cpp", "saves/Page.cpp"},
        {"absolute, folder made", "new/deep", 1, "work/Page.cpp", "new/deep/Page.cpp"},
        {"relative: below the document", "Backup", 0, "work/Page.cpp", "work/Backup/Page.cpp"},
        {"relative with levels", "Old/Deep", 0, "work/Page.cpp", "work/Old/Deep/Page.cpp"},
        {"relative with the program's separator", "Projects\\QfFiles", 0, "work/Page.cpp",
         "work/Projects/QfFiles/Page.cpp"},
    };
    MakeEntireDirectory(Path("work").c_str());
    MakeEntireDirectory(Path("saves").c_str());
    for (const RULE_CASE &c : cases) {
        SCOPED_TRACE(c.label);
        std::string backup_path = c.absolute ? Path(c.backup_path) : c.backup_path;
        snprintf(config.backup_path, sizeof(config.backup_path), "%s", backup_path.c_str());
        std::string content = std::string("old text of ") + c.label + "\n";
        WriteWholeFile(Path(c.document), content);
        EXPECT_TRUE(BackupDocument(Path(c.document).c_str()));
        EXPECT_EQ(ReadWholeFile(Path(c.backup)), content);
    }
}

// A save with backups on copies the old file byte for byte, once: each save replaces the last
// backup.
TEST_F(BackupTest, OneGenerationByteForByte)
{
    t_Window *window = MakePage({.name = "Kept"}, one_button);
    const std::string bytes("first\r\nline\0with a zero\xff\n", 26);
    WriteWholeFile(Path("page.cpp"), bytes);
    std::string first_save = SaveAndRead(window, CONFIG_OPTIMISE | CONFIG_BACKUPS);
    EXPECT_EQ(ReadWholeFile(Path("Backup/page.cpp")), bytes);
    EXPECT_NE(first_save, bytes);

    FindGadgetHandler(window)->first_gadget->x = 99;
    std::string second_save = SaveAndRead(window, CONFIG_OPTIMISE | CONFIG_BACKUPS);
    EXPECT_EQ(ReadWholeFile(Path("Backup/page.cpp")), first_save);
    EXPECT_NE(second_save, first_save);
    int files = 0;
    for (const auto &entry : std::filesystem::directory_iterator(Path("Backup")))
        files += entry.is_regular_file();
    EXPECT_EQ(files, 1);
    EXPECT_EQ(SaveErrorBox(window), nullptr);
}

TEST_F(BackupTest, NoBackupForANewFileOrWithBackupsOff)
{
    t_Window *window = MakePage({.name = "New"}, one_button);
    std::string text = SaveAndRead(window, CONFIG_OPTIMISE | CONFIG_BACKUPS, "new.cpp");
    EXPECT_FALSE(text.empty());
    EXPECT_FALSE(DirectoryExists(Path("Backup").c_str()));
    EXPECT_EQ(SaveErrorBox(window), nullptr);

    SaveAndRead(window, CONFIG_OPTIMISE, "new.cpp");
    EXPECT_FALSE(DirectoryExists(Path("Backup").c_str()));
}

// An old file that can't be read: the save stops with the message, the old file stands.
TEST_F(BackupTest, UnreadableDocumentAbortsTheSave)
{
    t_Window *window = MakePage({.name = "Locked"}, one_button);
    // A file too large to load can't be read whatever the user's rights (the tests may run as
    // root); a sparse one costs nothing.
    std::string path = Path("locked.cpp");
    WriteWholeFile(path, "");
    ASSERT_EQ(truncate(path.c_str(), 0x80000000LL), 0);
    std::vector<std::string> before = ListTree();
    config.flags = CONFIG_OPTIMISE | CONFIG_BACKUPS;
    testing::internal::CaptureStderr();
    SavePage(window, path.c_str());
    std::string log = testing::internal::GetCapturedStderr();
    EXPECT_NE(SaveErrorBox(window), nullptr);
    EXPECT_NE(log.find("No backup of " + path), std::string::npos) << log;
    EXPECT_EQ(std::filesystem::file_size(path), 0x80000000u);
    // The backup folder is made before the document is loaded, and stays empty.
    before.insert(before.begin(), Path("Backup"));
    EXPECT_EQ(ListTree(), before) << "the save left something beside the old file";
}

// A file in a folder that doesn't exist: nothing is written, the message names the file and
// the reason (the box shows the text that the log line holds).
TEST_F(BackupTest, SaveIntoAMissingFolder)
{
    t_Window *window = MakePage({.name = "Lost"}, one_button);
    std::string path = Path("missing/folder/page.cpp");
    config.flags = CONFIG_OPTIMISE | CONFIG_BACKUPS;
    testing::internal::CaptureStderr();
    SavePage(window, path.c_str());
    std::string log = testing::internal::GetCapturedStderr();
    EXPECT_FALSE(DirectoryExists(Path("missing").c_str()));
    EXPECT_NE(SaveErrorBox(window), nullptr);
    EXPECT_NE(log.find("The document could not be written to " + path + ": No such file"), std::string::npos) << log;
}

}  // namespace
