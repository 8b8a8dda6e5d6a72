// Drawing on the current surface: the clip rectangle, pixels, lines, boxes and blended fills.
// Images and icons are in image.cpp, text in text.cpp.
#include <algorithm>
#include <cstdlib>

#include "brushel_internal.h"

T_SURFACE *draw_surface;
static T_CLIP clip_rect;
// What ClipAll opens the clip to: the whole surface, or the part of it a repaint is limited to.
static T_CLIP clip_bound;
static int clip_bounded;

#define COLOUR_MASK 0x00FFFFFFu

// The dotted frame: dots of DOT_ON pixels, gaps of DOT_PERIOD - DOT_ON.
#define DOT_PERIOD 4
#define DOT_ON 2

void SetDrawSurface(T_SURFACE *surface)
{
    draw_surface = surface;
    ClipAll();
}

T_SURFACE *GetDrawSurface(void)
{
    return draw_surface;
}

void ClipAll(void)
{
    clip_rect = {0, 0, 0, 0};
    if (draw_surface) {
        clip_rect.right = draw_surface->width;
        clip_rect.bottom = draw_surface->height;
    }
    if (clip_bounded) {
        clip_rect.left = std::max(clip_rect.left, clip_bound.left);
        clip_rect.top = std::max(clip_rect.top, clip_bound.top);
        clip_rect.right = std::max(clip_rect.left, std::min(clip_rect.right, clip_bound.right));
        clip_rect.bottom = std::max(clip_rect.top, std::min(clip_rect.bottom, clip_bound.bottom));
    }
}

void SetClipBound(const T_RPOS *bound)
{
    clip_bounded = bound != NULL;
    if (bound)
        clip_bound = {bound->x, bound->y, bound->x + bound->w, bound->y + bound->h};
    ClipAll();
}

void ClipInsideWindow(i16 left, i16 top, i16 right, i16 bottom)
{
    ClipAll();
    clip_rect.left = std::max<i32>(clip_rect.left, left);
    clip_rect.top = std::max<i32>(clip_rect.top, top);
    clip_rect.right = std::min<i32>(clip_rect.right, right);
    clip_rect.bottom = std::min<i32>(clip_rect.bottom, bottom);
    if (clip_rect.right < clip_rect.left)
        clip_rect.right = clip_rect.left;
    if (clip_rect.bottom < clip_rect.top)
        clip_rect.bottom = clip_rect.top;
}

void GetClip(T_RPOS *rect)
{
    rect->x = (i16)clip_rect.left;
    rect->y = (i16)clip_rect.top;
    rect->w = (i16)(clip_rect.right - clip_rect.left);
    rect->h = (i16)(clip_rect.bottom - clip_rect.top);
}

int DrawClip(T_CLIP *clip)
{
    if (!draw_surface || !draw_surface->pixels)
        return 0;
    clip->left = std::max<i32>(clip_rect.left, 0);
    clip->top = std::max<i32>(clip_rect.top, 0);
    clip->right = std::min<i32>(clip_rect.right, draw_surface->width);
    clip->bottom = std::min<i32>(clip_rect.bottom, draw_surface->height);
    return clip->left < clip->right && clip->top < clip->bottom;
}

static inline void PlotClipped(const T_CLIP *clip, i32 x, i32 y, u32 colour)
{
    if (x >= clip->left && x < clip->right && y >= clip->top && y < clip->bottom)
        draw_surface->pixels[y * draw_surface->pitch + x] = colour;
}

// A solid rectangle in 32-bit coordinates, so that callers' sums can't wrap.
static void FillRect(i32 x, i32 y, i32 w, i32 h, u32 colour)
{
    T_CLIP clip;
    if (w <= 0 || h <= 0 || !DrawClip(&clip))
        return;
    i32 left = std::max(x, clip.left), right = std::min(x + w, clip.right);
    i32 top = std::max(y, clip.top), bottom = std::min(y + h, clip.bottom);
    if (left >= right || top >= bottom)
        return;
    u32 *row = draw_surface->pixels + top * draw_surface->pitch + left;
    for (i32 n = bottom - top; n > 0; n--, row += draw_surface->pitch)
        std::fill_n(row, right - left, colour & COLOUR_MASK);
}

void DrawPixel(i16 x, i16 y, u32 colour)
{
    T_CLIP clip;
    if (DrawClip(&clip))
        PlotClipped(&clip, x, y, colour & COLOUR_MASK);
}

// Bresenham's line, both end points included; straight lines go through FillRect.
void DrawLine(i16 x1, i16 y1, i16 x2, i16 y2, u32 colour)
{
    T_CLIP clip;
    if (!DrawClip(&clip))
        return;
    colour &= COLOUR_MASK;
    if (y1 == y2)
        return FillRect(std::min(x1, x2), y1, std::abs(x2 - x1) + 1, 1, colour);
    if (x1 == x2)
        return FillRect(x1, std::min(y1, y2), 1, std::abs(y2 - y1) + 1, colour);
    i32 x = x1, y = y1;
    i32 dx = std::abs(x2 - x1), sx = x1 < x2 ? 1 : -1;
    i32 dy = -std::abs(y2 - y1), sy = y1 < y2 ? 1 : -1;
    i32 err = dx + dy;
    for (;;) {
        PlotClipped(&clip, x, y, colour);
        if (x == x2 && y == y2)
            break;
        i32 e2 = 2 * err;
        if (e2 >= dy) {
            err += dy;
            x += sx;
        }
        if (e2 <= dx) {
            err += dx;
            y += sy;
        }
    }
}

void DrawRectangle(i16 x, i16 y, i16 w, i16 h, u32 colour)
{
    FillRect(x, y, w, h, colour);
}

// A one-pixel frame on the inside of x, y, w, h.
static void FrameRect(i32 x, i32 y, i32 w, i32 h, u32 colour)
{
    if (w <= 0 || h <= 0)
        return;
    FillRect(x, y, w, 1, colour);
    if (h > 1)
        FillRect(x, y + h - 1, w, 1, colour);
    FillRect(x, y + 1, 1, h - 2, colour);
    if (w > 1)
        FillRect(x + w - 1, y + 1, 1, h - 2, colour);
}

void DrawOutLineBox(i16 x, i16 y, i16 w, i16 h, u32 colour)
{
    FrameRect(x, y, w, h, colour);
}

// The frame is walked clockwise from the top left corner; the pixel at step k of the walk is a
// dot when (k - phase) mod 4 is 0 or 1, so a higher phase moves the dots along the walk.
void DrawDottedBox(i16 x, i16 y, i16 w, i16 h, u32 colour, u16 phase)
{
    T_CLIP clip;
    if (!DrawClip(&clip))
        return;
    i32 left = x, top = y, width = w, height = h;
    if (width < 0) {
        left += width;
        width = -width;
    }
    if (height < 0) {
        top += height;
        height = -height;
    }
    if (width == 0 || height == 0)
        return;
    colour &= COLOUR_MASK;
    i32 right = left + width - 1, bottom = top + height - 1;
    if (right < clip.left || left >= clip.right || bottom < clip.top || top >= clip.bottom)
        return;
    u32 k = DOT_PERIOD - (phase % DOT_PERIOD);  // step 0 has (0 - phase) mod 4
    // A side runs from (x, y) by (dx, dy) for `count` steps; the steps' dots are every DOT_PERIOD.
    // A side wholly inside the clip is plotted without a test per pixel.
    auto side = [&](i32 x, i32 y, i32 dx, i32 dy, i32 count) {
        if (count <= 0)
            return;
        i32 x_end = x + dx * (count - 1), y_end = y + dy * (count - 1);
        int inside = std::min(x, x_end) >= clip.left && std::max(x, x_end) < clip.right &&
                     std::min(y, y_end) >= clip.top && std::max(y, y_end) < clip.bottom;
        u32 *pixels = draw_surface->pixels;
        i32 pitch = draw_surface->pitch;
        for (i32 i = 0; i < count; i++, x += dx, y += dy)
            if ((k++ % DOT_PERIOD) < DOT_ON) {
                if (inside)
                    pixels[y * pitch + x] = colour;
                else
                    PlotClipped(&clip, x, y, colour);
            }
    };
    side(left, top, 1, 0, width);
    side(right, top + 1, 0, 1, height - 1);
    if (height > 1)
        side(right - 1, bottom, -1, 0, width - 1);
    if (width > 1)
        side(left, bottom - 1, 0, -1, height - 2);
}

void DrawBevelBox(i16 x, i16 y, i16 w, i16 h, u32 light, u32 dark)
{
    if (w <= 0 || h <= 0)
        return;
    FillRect(x, y, w - 1, 1, light);
    FillRect(x, y + 1, 1, h - 2, light);
    FillRect(x, y + h - 1, w, 1, dark);
    FillRect(x + w - 1, y, 1, h - 1, dark);
}

void BlendRectangle(i16 x, i16 y, i16 w, i16 h, u32 colour, u8 alpha)
{
    T_CLIP clip;
    if (w <= 0 || h <= 0 || !DrawClip(&clip))
        return;
    i32 left = std::max<i32>(x, clip.left), right = std::min<i32>(x + w, clip.right);
    i32 top = std::max<i32>(y, clip.top), bottom = std::min<i32>(y + h, clip.bottom);
    if (left >= right || top >= bottom)
        return;
    colour &= COLOUR_MASK;
    u32 *row = draw_surface->pixels + top * draw_surface->pitch;
    for (i32 py = top; py < bottom; py++, row += draw_surface->pitch)
        for (i32 px = left; px < right; px++)
            row[px] = BlendPixel(row[px], colour, alpha);
}
