// The log: myprintf writes a line on standard error when its level is within the log level.
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "ostrand.h"

// The text is printed as given (a leading line feed stays) and ends with a line feed.
void myprintf(int level, const char *format, ...)
{
    if (level > _OstrandBase->log_level || !format)
        return;
    char buffer[LOG_LINE_SIZE];
    va_list args;
    va_start(args, format);
    int length = vsnprintf(buffer, sizeof(buffer), format, args);
    va_end(args);
    if (length < 0)
        return;
    char *text = buffer;
    if ((size_t)length >= sizeof(buffer)) {
        text = (char *)malloc((size_t)length + 1);
        if (!text)
            return;
        va_start(args, format);
        vsnprintf(text, (size_t)length + 1, format, args);
        va_end(args);
    }
    fputs(text, stderr);
    if (length == 0 || text[length - 1] != '\n')
        fputc('\n', stderr);
    if (text != buffer)
        free(text);
}
