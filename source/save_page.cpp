// SavePage: the walk of a save, from the tab links and the type order through the backup to the
// MESSAGE block, the PAGE block with the WINDOW block and one GADGET block for each gadget.
#include <algorithm>
#include <stdio.h>
#include <vector>

#include "source/backup.h"
#include "source/name_tables.h"
#include "source/source_format.h"
#include "source/source_writer.h"

#define SAVE_MESSAGE_SIZE 1024  // a message box's text about a save: a path and a reason

void SaveMessageFunction(u32 idcmp, const char *plain_name, t_Gaget_Handler *gadget_handler)
{
    SavePrint(SRC_MESSAGE_START);
    SavePrint(SRC_MSG_HEAD_BEFORE);
    SavePrint(plain_name);
    SavePrint(SRC_MSG_HEAD_AFTER);
    SavePrint(SRC_OPEN_BRACE);

    // One case for each row of the message mask, in the order of the table.
    SavePrint(SRC_SWITCH_MSG);
    for (u32 row = 0; idcmp_names[row].value; row++) {
        if (!(idcmp_names[row].value & idcmp))
            continue;
        SavePrint(SRC_CASE);
        SavePrint(message_names[row].text);
        SavePrint(SRC_CASE_END);
        SavePrint(idcmp_names[row].value == IDCMP_TERMINATE ? SRC_TERMINATE_CASE : SRC_BREAK);
    }
    SavePrint(SRC_SWITCH_END);

    // One case for each gadget with an item code, in list order.
    SavePrint(SRC_SWITCH_ITEM);
    if (gadget_handler) {
        for (t_gadget *g = gadget_handler->first_gadget; g->next; g = g->next)
            if (g->item_code != 0)
                SaveItemCase(g->item_code, g->name ? g->name : "");
    }
    SavePrint(SRC_SWITCH_END);

    SavePrint(SRC_RETURN_ZERO);
    SavePrint(SRC_CLOSE_BRACE);
    SavePrint(SRC_MESSAGE_END);
    SavePrint(SRC_BLANK_LINE);
}

// The head of the open function and the WINDOW block.
static void SaveWindow(t_Window *window, const char *plain_name, t_Gaget_Handler *gadget_handler)
{
    int has_menus = FindMenuHandler(window) != NULL;

    SavePrint(SRC_PAGE_START);
    SavePrint(SRC_OPEN_BEFORE);
    SavePrint(plain_name);
    SavePrint(SRC_OPEN_AFTER);
    SavePrint(SRC_DECLARE_WINDOW);
    if (gadget_handler)
        SavePrint(SRC_DECLARE_GADGETS);
    if (has_menus)
        SavePrint(SRC_DECLARE_MENUS);
    SavePrint(SRC_CLEAR_INITS);

    SavePrint(SRC_WINDOW_START);
    SavePrint(SRC_WIN_HANDLER);
    SaveWindowStatements(window, plain_name, 0);
    SavePrint(SRC_WIN_CREATE);
    SavePrint(window->name ? window->name : "");
    SavePrint(SRC_WIN_CREATE_AFTER);
    SaveWindowStatements(window, plain_name, 1);
    if (gadget_handler)
        SavePrint(SRC_WIN_GADGET_HANDLER);
    if (has_menus)
        SavePrint(SRC_WIN_MENU_HANDLER);
    SavePrint(SRC_WINDOW_END);
}

// Puts the gadget list in type order, with each gadget's type as its node priority: higher types
// first, list order among equals, which is where AddQueue puts a node. Putting the nodes back one
// by one with AddQueue searches the list for each; a stable sort gives the same order in one pass.
static void OrderGadgetsByType(t_Gaget_Handler *gadget_handler)
{
    t_List unordered;
    InitList(&unordered, NULL);
    TransferList(&unordered, &gadget_handler->gadget_list);
    std::vector<t_gadget *> gadgets;
    while (!LIST_EMPTY(&unordered)) {
        t_gadget *g = (t_gadget *)unordered.first;
        SubNode((t_Node *)g);
        g->priority = (i16)g->type;
        gadgets.push_back(g);
    }
    std::stable_sort(gadgets.begin(), gadgets.end(),
                     [](const t_gadget *a, const t_gadget *b) { return a->priority > b->priority; });
    for (t_gadget *g : gadgets)
        AddTail(&gadget_handler->gadget_list, (t_Node *)g);
}

// A message box on the page about a save, with a text made of `format` and `detail`.
static void TellSaveError(t_Window *window, const char *format, const char *detail)
{
    char message[SAVE_MESSAGE_SIZE];
    snprintf(message, sizeof(message), format, detail);
    NewMsgBox(window, SRC_SAVE_ERROR_TITLE, message, SRC_SAVE_ERROR_STYLE, SRC_SAVE_ERROR_ITEM_CODE);
}

int SavePage(t_Window *window, const char *path)
{
    u32 settings = editor_config ? editor_config->flags : CONFIG_DEFAULT_FLAGS;
    if (!editor_config)
        myprintf(0, "SavePage: no settings block; saving %s with the default settings", path);

    t_Gaget_Handler *gadget_handler = FindGadgetHandler(window);
    BuildTabLinks(window);
    if ((settings & CONFIG_TYPE_ORDER) && gadget_handler)
        OrderGadgetsByType(gadget_handler);

    u32 gadgets = PageGadgetCount(window);
    T_PROGRESS_BAR *bar = NewProgressBar(SRC_SAVE_BAR_TITLE, gadgets + 1);

    // The window's name without its spaces names the functions; a page name has at most 127
    // characters, so the buffer holds it whole.
    char plain_name[SRC_PATH_SIZE];
    snprintf(plain_name, sizeof(plain_name), "%s", window->name ? window->name : "");
    RemoveSpacesFromString(plain_name);

    if (settings & CONFIG_BACKUPS)
        UpdateProgressBar(bar, 0, SRC_SAVE_BAR_BACKUP);
    if ((settings & CONFIG_BACKUPS) && FileExists(path)) {
        switch (BackupDocument(path)) {
        case BACKUP_NO_DOCUMENT:  // the old text can't be read: nothing is written
            NewMsgBox(window, SRC_SAVE_ERROR_TITLE, SRC_SAVE_ERROR_BACKUP, SRC_SAVE_ERROR_STYLE,
                      SRC_SAVE_ERROR_ITEM_CODE);
            KillProgressBar(bar);
            return 0;
        case BACKUP_NOT_WRITTEN:  // the document is written all the same; the message stays
            // when the page closes after the save (the close query's Yes)
            TellSaveError(window->parent ? window->parent : window, SRC_SAVE_ERROR_BACKUP_COPY, BackupFailure());
            break;
        default:
            break;
        }
    }

    InitSaveFile(path);
    SaveMessageFunction(window->idcmp, plain_name, gadget_handler);
    SaveWindow(window, plain_name, gadget_handler);

    T_GADGETOBJECTINIT previous_values;
    ZeroMem(&previous_values, sizeof(previous_values));
    int full = !(settings & CONFIG_OPTIMISE);
    if (gadget_handler) {
        u32 number = 1;
        for (t_gadget *g = gadget_handler->first_gadget; g->next; g = g->next, number++) {
            if (number & 1)  // the bar moves at every second gadget
                UpdateProgressBar(bar, number, g->name && g->name[0] ? g->name : SRC_SAVE_BAR_UNTITLED);
            SaveGadget(g, &previous_values, full);
        }
    }

    SavePrint(SRC_RETURN_WIN);
    SavePrint(SRC_CLOSE_BRACE);
    SavePrint(SRC_PAGE_END);
    KillProgressBar(bar);

    // The text goes to a temporary file beside the target; tell the user when it couldn't be
    // moved into place.
    if (FinishSaveFile())
        return 1;
    char message[SAVE_MESSAGE_SIZE];
    snprintf(message, sizeof(message), SRC_SAVE_ERROR_WRITE, path, SaveFileError());
    myprintf(0, "%s", message);
    NewMsgBox(window, SRC_SAVE_ERROR_TITLE, message, SRC_SAVE_ERROR_STYLE, SRC_SAVE_ERROR_ITEM_CODE);
    return 0;
}
