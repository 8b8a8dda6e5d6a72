// The display's standard icon bank: twenty 16x16 icons drawn into the bank's pixels (0xAABBGGRR,
// transparent background) by a few small shape helpers. Places without a row below stay empty.
#include <string.h>

#include "lumora/lumora_internal.h"

#define STANDARD_ICON_COUNT 20
#define STANDARD_ICON_SIZE 16

// The palette: a dark outline, light fills and a few signal colours.
static const u32 ICON_OUTLINE = ICON_RGB(0x38, 0x3C, 0x44);
static const u32 ICON_WHITE = ICON_RGB(0xFF, 0xFF, 0xFF);
static const u32 ICON_LIGHT = ICON_RGB(0xE4, 0xE6, 0xEA);
static const u32 ICON_BLUE = ICON_RGB(0x2F, 0x6F, 0xC4);
static const u32 ICON_RED = ICON_RGB(0xD0, 0x3A, 0x32);
static const u32 ICON_YELLOW = ICON_RGB(0xF2, 0xC2, 0x2E);
static const u32 ICON_GREEN = ICON_RGB(0x3A, 0x9A, 0x48);
static const u32 ICON_TAN = ICON_RGB(0xE8, 0xB8, 0x5C);

static const char *const GLYPH_I[] = {"##", "  ", "##", "##", "##", "##", "##", NULL};
static const char *const GLYPH_QUESTION[] = {" ### ", "#   #", "    #", "  ## ", "  #  ", "     ", "  #  ", NULL};
static const char *const GLYPH_BANG[] = {"##", "##", "##", "##", "  ", "##", NULL};
static const char *const TRIANGLE[] = {"       ##       ", "      #oo#      ",
                                       "      #oo#      ", "     #oooo#     ",
                                       "     #oooo#     ", "    #oooooo#    ",
                                       "    #oooooo#    ", "   #oooooooo#   ",
                                       "   #oooooooo#   ", "  #oooooooooo#  ",
                                       "  #oooooooooo#  ", " #oooooooooooo# ",
                                       " ############## ", NULL};

static void DrawInfo(T_ICON_CANVAS *c)
{
    IconDisc(c, 8, 8, 7.5f, ICON_BLUE);
    IconPattern(c, 7, 4, GLYPH_I, 1, ICON_WHITE, 0);
}

static void DrawError(T_ICON_CANVAS *c)
{
    IconDisc(c, 8, 8, 7.5f, ICON_RED);
    for (i32 d = -1; d <= 1; d++) {  // two strokes three pixels wide
        IconLine(c, 4 + (d > 0), 4 + (d < 0), 11 - (d < 0), 11 - (d > 0), ICON_WHITE);
        IconLine(c, 4 + (d > 0), 11 - (d < 0), 11 - (d < 0), 4 + (d > 0), ICON_WHITE);
    }
}

static void DrawQuestion(T_ICON_CANVAS *c)
{
    IconDisc(c, 8, 8, 7.5f, ICON_GREEN);
    IconPattern(c, 6, 4, GLYPH_QUESTION, 1, ICON_WHITE, 0);
}

static void DrawWarning(T_ICON_CANVAS *c)
{
    IconPattern(c, 0, 2, TRIANGLE, 1, ICON_OUTLINE, ICON_YELLOW);
    IconPattern(c, 7, 6, GLYPH_BANG, 1, ICON_OUTLINE, 0);
}

static void DrawTick(T_ICON_CANVAS *c)
{
    IconTick(c, 2, 8, 6, 12, 13, 3, ICON_GREEN);
}

static void DrawWindowGlyph(T_ICON_CANVAS *c)
{
    IconFill(c, 1, 2, 14, 12, ICON_WHITE);
    IconFill(c, 1, 2, 14, 4, ICON_BLUE);
    IconFrame(c, 1, 2, 14, 12, ICON_OUTLINE);
    IconFill(c, 11, 3, 2, 2, ICON_WHITE);
}

static void DrawFolder(T_ICON_CANVAS *c)
{
    IconBox(c, 1, 3, 6, 2, ICON_TAN, ICON_OUTLINE);
    IconBox(c, 1, 5, 14, 9, ICON_TAN, ICON_OUTLINE);
}

static void DrawDocument(T_ICON_CANVAS *c)
{
    IconBox(c, 3, 1, 10, 14, ICON_WHITE, ICON_OUTLINE);
    for (i32 row = 4; row < 13; row += 2)
        IconFill(c, 5, row, 6, 1, ICON_LIGHT);
}

// A floppy disk: a dark body with a notched corner, the metal shutter and a white label.
static void DrawSave(T_ICON_CANVAS *c)
{
    IconBox(c, 1, 1, 14, 14, ICON_BLUE, ICON_OUTLINE);
    IconPlot(c, 14, 1, 0);
    IconPlot(c, 13, 1, ICON_OUTLINE);
    IconPlot(c, 14, 2, ICON_OUTLINE);
    IconFill(c, 4, 2, 7, 4, ICON_LIGHT);
    IconFill(c, 8, 3, 2, 2, ICON_OUTLINE);
    IconFill(c, 3, 8, 10, 6, ICON_WHITE);
    IconFill(c, 5, 10, 6, 1, ICON_LIGHT);
    IconFill(c, 5, 12, 6, 1, ICON_LIGHT);
}

// clang-format off
//  place  drawing
static const T_ICON_DRAWING standard_icons[] = {
    {0, DrawInfo},       {1, DrawError},       {2, DrawQuestion}, {3, DrawWarning},
    {4, DrawTick},       {5, DrawWindowGlyph}, {6, DrawFolder},   {7, DrawDocument},
    {16, DrawSave},
};
// clang-format on

// Null, with the reason logged by Brushel, when the bank can't be made.
T_TEXTURE_BANK *MakeStandardIconBank(void)
{
    return DrawIconBank("standard", STANDARD_ICON_COUNT, STANDARD_ICON_SIZE, standard_icons,
                        sizeof standard_icons / sizeof *standard_icons);
}
