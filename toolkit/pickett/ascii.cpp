// The test for a text file, which the page reader asks before it reads.
#include "pickett.h"

// Text is taken as such when it has no NUL and no control character but tab, line feed, carriage
// return, form feed and vertical tab. Bytes from 128 up are allowed, so that names in UTF-8 don't
// make a page file unreadable.
// 1 for each byte a text file never holds: controls other than the blanks, and DEL.
static u8 bad_bytes[256];

static void FillBadBytes(void)
{
    for (int c = 0; c < 32; c++)
        bad_bytes[c] = c != '\t' && c != '\n' && c != '\r' && c != '\f' && c != '\v';
    bad_bytes[127] = 1;
}

int IsFileAscii(const void *data, u32 size)
{
    if (!bad_bytes[0])
        FillBadBytes();
    const u8 *bytes = (const u8 *)data;
    // A block at a time without a branch per byte, so the compiler can do several bytes at once.
    enum { BLOCK = 64 };
    u32 i = 0;
    for (; i + BLOCK <= size; i += BLOCK) {
        u8 bad = 0;
        for (u32 j = 0; j < BLOCK; j++)
            bad |= bad_bytes[bytes[i + j]];
        if (bad)
            return 0;
    }
    for (; i < size; i++)
        if (bad_bytes[bytes[i]])
            return 0;
    return 1;
}
