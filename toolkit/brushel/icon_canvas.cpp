// Drawing into one icon of a bank: the small shape helpers that the toolkit's and an
// application's procedural icons are made with. Pixels are 0xAABBGGRR; 0 is clear.
#include <math.h>
#include <stdlib.h>

#include "brushel.h"

T_ICON_CANVAS IconCanvas(T_TEXTURE_BANK *bank, u16 icon)
{
    T_ICON_CANVAS canvas = {bank->pixels + (u32)icon * bank->icon_width * bank->icon_height, bank->icon_width};
    return canvas;
}

void IconPlot(T_ICON_CANVAS *c, i32 x, i32 y, u32 colour)
{
    if (x >= 0 && y >= 0 && x < c->size && y < c->size)
        c->pixels[y * c->size + x] = colour;
}

void IconFill(T_ICON_CANVAS *c, i32 x, i32 y, i32 w, i32 h, u32 colour)
{
    for (i32 row = y; row < y + h; row++)
        for (i32 col = x; col < x + w; col++)
            IconPlot(c, col, row, colour);
}

void IconFrame(T_ICON_CANVAS *c, i32 x, i32 y, i32 w, i32 h, u32 colour)
{
    IconFill(c, x, y, w, 1, colour);
    IconFill(c, x, y + h - 1, w, 1, colour);
    IconFill(c, x, y, 1, h, colour);
    IconFill(c, x + w - 1, y, 1, h, colour);
}

void IconBox(T_ICON_CANVAS *c, i32 x, i32 y, i32 w, i32 h, u32 fill, u32 outline)
{
    IconFill(c, x, y, w, h, fill);
    IconFrame(c, x, y, w, h, outline);
}

void IconLine(T_ICON_CANVAS *c, i32 x1, i32 y1, i32 x2, i32 y2, u32 colour)
{
    i32 dx = abs(x2 - x1), dy = -abs(y2 - y1);
    i32 sx = x1 < x2 ? 1 : -1, sy = y1 < y2 ? 1 : -1, err = dx + dy;
    for (;;) {
        IconPlot(c, x1, y1, colour);
        if (x1 == x2 && y1 == y2)
            return;
        i32 e2 = 2 * err;
        if (e2 >= dy)
            err += dy, x1 += sx;
        if (e2 <= dx)
            err += dx, y1 += sy;
    }
}

void IconTick(T_ICON_CANVAS *c, i32 x1, i32 y1, i32 x2, i32 y2, i32 x3, i32 y3, u32 colour)
{
    for (i32 d = 0; d < 3; d++) {
        IconLine(c, x1, y1 + d, x2, y2 + d, colour);
        IconLine(c, x2, y2 + d, x3, y3 + d, colour);
    }
}

void IconDisc(T_ICON_CANVAS *c, float cx, float cy, float r, u32 colour)
{
    for (i32 y = 0; y < c->size; y++)
        for (i32 x = 0; x < c->size; x++)
            if (hypotf(x + 0.5f - cx, y + 0.5f - cy) <= r)
                IconPlot(c, x, y, colour);
}

void IconPattern(T_ICON_CANVAS *c, i32 x, i32 y, const char *const *rows, i32 scale, u32 ink, u32 fill)
{
    for (i32 row = 0; rows[row]; row++)
        for (i32 col = 0; rows[row][col]; col++) {
            char p = rows[row][col];
            if (p == '#' || p == 'o')
                IconFill(c, x + col * scale, y + row * scale, scale, scale, p == '#' ? ink : fill);
        }
}

T_TEXTURE_BANK *DrawIconBank(const char *name, u16 count, u16 size, const T_ICON_DRAWING *drawings, u32 drawing_count)
{
    T_TEXTURE_BANK *bank = NewTextureBank(name, count, size, size);
    if (!bank)
        return NULL;
    for (u32 i = 0; i < drawing_count; i++) {
        if (!QF_EXPECT(drawings[i].icon < count))
            continue;
        T_ICON_CANVAS canvas = IconCanvas(bank, drawings[i].icon);
        drawings[i].draw(&canvas);
    }
    return bank;
}
