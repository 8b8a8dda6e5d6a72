// PNG files through libpng: any PNG read as 0xAABBGGRR pixels, and a surface written as RGB.
#include <png.h>

#include <cstring>

#include "brushel_internal.h"

#define PNG_MAX_PIXELS (64u * 1024 * 1024)  // larger images are refused rather than allocated

// On failure returns null, leaves *width and *height 0 and logs why.
u32 *ReadPNG(const char *path, i32 *width, i32 *height)
{
    *width = *height = 0;
    png_image image;
    memset(&image, 0, sizeof image);
    image.version = PNG_IMAGE_VERSION;
    if (!path || !png_image_begin_read_from_file(&image, path)) {
        myprintf(0, "%s: can't read the PNG file: %s\n", path ? path : "(none)", image.message);
        return nullptr;
    }
    if ((u64)image.width * image.height > PNG_MAX_PIXELS) {
        myprintf(0, "%s: the image is too large (%u by %u)\n", path, image.width, image.height);
        png_image_free(&image);
        return nullptr;
    }
    image.format = PNG_FORMAT_RGBA;  // bytes R, G, B, A: the word 0xAABBGGRR
    u32 size = image.width * image.height * 4;
    u32 *pixels = (u32 *)AllocMemC(size);
    if (!pixels || !png_image_finish_read(&image, nullptr, pixels, 0, nullptr)) {
        myprintf(0, "%s: can't read the PNG file: %s\n", path, pixels ? image.message : "no memory");
        FreeMem(pixels, size);
        png_image_free(&image);
        return nullptr;
    }
    *width = (i32)image.width;
    *height = (i32)image.height;
    return pixels;
}

// On failure returns false and logs why; a file begun may be left incomplete.
int WritePNG(const char *path, T_SURFACE *surface)
{
    if (!path || !surface || !surface->pixels || surface->width <= 0 || surface->height <= 0) {
        myprintf(0, "%s: no image to write\n", path ? path : "(none)");
        return 0;
    }
    u32 size = (u32)surface->width * surface->height * 3;
    u8 *rgb = (u8 *)AllocMemC(size);
    if (!rgb) {
        myprintf(0, "%s: no memory to write the image\n", path);
        return 0;
    }
    u8 *out = rgb;
    for (i32 y = 0; y < surface->height; y++) {
        const u32 *row = surface->pixels + y * surface->pitch;
        for (i32 x = 0; x < surface->width; x++) {
            *out++ = (u8)row[x];
            *out++ = (u8)(row[x] >> 8);
            *out++ = (u8)(row[x] >> 16);
        }
    }
    png_image image;
    memset(&image, 0, sizeof image);
    image.version = PNG_IMAGE_VERSION;
    image.width = (png_uint_32)surface->width;
    image.height = (png_uint_32)surface->height;
    image.format = PNG_FORMAT_RGB;
    int ok = png_image_write_to_file(&image, path, 0, rgb, 0, nullptr);
    if (!ok)
        myprintf(0, "%s: can't write the PNG file: %s\n", path, image.message);
    FreeMem(rgb, size);
    png_image_free(&image);
    return ok;
}
