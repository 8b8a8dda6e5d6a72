// The display back end in use, and the framebuffer both back ends keep. OpenToolkit chooses one
// of display_sdl and display_headless.
#include "display.h"
#include "ostrand.h"

const T_DISPLAY_BACKEND *display;

int ResizeFramebuffer(T_FRAMEBUFFER *frame, i32 width, i32 height)
{
    FreeMem(frame->pixels, (u32)frame->width * frame->height * 4);
    frame->pixels = nullptr;
    frame->width = frame->height = 0;
    if (width <= 0 || height <= 0)
        return 0;
    frame->pixels = (u32 *)AllocMemC((u32)width * height * 4);
    if (!frame->pixels)
        return 0;
    frame->width = width;
    frame->height = height;
    return 1;
}

u32 *FramebufferPixels(const T_FRAMEBUFFER *frame, i32 *width, i32 *height, i32 *pitch)
{
    *width = frame->width;
    *height = frame->height;
    *pitch = frame->width;
    return frame->pixels;
}
