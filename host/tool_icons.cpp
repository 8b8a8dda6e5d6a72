// The application's icon bank: each gadget tool of the toolbar as a 24x24 picture of its gadget,
// drawn into the bank's pixels (0xAABBGGRR) with simple shapes in one palette: a dark outline,
// light fills and one blue accent.
#include "tool_icons.h"

#include <stdlib.h>

#define TOOL_RGB(r, g, b) (0xFF000000u | ((u32)(b) << 16) | ((u32)(g) << 8) | (u32)(r))

static const u32 INK = TOOL_RGB(0x3C, 0x40, 0x48);
static const u32 PAPER = TOOL_RGB(0xFF, 0xFF, 0xFF);
static const u32 FACE = TOOL_RGB(0xE2, 0xE4, 0xE8);
static const u32 SHADE = TOOL_RGB(0xA8, 0xAC, 0xB4);
static const u32 ACCENT = TOOL_RGB(0x2F, 0x6F, 0xC4);
static const u32 CLEAR = 0;

// One icon being drawn.
typedef struct T_CANVAS {
    u32 *pixels;
} T_CANVAS;

static void Plot(T_CANVAS *c, i32 x, i32 y, u32 colour)
{
    if (x >= 0 && y >= 0 && x < TOOL_ICON_SIZE && y < TOOL_ICON_SIZE)
        c->pixels[y * TOOL_ICON_SIZE + x] = colour;
}

static void Fill(T_CANVAS *c, i32 x, i32 y, i32 w, i32 h, u32 colour)
{
    for (i32 row = y; row < y + h; row++)
        for (i32 col = x; col < x + w; col++)
            Plot(c, col, row, colour);
}

static void Frame(T_CANVAS *c, i32 x, i32 y, i32 w, i32 h, u32 colour)
{
    Fill(c, x, y, w, 1, colour);
    Fill(c, x, y + h - 1, w, 1, colour);
    Fill(c, x, y, 1, h, colour);
    Fill(c, x + w - 1, y, 1, h, colour);
}

// A box with an outline.
static void Box(T_CANVAS *c, i32 x, i32 y, i32 w, i32 h, u32 fill)
{
    Fill(c, x, y, w, h, fill);
    Frame(c, x, y, w, h, INK);
}

static void Line(T_CANVAS *c, i32 x1, i32 y1, i32 x2, i32 y2, u32 colour)
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

// A disc round the pixel centre (cx, cy): the pixels whose centres lie within r.
static void Disc(T_CANVAS *c, i32 cx, i32 cy, i32 r, u32 colour)
{
    for (i32 y = cy - r; y <= cy + r; y++)
        for (i32 x = cx - r; x <= cx + r; x++)
            if ((x - cx) * (x - cx) + (y - cy) * (y - cy) <= r * r + r / 2)
                Plot(c, x, y, colour);
}

// Rows of a pattern, each pixel `scale` wide: '#' the ink, 'o' the fill, others left alone.
static void Pattern(T_CANVAS *c, i32 x, i32 y, const char *const *rows, i32 scale, u32 ink, u32 fill)
{
    for (i32 row = 0; rows[row]; row++)
        for (i32 col = 0; rows[row][col]; col++) {
            char p = rows[row][col];
            if (p == '#' || p == 'o')
                Fill(c, x + col * scale, y + row * scale, scale, scale, p == '#' ? ink : fill);
        }
}

// Letters of five by seven, and small arrows.
static const char *const LETTER_A[] = {" ### ", "#   #", "#   #", "#####", "#   #", "#   #", "#   #", NULL};
static const char *const LETTER_a[] = {"     ", "     ", " ### ", "    #", " ####", "#   #", " ####", NULL};
static const char *const LETTER_b[] = {"#    ", "#    ", "#### ", "#   #", "#   #", "#   #", "#### ", NULL};
static const char *const LETTER_O[] = {" ### ", "#   #", "#   #", "#   #", "#   #", "#   #", " ### ", NULL};
static const char *const LETTER_K[] = {"#   #", "#  # ", "# #  ", "##   ", "# #  ", "#  # ", "#   #", NULL};
static const char *const ARROW_LEFT[] = {"  #", " ##", "###", " ##", "  #", NULL};
static const char *const ARROW_RIGHT[] = {"#  ", "## ", "###", "## ", "#  ", NULL};
static const char *const ARROW_UP[] = {"  #  ", " ### ", "#####", NULL};
static const char *const ARROW_DOWN[] = {"#####", " ### ", "  #  ", NULL};
static const char *const POINTER[] = {
    "#",         "##",          "#o#",         "#oo#",        "#ooo#",      "#oooo#",
    "#ooooo#",   "#oooooo#",    "#ooooooo#",   "#oooooooo#",  "#ooooo#####", "#oo#oo#",
    "#o# #oo#",  "##  #oo#",    "#    #oo#",   "     #oo#",   "      ##",   NULL};

static void DrawCheckBox(T_CANVAS *c)
{
    Box(c, 3, 3, 18, 18, PAPER);
    for (i32 d = 0; d < 3; d++) {
        Line(c, 7, 11 + d, 10, 14 + d, ACCENT);
        Line(c, 10, 14 + d, 17, 7 + d, ACCENT);
    }
}

static void DrawListBox(T_CANVAS *c)
{
    Box(c, 1, 2, 22, 20, PAPER);
    Fill(c, 17, 3, 5, 18, FACE);
    Line(c, 16, 3, 16, 20, INK);
    Fill(c, 18, 5, 3, 6, SHADE);
    Fill(c, 4, 5, 10, 3, SHADE);
    Fill(c, 2, 9, 14, 5, ACCENT);
    Fill(c, 4, 10, 9, 3, PAPER);
    Fill(c, 4, 15, 8, 3, SHADE);
}

static void DrawSelector(T_CANVAS *c)
{
    Pattern(c, 7, 3, POINTER, 1, INK, PAPER);
}

static void DrawRadioButton(T_CANVAS *c)
{
    Disc(c, 12, 12, 9, INK);
    Disc(c, 12, 12, 8, PAPER);
    Disc(c, 12, 12, 4, ACCENT);
}

static void DrawVerticalSlider(T_CANVAS *c)
{
    Box(c, 10, 2, 4, 20, FACE);
    Box(c, 5, 9, 14, 6, ACCENT);
}

static void DrawHorizontalSlider(T_CANVAS *c)
{
    Box(c, 2, 10, 20, 4, FACE);
    Box(c, 9, 5, 6, 14, ACCENT);
}

static void DrawLabelText(T_CANVAS *c)
{
    Pattern(c, 1, 5, LETTER_A, 2, INK, INK);
    Pattern(c, 13, 5, LETTER_a, 2, INK, INK);
}

static void DrawStringEntry(T_CANVAS *c)
{
    Box(c, 1, 6, 22, 12, PAPER);
    Pattern(c, 4, 8, LETTER_a, 1, INK, INK);
    Pattern(c, 10, 8, LETTER_b, 1, INK, INK);
    Line(c, 17, 8, 17, 15, ACCENT);
    Line(c, 16, 8, 18, 8, ACCENT);
    Line(c, 16, 15, 18, 15, ACCENT);
}

static void DrawTree(T_CANVAS *c)
{
    Line(c, 5, 9, 5, 19, INK);
    Line(c, 6, 12, 11, 12, INK);
    Line(c, 6, 19, 11, 19, INK);
    Box(c, 2, 2, 7, 7, ACCENT);
    Box(c, 12, 9, 9, 6, PAPER);
    Box(c, 12, 16, 9, 6, PAPER);
}

static void DrawHorizontalScrollBar(T_CANVAS *c)
{
    Box(c, 1, 7, 22, 10, FACE);
    Line(c, 6, 8, 6, 15, INK);
    Line(c, 17, 8, 17, 15, INK);
    Pattern(c, 2, 10, ARROW_LEFT, 1, INK, INK);
    Pattern(c, 19, 10, ARROW_RIGHT, 1, INK, INK);
    Fill(c, 8, 9, 6, 6, ACCENT);
}

static void DrawVerticalScrollBar(T_CANVAS *c)
{
    Box(c, 7, 1, 10, 22, FACE);
    Line(c, 8, 6, 15, 6, INK);
    Line(c, 8, 17, 15, 17, INK);
    Pattern(c, 10, 2, ARROW_UP, 1, INK, INK);
    Pattern(c, 10, 19, ARROW_DOWN, 1, INK, INK);
    Fill(c, 9, 8, 6, 6, ACCENT);
}

// A frame whose top edge gives way to its title.
static void DrawGroup(T_CANVAS *c)
{
    Frame(c, 3, 8, 20, 15, PAPER);
    Frame(c, 2, 7, 20, 15, INK);
    Fill(c, 4, 7, 14, 2, CLEAR);
    Pattern(c, 5, 4, LETTER_A, 1, ACCENT, ACCENT);
    Pattern(c, 11, 4, LETTER_b, 1, ACCENT, ACCENT);
}

static void DrawButton(T_CANVAS *c)
{
    Fill(c, 1, 5, 22, 14, FACE);
    Line(c, 2, 6, 21, 6, PAPER);
    Line(c, 2, 6, 2, 17, PAPER);
    Line(c, 3, 17, 21, 17, SHADE);
    Line(c, 21, 7, 21, 17, SHADE);
    Frame(c, 1, 5, 22, 14, INK);
    Pattern(c, 6, 9, LETTER_O, 1, INK, INK);
    Pattern(c, 13, 9, LETTER_K, 1, INK, INK);
}

static void DrawDropBox(T_CANVAS *c)
{
    Box(c, 1, 6, 22, 12, PAPER);
    Fill(c, 15, 7, 7, 10, FACE);
    Line(c, 14, 7, 14, 16, INK);
    Pattern(c, 16, 10, ARROW_DOWN, 1, INK, INK);
    Fill(c, 4, 10, 8, 3, SHADE);
}

//  place                            drawing
static const struct {
    u16 icon;
    void (*draw)(T_CANVAS *canvas);
} tool_icons[] = {
    {TOOL_ICON_CHECK_BOX, DrawCheckBox},
    {TOOL_ICON_LIST_BOX, DrawListBox},
    {TOOL_ICON_SELECTOR, DrawSelector},
    {TOOL_ICON_RADIO_BUTTON, DrawRadioButton},
    {TOOL_ICON_VERTICAL_SLIDER, DrawVerticalSlider},
    {TOOL_ICON_TEXT, DrawLabelText},
    {TOOL_ICON_STRING, DrawStringEntry},
    {TOOL_ICON_TREE, DrawTree},
    {TOOL_ICON_HORIZONTAL_SCROLLBAR, DrawHorizontalScrollBar},
    {TOOL_ICON_VERTICAL_SCROLLBAR, DrawVerticalScrollBar},
    {TOOL_ICON_GROUP, DrawGroup},
    {TOOL_ICON_BUTTON, DrawButton},
    {TOOL_ICON_DROP_BOX, DrawDropBox},
    {TOOL_ICON_HORIZONTAL_SLIDER, DrawHorizontalSlider},
};

T_TEXTURE_BANK *MakeToolIconBank(void)
{
    T_TEXTURE_BANK *bank = NewTextureBank("tools", TOOL_ICON_COUNT, TOOL_ICON_SIZE, TOOL_ICON_SIZE);
    if (!bank) {
        myprintf(0, "The toolbar's icons could not be made\n");
        return NULL;
    }
    for (const auto &row : tool_icons) {
        T_CANVAS canvas = {bank->pixels + row.icon * TOOL_ICON_SIZE * TOOL_ICON_SIZE};
        row.draw(&canvas);
    }
    return bank;
}
