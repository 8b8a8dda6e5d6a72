// The test for a text file, which the page reader asks before it reads.
#include "pickett.h"

// Text is taken as such when it has no NUL and no control character but tab, line feed, carriage
// return, form feed and vertical tab. Bytes from 128 up are allowed, so that names in UTF-8 don't
// make a page file unreadable.
int IsFileAscii(const void *data, u32 size)
{
    const u8 *bytes = (const u8 *)data;
    for (u32 i = 0; i < size; i++) {
        u8 c = bytes[i];
        if (c < 32 && c != '\t' && c != '\n' && c != '\r' && c != '\f' && c != '\v')
            return 0;
        if (c == 127)
            return 0;
    }
    return 1;
}
