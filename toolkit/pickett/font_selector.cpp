// The font selector: a child window that lists the font files of a folder and the machine's
// fonts, shows sample text in the highlighted one, and answers its parent with its own window as
// data, whose user_data is the T_FONTSEL. LoadFontFromSelector loads the font picked.
#include <stddef.h>
#include <stdio.h>
#include <string.h>

#include "lumora/lumora_internal.h"
#include "pickett/pickett_internal.h"

#define FONTSEL_USER_W 560
#define FONTSEL_USER_H 320
#define FONTSEL_LIST_W 270
#define FONTSEL_PREVIEW_SIZE 18  // pixels of the preview's text
#define FONTSEL_ANSWER_SIZE 13   // pixels of the font LoadFontFromSelector gives
#define FONTSEL_FLAGS                                                                                                  \
    (WF_CHILD | WF_TITLE | WF_MOVE | WF_BORDER | WF_CLOSE | WF_ALTF4 | WF_RESIZE | WF_IN_FRONT | WF_DEPENDANT)

enum { FONTSEL_LIST = 1, FONTSEL_OK, FONTSEL_CANCEL };

// The folders an entry can come from, by its `from`.
enum { FROM_FOLDER = 0, FROM_MACHINE = 1 };

static const char *const preview_lines[] = {
    "AaBbCcDdEeFfGg",
    "0123456789 (+-*/)",
    "The quick brown fox",
    "jumps over the lazy dog.",
};

// Every answer carries the selector's window.
typedef struct T_FONT_SELECTOR {
    T_SELECTOR base;                            // and the preview's paint
    T_FONTSEL sel;                              // the window's user_data
    char folder[sizeof(T_FONTSEL::directory)];  // init->path
    char *patterns;                             // the patterns joined by ';' (own block of patterns_size bytes)
    u32 patterns_size;
    u32 initial_font_size;
    t_List entries;  // T_FOLDER_ENTRY, in the list box's order
    T_LIST_DATA *list;
    t_gadget *list_gadget, *ok;
    T_RPOS preview;  // the preview box, from the user area's corner
    T_FONT *preview_font;
} T_FONT_SELECTOR;

static u32 FontSelectorMessage(t_Window *window, u32 item_code, u32 msg, void *data);

static T_FONT_SELECTOR *SelectorOf(t_Window *window)
{
    return (T_FONT_SELECTOR *)((char *)window->user_data - offsetof(T_FONT_SELECTOR, sel));
}

void ReadFontList(t_List *entries, const char *folder, const char *patterns)
{
    if (DirectoryExists(folder))
        ReadFolder(entries, folder, patterns, FOLDER_FILES_ONLY, FROM_FOLDER);
    t_List machine;
    InitList(&machine, "machine fonts");
    ReadFolder(&machine, FONT_MACHINE_FOLDER, "*.ttf", FOLDER_FILES_ONLY, FROM_MACHINE);
    while (!LIST_EMPTY(&machine)) {
        T_FOLDER_ENTRY *e = (T_FOLDER_ENTRY *)machine.first;
        SubNode((t_Node *)e);
        if (FindFolderEntry(entries, e->name, FROM_FOLDER))
            FreeMem(e, sizeof(T_FOLDER_ENTRY));
        else
            AddTail(entries, (t_Node *)e);
    }
}

// The patterns of the caller's list joined by ';', or the default pattern when the list is empty.
static void CopyPatterns(T_FONT_SELECTOR *s, T_FONTSEL_INIT *init)
{
    InitList(&s->sel.patterns, "patterns");
    u32 size = 1;
    if (init->patterns)
        for (t_Node *n = init->patterns->first; n->next; n = n->next)
            if (n->name) {
                NewTail(&s->sel.patterns, sizeof(t_Node), n->name);
                size += (u32)strlen(n->name) + 1;
            }
    if (LIST_EMPTY(&s->sel.patterns) && init->default_pattern)
        size += (u32)strlen(init->default_pattern);
    s->patterns_size = size;
    s->patterns = (char *)AllocMemC(size);
    if (!s->patterns)
        return;
    for (t_Node *n = s->sel.patterns.first; n->next; n = n->next) {
        if (s->patterns[0])
            strcat(s->patterns, ";");
        strcat(s->patterns, n->name);
    }
    if (LIST_EMPTY(&s->sel.patterns) && init->default_pattern)
        strcat(s->patterns, init->default_pattern);
}

static const char *FolderOf(T_FONT_SELECTOR *s, T_FOLDER_ENTRY *e)
{
    return e->from == FROM_MACHINE ? FONT_MACHINE_FOLDER : s->folder;
}

// Highlights an entry: it becomes the choice and the preview shows it.
static void Choose(T_FONT_SELECTOR *s, T_FOLDER_ENTRY *e)
{
    char path[PICKETT_PATH_SIZE];
    if (!e)
        return;
    snprintf(s->sel.directory, sizeof s->sel.directory, "%s", FolderOf(s, e));
    snprintf(s->sel.chosen, sizeof s->sel.chosen, "%s", e->name);
    FreeFont(s->preview_font);
    s->preview_font = LoadFont(JoinPath(path, sizeof path, s->sel.directory, e->name), FONTSEL_PREVIEW_SIZE);
}

static void Layout(t_Window *window)
{
    T_FONT_SELECTOR *s = SelectorOf(window);
    i16 rh = SelectorRowHeight(), pad = SELECTOR_PAD, gap = SELECTOR_GAP;
    i16 w = window->user_w, h = window->user_h;
    i16 buttons_y = h - pad - rh, list_h = buttons_y - gap - pad;
    PlaceGadget(s->list_gadget, pad, pad, FONTSEL_LIST_W, list_h);
    s->preview = T_RPOS{(i16)(pad + FONTSEL_LIST_W + gap), pad, (i16)(w - 2 * pad - gap - FONTSEL_LIST_W), list_h};
    PlaceGadget(s->base.cancel, w - pad - SELECTOR_BUTTON_W, buttons_y, SELECTOR_BUTTON_W, rh);
    PlaceGadget(s->ok, w - pad - 2 * SELECTOR_BUTTON_W - gap, buttons_y, SELECTOR_BUTTON_W, rh);
}

static u32 FontSelectorMessage(t_Window *window, u32 item_code, u32 msg, void *data)
{
    (void)data;
    T_FONT_SELECTOR *s = SelectorOf(window);
    switch (msg) {
    case ACT_WINDOW_RESIZE:  // the list and the preview follow the window's size
        Layout(window);
        return 0;
    case ACT_LMOUSE_UP:
        switch (item_code) {
        case FONTSEL_LIST:  // a click on an entry: the choice, and a preview for the parent
            Choose(s, (T_FOLDER_ENTRY *)SelectedNode(s->list, &s->entries));
            if (s->sel.chosen[0])
                TellParent(&s->base, ACT_REQUESTER_PREVIEW);
            return 0;
        case FONTSEL_OK:  // the Open button
            FinishSelector(&s->base, ACT_REQUESTER_OK);
            return 0;
        case FONTSEL_CANCEL:  // the Cancel button
            FinishSelector(&s->base, ACT_REQUESTER_CANCEL);
            return 0;
        default:
            return 0;
        }
    case ACT_LMOUSE_DBL:
        switch (item_code) {
        case FONTSEL_LIST:  // a double click on an entry is Open
            Choose(s, (T_FOLDER_ENTRY *)SelectedNode(s->list, &s->entries));
            if (s->sel.chosen[0])
                FinishSelector(&s->base, ACT_REQUESTER_OK);
            return 0;
        default:
            return 0;
        }
    default:
        return 0;
    }
}

// The preview box: the chosen font's name and sample lines in that font.
static void FontSelectorPaint(t_Handler *handler)
{
    T_FONT_SELECTOR *s = (T_FONT_SELECTOR *)handler;
    t_Window *w = handler->window;
    T_DISPLAY_RECORD *rec = DISPLAY_RECORD;
    T_RPOS box = {(i16)(w->user_x + s->preview.x), (i16)(w->user_y + s->preview.y), s->preview.w, s->preview.h};
    T_RPOS clip;
    GetClip(&clip);
    T_RPOS inner = box;
    if (!RectIntersect(&inner, &clip))
        return;
    DrawRectangle(box.x, box.y, box.w, box.h, rec->field_colour);
    DrawBevelBox(box.x, box.y, box.w, box.h, rec->gadget_dark_colour, rec->gadget_light_colour);
    ClipInsideWindow(inner.x + 2, inner.y + 2, inner.x + inner.w - 2, inner.y + inner.h - 2);
    SetActiveFont(NULL);
    SetFontStyle(0);
    i16 x = box.x + SELECTOR_PAD, y = box.y + SELECTOR_PAD;
    if (!s->preview_font) {
        DrawText(x, y, s->sel.chosen[0] ? "This font can't be read." : "Pick a font on the left.",
                 rec->gadget_text_colour);
    } else {
        DrawText(x, y, s->sel.chosen, rec->disabled_text_colour);
        y += (i16)GetActiveFontHeight() + SELECTOR_GAP;
        SetActiveFont(s->preview_font);
        for (const char *line : preview_lines) {
            DrawText(x, y, line, rec->gadget_text_colour);
            y += (i16)s->preview_font->height;
        }
        SetActiveFont(NULL);
    }
    ClipInsideWindow(clip.x, clip.y, clip.x + clip.w, clip.y + clip.h);
}

// Keys come here before the gadgets: Enter is Open, Escape is Cancel.
static u32 FontSelectorInput(t_Handler *handler, u32 event, void *data)
{
    T_FONT_SELECTOR *s = (T_FONT_SELECTOR *)handler;
    switch (event) {
    case HANDLER_EVENT_KEY:
        return SelectorKey(&s->base, ((T_KEY_MSG *)data)->key_code);
    case HANDLER_EVENT_END:  // the window goes: the record's belongings with it
        FreeFolderEntries(&s->entries);
        EmptyList(&s->sel.patterns, sizeof(t_Node));
        FreeMem(s->patterns, s->patterns_size);
        FreeMem(s->sel.initial_font, s->initial_font_size);
        FreeFont(s->preview_font);
        s->patterns = NULL, s->sel.initial_font = NULL, s->preview_font = NULL;
        return 0;
    default:
        return 0;
    }
}

// clang-format off
static const T_SELECTOR_KIND font_selector_kind = {
    FONTSEL_USER_W, FONTSEL_USER_H, FONTSEL_FLAGS, IDCMP_TERMINATE | IDCMP_WINDOW_RESIZE,
    FontSelectorMessage, FontSelectorInput, FontSelectorPaint, "font selector", sizeof(T_FONT_SELECTOR),
    offsetof(T_FONT_SELECTOR, sel)};
// clang-format on

t_Window *NewFontSelector(T_FONTSEL_INIT *init)
{
    if (!init)
        return NULL;
    T_FONT_SELECTOR *s =
        (T_FONT_SELECTOR *)OpenSelector(&font_selector_kind, init->title, init->parent, 0, init->item_code);
    if (!s)
        return NULL;
    t_Window *window = s->base.head.window;
    s->base.answer_data = s->base.cancel_data = window;
    s->sel.window = window;
    s->sel.parent = s->base.parent;
    s->sel.item_code = init->item_code;
    s->sel.user_data = init->user_data;
    if (init->initial_font) {
        s->initial_font_size = (u32)strlen(init->initial_font) + 1;
        s->sel.initial_font = (char *)AllocMemC(s->initial_font_size);
        if (s->sel.initial_font)
            memcpy(s->sel.initial_font, init->initial_font, s->initial_font_size);
    }
    snprintf(s->folder, sizeof s->folder, "%s", init->path ? init->path : "");
    snprintf(s->sel.directory, sizeof s->sel.directory, "%s", s->folder);
    CopyPatterns(s, init);
    InitList(&s->entries, "fonts");

    t_Gaget_Handler *gh = NewGadgetHandler(window);
    s->list_gadget = MakeSelectorList(gh, FONTSEL_LIST, &s->list);
    s->ok = MakeSelectorGadget(gh, GADGET_TYPE_BUTTON, init->button_text ? init->button_text : "OK", FONTSEL_OK,
                               ACT_LMOUSE_UP, NULL);
    s->base.cancel = MakeSelectorGadget(gh, GADGET_TYPE_BUTTON, "Cancel", FONTSEL_CANCEL, ACT_LMOUSE_UP, NULL);
    if (!s->list_gadget || !s->ok || !s->base.cancel)
        return DropSelector(&s->base, "NewFontSelector");
    Layout(window);
    ReadFontList(&s->entries, s->folder, s->patterns ? s->patterns : "");
    FillSelectorList(s->list_gadget, s->list, &s->entries);
    gh->current_gadget = s->list_gadget;
    return window;
}

// The live font selector given by its window or its T_FONTSEL; null for anything else. Only
// pointers are compared, so any value is safe to ask about.
static T_FONT_SELECTOR *FindSelector(t_List *windows, void *selector)
{
    for (t_Node *n = windows->first; n->next; n = n->next) {
        t_Window *w = (t_Window *)n;
        T_SELECTOR *base = IsWindowLive(w) ? (T_SELECTOR *)FindHandlerOfKind(w, HANDLER_KIND_SELECTOR) : NULL;
        if (base && base->message == FontSelectorMessage && (w == selector || w->user_data == selector))
            return SelectorOf(w);
        T_FONT_SELECTOR *inner = FindSelector(&w->children, selector);
        if (inner)
            return inner;
    }
    return NULL;
}

// The caller owns the font and frees it with FreeFont. Null when nothing was picked, when the
// selector is unknown (logged) or when the file can't be read (logged by LoadFont).
T_FONT *LoadFontFromSelector(void *selector, u32 flags)
{
    (void)flags;
    T_FONT_SELECTOR *s = selector && CURRENT_DISPLAY->window_class
                             ? FindSelector(&CURRENT_DISPLAY->window_class->windows, selector)
                             : NULL;
    if (!s) {
        myprintf(0, "LoadFontFromSelector: no font selector there\n");
        return NULL;
    }
    if (!s->sel.chosen[0])
        return NULL;
    char path[PICKETT_PATH_SIZE];
    return LoadFont(JoinPath(path, sizeof path, s->sel.directory, s->sel.chosen), FONTSEL_ANSWER_SIZE);
}
