// Cut, Copy and Paste through the clipboard: the round trip of every gadget type, what a paste
// does with foreign text, taken item codes and types without a tool, where pasted gadgets stand,
// and the history after each of the commands that move or make gadgets.
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "editor/clipboard.h"
#include "shell/commands.h"
#include "source/gadget_blocks.h"
#include "source/source_writer.h"
#include "tests/editor/editor_fixture.h"

static std::string ReadText(const std::string &path)
{
    std::ifstream file(path);
    std::stringstream text;
    text << file.rdbuf();
    return text.str();
}

// The GADGET blocks of a page file, each from its start marker to its end marker.
static std::vector<std::string> GadgetBlocks(const std::string &text)
{
    std::vector<std::string> blocks;
    for (size_t at = text.find("START_OBJECT: GADGET"); at != std::string::npos;
         at = text.find("START_OBJECT: GADGET", at + 1)) {
        size_t end = text.find("END_OBJECT: GADGET", at);
        blocks.push_back(text.substr(at, end == std::string::npos ? std::string::npos : end - at));
    }
    return blocks;
}

class ClipboardTest : public PageTest
{
  protected:
    t_Window *second = NULL;  // another page, made on demand

    t_Window *SecondPage()
    {
        if (!second)
            second = CreatePageWindow(harness.main_window, (char *)"Other", 0x7C, 460, 60, 860, 360);
        return second;
    }
    // Makes `to` the active page, as a click on it would.
    void Activate(t_Window *to)
    {
        SetActivePage(to, to);
        ISetActiveWindow(to);
    }
    std::string Save(t_Window *window, const char *name)
    {
        std::string path = std::string(harness.root) + "/" + name;
        SavePage(window, path.c_str());
        return ReadText(path);
    }
    std::vector<t_gadget *> GadgetsOf(t_Window *window)
    {
        std::vector<t_gadget *> list;
        for (t_gadget *g = FindGadgetHandler(window)->first_gadget; g->next; g = g->next)
            list.push_back(g);
        return list;
    }
    std::vector<T_GEOM> GeomsOf(t_Window *window)
    {
        std::vector<T_GEOM> geoms;
        for (t_gadget *g : GadgetsOf(window))
            geoms.push_back(Geom(g));
        return geoms;
    }
    static std::string BlocksOf(t_gadget *gadget)
    {
        std::string text;
        WriteGadgetBlocks(&gadget, 1, &text);
        return text;
    }
};

// Every type the catalogue makes, with properties of its own, goes through the clipboard into an
// empty page and is saved there as it was saved on its own page.
TEST_F(ClipboardTest, EveryTypeComesBackThroughTheClipboardAsItWasSaved)
{
    //  tool  text                hover          flags added                   back, text colour  slider step
    const struct {
        u16 tool;
        const char *text;  // for the types with a text buffer
        const char *hover;
        u32 flags;
        u32 back, front;
        i32 step;  // a slider's step, kept as given
    } rows[] = {
        {1, "Enabled", "Switch it", 0, 0xc0c0c0, 0x101010, 1},
        {2, NULL, NULL, GADGET_FLAGS_DISABLED, 0xffffff, 0, 1},
        {3, "One of", "Switch it", GADGET_FLAGS_BOLD, 0xc0c0c0, 0, 1},
        {4, NULL, "Across", 0, 0xc0c0c0, 0, 0},
        {5, NULL, NULL, 0, 0xc0c0c0, 0, -5},
        {6, "Label", NULL, GADGET_FLAGS_ITALICS, 0xc0c0c0, 0x0000ff, 1},
        {7, NULL, "Type here", 0, 0xffffff, 0x101010, 1},
        {8, NULL, NULL, 0, 0xffffff, 0, 1},
        {9, NULL, NULL, 0, 0xc0c0c0, 0, 1},
        {10, NULL, NULL, 0, 0xc0c0c0, 0, 1},
        {11, "Options", NULL, 0, 0xc0c0c0, 0, 1},
        {12, "Start", "Starts it", GADGET_FLAGS_PUSH, 0xc0c0c0, 0, 1},
        {13, NULL, NULL, 0, 0xffffff, 0, 1},
        {14, "Swatch", NULL, 0, 0x0000ff, 0xffffff, 1},
        {15, "User", NULL, GADGET_FLAGS_CURSOR, 0x808080, 0, 1},
        {16, "Picture", NULL, 0, 0, 0, 1},
        {17, "View", "A scene", 0, 0, 0, 1},
    };
    i16 y = 4;
    for (const auto &row : rows) {
        t_gadget *g = Make(row.tool, 8, y, 60, 14);
        ASSERT_NE(g, nullptr) << row.tool;
        y = (i16)(y + 16);
        if (row.text && g->user_data)
            snprintf((char *)g->user_data, 256, "%s", row.text);
        if (row.hover)
            SetGadgetHover(g, row.hover);
        g->flags |= row.flags;
        g->live_flags |= row.flags;
        if (row.flags & GADGET_FLAGS_CURSOR)
            g->cursor = 5;
        SetGadgetColours(g, row.back, row.front);
        if (g->type == GADGET_TYPE_SLIDER)
            ((T_SLIDER_DATA *)g->class_data)->step = row.step;
    }
    t_gadget *fonted = gadgets->first_gadget->next;
    fonted->font = OpenResource(&_FontBase->fonts, "DejaVuSans.ttf", RESOURCE_TYPE_FONT, 0);
    ASSERT_NE(fonted->font, nullptr);

    Command(COMMAND_SELECT_ALL);
    Command(CMD_COPY);
    Activate(SecondPage());
    Command(CMD_PASTE);
    CHECK_PAGE();
    EXPECT_EQ(CheckPageInvariants(second), "");

    std::vector<std::string> source = GadgetBlocks(Save(page, "source.cpp"));
    std::vector<std::string> pasted = GadgetBlocks(Save(second, "pasted.cpp"));
    ASSERT_EQ(source.size(), sizeof(rows) / sizeof(rows[0]));
    ASSERT_EQ(pasted.size(), source.size());
    for (size_t i = 0; i < source.size(); i++)
        EXPECT_EQ(pasted[i], source[i]) << "block " << i;
    // The sliders keep their steps as given, also 0 and negative ones.
    std::vector<i32> steps;
    for (t_gadget *g : GadgetsOf(second))
        if (g->type == GADGET_TYPE_SLIDER)
            steps.push_back(((T_SLIDER_DATA *)g->class_data)->step);
    EXPECT_EQ(steps, (std::vector<i32>{0, -5}));
    // Each pasted gadget is marked and has its own creation record.
    for (t_gadget *g : GadgetsOf(second))
        EXPECT_TRUE(Marked(g));
    EXPECT_EQ(CountListEntries(&((T_WINEDIT_HANDLER *)second->user_data)->undo.nodes), source.size());
}

// What a paste makes of texts that are no copy of this page.
TEST_F(ClipboardTest, PasteTakesBlocksAndPassesOverWhatItCannotMake)
{
    t_gadget *holder = Make(TOOL_BUTTON, 10, 10, 80, 20);  // item code 1
    std::string button = BlocksOf(holder);
    std::string bar = button;
    bar.replace(bar.find("GADGET_TYPE_BUTTON"), strlen("GADGET_TYPE_BUTTON"), "GADGET_TYPE_COLOUR_BAR");
    struct {
        const char *name;
        std::string text;
        u32 made;         // gadgets pasted
        const char *log;  // what the log says, or null
    } const cases[] = {
        {"foreign text", "Dear diary,\nno gadgets today.\n", 0, "no GADGET block"},
        {"an empty clipboard", "", 0, "no GADGET block"},
        {"a block whose item code is taken", button, 1, NULL},
        {"a type without a tool among others", bar + button, 1, "1 of 2 GADGET blocks made no gadget"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name);
        u32 before = Count(), records = Records();
        page->state_flags &= ~WSF_MODIFIED;
        HarnessClearLog();
        SetClipboardText(c.text.c_str());
        Command(CMD_PASTE);
        CHECK_PAGE();
        EXPECT_EQ(Count(), before + c.made);
        EXPECT_EQ(Records(), records + c.made);
        EXPECT_EQ(Modified(), c.made > 0);
        if (c.log) {
            EXPECT_NE(std::string(HarnessLog()).find(c.log), std::string::npos) << HarnessLog();
        }
        if (c.made) {
            t_gadget *pasted = (t_gadget *)gadgets->gadget_list.last;
            EXPECT_NE(pasted->item_code, 1u);  // 1 is the holder's
            EXPECT_EQ(GadgetsWithItemCode(page, pasted->item_code), 1u);
            EXPECT_EQ(Geom(pasted), Geom(holder));  // text from elsewhere: at its own place
            EXPECT_TRUE(Marked(pasted));
            EXPECT_FALSE(Marked(holder));
        }
    }
}

// Pasted into the page it was copied from, a copy stands 8 pixels further at each paste; in
// another page at its own place; a cut pasted back stands where it was.
TEST_F(ClipboardTest, PastedGadgetsStandByWhereTheyCameFrom)
{
    t_gadget *g = Make(TOOL_BUTTON, 20, 30, 80, 20);
    const struct {
        const char *name;
        u32 command;
        int other_page;
        T_GEOM last;  // the last gadget of the page pasted into
    } steps[] = {
        {"copy", CMD_COPY, 0, {20, 30, 80, 20}},         {"paste", CMD_PASTE, 0, {28, 38, 80, 20}},
        {"paste again", CMD_PASTE, 0, {36, 46, 80, 20}}, {"paste into another page", CMD_PASTE, 1, {20, 30, 80, 20}},
        {"cut the first", CMD_CUT, 0, {36, 46, 80, 20}}, {"paste the cut back", CMD_PASTE, 0, {20, 30, 80, 20}},
        {"and again", CMD_PASTE, 0, {28, 38, 80, 20}},
    };
    for (const auto &s : steps) {
        SCOPED_TRACE(s.name);
        if (s.command == CMD_CUT || s.command == CMD_COPY) {
            ClearAllMarkedGadgets(g);
            Mark(gadgets->first_gadget);
        }
        t_Window *target = s.other_page ? SecondPage() : page;
        Activate(target);
        Command(s.command);
        EXPECT_EQ(CheckPageInvariants(target), "");
        EXPECT_EQ(Geom((t_gadget *)FindGadgetHandler(target)->gadget_list.last), s.last);
    }
}

// Undo takes back a flip, a nudge and a paste record by record; Redo brings each back, a pasted
// gadget with its own properties and item code. Cut, like Delete, leaves no record.
TEST_F(ClipboardTest, UndoAndRedoFollowPasteCutFlipAndNudge)
{
    t_gadget *a = Make(TOOL_BUTTON, 10, 10, 40, 20);
    t_gadget *b = Make(TOOL_CHECK_BOX, 100, 50, 60, 16);
    snprintf((char *)b->user_data, 256, "%s", "Kept text");
    Mark(a);
    Mark(b);
    enum { FLIP, NUDGE, UNDO, REDO, COPY_PASTE, CUT_LAST };
    //  step                  action      times  gadgets  a                  b                  records
    struct {
        const char *name;
        int action;
        int times;
        u32 count;
        T_GEOM a, b;
        u32 records;
    } const steps[] = {
        {"flip", FLIP, 1, 2, {120, 10, 40, 20}, {10, 50, 60, 16}, 2},
        {"nudge: Shift+Right, Down", NUDGE, 1, 2, {128, 11, 40, 20}, {18, 51, 60, 16}, 6},
        {"undo the last gadget's step", UNDO, 1, 2, {128, 11, 40, 20}, {18, 50, 60, 16}, 6},
        {"undo back to the flip", UNDO, 3, 2, {120, 10, 40, 20}, {10, 50, 60, 16}, 6},
        {"redo the first gadget's step", REDO, 1, 2, {128, 10, 40, 20}, {10, 50, 60, 16}, 6},
        {"copy and paste both", COPY_PASTE, 1, 4, {128, 10, 40, 20}, {10, 50, 60, 16}, 5},
        {"undo one pasted", UNDO, 1, 3, {128, 10, 40, 20}, {10, 50, 60, 16}, 5},
        {"undo the other", UNDO, 1, 2, {128, 10, 40, 20}, {10, 50, 60, 16}, 5},
        {"redo both", REDO, 2, 4, {128, 10, 40, 20}, {10, 50, 60, 16}, 5},
        {"cut the last", CUT_LAST, 1, 3, {128, 10, 40, 20}, {10, 50, 60, 16}, 5},
        {"undo: the cut one's record does nothing, the next takes the other",
         UNDO,
         2,
         2,
         {128, 10, 40, 20},
         {10, 50, 60, 16},
         5},
    };
    u32 pasted_code = 0;
    for (const auto &s : steps) {
        SCOPED_TRACE(s.name);
        for (int i = 0; i < s.times; i++) {
            switch (s.action) {
            case FLIP:
                Command(CMD_FLIP_HORIZONTAL);
                break;
            case NUDGE:
                UserKey(KEY_RIGHT, QUAL_SHIFT);
                UserKey(KEY_DOWN, 0);
                break;
            case UNDO:
                Command(COMMAND_UNDO);
                break;
            case REDO:
                Command(COMMAND_REDO);
                break;
            case COPY_PASTE:
                Command(CMD_COPY);
                Command(CMD_PASTE);
                pasted_code = ((t_gadget *)gadgets->gadget_list.last)->item_code;
                break;
            case CUT_LAST:
                ClearAllMarkedGadgets(a);
                Mark((t_gadget *)gadgets->gadget_list.last);
                Command(CMD_CUT);
                break;
            }
        }
        CHECK_PAGE();
        ASSERT_EQ(Count(), s.count);
        EXPECT_EQ(Geom(a), s.a);
        EXPECT_EQ(Geom(b), s.b);
        EXPECT_EQ(Records(), s.records);
        if (s.count == 4) {  // the copies: 8 pixels on, the check box with its text and code
            std::vector<t_gadget *> all = GadgetsOf(page);
            EXPECT_EQ(Geom(all[2]), (T_GEOM{136, 18, 40, 20}));
            EXPECT_EQ(Geom(all[3]), (T_GEOM{18, 58, 60, 16}));
            EXPECT_STREQ(all[3]->name, "Kept text");
            EXPECT_EQ(all[3]->item_code, pasted_code);
            EXPECT_STREQ(UndoLabel(), "Create gadget");
        }
    }
    EXPECT_TRUE(ClipboardHoldsGadgets());
}

// Cut and Copy are grey with nothing to act on, Paste without a GADGET block on the clipboard, in
// the Edit menu and in the gadget context menu.
TEST_F(ClipboardTest, ClipboardEntriesAreGreyWithNothingToActOn)
{
    t_Menu *edit = FindMenuInHandler(FindMenuHandler(harness.main_window), 0xF001);
    ASSERT_NE(edit, nullptr);
    auto grey = [](t_Menu *menu, u32 code) {
        t_Menu *entry = FindMenuByItemCode(menu, code);
        return entry && (entry->menu_flags & MENU_FLAG_GREY) != 0;
    };
    struct {
        const char *name;
        int gadget;  // 0 none, 1 a current gadget, 2 a marked one
        const char *clipboard;
        bool cut_copy_grey, paste_grey;
    } const states[] = {
        {"an empty page", 0, "words", true, true},
        {"blocks on the clipboard", 0, "\n/*Quillform: START_OBJECT: GADGET */\n", true, false},
        {"a current gadget", 1, "words", false, true},
        {"a marked gadget", 2, "", false, true},
    };
    for (const auto &s : states) {
        SCOPED_TRACE(s.name);
        if (s.gadget) {
            t_gadget *g = Count() ? gadgets->first_gadget : Make(TOOL_BUTTON, 10, 10, 40, 20);
            gadgets->current_gadget = s.gadget == 1 ? g : NULL;
            ClearAllMarkedGadgets(g);
            if (s.gadget == 2)
                Mark(g);
        }
        SetClipboardText(s.clipboard);
        SendWindowMessage(harness.main_window, 0xF001, ACT_MENU_OPEN, NULL);
        SendWindowMessage(page, 0xE000, ACT_MENU_OPEN, NULL);
        const struct {
            t_Menu *menu;
            u32 cut;
        } menus[] = {{edit, CMD_CUT}, {&gadget_context_menu, 0xE001}};
        for (const auto &m : menus) {
            EXPECT_EQ(grey(m.menu, m.cut), s.cut_copy_grey);
            EXPECT_EQ(grey(m.menu, m.cut + 1), s.cut_copy_grey);
            EXPECT_EQ(grey(m.menu, m.cut + 2), s.paste_grey);
        }
    }
}
