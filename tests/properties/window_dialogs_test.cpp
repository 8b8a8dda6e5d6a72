// The action editor, the window properties dialog, the window message control and the source file
// information: what each box writes, what is put back, greyed, kept and marked.
#include "tests/properties/properties_fixture.h"

#include "source/name_tables.h"

#define OUTSIDE_BITS 0x80000000u  // a bit that no box of the action editor shows

TEST_F(PropertiesTest, ActionEditorBoxesCancelAndDefaults)
{
    gadgets->current_gadget = NULL;
    EXPECT_EQ(OpenActionEditor(page), nullptr);  // no current gadget: nothing opens
    t_gadget *button = Make(TOOL_BUTTON, 20, 20, 100, 24);
    button->action = ACT_LMOUSE_UP | ACT_MOUSE_WHEEL_UP | OUTSIDE_BITS;
    page->state_flags &= ~WSF_MODIFIED;
    t_Window *editor = OpenActionEditor(page);
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(editor->title_suffix, button->name);
    EXPECT_EQ(button->saved_action, button->action);
    // The boxes start as the mask: one wheel bit alone leaves "Wheel" unchecked.
    struct {
        u32 item;
        const char *text;
        int checked;
    } const boxes[] = {{3, "Left Down", 0}, {4, "Left Up", 1}, {7, "Wheel", 0}, {8, "Right Down", 0}};
    for (const auto &b : boxes) {
        t_gadget *box = Control(editor, b.item);
        ASSERT_NE(box, nullptr);
        EXPECT_STREQ(box->name, b.text);
        EXPECT_EQ(box->class_data != 0, b.checked) << b.text;
    }
    // Boxes write at once; "Wheel" sets and clears both bits.
    ClickControl(Control(editor, 3));
    EXPECT_TRUE(button->action & ACT_LMOUSE_DOWN);
    ClickControl(Control(editor, 7));
    EXPECT_EQ(button->action & ACT_MOUSE_WHEEL, (u32)ACT_MOUSE_WHEEL);
    ClickControl(Control(editor, 7));
    EXPECT_EQ(button->action & ACT_MOUSE_WHEEL, 0u);
    ClickControl(Control(editor, 10));
    ClickControl(Control(editor, 10));
    ClickControl(Control(editor, ACTION_ITEM_CANCEL));  // bit for bit back, outside bits too
    EXPECT_EQ(button->action, ACT_LMOUSE_UP | ACT_MOUSE_WHEEL_UP | OUTSIDE_BITS);
    EXPECT_EQ(Dialog(TXT_ACTION_EDITOR), nullptr);
    // Ok keeps; Defaults gives the type's starting mask; a second editor's snapshot is the later one.
    editor = OpenActionEditor(page);
    ClickControl(Control(editor, ACTION_ITEM_DEFAULTS));
    EXPECT_EQ(button->action, (u32)(ACT_LMOUSE_UP | ACT_LMOUSE_DBL));
    EXPECT_TRUE(Control(editor, 5)->class_data);
    t_Window *second = OpenActionEditor(page);
    EXPECT_NE(second, editor);
    EXPECT_EQ(button->saved_action, (u32)(ACT_LMOUSE_UP | ACT_LMOUSE_DBL));
    ClickControl(Control(second, ACTION_ITEM_OK));
    SendWindowMessage(editor, 0, ACT_TERMINATE, NULL);  // the close gadget keeps what is set
    EXPECT_EQ(button->action, (u32)(ACT_LMOUSE_UP | ACT_LMOUSE_DBL));
    UserTurns(1);
    EXPECT_FALSE(Modified());
    // The buttons stand in the bottom corners, clear of the combos.
    editor = OpenActionEditor(page);
    t_gadget *ok = Control(editor, ACTION_ITEM_OK), *left = Control(editor, ACTION_ITEM_LEFT_COMBO);
    EXPECT_GE(ok->screen_y, left->screen_y + left->base_height);
    EXPECT_LE(ok->screen_x + ok->base_width, editor->user_x + editor->user_w);
}

TEST_F(PropertiesTest, WindowPropertiesSwitchThePageLive)
{
    page->state_flags &= ~WSF_MODIFIED;
    t_Window *dialog = OpenWindowProperties(page);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->title_suffix, page->name);
    EXPECT_TRUE(Control(dialog, WINPROP_ITEM_SOURCE_FILE)->live_flags & GADGET_FLAGS_DISABLED);  // no file yet
    u16 border_size = DISPLAY_RECORD->border_size;
    // Border off and on: a new handler and the display's border size each time.
    for (int on : {0, 1, 0, 1}) {
        SCOPED_TRACE(on);
        t_Handler *old = record->border;
        ClickControl(Control(dialog, WINPROP_ITEM_BORDER));
        EXPECT_EQ((page->flags & WF_BORDER) != 0, on);
        EXPECT_EQ(page->border_size, on ? border_size : 0);
        EXPECT_EQ(record->border != nullptr, on);
        if (on) {
            EXPECT_NE(record->border, old);
        }
        EXPECT_EQ(page->user_x, page->x + page->border_size);
        EXPECT_EQ((Control(dialog, 11)->live_flags & GADGET_FLAGS_DISABLED) != 0, !on);
    }
    EXPECT_TRUE(Modified());
    // Title bar off greys the six boxes after it and keeps their bits.
    page->flags |= WF_CLOSE;
    ClickControl(Control(dialog, WINPROP_ITEM_TITLE_BAR));
    EXPECT_FALSE(page->flags & WF_TITLE);
    EXPECT_TRUE(page->flags & WF_CLOSE);
    for (u32 item : {6u, 7u, 8u, 13u, 14u, 15u})
        EXPECT_TRUE(Control(dialog, item)->live_flags & GADGET_FLAGS_DISABLED) << item;
    EXPECT_FALSE(Control(dialog, 16)->live_flags & GADGET_FLAGS_DISABLED);
    EXPECT_EQ(page->user_y, page->y + page->border_size);
    ClickControl(Control(dialog, WINPROP_ITEM_TITLE_BAR));
    EXPECT_TRUE(page->flags & WF_TITLE);
    EXPECT_GT(page->user_y, page->y + page->border_size);
    // Plain boxes: the bit follows, the page is marked; Open FullScreen too.
    struct {
        u32 item, bit;
    } const plain[] = {{5, WF_OPEN_FULLSCREEN}, {16, WF_ALTF4}, {19, WF_NO_BACK}, {11, WF_RESIZE}};
    for (const auto &p : plain) {
        u32 before = page->flags & p.bit;
        page->state_flags &= ~WSF_MODIFIED;
        ClickControl(Control(dialog, p.item));
        EXPECT_NE(page->flags & p.bit, before) << p.item;
        EXPECT_TRUE(Modified()) << p.item;
    }
    // The name is edited in place and marks the page; no flag moves.
    u32 flags = page->flags;
    page->state_flags &= ~WSF_MODIFIED;
    TypeInto(Control(dialog, WINPROP_ITEM_NAME), "Login");
    UserKey(KEY_RETURN, 0);
    EXPECT_STREQ(page->name, "Login");
    EXPECT_EQ(page->flags, flags);
    EXPECT_TRUE(Modified());
    // The close gadget keeps the place; Escape doesn't.
    T_RPOS moved = {(i16)(dialog->x + 40), (i16)(dialog->y + 20), dialog->w, dialog->h};
    ResizeWindow(dialog, &moved);
    SendWindowMessage(dialog, 0, ACT_TERMINATE, NULL);
    T_RPOS kept = editor_config->win_dialog_rect;
    EXPECT_NE(kept.w, 0);
    dialog = OpenWindowProperties(page);
    EXPECT_EQ(dialog->x, moved.x);
    EXPECT_EQ(dialog->y, moved.y);
    UserKey(KEY_ESCAPE, 0);
    EXPECT_EQ(Dialog(TXT_WINDOW_PROPERTIES), nullptr);
    EXPECT_EQ(editor_config->win_dialog_rect.x, kept.x);
}

TEST_F(PropertiesTest, MessageControlRowsEditTheDesignMask)
{
    EXPECT_EQ(page->idcmp, (u32)IDCMP_TERMINATE);
    page->idcmp |= 0x200 | 0x1000 | 0x80000;  // bits without a row
    page->state_flags &= ~WSF_MODIFIED;
    t_Window *dialog = OpenMessageControl(page);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(OpenMessageControl(page), dialog);  // one per page
    std::vector<std::string> labels = Texts(dialog, GADGET_TYPE_CHECK_BOX);
    ASSERT_EQ(labels.size(), 20u);
    struct {
        u32 row;
        const char *label;
    } const readable[] = {
        {0, "Loose context"}, {2, "Terminate"}, {6, "Window resize"}, {7, "Requester ok"}, {15, "Firsttime run"}};
    for (const auto &r : readable)
        EXPECT_EQ(labels[r.row], r.label);
    EXPECT_STREQ(idcmp_names[2].text, "IDCMP_TERMINATE");  // the table's own text is untouched
    for (u32 row = 0; row < 20; row++)
        EXPECT_EQ(Control(dialog, row + MSG_ITEM_FIRST_ROW)->class_data != 0, row == 2) << row;
    ClickControl(Control(dialog, 2 + 4));  // "Key"
    ClickControl(Control(dialog, 2 + 2));  // "Terminate" off
    EXPECT_EQ(page->idcmp, (u32)(IDCMP_KEY | 0x200 | 0x1000 | 0x80000));
    EXPECT_FALSE(Modified());
    // The combo fills the window after a resize.
    T_RPOS bigger = {dialog->x, dialog->y, (i16)(dialog->w + 60), (i16)(dialog->h + 40)};
    ResizeWindow(dialog, &bigger);
    UserTurns(1);
    EXPECT_EQ(record->msg_combo_first->base_width, dialog->user_w);
    EXPECT_EQ(record->msg_combo_first->base_height, dialog->user_h);
    UserKey(KEY_ESCAPE, 0);
    EXPECT_EQ(Dialog(TXT_MESSAGE_CONTROL), nullptr);
    EXPECT_EQ(editor_config->msg_dialog_rect.w, 0);
}

// The information window lists the file, the lines read and each line the reader passed over.
TEST_F(PropertiesTest, SourceFileInfoListsWhatTheNextSaveDrops)
{
    std::string path = std::string(harness.root) + "/info.cpp";
    SavePage(page, path.c_str());
    std::string text;
    {
        FILE *f = fopen(path.c_str(), "rb");
        ASSERT_NE(f, nullptr);
        char buffer[65536];
        text.assign(buffer, fread(buffer, 1, sizeof(buffer), f));
        fclose(f);
    }
    text = "// hand-written note\n" + text + "int helper() { return 1; }\n";
    FILE *f = fopen(path.c_str(), "wb");
    fwrite(text.data(), 1, text.size(), f);
    fclose(f);
    t_Window *read = OpenPageFile(harness.main_window, path.c_str());
    ASSERT_NE(read, nullptr);
    read->state_flags &= ~WSF_MODIFIED;
    t_List rows;
    InitList(&rows, "rows");
    FillSourceFileInfo(read, &rows);
    std::vector<std::string> listed;
    for (t_Node *n = rows.first; n->next; n = n->next)
        listed.push_back(n->name);
    FreeListEntries(&rows);
    ASSERT_GE(listed.size(), 5u);
    EXPECT_EQ(listed[0], "File: " + path);
    EXPECT_NE(listed[1].find("Size: "), std::string::npos);
    EXPECT_EQ(listed[2].rfind("Lines read: ", 0), 0u);
    EXPECT_EQ(listed[3], TXT_INFO_PASSED_HEAD);
    EXPECT_EQ(listed[4], "    1: // hand-written note");
    int helper_listed = 0;
    for (const std::string &row : listed)
        helper_listed += row.size() > 26 && row.compare(row.size() - 26, 26, "int helper() { return 1; }") == 0;
    EXPECT_EQ(helper_listed, 1);
    t_Window *info = OpenSourceFileInfo(read);
    ASSERT_NE(info, nullptr);
    EXPECT_NE(std::string(FindGadgetHandler(info)->first_gadget->name).find("info.cpp"), std::string::npos);
    ClickControl(Control(info, INFO_ITEM_OK));
    EXPECT_EQ(FindWindowByName(read, TXT_SOURCE_INFO), nullptr) << "the window went, and was freed";
    EXPECT_FALSE(read->state_flags & WSF_MODIFIED);
}
