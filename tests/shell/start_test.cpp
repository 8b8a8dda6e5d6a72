// The module's entry: the first start's settings, commands and main window, a second start in the
// same process, and the settings store across runs: a tail, and a store that can't be read.
#include <fstream>
#include <sstream>

#include "tests/shell/shell_fixture.h"

extern "C" t_Window *Dll_OpenQuillformWindow(T_CREATE_APPLICATION *create);

static u32 ReadU32(const void *block, u32 offset)
{
    u32 value;
    memcpy(&value, (const u8 *)block + offset, 4);
    return value;
}

static std::string ReadFile(const std::string &path)
{
    std::ifstream file(path, std::ios::binary);
    std::stringstream text;
    text << file.rdbuf();
    return text.str();
}

static int CountLines(const char *text, const char *needle)
{
    int n = 0;
    for (const char *at = strstr(text, needle); at; at = strstr(at + 1, needle))
        n++;
    return n;
}

// A first start in an empty data root makes the default block, the 24 commands and the main
// window; a second start in the same process activates the first main window and changes nothing.
TEST(Start, FirstStartMakesTheDefaultsAndASecondChangesNothing)
{
    const struct {
        const char *name;
        u32 item_code;
        u32 key;
    } expected[] = {
        {"Open", 256, 295},
        {"Close", 257, 0},
        {"Close all", 258, 0},
        {"Save", 259, 299},
        {"Save as", 260, 303},
        {"Save all", 261, 0},
        {"Exit", 262, 0},
        {"Undo", 263, 306},
        {"Redo", 264, 305},
        {"Cut", 265, 304},
        {"Copy", 266, 283},
        {"Paste", 267, 302},
        {"Select All", 268, 281},
        {"Select None", 269, 0},
        {"Inverse Selection", 270, 0},
        {"Re-order Item codes", 271, 0},
        {"Settings", 272, 275},
        {"Horizontal", 273, 0},
        {"Vertical", 274, 0},
        {"Size to content", 275, 0},
        {"Flip Horizontal", 276, 0},
        {"Tab order", 277, 0},
        {"Keyboard", 278, 0},
        {"Preview", 279, 298},
    };
    T_HARNESS h;
    ASSERT_TRUE(HarnessStart(&h, NULL, SCREEN_W, SCREEN_H));
    const u8 *block = (const u8 *)editor_config;
    EXPECT_EQ((const char *)block + 4, std::string(h.root) + "/Projects/QfFiles");
    EXPECT_STREQ((const char *)block + 260, "Backup");
    const u32 words[] = {548, 7, 0, 0};  // size, flags, the back pointer (kept beside), open_count
    for (u32 i = 0; i < 4; i++)
        EXPECT_EQ(ReadU32(block, 516 + 4 * i), words[i]) << 516 + 4 * i;
    EXPECT_EQ(config_resource->data, editor_config);
    EXPECT_EQ(config_resource->data_size, 548u);

    ASSERT_EQ(CountListEntries(&h.application->commands), 24u);
    const auto *row = expected;
    for (T_APP_COMMAND *c = (T_APP_COMMAND *)h.application->commands.first; c->next; c = c->next, row++) {
        SCOPED_TRACE(row->name);
        EXPECT_STREQ(c->name, row->name);
        EXPECT_EQ(c->item_code, row->item_code);
        EXPECT_EQ(c->key, row->key);
    }
    EXPECT_STREQ(FindAppCommandByCode(h.application, 278)->group, "Layout");

    t_Window *w = h.main_window;
    EXPECT_STREQ(w->name, "Quillform");
    EXPECT_EQ(w->flags, 0x501FCu);
    EXPECT_EQ(w->idcmp, 0x4594u);
    EXPECT_EQ(w->UserAreaColour, DISPLAY_RECORD->window_colour);
    EXPECT_EQ(w->icon_bank, h.icon_bank);
    ASSERT_NE(FindMainRecord(w), nullptr);

    T_CREATE_APPLICATION create;
    memset(&create, 0, sizeof(create));
    create.application = NewApplication("Other");
    create.w = 400;
    create.h = 300;
    EXPECT_EQ(Dll_OpenQuillformWindow(&create), nullptr);
    EXPECT_EQ(CountListEntries(&create.application->commands), 0u);
    EXPECT_EQ(CountListEntries(&h.application->commands), 24u);
    EXPECT_EQ((const u8 *)editor_config, block);
    EXPECT_EQ(CURRENT_DISPLAY->window_class->current_window, h.main_window);
    HarnessStop(&h, 0);
}

// Ends the session as a person would: a click on the main window's close gadget.
static void CloseByCloseGadget(T_HARNESS *h)
{
    t_Window *w = h->main_window;
    UserClick((i16)(w->x + w->w - w->border_size - w->title_height / 2 - 1),
              (i16)(w->y + w->border_size + w->title_height / 2), 1);
    UserTurns(2);
}

// The store across runs: what a run closed by its close gadget leaves, the next reads; a store
// cut short or garbage gives a first-run start and one log line, and stays as it was until the
// session ends in order; a block with a tail comes back with it and a fresh back pointer.
TEST(Session, TheStoreAcrossRuns)
{
    char root[512];
    ASSERT_TRUE(MakeTempRoot(root, sizeof(root)));
    const std::string store = std::string(root) + "/store/AppQuillform.res";
    T_HARNESS h;
    ASSERT_TRUE(HarnessStart(&h, root, SCREEN_W, SCREEN_H));
    editor_config->flags = 5;
    strcpy(editor_config->backup_path, "Saved copies");
    CloseByCloseGadget(&h);
    EXPECT_TRUE(SessionEnded());
    HarnessStop(&h, 1);
    ASSERT_TRUE(HarnessStart(&h, root, SCREEN_W, SCREEN_H));
    EXPECT_EQ(editor_config->flags, 5u);
    EXPECT_STREQ(editor_config->backup_path, "Saved copies");
    EXPECT_EQ(editor_config->size, 548u);
    HarnessStop(&h, 1);

    const std::string good = ReadFile(store);
    ASSERT_GT(good.size(), 548u);
    for (const std::string &bad : {good.substr(0, good.size() / 2), std::string(good.size(), 'Z')}) {
        SCOPED_TRACE(bad.size() < good.size() ? "truncated" : "garbage");
        ASSERT_TRUE(WriteTextFile(store, bad));
        ASSERT_TRUE(HarnessStart(&h, root, SCREEN_W, SCREEN_H));
        EXPECT_EQ(editor_config->flags, 7u);
        EXPECT_EQ(CountLines(HarnessLog(), "AppQuillform"), 1) << HarnessLog();
        UserTurns(3);
        EXPECT_EQ(ReadFile(store), bad);
        CloseByCloseGadget(&h);
        HarnessStop(&h, 1);
        ASSERT_TRUE(HarnessStart(&h, root, SCREEN_W, SCREEN_H));
        EXPECT_EQ(editor_config->flags, 7u);
        EXPECT_EQ(CountLines(HarnessLog(), "AppQuillform"), 0) << HarnessLog();
        HarnessStop(&h, 1);
    }

    // A block with a tail of two paths and a stale back pointer, stored by the toolkit alone.
    const std::string tail = TailOf({"/nowhere/a.cpp", "/nowhere/page two.cpp"});
    remove(store.c_str());
    ASSERT_TRUE(OpenToolkit("headless", 800, 600, root));
    T_RESOURCE *r = CreateResource(&_MarshalryBase->resources, "AppQuillform", 548 + (u32)tail.size(), 128);
    T_EDITOR_CONFIG *c = (T_EDITOR_CONFIG *)r->data;
    c->size = 548 + (u32)tail.size();
    c->flags = 3;
    c->resource = 0xDEADBEEF;
    c->open_count = 2;
    memcpy((u8 *)r->data + 548, tail.data(), tail.size());
    EXPECT_EQ(StoreResources(&_MarshalryBase->resources), 0u);
    CloseToolkit();
    ASSERT_TRUE(HarnessStart(&h, root, SCREEN_W, SCREEN_H));
    EXPECT_EQ(editor_config->flags, 3u);
    EXPECT_EQ(editor_config->open_count, 2u);
    EXPECT_EQ(editor_config->resource, 0u);
    EXPECT_EQ(config_resource->data, editor_config);
    EXPECT_EQ(std::string((const char *)editor_config + 548, tail.size()), tail);
    HarnessStop(&h, 1);
    RemoveTree(root);
}

// A few pixels of the main window: the title bar's colour and text, and the user area's colour.
TEST(Screen, MainWindowFrameAndTitle)
{
    T_HARNESS h;
    ASSERT_TRUE(HarnessStart(&h, NULL, SCREEN_W, SCREEN_H));
    UserTurns(1);
    i32 width, height, pitch;
    u32 *pixels = display->pixels(&width, &height, &pitch);
    t_Window *w = h.main_window;
    auto at = [&](int x, int y) { return pixels[y * pitch + x] & 0xFFFFFF; };
    const u32 title = DISPLAY_RECORD->title_colour & 0xFFFFFF;
    // The title bar's colour fills its middle, away from the text and the gadgets.
    EXPECT_EQ(at(w->x + w->w / 2 + 200, w->y + w->border_size + 2), title);
    // The title's text: pixels of another colour near the left of the bar.
    int text_pixels = 0;
    for (int y = w->y + w->border_size; y < w->y + w->border_size + w->title_height; y++)
        for (int x = w->x + w->border_size; x < w->x + w->border_size + 120; x++)
            text_pixels += at(x, y) != title;
    EXPECT_GT(text_pixels, 20);
    EXPECT_EQ(at(w->user_x + w->user_w - 20, w->user_y + w->user_h - 20), w->UserAreaColour & 0xFFFFFF);
    HarnessStop(&h, 0);
}
