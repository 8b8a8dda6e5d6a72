// Fonts: FreeType faces of a family by style, their glyph caches, the font base with the system and
// active fonts, and the fonts of font resources. Drawing and measuring text is in text.cpp.
#include <ft2build.h>
#include FT_FREETYPE_H

#include <cstdio>
#include <cstring>

#include "brushel_internal.h"

#define SYSTEM_FONT_NAME "DejaVuSans.ttf"
#define SYSTEM_FONT_DIR "/usr/share/fonts/truetype/dejavu"
#define FONT_DEFAULT_PIXEL_SIZE 13
#define FONT_STYLE_BOLD 1
#define FONT_STYLE_ITALICS 2
#define FONT_STYLES 4

// The suffixes of a family's style faces after the base name, tried in order.
static const char *const style_suffixes[FONT_STYLES][2] = {
    /* regular      */ {"", nullptr},
    /* bold         */ {"-Bold", nullptr},
    /* italics      */ {"-Oblique", "-Italic"},
    /* bold italics */ {"-BoldOblique", "-BoldItalic"},
};

static T_FONT_BASE font_base;
T_FONT_BASE *_FontBase;

#define FONT_STYLE_ROOM 88  // past the base name: a style's suffix and extension

static FT_Library ft_library;
static T_FONT *system_font;
static u32 live_fonts;                         // fonts loaded and not yet freed; the library goes when none is left
static char last_failed_name[FONT_PATH_SIZE];  // a font that can't be loaded is logged once, not per repaint

static int StartFreeType(void)
{
    if (ft_library)
        return 1;
    if (FT_Init_FreeType(&ft_library)) {
        myprintf(0, "FreeType can't be started: no text will be drawn\n");
        ft_library = nullptr;
        return 0;
    }
    return 1;
}

// Opens a face at a pixel size; null when the file is missing or no scalable font.
static FT_Face OpenFace(const char *path, u16 pixel_size)
{
    FT_Face face;
    if (FT_New_Face(ft_library, path, 0, &face))
        return nullptr;
    if (FT_Set_Pixel_Sizes(face, 0, pixel_size)) {
        FT_Done_Face(face);
        return nullptr;
    }
    return face;
}

// The first place where `name` opens as a face: the font folder, the system's fonts, the name as
// a path. Writes the path found into `path`.
static FT_Face FindFace(const char *name, u16 pixel_size, char *path, size_t path_size)
{
    const char *folders[] = {_FontBase && _FontBase->font_dir[0] ? _FontBase->font_dir : nullptr, SYSTEM_FONT_DIR, ""};
    for (const char *folder : folders) {
        if (!folder)
            continue;
        snprintf(path, path_size, "%s%s%s", folder, folder[0] ? "/" : "", name);
        FT_Face face = OpenFace(path, pixel_size);
        if (face)
            return face;
    }
    return nullptr;
}

// Fills in the bold and italic faces from files beside the regular one named by the family rule.
static void OpenStyleFaces(T_FONT *font)
{
    char base[FONT_PATH_SIZE], candidate[FONT_PATH_SIZE + FONT_STYLE_ROOM];
    const char *dot = strrchr(font->path, '.');
    const char *slash = strrchr(font->path, '/');
    if (!dot || (slash && dot < slash))
        dot = font->path + strlen(font->path);
    snprintf(base, sizeof base, "%.*s", (int)(dot - font->path), font->path);
    for (int style = 1; style < FONT_STYLES; style++)
        for (const char *suffix : style_suffixes[style]) {
            if (!suffix || font->faces[style])
                continue;
            snprintf(candidate, sizeof candidate, "%s%s%s", base, suffix, dot);
            font->faces[style] = OpenFace(candidate, font->pixel_size);
        }
}

// A style without its own face renders with the nearest one it has: bold italics with bold, then
// italics made bold; bold with the regular face made bold; italics with the regular face.
static void MakeCaches(T_FONT *font)
{
    for (int style = 0; style < FONT_STYLES; style++) {
        T_GLYPH_CACHE *cache = (T_GLYPH_CACHE *)font->caches[style];
        int from = style;
        if (!font->faces[from] && style == (FONT_STYLE_BOLD | FONT_STYLE_ITALICS))
            from = font->faces[FONT_STYLE_BOLD] ? FONT_STYLE_BOLD : FONT_STYLE_ITALICS;
        if (!font->faces[from])
            from = 0;
        cache->face = font->faces[from];
        cache->synthetic_bold = (style & FONT_STYLE_BOLD) && !(from & FONT_STYLE_BOLD);
    }
}

T_FONT *LoadFont(const char *name, u16 pixel_size)
{
    if (!name || !name[0] || pixel_size == 0 || !StartFreeType())
        return nullptr;
    T_FONT *font = (T_FONT *)AllocMemC(sizeof(T_FONT));
    if (!font)
        return nullptr;
    FT_Face face = FindFace(name, pixel_size, font->path, sizeof font->path);
    if (!face) {
        if (strcmp(last_failed_name, name) != 0)
            myprintf(0, "The font \"%s\" can't be read\n", name);
        snprintf(last_failed_name, sizeof last_failed_name, "%s", name);
        FreeMem(font, sizeof(T_FONT));
        return nullptr;
    }
    live_fonts++;
    char *slash = strrchr(font->path, '/');
    font->name = slash ? slash + 1 : font->path;
    font->pixel_size = pixel_size;
    font->faces[0] = face;
    font->height = (u16)((face->size->metrics.height + 32) >> 6);
    font->ascent = (u16)((face->size->metrics.ascender + 32) >> 6);
    OpenStyleFaces(font);
    for (int style = 0; style < FONT_STYLES; style++)
        font->caches[style] = AllocMemC(sizeof(T_GLYPH_CACHE));
    for (int style = 0; style < FONT_STYLES; style++)
        if (!font->caches[style]) {
            myprintf(0, "No memory for the glyphs of the font \"%s\"\n", name);
            FreeFont(font);
            return nullptr;
        }
    MakeCaches(font);
    return font;
}

void FreeFont(T_FONT *font)
{
    if (!font)
        return;
    for (int style = 0; style < FONT_STYLES; style++) {
        T_GLYPH_CACHE *cache = (T_GLYPH_CACHE *)font->caches[style];
        if (cache) {
            for (T_GLYPH &glyph : cache->glyphs)
                FreeMem(glyph.bitmap, (u32)glyph.width * glyph.height);
            FreeMem(cache, sizeof(T_GLYPH_CACHE));
        }
        if (font->faces[style])
            FT_Done_Face((FT_Face)font->faces[style]);
    }
    if (_FontBase && _FontBase->active_font == font)
        _FontBase->active_font = nullptr;
    if (font == system_font)
        system_font = nullptr;
    FreeMem(font, sizeof(T_FONT));
    if (--live_fonts == 0 && !_FontBase && ft_library) {
        FT_Done_FreeType(ft_library);
        ft_library = nullptr;
    }
}

// Renders one glyph into the cache. Coverage comes as 8-bit grey, or 1-bit for bitmap faces.
static void RenderGlyph(T_GLYPH_CACHE *cache, u8 code)
{
    T_GLYPH *glyph = &cache->glyphs[code];
    FT_Face face = (FT_Face)cache->face;
    glyph->loaded = 1;
    FT_UInt index = FT_Get_Char_Index(face, code);
    if (index == 0 || FT_Load_Glyph(face, index, FT_LOAD_RENDER | FT_LOAD_TARGET_NORMAL)) {
        glyph->missing = 1;
        return;
    }
    FT_GlyphSlot slot = face->glyph;
    const FT_Bitmap *source = &slot->bitmap;
    u32 widen = cache->synthetic_bold ? 1 : 0;
    glyph->advance = (i16)(((slot->advance.x + 32) >> 6) + widen);
    glyph->left = (i16)slot->bitmap_left;
    glyph->top = (i16)slot->bitmap_top;
    if (source->width == 0 || source->rows == 0)
        return;
    u32 width = source->width + widen, height = source->rows;
    glyph->bitmap = (u8 *)AllocMemC(width * height);
    if (!glyph->bitmap)
        return;
    glyph->width = (u16)width;
    glyph->height = (u16)height;
    for (u32 y = 0; y < height; y++) {
        const u8 *in = source->buffer + (i32)y * source->pitch;
        u8 *out = glyph->bitmap + y * width;
        for (u32 x = 0; x < source->width; x++)
            out[x] = source->pixel_mode == FT_PIXEL_MODE_MONO ? ((in[x >> 3] >> (7 - (x & 7))) & 1) * 255 : in[x];
        // Synthetic bold: the glyph over itself one pixel to the right.
        for (u32 x = width - 1; widen && x > 0; x--)
            if (out[x - 1] > out[x])
                out[x] = out[x - 1];
    }
}

const T_GLYPH *GetGlyph(T_FONT *font, u16 style, u8 code)
{
    T_GLYPH_CACHE *cache = (T_GLYPH_CACHE *)font->caches[style & 3];
    T_GLYPH *glyph = &cache->glyphs[code];
    if (!glyph->loaded)
        RenderGlyph(cache, code);
    return glyph;
}

void SetActiveFont(T_FONT *font)
{
    if (_FontBase)
        _FontBase->active_font = font ? font : system_font;
}

T_FONT *GetActiveFont(void)
{
    return _FontBase ? _FontBase->active_font : nullptr;
}

u16 GetFontHeight(T_FONT *font)
{
    return font ? font->height : 0;
}

u16 GetActiveFontHeight(void)
{
    return GetFontHeight(GetActiveFont());
}

u16 GetActiveFontAscent(void)
{
    T_FONT *font = GetActiveFont();
    return font ? font->ascent : 0;
}

void SetFontStyle(u16 style)
{
    if (_FontBase)
        _FontBase->style = style & 3;
}

u16 ActiveFontStyle(void)
{
    return _FontBase ? _FontBase->style : 0;
}

static void FreeFontObject(void *object)
{
    FreeFont((T_FONT *)object);
}

// The font is loaded at the first call and kept in the resource, which frees it with itself.
T_FONT *FontOfResource(T_RESOURCE *resource)
{
    if (!resource || resource->type != RESOURCE_TYPE_FONT)
        return nullptr;
    if (!resource->object) {
        resource->object = LoadFont(resource->name, FONT_DEFAULT_PIXEL_SIZE);
        resource->free_object = resource->object ? FreeFontObject : nullptr;
    }
    return (T_FONT *)resource->object;
}

int InitFonts(const char *font_dir)
{
    if (_FontBase)
        CloseFonts();
    font_base = T_FONT_BASE{};
    InitList(&font_base.fonts, "Fonts");
    snprintf(font_base.font_dir, sizeof font_base.font_dir, "%s", font_dir ? font_dir : "");
    _FontBase = &font_base;
    last_failed_name[0] = 0;
    system_font = LoadFont(SYSTEM_FONT_NAME, FONT_DEFAULT_PIXEL_SIZE);
    _FontBase->active_font = system_font;
    if (!system_font)
        myprintf(0, "No system font: text will not be drawn\n");
    return system_font != nullptr;
}

// Frees the system font and the fonts of all font resources, then the resources themselves (the
// last use of each is taken), so that nothing of the font base outlives it.
void CloseFonts(void)
{
    if (!_FontBase)
        return;
    t_List *fonts = &_FontBase->fonts;
    while (!LIST_EMPTY(fonts)) {
        T_RESOURCE *resource = (T_RESOURCE *)fonts->first;
        if (resource->object && resource->free_object)
            resource->free_object(resource->object);
        resource->object = nullptr;
        resource->free_object = nullptr;
        resource->use_count = 1;
        RemoveResource(resource);
        if ((T_RESOURCE *)fonts->first == resource) {
            myprintf(0, "The font resource \"%s\" could not be removed\n", resource->name);
            break;
        }
    }
    FreeFont(system_font);
    _FontBase = nullptr;
    if (live_fonts == 0 && ft_library) {
        FT_Done_FreeType(ft_library);
        ft_library = nullptr;
    }
}
