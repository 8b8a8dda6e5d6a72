// A person's actions on the headless display, queued as input and carried out by turning the loop.
#include "host/user_actions.h"

#include <ctype.h>
#include <stdio.h>
#include <string.h>
#include <stdlib.h>
#include <strings.h>

#include "display/display.h"

// A turn more than the input needs, so that what it caused has been painted.
static void TurnUntilTaken(void)
{
    for (u32 guard = 0; HeadlessPending() && guard < 1000; guard++)
        RefreshHandlers(NULL);
    RefreshHandlers(NULL);
}

static void Push(u16 kind, i16 x, i16 y, u16 button, u16 key, u16 qualifiers)
{
    T_INPUT_EVENT event;
    memset(&event, 0, sizeof(event));
    event.kind = kind;
    event.x = x;
    event.y = y;
    event.button = button;
    event.key = key;
    event.qualifiers = qualifiers;
    HeadlessPush(&event);
}

void UserMove(i16 x, i16 y)
{
    Push(INPUT_MOUSE_MOVE, x, y, 0, 0, 0);
    TurnUntilTaken();
}

void UserPress(i16 x, i16 y, u16 button)
{
    Push(INPUT_MOUSE_MOVE, x, y, 0, 0, 0);
    Push(INPUT_MOUSE_DOWN, x, y, button, 0, 0);
    TurnUntilTaken();
}

void UserRelease(i16 x, i16 y, u16 button)
{
    Push(INPUT_MOUSE_MOVE, x, y, 0, 0, 0);
    Push(INPUT_MOUSE_UP, x, y, button, 0, 0);
    TurnUntilTaken();
}

void UserClick(i16 x, i16 y, u16 button)
{
    UserPress(x, y, button);
    UserRelease(x, y, button);
    // Past the double-click time, so that the next click is a click of its own.
    HeadlessAdvance(500);
}

void UserDoubleClick(i16 x, i16 y)
{
    UserPress(x, y, 1);
    UserRelease(x, y, 1);
    UserPress(x, y, 1);
    UserRelease(x, y, 1);
    HeadlessAdvance(500);
}

void UserDrag(i16 x1, i16 y1, i16 x2, i16 y2)
{
    UserPress(x1, y1, 1);
    const int steps = 8;
    for (int i = 1; i <= steps; i++)
        UserMove((i16)(x1 + (x2 - x1) * i / steps), (i16)(y1 + (y2 - y1) * i / steps));
    UserRelease(x2, y2, 1);
    HeadlessAdvance(500);
}

void UserKey(u16 key, u16 qualifiers)
{
    Push(INPUT_KEY_DOWN, 0, 0, 0, key, qualifiers);
    TurnUntilTaken();
}

void UserType(const char *text)
{
    T_INPUT_EVENT event;
    memset(&event, 0, sizeof(event));
    event.kind = INPUT_TEXT;
    snprintf(event.text, sizeof(event.text), "%s", text);
    HeadlessPush(&event);
    TurnUntilTaken();
}

void UserTurns(u32 turns)
{
    for (u32 i = 0; i < turns; i++)
        RefreshHandlers(NULL);
}

int UserScreenshot(const char *path)
{
    T_SURFACE surface;
    surface.pixels = display->pixels(&surface.width, &surface.height, &surface.pitch);
    return WritePNG(path, &surface);
}

typedef struct T_KEY_NAME {
    const char *name;
    u16 key;
} T_KEY_NAME;

//  name          key
static const T_KEY_NAME key_names[] = {
    {"escape", KEY_ESCAPE}, {"esc", KEY_ESCAPE},   {"return", KEY_RETURN}, {"enter", KEY_RETURN},
    {"tab", KEY_TAB},       {"backspace", KEY_BACKSPACE}, {"space", ' '},  {"delete", KEY_DELETE},
    {"insert", KEY_INSERT}, {"up", KEY_UP},         {"down", KEY_DOWN},     {"left", KEY_LEFT},
    {"right", KEY_RIGHT},   {"home", KEY_HOME},     {"end", KEY_END},       {"pageup", KEY_PAGE_UP},
    {"pagedown", KEY_PAGE_DOWN},
};

typedef struct T_QUALIFIER_NAME {
    const char *name;
    u16 bit;
} T_QUALIFIER_NAME;

static const T_QUALIFIER_NAME qualifier_names[] = {
    {"shift", QUAL_SHIFT}, {"ctrl", QUAL_CONTROL}, {"control", QUAL_CONTROL}, {"alt", QUAL_ALT},
};

int ParseKeyName(const char *name, u16 *key, u16 *qualifiers)
{
    char word[64];
    *qualifiers = 0;
    const char *at = name;
    for (;;) {
        const char *plus = strchr(at, '+');
        if (!plus || plus[1] == '\0')
            break;
        size_t length = (size_t)(plus - at);
        if (length == 0 || length >= sizeof(word))
            return 0;
        memcpy(word, at, length);
        word[length] = '\0';
        int found = 0;
        for (const T_QUALIFIER_NAME &q : qualifier_names)
            if (strcasecmp(word, q.name) == 0) {
                *qualifiers |= q.bit;
                found = 1;
            }
        if (!found)
            return 0;
        at = plus + 1;
    }
    snprintf(word, sizeof(word), "%s", at);
    for (const T_KEY_NAME &k : key_names)
        if (strcasecmp(word, k.name) == 0) {
            *key = k.key;
            return 1;
        }
    if ((word[0] == 'f' || word[0] == 'F') && isdigit((unsigned char)word[1])) {
        int n = atoi(word + 1);
        if (n < 1 || n > 12)
            return 0;
        *key = (u16)(KEY_F1 + n - 1);
        return 1;
    }
    if (word[0] && !word[1]) {
        unsigned char c = (unsigned char)word[0];
        // Control with a letter has a code of its own; other keys are their character.
        if ((*qualifiers & QUAL_CONTROL) && isalpha(c))
            *key = (u16)KEY_CTRL(toupper(c));
        else
            *key = (u16)tolower(c);
        return 1;
    }
    return 0;
}

static t_Window *FindInList(t_List *list, const char *name)
{
    for (t_Node *n = list->first; n->next; n = n->next) {
        t_Window *window = (t_Window *)n;
        if (window->state_flags & WSF_REMOVED)
            continue;
        if (window->name && strcmp(window->name, name) == 0)
            return window;
        if (t_Window *child = FindInList(&window->children, name))
            return child;
    }
    return NULL;
}

t_Window *FindLiveWindow(const char *name)
{
    return FindInList(&CURRENT_DISPLAY->window_class->windows, name);
}

int FindGadgetCentre(const char *window_name, u32 item_code, i16 *x, i16 *y)
{
    t_Window *window = FindLiveWindow(window_name);
    if (!window)
        return 0;
    t_gadget *gadget = FindGadgetByItemCode(window, item_code);
    if (!gadget)
        return 0;
    if (gadget->parent_combo) {  // a person scrolls a control in a combo into view before clicking it
        ScrollComboToGadget(gadget);
        UserTurns(1);
    }
    *x = (i16)(gadget->screen_x + gadget->base_width / 2);
    *y = (i16)(gadget->screen_y + gadget->base_height / 2);
    return 1;
}

int FindToolCentre(const char *toolbar_name, u16 entry, i16 *x, i16 *y)
{
    t_Window *window = FindLiveWindow(toolbar_name);
    T_RPOS rect;
    if (!window || !GetToolBarEntryRect((T_TOOLBAR_HANDLER *)window->user_data, entry, &rect))
        return 0;
    *x = (i16)(rect.x + rect.w / 2);
    *y = (i16)(rect.y + rect.h / 2);
    return 1;
}
