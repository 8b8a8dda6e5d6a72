// The source file information window: a label naming the page's file and a list of what a person
// should know before saving over it: the file's path, size and time of change, how many lines were
// read, and every line the reader passed over (hand-written code that the next save won't keep).
// It holds nothing and changes nothing on the page; "Ok" and the close gadget end it.
#include "properties/source_file_info.h"

#include <errno.h>
#include <stdio.h>
#include <string.h>
#include <sys/stat.h>
#include <time.h>

#include "properties/dialog_support.h"
#include "properties/texts.h"

// clang-format off
static const T_DIALOG_FRAME info_frame = {
    TXT_SOURCE_INFO, 176, 239, 562, 293,
    WF_CHILD | WF_MINIMISE | WF_MAXIMISE | WF_BORDER | WF_MOVE | WF_TITLE | WF_RESIZE | WF_CLOSE,  // 0x3FC
    IDCMP_TERMINATE, 5, SourceFileInfoMsg};
// clang-format on
#define INFO_ACTION (ACT_LMOUSE_UP | ACT_LMOUSE_DOWN | ACT_LMOUSE_DBL | ACT_RMOUSE_UP | ACT_RMOUSE_DOWN)  // 0x73
#define INFO_LINE_SIZE 1100  // a list row: a number and a source line of up to 1023 characters
#define INFO_SOURCE_LINE 1024

typedef struct T_INFO_GADGET {
    u16 type;
    const char *text;
    u32 item_code;
    i16 x, y, w, h;
    u32 flags;
} T_INFO_GADGET;

//  type                  text          item code        x    y    w    h    flags
static const T_INFO_GADGET info_gadgets[] = {
    {GADGET_TYPE_TEXT, TXT_FILENAME, 0, 12, 248, 145, 13, GADGET_FLAGS_NO_BORDER},
    {GADGET_TYPE_LIST_BOX, "My Listbox", INFO_ITEM_LIST, 10, 9, 534, 232, GADGET_FLAGS_SOLID},
    {GADGET_TYPE_BUTTON, TXT_OK, INFO_ITEM_OK, 510, 247, 26, 15, GADGET_FLAGS_PUSH | GADGET_FLAGS_SOLID},
};

static void AddRow(t_List *entries, const char *text)
{
    NewBranch(entries, NULL, text, 0);
}

void FillSourceFileInfo(t_Window *page, t_List *entries)
{
    T_WINEDIT_HANDLER *record = PageRecordOf(page);
    const char *path = record->file_name.text ? record->file_name.text : "";
    char row[INFO_LINE_SIZE];
    snprintf(row, sizeof(row), TXT_INFO_PATH, path);
    AddRow(entries, row);
    struct stat info;
    if (stat(path, &info) == 0) {
        char when[64];
        strftime(when, sizeof(when), "%Y-%m-%d %H:%M:%S", localtime(&info.st_mtime));
        snprintf(row, sizeof(row), TXT_INFO_SIZE, (long)info.st_size, when);
    } else {
        snprintf(row, sizeof(row), TXT_INFO_NO_FILE, strerror(errno));
    }
    AddRow(entries, row);
    if (!record->line_map) {  // saved but never read: nothing was passed over
        AddRow(entries, TXT_INFO_NOT_READ);
        return;
    }
    snprintf(row, sizeof(row), TXT_INFO_LINES, (unsigned long)record->lines_read, (unsigned long)record->lines_total);
    AddRow(entries, row);
    u32 passed = 0;
    for (u32 i = 0; i < record->lines_total; i++)
        passed += record->line_map[i] != 0;
    if (!passed) {
        AddRow(entries, TXT_INFO_NOTHING_PASSED);
        return;
    }
    AddRow(entries, TXT_INFO_PASSED_HEAD);
    // The lines come from the file as it is now; the map numbers them as they were read.
    char *data = (char *)LoadFile(path);
    u32 size = data ? GetLoadFileSize() : 0;
    const char *end = data + size;
    char line[INFO_SOURCE_LINE];
    u32 index = 0;
    for (const char *at = data; data && index < record->lines_total; index++) {
        u32 used = ReadLine(line, at, end);
        if (!used)
            break;
        at += used;
        if (!record->line_map[index])
            continue;
        snprintf(row, sizeof(row), TXT_INFO_PASSED_LINE, (unsigned long)index + 1, line);
        AddRow(entries, row);
    }
    FreeMem(data, size);
}

t_Window *OpenSourceFileInfo(t_Window *page)
{
    if (!page || !IsPageWindow(page))
        return NULL;
    t_Window *window = OpenDialogWindow(page, &info_frame, NULL);
    if (!window)
        return NULL;
    t_Gaget_Handler *handler = FindGadgetHandler(window);
    T_WINEDIT_HANDLER *record = PageRecordOf(page);
    char file_name[FILE_PATH_SIZE];
    StripPath(file_name, record->file_name.text ? record->file_name.text : "");
    char label[FILE_PATH_SIZE + 32];
    snprintf(label, sizeof(label), "%s %s", TXT_FILENAME, file_name);
    for (const T_INFO_GADGET &row : info_gadgets) {
        T_GADGETOBJECTINIT init = {};
        init.type = row.type;
        init.item_code = row.item_code;
        init.x = row.x;
        init.y = row.y;
        init.base_width = row.w;
        init.base_height = row.h;
        init.flags = row.flags;
        init.action = INFO_ACTION;
        int is_label = row.type == GADGET_TYPE_TEXT;
        void *made = CreateObject(&handler->head, is_label ? label : row.text, &init);
        if (row.type == GADGET_TYPE_LIST_BOX && made) {
            T_LIST_DATA *list = (T_LIST_DATA *)made;
            FillSourceFileInfo(page, &list->entries);
            list->resized_flags |= LIST_RESIZED;
        }
    }
    handler->current_gadget = NULL;
    KeepDialogInView(window);
    return window;
}

u32 SourceFileInfoMsg(t_Window *window, u32 item_code, u32 msg, void *data)
{
    (void)data;
    switch (msg) {
    case ACT_TERMINATE:
        RemoveWindow(window);
        return 0;
    default:
        if (item_code == INFO_ITEM_OK && msg == ACT_LMOUSE_UP)  // "Ok" closes it
            RemoveWindow(window);
        return 0;
    }
}
