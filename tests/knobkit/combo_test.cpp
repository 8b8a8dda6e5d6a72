// Combos: gadgets made between SaveSetGadgetList and RestoreGadgetList go into the combo, are
// found by item code, and are scrolled by its bars and the wheel.
#include "knobkit_fixture.h"

// A combo 150 by 80 holding eight check boxes 20 apart (item codes 2 to 9), then a button
// (item code 20) made after the list was restored.
struct COMBO_PAGE {
    t_gadget *combo, *boxes[8], *button;
    T_LIST_DATA *data;
};

static COMBO_PAGE MakeComboPage(GadgetTest *t, t_Window *window, u32 combo_flags,
                                T_GADGETOBJECTINIT (*init)(u16, i16, i16, i16, i16, u32, u32, u32)) {
    (void)t;
    COMBO_PAGE p;
    t_Gaget_Handler *gh = FindGadgetHandler(window);
    T_GADGETOBJECTINIT ci = init(GADGET_TYPE_COMBO, 10, 10, 150, 80, 192, ACT_LMOUSE_UP, combo_flags);
    p.data = (T_LIST_DATA *)CreateObject(&gh->head, "Combo", &ci);
    p.combo = GetCurrentGadget(window);
    SaveSetGadgetList(window, &p.data->entries);
    for (int i = 0; i < 8; i++) {
        T_GADGETOBJECTINIT bi = init(GADGET_TYPE_CHECK_BOX, 4, (i16)(4 + 20 * i), 100, 18, (u32)(2 + i), ACT_LMOUSE_UP, 0);
        bi.hover_text = "inside";
        p.boxes[i] = (t_gadget *)CreateObject(&gh->head, "Option", &bi);
    }
    RestoreGadgetList(window);
    T_GADGETOBJECTINIT bu = init(GADGET_TYPE_BUTTON, 200, 10, 80, 20, 20, ACT_LMOUSE_UP, 0);
    p.button = (t_gadget *)CreateObject(&gh->head, "Button", &bu);
    SetComboScrollBars(p.combo);
    return p;
}

TEST_F(GadgetTest, ComboHoldsWhatIsMadeBetweenSaveAndRestore) {
    COMBO_PAGE p = MakeComboPage(this, window, GADGET_FLAGS_VERTICAL | GADGET_FLAGS_HORIZONTAL, Init);
    ASSERT_NE(p.data, nullptr);
    EXPECT_EQ(p.combo->type, GADGET_TYPE_COMBO);
    EXPECT_EQ(p.combo->class_data, (uintptr_t)p.data);
    EXPECT_EQ(CountListEntries(&p.data->entries), 8u);
    t_Node *n = p.data->entries.first;
    for (int i = 0; i < 8; i++, n = n->next) {
        EXPECT_EQ((t_gadget *)n, p.boxes[i]);  // in order
        EXPECT_EQ(p.boxes[i]->parent_combo, p.combo);
    }
    EXPECT_EQ(CountListEntries(&handler->gadget_list), 2u);  // the combo and the button
    EXPECT_EQ(handler->list_in_use, &handler->gadget_list);
    EXPECT_EQ(FindGadgetByItemCode(window, 5), p.boxes[3]);
    EXPECT_EQ(FindGadgetByItemCode(window, 20), p.button);
    T_RPOS view = ComboView(p.combo);
    EXPECT_EQ(p.boxes[1]->screen_x, view.x + 4);
    EXPECT_EQ(p.boxes[1]->screen_y, view.y + 24);
    EXPECT_NE(p.data->scroll_v, nullptr);  // 164 high content in a 76 high inside
    EXPECT_EQ(p.data->scroll_h, nullptr);  // 108 wide content fits beside the bar
    EXPECT_EQ(p.data->content_h, 8 * 20 + 2 + 4);
}

TEST_F(GadgetTest, ComboScrollsItsChildren) {
    COMBO_PAGE p = MakeComboPage(this, window, GADGET_FLAGS_VERTICAL, Init);
    Turn();
    t_gadget *first = p.boxes[0];
    i16 y0 = first->screen_y;
    Move(MidX(first), MidY(first));  // the wheel over a child scrolls the combo
    T_INPUT_EVENT wheel = {};
    wheel.kind = INPUT_WHEEL, wheel.wheel = -1;
    HeadlessPush(&wheel);
    Turn();
    i32 top = p.data->top;
    EXPECT_GT(top, 0);
    EXPECT_EQ(first->screen_y, y0 - top);
    EXPECT_EQ(((T_SCROLLBAR_DATA *)p.data->scroll_v->class_data)->init_val, top);
    // A child scrolled out of the inside is not under the point any more.
    T_RPOS view = ComboView(p.combo);
    ASSERT_LE(first->screen_y + first->base_height, view.y);
    EXPECT_NE(GadgetAtPoint(window, first->screen_x + 5, first->screen_y + 2), first);
    T_SCROLL_RANGE range = {0, p.data->content_h, view.h, top, 1};
    T_SCROLL_PARTS parts;
    ScrollParts(GadgetRect(p.data->scroll_v), 0, &range, &parts);
    i16 tx = parts.thumb.x + parts.thumb.w / 2, ty = parts.thumb.y + parts.thumb.h / 2;
    Drag(tx, ty, tx, ty + 200);
    EXPECT_EQ(p.data->top, p.data->content_h - view.h);  // dragged to the end
    EXPECT_EQ(p.boxes[7]->screen_y + p.boxes[7]->base_height, view.y + view.h - 4);
}
