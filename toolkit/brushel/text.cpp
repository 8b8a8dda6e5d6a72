// Text: UTF-8 strings drawn and measured in the active font and style, and the text console.
// Characters past Latin-1, and those the font lacks, show as '?'.
#include <algorithm>
#include <cstring>

#include "brushel_internal.h"

#define UNKNOWN_CHARACTER '?'
#define CONSOLE_DEFAULT_COLOUR 0x000000

static i16 console_x, console_y;
static u32 console_colour = CONSOLE_DEFAULT_COLOUR;

// The next character of a UTF-8 text as a code 0..255. A byte that begins no well-formed sequence
// is taken as a Latin-1 character, so that older texts still read.
static u8 NextCharacter(const u8 **position, const u8 *end)
{
    const u8 *p = *position;
    u8 lead = *p++;
    u32 length = (lead & 0xE0) == 0xC0 ? 2 : (lead & 0xF0) == 0xE0 ? 3 : (lead & 0xF8) == 0xF0 ? 4 : 1;
    if (length == 1 || (u32)(end - p) < length - 1) {
        *position = p;
        return lead;
    }
    u32 code = lead & (0x7F >> length);
    for (u32 n = 1; n < length; n++) {
        if ((p[n - 1] & 0xC0) != 0x80) {
            *position = p;
            return lead;
        }
        code = code << 6 | (p[n - 1] & 0x3F);
    }
    *position = p + length - 1;
    return code >= 0x80 && code <= 0xFF ? (u8)code : UNKNOWN_CHARACTER;
}

// The glyph that shows `code`: its own, or the stand-in's; null when neither exists.
static const T_GLYPH *ShownGlyph(T_FONT *font, u16 style, u8 code)
{
    const T_GLYPH *glyph = GetGlyph(font, style, code);
    if (glyph->missing)
        glyph = GetGlyph(font, style, UNKNOWN_CHARACTER);
    return glyph->missing ? nullptr : glyph;
}

// Blends a glyph's coverage in `colour` with the pen at pen_x on the baseline, inside the clip.
static void DrawGlyph(const T_GLYPH *glyph, i32 pen_x, i32 baseline, u32 colour, const T_CLIP *clip)
{
    i32 gx = pen_x + glyph->left, gy = baseline - glyph->top;
    i32 left = std::max(gx, clip->left), right = std::min<i32>(gx + glyph->width, clip->right);
    i32 top = std::max(gy, clip->top), bottom = std::min<i32>(gy + glyph->height, clip->bottom);
    for (i32 y = top; y < bottom; y++) {
        const u8 *coverage = glyph->bitmap + (y - gy) * glyph->width + (left - gx);
        u32 *dst = draw_surface->pixels + y * draw_surface->pitch + left;
        for (i32 n = right - left; n > 0; n--, coverage++, dst++) {
            u32 alpha = *coverage;
            if (alpha == 255)
                *dst = colour;
            else if (alpha)
                *dst = BlendPixel(*dst, colour, alpha);
        }
    }
}

i32 DrawTextN(i16 x, i16 y, const char *text, u32 count, u32 colour)
{
    T_FONT *font = GetActiveFont();
    if (!font || !text)
        return 0;
    u16 style = ActiveFontStyle();
    T_CLIP clip;
    int visible = DrawClip(&clip) && y < clip.bottom && y + font->height > clip.top;
    i32 pen = x, baseline = y + font->ascent;
    colour &= 0x00FFFFFF;
    const u8 *p = (const u8 *)text, *end = p + count;
    while (p < end && *p) {
        const T_GLYPH *glyph = ShownGlyph(font, style, NextCharacter(&p, end));
        if (!glyph)
            continue;
        if (visible && glyph->bitmap)
            DrawGlyph(glyph, pen, baseline, colour, &clip);
        pen += glyph->advance;
    }
    return pen - x;
}

i32 DrawText(i16 x, i16 y, const char *text, u32 colour)
{
    return text ? DrawTextN(x, y, text, (u32)strlen(text), colour) : 0;
}

i32 GetStringWidthN(const char *text, u32 count)
{
    T_FONT *font = GetActiveFont();
    if (!font || !text)
        return 0;
    u16 style = ActiveFontStyle();
    i32 width = 0;
    const u8 *p = (const u8 *)text, *end = p + count;
    while (p < end && *p) {
        const T_GLYPH *glyph = ShownGlyph(font, style, NextCharacter(&p, end));
        if (glyph)
            width += glyph->advance;
    }
    return width;
}

i32 GetStringWidth(const char *text)
{
    return text ? GetStringWidthN(text, (u32)strlen(text)) : 0;
}

void SetConsoleXY(i16 x, i16 y)
{
    console_x = x;
    console_y = y;
}

void SetConsoleColour(u32 colour)
{
    console_colour = colour;
}

void Print(const char *text)
{
    console_x = (i16)(console_x + DrawText(console_x, console_y, text, console_colour));
}

// The console starts over at the top left in its default colour.
void PrepareTextBuffer(void)
{
    console_x = 0;
    console_y = 0;
    console_colour = CONSOLE_DEFAULT_COLOUR;
}

// Text is drawn at once by Print, so nothing waits in a buffer to be flushed.
void FlushTextBuffer(void) {}
