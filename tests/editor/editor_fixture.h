// The editor suites' fixture: the whole application headless with one page of 400 by 300 drawn on
// the main window, gadgets made through the catalogue; the mouse and keys of a person, with
// qualifiers where a gesture needs them, come from the shared input.
#pragma once
#include <gtest/gtest.h>
#include <string.h>

#include <array>

#include "display/display.h"
#include "editor/mouse_editing.h"
#include "editor/page_commands.h"
#include "editor/page_painter.h"
#include "editor/page_window.h"
#include "editor/undo_records.h"
#include "page/catalogue.h"
#include "shell/main_window.h"
#include "tests/editor/page_invariants.h"
#include "tests/harness/harness.h"
#include "tests/harness/input.h"

// Main window commands.
#define COMMAND_UNDO 263
#define COMMAND_REDO 264
#define COMMAND_SELECT_ALL 268
#define COMMAND_TAB_ORDER 277

// A gadget's place and size: x, y, width, height.
typedef std::array<i16, 4> T_GEOM;

// After a step, the page's records must still hold together.
#define CHECK_PAGE() EXPECT_EQ(CheckPageInvariants(page), "")

class PageTest : public ::testing::Test
{
  protected:
    T_HARNESS harness;
    t_Window *page = NULL;
    T_WINEDIT_HANDLER *record = NULL;
    t_Gaget_Handler *gadgets = NULL;

    void SetUp() override
    {
        ASSERT_TRUE(HarnessStart(&harness, NULL, 1024, 700));
        page = CreatePageWindow(harness.main_window, (char *)"Test", 0x7C, 40, 60, 440, 360);
        ASSERT_NE(page, nullptr);
        record = (T_WINEDIT_HANDLER *)page->user_data;
        gadgets = FindGadgetHandler(page);
        SetActivePage(page, page);
        ISetActiveWindow(page);
        UserTurns(1);
    }

    void TearDown() override { HarnessStop(&harness, 0); }

    // A gadget at x, y of the user area, as the catalogue makes it; it becomes the current one.
    t_gadget *Make(u16 tool, i16 x, i16 y, i16 w, i16 h)
    {
        T_GADGETOBJECTINIT init;
        FillNewGadgetInit(&init, x, y, w, h);
        t_gadget *gadget = CreateGadgetByTool(page, (i16)tool, &init);
        RecalcUserSize(page);
        return gadget;
    }

    i16 AbsX(i16 x) { return (i16)(page->user_x + x); }
    i16 AbsY(i16 y) { return (i16)(page->user_y + y); }
    static i16 MidX(const t_gadget *g) { return (i16)(g->screen_x + g->base_width / 2); }
    static i16 MidY(const t_gadget *g) { return (i16)(g->screen_y + g->base_height / 2); }
    static T_GEOM Geom(const t_gadget *g) { return {g->pos_x, g->pos_y, g->base_width, g->base_height}; }
    u32 Count() { return CountListEntries(&gadgets->gadget_list); }
    static int Marked(const t_gadget *g) { return (g->live_flags & GADGET_MARK_SELECTED) != 0; }
    static void Mark(t_gadget *g) { g->live_flags |= GADGET_MARK_SELECTED; }
    int Modified() { return (page->state_flags & WSF_MODIFIED) != 0; }
    u32 Records() { return CountListEntries(&record->undo.nodes); }
    const char *UndoLabel() { return record->undo.current ? record->undo.current->name : ""; }
    T_TOOLBAR_HANDLER *Toolbar() { return PageToolBar(page); }
    void Command(u32 item_code) { SendWindowMessage(harness.main_window, item_code, ACT_MENU_PICK, NULL); }
};
