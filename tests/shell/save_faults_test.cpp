// Saves that fail: a missing folder, a folder that can't be written, a full disk, a write-protected
// file and a backup folder that can't be written, each met by Save, by the close query's Yes and by
// Save as. The old file stays byte for byte, the page stays modified (and open, and with its own
// file name), and the message names the file; only a failed backup lets the document be written.
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "editor/page_window.h"
#include "tests/shell/shell_fixture.h"

#define SAVE_ERROR_TITLE "Document Save error"

namespace
{

std::string ReadText(const std::string &path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

// Mounts of a test stay in a mount namespace of this process alone, so nothing outside sees them
// and they go with it. False where the machine doesn't allow it (no root, no namespaces).
bool PrivateMounts()
{
    static int state = -1;
    if (state < 0)
        state = unshare(CLONE_NEWNS) == 0 && mount(NULL, "/", NULL, MS_REC | MS_PRIVATE, NULL) == 0;
    return state == 1;
}

bool ReadOnlyFolder(const std::string &folder)
{
    return PrivateMounts() && mount(folder.c_str(), folder.c_str(), NULL, MS_BIND, NULL) == 0 &&
           mount(NULL, folder.c_str(), NULL, MS_REMOUNT | MS_BIND | MS_RDONLY, NULL) == 0;
}

bool SmallDisk(const std::string &folder)
{
    return PrivateMounts() && mount("tmpfs", folder.c_str(), "tmpfs", 0, "size=64k") == 0;
}

// Fills the disk under `folder` to its last byte.
bool FillDisk(const std::string &folder)
{
    FILE *f = fopen((folder + "/filler").c_str(), "wb");
    if (!f)
        return false;
    static const char block[4096] = {};
    while (fwrite(block, 1, sizeof(block), f) == sizeof(block)) {
    }
    while (fwrite(block, 1, 1, f) == 1) {
    }
    fclose(f);
    return true;
}

enum { WAY_SAVE, WAY_CLOSE_YES, WAY_SAVE_AS };
const char *const way_names[] = {"Save", "the close query's Yes", "Save as"};

struct FAULT_ROW {
    const char *what;
    bool (*before)(const std::string &folder);  // before the first save; false: can't be done here
    bool (*after)(const std::string &folder);   // once the page file stands
    bool backup_only;                           // the document is written all the same
    const char *named;                          // what the message names, below the folder
};

// clang-format off
const FAULT_ROW fault_rows[] = {
    {"a missing folder", nullptr,
     [](const std::string &folder) { return std::filesystem::remove_all(folder) > 0; }, false, "page.cpp"},
    {"a folder that can't be written", nullptr,   ReadOnlyFolder, false, "page.cpp"},
    {"a full disk",                    SmallDisk, FillDisk,       false, "page.cpp"},
    {"a write-protected file", nullptr,
     [](const std::string &folder) { return chmod((folder + "/page.cpp").c_str(), 0444) == 0; }, false,
     "page.cpp"},
    {"a backup folder that can't be written", nullptr,
     [](const std::string &folder) {  // a file stands where the folder "Backup" goes
         return WriteTextFile(folder + "/Backup", "no folder");
     },
     true, "Backup/page.cpp"},
};
// clang-format on

class SaveFaults : public ShellTest
{
};

TEST_F(SaveFaults, TheOldFileStaysThePageStaysModifiedAndTheMessageNamesTheFile)
{
    std::vector<std::string> not_run;
    for (const FAULT_ROW &row : fault_rows) {
        for (int way = WAY_SAVE; way <= WAY_SAVE_AS; way++) {
            SCOPED_TRACE(std::string(row.what) + ", " + way_names[way]);
            std::string folder = std::string(h.root) + "/work";
            std::filesystem::create_directories(folder);
            if (row.before && !row.before(folder)) {
                not_run.push_back(row.what);
                std::filesystem::remove_all(folder);
                continue;
            }
            const std::string path = folder + "/page.cpp";
            const std::string own = std::string(h.root) + "/own.cpp";  // Save as starts from here
            editor_config->flags = CONFIG_OPTIMISE | (row.backup_only ? CONFIG_BACKUPS : 0);
            strcpy(editor_config->backup_path, "Backup");

            t_Window *page = DrawPage(20, 100, 420, 400);
            ASSERT_NE(page, nullptr);
            T_WINEDIT_HANDLER *record = (T_WINEDIT_HANDLER *)page->user_data;
            DrawGadget(page, TOOL_BUTTON, 20, 20, 120, 50);
            SaveActivePageAs(path);  // the file as it was
            if (way == WAY_SAVE_AS)
                SaveActivePageAs(own);
            ASSERT_EQ(page->state_flags & WSF_MODIFIED, 0u);
            DrawGadget(page, TOOL_BUTTON, 20, 60, 120, 90);  // the change that must not be lost
            ASSERT_NE(page->state_flags & WSF_MODIFIED, 0u);
            if (!row.after(folder)) {
                not_run.push_back(row.what);
                umount2(folder.c_str(), MNT_DETACH);
                RemovePage(page, 1);
                continue;
            }
            const bool existed = std::filesystem::exists(path);  // as the fault leaves it
            const std::string old_text = ReadText(path);
            const std::string expected_name = way == WAY_SAVE_AS && !row.backup_only ? own : path;

            switch (way) {
            case WAY_SAVE:
                UserKey(KEY_CTRL('S'), QUAL_CONTROL);
                break;
            case WAY_CLOSE_YES:
                ExpectAnswers(h.main_window, {AnswerYes()});
                PickFromMenu(MENU_FILE, CMD_CLOSE);
                EXPECT_EQ(AnswersLeft(), 0u);
                break;
            case WAY_SAVE_AS:
                SaveActivePageAs(path);
                break;
            }

            std::string now = ReadText(path);
            if (row.backup_only) {
                EXPECT_NE(now.find("gadinit.y=60;"), std::string::npos) << "the document is written";
                EXPECT_EQ(Stands(page), way != WAY_CLOSE_YES);
            } else {
                EXPECT_EQ(std::filesystem::exists(path), existed);
                EXPECT_EQ(now, old_text) << "the old file changed";
                ASSERT_TRUE(Stands(page)) << "the page closed on a failed save";
                EXPECT_NE(page->state_flags & WSF_MODIFIED, 0u);
                EXPECT_STREQ(record->file_name.text, expected_name.c_str());
            }
            std::string message = MessageBoxTextOf(SAVE_ERROR_TITLE);
            EXPECT_NE(message.find(folder + "/" + row.named), std::string::npos) << message;
            std::vector<std::string> left;
            for (const auto &entry :
                 std::filesystem::directory_iterator(std::filesystem::exists(folder) ? folder : std::string(h.root)))
                if (entry.path().filename().string().find(".tmp") != std::string::npos)
                    left.push_back(entry.path().string());
            EXPECT_TRUE(left.empty()) << left[0];

            while (t_Window *box = FindLiveWindow(SAVE_ERROR_TITLE))
                RemoveWindow(box);
            if (Stands(page)) {
                page->state_flags &= ~WSF_MODIFIED;
                RemovePage(page, 1);
            }
            UserTurns(1);
            umount2(folder.c_str(), MNT_DETACH);
            chmod(path.c_str(), 0644);
            std::filesystem::remove_all(folder);
            std::filesystem::remove(own);
        }
    }
    for (const std::string &what : not_run)  // root without the right to mount, or no namespaces
        std::cout << "not run here, this machine allows no such mount: " << what << "\n";
}

// A failed Save as leaves the page with no file at all when it had none: the next Save asks again.
TEST_F(SaveFaults, AFailedSaveAsOfANewPageLeavesItWithoutAFile)
{
    t_Window *page = DrawPage(20, 100, 420, 400);
    ASSERT_NE(page, nullptr);
    T_WINEDIT_HANDLER *record = (T_WINEDIT_HANDLER *)page->user_data;
    DrawGadget(page, TOOL_BUTTON, 20, 20, 120, 50);
    SaveActivePageAs(std::string(h.root) + "/no/such/folder/page.cpp");
    EXPECT_EQ(record->file_name.text, nullptr);
    EXPECT_EQ(record->saved, 0);
    EXPECT_NE(page->state_flags & WSF_MODIFIED, 0u);
    EXPECT_NE(MessageBoxTextOf(SAVE_ERROR_TITLE).find("/no/such/folder/page.cpp: No such file"), std::string::npos);
}

}  // namespace
