// Hand-written lines: of the lines that the reader passed over in a page's file (its line map),
// those that no save would write again. The reader passes over the writer's own lines too (the
// whole MESSAGE block, blank lines, declarations it doesn't count), so a passed-over line counts
// as hand-written only when it matches none of the writer's forms below. A save over the file
// drops the hand-written lines; the editor asks before it does.
#include <string.h>

#include "source/hand_written.h"
#include "source/page_fields.h"
#include "source/source_format.h"

// A form of the writer's lines: the line begins with `head` and, when `tail` isn't null, ends with
// it, with the name or value the writer puts between; with a null `tail` the line is `head` exactly.
typedef struct T_WRITER_FORM {
    const char *head;
    const char *tail;
} T_WRITER_FORM;

// clang-format off
//   head                                             tail
static const T_WRITER_FORM writer_forms[] = {
    {"/*Quillform: START_OBJECT: MESSAGE */",         NULL},
    {"/*Quillform: END_OBJECT: MESSAGE */",           NULL},
    {"/*Quillform: START_OBJECT: PAGE */",            NULL},
    {"/*Quillform: END_OBJECT: PAGE */",              NULL},
    {"/*Quillform: START_OBJECT: WINDOW */",          NULL},
    {"/*Quillform: END_OBJECT: WINDOW */",            NULL},
    {"/*Quillform: START_OBJECT: GADGET */",          NULL},
    {"/*Quillform: END_OBJECT: GADGET */",            NULL},
    {"u32 ",                                          "Msg(T_WINDOW *win,u32 item_code,u32 msg,void *data)"},  // the message function's head
    {"T_WINDOW *Open",                                "Window()"},  // the open function's head
    {"{", NULL},
    {"}", NULL},
    {"switch(msg)",                                   NULL},
    {"switch(item_code)",                             NULL},
    {"case ",                                         ":"},  // a message's case
    {"case ",                                         "*/"},  // a gadget's case with its name
    {"break;",                                        NULL},
    {"RemoveWindow(win);",                            NULL},
    {"return(0);",                                    NULL},
    {"return(win);",                                  NULL},
    {"T_WINDOW_HANDLER *wh;",                         NULL},
    {"T_WINDOW *win;",                                NULL},
    {"T_WINDOWOBJINIT win_init;",                     NULL},
    {"T_GADGET_HANDLER *gh;",                         NULL},
    {"T_GADGET *gad;",                                NULL},
    {"T_GADGETOBJECTINIT gadinit;",                   NULL},
    {"T_MENU_HANDLER *mh;",                           NULL},
    {"T_MENU *menu;",                                 NULL},
    {"T_MENUOBJECTINIT menuinit;",                    NULL},
    {"ClearGadInit;",                                 NULL},
    {"ClearWinInit;",                                 NULL},
    {"wh=FindWindowHandler();",                       NULL},
    {"win=ICreateWindow(\"",                          "\");"},
    {"gh=(T_GADGET_HANDLER *)NewGadgetHandler(win);", NULL},
    {"mh=NewMenuHandler(win);",                       NULL},
    {"gad=CreateGadget(\"",                           "\");"},
    {"SetGadgetColours(gad,",                         ");"},
};
// clang-format on

// Whether the line, without the blanks around it, is one the writer writes. A blank line loses
// nothing, so it counts as the writer's too.
static int WriterLine(const char *line)
{
    while (*line == ' ' || *line == '\t')
        line++;
    size_t length = strlen(line);
    while (length && (line[length - 1] == ' ' || line[length - 1] == '\t' || line[length - 1] == '\r'))
        length--;
    if (!length || IsFixedFieldLine(line, length))  // the field tables' own forms
        return 1;
    for (const T_WRITER_FORM &form : writer_forms) {
        size_t head = strlen(form.head);
        if (length < head || strncmp(line, form.head, head) != 0)
            continue;
        if (!form.tail) {
            if (length == head)
                return 1;
            continue;
        }
        size_t tail = strlen(form.tail);
        if (length >= head + tail && strncmp(line + length - tail, form.tail, tail) == 0)
            return 1;
    }
    return 0;
}

u32 CountHandWrittenLines(const T_WINEDIT_HANDLER *record, const char *path, u32 *numbers, u32 max_numbers)
{
    if (!record->line_map || !path)
        return 0;
    // The lines come from the file as it is now; the map numbers them as they were read.
    char *data = (char *)LoadFile(path);
    if (!data)
        return 0;  // a file that is gone holds nothing a save could drop
    u32 size = GetLoadFileSize();
    const char *end = data + size;
    char line[READ_LINE_SIZE];
    u32 count = 0, index = 0;
    for (const char *at = data; index < record->lines_total; index++) {
        u32 used = ReadLine(line, at, end);
        if (!used)
            break;
        at += used;
        if (!record->line_map[index] || WriterLine(line))
            continue;
        if (count < max_numbers)
            numbers[count] = index + 1;
        count++;
    }
    FreeMem(data, size);
    return count;
}
