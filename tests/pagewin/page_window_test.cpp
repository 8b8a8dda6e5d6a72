// A page window from a box, and its answers to the toolkit: the active page, dropped colours and
// bitmaps, "Resize to contents".
#include "pagewin_fixture.h"

namespace
{

struct BOX_ROW {
    const char *what;
    i16 x1, y1, x2, y2;  // corners, from the main window's user area
    int made;
    i16 x, y, w, h;  // the page's frame, from the main window's user area
};

// clang-format off
const BOX_ROW box_rows[] = {
    // what                              x1   y1   x2   y2  made   x    y    w    h
    {"top left to bottom right", 500, 100, 700, 250, 1, 500, 100, 200, 150},
    {"bottom right to top left", 700, 250, 500, 100, 1, 500, 100, 200, 150},
    {"top right to bottom left", 700, 100, 500, 250, 1, 500, 100, 200, 150},
    {"bottom left to top right", 500, 250, 700, 100, 1, 500, 100, 200, 150},
    {"left of the user area",    -20, -10, 40,  30,  1, -20, -10, 60,  40},
    {"31 by 100",                500, 100, 531, 200, 0, 0,   0,   0,   0},
    {"100 by 11",                500, 100, 600, 111, 0, 0,   0,   0,   0},
    {"31 by 11, dragged back",   531, 111, 500, 100, 0, 0,   0,   0,   0},
    {"32 by 12",                 500, 100, 532, 112, 1, 500, 100, 32,  12},
    {"32 by 12, dragged back",   532, 112, 500, 100, 1, 500, 100, 32,  12},
};
// clang-format on

class PageBox : public PageWindowTest
{
};

TEST_F(PageBox, CornersInAnyOrderAndTheSmallestPage)
{
    t_Window *main_window = harness.main_window;
    for (const BOX_ROW &row : box_rows) {
        SCOPED_TRACE(row.what);
        int pages = PageCount();
        t_Window *p = CreatePageWindow(main_window, (char *)"Boxed", 0x7C, row.x1, row.y1, row.x2, row.y2);
        EXPECT_EQ(p != NULL, (bool)row.made);
        EXPECT_EQ(PageCount(), pages + row.made);
        if (!p)
            continue;
        EXPECT_EQ(p->x - main_window->user_x, row.x);
        EXPECT_EQ(p->y - main_window->user_y, row.y);
        EXPECT_EQ(p->w, row.w);
        EXPECT_EQ(p->h, row.h);
        EXPECT_EQ(p->flags, 0x7Cu | WF_CHILD | WF_CLIP_PARENT);
        EXPECT_EQ(p->idcmp, (u32)IDCMP_TERMINATE);  // the design mask starts at terminate alone
        EXPECT_STREQ(p->name, "Boxed");
        T_WINEDIT_HANDLER *r = (T_WINEDIT_HANDLER *)p->user_data;
        EXPECT_EQ(memcmp(r->tag, "WEH0", 4), 0);
        EXPECT_EQ(r->saved, 0);
        EXPECT_EQ(r->file_name.text, nullptr);
        RemovePage(p, 1);
        UserTurns(1);
    }
}

class PageMessages : public PageWindowTest
{
};

// The page that gains the input focus becomes the active page and names the main window's title.
TEST_F(PageMessages, GainingTheFocusMakesThePageActive)
{
    t_Window *other = CreatePageWindow(harness.main_window, (char *)"Other", 0x7C, 480, 40, 880, 340);
    ASSERT_NE(other, nullptr);
    struct {
        t_Window *target;
        int by_click;                                            // a click on its title bar, else the message itself
    } steps[] = {{page, 0}, {other, 0}, {page, 1}, {other, 1}};  // "Other" has the focus at first
    for (auto &step : steps) {
        if (step.by_click) {
            UserClick((i16)(step.target->x + step.target->w / 2),
                      (i16)(step.target->y + step.target->border_size + step.target->title_height / 2), 1);
        } else {
            SendWindowMessage(step.target, 0, ACT_GAIN_CONTEXT, NULL);
        }
        EXPECT_EQ(Main()->active_page, step.target) << step.target->name;
        EXPECT_EQ(harness.main_window->title_suffix, step.target->name);
    }
}

struct DROP_ROW {
    const char *what;
    u32 item_code;
    int modified;
    u32 colour;          // the user area afterwards, 0: unchanged
    const char *bitmap;  // the background afterwards, null: none
};

const DROP_ROW drop_rows[] = {
    {"a colour", 1, 1, 0xc08040, NULL},
    {"a bitmap", 2, 1, 0, "paper.png"},
    {"something else", 3, 0, 0, NULL},
};

// A colour or a bitmap dropped on the page becomes its background and marks it modified.
TEST_F(PageMessages, DroppedColourAndBitmapMarkThePage)
{
    std::filesystem::create_directories(Root() + "/Bitmaps");
    u32 pixels[4] = {0x336699, 0x336699, 0x336699, 0x336699};
    T_SURFACE surface = {pixels, 2, 2, 2};
    ASSERT_TRUE(WritePNG((Root() + "/Bitmaps/paper.png").c_str(), &surface));
    for (const DROP_ROW &row : drop_rows) {
        SCOPED_TRACE(row.what);
        page->state_flags &= ~WSF_MODIFIED;
        SetWindowBitmap(page, NULL);
        u32 before = page->UserAreaColour;
        if (row.item_code == 1) {  // red 64, green 128, blue 192
            T_RGBA rgba = {64, 128, 192, 255};
            SendWindowMessage(page, row.item_code, ACT_RECEIVE_OBJECT, &rgba);
        } else if (row.item_code == 2) {  // a file from the desktop, dropped where the pointer is
            UserMove(AbsX(200), AbsY(150));
            DropFile((std::string(harness.root) + "/Bitmaps/" + row.bitmap).c_str());
        } else {
            T_RGBA rgba = {1, 2, 3, 4};
            SendWindowMessage(page, row.item_code, ACT_RECEIVE_OBJECT, &rgba);
        }
        EXPECT_EQ((page->state_flags & WSF_MODIFIED) != 0, (bool)row.modified);
        EXPECT_EQ(page->UserAreaColour, row.colour ? row.colour : before);
        if (row.bitmap) {
            ASSERT_NE(page->bitmap, nullptr);
            EXPECT_STREQ(page->bitmap->name, row.bitmap);
        } else {
            EXPECT_EQ(page->bitmap, nullptr);
        }
    }
}

// "Resize to contents" starts from 64 by 32, so that a page too small for its own frame is
// measured as well as a large one; with no gadgets every page ends the same size.
TEST_F(PageMessages, ResizeToContentsStartsFrom64By32)
{
    struct {
        i16 w, h;
    } sizes[] = {{400, 300}, {64, 32}, {32, 12}, {33, 13}};
    T_RPOS first = {};
    for (auto &size : sizes) {
        SCOPED_TRACE(size.w);
        t_Window *p = CreatePageWindow(harness.main_window, (char *)"Sized", 0x7C, 480, 40, (i16)(480 + size.w),
                                       (i16)(40 + size.h));
        ASSERT_NE(p, nullptr);
        i16 x = p->x, y = p->y;
        SendWindowMessage(p, PAGE_MENU_RESIZE_TO_CONTENTS, ACT_MENU_PICK, NULL);
        EXPECT_TRUE(p->state_flags & WSF_MODIFIED);
        EXPECT_EQ(p->x, x);
        EXPECT_EQ(p->y, y);
        EXPECT_GT(p->user_h, 0);  // the frame was measured with a user area to spare
        if (first.w == 0)
            first = T_RPOS{0, 0, p->w, p->h};
        EXPECT_EQ(p->w, first.w);
        EXPECT_EQ(p->h, first.h);
        RemovePage(p, 1);
        UserTurns(1);
    }
}

}  // namespace
