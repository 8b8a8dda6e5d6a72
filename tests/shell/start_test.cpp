// The module's entry: first and later starts, a second start in the same process, the stored
// settings with and without a tail, the commands and the main window's record.
#include <gtest/gtest.h>
#include <string.h>

#include <string>

#include "shell/commands.h"
#include "shell/main_window.h"
#include "display/display.h"
#include "tests/harness/harness.h"

extern "C" t_Window *Dll_OpenQuillformWindow(T_CREATE_APPLICATION *create);

static u32 ReadU32(const void *block, u32 offset)
{
    u32 value;
    memcpy(&value, (const u8 *)block + offset, 4);
    return value;
}

static std::string StorePath(const char *root)
{
    return std::string(root) + "/store/AppQuillform.res";
}

static int CountLines(const char *text, const char *needle)
{
    int n = 0;
    for (const char *at = strstr(text, needle); at; at = strstr(at + 1, needle))
        n++;
    return n;
}

TEST(Start, FirstStartMakesTheDefaults)
{
    T_HARNESS h;
    ASSERT_TRUE(HarnessStart(&h, NULL, 1024, 700));
    const u8 *block = (const u8 *)editor_config;
    std::string expected_path = std::string(h.root) + "/Projects/QfFiles";
    EXPECT_STREQ((const char *)block + 4, expected_path.c_str());
    EXPECT_STREQ((const char *)block + 260, "Backup");
    EXPECT_EQ(ReadU32(block, 516), 548u);
    EXPECT_EQ(ReadU32(block, 520), 7u);
    EXPECT_EQ(ReadU32(block, 524), 0u);  // the back pointer lives beside the block
    EXPECT_EQ(ReadU32(block, 528), 0u);
    EXPECT_EQ(config_resource->data, editor_config);
    EXPECT_EQ(config_resource->data_size, 548u);
    HarnessStop(&h, 0);
}

TEST(Start, SecondStartActivatesTheFirstAndChangesNothing)
{
    T_HARNESS h;
    ASSERT_TRUE(HarnessStart(&h, NULL, 1024, 700));
    u32 commands = CountListEntries(&h.application->commands);
    T_EDITOR_CONFIG *config = editor_config;
    T_APPLICATION *other = NewApplication("Other");
    T_CREATE_APPLICATION create;
    memset(&create, 0, sizeof(create));
    create.application = other;
    create.w = 400;
    create.h = 300;
    EXPECT_EQ(Dll_OpenQuillformWindow(&create), nullptr);
    EXPECT_EQ(CountListEntries(&other->commands), 0u);
    EXPECT_EQ(CountListEntries(&h.application->commands), commands);
    EXPECT_EQ(editor_config, config);
    EXPECT_EQ(CURRENT_DISPLAY->window_class->current_window, h.main_window);
    HarnessStop(&h, 0);
}

TEST(Start, CommandsAreRegisteredWithTheirCodesAndKeys)
{
    struct {
        const char *name;
        u32 item_code;
        u32 key;
    } const expected[] = {
        {"Open", 256, 295},        {"Close", 257, 0},          {"Close all", 258, 0},
        {"Save", 259, 299},        {"Save as", 260, 303},      {"Save all", 261, 0},
        {"Exit", 262, 0},          {"Undo", 263, 306},         {"Redo", 264, 305},
        {"Cut", 265, 304},         {"Copy", 266, 283},         {"Paste", 267, 302},
        {"Select All", 268, 281},  {"Select None", 269, 0},    {"Inverse Selection", 270, 0},
        {"Re-order Item codes", 271, 0}, {"Settings", 272, 275}, {"Horizontal", 273, 0},
        {"Vertical", 274, 0},      {"Size to content", 275, 0}, {"Flip Horizontal", 276, 0},
        {"Tab order", 277, 0},     {"Keyboard", 278, 0},
    };
    T_HARNESS h;
    ASSERT_TRUE(HarnessStart(&h, NULL, 1024, 700));
    ASSERT_EQ(CountListEntries(&h.application->commands), 23u);
    u32 i = 0;
    for (T_APP_COMMAND *c = (T_APP_COMMAND *)h.application->commands.first; c->next; c = c->next, i++) {
        SCOPED_TRACE(expected[i].name);
        EXPECT_STREQ(c->name, expected[i].name);
        EXPECT_EQ(c->item_code, expected[i].item_code);
        EXPECT_EQ(c->key, expected[i].key);
    }
    T_APP_COMMAND *keyboard = FindAppCommandByCode(h.application, 278);
    ASSERT_NE(keyboard, nullptr);
    EXPECT_STREQ(keyboard->group, "Layout");
    HarnessStop(&h, 0);
}

TEST(Start, MainWindowRecord)
{
    T_HARNESS h;
    ASSERT_TRUE(HarnessStart(&h, NULL, 1024, 700));
    t_Window *w = h.main_window;
    EXPECT_STREQ(w->name, "Quillform");
    EXPECT_EQ(w->flags, 0x501FCu);
    EXPECT_EQ(w->idcmp, 0x4594u);
    EXPECT_EQ(w->UserAreaColour, DISPLAY_RECORD->window_colour);
    EXPECT_EQ(w->icon_bank, h.icon_bank);
    T_WINEDIT_MAIN *record = FindMainRecord(w);
    ASSERT_NE(record, nullptr);
    EXPECT_EQ(w->user_data, record);
    EXPECT_EQ(record->application, h.application);
    EXPECT_EQ(record->tool_setup, config_resource);
    ASSERT_NE(record->toolbar, nullptr);
    EXPECT_EQ(record->toolbar->parent, w);
    EXPECT_EQ(record->active_page, nullptr);
    HarnessStop(&h, 0);
}

// Ends the session as a person would: a click on the main window's close gadget.
static void CloseByCloseGadget(T_HARNESS *h)
{
    t_Window *w = h->main_window;
    i16 x = (i16)(w->x + w->w - w->border_size - w->title_height / 2 - 1);
    i16 y = (i16)(w->y + w->border_size + w->title_height / 2);
    UserClick(x, y, 1);
    UserTurns(2);
}

TEST(Session, ClosedByItsCloseGadgetLeavesAStoreTheNextRunReads)
{
    char root[512];
    ASSERT_TRUE(MakeTempRoot(root, sizeof(root)));
    T_HARNESS h;
    ASSERT_TRUE(HarnessStart(&h, root, 1024, 700));
    editor_config->flags = 5;
    strcpy(editor_config->backup_path, "Saved copies");
    CloseByCloseGadget(&h);
    EXPECT_TRUE(SessionEnded());
    HarnessStop(&h, 1);

    ASSERT_TRUE(HarnessStart(&h, root, 1024, 700));
    EXPECT_EQ(editor_config->flags, 5u);
    EXPECT_STREQ(editor_config->backup_path, "Saved copies");
    EXPECT_EQ(editor_config->size, 548u);
    HarnessStop(&h, 1);
    RemoveTree(root);
}

TEST(Session, AStoredTailComesBackWithAFreshBackPointer)
{
    char root[512];
    ASSERT_TRUE(MakeTempRoot(root, sizeof(root)));
    const char *paths[2] = {"/nowhere/a.cpp", "/nowhere/page two.cpp"};
    {
        ASSERT_TRUE(OpenToolkit("headless", 800, 600, root));
        u32 tail = 0;
        for (const char *p : paths)
            tail += (u32)strlen(p) + 5;
        T_RESOURCE *r = CreateResource(&_MarshalryBase->resources, "AppQuillform", 548 + tail, 128);
        T_EDITOR_CONFIG *c = (T_EDITOR_CONFIG *)r->data;
        strcpy(c->backup_path, "Backup");
        c->size = 548 + tail;
        c->flags = 3;
        c->resource = 0xDEADBEEF;
        c->open_count = 2;
        u8 *at = (u8 *)r->data + 548;
        for (const char *p : paths) {
            u32 length = (u32)strlen(p) + 1;
            memcpy(at, &length, 4);
            memcpy(at + 4, p, length);
            at += 4 + length;
        }
        EXPECT_EQ(StoreResources(&_MarshalryBase->resources), 0u);
        CloseToolkit();
    }
    T_HARNESS h;
    ASSERT_TRUE(HarnessStart(&h, root, 1024, 700));
    EXPECT_EQ(editor_config->flags, 3u);
    EXPECT_EQ(editor_config->open_count, 2u);
    EXPECT_EQ(editor_config->resource, 0u);
    EXPECT_EQ(config_resource->data, editor_config);
    const u8 *at = (const u8 *)editor_config + 548;
    for (const char *p : paths) {
        EXPECT_EQ(ReadU32(at, 0), strlen(p) + 1);
        EXPECT_STREQ((const char *)at + 4, p);
        at += 4 + strlen(p) + 1;
    }
    HarnessStop(&h, 1);
    RemoveTree(root);
}

// A store that can't be read gives a first-run start and one log line, and stays as it was until
// the session ends in order.
TEST(Session, UnreadableStoreGivesDefaultsAndIsKeptUntilAnOrderlyEnd)
{
    struct Case {
        const char *name;
        int truncate;  // cut a real store short, else write garbage
    } const cases[] = {{"truncated", 1}, {"garbage", 0}};
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        char root[512];
        ASSERT_TRUE(MakeTempRoot(root, sizeof(root)));
        T_HARNESS h;
        ASSERT_TRUE(HarnessStart(&h, root, 1024, 700));
        editor_config->flags = 1;
        CloseByCloseGadget(&h);
        HarnessStop(&h, 1);

        std::string store = StorePath(root);
        u32 size = 0;
        {
            ASSERT_TRUE(OpenToolkit("headless", 800, 600, root));
            void *data = LoadFile(store.c_str());
            ASSERT_NE(data, nullptr);
            size = GetLoadFileSize();
            if (c.truncate) {
                ASSERT_TRUE(SaveFile(store.c_str(), data, size / 2));
            } else {
                memset(data, 0x5A, size);
                ASSERT_TRUE(SaveFile(store.c_str(), data, size));
            }
            FreeMem(data, size);
            CloseToolkit();
        }
        std::string before;
        {
            FILE *f = fopen(store.c_str(), "rb");
            ASSERT_NE(f, nullptr);
            char buffer[4096];
            size_t n = fread(buffer, 1, sizeof(buffer), f);
            before.assign(buffer, n);
            fclose(f);
        }

        ASSERT_TRUE(HarnessStart(&h, root, 1024, 700));
        EXPECT_EQ(editor_config->flags, 7u);
        EXPECT_EQ(CountLines(HarnessLog(), "AppQuillform"), 1) << HarnessLog();
        UserTurns(3);
        {
            FILE *f = fopen(store.c_str(), "rb");
            ASSERT_NE(f, nullptr);
            char buffer[4096];
            size_t n = fread(buffer, 1, sizeof(buffer), f);
            fclose(f);
            EXPECT_EQ(std::string(buffer, n), before);
        }
        CloseByCloseGadget(&h);
        HarnessStop(&h, 1);

        ASSERT_TRUE(HarnessStart(&h, root, 1024, 700));
        EXPECT_EQ(editor_config->flags, 7u);
        EXPECT_EQ(CountLines(HarnessLog(), "AppQuillform"), 0) << HarnessLog();
        HarnessStop(&h, 1);
        RemoveTree(root);
    }
}

// A few pixels of the main window: the frame's border and the title bar's colour and text.
TEST(Screen, MainWindowFrameAndTitle)
{
    T_HARNESS h;
    ASSERT_TRUE(HarnessStart(&h, NULL, 1024, 700));
    UserTurns(1);
    i32 width, height, pitch;
    u32 *pixels = display->pixels(&width, &height, &pitch);
    t_Window *w = h.main_window;
    auto at = [&](int x, int y) { return pixels[y * pitch + x] & 0xFFFFFF; };
    // The title bar's colour fills its middle, away from the text and the gadgets.
    int title_y = w->y + w->border_size + 2;
    EXPECT_EQ(at(w->x + w->w / 2 + 200, title_y), DISPLAY_RECORD->title_colour & 0xFFFFFF);
    // The title's text: some pixels of the text colour's side near the left of the bar.
    int text_pixels = 0;
    for (int y = w->y + w->border_size; y < w->y + w->border_size + w->title_height; y++)
        for (int x = w->x + w->border_size; x < w->x + w->border_size + 120; x++)
            if (at(x, y) != (DISPLAY_RECORD->title_colour & 0xFFFFFF))
                text_pixels++;
    EXPECT_GT(text_pixels, 20);
    // The user area shows the window colour below the menu bar and away from the toolbar.
    EXPECT_EQ(at(w->user_x + w->user_w - 20, w->user_y + w->user_h - 20), w->UserAreaColour & 0xFFFFFF);
    HarnessStop(&h, 0);
}
