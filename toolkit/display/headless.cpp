// The headless display: a framebuffer in memory, a queue of synthetic input and a virtual clock.
// Nothing here depends on the machine or the time of day, so a test's run is the same every time.
#include <deque>
#include <string>

#include "display.h"
#include "ostrand.h"

static struct {
    T_FRAMEBUFFER frame;
    std::deque<T_INPUT_EVENT> queue;
    u32 time_ms;
    u16 qualifiers;  // of the last key or mouse event pushed
    u16 cursor;
    int mouse_limited;
    T_RPOS mouse_rect;
    i16 warp_x, warp_y;
    std::string clipboard;  // kept over a close and open, as a desktop's clipboard outlives a program
} headless;

static int HeadlessOpen(i16 width, i16 height, const char *)
{
    headless.queue.clear();
    headless.time_ms = 0;
    headless.qualifiers = 0;
    headless.cursor = 0;
    headless.mouse_limited = 0;
    headless.warp_x = headless.warp_y = 0;
    if (!ResizeFramebuffer(&headless.frame, width, height)) {
        myprintf(0, "The headless display can't open a screen of %d by %d\n", width, height);
        return 0;
    }
    return 1;
}

static void HeadlessClose(void)
{
    ResizeFramebuffer(&headless.frame, 0, 0);
    headless.queue.clear();
}

static u32 *HeadlessPixels(i32 *width, i32 *height, i32 *pitch)
{
    return FramebufferPixels(&headless.frame, width, height, pitch);
}

// A resize takes effect when it is taken from the queue, as a window's would.
static int HeadlessPoll(T_INPUT_EVENT *event)
{
    if (headless.queue.empty())
        return 0;
    *event = headless.queue.front();
    headless.queue.pop_front();
    if (event->kind == INPUT_RESIZE && !ResizeFramebuffer(&headless.frame, event->x, event->y))
        myprintf(0, "The headless display can't resize to %d by %d\n", event->x, event->y);
    return 1;
}

static void HeadlessPresent(void) {}

static u32 HeadlessTicks(void)
{
    return headless.time_ms;
}

static void HeadlessWait(u32 ms)
{
    headless.time_ms += ms;
}

static void HeadlessSetCursor(u16 image)
{
    headless.cursor = image;
}

static void HeadlessSetMouseRect(const T_RPOS *rect)
{
    headless.mouse_limited = rect != nullptr;
    if (rect)
        headless.mouse_rect = *rect;
}

static void HeadlessWarpMouse(i16 x, i16 y)
{
    headless.warp_x = x;
    headless.warp_y = y;
}

static u16 HeadlessQualifiers(void)
{
    return headless.qualifiers;
}

static int HeadlessSetClipboard(const char *text)
{
    headless.clipboard = text ? text : "";
    return 1;
}

static const char *HeadlessGetClipboard(void)
{
    return headless.clipboard.c_str();
}

// clang-format off
const T_DISPLAY_BACKEND display_headless = {
    "headless",        HeadlessOpen,      HeadlessClose,        HeadlessPixels,
    HeadlessPoll,      HeadlessPresent,   HeadlessTicks,        HeadlessWait,
    HeadlessSetCursor, HeadlessSetMouseRect, HeadlessWarpMouse, HeadlessQualifiers,
    HeadlessWait,  // waiting for input is virtual time too
    HeadlessSetClipboard, HeadlessGetClipboard,
};
// clang-format on

void HeadlessPush(const T_INPUT_EVENT *event)
{
    switch (event->kind) {
    case INPUT_MOUSE_MOVE:
    case INPUT_MOUSE_DOWN:
    case INPUT_MOUSE_UP:
    case INPUT_WHEEL:
    case INPUT_KEY_DOWN:  // these carry the qualifiers held
        headless.qualifiers = event->qualifiers;
        break;
    }
    headless.queue.push_back(*event);
}

u32 HeadlessPending(void)
{
    return (u32)headless.queue.size();
}

void HeadlessAdvance(u32 ms)
{
    headless.time_ms += ms;
}

u16 HeadlessCursor(void)
{
    return headless.cursor;
}

int HeadlessMouseRect(T_RPOS *rect)
{
    if (headless.mouse_limited && rect)
        *rect = headless.mouse_rect;
    return headless.mouse_limited;
}

void HeadlessWarpXY(i16 *x, i16 *y)
{
    *x = headless.warp_x;
    *y = headless.warp_y;
}
