// Message boxes: a child window with a glyph, the wrapped text and its buttons, which answers
// its parent with ACT_REQUESTER_OK, _ABORT or _CANCEL and the item code it was given (through
// the parent's message mask), then goes. Enter answers with the focused button (the first at
// the start), Escape and the close gadget with Cancel, or OK when there is no Cancel.
#include <string.h>

#include "lumora/lumora_internal.h"

#define MSGBOX_WRAP 60  // characters on a line before the text wraps at a space
#define MSGBOX_MAX_LINES 40
#define MSGBOX_PAD 12
#define MSGBOX_GLYPH 32
#define MSGBOX_BUTTON_MIN_W 72
#define MSGBOX_BUTTON_GAP 8
#define MSGBOX_FLAGS (WF_TITLE | WF_MOVE | WF_BORDER | WF_CLOSE | WF_ALTF4 | WF_IN_FRONT | WF_DEPENDANT)

typedef struct T_MSGBOX_BUTTON {
    const char *label;
    u32 answer;
} T_MSGBOX_BUTTON;

static const T_MSGBOX_BUTTON ok_buttons[] = {{"OK", ACT_REQUESTER_OK}};
static const T_MSGBOX_BUTTON question_buttons[] = {
    {"Yes", ACT_REQUESTER_OK},
    {"No", ACT_REQUESTER_ABORT},
    {"Cancel", ACT_REQUESTER_CANCEL},
};

enum { GLYPH_NONE, GLYPH_ERROR, GLYPH_INFO, GLYPH_QUESTION };

typedef struct T_MSGBOX {
    t_Handler head;
    t_Window *parent;
    u32 item_code;
    T_MSGBOX_BUTTON buttons[3];
    u32 button_count;
    u16 glyph;
    T_TEXTURE_BANK *icon_bank;  // SetMessageBoxIcon's icon, shown instead of the glyph
    u16 icon;
    char *text;  // own copy, cut into lines
    u32 text_size;
    u16 line_start[MSGBOX_MAX_LINES], line_length[MSGBOX_MAX_LINES];
    u16 lines;
} T_MSGBOX;

// Cuts the text into lines at '\n' and, past MSGBOX_WRAP characters, at the last space.
static void WrapText(T_MSGBOX *box)
{
    const char *t = box->text;
    u32 at = 0, length = (u32)strlen(t);
    while (at <= length && box->lines < MSGBOX_MAX_LINES) {
        u32 end = at;
        while (end < length && t[end] != '\n')
            end++;
        u32 n = end - at, skip = 1;
        if (n > MSGBOX_WRAP) {
            n = MSGBOX_WRAP, skip = 0;
            for (u32 i = MSGBOX_WRAP; i > MSGBOX_WRAP / 2; i--)
                if (t[at + i] == ' ') {
                    n = i, skip = 1;
                    break;
                }
        }
        box->line_start[box->lines] = (u16)at, box->line_length[box->lines] = (u16)n;
        box->lines++;
        at += n + skip;
        if (at > length)
            break;
    }
    QF_EXPECT(at > length);  // else the lines past MSGBOX_MAX_LINES are not shown
}

static T_MSGBOX *BoxOf(t_Window *window)
{
    return (T_MSGBOX *)window->user_data;
}

static void Answer(t_Window *window, u32 answer)
{
    T_MSGBOX *box = BoxOf(window);
    if (!box || !IsWindowLive(window))
        return;
    t_Window *parent = box->parent;
    u32 item_code = box->item_code;
    RemoveWindow(window);
    if (IsWindowLive(parent))
        DeliverMessage(parent, item_code, answer, NULL);
}

static u32 EscapeAnswer(T_MSGBOX *box)
{
    for (u32 i = 0; i < box->button_count; i++)
        if (box->buttons[i].answer == ACT_REQUESTER_CANCEL)
            return ACT_REQUESTER_CANCEL;
    return ACT_REQUESTER_OK;
}

static u32 MsgBoxMessage(t_Window *window, u32 item_code, u32 msg, void *data)
{
    (void)data;
    T_MSGBOX *box = BoxOf(window);
    switch (msg) {
    case ACT_LMOUSE_UP:  // a button: item codes count the buttons from 1
        if (item_code >= 1 && item_code <= box->button_count)
            Answer(window, box->buttons[item_code - 1].answer);
        return 0;
    case ACT_TERMINATE:  // the close gadget
        Answer(window, EscapeAnswer(box));
        return 0;
    default:
        return 0;
    }
}

static u32 MsgBoxInput(t_Handler *handler, u32 event, void *data)
{
    T_MSGBOX *box = (T_MSGBOX *)handler;
    t_Window *window = handler->window;
    switch (event) {
    case HANDLER_EVENT_KEY: {
        u16 key = ((T_KEY_MSG *)data)->key_code;
        if (key == KEY_ESCAPE) {
            Answer(window, EscapeAnswer(box));
            return 1;
        }
        if (key == KEY_RETURN) {
            t_gadget *g = GetCurrentGadget(window);
            u32 i = (g && g->live_item_code >= 1 && g->live_item_code <= box->button_count) ? g->live_item_code - 1 : 0;
            Answer(window, box->buttons[i].answer);
            return 1;
        }
        return 0;
    }
    case HANDLER_EVENT_END:
        FreeMem(box->text, box->text_size);
        box->text = NULL;
        return 0;
    default:
        return 0;
    }
}

// A filled circle of `size` pixels with a mark in it: a cross (error), "i" or "?".
void DrawInfoGlyph(i16 x, i16 y, i16 size, int kind)
{
    static const u32 circle_colours[] = {0, 0x2828D0, 0xC07828, 0xC07828};
    i32 r = size / 2, cx = x + r, cy = y + r;
    for (i32 dy = -r; dy < r; dy++) {
        i32 dx = 0;
        while ((dx + 1) * (dx + 1) + (dy + 1) * (dy + 1) <= r * r)
            dx++;
        DrawRectangle((i16)(cx - dx), (i16)(cy + dy), (i16)(2 * dx), 1, circle_colours[kind]);
    }
    u32 white = 0xFFFFFF;
    i16 q = size / 4;
    switch (kind) {
    case GLYPH_ERROR:
        for (i16 d = -1; d <= 1; d++) {
            DrawLine(cx - q + d, cy - q, cx + q + d, cy + q, white);
            DrawLine(cx - q + d, cy + q, cx + q + d, cy - q, white);
        }
        break;
    case GLYPH_INFO:
        DrawRectangle(cx - 2, cy - q - 3, 4, 4, white);
        DrawRectangle(cx - 2, cy - q + 3, 4, 2 * q, white);
        break;
    case GLYPH_QUESTION:
        DrawRectangle(cx - q, cy - q - 2, 2 * q, 3, white);
        DrawRectangle(cx + q - 3, cy - q - 2, 3, q, white);
        DrawRectangle(cx - 1, cy - 2, q, 3, white);
        DrawRectangle(cx - 1, cy - 2, 3, q / 2 + 3, white);
        DrawRectangle(cx - 1, cy + q - 1, 3, 3, white);
        break;
    }
}

static void MsgBoxPaint(t_Handler *handler)
{
    T_MSGBOX *box = (T_MSGBOX *)handler;
    t_Window *w = handler->window;
    i16 x = w->user_x + MSGBOX_PAD, y = w->user_y + MSGBOX_PAD;
    if (box->icon_bank) {
        DrawIconScaled(box->icon_bank, box->icon, x, y, MSGBOX_GLYPH, MSGBOX_GLYPH);
        x += MSGBOX_GLYPH + MSGBOX_PAD;
    } else if (box->glyph != GLYPH_NONE) {
        DrawInfoGlyph(x, y, MSGBOX_GLYPH, box->glyph);
        x += MSGBOX_GLYPH + MSGBOX_PAD;
    }
    SetActiveFont(NULL);
    SetFontStyle(0);
    i16 fh = (i16)GetActiveFontHeight();
    for (u16 i = 0; i < box->lines; i++)
        DrawTextN(x, y + i * fh, box->text + box->line_start[i], box->line_length[i],
                  DISPLAY_RECORD->gadget_text_colour);
}

t_Window *NewMsgBox(t_Window *parent, const char *title, const char *text, u32 style, u32 item_code)
{
    return NewMsgBoxLabels(parent, title, text, style, item_code, NULL);
}

// A box's size: its text's lines, its glyph, its buttons (all as wide as the widest).
typedef struct T_MSGBOX_SIZE {
    i16 user_w, user_h;
    i16 button_w, button_h, row_w;  // a button, and the row of them
} T_MSGBOX_SIZE;

static T_MSGBOX_SIZE MeasureMsgBox(const T_MSGBOX *box)
{
    SetActiveFont(NULL);
    SetFontStyle(0);
    i16 fh = (i16)GetActiveFontHeight();
    i16 text_w = 0;
    for (u16 i = 0; i < box->lines; i++) {
        i16 lw = (i16)GetStringWidthN(box->text + box->line_start[i], box->line_length[i]);
        if (lw > text_w)
            text_w = lw;
    }
    T_MSGBOX_SIZE size = {};
    size.button_w = MSGBOX_BUTTON_MIN_W, size.button_h = fh + 10;
    for (u32 i = 0; i < box->button_count; i++) {
        i16 bw = (i16)GetStringWidth(box->buttons[i].label) + 24;
        if (bw > size.button_w)
            size.button_w = bw;
    }
    u32 count = box->button_count;
    size.row_w = (i16)(count * size.button_w + (count - 1) * MSGBOX_BUTTON_GAP);
    i16 glyph_w = box->glyph != GLYPH_NONE ? MSGBOX_GLYPH + MSGBOX_PAD : 0;
    size.user_w = MSGBOX_PAD + glyph_w + text_w + MSGBOX_PAD;
    if (size.user_w < size.row_w + 2 * MSGBOX_PAD)
        size.user_w = size.row_w + 2 * MSGBOX_PAD;
    i16 body_h = box->lines * fh;
    if (box->glyph != GLYPH_NONE && body_h < MSGBOX_GLYPH)
        body_h = MSGBOX_GLYPH;
    size.user_h = MSGBOX_PAD + body_h + MSGBOX_PAD + size.button_h + MSGBOX_PAD;
    return size;
}

// The buttons in a row centred at the bottom; item codes count them from 1; the first has the focus.
static void AddMsgBoxButtons(t_Window *window, const T_MSGBOX *box, const T_MSGBOX_SIZE &size)
{
    t_Gaget_Handler *gh = NewGadgetHandler(window);
    T_GADGETOBJECTINIT gi = {};
    gi.type = GADGET_TYPE_BUTTON;
    gi.base_width = size.button_w, gi.base_height = size.button_h;
    gi.action = ACT_LMOUSE_UP;
    gi.y = size.user_h - MSGBOX_PAD - size.button_h;
    for (u32 i = 0; i < box->button_count; i++) {
        gi.x = (size.user_w - size.row_w) / 2 + (i16)(i * (size.button_w + MSGBOX_BUTTON_GAP));
        gi.item_code = i + 1;
        CreateObject(&gh->head, box->buttons[i].label, &gi);
    }
    gh->current_gadget = gh->first_gadget;
}

t_Window *NewMsgBoxLabels(t_Window *parent, const char *title, const char *text, u32 style, u32 item_code,
                          const char *const *labels)
{
    if (parent && !IsWindowLive(parent))
        parent = NULL;
    // The box's record, made before its window so that the window can be sized to it.
    T_MSGBOX measure = {};
    int question = (style & MSGBOX_BUTTONS_MASK) == MSGBOX_BUTTONS_YES_NO_CANCEL;
    measure.button_count = question ? 3 : 1;
    for (u32 i = 0; i < measure.button_count; i++) {
        measure.buttons[i] = question ? question_buttons[i] : ok_buttons[i];
        if (labels && labels[i])
            measure.buttons[i].label = labels[i];
    }
    measure.glyph = (style & MSGBOX_GLYPH_ERROR)      ? GLYPH_ERROR
                    : (style & MSGBOX_GLYPH_INFO)     ? GLYPH_INFO
                    : (style & MSGBOX_GLYPH_QUESTION) ? GLYPH_QUESTION
                                                      : GLYPH_NONE;
    measure.parent = parent, measure.item_code = item_code;
    measure.text_size = (u32)strlen(text ? text : "") + 1;
    measure.text = (char *)AllocMemC(measure.text_size);
    memcpy(measure.text, text ? text : "", measure.text_size);
    WrapText(&measure);
    T_MSGBOX_SIZE size = MeasureMsgBox(&measure);

    const T_DIALOG_INIT dialog = {title,           parent,        size.user_w, size.user_h, MSGBOX_FLAGS | WF_CHILD,
                                  IDCMP_TERMINATE, MsgBoxMessage, MsgBoxInput, MsgBoxPaint, "msgbox",
                                  sizeof(T_MSGBOX)};
    T_MSGBOX *box = (T_MSGBOX *)OpenDialog(&dialog);
    if (!box) {
        FreeMem(measure.text, measure.text_size);
        return NULL;
    }
    t_Handler head = box->head;
    *box = measure;
    box->head = head;
    t_Window *window = head.window;
    window->user_data = box;
    AddMsgBoxButtons(window, box, size);
    return window;
}

void SetMessageBoxIcon(t_Window *box, T_TEXTURE_BANK *bank, u16 icon)
{
    if (!box || !box->user_data)
        return;
    T_MSGBOX *m = BoxOf(box);
    m->icon_bank = bank;
    m->icon = icon;
}

const char *MessageBoxText(t_Window *box)
{
    if (!box || box->message != MsgBoxMessage || !box->user_data)
        return NULL;
    return BoxOf(box)->text;
}
