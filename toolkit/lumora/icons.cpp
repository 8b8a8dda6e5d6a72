// The display's standard icon bank: twenty 16x16 icons drawn into the bank's pixels (0xAABBGGRR,
// transparent background) by a few small shape helpers. Places without a row below stay empty.
#include <math.h>
#include <string.h>

#include "lumora/lumora_internal.h"

#define STANDARD_ICON_COUNT 20
#define STANDARD_ICON_SIZE 16

#define ICON_RGB(r, g, b) (0xFF000000u | ((u32)(b) << 16) | ((u32)(g) << 8) | (u32)(r))

// The palette: a dark outline, light fills and a few signal colours.
static const u32 ICON_OUTLINE = ICON_RGB(0x38, 0x3C, 0x44);
static const u32 ICON_WHITE = ICON_RGB(0xFF, 0xFF, 0xFF);
static const u32 ICON_LIGHT = ICON_RGB(0xE4, 0xE6, 0xEA);
static const u32 ICON_BLUE = ICON_RGB(0x2F, 0x6F, 0xC4);
static const u32 ICON_RED = ICON_RGB(0xD0, 0x3A, 0x32);
static const u32 ICON_YELLOW = ICON_RGB(0xF2, 0xC2, 0x2E);
static const u32 ICON_GREEN = ICON_RGB(0x3A, 0x9A, 0x48);
static const u32 ICON_TAN = ICON_RGB(0xE8, 0xB8, 0x5C);

// One icon being drawn: its pixels, size by size.
typedef struct T_ICON_CANVAS {
    u32 *pixels;
    i32 size;
} T_ICON_CANVAS;

static void Plot(T_ICON_CANVAS *c, i32 x, i32 y, u32 colour)
{
    if (x >= 0 && y >= 0 && x < c->size && y < c->size)
        c->pixels[y * c->size + x] = colour;
}

static void Fill(T_ICON_CANVAS *c, i32 x, i32 y, i32 w, i32 h, u32 colour)
{
    for (i32 row = y; row < y + h; row++)
        for (i32 col = x; col < x + w; col++)
            Plot(c, col, row, colour);
}

static void Frame(T_ICON_CANVAS *c, i32 x, i32 y, i32 w, i32 h, u32 colour)
{
    Fill(c, x, y, w, 1, colour);
    Fill(c, x, y + h - 1, w, 1, colour);
    Fill(c, x, y, 1, h, colour);
    Fill(c, x + w - 1, y, 1, h, colour);
}

static void Line(T_ICON_CANVAS *c, i32 x1, i32 y1, i32 x2, i32 y2, u32 colour)
{
    i32 dx = abs(x2 - x1), dy = -abs(y2 - y1);
    i32 sx = x1 < x2 ? 1 : -1, sy = y1 < y2 ? 1 : -1, err = dx + dy;
    for (;;) {
        Plot(c, x1, y1, colour);
        if (x1 == x2 && y1 == y2)
            return;
        i32 e2 = 2 * err;
        if (e2 >= dy)
            err += dy, x1 += sx;
        if (e2 <= dx)
            err += dx, y1 += sy;
    }
}

// A disc of radius r around (cx, cy), in pixel units (centres of pixels at +0.5).
static void Disc(T_ICON_CANVAS *c, float cx, float cy, float r, u32 colour)
{
    for (i32 y = 0; y < c->size; y++)
        for (i32 x = 0; x < c->size; x++)
            if (hypotf(x + 0.5f - cx, y + 0.5f - cy) <= r)
                Plot(c, x, y, colour);
}

// A pattern of rows: '#' the ink, 'o' the fill, anything else left as it is.
static void Pattern(T_ICON_CANVAS *c, i32 x, i32 y, const char *const *rows, u32 ink, u32 fill)
{
    for (i32 row = 0; rows[row]; row++)
        for (i32 col = 0; rows[row][col]; col++) {
            char p = rows[row][col];
            if (p == '#')
                Plot(c, x + col, y + row, ink);
            else if (p == 'o')
                Plot(c, x + col, y + row, fill);
        }
}

static const char *const GLYPH_I[] = {"##", "  ", "##", "##", "##", "##", "##", NULL};
static const char *const GLYPH_QUESTION[] = {" ### ", "#   #", "    #", "  ## ", "  #  ", "     ", "  #  ", NULL};
static const char *const GLYPH_BANG[] = {"##", "##", "##", "##", "  ", "##", NULL};
static const char *const TRIANGLE[] = {
    "       ##       ", "      #oo#      ", "      #oo#      ", "     #oooo#     ",
    "     #oooo#     ", "    #oooooo#    ", "    #oooooo#    ", "   #oooooooo#   ",
    "   #oooooooo#   ", "  #oooooooooo#  ", "  #oooooooooo#  ", " #oooooooooooo# ",
    " ############## ", NULL};

static void DrawInfo(T_ICON_CANVAS *c)
{
    Disc(c, 8, 8, 7.5f, ICON_BLUE);
    Pattern(c, 7, 4, GLYPH_I, ICON_WHITE, 0);
}

static void DrawError(T_ICON_CANVAS *c)
{
    Disc(c, 8, 8, 7.5f, ICON_RED);
    for (i32 d = -1; d <= 1; d++) {  // two strokes three pixels wide
        Line(c, 4 + (d > 0), 4 + (d < 0), 11 - (d < 0), 11 - (d > 0), ICON_WHITE);
        Line(c, 4 + (d > 0), 11 - (d < 0), 11 - (d < 0), 4 + (d > 0), ICON_WHITE);
    }
}

static void DrawQuestion(T_ICON_CANVAS *c)
{
    Disc(c, 8, 8, 7.5f, ICON_GREEN);
    Pattern(c, 6, 4, GLYPH_QUESTION, ICON_WHITE, 0);
}

static void DrawWarning(T_ICON_CANVAS *c)
{
    Pattern(c, 0, 2, TRIANGLE, ICON_OUTLINE, ICON_YELLOW);
    Pattern(c, 7, 6, GLYPH_BANG, ICON_OUTLINE, 0);
}

static void DrawTick(T_ICON_CANVAS *c)
{
    for (i32 d = 0; d < 3; d++) {
        Line(c, 2, 8 + d, 6, 12 + d, ICON_GREEN);
        Line(c, 6, 12 + d, 13, 3 + d, ICON_GREEN);
    }
}

static void DrawWindowGlyph(T_ICON_CANVAS *c)
{
    Fill(c, 1, 2, 14, 12, ICON_WHITE);
    Fill(c, 1, 2, 14, 4, ICON_BLUE);
    Frame(c, 1, 2, 14, 12, ICON_OUTLINE);
    Fill(c, 11, 3, 2, 2, ICON_WHITE);
}

static void DrawFolder(T_ICON_CANVAS *c)
{
    Fill(c, 1, 3, 6, 2, ICON_TAN);
    Frame(c, 1, 3, 6, 2, ICON_OUTLINE);
    Fill(c, 1, 5, 14, 9, ICON_TAN);
    Frame(c, 1, 5, 14, 9, ICON_OUTLINE);
}

static void DrawDocument(T_ICON_CANVAS *c)
{
    Fill(c, 3, 1, 10, 14, ICON_WHITE);
    Frame(c, 3, 1, 10, 14, ICON_OUTLINE);
    for (i32 row = 4; row < 13; row += 2)
        Fill(c, 5, row, 6, 1, ICON_LIGHT);
}

// A floppy disk: a dark body with a notched corner, the metal shutter and a white label.
static void DrawSave(T_ICON_CANVAS *c)
{
    Fill(c, 1, 1, 14, 14, ICON_BLUE);
    Frame(c, 1, 1, 14, 14, ICON_OUTLINE);
    Plot(c, 14, 1, 0);
    Plot(c, 13, 1, ICON_OUTLINE);
    Plot(c, 14, 2, ICON_OUTLINE);
    Fill(c, 4, 2, 7, 4, ICON_LIGHT);
    Fill(c, 8, 3, 2, 2, ICON_OUTLINE);
    Fill(c, 3, 8, 10, 6, ICON_WHITE);
    Fill(c, 5, 10, 6, 1, ICON_LIGHT);
    Fill(c, 5, 12, 6, 1, ICON_LIGHT);
}

//  place  drawing
static const struct {
    u16 icon;
    void (*draw)(T_ICON_CANVAS *canvas);
} standard_icons[] = {
    {0, DrawInfo},       {1, DrawError},       {2, DrawQuestion}, {3, DrawWarning},
    {4, DrawTick},       {5, DrawWindowGlyph}, {6, DrawFolder},   {7, DrawDocument},
    {16, DrawSave},
};

// Null, with the reason logged by Brushel, when the bank can't be made.
T_TEXTURE_BANK *MakeStandardIconBank(void)
{
    T_TEXTURE_BANK *bank =
        NewTextureBank("standard", STANDARD_ICON_COUNT, STANDARD_ICON_SIZE, STANDARD_ICON_SIZE);
    if (!bank)
        return NULL;
    for (const auto &row : standard_icons) {
        T_ICON_CANVAS canvas = {bank->pixels + row.icon * STANDARD_ICON_SIZE * STANDARD_ICON_SIZE,
                                STANDARD_ICON_SIZE};
        row.draw(&canvas);
    }
    return bank;
}
