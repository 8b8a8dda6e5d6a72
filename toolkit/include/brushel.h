// Brushel: drawing into the display's framebuffer with clipping, FreeType text, fonts, colours.
#pragma once
#include "ostrand.h"

#define FONT_PATH_SIZE 512  // a font file's path, and the fonts' folder

// A font: a FreeType face at one pixel size with a glyph cache. The style (bold, italics) picks
// one of the faces of its family when the machine has them.
typedef struct T_FONT {
    T_NODE_FIELDS(struct T_FONT);  // name: the file name
    char path[FONT_PATH_SIZE];     // the file it was loaded from
    u16 pixel_size;
    u16 height;  // line height in pixels
    u16 ascent;
    void *faces[4];  // by style: regular, bold, italics, bold italics (null where missing)
    void *caches[4];
} T_FONT;

// Icons: a bank of square icons of one size, 32-bit pixels 0xAABBGGRR.
typedef struct T_TEXTURE_BANK {
    T_NODE_FIELDS(struct T_TEXTURE_BANK);  // name: the bank's name
    u16 count;
    u16 icon_width, icon_height;
    u32 *pixels;  // count icons one after the other
} T_TEXTURE_BANK;

typedef struct T_FONT_BASE {
    T_FONT *active_font;
    u16 style;                      // 1 bold, 2 italics
    t_List fonts;                   // resources of type 460, by file name
    char font_dir[FONT_PATH_SIZE];  // where fonts named by file name are found first
} T_FONT_BASE;

extern T_FONT_BASE *_FontBase;

// The surface drawn on: the display's framebuffer, or an off-screen one in tests.
typedef struct T_SURFACE {
    u32 *pixels;               // 0x00BBGGRR per pixel
    i32 width, height, pitch;  // pitch in pixels
} T_SURFACE;

void SetDrawSurface(T_SURFACE *surface);
T_SURFACE *GetDrawSurface(void);

// Clipping: drawing stays inside left..right-1, top..bottom-1, and inside the surface.
void ClipInsideWindow(i16 left, i16 top, i16 right, i16 bottom);
void ClipAll(void);
// Keeps every clip inside `bound` (screen pixels) until it is called with null: a repaint of a part
// of the screen draws nothing beyond it, whatever its painters clip to.
void SetClipBound(const T_RPOS *bound);
void GetClip(T_RPOS *rect);

void DrawPixel(i16 x, i16 y, u32 colour);
void DrawLine(i16 x1, i16 y1, i16 x2, i16 y2, u32 colour);
void DrawRectangle(i16 x, i16 y, i16 w, i16 h, u32 colour);  // solid
void DrawOutLineBox(i16 x, i16 y, i16 w, i16 h, u32 colour);
// A frame of dots, two on and two off, that runs with `phase` 0 to 3. Width and height may be
// negative: the box then extends left or up from x, y.
void DrawDottedBox(i16 x, i16 y, i16 w, i16 h, u32 colour, u16 phase);
// A raised (or, with sunken, pressed) bevel inside x, y, w, h.
void DrawBevelBox(i16 x, i16 y, i16 w, i16 h, u32 light, u32 dark);
void BlendRectangle(i16 x, i16 y, i16 w, i16 h, u32 colour, u8 alpha);
void DrawIcon(struct T_TEXTURE_BANK *bank, u16 icon, i16 x, i16 y);
void DrawIconScaled(struct T_TEXTURE_BANK *bank, u16 icon, i16 x, i16 y, i16 w, i16 h);
void DrawImage(const u32 *pixels, i32 width, i32 height, i16 x, i16 y);  // 0xAABBGGRR, blended

// Text. The console functions draw with the active font at the console position; Print moves the
// position to the end of the text.
void SetConsoleXY(i16 x, i16 y);
void SetConsoleColour(u32 colour);
void Print(const char *text);
void PrepareTextBuffer(void);
void FlushTextBuffer(void);
// Draws `text` with its top left at x, y in the active font and style; returns the width drawn.
i32 DrawText(i16 x, i16 y, const char *text, u32 colour);
i32 DrawTextN(i16 x, i16 y, const char *text, u32 count, u32 colour);

// Loads a font by file name (or path) at a pixel size; null when no face can be read (logged).
T_FONT *LoadFont(const char *name, u16 pixel_size);
void FreeFont(T_FONT *font);
void SetActiveFont(T_FONT *font);  // null: the system font
T_FONT *GetActiveFont(void);
u16 GetFontHeight(T_FONT *font);
u16 GetActiveFontHeight(void);
u16 GetActiveFontAscent(void);  // top of the line to the baseline
i32 GetStringWidth(const char *text);
i32 GetStringWidthN(const char *text, u32 count);
void SetFontStyle(u16 style);
// The font of a font resource (type 460), loading it if needed; null when it can't be loaded.
T_FONT *FontOfResource(T_RESOURCE *resource);
// Starts the font base: the system font from the machine's fonts; false when none can be read.
int InitFonts(const char *font_dir);
void CloseFonts(void);

// Colours.
void RGBToHSI(T_RGBA *rgba, T_HSIA *hsia);
void HSIToRGB(T_HSIA *hsia, T_RGBA *rgba);
u32 GetConstantTRGBA(T_RGBA *rgba);  // the colour word
u32 MixColour(u32 a, u32 b, u8 amount_of_b);

// Icon banks.
T_TEXTURE_BANK *NewTextureBank(const char *name, u16 count, u16 icon_width, u16 icon_height);
void FreeTextureBank(T_TEXTURE_BANK *bank);

// Drawing into one square icon of a bank, for icons made by code.
typedef struct T_ICON_CANVAS {
    u32 *pixels;
    i32 size;
} T_ICON_CANVAS;

#define ICON_RGB(r, g, b) (0xFF000000u | ((u32)(b) << 16) | ((u32)(g) << 8) | (u32)(r))  // opaque

// A place of a bank and the function that draws its icon.
typedef struct T_ICON_DRAWING {
    u16 icon;
    void (*draw)(T_ICON_CANVAS *canvas);
} T_ICON_DRAWING;
// A bank of `count` icons of size by size, each row of `drawings` drawn into its place; null when
// the bank can't be made (Brushel logs why).
T_TEXTURE_BANK *DrawIconBank(const char *name, u16 count, u16 size, const T_ICON_DRAWING *drawings, u32 drawing_count);

T_ICON_CANVAS IconCanvas(T_TEXTURE_BANK *bank, u16 icon);
void IconPlot(T_ICON_CANVAS *canvas, i32 x, i32 y, u32 colour);
void IconFill(T_ICON_CANVAS *canvas, i32 x, i32 y, i32 w, i32 h, u32 colour);
void IconFrame(T_ICON_CANVAS *canvas, i32 x, i32 y, i32 w, i32 h, u32 colour);
void IconBox(T_ICON_CANVAS *canvas, i32 x, i32 y, i32 w, i32 h, u32 fill, u32 outline);  // filled, framed
void IconLine(T_ICON_CANVAS *canvas, i32 x1, i32 y1, i32 x2, i32 y2, u32 colour);
// A tick three pixels thick, its top edge from x1, y1 down to x2, y2 and up to x3, y3.
void IconTick(T_ICON_CANVAS *canvas, i32 x1, i32 y1, i32 x2, i32 y2, i32 x3, i32 y3, u32 colour);
// The pixels whose centres lie within r of (cx, cy); a pixel's centre is at +0.5.
void IconDisc(T_ICON_CANVAS *canvas, float cx, float cy, float r, u32 colour);
// Rows of a pattern, each character `scale` pixels square: '#' the ink, 'o' the fill, others clear
// of change.
void IconPattern(T_ICON_CANVAS *canvas, i32 x, i32 y, const char *const *rows, i32 scale, u32 ink, u32 fill);

// PNG files: read into 0xAABBGGRR pixels (freed with FreeMem(pixels, w*h*4)), and write a surface.
u32 *ReadPNG(const char *path, i32 *width, i32 *height);
int WritePNG(const char *path, T_SURFACE *surface);
