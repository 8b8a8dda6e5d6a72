// Drop boxes: the list opens on a press, an entry is picked, and the list closes.
#include "knobkit_fixture.h"

static T_LIST_DATA *ListOf(t_gadget *g)
{
    return (T_LIST_DATA *)g->class_data;
}

static t_Window *OpenPopup()
{
    for (t_Node *n = CURRENT_DISPLAY->window_class->windows.first; n->next; n = n->next)
        if (IsPopup((t_Window *)n) && IsWindowLive((t_Window *)n))
            return (t_Window *)n;
    return nullptr;
}

static i16 PopupRowY(t_gadget *g, t_Window *popup, i32 row)
{
    i16 row_h = GadgetFontHeight(g) + 2;
    return (i16)(popup->y + 1 + row * row_h + row_h / 2);
}

TEST_F(GadgetTest, DropBoxOpensPicksAndCloses)
{
    t_gadget *g = MakeList(GADGET_TYPE_DROP_BOX, 10, 10, 160, 0, 10, 4);
    EXPECT_EQ(ListOf(g)->selected, 0);  // the first entry shows
    EXPECT_GT(g->base_height, 0);
    Turn();
    recorded.clear();
    Click(MidX(g), MidY(g));
    t_Window *popup = OpenPopup();
    ASSERT_NE(popup, nullptr);
    EXPECT_TRUE(g->gadget_state & GSTATE_OPEN);
    EXPECT_EQ(popup->y, g->screen_y + g->base_height);  // below the box
    EXPECT_EQ(CountRecorded(ACT_LMOUSE_UP), 0u);        // opening picks nothing
    Click(MidX(g), PopupRowY(g, popup, 3));
    EXPECT_EQ(ListOf(g)->selected, 3);
    EXPECT_EQ(OpenPopup(), nullptr);
    EXPECT_FALSE(g->gadget_state & GSTATE_OPEN);
    ASSERT_EQ(CountRecorded(ACT_LMOUSE_UP), 1u);
    EXPECT_EQ(recorded.back().item_code, 4u);
    EXPECT_EQ(recorded.back().data, g);
}

// The entry shown stands at the field's left, long or short: a long one is cut at the arrow only.
TEST_F(GadgetTest, DropBoxShowsItsEntryFromTheLeft)
{
    const struct {
        const char *entry;
        i16 width;
    } cases[] = {{"Hi", 200}, {"A very long entry that the box cannot show whole", 120}};
    for (const auto &c : cases) {
        SCOPED_TRACE(c.entry);
        T_GADGETOBJECTINIT init = Init(GADGET_TYPE_DROP_BOX, 10, 10, c.width, 24);
        void *holder = Create("List", init);
        init.parent_gadget = holder;
        Create(c.entry, init);
        t_gadget *g = GetCurrentGadget(window);
        SetCurrentGadget(window, NULL);  // no focus frame over the field
        Turn();
        // The first column with the text's ink, counted from the field's inside.
        T_RPOS field = {(i16)(g->screen_x + 3), (i16)(g->screen_y + 4), (i16)(g->base_width / 2),
                        (i16)(g->base_height - 8)};
        std::vector<u32> pixels = Pixels(field);
        i16 first_ink = -1;
        for (i16 x = 0; x < field.w && first_ink < 0; x++)
            for (i16 y = 0; y < field.h; y++)
                if (pixels[y * field.w + x] == (GadgetTextColour(g) & 0xFFFFFF)) {
                    first_ink = x;
                    break;
                }
        EXPECT_GE(first_ink, 1);  // the first letter whole, a little in from the field's edge
        EXPECT_LE(first_ink, 6);
        RemoveObject(&handler->head, g);
    }
}
