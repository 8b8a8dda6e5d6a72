// The key editor "Keyboard": a child window that lists the application's commands by group with
// their keys. The user picks a command, then presses its new key; a key that another command
// has is refused with a message box. Keys are stored by SetAppCommandKey, and ExecuteAppCommand
// and menu entries made from commands follow them at once.
#include <stdio.h>
#include <string.h>

#include "lumora/lumora_internal.h"
#include "marshalry/marshalry_internal.h"

#define KEYED_USER_W 360
#define KEYED_USER_H 320
#define KEYED_PAD 8
#define KEYED_LINE_SIZE 160
#define KEYED_FLAGS (WF_CHILD | WF_TITLE | WF_MOVE | WF_BORDER | WF_CLOSE | WF_ALTF4 | WF_RESIZE | WF_DEPENDANT)

enum { KEYED_LIST = 1, KEYED_HINT };

static const char *const hint_pick = "Pick a command, then press the new key";
static const char *const hint_press = "Press the new key for %s (Escape: keep the old one)";

typedef struct T_KEY_EDITOR {
    t_Handler head;  // keys first
    T_APPLICATION *app;
    T_APP_COMMAND *picked;  // the command waiting for its key, or null
    T_LIST_DATA *list;
    t_gadget *list_gadget, *hint;
    char hint_text[KEYED_LINE_SIZE];
} T_KEY_EDITOR;

static T_KEY_EDITOR *EditorOf(t_Window *window)
{
    return (T_KEY_EDITOR *)window->user_data;
}

static T_APP_COMMAND *CommandAt(T_KEY_EDITOR *e, i32 row)
{
    return row < 0 ? NULL : (T_APP_COMMAND *)FindNodeByIndex(&e->app->commands, (u32)row);
}

// One line per command, in registration order: "Group: Name<tab>Key", or "Group: Name"; the list
// shows the key at the right.
static void FillList(T_KEY_EDITOR *e)
{
    i32 selected = e->list->selected, top = e->list->top;
    EmptyList(&e->list->entries, sizeof(T_LIST_ENTRY));
    T_GADGETOBJECTINIT gi = {};
    gi.parent_gadget = e->list;
    for (T_APP_COMMAND *c = (T_APP_COMMAND *)e->app->commands.first; c->next; c = c->next) {
        char line[KEYED_LINE_SIZE], key[KEY_NAME_SIZE];
        KeyName(c->key, key);
        snprintf(line, sizeof line, "%s: %s%s%s", c->group, c->name, key[0] ? "\t" : "", key);
        CreateObject(&e->list_gadget->handler->head, line, &gi);
    }
    e->list->selected = selected;
    e->list->top = top;
    e->list->resized_flags |= LIST_RESIZED;
}

static void SetHint(T_KEY_EDITOR *e)
{
    if (e->picked)
        snprintf(e->hint_text, sizeof e->hint_text, hint_press, e->picked->name);
    else
        snprintf(e->hint_text, sizeof e->hint_text, "%s", hint_pick);
    e->hint->name = e->hint_text;
}

// The picked command takes `key`, unless another command has it.
static void TakeKey(t_Window *window, u16 key)
{
    T_KEY_EDITOR *e = EditorOf(window);
    T_APP_COMMAND *holder = FindAppCommandByKey(e->app, key);
    if (holder && holder != e->picked) {
        char name[KEY_NAME_SIZE], text[KEYED_LINE_SIZE];
        snprintf(text, sizeof text, "The key %s is already used by %s.", KeyName(key, name), holder->name);
        NewMsgBox(window, "Keyboard", text, 16, 0);
        return;
    }
    SetAppCommandKey(e->app, e->picked, key);
    e->picked = NULL;
    SetHint(e);
    FillList(e);
}

static void Layout(t_Window *window)
{
    T_KEY_EDITOR *e = EditorOf(window);
    i16 rh = (i16)GetFontHeight(DISPLAY_RECORD->system_font) + 8;
    i16 w = window->user_w, h = window->user_h;
    i16 list_h = ListHeightForWholeRows(e->list_gadget, (i16)(h - 3 * KEYED_PAD - rh));
    if (list_h < rh)
        list_h = rh;
    t_gadget *rows[2] = {e->hint, e->list_gadget};
    T_RPOS places[2] = {{KEYED_PAD, KEYED_PAD, (i16)(w - 2 * KEYED_PAD), rh},
                        {KEYED_PAD, (i16)(2 * KEYED_PAD + rh), (i16)(w - 2 * KEYED_PAD), list_h}};
    for (int i = 0; i < 2; i++) {
        rows[i]->pos_x = places[i].x, rows[i]->pos_y = places[i].y;
        rows[i]->base_width = places[i].w, rows[i]->base_height = places[i].h;
        RecalcGadgetPosition(window, rows[i], 0, 0, 0);
    }
    e->list->resized_flags |= LIST_RESIZED;
}

static u32 KeyEditorMessage(t_Window *window, u32 item_code, u32 msg, void *data)
{
    (void)data;
    T_KEY_EDITOR *e = EditorOf(window);
    switch (msg) {
    case ACT_TERMINATE:  // the close gadget
        RemoveWindow(window);
        return 0;
    case ACT_WINDOW_RESIZE:  // the list follows the window's size
        Layout(window);
        return 0;
    case ACT_LMOUSE_DOWN:  // a press on a command, or Enter on it, picks it (the keys that
    case ACT_LMOUSE_DBL:   // move the highlight report ACT_LMOUSE_UP, and pick nothing)
        switch (item_code) {
        case KEYED_LIST:  // the next key becomes the picked command's key
            e->picked = CommandAt(e, e->list->selected);
            SetHint(e);
            return 0;
        default:
            return 0;
        }
    default:
        return 0;
    }
}

// Keys come here before the list: while a command is picked, a key is its new key, and Escape
// keeps the old one; with nothing picked, Escape closes.
static u32 KeyEditorInput(t_Handler *handler, u32 event, void *data)
{
    T_KEY_EDITOR *e = (T_KEY_EDITOR *)handler;
    t_Window *window = handler->window;
    switch (event) {
    case HANDLER_EVENT_KEY: {
        u16 key = ((T_KEY_MSG *)data)->key_code;
        if (!e->picked) {
            if (key != KEY_ESCAPE)
                return 0;
            RemoveWindow(window);
            return 1;
        }
        if (key == KEY_ESCAPE) {
            e->picked = NULL;
            SetHint(e);
        } else {
            TakeKey(window, key);
        }
        return 1;
    }
    default:
        return 0;
    }
}

t_Window *OpenApplicationCmdEditWindow(t_Window *parent, T_APPLICATION *app)
{
    if (!app)
        return NULL;
    const T_DIALOG_INIT dialog = {"Keyboard",
                                  parent,
                                  KEYED_USER_W,
                                  KEYED_USER_H,
                                  KEYED_FLAGS,
                                  IDCMP_TERMINATE | IDCMP_WINDOW_RESIZE,
                                  KeyEditorMessage,
                                  KeyEditorInput,
                                  NULL,
                                  "key editor",
                                  sizeof(T_KEY_EDITOR)};
    T_KEY_EDITOR *e = (T_KEY_EDITOR *)OpenDialog(&dialog);
    if (!e)
        return NULL;
    t_Window *window = e->head.window;
    window->user_data = e;
    e->app = app;
    t_Gaget_Handler *gh = NewGadgetHandler(window);
    T_GADGETOBJECTINIT gi = {};
    gi.type = GADGET_TYPE_TEXT;
    gi.item_code = KEYED_HINT;
    e->hint = (t_gadget *)CreateObject(&gh->head, hint_pick, &gi);
    gi.type = GADGET_TYPE_LIST_BOX;
    gi.item_code = KEYED_LIST;
    gi.action = ACT_LMOUSE_DOWN | ACT_LMOUSE_DBL;
    e->list = (T_LIST_DATA *)CreateObject(&gh->head, "Commands", &gi);
    e->list_gadget = e->list ? e->list->gadget : NULL;
    if (!e->hint || !e->list_gadget) {
        myprintf(0, "OpenApplicationCmdEditWindow: the gadgets could not be made\n");
        RemoveWindow(window);
        return NULL;
    }
    e->list->selected = -1;
    SetHint(e);
    Layout(window);
    FillList(e);
    gh->current_gadget = e->list_gadget;
    return window;
}
