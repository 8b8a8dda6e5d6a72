// The colour selector: a child window with a swatch, red, green and blue sliders, hue,
// saturation and intensity sliders, a Preview box, OK and Cancel. Each move changes the caller's
// T_RGBA and its T_HSIA in place, the other group of sliders following, and while Preview is on
// tells the parent with ACT_REQUESTER_PREVIEW; OK and Cancel answer and close. The data of every
// answer is the window's T_COLOURSEL, which leads back to the caller's user pointer. On Cancel
// the caller restores its own colour.
//
// The swatch is also a source of drags: the colour released over a colour flat gadget of another
// window is dropped on it (DropColourOnGadget), released over another window's background it is
// offered with ACT_RECEIVE_OBJECT, item code COLSEL_DROP_ITEM and a T_RGBA * as data.
#include <stddef.h>
#include <stdio.h>

#include "lumora/lumora_internal.h"
#include "pickett/pickett_internal.h"

#define COLSEL_USER_W 340
#define COLSEL_VALUE_W 32  // the value column, right of the sliders
#define COLSEL_SWATCH_H 40
#define COLSEL_GROUP_GAP 8  // between the RGB and the HSI rows, beyond the row gap
#define COLSEL_DROP_ITEM 1  // the item code of ACT_RECEIVE_OBJECT for a dropped colour
#define COLSEL_DRAG_IMAGE MOUSE_IMAGE_HAND
#define COLSEL_FLAGS (WF_CHILD | WF_TITLE | WF_MOVE | WF_BORDER | WF_CLOSE | WF_ALTF4 | WF_IN_FRONT | WF_DEPENDANT)
#define COLSEL_SLIDER_ACTION (ACT_LMOUSE_DOWN | ACT_LMOUSE_UP | ACT_MOUSE_WHEEL)
#define COLSEL_CHANNEL_MAX 255

enum {
    COLSEL_RED = 1,
    COLSEL_GREEN,
    COLSEL_BLUE,
    COLSEL_HUE,
    COLSEL_SATURATION,
    COLSEL_INTENSITY,
    COLSEL_PREVIEW,
    COLSEL_OK,
    COLSEL_CANCEL,
    COLSEL_LABEL
};

enum { GROUP_RGB, GROUP_HSI };

#define COLSEL_CHANNELS 6

// The channels in their rows, top down: label, group, and where each lives in a T_RGBA or T_HSIA.
// Slider i has the item code COLSEL_RED + i.
static const struct {
    const char *label;
    u16 group;
    size_t offset;
    // clang-format off
} channels[COLSEL_CHANNELS] = {
    {"Red",        GROUP_RGB, offsetof(T_RGBA, r)},
    {"Green",      GROUP_RGB, offsetof(T_RGBA, g)},
    {"Blue",       GROUP_RGB, offsetof(T_RGBA, b)},
    {"Hue",        GROUP_HSI, offsetof(T_HSIA, h)},
    {"Saturation", GROUP_HSI, offsetof(T_HSIA, s)},
    {"Intensity",  GROUP_HSI, offsetof(T_HSIA, i)},
};
// clang-format on

typedef struct T_COLOUR_SELECTOR {
    T_SELECTOR base;  // and the swatch's drag, the swatch and values' paint
    T_COLOURSEL sel;  // the window's user_data and the data of the answers
    T_HSIA hsia;      // the HSI sliders' colour: the caller's T_HSIA may be null, and a grey
                      // keeps the hue that was set on it
    t_gadget *sliders[COLSEL_CHANNELS], *preview, *ok;
    T_RPOS swatch;  // from the user area's corner
    u16 dragging;   // the press in progress drags the colour from the swatch
} T_COLOUR_SELECTOR;

static T_COLOUR_SELECTOR *SelectorOf(t_Window *window)
{
    return (T_COLOUR_SELECTOR *)((char *)window->user_data - offsetof(T_COLOUR_SELECTOR, sel));
}

// Where channel i lives: the caller's T_RGBA, or the selector's T_HSIA.
static float *Channel(T_COLOUR_SELECTOR *s, int i)
{
    char *record = channels[i].group == GROUP_RGB ? (char *)s->sel.rgba : (char *)&s->hsia;
    return (float *)(record + channels[i].offset);
}

static T_SLIDER_DATA *Slider(t_gadget *slider)
{
    return (T_SLIDER_DATA *)slider->class_data;
}

static i32 ToByte(float v)
{
    return v < 0 ? 0 : v > COLSEL_CHANNEL_MAX ? COLSEL_CHANNEL_MAX : (i32)(v + 0.5f);
}

static int PreviewOn(T_COLOUR_SELECTOR *s)
{
    return s->preview && s->preview->class_data;
}

static void SendPreview(T_COLOUR_SELECTOR *s)
{
    if (PreviewOn(s))
        TellParent(&s->base, ACT_REQUESTER_PREVIEW);
}

// The sliders of a group follow the colour.
static void ShowGroup(T_COLOUR_SELECTOR *s, u16 group)
{
    for (int i = 0; i < COLSEL_CHANNELS; i++)
        if (channels[i].group == group)
            Slider(s->sliders[i])->value = ToByte(*Channel(s, i));
}

// A slider of the group of channel `moved` was moved: the channels whose slider now shows
// another value take it (the others keep their fractions), the other group is worked out from
// this one, the caller's T_HSIA takes the selector's, and the parent gets a preview. A press
// that changes nothing changes nothing.
static void TakeGroup(T_COLOUR_SELECTOR *s, int moved)
{
    u16 group = channels[moved].group;
    int changed = 0;
    for (int i = 0; i < COLSEL_CHANNELS; i++) {
        i32 value = Slider(s->sliders[i])->value;
        if (channels[i].group != group || ToByte(*Channel(s, i)) == value)
            continue;
        *Channel(s, i) = (float)value;
        changed = 1;
    }
    if (!changed)
        return;
    if (group == GROUP_RGB) {
        RGBToHSI(s->sel.rgba, &s->hsia);
        ShowGroup(s, GROUP_HSI);
    } else {
        s->hsia.a = s->sel.rgba->a;
        HSIToRGB(&s->hsia, s->sel.rgba);
        ShowGroup(s, GROUP_RGB);
    }
    if (s->sel.hsia)
        *s->sel.hsia = s->hsia;
    SendPreview(s);
}

// Every message comes from a gadget (the close gadget is the selectors' own): by the item code.
static u32 ColourSelectorMessage(t_Window *window, u32 item_code, u32 msg, void *data)
{
    (void)data;
    T_COLOUR_SELECTOR *s = SelectorOf(window);
    switch (item_code) {
    case COLSEL_RED:  // a slider moved: press, drag, release, wheel or key
    case COLSEL_GREEN:
    case COLSEL_BLUE:
    case COLSEL_HUE:
    case COLSEL_SATURATION:
    case COLSEL_INTENSITY:
        TakeGroup(s, (int)(item_code - COLSEL_RED));
        return 0;
    case COLSEL_PREVIEW:  // turned on again: the parent catches up with the colour
        if (msg == ACT_LMOUSE_UP)
            SendPreview(s);
        return 0;
    case COLSEL_OK:  // the OK button
        if (msg == ACT_LMOUSE_UP)
            FinishSelector(&s->base, ACT_REQUESTER_OK);
        return 0;
    case COLSEL_CANCEL:  // the Cancel button
        if (msg == ACT_LMOUSE_UP)
            FinishSelector(&s->base, ACT_REQUESTER_CANCEL);
        return 0;
    default:
        return 0;
    }
}

static T_RPOS SwatchRect(T_COLOUR_SELECTOR *s)
{
    t_Window *w = s->sel.window;
    return T_RPOS{(i16)(w->user_x + s->swatch.x), (i16)(w->user_y + s->swatch.y), s->swatch.w, s->swatch.h};
}

// The swatch in the colour, and each slider's value right-aligned beside it.
static void ColourSelectorPaint(t_Handler *handler)
{
    T_COLOUR_SELECTOR *s = (T_COLOUR_SELECTOR *)handler;
    T_DISPLAY_RECORD *rec = DISPLAY_RECORD;
    T_RPOS box = SwatchRect(s);
    DrawRectangle(box.x, box.y, box.w, box.h, GetConstantTRGBA(s->sel.rgba));
    DrawBevelBox(box.x, box.y, box.w, box.h, rec->gadget_dark_colour, rec->gadget_light_colour);
    SetActiveFont(NULL);
    SetFontStyle(0);
    i16 th = (i16)GetActiveFontHeight();
    for (t_gadget *slider : s->sliders) {
        char text[16];
        snprintf(text, sizeof text, "%d", (int)Slider(slider)->value);
        i16 right = slider->screen_x + slider->base_width + SELECTOR_GAP + COLSEL_VALUE_W;
        DrawText((i16)(right - GetStringWidth(text)), slider->screen_y + (slider->base_height - th) / 2, text,
                 rec->gadget_text_colour);
    }
}

// The colour released at x, y: on a colour flat gadget of another window (one in a combo too)
// it is dropped, on another window's background it is offered. The selector's own colour stays:
// the receivers get a copy.
static void DropColour(T_COLOUR_SELECTOR *s, i16 x, i16 y)
{
    t_Window *target = WindowAtPoint(x, y, NULL);
    if (!target || target == s->sel.window)
        return;
    T_RGBA colour = *s->sel.rgba;
    if (t_gadget *g = GadgetAtPoint(target, x, y)) {
        // A disabled swatch takes nothing, unless its owner's function decides.
        if (g->type == GADGET_TYPE_COLOUR_FLAT && (g->action_fn || !(g->live_flags & GADGET_FLAGS_DISABLED)))
            DropColourOnGadget(target, g, &colour);
        return;
    }
    T_RPOS user = UserArea(target);
    if (PointBoxColl(x, y, &user))
        DeliverMessage(target, COLSEL_DROP_ITEM, ACT_RECEIVE_OBJECT, &colour);
}

static void EndDrag(T_COLOUR_SELECTOR *s)
{
    if (!s->dragging)
        return;
    s->dragging = 0;
    SetMouseImage(MOUSE_IMAGE_ARROW);
}

// A left press on the swatch drags its colour; the drag holds the pointer until the release.
static u32 SwatchMouse(T_COLOUR_SELECTOR *s, const T_MOUSE_MSG *m)
{
    switch (m->mouse_action) {
    case ACT_LMOUSE_DOWN: {  // on the swatch: the drag begins
        T_RPOS swatch = SwatchRect(s);
        if (!PointBoxColl(m->x, m->y, &swatch))
            return 0;
        s->dragging = 1;
        SetMouseImage(COLSEL_DRAG_IMAGE);
        return 1;
    }
    case ACT_LMOUSE_UP:  // the drop
        if (!s->dragging)
            return 0;
        EndDrag(s);
        DropColour(s, m->x, m->y);
        return 1;
    default:  // moves and other buttons while dragging
        return s->dragging;
    }
}

// Keys come here before the gadgets: Enter is OK (Cancel on the Cancel button), Escape Cancel.
static u32 ColourSelectorInput(t_Handler *handler, u32 event, void *data)
{
    T_COLOUR_SELECTOR *s = (T_COLOUR_SELECTOR *)handler;
    switch (event) {
    case HANDLER_EVENT_KEY:
        return SelectorKey(&s->base, ((T_KEY_MSG *)data)->key_code);
    case HANDLER_EVENT_MOUSE:  // the swatch's drag
        return SwatchMouse(s, (const T_MOUSE_MSG *)data);
    case HANDLER_EVENT_BREAK:  // the drag was broken off: nothing is dropped
    case HANDLER_EVENT_END:
        EndDrag(s);
        return 0;
    default:
        return 0;
    }
}

// The label column is as wide as the widest label.
static i16 LabelWidth(void)
{
    SetActiveFont(NULL);
    SetFontStyle(0);
    i32 widest = 0;
    for (const auto &c : channels) {
        i32 w = GetStringWidth(c.label);
        if (w > widest)
            widest = w;
    }
    return (i16)(widest + SELECTOR_GAP);
}

static t_gadget *MakeGadget(t_Gaget_Handler *gh, const char *name, T_GADGETOBJECTINIT *gi)
{
    return (t_gadget *)CreateObject(&gh->head, name, gi);
}

// The rows under the swatch: a label and a slider per channel, the two groups apart, then
// Preview at the left and OK and Cancel at the right. False when a gadget can't be made.
static int MakeSelectorGadgets(T_COLOUR_SELECTOR *s, t_Gaget_Handler *gh, i16 rh)
{
    i16 pad = SELECTOR_PAD, gap = SELECTOR_GAP, label_w = LabelWidth();
    i16 slider_w = COLSEL_USER_W - 2 * pad - label_w - gap - COLSEL_VALUE_W;
    i16 y = pad + COLSEL_SWATCH_H + gap;
    for (int i = 0; i < COLSEL_CHANNELS; i++, y += rh + gap) {
        if (i && channels[i].group != channels[i - 1].group)
            y += COLSEL_GROUP_GAP;
        T_GADGETOBJECTINIT gi = {};
        gi.type = GADGET_TYPE_TEXT;
        gi.x = pad, gi.y = y, gi.base_width = label_w, gi.base_height = rh;
        gi.flags = GADGET_FLAGS_LEFT_JUSTIFY;
        gi.item_code = COLSEL_LABEL;
        MakeGadget(gh, channels[i].label, &gi);
        gi = T_GADGETOBJECTINIT{};
        gi.type = GADGET_TYPE_SLIDER;
        gi.x = pad + label_w, gi.y = y, gi.base_width = slider_w, gi.base_height = rh;
        gi.item_code = COLSEL_RED + i;
        gi.min = 0, gi.max = COLSEL_CHANNEL_MAX, gi.step = 1;
        gi.init_val = ToByte(*Channel(s, i));
        gi.flags = GADGET_FLAGS_HORIZONTAL | GADGET_FLAGS_REPORT_DRAG;
        gi.action = COLSEL_SLIDER_ACTION;
        if (!(s->sliders[i] = MakeGadget(gh, channels[i].label, &gi)))
            return 0;
    }
    y += gap;
    T_GADGETOBJECTINIT gi = {};
    gi.type = GADGET_TYPE_CHECK_BOX;
    gi.x = pad, gi.y = y, gi.base_height = rh;
    gi.init_val = 1;
    gi.action = ACT_LMOUSE_UP;
    gi.item_code = COLSEL_PREVIEW;
    s->preview = MakeGadget(gh, "Preview", &gi);
    gi = T_GADGETOBJECTINIT{};
    gi.type = GADGET_TYPE_BUTTON;
    gi.y = y, gi.base_width = SELECTOR_BUTTON_W, gi.base_height = rh;
    gi.action = ACT_LMOUSE_UP;
    gi.x = COLSEL_USER_W - pad - 2 * SELECTOR_BUTTON_W - gap, gi.item_code = COLSEL_OK;
    s->ok = MakeGadget(gh, "OK", &gi);
    gi.x = COLSEL_USER_W - pad - SELECTOR_BUTTON_W, gi.item_code = COLSEL_CANCEL;
    s->base.cancel = MakeGadget(gh, "Cancel", &gi);
    return s->preview && s->ok && s->base.cancel;
}

// The HSI sliders start from the caller's T_HSIA when it names the caller's colour, so that a
// grey keeps its hue; else from the colour.
static void StartHSI(T_COLOUR_SELECTOR *s)
{
    if (s->sel.hsia) {
        T_RGBA back;
        HSIToRGB(s->sel.hsia, &back);
        if (GetConstantTRGBA(&back) == GetConstantTRGBA(s->sel.rgba)) {
            s->hsia = *s->sel.hsia;
            return;
        }
    }
    RGBToHSI(s->sel.rgba, &s->hsia);
}

// Its height follows the system font: worked out at the opening.
// clang-format off
static const T_SELECTOR_KIND colour_selector_kind = {
    COLSEL_USER_W, 0, COLSEL_FLAGS, IDCMP_TERMINATE,
    ColourSelectorMessage, ColourSelectorInput, ColourSelectorPaint, "colour selector", sizeof(T_COLOUR_SELECTOR),
    offsetof(T_COLOUR_SELECTOR, sel)};
// clang-format on

t_Window *AddColourSelector(T_COLOURSEL_INIT *init)
{
    if (!init || !init->rgba)
        return NULL;
    i16 rh = SelectorRowHeight(), pad = SELECTOR_PAD, gap = SELECTOR_GAP;
    i16 user_h = pad + COLSEL_SWATCH_H + gap + COLSEL_CHANNELS * (rh + gap) + COLSEL_GROUP_GAP + gap + rh + pad;
    T_COLOUR_SELECTOR *s =
        (T_COLOUR_SELECTOR *)OpenSelector(&colour_selector_kind, init->title, init->parent, user_h, init->item_code);
    if (!s)
        return NULL;
    t_Window *window = s->base.head.window;
    s->base.answer_data = s->base.cancel_data = &s->sel;
    s->sel = T_COLOURSEL{window, init->rgba, init->hsia, init->item_code, init->user_data};
    s->swatch = T_RPOS{pad, pad, (i16)(COLSEL_USER_W - 2 * pad), COLSEL_SWATCH_H};
    StartHSI(s);
    t_Gaget_Handler *gh = NewGadgetHandler(window);
    if (!gh || !MakeSelectorGadgets(s, gh, rh))
        return DropSelector(&s->base, "AddColourSelector");
    gh->current_gadget = s->sliders[0];
    return window;
}
