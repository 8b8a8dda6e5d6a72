// The page window: how it comes into being from a box, and how it answers the toolkit's messages,
// the close query (and the exit's), Save and Save as with the saves that end in it, the question
// before a save over hand-written lines, and the items of its context menus.
#include "editor/page_window.h"

#include <stdio.h>
#include <string.h>

#include "editor/context_menus.h"
#include "editor/page_commands.h"
#include "editor/page_operations.h"
#include "editor/page_painter.h"
#include "editor/texts.h"
#include "properties/action_editor.h"
#include "properties/gadget_properties.h"
#include "properties/window_properties.h"
#include "source/hand_written.h"
#include "source/source_writer.h"
#include "source/texts.h"

#define LINES_SHOWN 5                 // line numbers that the question before a save over hand-written lines names
#define LINE_NUMBER_SIZE 12           // one of them in the list, with its comma
#define FONTS_FOLDER "System\\Fonts"  // below the data root: the fonts the selector lists
#define SOURCE_EXTENSION ".cpp"       // given to a page file named without one
#define RESIZE_START_WIDTH 64         // "Resize to contents" grows the window from this size
#define RESIZE_START_HEIGHT 32

// The mask of Quillform's own page window: exactly the messages that PageMessage answers.
static const u32 PAGE_IDCMP = IDCMP_GAIN_CONTEXT | IDCMP_TERMINATE | IDCMP_KEY | IDCMP_WINDOW_RESIZE | IDCMP_MENU_OPEN |
                              IDCMP_RECEIVE_OBJECT | IDCMP_REQUESTER_OK | IDCMP_REQUESTER_CANCEL |
                              IDCMP_REQUESTER_ABORT | IDCMP_REQUESTER_PREVIEW;  // 0x6C1D6

T_PAGE_HOST page_host;

void ConnectEditor(void)
{
    editor_hooks.make_page_window = CreatePageWindow;
    editor_hooks.gadget_action = GadgetEditAction;
}

t_Window *CreatePageWindow(t_Window *parent, char *name, u32 flags, i16 x1, i16 y1, i16 x2, i16 y2)
{
    i16 x = x1 < x2 ? x1 : x2;
    i16 y = y1 < y2 ? y1 : y2;
    i16 w = (i16)(x2 > x1 ? x2 - x1 : x1 - x2);
    i16 h = (i16)(y2 > y1 ? y2 - y1 : y1 - y2);
    if (w < PAGE_MIN_WIDTH || h < PAGE_MIN_HEIGHT)
        return NULL;

    T_WINDOWOBJINIT init = {.x = x,
                            .y = y,
                            .w = w,
                            .h = h,
                            .flags = flags | WF_CHILD | WF_CLIP_PARENT,
                            .idcmp = PAGE_IDCMP,
                            .icon = 0,
                            .icon_bank = NULL,
                            .bitmap = NULL,
                            .message = PageMessage,
                            .parent = parent};
    t_Window *window = (t_Window *)CreateObject(&CURRENT_DISPLAY->window_class->head, name, &init);
    if (!window)
        return NULL;
    window->idcmp = IDCMP_TERMINATE;  // the design mask of the generated window

    T_WINEDIT_HANDLER *record =
        (T_WINEDIT_HANDLER *)NewHandler(&window->handlers, PageInput, PagePaint, PAGE_HANDLER_NAME,
                                        PAGE_HANDLER_PRIORITY, sizeof(T_WINEDIT_HANDLER), window);
    memcpy(record->tag, "WEH0", 4);
    window->user_data = record;
    NewGadgetHandler(window);
    record->border = (t_Handler *)FindNode(window->handlers.first, "border");
    record->titlebar = (t_Handler *)FindNode(window->handlers.first, "titlebar");
    InitUndoList(&record->undo, record->page_name);
    snprintf(record->page_name, sizeof(record->page_name), "%s", name);
    window->name = record->page_name;
    RecalcUserSize(window);
    BuildPageContextMenu(record);
    return window;
}

void RemovePage(t_Window *window, int second_refresh)
{
    t_Window *parent = window->parent;
    if (page_host.set_active_page)
        page_host.set_active_page(window, NULL);
    RemoveWindow(window);
    if (second_refresh && parent && page_host.refresh_menus)
        page_host.refresh_menus(parent, NULL);
}

// Puts up the query on a modified page, unless one stands already: it answers for every close.
static void OpenQuery(t_Window *window, T_WINEDIT_HANDLER *record)
{
    if (record->query_state == PAGE_QUERY_OPEN)
        return;
    char *text = _OstrandBase->text_buffer;
    snprintf(text, OSTRAND_TEXT_BUFFER_SIZE, TXT_QUERY_UNSAVED, window->name);
    t_Window *box = NewMsgBox(window, TXT_QUERY_TITLE, text, MSGBOX_QUESTION, PAGE_ITEM_QUERY);
    if (box)
        box->icon_bank = NULL;
    record->query_state = PAGE_QUERY_OPEN;
}

// Turns the event loop until the query is settled: the page went, it stopped standing as a
// window (unless the exit asks), the answer and the save it started came to an end, or the session
// ended. Gives what the query came to.
static u16 WaitForQuery(t_Window *window, T_WINEDIT_HANDLER *record)
{
    while (!(window->state_flags & WSF_REMOVED) && !SessionEnded() && record->query_state == PAGE_QUERY_OPEN &&
           (record->query_for_exit || window->state == WINDOW_STATE_OPEN))
        RefreshHandlers(&CURRENT_DISPLAY->window_class->head);
    u16 result = (window->state_flags & WSF_REMOVED) ? PAGE_QUERY_DROPPED : record->query_state;
    // Settled otherwise than by its answer (a Save of the page meanwhile): the box goes too.
    if (result != PAGE_QUERY_OPEN && result != PAGE_QUERY_DROPPED)
        if (t_Window *box = FindWindowByName(window, TXT_QUERY_TITLE))
            RemoveWindow(box);
    record->query_state = PAGE_QUERY_NONE;
    record->query_for_exit = 0;
    return result;
}

// The close query: asks to save a modified page, and turns the event loop until the page has
// gone, stopped standing as a window, or stays after its answer (Cancel, a save that failed or
// was given up). A clean page goes at once.
static void ClosePage(t_Window *window)
{
    T_WINEDIT_HANDLER *record = PageRecordOf(window);
    if (!(window->state_flags & WSF_MODIFIED)) {
        RemovePage(window, 1);
        return;
    }
    if (record->query_state == PAGE_QUERY_OPEN)
        return;  // the query that stands answers this close too
    OpenQuery(window, record);
    if (window->state != WINDOW_STATE_OPEN)
        return;
    WaitForQuery(window, record);
}

int AskToSavePage(t_Window *window)
{
    T_WINEDIT_HANDLER *record = PageRecordOf(window);
    ISetActiveWindow(window);   // the page that asks comes to the front, restored if minimised
    OpenQuery(window, record);  // or takes over the close query that stands
    record->query_for_exit = 1;
    return WaitForQuery(window, record);
}

void PageSaveEnded(t_Window *window, T_WINEDIT_HANDLER *record, int outcome, int by_save_as)
{
    int query = record->query_state == PAGE_QUERY_OPEN;
    if (outcome == SAVE_DOCUMENT_WRITTEN) {
        if (query)
            record->query_state = PAGE_QUERY_SAVED;
        if ((by_save_as && record->close_after_save) || (query && !record->query_for_exit))
            RemovePage(window, 0);
        return;
    }
    if (query) {
        record->query_state = PAGE_QUERY_KEPT;
        if (_TenureBase->session_state == SESSION_ENDING)
            _TenureBase->session_state = SESSION_CANCELLED;
    }
}

void OpenSourceSelector(t_Window *parent, u32 item_code, const char *title, const char *ok_text, const char *path,
                        const char *name)
{
    T_FILE_REQUESTER_INIT init;
    memset(&init, 0, sizeof(init));
    init.parent = parent;
    init.item_code = item_code;
    init.title = title;
    init.single_file = 1;
    init.ok_text = ok_text;
    init.cancel_text = TXT_CANCEL_BUTTON;
    init.path = path;
    init.name = name;
    init.pattern = TXT_SOURCE_PATTERN;
    NewFileSelector(&init);
}

void SetLastPath(const char *directory)
{
    size_t length = strlen(directory);
    if (length >= sizeof(editor_config->last_path)) {
        myprintf(0, "The folder %s is too long to remember as the last path", directory);
        return;
    }
    memcpy(editor_config->last_path, directory, length + 1);
}

int SaveDocument(t_Window *window, T_WINEDIT_HANDLER *record, int ask)
{
    if (record->saved != 0 && !ask && record->file_name.text) {
        if (AskBeforeDroppingLines(window, record, record->file_name.text))
            return SAVE_DOCUMENT_PENDING;
        return WriteDocument(window, record, record->file_name.text, 0);
    }
    // The selector starts in the folder of the page's file, else in the last one used.
    char path[FILE_PATH_SIZE];
    snprintf(path, sizeof(path), "%s", editor_config->last_path);
    if (record->file_name.text)
        XGetPath(path, record->file_name.text);
    OpenSourceSelector(window, PAGE_ITEM_SAVE_AS, TXT_SAVE_AS_TITLE, TXT_SAVE_BUTTON, path, record->file_name.text);
    return SAVE_DOCUMENT_PENDING;
}

int WriteDocument(t_Window *window, T_WINEDIT_HANDLER *record, const char *path, int by_save_as)
{
    if (!SavePage(window, path)) {
        PageSaveEnded(window, record, SAVE_DOCUMENT_FAILED, by_save_as);
        return SAVE_DOCUMENT_FAILED;
    }
    if (path != record->file_name.text) {
        AllocString(path, &record->file_name);
        SetTitleBarHoverTitle(window, record->file_name.text);
    }
    window->state_flags &= ~WSF_MODIFIED;
    if (!record->saved)
        record->saved = 1;
    record->lines_checked = 1;  // the file holds what the writer wrote, nothing else
    if (page_host.set_active_page)
        page_host.set_active_page(window, window);
    PageSaveEnded(window, record, SAVE_DOCUMENT_WRITTEN, by_save_as);
    return SAVE_DOCUMENT_WRITTEN;
}

int AskBeforeDroppingLines(t_Window *window, T_WINEDIT_HANDLER *record, const char *path)
{
    if (record->lines_checked || !record->line_map || !record->file_name.text ||
        strcmp(path, record->file_name.text) != 0)
        return 0;
    u32 numbers[LINES_SHOWN];
    u32 count = CountHandWrittenLines(record, path, numbers, LINES_SHOWN);
    if (!count) {
        record->lines_checked = 1;
        return 0;
    }
    char list[LINES_SHOWN * LINE_NUMBER_SIZE + sizeof(", ...")] = "";
    for (u32 i = 0; i < count && i < LINES_SHOWN; i++)
        snprintf(list + strlen(list), sizeof(list) - strlen(list), "%s%u", i ? ", " : "", numbers[i]);
    if (count > LINES_SHOWN)
        snprintf(list + strlen(list), sizeof(list) - strlen(list), ", ...");
    char name[FILE_PATH_SIZE];
    StripPath(name, path);
    char *text = _OstrandBase->text_buffer;
    snprintf(text, OSTRAND_TEXT_BUFFER_SIZE, TXT_LINES_QUESTION, name, count, count == 1 ? "" : "s",
             count == 1 ? "" : "s", list);
    static const char *const labels[] = {TXT_LINES_SAVE, TXT_LINES_SAVE_AS, TXT_CANCEL_BUTTON};
    t_Window *box = NewMsgBoxLabels(window, TXT_LINES_TITLE, text, MSGBOX_QUESTION, PAGE_ITEM_LINES, labels);
    if (box)
        box->icon_bank = NULL;
    return 1;
}

// The close query answered Yes: the page is saved, and goes when that is done (unless the exit
// asked, which closes every page itself). A save that waits on a selector or a question goes on
// there; one that failed keeps the page.
static void AnswerYes(t_Window *window, T_WINEDIT_HANDLER *record)
{
    if (SaveDocument(window, record, 0) == SAVE_DOCUMENT_PENDING && !record->query_for_exit)
        record->close_after_save = 1;
}

// The close query answered No: the page goes with its changes, or, asked by the exit, waits to go
// with the others.
static void AnswerNo(t_Window *window, T_WINEDIT_HANDLER *record)
{
    record->query_state = PAGE_QUERY_DROPPED;
    if (!record->query_for_exit)
        RemovePage(window, 0);
}

// The "Save Source as" selector answered: the page is written under the chosen name, which it
// takes only when that worked; a file it was read from and holds hand-written lines asks first.
static void FinishSaveAs(t_Window *window, T_WINEDIT_HANDLER *record, const T_FILE_REQUESTER_ANSWER *answer)
{
    char path[FILE_PATH_SIZE];
    if (!MakeFilename(path, answer->directory, answer->name) ||
        (!ExtensionExists(path) && strlen(path) + 4 >= sizeof(path))) {
        char *text = _OstrandBase->text_buffer;
        snprintf(text, OSTRAND_TEXT_BUFFER_SIZE, TXT_PATH_TOO_LONG, answer->name);
        NewMsgBox(window, TXT_ERROR_TITLE, text, MSGBOX_ERROR, PAGE_ITEM_MESSAGE);
        PageSaveEnded(window, record, SAVE_DOCUMENT_FAILED, 1);
        return;
    }
    if (!ExtensionExists(path))
        strcat(path, SOURCE_EXTENSION);
    if (AskBeforeDroppingLines(window, record, path))
        return;
    if (WriteDocument(window, record, path, 1) == SAVE_DOCUMENT_WRITTEN)
        SetLastPath(answer->directory);
}

// The "Choose font" selector, for the current gadget; its answers come back with item code 2.
static void OpenFontSelector(t_Window *window)
{
    t_gadget *gadget = GetCurrentGadget(window);
    t_List patterns;
    InitList(&patterns, "font patterns");
    NewTail(&patterns, FONT_PATTERN_NODE_SIZE, TXT_FONT_PATTERN);
    NewTail(&patterns, FONT_PATTERN_NODE_SIZE, TXT_ALL_FILES_PATTERN);
    T_FONTSEL_INIT init;
    memset(&init, 0, sizeof(init));
    init.parent = window;
    init.item_code = PAGE_ITEM_FONT;
    init.title = TXT_FONT_TITLE;
    init.path = MakePathFromSystem(FONTS_FOLDER);
    init.default_pattern = TXT_ALL_FILES_PATTERN;
    init.button_text = TXT_OPEN_BUTTON;
    init.patterns = &patterns;
    init.initial_font = gadget && gadget->font ? gadget->font->name : NULL;
    init.user_data = gadget;
    NewFontSelector(&init);
    EmptyList(&patterns, FONT_PATTERN_NODE_SIZE);
}

static void SetGadgetFont(t_gadget *gadget, const char *name)
{
    if (gadget->font)
        RemoveResource(gadget->font);
    gadget->font = name ? OpenResource(&_FontBase->fonts, name, RESOURCE_TYPE_FONT, 0) : NULL;
}

// A font was picked in the selector: the current gadget shows it, without marking the page.
static void PreviewFont(t_Window *window, t_Window *selector)
{
    T_FONT *font = LoadFontFromSelector(selector, 0);
    if (!font)
        return;
    char name[FONT_NAME_SIZE];
    snprintf(name, sizeof(name), "%s", font->name);
    FreeFont(font);
    if (t_gadget *gadget = GetCurrentGadget(window))
        SetGadgetFont(gadget, name);
}

// The selector was cancelled: the gadget gets back the font it had when the selector opened.
static void CancelFont(t_Window *window, t_Window *selector)
{
    const T_FONTSEL *record = selector ? (const T_FONTSEL *)selector->user_data : NULL;
    if (!record)
        return;
    t_gadget *gadget = (t_gadget *)record->user_data;
    if (!GadgetIsOnPage(window, gadget))  // it may have gone while the selector was up
        return;
    if (!record->initial_font) {
        SetGadgetFont(gadget, NULL);
        return;
    }
    if (gadget->font && strcmp(record->initial_font, gadget->font->name) == 0)
        return;
    char name[FONT_NAME_SIZE];
    snprintf(name, sizeof(name), "%s", record->initial_font);
    SetGadgetFont(gadget, name);
}

// Items from the two context menus.
static void DispatchPageItem(t_Window *window, u32 item_code)
{
    switch (item_code) {
    case GADGET_MENU_SIZE_TO_CONTENTS:  // the size and alignment entries of the gadget menu
    case GADGET_MENU_ALIGN_LEFT:
    case GADGET_MENU_ALIGN_TOP:
    case GADGET_MENU_SAME_SIZE:
        ApplyGadgetMenuCommand(window, item_code);
        break;
    case PAGE_MENU_CHOOSE_FONT:
        OpenFontSelector(window);
        break;
    case GADGET_MENU_PROPERTIES:  // the current gadget's dialog
        if (t_gadget *gadget = GetCurrentGadget(window))
            OpenGadgetProperties(window, gadget);
        break;
    case PAGE_MENU_WINDOW_PROPERTIES:
        OpenWindowProperties(window);
        break;
    case PAGE_MENU_ACTIONS:  // the current gadget's actions; nothing without one
        OpenActionEditor(window);
        break;
    case PAGE_MENU_DELETE:  // the marked gadgets, or the current one
        DeleteMarkedGadgets(window);
        TellMainWindow(window, 0);
        break;
    case GADGET_MENU_CUT:  // the clipboard, as the Edit menu's entries
        EditMarkedGadgets(window, EDIT_CUT);
        break;
    case GADGET_MENU_COPY:
        EditMarkedGadgets(window, EDIT_COPY);
        break;
    case GADGET_MENU_PASTE:
        EditMarkedGadgets(window, EDIT_PASTE);
        break;
    case PAGE_MENU_RESIZE_TO_CONTENTS:  // from a small window, grown around the gadgets
        window->w = RESIZE_START_WIDTH;
        window->h = RESIZE_START_HEIGHT;
        RecalcUserSize(window);
        ResizeWindowToContents(window);
        window->state_flags |= WSF_MODIFIED;
        break;
    default:  // unknown codes change nothing
        break;
    }
}

u32 PageMessage(t_Window *window, u32 item_code, u32 msg, void *data)
{
    T_WINEDIT_HANDLER *record = PageRecordOf(window);
    switch (msg) {
    case ACT_GAIN_CONTEXT:  // this page becomes the active one
        if (page_host.set_active_page)
            page_host.set_active_page(window, window);
        return 0;
    case ACT_TERMINATE:
        ClosePage(window);
        return 0;
    case ACT_KEY:  // keys run the application's commands
        if (window->parent && page_host.run_key)
            return page_host.run_key(window->parent, (T_KEY_MSG *)data);
        return 0;
    case ACT_WINDOW_RESIZE:
        window->state_flags |= WSF_MODIFIED;
        return 0;
    case ACT_MENU_OPEN:
        if (item_code == GADGET_MENU_CODE)
            GreyGadgetMenu(window);
        return 0;
    case ACT_RECEIVE_OBJECT:
        if (item_code == PAGE_ITEM_QUERY && data) {  // a colour
            window->state_flags |= WSF_MODIFIED;
            window->UserAreaColour = GetConstantTRGBA((T_RGBA *)data);
        } else if (item_code == PAGE_ITEM_FONT && data) {  // a bitmap: the second word is its name
            window->state_flags |= WSF_MODIFIED;
            SetWindowBitmap(window, ((const char *const *)data)[1]);
            RecalcUserSize(window);
        }
        return 0;
    case ACT_REQUESTER_OK:
        if (item_code == PAGE_ITEM_SAVE_AS && data) {
            FinishSaveAs(window, record, (const T_FILE_REQUESTER_ANSWER *)data);
        } else if (item_code == PAGE_ITEM_QUERY) {  // yes: save, then close
            AnswerYes(window, record);
        } else if (item_code == PAGE_ITEM_FONT) {  // a font chosen for the marked gadgets
            ApplyFontToMarked(window, (t_Window *)data);
            window->state_flags |= WSF_MODIFIED;
        } else if (item_code == PAGE_ITEM_LINES && record->file_name.text) {  // "Save" over them
            record->lines_checked = 1;
            WriteDocument(window, record, record->file_name.text, 0);
        }
        return 0;
    case ACT_REQUESTER_CANCEL:
        if (item_code == PAGE_ITEM_QUERY || item_code == PAGE_ITEM_SAVE_AS || item_code == PAGE_ITEM_LINES)
            PageSaveEnded(window, record, SAVE_DOCUMENT_CANCELLED, 0);  // a query waiting on it stays
        else if (item_code == PAGE_ITEM_FONT)
            CancelFont(window, (t_Window *)data);
        return 0;
    case ACT_REQUESTER_ABORT:
        if (item_code == PAGE_ITEM_QUERY)  // no: the changes are dropped
            AnswerNo(window, record);
        else if (item_code == PAGE_ITEM_LINES)  // "Save as...": the old file keeps its lines
            SaveDocument(window, record, 1);
        return 0;
    case ACT_REQUESTER_PREVIEW:
        if (item_code == PAGE_ITEM_FONT)
            PreviewFont(window, (t_Window *)data);
        return 0;
    default:
        DispatchPageItem(window, item_code);
        return 0;
    }
}
