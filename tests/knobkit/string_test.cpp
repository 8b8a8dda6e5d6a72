// String gadgets: editing keys, the selection, the maximum, the buffer edited in place, own
// buffers, reports, the mouse and the secret look.
#include "knobkit_fixture.h"

#include <string.h>

// A step of an edit: typed text, or a key with qualifiers.
struct EDIT_STEP {
    const char *text;
    u16 key, qualifiers;
};

static void Play(const std::vector<EDIT_STEP> &steps) {
    for (const EDIT_STEP &s : steps) {
        if (s.text)
            TypeText(s.text);
        else
            Key(s.key, s.qualifiers);
    }
}

static EDIT_STEP T(const char *text) { return {text, 0, 0}; }
static EDIT_STEP K(u16 key, u16 qualifiers = 0) { return {nullptr, key, qualifiers}; }

TEST_F(GadgetTest, StringEditingKeys) {
    struct {
        const char *start;
        i32 max;
        std::vector<EDIT_STEP> steps;
        const char *text;
        i32 cursor;
    } rows[] = {
        {"", 0, {T("abc")}, "abc", 3},
        {"abc", 0, {K(KEY_BACKSPACE)}, "ab", 2},
        {"abc", 0, {K(KEY_HOME), K(KEY_DELETE)}, "bc", 0},
        {"abcd", 0, {K(KEY_LEFT), K(KEY_LEFT), K(KEY_BACKSPACE)}, "acd", 1},
        {"abcd", 0, {K(KEY_HOME), K(KEY_RIGHT, QUAL_SHIFT), K(KEY_RIGHT, QUAL_SHIFT), T("X")}, "Xcd", 1},
        {"abcd", 0, {K(KEY_CTRL('A')), T("z")}, "z", 1},
        {"abcd", 0, {K(KEY_LEFT, QUAL_SHIFT), K(KEY_LEFT, QUAL_SHIFT), K(KEY_DELETE)}, "ab", 2},
        {"abc", 0, {K(KEY_HOME, QUAL_SHIFT), K(KEY_RIGHT), T("q")}, "abcq", 4},  // collapses to the end
        {"abc", 0, {K(KEY_END, QUAL_SHIFT), K(KEY_HOME), T("q")}, "qabc", 1},
        {"abc", 5, {T("defg")}, "abcde", 5},                       // max characters at most
        {"abcde", 5, {K(KEY_CTRL('A')), T("xy")}, "xy", 2},        // a replaced selection makes room
        {"", 0, {T("\xc3\xa9")}, "\xe9", 1},                       // typed é is one Latin-1 byte
        {"ab", 0, {K('x', QUAL_CONTROL), K(KEY_ESCAPE)}, "ab", 2},  // shortcuts are not typed
        {"ab", 0, {K(KEY_HOME), K(KEY_BACKSPACE), K(KEY_END), K(KEY_DELETE)}, "ab", 2},  // nothing there
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.start);
        char buffer[256];
        strcpy(buffer, row.start);
        T_GADGETOBJECTINIT init = Init(GADGET_TYPE_STRING, 10, 10, 200, 0);
        init.data = buffer, init.max = row.max;
        t_gadget *g = Make("string", init);
        SetCurrentGadget(window, g);
        Play(row.steps);
        EXPECT_EQ(g->data, (void *)buffer);  // edited in place
        EXPECT_STREQ(buffer, row.text);
        EXPECT_EQ(g->value, row.cursor);
        RemoveObject(&handler->head, g);
    }
}

TEST_F(GadgetTest, StringFollowsARepointedBuffer) {
    char first[32] = "one", second[32] = "two";
    T_GADGETOBJECTINIT init = Init(GADGET_TYPE_STRING, 10, 10, 200, 0);
    init.data = first, init.max = 31;
    t_gadget *g = Make("string", init);
    SetCurrentGadget(window, g);
    TypeText("!");
    g->data = second;
    Key(KEY_END);
    TypeText("?");
    EXPECT_STREQ(first, "one!");
    EXPECT_STREQ(second, "two?");
}

TEST_F(GadgetTest, StringMakesItsOwnBufferWithItsName) {
    struct {
        void *data;
        i32 max;
        const char *name, *text;
    } rows[] = {
        {PutStringName, STRINGS_MAX_SIZE, "First", "First"},
        {PutStringName, 3, "Second", "Sec"},  // the name cut to the maximum
        {nullptr, 0, "Third", "Third"},
    };
    std::vector<t_gadget *> made;
    for (const auto &row : rows) {
        T_GADGETOBJECTINIT init = Init(GADGET_TYPE_STRING, 10, 10 + 30 * (i16)made.size(), 200, 0);
        init.data = row.data, init.max = row.max;
        t_gadget *g = Make(row.name, init);
        EXPECT_NE(g->data, (void *)PutStringName);
        EXPECT_STREQ((char *)g->data, row.text);
        for (t_gadget *other : made) EXPECT_NE(other->data, g->data);
        made.push_back(g);
    }
    EXPECT_EQ(made[2]->max_chars, 255);  // max 0 means 255
    SetCurrentGadget(window, made[0]);
    TypeText("X");
    EXPECT_STREQ((char *)made[0]->data, "FirstX");
    EXPECT_STREQ((char *)made[1]->data, "Sec");
    EXPECT_EQ(PutStringName[0], 0);
}

TEST_F(GadgetTest, StringReportsEnterLeavingAndDoubleClick) {
    char buffer[32] = "text";
    T_GADGETOBJECTINIT init = Init(GADGET_TYPE_STRING, 10, 10, 200, 0, 50, ACT_LMOUSE_UP | ACT_LMOUSE_DBL);
    init.data = buffer;
    t_gadget *g = Make("string", init);
    t_gadget *other = Make("other", Init(GADGET_TYPE_BUTTON, 10, 60, 80, 0, 51, 0));
    Click(MidX(g), MidY(g));
    recorded.clear();
    Key(KEY_RETURN);
    ASSERT_EQ(CountRecorded(ACT_LMOUSE_UP), 1u);
    EXPECT_EQ(recorded.back().item_code, 50u);
    EXPECT_EQ(recorded.back().data, g);
    Click(MidX(other), MidY(other));  // leaving the field
    Turn();
    EXPECT_EQ(CountRecorded(ACT_LMOUSE_UP), 2u);
    EXPECT_EQ(recorded.back().item_code, 50u);
    Turn(3);
    EXPECT_EQ(CountRecorded(ACT_LMOUSE_UP), 2u);  // once only
    Press(MidX(g), MidY(g));
    Release(MidX(g), MidY(g));
    Press(MidX(g), MidY(g));
    Release(MidX(g), MidY(g));
    EXPECT_EQ(CountRecorded(ACT_LMOUSE_DBL), 1u);
    EXPECT_EQ(g->select_from, 0);  // the word is selected
    EXPECT_EQ(g->value, 4);
}

TEST_F(GadgetTest, StringMousePlacesTheCursorAndSelects) {
    char buffer[32] = "abcdefgh";
    T_GADGETOBJECTINIT init = Init(GADGET_TYPE_STRING, 10, 10, 200, 0);
    init.data = buffer;
    t_gadget *g = Make("string", init);
    i16 left = g->screen_x + 1, right = g->screen_x + g->base_width - 2, y = MidY(g);
    Click(left, y);
    EXPECT_EQ(g->value, 0);
    Click(right, y);
    EXPECT_EQ(g->value, 8);
    Drag(left, y, right, y);
    EXPECT_EQ(g->select_from, 0);
    EXPECT_EQ(g->value, 8);
    TypeText("Z");
    EXPECT_STREQ(buffer, "Z");
}

TEST_F(GadgetTest, StringLongTextScrollsToTheCursor) {
    char buffer[256] = {};
    T_GADGETOBJECTINIT init = Init(GADGET_TYPE_STRING, 10, 10, 60, 0);
    init.data = buffer;
    t_gadget *g = Make("string", init);
    SetCurrentGadget(window, g);
    TypeText("a rather long text that will not fit");
    EXPECT_GT(g->scroll, 0);
    Key(KEY_HOME);
    EXPECT_EQ(g->scroll, 0);
}

TEST_F(GadgetTest, SecretStringShowsNoText) {
    char a[32] = "iiii", b[32] = "WWWW";
    T_GADGETOBJECTINIT init = Init(GADGET_TYPE_STRING, 10, 10, 120, 0);
    init.data = a;
    t_gadget *g = Make("string", init);
    auto Look = [&](char *buffer, u32 flags) {
        g->data = buffer;
        g->live_flags = flags;
        Turn();
        return Pixels(GadgetRect(g));
    };
    EXPECT_NE(Look(a, 0), Look(b, 0));
    EXPECT_EQ(Look(a, GADGET_FLAGS_SECRET), Look(b, GADGET_FLAGS_SECRET));  // the same stars
    EXPECT_STREQ(a, "iiii");
}

TEST_F(GadgetTest, StringShowsTheCursorOnlyWhileCurrent) {
    char buffer[32] = "";
    T_GADGETOBJECTINIT init = Init(GADGET_TYPE_STRING, 10, 10, 120, 0);
    init.data = buffer;
    t_gadget *g = Make("string", init);
    t_gadget *other = Make("other", Init(GADGET_TYPE_BUTTON, 10, 60, 80, 0));
    SetCurrentGadget(window, other);
    Turn();
    std::vector<u32> away = Pixels(GadgetRect(g));
    SetCurrentGadget(window, g);
    Turn();
    EXPECT_NE(Pixels(GadgetRect(g)), away);
}

TEST_F(GadgetTest, SettingsStyleFieldEditsTheRecordInPlace) {
    struct {
        char reserved[4];
        char backup_path[256];
    } record = {{}, "Backup"};
    T_GADGETOBJECTINIT init = Init(GADGET_TYPE_STRING, 8, 8, 300, 15, 50, ACT_LMOUSE_DBL);
    init.max = 255, init.data = record.backup_path;
    t_gadget *g = Make("string", init);
    Click(MidX(g), MidY(g));
    Key(KEY_END);
    std::string long_path(249, 'p');  // with "Backup": 255 characters, the field's limit
    TypeText(long_path.c_str());
    TypeText("more");
    EXPECT_EQ(strlen(record.backup_path), 255u);
    EXPECT_EQ(strncmp(record.backup_path, "Backup", 6), 0);
}
