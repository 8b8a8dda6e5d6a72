// Resources: counted uses, the persistent store's round trip, broken stores left untouched when
// read and healed when stored.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <functional>
#include <string>

#include "ostrand/test_support.h"
#include "toolkit.h"

class Resources : public DataRootTest
{
  protected:
    t_List list;
    void SetUp() override
    {
        DataRootTest::SetUp();
        InitList(&list, "resources");
    }
    // Stores a 548-byte settings block with a known pattern under `name`.
    void StoreSettings(const char *name)
    {
        T_RESOURCE *r = CreateResource(&list, name, 548, RESOURCE_TYPE_SETTINGS);
        for (u32 i = 0; i < r->data_size; i++)
            ((u8 *)r->data)[i] = (u8)(i * 7 + 1);
        ASSERT_EQ(StoreResources(&list), 0u);
        RemoveResource(r);
        ASSERT_TRUE(LIST_EMPTY(&list));
    }
    std::string StoreFile(const char *name) { return Path(std::string("store/") + name + ".res"); }
};

TEST_F(Resources, StoredSettingsComeBackByteForByteInAFreshList)
{
    StoreSettings("AppQuillform");
    t_List fresh;
    InitList(&fresh, "fresh");
    T_RESOURCE *r = OpenResource(&fresh, "AppQuillform", RESOURCE_TYPE_SETTINGS, 0);
    ASSERT_NE(r, nullptr);
    EXPECT_EQ(r->use_count, 1u);
    ASSERT_EQ(r->data_size, 548u);
    for (u32 i = 0; i < 548; i++)
        ASSERT_EQ(((u8 *)r->data)[i], (u8)(i * 7 + 1)) << i;

    // A block that grew (a tail of documents) is stored and read with its new size.
    u32 grown_size = 548 + 20;
    u8 *grown = (u8 *)AllocMemC(grown_size);
    memcpy(grown, r->data, 548);
    memcpy(grown + 548, "/a/page.cpp", 12);
    FreeMem(r->data, r->data_size);
    r->data = grown;
    r->data_size = grown_size;
    ASSERT_EQ(StoreResources(&fresh), 0u);
    RemoveResource(r);
    r = OpenResource(&fresh, "AppQuillform", RESOURCE_TYPE_SETTINGS, 0);
    ASSERT_NE(r, nullptr);
    EXPECT_EQ(r->data_size, grown_size);
    EXPECT_STREQ((char *)r->data + 548, "/a/page.cpp");
    RemoveResource(r);
}

TEST_F(Resources, BrokenStoresGiveNullOneLogLineAndStayAsTheyAre)
{
    StoreSettings("AppQuillform");
    std::string good = ReadWhole(StoreFile("AppQuillform"));
    std::string flipped = good;
    flipped[100] ^= 0x40;
    std::string other_type = good;
    other_type[8] = 1;
    struct Case {
        const char *what;
        std::string bytes;
    } cases[] = {
        {"truncated", good.substr(0, good.size() - 10)},
        {"garbage", "this is no store at all, just some text that lies here"},
        {"short head", "QFRS"},
        {"one flipped bit", flipped},
        {"another type", other_type},
        {"empty", ""},
    };
    for (const Case &c : cases) {
        WriteWhole(StoreFile("AppQuillform"), c.bytes);
        std::string log = CaptureLog(
            [&] { EXPECT_EQ(OpenResource(&list, "AppQuillform", RESOURCE_TYPE_SETTINGS, 0), nullptr) << c.what; });
        EXPECT_EQ(CountLines(log), 1) << c.what << ": " << log;
        EXPECT_NE(log.find("AppQuillform.res"), std::string::npos) << c.what;
        EXPECT_EQ(ReadWhole(StoreFile("AppQuillform")), c.bytes) << c.what;
    }
}

// Runs `steps` as a user whom file permissions hold: this process when it is no root; else a child
// that gives root up (root reads a file of mode 0 all the same). False when the steps failed.
static bool AsUnprivileged(const std::string &root, const std::function<void()> &steps)
{
    if (geteuid() != 0) {
        steps();
        return !::testing::Test::HasFailure();
    }
    std::string store = root + "/store";
    if (chmod(root.c_str(), 0777) != 0 || chmod(store.c_str(), 0777) != 0)
        return false;
    pid_t child = fork();
    if (child == 0) {
        if (setgid(65534) != 0 || setuid(65534) != 0)
            _exit(2);
        steps();
        _exit(::testing::Test::HasFailure() ? 1 : 0);
    }
    int status = -1;
    waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

// A store that can't be read (garbage, a folder in its place, no permission) is logged once and
// ignored when read; the next store writes a good file in its place, with the ordinary mode.
TEST_F(Resources, ABrokenStoreIsReplacedByAGoodOneAtTheNextStore)
{
    struct Case {
        const char *what;
        std::function<void(const std::string &)> spoil;
        const char *logged;  // the reason the log gives
    } cases[] = {
        {"garbage", [](const std::string &file) { WriteWhole(file, "not a store"); }, "no store head"},
        {"a folder",  // with something in it, which is kept aside
         [](const std::string &file) {
             mkdir(file.c_str(), 0755);
             WriteWhole(file + "/kept", "kept");
         },
         "a folder stands there"},
        {"no permission",
         [](const std::string &file) {
             WriteWhole(file, "unreadable");
             chmod(file.c_str(), 0);
         },
         "Permission denied"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        std::string file = StoreFile("AppQuillform");
        std::remove(file.c_str());
        rmdir(file.c_str());
        MakeEntireDirectory(Path("store").c_str());
        c.spoil(file);
        EXPECT_TRUE(AsUnprivileged(root, [&] {
            mode_t mask = umask(022);
            int level = _OstrandBase->log_level;
            _OstrandBase->log_level = 1;  // the host's default: errors and warnings
            std::string log =
                CaptureLog([&] { EXPECT_EQ(OpenResource(&list, "AppQuillform", RESOURCE_TYPE_SETTINGS, 0), nullptr); });
            EXPECT_EQ(CountLines(log), 1) << log;
            EXPECT_NE(log.find("AppQuillform.res"), std::string::npos) << log;
            EXPECT_NE(log.find(c.logged), std::string::npos) << log;
            T_RESOURCE *fresh = CreateResource(&list, "AppQuillform", 548, RESOURCE_TYPE_SETTINGS);
            memset(fresh->data, 7, 548);
            log = CaptureLog([&] { EXPECT_EQ(StoreResources(&list), 0u); });
            RemoveResource(fresh);
            struct stat st;
            ASSERT_EQ(stat(file.c_str(), &st), 0);
            EXPECT_TRUE(S_ISREG(st.st_mode));
            EXPECT_EQ(st.st_mode & 07777, 0644u);
            T_RESOURCE *again = OpenResource(&list, "AppQuillform", RESOURCE_TYPE_SETTINGS, 0);
            ASSERT_NE(again, nullptr);
            EXPECT_EQ(((u8 *)again->data)[547], 7);
            RemoveResource(again);
            umask(mask);
            _OstrandBase->log_level = level;
        }));
        if (c.logged == std::string("a folder stands there")) {
            EXPECT_EQ(ReadWhole(file + ".folder/kept"), "kept");
        }
        std::remove((file + ".folder/kept").c_str());
        rmdir((file + ".folder").c_str());
    }
}
