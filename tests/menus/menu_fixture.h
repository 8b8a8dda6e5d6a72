// The menu suites' set-up: the Lumora suite's headless toolkit and input, an owner window that
// records the messages it gets, sample menus, and where things are on screen.
#pragma once
#include <string.h>

#include "lumora/menu_internal.h"
#include "tests/harness/toolkit_fixture.h"

typedef struct T_SPY_MESSAGE {
    u32 item_code;
    u32 msg;
    void *data;
    u32 popups_open;  // how many menus stood open when the message came
} T_SPY_MESSAGE;

extern std::vector<T_SPY_MESSAGE> spy_messages;
// Called on ACT_MENU_OPEN before it is recorded, so that a test can grey entries as an owner does.
extern void (*spy_on_menu_open)(u32 item_code);

u32 SpyMessage(t_Window *window, u32 item_code, u32 msg, void *data);
u32 OpenPopups(void);
t_Window *PopupAt(u32 level);  // the open menus in the order they opened

class ToolkitTest : public LumoraTest
{
  protected:
    t_Window *owner = nullptr;

    void SetUp() override;
    std::vector<T_SPY_MESSAGE> MessagesOf(u32 msg) const;
};

// Item codes of the sample menus: File (Open, Close, -, Save, Recent > {One, Two}, -, Exit),
// Edit (Undo, Redo) and Layout (Centre), where Edit and Layout share the letter E.
enum {
    SAMPLE_FILE = 0xF000,
    SAMPLE_EDIT = 0xF001,
    SAMPLE_LAYOUT = 0xF002,
    SAMPLE_RECENT = 0xF020,
    SAMPLE_OPEN = 0x100,
    SAMPLE_CLOSE,
    SAMPLE_SAVE,
    SAMPLE_ONE,
    SAMPLE_TWO,
    SAMPLE_EXIT,
    SAMPLE_UNDO,
    SAMPLE_REDO,
    SAMPLE_CENTRE,
};
T_MENU_HANDLER *BuildSampleMenus(t_Window *window);

// The centre of a title of the bar, and of an entry of an open menu.
void TitleCentre(T_MENU_HANDLER *handler, t_Menu *title, i16 *x, i16 *y);
void EntryCentre(u32 level, t_Menu *menu, u32 index, i16 *x, i16 *y);
