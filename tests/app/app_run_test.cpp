// How a program built on a page runs: which display OpenAppToolkit opens, where the focus starts
// (the page's saved tab order), and what RunAppWindow does with the window, headless and on SDL's
// dummy display.
#include <SDL.h>
#include <stdlib.h>

#include <filesystem>
#include <string>

#include "app/quillform_app.h"
#include "display/display.h"
#include "tests/harness/toolkit_fixture.h"

#define TAB_FIRST 0x80000000u  // as a page file writes tab[0] of its first gadget

// --- Where the focus starts -----------------------------------------------------------------------

struct TAB_GADGET {
    u16 type;
    u32 flags;
    u32 tab0, tab1;  // item codes are 1, 2, 3 ... in list order
};

struct TAB_CASE {
    const char *what;
    std::vector<TAB_GADGET> gadgets;
    int expected;  // the index of the gadget that takes the focus first, -1 for none
};

static const u16 T_BUTTON = GADGET_TYPE_BUTTON, T_TEXT = GADGET_TYPE_TEXT, T_STRING = GADGET_TYPE_STRING;

// clang-format off
static const TAB_CASE tab_cases[] = {
    {"the head of the chain, wherever it stands in the list",
     {{T_BUTTON, 0, 3, 2}, {T_BUTTON, 0, 1, 3}, {T_BUTTON, 0, TAB_FIRST | 2, 1}}, 2},
    {"a text at the head hands on along the chain, not along the list",
     {{T_TEXT, 0, TAB_FIRST | 2, 3}, {T_BUTTON, 0, 3, 1}, {T_STRING, 0, 1, 2}}, 2},
    {"a disabled or hidden gadget on the chain is passed over",
     {{T_BUTTON, GADGET_FLAGS_DISABLED, TAB_FIRST | 3, 2}, {T_BUTTON, GADGET_FLAGS_NO_DISPLAY, 1, 3},
      {T_BUTTON, 0, 2, 1}},
     2},
    {"no chain: the first stop in list order",
     {{T_TEXT, 0, 0, 0}, {T_BUTTON, GADGET_FLAGS_DISABLED, 0, 0}, {T_STRING, 0, 0, 0}, {T_BUTTON, 0, 0, 0}}, 2},
    {"a chain of texts back to its head: the first stop in list order",
     {{T_TEXT, 0, TAB_FIRST | 2, 2}, {T_TEXT, 0, 1, 1}, {T_BUTTON, 0, 0, 0}}, 2},
    {"a chain that loops without its head ends: the first stop in list order",
     {{T_TEXT, 0, TAB_FIRST | 3, 2}, {T_TEXT, 0, 3, 3}, {T_TEXT, 0, 2, 2}, {T_BUTTON, 0, 0, 0}}, 3},
    {"a chain naming a missing gadget ends there", {{T_TEXT, 0, TAB_FIRST, 9}, {T_STRING, 0, 0, 0}}, 1},
    {"nothing takes the focus",                    {{T_TEXT, 0, 0, 0}, {T_TEXT, 0, 0, 0}},           -1},
};
// clang-format on

TEST_F(LumoraTest, FocusStartsOnTheFirstGadgetOfTheTabOrder)
{
    for (const TAB_CASE &c : tab_cases) {
        SCOPED_TRACE(c.what);
        t_Window *w = MakeWindow("Page", 10, 10, 300, 200, WF_TITLE, 0);
        std::vector<t_gadget *> made;
        for (size_t i = 0; i < c.gadgets.size(); i++) {
            const TAB_GADGET &g = c.gadgets[i];
            t_gadget *gadget =
                MakeGadget(w, "gadget", g.type, 10, (i16)(10 + 24 * i), 80, 20, (u32)i + 1, ACT_LMOUSE_UP, g.flags);
            ASSERT_NE(gadget, nullptr);
            gadget->tab[0] = g.tab0, gadget->tab[1] = g.tab1;
            made.push_back(gadget);
        }
        t_gadget *current = GetCurrentGadget(w);
        EXPECT_EQ(FirstTabGadget(w), c.expected < 0 ? nullptr : made[c.expected]);
        EXPECT_EQ(GetCurrentGadget(w), current);  // asking moves nothing
        RemoveWindow(w);
        Turn();
    }
}

// --- Running the page's window ------------------------------------------------------------------

static u32 PageLikeMsg(t_Window *window, u32, u32 msg, void *)
{
    if (msg == ACT_TERMINATE)
        RemoveWindow(window);
    return 0;
}

static u32 StubbornMsg(t_Window *, u32, u32, void *)
{
    return 0;
}

// The toolkit opened as a program opens it, in a fresh data root.
class AppRunTest : public ::testing::Test
{
  protected:
    void SetUp() override
    {
        char pattern[] = "/tmp/app_run_test_XXXXXX";
        ASSERT_NE(mkdtemp(pattern), nullptr);
        data_root = pattern;
        _OstrandBase->log_level = 0;
        ASSERT_TRUE(SetDataRoot(data_root.c_str()));
    }
    void TearDown() override
    {
        CloseToolkit();
        unsetenv("QF_HEADLESS");
        std::filesystem::remove_all(data_root);
    }
    int Open(std::vector<const char *> args)
    {
        args.insert(args.begin(), "page_program");
        return OpenAppToolkit((int)args.size(), (char **)args.data());
    }
    std::string data_root;
};

struct CHOICE_CASE {
    std::vector<const char *> args;
    const char *variable;  // QF_HEADLESS, or null for unset
    int headless;
};

TEST_F(AppRunTest, HeadlessByFlagOrVariableElseSdl)
{
    static const CHOICE_CASE cases[] = {
        {{"--headless"}, nullptr, 1},   {{"--other", "--headless"}, "0", 1}, {{}, "1", 1}, {{}, "0", 0}, {{}, "", 0},
        {{"--headlessly"}, nullptr, 0},
    };
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    for (const CHOICE_CASE &c : cases) {
        SCOPED_TRACE(std::string("variable ") + (c.variable ? c.variable : "unset"));
        if (c.variable)
            setenv("QF_HEADLESS", c.variable, 1);
        else
            unsetenv("QF_HEADLESS");
        if (!Open(c.args)) {
            ASSERT_FALSE(c.headless);
            GTEST_SKIP() << "SDL can't start here";
        }
        EXPECT_EQ(display == &display_headless, c.headless);
        CloseToolkit();
    }
}

TEST_F(AppRunTest, HeadlessRunPrintsTheWindowAndEndsItAsItsCloseGadget)
{
    ASSERT_TRUE(Open({"--headless"}));
    t_Window *w = MakeWindow("Login", 120, 90, 300, 200, WF_TITLE | WF_CLOSE, IDCMP_TERMINATE, nullptr, PageLikeMsg);
    MakeGadget(w, "User name", T_TEXT, 10, 10, 80, 20, 5, 0);
    t_gadget *field = MakeGadget(w, "My String", T_STRING, 100, 10, 120, 20, 1, ACT_LMOUSE_UP);
    MakeGadget(w, "Log in", T_BUTTON, 100, 40, 80, 24, 10, ACT_LMOUSE_UP);
    SetStringGadgetText(field, "ann");
    testing::internal::CaptureStdout();
    EXPECT_EQ(RunAppWindow(w), 0);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "window \"Login\" 300x200\n"
                                                      "gadget 5 text \"User name\" at 10,10 size 80x20\n"
                                                      "gadget 1 string \"ann\" at 100,10 size 120x20 focus\n"
                                                      "gadget 10 button \"Log in\" at 100,40 size 80x24\n");
    EXPECT_EQ(FindWindowByName(nullptr, "Login"), nullptr);
    // The screen took the window's size.
    EXPECT_EQ(CURRENT_DISPLAY->width, 300);
    EXPECT_EQ(CURRENT_DISPLAY->height, 200);
}

TEST_F(AppRunTest, WindowThatWontEndOrIsMissingFails)
{
    ASSERT_TRUE(Open({"--headless"}));
    EXPECT_EQ(RunAppWindow(nullptr), 1);
    t_Window *w = MakeWindow("Stubborn", 0, 0, 200, 100, WF_TITLE, IDCMP_TERMINATE, nullptr, StubbornMsg);
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    EXPECT_EQ(RunAppWindow(w), 1);
    testing::internal::GetCapturedStdout();
    EXPECT_NE(testing::internal::GetCapturedStderr().find("stayed open"), std::string::npos);
    EXPECT_TRUE(IsWindowLive(w));
}

TEST_F(AppRunTest, FullScreenPageKeepsTheScreenAndFillsIt)
{
    ASSERT_TRUE(Open({"--headless"}));
    t_Window *w =
        MakeWindow("Wide", 40, 40, 200, 100, WF_TITLE | WF_OPEN_FULLSCREEN, IDCMP_TERMINATE, nullptr, PageLikeMsg);
    testing::internal::CaptureStdout();
    EXPECT_EQ(RunAppWindow(w), 0);
    EXPECT_EQ(testing::internal::GetCapturedStdout().rfind("window \"Wide\" 800x600\n", 0), 0u);
    EXPECT_EQ(CURRENT_DISPLAY->width, 800);
}

// The SDL window whose title and size a program sets: the only one open.
static SDL_Window *OpenSdlWindow()
{
    for (Uint32 id = 1; id < 256; id++)
        if (SDL_Window *window = SDL_GetWindowFromID(id))
            return window;
    return nullptr;
}

TEST_F(AppRunTest, SdlWindowTakesThePageNameAndSizeAndEndsWithIt)
{
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    if (!Open({}))
        GTEST_SKIP() << "SDL can't start here";
    t_Window *w = MakeWindow("Login", 50, 60, 300, 200, WF_TITLE | WF_CLOSE, IDCMP_TERMINATE, nullptr, PageLikeMsg);
    // Closing the program's window asks each window to end; the page's message function does.
    SDL_Event quit = {};
    quit.type = SDL_QUIT;
    SDL_PushEvent(&quit);
    EXPECT_EQ(RunAppWindow(w), 0);
    SDL_Window *window = OpenSdlWindow();
    ASSERT_NE(window, nullptr);
    EXPECT_STREQ(SDL_GetWindowTitle(window), "Login");
    int width = 0, height = 0;
    SDL_GetWindowSize(window, &width, &height);
    EXPECT_EQ(width, 300);
    EXPECT_EQ(height, 200);
}
