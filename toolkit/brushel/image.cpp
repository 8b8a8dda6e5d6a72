// Images and icons: blending 0xAABBGGRR pixels onto the surface, and the icon banks that hold them.
#include <algorithm>

#include "brushel_internal.h"
#include "ostrand/ostrand_internal.h"

// One image pixel over a surface pixel, by the image's alpha.
static inline u32 OverPixel(u32 dst, u32 src)
{
    u32 alpha = src >> 24;
    if (alpha == 255)
        return src & 0x00FFFFFF;
    if (alpha == 0)
        return dst;
    return BlendPixel(dst, src & 0x00FFFFFF, alpha);
}

void DrawImage(const u32 *pixels, i32 width, i32 height, i16 x, i16 y)
{
    T_CLIP clip;
    if (!pixels || width <= 0 || height <= 0 || !DrawClip(&clip))
        return;
    i32 left = std::max<i32>(x, clip.left), right = std::min<i32>(x + width, clip.right);
    i32 top = std::max<i32>(y, clip.top), bottom = std::min<i32>(y + height, clip.bottom);
    if (left >= right || top >= bottom)
        return;
    for (i32 py = top; py < bottom; py++) {
        const u32 *src = pixels + (py - y) * width + (left - x);
        u32 *dst = draw_surface->pixels + py * draw_surface->pitch + left;
        for (i32 n = right - left; n > 0; n--, src++, dst++)
            *dst = OverPixel(*dst, *src);
    }
}

// The pixels of one icon of a bank, or null when the bank hasn't that icon.
static const u32 *IconPixels(T_TEXTURE_BANK *bank, u16 icon)
{
    if (!bank || !bank->pixels || icon >= bank->count)
        return nullptr;
    return bank->pixels + (u32)icon * bank->icon_width * bank->icon_height;
}

void DrawIcon(T_TEXTURE_BANK *bank, u16 icon, i16 x, i16 y)
{
    const u32 *pixels = IconPixels(bank, icon);
    if (pixels)
        DrawImage(pixels, bank->icon_width, bank->icon_height, x, y);
}

// Scaled to w by h, each target pixel taking the nearest icon pixel.
void DrawIconScaled(T_TEXTURE_BANK *bank, u16 icon, i16 x, i16 y, i16 w, i16 h)
{
    const u32 *pixels = IconPixels(bank, icon);
    T_CLIP clip;
    if (!pixels || w <= 0 || h <= 0 || !DrawClip(&clip))
        return;
    i32 left = std::max<i32>(x, clip.left), right = std::min<i32>(x + w, clip.right);
    i32 top = std::max<i32>(y, clip.top), bottom = std::min<i32>(y + h, clip.bottom);
    for (i32 py = top; py < bottom; py++) {
        const u32 *src = pixels + ((py - y) * bank->icon_height / h) * bank->icon_width;
        u32 *dst = draw_surface->pixels + py * draw_surface->pitch;
        for (i32 px = left; px < right; px++)
            dst[px] = OverPixel(dst[px], src[(px - x) * bank->icon_width / w]);
    }
}

// On failure (no memory) returns null and logs. The name lives in the bank's own block.
T_TEXTURE_BANK *NewTextureBank(const char *name, u16 count, u16 icon_width, u16 icon_height)
{
    T_TEXTURE_BANK *bank = (T_TEXTURE_BANK *)NewNamedNode(sizeof(T_TEXTURE_BANK), name);
    u32 size = (u32)count * icon_width * icon_height * 4;
    if (bank) {  // whole before its pixels, so that FreeTextureBank frees them by their size
        bank->count = count;
        bank->icon_width = icon_width;
        bank->icon_height = icon_height;
        bank->pixels = size ? (u32 *)AllocMemC(size) : nullptr;
    }
    if (!bank || (size && !bank->pixels)) {
        myprintf(0, "No memory for the icon bank \"%s\" of %u icons\n", name ? name : "", count);
        FreeTextureBank(bank);
        return nullptr;
    }
    return bank;
}

void FreeTextureBank(T_TEXTURE_BANK *bank)
{
    if (!bank)
        return;
    FreeMem(bank->pixels, (u32)bank->count * bank->icon_width * bank->icon_height * 4);
    FreeMem(bank, NodeBlockSize(sizeof(T_TEXTURE_BANK)));
}
