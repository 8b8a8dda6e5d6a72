// What the parts of Brushel share: the surface and its clip, pixel blending, and the glyph cache.
#pragma once
#include "toolkit.h"

// The clip in surface coordinates: left, top inclusive; right, bottom exclusive.
typedef struct T_CLIP {
    i32 left, top, right, bottom;
} T_CLIP;

extern T_SURFACE *draw_surface;

// The clip for one drawing call: the clip rectangle cut to the surface as it is now (its size may
// have changed since the clip was set). False when there is nothing to draw on.
int DrawClip(T_CLIP *clip);

// Mixes `src` over `dst` by `alpha` (0 keeps dst, 255 gives src); both are 0x00BBGGRR words.
static inline u32 BlendPixel(u32 dst, u32 src, u32 alpha)
{
    u32 a = alpha + (alpha >> 7);  // 0..256, so that 255 gives src exactly
    u32 na = 256 - a;
    u32 rb = (((src & 0xFF00FF) * a + (dst & 0xFF00FF) * na + 0x800080) >> 8) & 0xFF00FF;
    u32 g = (((src & 0x00FF00) * a + (dst & 0x00FF00) * na + 0x008000) >> 8) & 0x00FF00;
    return rb | g;
}

// One rendered character of a face: its coverage bitmap and where it sits on the pen.
typedef struct T_GLYPH {
    u8 *bitmap;     // coverage, width * height bytes; null for a glyph with nothing to draw
    i16 left, top;  // from the pen on the baseline to the bitmap's top left (top is upwards)
    u16 width, height;
    i16 advance;  // pen movement in pixels
    u8 loaded;    // rendered (or found missing)
    u8 missing;   // the face has no such character: '?' stands in for it
} T_GLYPH;

// The glyphs of one style of a font, codes 0 to 255, rendered on first use.
typedef struct T_GLYPH_CACHE {
    void *face;         // the FreeType face this style renders with (the regular one if missing)
    u8 synthetic_bold;  // the style asks for bold the face hasn't: glyphs widened by a pixel
    T_GLYPH glyphs[256];
} T_GLYPH_CACHE;

// The glyph of `code` in `font` and `style` (0..3), rendered into the cache on first use.
const T_GLYPH *GetGlyph(T_FONT *font, u16 style, u8 code);
// The style of the active font in use, 0..3.
u16 ActiveFontStyle(void);
