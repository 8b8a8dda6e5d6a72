// The file selector: a child window with the folder's path, its entries (folders first, then the
// files that match the pattern), the pattern, a name field and two buttons. It answers its parent
// with ACT_REQUESTER_OK and the directory and name, or ACT_REQUESTER_CANCEL, through the parent's
// message mask, with the item code of its init record, and then goes.
#include <stdio.h>
#include <string.h>

#include "pickett/pickett_internal.h"

#define FILESEL_USER_W 460
#define FILESEL_USER_H 380
#define FILESEL_MIN_LIST_H 40
#define FILESEL_FLAGS                                                                                                  \
    (WF_CHILD | WF_TITLE | WF_MOVE | WF_BORDER | WF_CLOSE | WF_ALTF4 | WF_RESIZE | WF_IN_FRONT | WF_DEPENDANT)

// Item codes of the selector's own gadgets.
enum {
    FILESEL_PATH = 1,
    FILESEL_LIST,
    FILESEL_NAME,
    FILESEL_PATTERN,
    FILESEL_OK,
    FILESEL_CANCEL,
    FILESEL_NOTE,
    FILESEL_LABEL,
};

static const char *const unreadable_note = "This folder can't be read.";

// The selector's record, the window's user_data. OK carries `answer`, Cancel nothing.
typedef struct T_FILE_SELECTOR {
    T_SELECTOR base;
    T_FILE_REQUESTER_ANSWER answer;
    char folder[PICKETT_PATH_SIZE];  // the folder shown, without a trailing '/' (but "/")
    char path_text[SELECTOR_FIELD_SIZE], name_text[SELECTOR_FIELD_SIZE];
    char pattern_text[SELECTOR_FIELD_SIZE];
    t_List entries;  // T_FOLDER_ENTRY, in the list box's order
    T_LIST_DATA *list;
    t_gadget *path_field, *list_gadget, *name_field, *pattern_field, *ok, *note;
    t_gadget *labels[3];  // "Folder", "Pattern", "Name"
} T_FILE_SELECTOR;

static T_FILE_SELECTOR *SelectorOf(t_Window *window)
{
    return (T_FILE_SELECTOR *)window->user_data;
}

// Shows `folder`, or the nearest existing folder above it, and its entries. A folder that can't
// be read shows no entries and the note.
static void GoToFolder(T_FILE_SELECTOR *s, const char *folder)
{
    char nearest[PICKETT_PATH_SIZE];
    NearestFolder(nearest, sizeof nearest, folder);
    memcpy(s->folder, nearest, sizeof s->folder);
    FreeFolderEntries(&s->entries);
    int readable = ReadFolder(&s->entries, s->folder, s->pattern_text, 0, 0);
    FillSelectorList(s->list_gadget, s->list, &s->entries);
    SetSelectorField(s->path_field, s->path_text, s->folder);
    if (readable)
        s->note->live_flags |= GADGET_FLAGS_NO_DISPLAY;
    else
        s->note->live_flags &= ~GADGET_FLAGS_NO_DISPLAY;
}

// OK: the typed name with the folder shown (or its own full path). A name that leads to a folder
// goes there instead; an empty name does nothing.
static void Accept(t_Window *window)
{
    T_FILE_SELECTOR *s = SelectorOf(window);
    T_FILE_REQUESTER_ANSWER answer = s->answer;
    if (!SplitTypedName(&answer, s->folder, s->name_text))
        return;
    char full[PICKETT_PATH_SIZE];
    JoinPath(full, sizeof full, answer.directory, answer.name);
    if (strcmp(answer.name, "..") == 0 || DirectoryExists(full)) {
        SetSelectorField(s->name_field, s->name_text, "");
        GoToFolder(s, strcmp(answer.name, "..") == 0 ? ParentFolder(full, sizeof full, answer.directory) : full);
        return;
    }
    s->answer = answer;
    FinishSelector(&s->base, ACT_REQUESTER_OK);
}

// An entry was opened (double click, or Enter in the list): a folder is entered, a file is OK.
static void OpenEntry(t_Window *window, T_FOLDER_ENTRY *e)
{
    T_FILE_SELECTOR *s = SelectorOf(window);
    char path[PICKETT_PATH_SIZE];
    if (!e)
        return;
    if (!e->is_folder) {
        SetSelectorField(s->name_field, s->name_text, e->name);
        Accept(window);
    } else if (strcmp(e->name, "..") == 0) {
        GoToFolder(s, ParentFolder(path, sizeof path, s->folder));
    } else {
        GoToFolder(s, JoinPath(path, sizeof path, s->folder, e->name));
    }
}

// Lays the gadgets out in the user area: path on top, the list, pattern, name, buttons.
static void Layout(t_Window *window)
{
    T_FILE_SELECTOR *s = SelectorOf(window);
    i16 rh = SelectorRowHeight(), pad = SELECTOR_PAD, gap = SELECTOR_GAP;
    i16 w = window->user_w, h = window->user_h;
    i16 label_w = 0;
    for (t_gadget *label : s->labels) {
        i16 lw = (i16)GetStringWidth(label->name) + 8;
        if (lw > label_w)
            label_w = lw;
    }
    i16 field_x = pad + label_w, field_w = w - field_x - pad;
    i16 buttons_y = h - pad - rh, name_y = buttons_y - gap - rh, pattern_y = name_y - gap - rh;
    i16 list_y = pad + rh + gap, list_h = pattern_y - gap - list_y;
    if (list_h < FILESEL_MIN_LIST_H)
        list_h = FILESEL_MIN_LIST_H;
    PlaceGadget(s->labels[0], pad, pad, label_w, rh);
    PlaceGadget(s->path_field, field_x, pad, field_w, rh);
    PlaceGadget(s->list_gadget, pad, list_y, w - 2 * pad, list_h);
    PlaceGadget(s->labels[1], pad, pattern_y, label_w, rh);
    PlaceGadget(s->pattern_field, field_x, pattern_y, field_w, rh);
    PlaceGadget(s->labels[2], pad, name_y, label_w, rh);
    PlaceGadget(s->name_field, field_x, name_y, field_w, rh);
    PlaceGadget(s->base.cancel, w - pad - SELECTOR_BUTTON_W, buttons_y, SELECTOR_BUTTON_W, rh);
    PlaceGadget(s->ok, w - pad - 2 * SELECTOR_BUTTON_W - gap, buttons_y, SELECTOR_BUTTON_W, rh);
    PlaceGadget(s->note, pad, buttons_y, w - 3 * pad - 2 * SELECTOR_BUTTON_W - gap, rh);
}

static u32 FileSelectorMessage(t_Window *window, u32 item_code, u32 msg, void *data)
{
    (void)data;
    T_FILE_SELECTOR *s = SelectorOf(window);
    switch (msg) {
    case ACT_WINDOW_RESIZE:  // the gadgets follow the window's size
        Layout(window);
        return 0;
    case ACT_LMOUSE_UP:
        switch (item_code) {
        case FILESEL_OK:  // the OK button
            Accept(window);
            return 0;
        case FILESEL_CANCEL:  // the Cancel button
            FinishSelector(&s->base, ACT_REQUESTER_CANCEL);
            return 0;
        case FILESEL_LIST: {  // a click on an entry: a file's name goes into the name field
            T_FOLDER_ENTRY *e = (T_FOLDER_ENTRY *)SelectedNode(s->list, &s->entries);
            if (e && !e->is_folder)
                SetSelectorField(s->name_field, s->name_text, e->name);
            return 0;
        }
        default:
            return 0;
        }
    case ACT_LMOUSE_DBL:
        switch (item_code) {
        case FILESEL_LIST:  // a double click opens the entry
            OpenEntry(window, (T_FOLDER_ENTRY *)SelectedNode(s->list, &s->entries));
            return 0;
        default:
            return 0;
        }
    default:
        return 0;
    }
}

// Enter but on the Cancel button: on the path or the pattern it shows that folder, on a folder
// of the list it enters it, elsewhere it is OK.
static void Enter(t_Window *window)
{
    T_FILE_SELECTOR *s = SelectorOf(window);
    t_gadget *current = GetCurrentGadget(window);
    T_FOLDER_ENTRY *e = (T_FOLDER_ENTRY *)SelectedNode(s->list, &s->entries);
    if (current == s->path_field)
        GoToFolder(s, s->path_text);
    else if (current == s->pattern_field)
        GoToFolder(s, s->folder);
    else if (current == s->list_gadget && e && e->is_folder)
        OpenEntry(window, e);
    else
        Accept(window);
}

// Keys come here before the gadgets.
static u32 FileSelectorInput(t_Handler *handler, u32 event, void *data)
{
    T_FILE_SELECTOR *s = (T_FILE_SELECTOR *)handler;
    switch (event) {
    case HANDLER_EVENT_KEY:
        switch (SelectorKeyAnswer(&s->base, ((T_KEY_MSG *)data)->key_code)) {
        case ACT_REQUESTER_CANCEL:  // Escape, or Enter on the Cancel button
            FinishSelector(&s->base, ACT_REQUESTER_CANCEL);
            return 1;
        case ACT_REQUESTER_OK:  // Enter: it acts on the field or list that has the focus, or is OK
            Enter(handler->window);
            return 1;
        default:
            return 0;
        }
    case HANDLER_EVENT_END:  // the window goes: its entries with it
        FreeFolderEntries(&s->entries);
        return 0;
    default:
        return 0;
    }
}

// clang-format off
static const T_SELECTOR_KIND file_selector_kind = {
    FILESEL_USER_W, FILESEL_USER_H, FILESEL_FLAGS, IDCMP_TERMINATE | IDCMP_WINDOW_RESIZE,
    FileSelectorMessage, FileSelectorInput, NULL, "file selector", sizeof(T_FILE_SELECTOR), 0};
// clang-format on

t_Window *NewFileSelector(T_FILE_REQUESTER_INIT *init)
{
    if (!init)
        return NULL;
    T_FILE_SELECTOR *s =
        (T_FILE_SELECTOR *)OpenSelector(&file_selector_kind, init->title, init->parent, 0, init->item_code);
    if (!s)
        return NULL;
    t_Window *window = s->base.head.window;
    s->base.answer_data = &s->answer;
    InitList(&s->entries, "folder entries");
    snprintf(s->pattern_text, sizeof s->pattern_text, "%s", init->pattern ? init->pattern : "");
    snprintf(s->name_text, sizeof s->name_text, "%s", init->name ? init->name : "");

    t_Gaget_Handler *gh = NewGadgetHandler(window);
    s->labels[0] = MakeSelectorGadget(gh, GADGET_TYPE_TEXT, "Folder", FILESEL_LABEL, 0, NULL);
    s->path_field = MakeSelectorField(gh, s->path_text, FILESEL_PATH);
    s->list_gadget = MakeSelectorList(gh, FILESEL_LIST, &s->list);
    s->labels[1] = MakeSelectorGadget(gh, GADGET_TYPE_TEXT, "Pattern", FILESEL_LABEL, 0, NULL);
    s->pattern_field = MakeSelectorField(gh, s->pattern_text, FILESEL_PATTERN);
    s->labels[2] = MakeSelectorGadget(gh, GADGET_TYPE_TEXT, "Name", FILESEL_LABEL, 0, NULL);
    s->name_field = MakeSelectorField(gh, s->name_text, FILESEL_NAME);
    s->ok = MakeSelectorGadget(gh, GADGET_TYPE_BUTTON, init->ok_text ? init->ok_text : "OK", FILESEL_OK, ACT_LMOUSE_UP,
                               NULL);
    s->base.cancel = MakeSelectorGadget(gh, GADGET_TYPE_BUTTON, init->cancel_text ? init->cancel_text : "Cancel",
                                        FILESEL_CANCEL, ACT_LMOUSE_UP, NULL);
    s->note = MakeSelectorGadget(gh, GADGET_TYPE_TEXT, unreadable_note, FILESEL_NOTE, 0, NULL);
    if (!s->labels[0] || !s->path_field || !s->list_gadget || !s->labels[1] || !s->pattern_field || !s->labels[2] ||
        !s->name_field || !s->ok || !s->base.cancel || !s->note)
        return DropSelector(&s->base, "NewFileSelector");
    Layout(window);
    // A name that holds a folder opens in that folder with its bare name; the name is selected, so
    // that typing replaces it.
    const char *folder = init->path ? init->path : "";
    T_FILE_REQUESTER_ANSWER given = {};
    if (strchr(s->name_text, '/') && SplitTypedName(&given, folder, s->name_text)) {
        folder = given.directory;
        SetSelectorField(s->name_field, s->name_text, given.name);
    } else {
        SetSelectorField(s->name_field, s->name_text, s->name_text);
    }
    s->name_field->select_from = 0;
    GoToFolder(s, folder);
    gh->current_gadget = s->name_field;
    return window;
}
