// The main window's handler: a box drawn on the background with the mouse becomes a new page.
#include "editor/page_painter.h"
#include "editor/page_window.h"
#include "shell/main_window.h"
#include "shell/texts.h"

static const u32 NEW_PAGE_FLAGS = WF_CLOSE | WF_RESIZE | WF_TITLE | WF_MOVE | WF_BORDER;  // 0x7C

u32 MainHandlerInput(t_Handler *handler, u32 event, void *data)
{
    if (event != HANDLER_EVENT_MOUSE || !data)
        return 0;
    T_WINEDIT_MAIN *record = (T_WINEDIT_MAIN *)handler;
    t_Window *window = handler->window;
    T_MOUSE_MSG *mouse = (T_MOUSE_MSG *)data;
    T_RPOS area = UserArea(window);
    if (!PointBoxColl(mouse->x, mouse->y, &area))
        return 0;
    switch (mouse->mouse_action) {
    case ACT_LMOUSE_DOWN:  // the box begins; the mouse stays in the user area meanwhile
        record->box_x1 = record->box_x2 = (i16)(mouse->x - window->user_x);
        record->box_y1 = record->box_y2 = (i16)(mouse->y - window->user_y);
        record->box_active = 1;
        LimitMouseToUserArea(window);
        return 1;
    case ACT_LMOUSE_UP: {  // the box becomes a page, unless it is too small
        t_Window *page = CreatePageWindow(window, (char *)TXT_NEW_WINDOW, NEW_PAGE_FLAGS, record->box_x1,
                                          record->box_y1, record->box_x2, record->box_y2);
        record->box_active = 0;
        FreeMouse();
        if (page) {
            SetActivePage(page, page);
            SetTitleBarHoverTitle(page, TXT_NEW_DOCUMENT);
        }
        return 1;
    }
    default:
        return 0;
    }
}

void MainHandlerPaint(t_Handler *handler)
{
    T_WINEDIT_MAIN *record = (T_WINEDIT_MAIN *)handler;
    t_Window *window = handler->window;
    ClipToUserArea(window);
    if (record->box_active) {
        KeepAnimating();  // the box's dots run
        DrawBandToMouse(window, record->box_x1, record->box_y1, &record->box_x2, &record->box_y2,
                        (u16)(record->box_phase / DASH_DIVISOR));
    }
    record->box_phase = (u16)((record->box_phase + 1) % DASH_STEPS);
}
