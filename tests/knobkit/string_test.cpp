// String gadgets: editing keys, the selection and the maximum, own buffers, and the secret look.
#include "knobkit_fixture.h"

#include <string.h>

// A step of an edit: typed text, or a key with qualifiers.
struct EDIT_STEP {
    const char *text;
    u16 key, qualifiers;
};

static void Play(const std::vector<EDIT_STEP> &steps)
{
    for (const EDIT_STEP &s : steps) {
        if (s.text)
            TypeText(s.text);
        else
            Key(s.key, s.qualifiers);
    }
}

static EDIT_STEP T(const char *text)
{
    return {text, 0, 0};
}
static EDIT_STEP K(u16 key, u16 qualifiers = 0)
{
    return {nullptr, key, qualifiers};
}

TEST_F(GadgetTest, StringEditingKeys)
{
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
        {"abc", 5, {T("defg")}, "abcde", 5},                        // max characters at most
        {"abcde", 5, {K(KEY_CTRL('A')), T("xy")}, "xy", 2},         // a replaced selection makes room
        {"", 0, {T("\xc3\xa9")}, "\xe9", 1},                        // typed é is one Latin-1 byte
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

TEST_F(GadgetTest, StringMakesItsOwnBufferWithItsName)
{
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
        for (t_gadget *other : made)
            EXPECT_NE(other->data, g->data);
        made.push_back(g);
    }
    EXPECT_EQ(made[2]->max_chars, 255);  // max 0 means 255
    SetCurrentGadget(window, made[0]);
    TypeText("X");
    EXPECT_STREQ((char *)made[0]->data, "FirstX");
    EXPECT_STREQ((char *)made[1]->data, "Sec");
    EXPECT_EQ(PutStringName[0], 0);
}

TEST_F(GadgetTest, SecretStringShowsNoText)
{
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
