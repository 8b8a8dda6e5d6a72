// The presentation back end: one interface, two implementations (sdl: a real window; headless:
// the framebuffer alone with a queue of synthetic input and virtual time).
#pragma once
#include "../include/types.h"

typedef enum {
    INPUT_NONE = 0,
    INPUT_MOUSE_MOVE,
    INPUT_MOUSE_DOWN,  // button: 1 left, 3 right
    INPUT_MOUSE_UP,
    INPUT_WHEEL,       // wheel: +1 up, -1 down
    INPUT_KEY_DOWN,    // key: the toolkit's key code (characters too), qualifiers: QUAL_ bits
    INPUT_TEXT,        // text: UTF-8 of typed characters
    INPUT_DROP_FILE,   // text: the path; goes to the window under the pointer's last position
    INPUT_RESIZE,      // x, y: the new screen size
    INPUT_QUIT,        // the display's own window was closed
    INPUT_FOCUS_LOST,  // the display lost the input focus
    INPUT_EXPOSED,     // the display's window shows again (uncovered, restored): only a repaint
} T_INPUT_KIND;

typedef struct T_INPUT_EVENT {
    u16 kind;
    i16 x, y;
    u16 button;
    i16 wheel;
    u16 key;
    u16 qualifiers;
    char text[1024];
} T_INPUT_EVENT;

typedef struct T_DISPLAY_BACKEND {
    const char *name;
    // Opens a screen of width by height; false (with a line on standard error) when it can't.
    int (*open)(i16 width, i16 height, const char *title);
    void (*close)(void);
    u32 *(*pixels)(i32 *width, i32 *height, i32 *pitch);  // the framebuffer, 0x00BBGGRR
    int (*poll)(T_INPUT_EVENT *event);                    // takes one pending event; false when there is none
    void (*present)(void);                                // shows the framebuffer
    u32 (*ticks)(void);                                   // milliseconds
    void (*wait)(u32 ms);                                 // sleeps (sdl) or advances virtual time (headless)
    void (*set_cursor)(u16 image);
    void (*set_mouse_rect)(const T_RPOS *rect);  // null: free
    void (*warp_mouse)(i16 x, i16 y);
    u16 (*qualifiers)(void);  // the qualifier keys held now
    // Sleeps until input is pending or `ms` have passed (sdl); advances virtual time (headless).
    void (*wait_for_input)(u32 ms);
    // The desktop clipboard (sdl), or one in memory (headless): its text is set, false when it
    // can't be; read, "" when it holds none, valid until the next call of either.
    int (*set_clipboard)(const char *text);
    const char *(*get_clipboard)(void);
} T_DISPLAY_BACKEND;

extern const T_DISPLAY_BACKEND display_sdl;
extern const T_DISPLAY_BACKEND display_headless;

// The back end in use, chosen by OpenToolkit.
extern const T_DISPLAY_BACKEND *display;

// A framebuffer of 0x00BBGGRR pixels, pitch equal to width, as each back end keeps one.
typedef struct T_FRAMEBUFFER {
    u32 *pixels;
    i32 width, height;
} T_FRAMEBUFFER;

// Frees the pixels held and makes width by height cleared ones; false (and no pixels) for a size
// of 0 or when there is no memory.
int ResizeFramebuffer(T_FRAMEBUFFER *frame, i32 width, i32 height);
// The framebuffer as a back end's `pixels` gives it.
u32 *FramebufferPixels(const T_FRAMEBUFFER *frame, i32 *width, i32 *height, i32 *pitch);

// Headless only: queue synthetic input, and read what the toolkit asked of the pointer.
void HeadlessPush(const T_INPUT_EVENT *event);
u32 HeadlessPending(void);
void HeadlessAdvance(u32 ms);
u16 HeadlessCursor(void);
int HeadlessMouseRect(T_RPOS *rect);  // false when the pointer is free
void HeadlessWarpXY(i16 *x, i16 *y);  // where the toolkit last put the pointer (0, 0 at first)

// SDL only, for a program built on a page: the window's title and size.
void SdlSetTitle(const char *title);
void SdlSetSize(i16 width, i16 height);
