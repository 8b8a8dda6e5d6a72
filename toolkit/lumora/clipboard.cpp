// The desktop clipboard's text, through the display back end: the SDL display's clipboard is the
// desktop's, the headless display keeps one in memory.
#include "lumora/lumora_internal.h"

int SetClipboardText(const char *text)
{
    if (!display || !display->set_clipboard)
        return 0;
    if (display->set_clipboard(text ? text : ""))
        return 1;
    myprintf(0, "The clipboard could not take the text\n");
    return 0;
}

const char *GetClipboardText(void)
{
    const char *text = display && display->get_clipboard ? display->get_clipboard() : NULL;
    return text ? text : "";
}
