// The SDL display: a real, resizable window that shows the framebuffer through a streaming texture,
// and SDL's mouse, keys, typed text, dropped files and window events turned into toolkit input.
#include <SDL.h>

#include <cstdio>
#include <cstring>
#include <string>

#include "../include/constants.h"
#include "display.h"
#include "ostrand.h"

// SDL's key symbols that are toolkit keys of their own.
static const struct {
    SDL_Keycode sym;
    u16 key;
    // clang-format off
} special_keys[] = {
    {SDLK_ESCAPE,    KEY_ESCAPE},  {SDLK_RETURN,   KEY_RETURN},       {SDLK_KP_ENTER,  KEY_RETURN},
    {SDLK_BACKSPACE, KEY_BACKSPACE}, {SDLK_TAB,    KEY_TAB},        {SDLK_UP,          KEY_UP},
    {SDLK_DOWN,      KEY_DOWN},      {SDLK_LEFT,   KEY_LEFT},           {SDLK_RIGHT,   KEY_RIGHT},
    {SDLK_HOME,      KEY_HOME},      {SDLK_END,    KEY_END},             {SDLK_PAGEUP, KEY_PAGE_UP},
    {SDLK_PAGEDOWN,  KEY_PAGE_DOWN}, {SDLK_INSERT, KEY_INSERT},   {SDLK_DELETE,        KEY_DELETE},
    {SDLK_F1,        KEY_F1},          {SDLK_F2,   KEY_F1 + 1},           {SDLK_F3,    KEY_F1 + 2},
    {SDLK_F4,        KEY_F1 + 3},      {SDLK_F5,   KEY_F1 + 4},           {SDLK_F6,    KEY_F1 + 5},
    {SDLK_F7,        KEY_F1 + 6},      {SDLK_F8,   KEY_F1 + 7},           {SDLK_F9,    KEY_F1 + 8},
    {SDLK_F10,       KEY_F1 + 9},     {SDLK_F11,   KEY_F1 + 10},         {SDLK_F12,    KEY_F1 + 11},
};
// clang-format on

// The toolkit's mouse images as SDL's system cursors; others show the arrow.
static const struct {
    u16 image;
    SDL_SystemCursor cursor;
    // clang-format off
} cursor_images[] = {
    {MOUSE_IMAGE_ARROW,     SDL_SYSTEM_CURSOR_ARROW},      {MOUSE_IMAGE_SIZE_WE, SDL_SYSTEM_CURSOR_SIZEWE},
    {MOUSE_IMAGE_SIZE_NESW, SDL_SYSTEM_CURSOR_SIZENESW}, {MOUSE_IMAGE_SIZE_NS,   SDL_SYSTEM_CURSOR_SIZENS},
    {MOUSE_IMAGE_SIZE_NWSE, SDL_SYSTEM_CURSOR_SIZENWSE}, {MOUSE_IMAGE_TEXT,      SDL_SYSTEM_CURSOR_IBEAM},
    {MOUSE_IMAGE_HAND,      SDL_SYSTEM_CURSOR_HAND},        {MOUSE_IMAGE_MOVE,   SDL_SYSTEM_CURSOR_SIZEALL},
};
// clang-format on

static struct {
    SDL_Window *window;
    SDL_Renderer *renderer;
    SDL_Texture *texture;
    T_FRAMEBUFFER frame;
    SDL_Cursor *cursors[SDL_NUM_SYSTEM_CURSORS];
    int video_started;
    SDL_Keymod mod;  // the modifiers as of the last key event taken from the queue
} sdl;

static u16 Qualifiers(SDL_Keymod mod)
{
    return (mod & KMOD_SHIFT ? QUAL_SHIFT : 0) | (mod & KMOD_ALT ? QUAL_ALT : 0) | (mod & KMOD_CTRL ? QUAL_CONTROL : 0);
}

// The framebuffer and the texture at a new size, cleared. False when either can't be made.
static int MakeFramebuffer(i32 width, i32 height)
{
    if (sdl.texture)
        SDL_DestroyTexture(sdl.texture);
    // 0x00BBGGRR little-endian is R, G, B, X in memory: SDL's XBGR8888, alpha unused.
    sdl.texture = SDL_CreateTexture(sdl.renderer, SDL_PIXELFORMAT_XBGR8888, SDL_TEXTUREACCESS_STREAMING, width, height);
    if (!sdl.texture)
        return ResizeFramebuffer(&sdl.frame, 0, 0);
    SDL_SetTextureBlendMode(sdl.texture, SDL_BLENDMODE_NONE);
    return ResizeFramebuffer(&sdl.frame, width, height);
}

static void SdlClose(void)
{
    for (SDL_Cursor *&cursor : sdl.cursors) {
        if (cursor)
            SDL_FreeCursor(cursor);
        cursor = nullptr;
    }
    if (sdl.texture)
        SDL_DestroyTexture(sdl.texture);
    if (sdl.renderer)
        SDL_DestroyRenderer(sdl.renderer);
    if (sdl.window)
        SDL_DestroyWindow(sdl.window);
    ResizeFramebuffer(&sdl.frame, 0, 0);
    if (sdl.video_started)
        SDL_QuitSubSystem(SDL_INIT_VIDEO);
    sdl.video_started = 0;
    sdl.texture = nullptr;
    sdl.renderer = nullptr;
    sdl.window = nullptr;
}

// Only video is started (audio is slow and noisy), the renderer has no vsync (it would pin a turn
// to a frame), and text input is on from the start.
static int SdlOpen(i16 width, i16 height, const char *title)
{
    if (sdl.video_started)
        SdlClose();
    SDL_SetHint(SDL_HINT_RENDER_VSYNC, "0");
    SDL_SetHint(SDL_HINT_MOUSE_FOCUS_CLICKTHROUGH, "1");
    if (SDL_InitSubSystem(SDL_INIT_VIDEO) != 0) {
        myprintf(0, "SDL video can't be started: %s\n", SDL_GetError());
        return 0;
    }
    sdl.video_started = 1;
    sdl.window = SDL_CreateWindow(title ? title : "", SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED, width, height,
                                  SDL_WINDOW_RESIZABLE);
    if (sdl.window)
        sdl.renderer = SDL_CreateRenderer(sdl.window, -1, 0);
    if (sdl.window && !sdl.renderer)
        sdl.renderer = SDL_CreateRenderer(sdl.window, -1, SDL_RENDERER_SOFTWARE);
    if (!sdl.renderer || !MakeFramebuffer(width, height)) {
        myprintf(0, "The SDL window of %d by %d can't be opened: %s\n", width, height, SDL_GetError());
        SdlClose();
        return 0;
    }
    SDL_StartTextInput();
    sdl.mod = SDL_GetModState();
    return 1;
}

static u32 *SdlPixels(i32 *width, i32 *height, i32 *pitch)
{
    return FramebufferPixels(&sdl.frame, width, height, pitch);
}

// The toolkit key of a key press, or 0 for a press that gives none: a plain character is left to
// its text event, but Control with a letter gives its control key and Alt with a character the
// character, so that menus open on Alt and a letter.
static u16 KeyOfPress(const SDL_Keysym *keysym, u16 qualifiers)
{
    for (const auto &special : special_keys)
        if (special.sym == keysym->sym)
            return special.key;
    SDL_Keycode sym = keysym->sym;
    if (sym < ' ' || sym > '~')
        return 0;
    if ((qualifiers & QUAL_CONTROL) && sym >= 'a' && sym <= 'z')
        return (u16)KEY_CTRL(sym - 'a' + 'A');
    if (qualifiers & (QUAL_CONTROL | QUAL_ALT))
        return (u16)sym;
    return 0;
}

// Turns one SDL event into `event`; false for an event the toolkit has no use for.
// What becomes of the display window's own events: focus, exposure, a new size.
static int TranslateWindowEvent(const SDL_WindowEvent *in, T_INPUT_EVENT *event)
{
    if (in->event == SDL_WINDOWEVENT_FOCUS_GAINED)
        sdl.mod = SDL_GetModState();
    switch (in->event) {
    case SDL_WINDOWEVENT_FOCUS_LOST:
        event->kind = INPUT_FOCUS_LOST;
        return 1;
    case SDL_WINDOWEVENT_EXPOSED:  // the toolkit repaints after any input; this is one
    case SDL_WINDOWEVENT_SHOWN:
    case SDL_WINDOWEVENT_RESTORED:
    case SDL_WINDOWEVENT_FOCUS_GAINED:
        event->kind = INPUT_EXPOSED;
        return 1;
    case SDL_WINDOWEVENT_SIZE_CHANGED:
        if (in->data1 == sdl.frame.width && in->data2 == sdl.frame.height)
            return 0;
        if (!MakeFramebuffer(in->data1, in->data2)) {
            myprintf(0, "The SDL window can't be resized to %d by %d: %s\n", in->data1, in->data2, SDL_GetError());
            return 0;
        }
        event->kind = INPUT_RESIZE;
        event->x = (i16)sdl.frame.width;
        event->y = (i16)sdl.frame.height;
        return 1;
    default:
        return 0;
    }
}

static int TranslateEvent(const SDL_Event *in, T_INPUT_EVENT *event)
{
    memset(event, 0, sizeof *event);
    switch (in->type) {
    case SDL_MOUSEMOTION:
        event->kind = INPUT_MOUSE_MOVE;
        event->x = (i16)in->motion.x;
        event->y = (i16)in->motion.y;
        break;
    case SDL_MOUSEBUTTONDOWN:  // button: 1 left, 2 middle, 3 right, as SDL numbers them
    case SDL_MOUSEBUTTONUP:
        event->kind = in->type == SDL_MOUSEBUTTONDOWN ? INPUT_MOUSE_DOWN : INPUT_MOUSE_UP;
        event->x = (i16)in->button.x;
        event->y = (i16)in->button.y;
        event->button = in->button.button;
        break;
    case SDL_MOUSEWHEEL: {  // up +1, down -1, at the pointer; sideways scrolling is dropped
        i32 steps = in->wheel.direction == SDL_MOUSEWHEEL_FLIPPED ? -in->wheel.y : in->wheel.y;
        if (steps == 0)
            return 0;
        int x, y;
        SDL_GetMouseState(&x, &y);
        event->kind = INPUT_WHEEL;
        event->x = (i16)x;
        event->y = (i16)y;
        event->wheel = steps > 0 ? 1 : -1;
        break;
    }
    case SDL_KEYUP:
        sdl.mod = (SDL_Keymod)in->key.keysym.mod;
        return 0;
    case SDL_KEYDOWN:
        sdl.mod = (SDL_Keymod)in->key.keysym.mod;
        event->qualifiers = Qualifiers(sdl.mod);
        event->key = KeyOfPress(&in->key.keysym, event->qualifiers);
        if (!event->key)
            return 0;
        event->kind = INPUT_KEY_DOWN;
        return 1;
    case SDL_TEXTINPUT:  // Alt or Control with a key still types with SDL: that text is dropped
        if (Qualifiers(sdl.mod) & (QUAL_ALT | QUAL_CONTROL))
            return 0;
        event->kind = INPUT_TEXT;
        snprintf(event->text, sizeof event->text, "%s", in->text.text);
        return 1;
    case SDL_DROPFILE:  // no position: the toolkit takes the pointer's last one
        event->kind = INPUT_DROP_FILE;
        snprintf(event->text, sizeof event->text, "%s", in->drop.file);
        SDL_free(in->drop.file);
        return 1;
    case SDL_WINDOWEVENT:
        return TranslateWindowEvent(&in->window, event);
    case SDL_QUIT:
        event->kind = INPUT_QUIT;
        return 1;
    default:
        return 0;
    }
    event->qualifiers = Qualifiers(sdl.mod);
    return 1;
}

static int SdlPoll(T_INPUT_EVENT *event)
{
    SDL_Event in;
    while (sdl.window && SDL_PollEvent(&in))
        if (TranslateEvent(&in, event))
            return 1;
    return 0;
}

static void SdlPresent(void)
{
    if (!sdl.texture)
        return;
    SDL_UpdateTexture(sdl.texture, nullptr, sdl.frame.pixels, sdl.frame.width * 4);
    SDL_RenderCopy(sdl.renderer, sdl.texture, nullptr, nullptr);
    SDL_RenderPresent(sdl.renderer);
}

static u32 SdlTicks(void)
{
    return SDL_GetTicks();
}

static void SdlWait(u32 ms)
{
    SDL_Delay(ms);
}

static void SdlWaitForInput(u32 ms)
{
    SDL_WaitEventTimeout(nullptr, (int)ms);  // the event stays queued for the next poll
}

static void SdlSetCursor(u16 image)
{
    SDL_SystemCursor which = SDL_SYSTEM_CURSOR_ARROW;
    for (const auto &entry : cursor_images)
        if (entry.image == image)
            which = entry.cursor;
    if (!sdl.cursors[which])
        sdl.cursors[which] = SDL_CreateSystemCursor(which);
    if (sdl.cursors[which])
        SDL_SetCursor(sdl.cursors[which]);
}

static void SdlSetMouseRect(const T_RPOS *rect)
{
    if (!sdl.window)
        return;
    SDL_Rect area;
    if (rect)
        area = {rect->x, rect->y, rect->w, rect->h};
    SDL_SetWindowMouseRect(sdl.window, rect ? &area : nullptr);
}

static void SdlWarpMouse(i16 x, i16 y)
{
    if (sdl.window)
        SDL_WarpMouseInWindow(sdl.window, x, y);
}

// Read from the key events in the order taken, not from the keyboard now: the toolkit asks while it
// handles events that may be older than what the keyboard holds.
static u16 SdlQualifiers(void)
{
    return Qualifiers(sdl.mod);
}

// SDL gives the clipboard's text in a block of its own: a copy is kept and the block goes back.
static int SdlSetClipboard(const char *text)
{
    return SDL_SetClipboardText(text ? text : "") == 0;
}

static const char *SdlGetClipboard(void)
{
    static std::string kept;
    char *text = SDL_HasClipboardText() ? SDL_GetClipboardText() : nullptr;
    kept = text ? text : "";
    SDL_free(text);
    return kept.c_str();
}

// clang-format off
const T_DISPLAY_BACKEND display_sdl = {
    "sdl",        SdlOpen,         SdlClose,     SdlPixels, SdlPoll,      SdlPresent,
    SdlTicks,     SdlWait,         SdlSetCursor, SdlSetMouseRect, SdlWarpMouse, SdlQualifiers,
    SdlWaitForInput, SdlSetClipboard, SdlGetClipboard,
};
// clang-format on

// A program built on a page titles its window with the page's name and gives it the page's size;
// the size arrives as a resize event, so the framebuffer follows as for a resize by the user.
void SdlSetTitle(const char *title)
{
    if (sdl.window)
        SDL_SetWindowTitle(sdl.window, title ? title : "");
}

void SdlSetSize(i16 width, i16 height)
{
    if (!sdl.window)
        return;
    SDL_SetWindowSize(sdl.window, width, height);
    SDL_SetWindowPosition(sdl.window, SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED);
}
