// The pages of the golden files: the format's own example and a page with one gadget of each
// kind that the catalogue makes. The golden test writes them; the generated-page test compiles
// what was written and runs it against the same tables.
#pragma once
#include <vector>

#include "source_fixture.h"

inline const u32 demo_action = ACT_LMOUSE_UP | ACT_LMOUSE_DBL;

// clang-format off
inline const T_TEST_PAGE demo_page = {
    .name = "Demo Page",
    .flags = WF_CLOSE | WF_TITLE | WF_MOVE | WF_CHILD | WF_CLIP_PARENT,
    .idcmp = IDCMP_TERMINATE,
    .x = 16, .y = 16, .w = 320, .h = 200,
};
// clang-format on

// clang-format off
inline const std::vector<T_TEST_GADGET> demo_gadgets = {
    {.type = GADGET_TYPE_BUTTON, .text = "OK", .x = 10, .y = 10, .w = 80, .h = 24,
     .item_code = 1, .flags = GADGET_FLAGS_PUSH, .action = demo_action, .tab_index = 1,
     .back_colour = 0xc0c0c0},
    {.type = GADGET_TYPE_SLIDER, .text = "My slider", .x = 10, .y = 40, .w = 200, .h = 20,
     .item_code = 2, .flags = GADGET_FLAGS_HORIZONTAL, .action = demo_action, .tab_index = 2,
     .back_colour = 0xc0c0c0, .min = 0, .max = 100, .step = 1, .mark_width = 8,
     .mark_height = 16},
};
// clang-format on

// Every kind of the catalogue, with values that make the optimised form leave things out and
// put them back: repeated and vanishing hover texts and fonts, a cursor, a group without an item
// code, the shared record of slider and scroll bar values.
// clang-format off
inline const T_TEST_PAGE every_kind_page = {
    .name = "Every Kind",
    .flags = WF_CLOSE | WF_RESIZE | WF_TITLE | WF_MOVE | WF_BORDER | WF_CHILD | WF_CLIP_PARENT,
    .idcmp = IDCMP_TERMINATE | IDCMP_KEY | IDCMP_REQUESTER_OK | IDCMP_MENU_OPEN |
             IDCMP_GAIN_CONTEXT,
    .x = 32, .y = 48, .w = 480, .h = 360,
    .area_colour = 0x204060,
    .with_menus = 1,
    .bitmap = "paper.png",
};
// clang-format on

inline const u32 kind_action = ACT_LMOUSE_UP | ACT_LMOUSE_DBL;

// clang-format off
inline const std::vector<T_TEST_GADGET> every_kind_gadgets = {
    {.type = GADGET_TYPE_BUTTON, .text = "Start", .x = 8, .y = 8, .w = 80, .h = 24,
     .item_code = 1, .flags = GADGET_FLAGS_PUSH, .action = kind_action, .tab_index = 1,
     .hover = "Starts it", .back_colour = 0xc0c0c0},
    {.type = GADGET_TYPE_SLIDER, .text = "Across", .x = 8, .y = 40, .w = 160, .h = 20,
     .item_code = 2, .flags = GADGET_FLAGS_HORIZONTAL, .action = kind_action, .tab_index = 2,
     .hover = "Starts it", .back_colour = 0xc0c0c0, .min = -10, .max = 90, .step = 5,
     .mark_width = 16, .mark_height = 18},
    {.type = GADGET_TYPE_SLIDER, .text = "Down", .x = 176, .y = 8, .w = 20, .h = 120,
     .item_code = 3, .flags = GADGET_FLAGS_VERTICAL, .action = kind_action, .tab_index = 3,
     .back_colour = 0xc0c0c0, .min = -10, .max = 200, .step = 5, .mark_width = 16,
     .mark_height = 18},
    {.type = GADGET_TYPE_STRING, .text = "Name field", .x = 8, .y = 70, .w = 160, .h = 20,
     .item_code = 4, .action = kind_action | ACT_RMOUSE_UP, .tab_index = 4,
     .font = "DejaVuSans.ttf", .with_cursor = 1, .cursor = 5,
     .back_colour = 0xffffff, .text_colour = 0x101010},
    {.type = GADGET_TYPE_TEXT, .text = "Label", .x = 8, .y = 96, .w = 80, .h = 16,
     .item_code = 5, .flags = GADGET_FLAGS_NO_BORDER | GADGET_FLAGS_BOLD, .action = 0,
     .tab_index = 5, .font = "DejaVuSans.ttf", .back_colour = 0xc0c0c0},
    {.type = GADGET_TYPE_GROUP, .text = "Options", .x = 4, .y = 120, .w = 200, .h = 100,
     .flags = GADGET_FLAGS_NO_BORDER, .back_colour = 0xc0c0c0},
    {.type = GADGET_TYPE_CHECK_BOX, .text = "Enabled", .x = 12, .y = 136, .w = 100, .h = 16,
     .item_code = 7, .action = kind_action, .tab_index = 6, .hover = "Switch",
     .back_colour = 0xc0c0c0},
    {.type = GADGET_TYPE_RADIOBUTTON, .text = "One of", .x = 12, .y = 156, .w = 100,
     .h = 16, .item_code = 8, .action = kind_action, .tab_index = 7, .hover = "Switch",
     .back_colour = 0xc0c0c0},
    {.type = GADGET_TYPE_LIST_BOX, .text = "Choices", .x = 220, .y = 8, .w = 120, .h = 80,
     .item_code = 9, .action = kind_action | ACT_LMOUSE_DOWN, .tab_index = 8,
     .back_colour = 0xffffff},
    {.type = GADGET_TYPE_DROP_BOX, .text = "Pick", .x = 220, .y = 96, .w = 120, .h = 20,
     .item_code = 10, .flags = GADGET_FLAGS_DISABLED, .action = kind_action, .tab_index = 9,
     .back_colour = 0xffffff},
    {.type = GADGET_TYPE_TREE, .text = "Outline", .x = 220, .y = 124, .w = 120, .h = 100,
     .item_code = 11, .action = kind_action, .tab_index = 10, .back_colour = 0xffffff},
    {.type = GADGET_TYPE_SCROLLBAR, .text = "Along", .x = 8, .y = 230, .w = 200, .h = 16,
     .item_code = 12, .flags = GADGET_FLAGS_HORIZONTAL, .action = kind_action, .tab_index = 11,
     .back_colour = 0xc0c0c0, .min = 0, .max = 200, .init_val = 40000},
    {.type = GADGET_TYPE_SCROLLBAR, .text = "Up and down", .x = 350, .y = 8, .w = 16,
     .h = 200, .item_code = 13, .flags = GADGET_FLAGS_VERTICAL, .action = kind_action,
     .tab_index = 12, .back_colour = 0xc0c0c0, .min = 0, .max = 64, .init_val = 4},
    {.type = GADGET_TYPE_COLOUR_FLAT, .text = "Swatch", .x = 380, .y = 8, .w = 40, .h = 40,
     .item_code = 14, .action = kind_action, .tab_index = 13, .back_colour = 0x0000ff,
     .text_colour = 0xffffff},
    {.type = GADGET_TYPE_TEXTURE, .text = "Picture", .x = 380, .y = 56, .w = 64, .h = 64,
     .item_code = 15, .action = kind_action, .tab_index = 14, .back_colour = 0},
    {.type = GADGET_TYPE_SCENE, .text = "View", .x = 380, .y = 128, .w = 80, .h = 80,
     .item_code = 16, .action = kind_action, .tab_index = 15, .with_cursor = 1, .cursor = 300,
     .back_colour = 0},
    {.type = GADGET_TYPE_USER, .text = "Custom", .x = 380, .y = 216, .w = 80, .h = 40,
     .item_code = 17, .flags = GADGET_FLAGS_CURSOR, .action = kind_action, .tab_index = 16,
     .with_cursor = 1, .cursor = 300, .back_colour = 0x808080},
};
// clang-format on
