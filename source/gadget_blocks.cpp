// GADGET blocks on their own, outside a page file: the text that Copy puts on the clipboard and
// Paste reads back. The blocks are written in the full form, so that each one reads alone (in
// another page, another Quillform, or after a person moved them about in a text editor), and read
// with the statement rules of a page file.
#include <string.h>

#include "source/gadget_blocks.h"
#include "source/open_page.h"
#include "source/source_format.h"
#include "source/source_writer.h"

void WriteGadgetBlocks(t_gadget *const *gadgets, u32 count, std::string *text)
{
    T_GADGETOBJECTINIT previous;
    memset(&previous, 0, sizeof(previous));
    BeginSourceText(text);
    for (u32 i = 0; i < count; i++)
        SaveGadget(gadgets[i], &previous, 1);
    EndSourceText();
}

// A line that starts a GADGET block, as the reader knows one.
static int StartsGadgetBlock(const char *line)
{
    return LineHasWord(line, SRC_WORD_START) && LineHasWord(line, SRC_WORD_GADGET);
}

int HoldsGadgetBlock(const char *text)
{
    if (!text)
        return 0;
    // A marker stands on a line of its own: a look at each START_OBJECT finds it without copying
    // the lines.
    for (const char *at = strstr(text, SRC_WORD_START); at; at = strstr(at + 1, SRC_WORD_START)) {
        const char *line = at;
        while (line > text && line[-1] != '\n')
            line--;
        const char *end = strchr(at, '\n');
        size_t length = end ? (size_t)(end - line) : strlen(line);
        const char *gadget = strstr(line, SRC_WORD_GADGET);
        if (gadget && (size_t)(gadget - line) < length)
            return 1;
    }
    return 0;
}

static t_gadget *LastGadget(t_Gaget_Handler *handler)
{
    return handler ? (t_gadget *)handler->gadget_list.last : NULL;
}

u32 ReadGadgetBlocks(t_Window *window, const char *text, u32 length, T_GADGET_MADE_FN made, void *data)
{
    t_Gaget_Handler *handler = FindGadgetHandler(window);
    if (!handler || !text)
        return 0;
    T_READING reading;
    memset(&reading, 0, sizeof(reading));
    reading.window = window;
    reading.source = SRC_READ_CLIPBOARD;
    BeginGadgetBlocks();
    const char *position = text, *end = text + length;
    char line[READER_LINE_SIZE];
    u32 blocks = 0;
    while (u32 used = ReadLine(line, position, end)) {
        position += used;
        reading.lines_read++;  // so that the log names the line
        if (!StartsGadgetBlock(line))
            continue;
        blocks++;
        t_gadget *before = LastGadget(handler);
        position = ReadGadgetsFromFile(window, position, end, &reading);
        t_gadget *after = LastGadget(handler);
        if (after != before && made)
            made(after, data);
    }
    return blocks;
}
