// The key editor "Keyboard": a key another command has is refused with a message.
#include <filesystem>

#include "lumora/menu_internal.h"
#include "pickett_fixture.h"

enum { KEYS_LIST = 1, KEYS_HINT };

class KeyEditor : public PickettTest
{
  protected:
    T_APPLICATION *app = nullptr;
    t_Window *editor = nullptr;

    void SetUp() override
    {
        PickettTest::SetUp();
        MakeParent(IDCMP_TERMINATE | IDCMP_KEY);
        app = NewApplication("KeyTest");
        // group   name    item code  key
        SetAppCommandGroup(app, "File");
        RegisterAppCommand(app, "Open", "Open a document", 256, KEY_CTRL('O'), 0);
        RegisterAppCommand(app, "Save", "Save the document", 259, KEY_CTRL('S'), 0);
        SetAppCommandGroup(app, "Edit");
        RegisterAppCommand(app, "Undo", "Undo the last operation", 263, KEY_CTRL('Z'), 0);
        RegisterAppCommand(app, "Select None", "Select nothing", 269, 0, 0);
        app->window = parent;
        editor = OpenApplicationCmdEditWindow(parent, app);
        ASSERT_NE(editor, nullptr);
        Turn();
    }

    void TearDown() override
    {
        FreeApplication(app);
        PickettTest::TearDown();
    }

    t_gadget *List() { return FindGadgetByItemCode(editor, KEYS_LIST); }

    void PickRow(int row)
    {
        i16 x, y;
        ListRowPoint(List(), row, &x, &y);
        Click(x, y);
    }

    // What ExecuteAppCommand makes of a key: the item code that reached the parent, or 0.
    u32 RunKey(u16 key)
    {
        spy.clear();
        T_KEY_MSG km = {key, 0};
        ExecuteAppCommand(app, nullptr, &km);
        return spy.empty() ? 0 : spy[0].item_code;
    }

    bool EditorStands() { return FindWindowByName(parent, "Keyboard") != nullptr; }
};

TEST_F(KeyEditor, AKeyAnotherCommandHasIsRefusedWithAMessage)
{
    PickRow(1);
    Key(KEY_CTRL('Z'), QUAL_CONTROL);
    EXPECT_EQ(FindAppCommandByCode(app, 259)->key, (u32)KEY_CTRL('S'));
    EXPECT_EQ(FindAppCommandByCode(app, 263)->key, (u32)KEY_CTRL('Z'));
    EXPECT_EQ(RunKey(KEY_CTRL('Z')), 263u);
    t_Window *box = FindWindowByName(editor, "Keyboard");
    ASSERT_NE(box, nullptr);
    EXPECT_FALSE(std::filesystem::exists(data_root + "/keys/KeyTest.keys"));
    Key(KEY_RETURN);  // the box goes; the pick stands, and the next key is taken
    EXPECT_EQ(FindWindowByName(editor, "Keyboard"), nullptr);
    Key(KEY_CTRL('K'), QUAL_CONTROL);
    EXPECT_EQ(FindAppCommandByCode(app, 259)->key, (u32)KEY_CTRL('K'));
}

// The list shows whole rows at the window's first size and after a resize: its last row is never
// cut at its foot.
TEST_F(KeyEditor, TheListShowsWholeRows)
{
    t_gadget *list = List();
    ASSERT_NE(list, nullptr);
    i16 row_h = GadgetFontHeight(list) + 2;
    for (i16 grow : {0, 7, 13}) {
        SCOPED_TRACE(grow);
        if (grow) {
            T_RPOS frame = {editor->x, editor->y, editor->w, (i16)(editor->h + grow)};
            ResizeWindow(editor, &frame);
        }
        EXPECT_EQ((list->base_height - 4) % row_h, 0);  // inside its two-pixel border
        EXPECT_LE(list->pos_y + list->base_height, editor->user_h);
        EXPECT_GT(list->pos_y + list->base_height + row_h, editor->user_h - 8);  // no room for one more
    }
}
