// Progress bars: a small window in front, centred on the screen, with a title, the step's text and
// a bar. Updates repaint the bar's window alone, at most every PROGRESS_PAINT_MS of display time,
// so a long save spends its time saving.
#include <string.h>

#include "lumora/lumora_internal.h"

enum {
    PROGRESS_WIDTH = 320,
    PROGRESS_USER_HEIGHT = 56,
    PROGRESS_MARGIN = 12,
    PROGRESS_BAR_HEIGHT = 14,
    PROGRESS_PAINT_MS = 30,
    PROGRESS_TEXT_SIZE = 256,
};

struct T_PROGRESS_BAR {
    t_Window *window;
    u32 steps;
    u32 step;
    char text[PROGRESS_TEXT_SIZE];
    u32 last_paint_ms;
};

static void ProgressPaint(t_Handler *head)
{
    t_Window *window = head->window;
    T_PROGRESS_BAR *bar = (T_PROGRESS_BAR *)window->user_data;
    if (!bar)
        return;
    T_DISPLAY_RECORD *look = DISPLAY_RECORD;
    T_FONT *font = GetActiveFont();
    SetActiveFont(NULL);
    i16 x = (i16)(window->user_x + PROGRESS_MARGIN);
    i16 y = (i16)(window->user_y + PROGRESS_MARGIN);
    i16 w = (i16)(window->user_w - 2 * PROGRESS_MARGIN);
    DrawText(x, y, bar->text, look->gadget_text_colour);
    y = (i16)(y + GetActiveFontHeight() + PROGRESS_MARGIN / 2);
    DrawRectangle(x, y, w, PROGRESS_BAR_HEIGHT, look->field_colour);
    u32 done = bar->steps ? (bar->step >= bar->steps ? bar->steps : bar->step) : 0;
    i16 filled = bar->steps ? (i16)((u64)(w - 2) * done / bar->steps) : 0;
    DrawRectangle((i16)(x + 1), (i16)(y + 1), filled, PROGRESS_BAR_HEIGHT - 2, look->select_colour);
    DrawOutLineBox(x, y, w, PROGRESS_BAR_HEIGHT, look->gadget_dark_colour);
    SetActiveFont(font);
}

// Null, with a log line, when the window can't be made; the other calls accept null.
T_PROGRESS_BAR *NewProgressBar(const char *title, u32 steps)
{
    T_WINDOWOBJINIT init;
    ZeroMem(&init, sizeof(init));
    init.flags = WF_TITLE | WF_BORDER | WF_IN_FRONT;
    init.w = PROGRESS_WIDTH;
    init.h = (i16)(PROGRESS_USER_HEIGHT + DISPLAY_RECORD->title_height + 2 * DISPLAY_RECORD->border_size);
    init.x = (i16)((CURRENT_DISPLAY->width - init.w) / 2);
    init.y = (i16)((CURRENT_DISPLAY->height - init.h) / 2);
    t_Window *window = CreateWindowKeepingFocus(title ? title : "", &init);  // the work goes on where it was
    if (!window) {
        myprintf(0, "NewProgressBar: the window of \"%s\" could not be made\n", title ? title : "");
        return NULL;
    }
    T_PROGRESS_BAR *bar = (T_PROGRESS_BAR *)AllocMemC(sizeof(T_PROGRESS_BAR));
    bar->window = window;
    bar->steps = steps;
    window->user_data = bar;
    NewHandler(&window->handlers, NULL, ProgressPaint, "progress", 0, sizeof(t_Handler), window);
    bar->last_paint_ms = display->ticks();
    RepaintWindowOnly(window);  // in front of the last frame; the turn's repaint shows the rest
    return bar;
}

void UpdateProgressBar(T_PROGRESS_BAR *bar, u32 step, const char *text)
{
    if (!bar)
        return;
    bar->step = step;
    strncpy(bar->text, text ? text : "", sizeof(bar->text) - 1);
    bar->text[sizeof(bar->text) - 1] = 0;
    u32 now = display->ticks();
    if (now - bar->last_paint_ms >= PROGRESS_PAINT_MS) {
        bar->last_paint_ms = now;
        RepaintWindowOnly(bar->window);  // nothing but the bar changes while the work goes on
    }
}

void KillProgressBar(T_PROGRESS_BAR *bar)
{
    if (!bar)
        return;
    bar->window->user_data = NULL;
    RemoveWindow(bar->window);
    FreeMem(bar, sizeof(T_PROGRESS_BAR));
}
