// The colour selector: a child window with red, green and blue sliders and a swatch. Each move
// changes the caller's T_RGBA (and its T_HSIA) in place and tells the parent with
// ACT_REQUESTER_PREVIEW; OK and Cancel answer and close. The data of every answer is the window's
// T_COLOURSEL, which leads back to the caller's user pointer. On Cancel the caller restores its
// own colour.
#include <stddef.h>
#include <stdio.h>

#include "lumora/lumora_internal.h"
#include "pickett/pickett_internal.h"

#define COLSEL_USER_W 320
#define COLSEL_LABEL_W 48
#define COLSEL_VALUE_W 32
#define COLSEL_SWATCH_H 40
#define COLSEL_FLAGS \
    (WF_CHILD | WF_TITLE | WF_MOVE | WF_BORDER | WF_CLOSE | WF_ALTF4 | WF_IN_FRONT | WF_DEPENDANT)
#define COLSEL_SLIDER_ACTION (ACT_LMOUSE_DOWN | ACT_LMOUSE_UP | ACT_MOUSE_WHEEL)

enum { COLSEL_RED = 1, COLSEL_GREEN, COLSEL_BLUE, COLSEL_OK, COLSEL_CANCEL, COLSEL_LABEL };

// The three channels: label, and where each lives in a T_RGBA.
static const struct {
    const char *label;
    size_t offset;
} channels[3] = {
    {"Red", offsetof(T_RGBA, r)},
    {"Green", offsetof(T_RGBA, g)},
    {"Blue", offsetof(T_RGBA, b)},
};

typedef struct T_COLOUR_SELECTOR {
    t_Handler head;   // keys first, the swatch and values' paint
    T_COLOURSEL sel;  // the window's user_data and the data of the answers
    t_gadget *sliders[3], *ok, *cancel;
    T_RPOS swatch;  // from the user area's corner
    u16 answered;   // OK or Cancel went out: a nested loop must not answer twice
} T_COLOUR_SELECTOR;

static T_COLOUR_SELECTOR *SelectorOf(t_Window *window) {
    return (T_COLOUR_SELECTOR *)((char *)window->user_data - offsetof(T_COLOUR_SELECTOR, sel));
}

static float *Channel(T_RGBA *rgba, int i) { return (float *)((char *)rgba + channels[i].offset); }

static i32 SliderValue(t_gadget *slider) { return ((T_SLIDER_DATA *)slider->class_data)->value; }

static i32 ToByte(float v) { return v < 0 ? 0 : v > 255 ? 255 : (i32)(v + 0.5f); }

// The sliders' values into the caller's colour, and a preview for the parent.
static void TakeSliders(t_Window *window) {
    T_COLOUR_SELECTOR *s = SelectorOf(window);
    for (int i = 0; i < 3; i++) *Channel(s->sel.rgba, i) = (float)SliderValue(s->sliders[i]);
    if (s->sel.hsia) RGBToHSI(s->sel.rgba, s->sel.hsia);
    AnswerParent(s->sel.window->parent, s->sel.item_code, ACT_REQUESTER_PREVIEW, &s->sel);
}

static void Finish(t_Window *window, u32 answer) {
    T_COLOUR_SELECTOR *s = SelectorOf(window);
    if (!IsWindowLive(window) || s->answered) return;
    s->answered = 1;
    AnswerParent(window->parent, s->sel.item_code, answer, &s->sel);
    RemoveWindow(window);
}

static u32 ColourSelectorMessage(t_Window *window, u32 item_code, u32 msg, void *data) {
    (void)data;
    switch (msg) {
    case ACT_TERMINATE:  // the close gadget: Cancel
        Finish(window, ACT_REQUESTER_CANCEL);
        return 0;
    default:
        switch (item_code) {
        case COLSEL_RED:  // a slider moved: press, drag, release, wheel or key
        case COLSEL_GREEN:
        case COLSEL_BLUE:
            TakeSliders(window);
            return 0;
        case COLSEL_OK:  // the OK button
            if (msg == ACT_LMOUSE_UP) Finish(window, ACT_REQUESTER_OK);
            return 0;
        case COLSEL_CANCEL:  // the Cancel button
            if (msg == ACT_LMOUSE_UP) Finish(window, ACT_REQUESTER_CANCEL);
            return 0;
        default:
            return 0;
        }
    }
}

// The swatch in the colour, and each slider's value beside it.
static void ColourSelectorPaint(t_Handler *handler) {
    T_COLOUR_SELECTOR *s = (T_COLOUR_SELECTOR *)handler;
    t_Window *w = handler->window;
    T_DISPLAY_RECORD *rec = DISPLAY_RECORD;
    T_RPOS box = {(i16)(w->user_x + s->swatch.x), (i16)(w->user_y + s->swatch.y), s->swatch.w,
                  s->swatch.h};
    DrawRectangle(box.x, box.y, box.w, box.h, GetConstantTRGBA(s->sel.rgba));
    DrawOutLineBox(box.x, box.y, box.w, box.h, rec->gadget_dark_colour);
    SetActiveFont(NULL);
    SetFontStyle(0);
    i16 th = (i16)GetActiveFontHeight();
    for (t_gadget *slider : s->sliders) {
        char text[16];
        snprintf(text, sizeof text, "%d", (int)SliderValue(slider));
        DrawText(slider->screen_x + slider->base_width + SELECTOR_GAP,
                 slider->screen_y + (slider->base_height - th) / 2, text, rec->gadget_text_colour);
    }
}

// Keys come here before the gadgets: Enter is OK (Cancel on the Cancel button), Escape Cancel.
static u32 ColourSelectorInput(t_Handler *handler, u32 event, void *data) {
    T_COLOUR_SELECTOR *s = (T_COLOUR_SELECTOR *)handler;
    t_Window *window = handler->window;
    switch (event) {
    case HANDLER_EVENT_KEY: {
        u32 answer = SelectorKeyAnswer(window, s->cancel, ((T_KEY_MSG *)data)->key_code);
        if (answer) Finish(window, answer);
        return answer != 0;
    }
    default:
        return 0;
    }
}

t_Window *AddColourSelector(T_COLOURSEL_INIT *init) {
    if (!init || !init->rgba) return NULL;
    t_Window *parent = IsWindowLive(init->parent) ? init->parent : NULL;
    i16 rh = SelectorRowHeight(), pad = SELECTOR_PAD, gap = SELECTOR_GAP;
    i16 user_h = pad + COLSEL_SWATCH_H + gap + 3 * (rh + gap) + gap + rh + pad;
    t_Window *window = OpenSelectorWindow(init->title, parent, COLSEL_USER_W, user_h, COLSEL_FLAGS,
                                          IDCMP_TERMINATE, ColourSelectorMessage);
    if (!window) return NULL;
    T_COLOUR_SELECTOR *s =
        (T_COLOUR_SELECTOR *)NewHandler(&window->handlers, ColourSelectorInput, ColourSelectorPaint,
                                        "colour selector", 0, sizeof(T_COLOUR_SELECTOR), window);
    if (!s) {
        RemoveWindow(window);
        return NULL;
    }
    window->user_data = &s->sel;
    s->sel = T_COLOURSEL{window, init->rgba, init->hsia, init->item_code, init->user_data};
    s->swatch = T_RPOS{pad, pad, (i16)(COLSEL_USER_W - 2 * pad), COLSEL_SWATCH_H};

    t_Gaget_Handler *gh = NewGadgetHandler(window);
    T_GADGETOBJECTINIT gi = {};
    i16 y = pad + COLSEL_SWATCH_H + gap;
    for (int i = 0; i < 3; i++, y += rh + gap) {
        gi = T_GADGETOBJECTINIT{};
        gi.type = GADGET_TYPE_TEXT;
        gi.x = pad, gi.y = y, gi.base_width = COLSEL_LABEL_W, gi.base_height = rh;
        gi.item_code = COLSEL_LABEL;
        CreateObject(&gh->head, channels[i].label, &gi);
        gi.type = GADGET_TYPE_SLIDER;
        gi.x = pad + COLSEL_LABEL_W;
        gi.base_width = COLSEL_USER_W - 2 * pad - COLSEL_LABEL_W - COLSEL_VALUE_W - gap;
        gi.item_code = COLSEL_RED + i;
        gi.min = 0, gi.max = 255, gi.step = 1;
        gi.init_val = ToByte(*Channel(init->rgba, i));
        gi.flags = GADGET_FLAGS_HORIZONTAL | GADGET_FLAGS_REPORT_DRAG;
        gi.action = COLSEL_SLIDER_ACTION;
        s->sliders[i] = (t_gadget *)CreateObject(&gh->head, channels[i].label, &gi);
    }
    gi = T_GADGETOBJECTINIT{};
    gi.type = GADGET_TYPE_BUTTON;
    gi.y = y + gap, gi.base_width = SELECTOR_BUTTON_W, gi.base_height = rh;
    gi.action = ACT_LMOUSE_UP;
    gi.x = COLSEL_USER_W - pad - 2 * SELECTOR_BUTTON_W - gap, gi.item_code = COLSEL_OK;
    s->ok = (t_gadget *)CreateObject(&gh->head, "OK", &gi);
    gi.x = COLSEL_USER_W - pad - SELECTOR_BUTTON_W, gi.item_code = COLSEL_CANCEL;
    s->cancel = (t_gadget *)CreateObject(&gh->head, "Cancel", &gi);
    if (!s->sliders[0] || !s->sliders[1] || !s->sliders[2] || !s->ok || !s->cancel) {
        myprintf(0, "AddColourSelector: the gadgets of %s could not be made\n", window->name);
        RemoveWindow(window);
        return NULL;
    }
    gh->current_gadget = s->sliders[0];
    return window;
}
