// The settings dialog at work: the default record shown, a check box clicked changes its bit at
// once, and the path field edits backup_path in place, up to 255 characters.
#include "tests/shell/shell_fixture.h"

#define FIELD_BACKUP_PATH 50

class SettingsDialogTest : public ShellTest
{
  protected:
    t_Window *dialog = NULL;

    void SetUp() override
    {
        ShellTest::SetUp();
        UserKey(KEY_F1 + 9, 0);
        dialog = FindLiveWindow(SETTINGS_TITLE);
        ASSERT_NE(dialog, nullptr);
    }
    void ClickGadget(u32 item_code)
    {
        i16 x, y;
        ASSERT_TRUE(FindGadgetCentre(SETTINGS_TITLE, item_code, &x, &y));
        UserClick(x, y, 1);
    }
    t_gadget *Field() { return FindGadgetByItemCode(dialog, FIELD_BACKUP_PATH); }
};

// Every box shows on for the default record; a click on one switches its bit of the settings at
// once and leaves the other bits alone, a second click switches it back. A dialog opened
// afterwards shows the record as it is.
TEST_F(SettingsDialogTest, AClickOnABoxChangesItsBitAtOnce)
{
    //  box                              item code  bit
    const struct {
        const char *name;
        u32 item_code, bit;
    } rows[] = {
        {"Optimise source generation", 1, CONFIG_OPTIMISE},
        {"Order gadgets by type", 2, CONFIG_TYPE_ORDER},
        {"Save backups", 3, CONFIG_BACKUPS},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        t_gadget *box = FindGadgetByItemCode(dialog, row.item_code);
        ASSERT_NE(box, nullptr);
        EXPECT_STREQ(box->name, row.name);
        EXPECT_EQ(box->class_data, 1u);
        u32 before = editor_config->flags;
        ClickGadget(row.item_code);
        EXPECT_EQ(editor_config->flags, before & ~row.bit);
        EXPECT_EQ(box->class_data, 0u);
        ClickGadget(row.item_code);
        EXPECT_EQ(editor_config->flags, before);
    }
    ClickGadget(2);
    ASSERT_EQ(editor_config->flags, (u32)(CONFIG_OPTIMISE | CONFIG_BACKUPS));
    SendWindowMessage(dialog, 0, ACT_TERMINATE, NULL);
    UserTurns(1);
    PickFromMenu(MENU_EDIT, CMD_SETTINGS);
    dialog = FindLiveWindow(SETTINGS_TITLE);
    ASSERT_NE(dialog, nullptr);
    for (u32 code : {1u, 2u, 3u})
        EXPECT_EQ(FindGadgetByItemCode(dialog, code)->class_data, code == 2 ? 0u : 1u) << code;
}

// Typing into the field writes backup_path itself, key by key; a path of 255 characters fits and
// the 256th is refused.
TEST_F(SettingsDialogTest, TypingIntoTheFieldEditsTheBackupPathInPlace)
{
    ClickGadget(FIELD_BACKUP_PATH);
    UserKey(KEY_END, 0);
    const std::string long_name(249, 'x');
    //  keys                         the path afterwards
    const struct {
        const char *typed;
        u16 key;
        std::string path;
    } steps[] = {
        {"/old", 0, "Backup/old"},
        {NULL, KEY_BACKSPACE, "Backup/ol"},
        {NULL, KEY_HOME, "Backup/ol"},
        {"/var/", 0, "/var/Backup/ol"},
        {NULL, KEY_CTRL('A'), "/var/Backup/ol"},
        {"copies", 0, "copies"},
        {long_name.c_str(), 0, "copies" + long_name},
        {"y", 0, "copies" + long_name},
    };
    for (const auto &step : steps) {
        SCOPED_TRACE(step.path.size());
        if (step.typed)
            UserType(step.typed);
        else
            UserKey(step.key, step.key == KEY_CTRL('A') ? QUAL_CONTROL : 0);
        EXPECT_EQ(std::string(editor_config->backup_path), step.path);
        EXPECT_EQ(Field()->data, editor_config->backup_path);
    }
    EXPECT_EQ(strlen(editor_config->backup_path), 255u);
}
