// The data root's stores when they are broken: each is logged once at the start and ignored, and
// the next orderly end writes a good file in its place, with the ordinary mode. (A store that root
// can't read by its mode can't be made here, where the tests run as root; the toolkit's suite
// takes that case in a process that gives root up.)
#include <sys/stat.h>

#include <filesystem>
#include <functional>

#include "tests/shell/shell_fixture.h"

namespace
{

const char *const stores[] = {"store/AppQuillform.res", "keys/Quillform.keys", "recent/Quillform.txt",
                              "places/AppQuillform.txt"};

struct SPOIL_ROW {
    const char *what;
    void (*spoil)(const std::string &path);
};

const SPOIL_ROW spoil_rows[] = {
    {"garbage", [](const std::string &path) { WriteTextFile(path, "\x01\x02 not what was stored\n"); }},
    {"a folder",
     [](const std::string &path) {
         std::filesystem::remove(path);
         std::filesystem::create_directories(path);
     }},
};

// The lines of the log that name the store, but for the toolkit's own line on a file it can't load.
int LinesNaming(const std::string &log, const std::string &path)
{
    int lines = 0;
    size_t at = 0;
    while (at < log.size()) {
        size_t end = log.find('\n', at);
        std::string line = log.substr(at, end == std::string::npos ? std::string::npos : end - at);
        lines += line.find(path) != std::string::npos && line.rfind("LoadFile:", 0) != 0;
        at = end == std::string::npos ? log.size() : end + 1;
    }
    return lines;
}

class Stores : public ShellTest
{
};

TEST_F(Stores, BrokenStoresAreToldOnceAndHealedByTheNextEnd)
{
    mode_t mask = umask(022);
    for (const SPOIL_ROW &row : spoil_rows) {
        SCOPED_TRACE(row.what);
        // A first run leaves every store: a recent file, a changed key, the places, the settings.
        std::string file = std::string(h.root) + "/a.cpp";
        ASSERT_TRUE(WriteTextFile(file, "no page"));
        RefreshRecentFiles(h.main_window, file.c_str());
        SetAppCommandKey(h.application, FindAppCommandByCode(h.application, CMD_KEYBOARD), KEY_F1 + 1);
        PickFromMenu(MENU_FILE, CMD_EXIT);
        ASSERT_TRUE(SessionEnded());
        for (const char *store : stores)
            row.spoil(std::string(h.root) + "/" + store);

        Restart();
        std::string log = HarnessLog();
        for (const char *store : stores)
            EXPECT_EQ(LinesNaming(log, store), 1) << store << "\n" << log;
        PickFromMenu(MENU_FILE, CMD_EXIT);
        ASSERT_TRUE(SessionEnded());
        for (const char *store : stores) {
            struct stat st;
            std::string path = std::string(h.root) + "/" + store;
            ASSERT_EQ(stat(path.c_str(), &st), 0) << store;
            EXPECT_TRUE(S_ISREG(st.st_mode)) << store;
            EXPECT_EQ(st.st_mode & 07777, 0644u) << store;
        }

        Restart();
        log = HarnessLog();
        for (const char *store : stores)
            EXPECT_EQ(LinesNaming(log, store), 0) << store << "\n" << log;
        HarnessStop(&h, 0);
        ASSERT_TRUE(HarnessStart(&h, NULL, SCREEN_W, SCREEN_H));
    }
    umask(mask);
}

}  // namespace
