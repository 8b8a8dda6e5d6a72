// The application's icon bank: each gadget tool of the toolbar as a 24x24 picture of its gadget,
// drawn into the bank's pixels (0xAABBGGRR) with simple shapes in one palette: a dark outline,
// light fills and one blue accent.
#include "tool_icons.h"

static const u32 INK = ICON_RGB(0x3C, 0x40, 0x48);
static const u32 PAPER = ICON_RGB(0xFF, 0xFF, 0xFF);
static const u32 FACE = ICON_RGB(0xE2, 0xE4, 0xE8);
static const u32 SHADE = ICON_RGB(0xA8, 0xAC, 0xB4);
static const u32 ACCENT = ICON_RGB(0x2F, 0x6F, 0xC4);
static const u32 CLEAR = 0;

// A box with an outline.
static void Box(T_ICON_CANVAS *c, i32 x, i32 y, i32 w, i32 h, u32 fill)
{
    IconBox(c, x, y, w, h, fill, INK);
}

// The parts that several gadgets show: the white field that holds their text, a column of
// buttons or a scroll bar at its right, set off by a line, and a line of text as a bar.
static void Field(T_ICON_CANVAS *c, i32 x, i32 y, i32 w, i32 h)
{
    Box(c, x, y, w, h, PAPER);
}

static void RightColumn(T_ICON_CANVAS *c, i32 x, i32 y, i32 w, i32 h)
{
    IconFill(c, x, y, w, h, FACE);
    IconLine(c, x - 1, y, x - 1, y + h - 1, INK);
}

static void TextBar(T_ICON_CANVAS *c, i32 x, i32 y, i32 w, u32 colour)
{
    IconFill(c, x, y, w, 3, colour);
}

// Letters of five by seven, and small arrows.
static const char *const LETTER_A[] = {" ### ", "#   #", "#   #", "#####", "#   #", "#   #", "#   #", NULL};
static const char *const LETTER_a[] = {"     ", "     ", " ### ", "    #", " ####", "#   #", " ####", NULL};
static const char *const LETTER_b[] = {"#    ", "#    ", "#### ", "#   #", "#   #", "#   #", "#### ", NULL};
static const char *const LETTER_O[] = {" ### ", "#   #", "#   #", "#   #", "#   #", "#   #", " ### ", NULL};
static const char *const LETTER_K[] = {"#   #", "#  # ", "# #  ", "##   ", "# #  ", "#  # ", "#   #", NULL};
static const char *const ARROW_LEFT[] = {"  #", " ##", "###", " ##", "  #", NULL};
static const char *const ARROW_RIGHT[] = {"#  ", "## ", "###", "## ", "#  ", NULL};
static const char *const ARROW_DOWN[] = {"#####", " ### ", "  #  ", NULL};
static const char *const POINTER[] = {"#",        "##",       "#o#",       "#oo#",       "#ooo#",       "#oooo#",
                                      "#ooooo#",  "#oooooo#", "#ooooooo#", "#oooooooo#", "#ooooo#####", "#oo#oo#",
                                      "#o# #oo#", "##  #oo#", "#    #oo#", "     #oo#",  "      ##",    NULL};

static void DrawCheckBox(T_ICON_CANVAS *c)
{
    Box(c, 3, 3, 18, 18, PAPER);
    IconTick(c, 7, 11, 10, 14, 17, 7, ACCENT);
}

static void DrawListBox(T_ICON_CANVAS *c)
{
    Field(c, 1, 2, 22, 20);
    RightColumn(c, 17, 3, 5, 18);
    IconFill(c, 18, 5, 3, 6, SHADE);  // the scroll bar's thumb
    TextBar(c, 4, 5, 10, SHADE);
    IconFill(c, 2, 9, 14, 5, ACCENT);  // the selected row
    TextBar(c, 4, 10, 9, PAPER);
    TextBar(c, 4, 15, 8, SHADE);
}

static void DrawSelector(T_ICON_CANVAS *c)
{
    IconPattern(c, 7, 3, POINTER, 1, INK, PAPER);
}

static void DrawRadioButton(T_ICON_CANVAS *c)
{
    IconDisc(c, 12.5f, 12.5f, 9.22f, INK);
    IconDisc(c, 12.5f, 12.5f, 8.25f, PAPER);
    IconDisc(c, 12.5f, 12.5f, 4.24f, ACCENT);
}

// The upright twin of a lying drawing: the same pixels with rows and columns swapped.
static void DrawUpright(T_ICON_CANVAS *c, void (*draw_lying)(T_ICON_CANVAS *canvas))
{
    u32 pixels[TOOL_ICON_SIZE * TOOL_ICON_SIZE] = {0};
    if (!QF_EXPECT(c->size == TOOL_ICON_SIZE))
        return;
    T_ICON_CANVAS lying = {pixels, c->size};
    draw_lying(&lying);
    for (i32 y = 0; y < c->size; y++)
        for (i32 x = 0; x < c->size; x++)
            c->pixels[x * c->size + y] = pixels[y * c->size + x];
}

static void DrawHorizontalSlider(T_ICON_CANVAS *c)
{
    Box(c, 2, 10, 20, 4, FACE);
    Box(c, 9, 5, 6, 14, ACCENT);
}

static void DrawVerticalSlider(T_ICON_CANVAS *c)
{
    DrawUpright(c, DrawHorizontalSlider);
}

static void DrawLabelText(T_ICON_CANVAS *c)
{
    IconPattern(c, 1, 5, LETTER_A, 2, INK, INK);
    IconPattern(c, 13, 5, LETTER_a, 2, INK, INK);
}

static void DrawStringEntry(T_ICON_CANVAS *c)
{
    Field(c, 1, 6, 22, 12);
    IconPattern(c, 4, 8, LETTER_a, 1, INK, INK);
    IconPattern(c, 10, 8, LETTER_b, 1, INK, INK);
    IconLine(c, 17, 8, 17, 15, ACCENT);  // the text cursor
    for (i32 y = 8; y <= 15; y += 7)     // its ends
        IconLine(c, 16, y, 18, y, ACCENT);
}

// A root and its trunk, and two children, each on a branch of it.
static void DrawTree(T_ICON_CANVAS *c)
{
    Box(c, 2, 2, 7, 7, ACCENT);
    IconLine(c, 5, 9, 5, 19, INK);
    for (i32 y = 12; y <= 19; y += 7) {
        IconLine(c, 6, y, 11, y, INK);
        Box(c, 12, y - 3, 9, 6, PAPER);
    }
}

// A track with an arrow button at each end, each set off by a line, and the thumb.
static void DrawHorizontalScrollBar(T_ICON_CANVAS *c)
{
    Box(c, 1, 7, 22, 10, FACE);
    IconPattern(c, 2, 10, ARROW_LEFT, 1, INK, INK);
    IconLine(c, 6, 8, 6, 15, INK);
    IconPattern(c, 19, 10, ARROW_RIGHT, 1, INK, INK);
    IconLine(c, 17, 8, 17, 15, INK);
    IconFill(c, 8, 9, 6, 6, ACCENT);
}

static void DrawVerticalScrollBar(T_ICON_CANVAS *c)
{
    DrawUpright(c, DrawHorizontalScrollBar);
}

// A frame whose top edge gives way to its title.
static void DrawGroup(T_ICON_CANVAS *c)
{
    IconFrame(c, 3, 8, 20, 15, PAPER);
    IconFrame(c, 2, 7, 20, 15, INK);
    IconFill(c, 4, 7, 14, 2, CLEAR);
    IconPattern(c, 5, 4, LETTER_A, 1, ACCENT, ACCENT);
    IconPattern(c, 11, 4, LETTER_b, 1, ACCENT, ACCENT);
}

// A raised face: lit along its top and left inner edges, shaded along the others, outlined.
static void RaisedBox(T_ICON_CANVAS *c, i32 x, i32 y, i32 w, i32 h)
{
    i32 right = x + w - 2, bottom = y + h - 2;
    IconFill(c, x, y, w, h, FACE);
    IconLine(c, x + 1, y + 1, right, y + 1, PAPER);
    IconLine(c, x + 1, y + 1, x + 1, bottom, PAPER);
    IconLine(c, x + 2, bottom, right, bottom, SHADE);
    IconLine(c, right, y + 2, right, bottom, SHADE);
    IconFrame(c, x, y, w, h, INK);
}

static void DrawButton(T_ICON_CANVAS *c)
{
    RaisedBox(c, 1, 5, 22, 14);
    IconPattern(c, 6, 9, LETTER_O, 1, INK, INK);
    IconPattern(c, 13, 9, LETTER_K, 1, INK, INK);
}

static void DrawDropBox(T_ICON_CANVAS *c)
{
    Field(c, 1, 6, 22, 12);
    RightColumn(c, 15, 7, 7, 10);
    IconPattern(c, 16, 10, ARROW_DOWN, 1, INK, INK);
    TextBar(c, 4, 10, 8, SHADE);
}

//  place                            drawing
static const T_ICON_DRAWING tool_icons[] = {
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
    T_TEXTURE_BANK *bank =
        DrawIconBank("tools", TOOL_ICON_COUNT, TOOL_ICON_SIZE, tool_icons, sizeof tool_icons / sizeof *tool_icons);
    if (!bank)
        myprintf(0, "The toolbar's icons could not be made\n");
    return bank;
}
