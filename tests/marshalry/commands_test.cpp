// Commands: the user's keys, a key in use refused, and their store across runs, broken or whole.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ostrand/test_support.h"
#include "toolkit.h"

static const struct CommandRow {
    const char *group, *name, *description;
    u32 item_code, key;
} command_rows[] = {
    // group   name     description                  item  key
    {"File", "Open", "Open a document", 256, KEY_CTRL('O')},
    {"File", "Close", "Close the active document", 257, 0},
    {"File", "Save", "Save the active document", 259, KEY_CTRL('S')},
    {"Edit", "Undo", "Undo the last operation", 263, KEY_CTRL('Z')},
    {"Edit", "Settings", "Quillform Settings", 272, KEY_F1 + 9},
    {"Layout", "Keyboard", "Customise keyboard", 278, 0},
};

class Commands : public DataRootTest
{
  protected:
    T_APPLICATION *app = nullptr;
    void SetUp() override
    {
        DataRootTest::SetUp();
        app = Start();
    }
    void TearDown() override
    {
        FreeApplication(app);
        DataRootTest::TearDown();
    }
    // A run of the application: a new record that registers the whole table.
    static T_APPLICATION *Start()
    {
        T_APPLICATION *app = NewApplication("Quillform");
        for (const CommandRow &row : command_rows) {
            SetAppCommandGroup(app, row.group);
            RegisterAppCommand(app, row.name, row.description, row.item_code, row.key, 0);
        }
        return app;
    }
    void Restart()
    {
        FreeApplication(app);
        app = Start();
    }
    std::string KeyStore() const { return ReadWhole(Path("keys/Quillform.keys")); }
};

TEST_F(Commands, AKeyInUseIsRefusedAndAChangeOutlivesARestart)
{
    T_APP_COMMAND *close = FindAppCommandByCode(app, 257);
    EXPECT_FALSE(SetAppCommandKey(app, close, KEY_CTRL('S')));
    EXPECT_EQ(close->key, 0u);
    EXPECT_FALSE(FileExists(Path("keys/Quillform.keys").c_str()));
    EXPECT_TRUE(SetAppCommandKey(app, close, KEY_CTRL('W')));
    EXPECT_EQ(FindAppCommandByKey(app, KEY_CTRL('W')), close);
    EXPECT_EQ(KeyStore(), "257 303\n");

    Restart();
    EXPECT_EQ(FindAppCommandByCode(app, 257)->key, (u32)KEY_CTRL('W'));
    EXPECT_EQ(FindAppCommandByCode(app, 257)->default_key, 0u);
    EXPECT_EQ(FindAppCommandByCode(app, 256)->key, (u32)KEY_CTRL('O'));

    // Its own key again is no conflict; back to the default leaves nothing to store.
    close = FindAppCommandByCode(app, 257);
    EXPECT_TRUE(SetAppCommandKey(app, close, KEY_CTRL('W')));
    EXPECT_TRUE(SetAppCommandKey(app, close, 0));
    EXPECT_EQ(KeyStore(), "");
    Restart();
    EXPECT_EQ(FindAppCommandByCode(app, 257)->key, 0u);
}

TEST_F(Commands, ABrokenKeyStoreGivesTheDefaultsAndOneLogLine)
{
    const char *stores[] = {
        "257 303\nsave ctrl+s\n", "257\n", "257 303 9\n", "-1 5\n", "257 99999\n",
    };
    for (const char *store : stores) {
        ASSERT_TRUE(MakeEntireDirectory(Path("keys").c_str()));
        WriteWhole(Path("keys/Quillform.keys"), store);
        std::string log = CaptureLog([&] { Restart(); });
        EXPECT_EQ(CountLines(log), 1) << store << log;
        EXPECT_EQ(FindAppCommandByCode(app, 257)->key, 0u) << store;
        EXPECT_EQ(KeyStore(), store);  // left as it is
    }
    WriteWhole(Path("keys/Quillform.keys"), "\n  259 266\r\n\n");  // blank lines are no fault
    std::string log = CaptureLog([&] { Restart(); });
    EXPECT_EQ(log, "");
    EXPECT_EQ(FindAppCommandByCode(app, 259)->key, 266u);
}
