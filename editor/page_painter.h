// The overlay drawn over a live page at each repaint (rubber band, frames of marked gadgets, the
// size handles of a single selected gadget) and the handle resize that the repaint applies.
#pragma once
#include "page/records.h"

#define HANDLE_COUNT 8
#define HANDLE_MIN_SIZE 16  // the smallest gadget a handle resize leaves
#define DASH_STEPS 32       // a rubber band's dash phase counts 0 to 31
#define DASH_DIVISOR 8      // the drawn phase is the dash phase / 8

// The window whose gadgets are being painted: the draw functions given to ApplyFuncToListData get
// one value only, so DrawTabNumber reads the window from here.
extern t_Window *paint_window;

// The paint function of the page handler "WinEdit".
void PagePaint(t_Handler *handler);
// A dotted frame one pixel outside a gadget that has a selection or drag mark; `phase` is the
// dots' phase, 0 to 3, carried in the pointer. For ApplyFuncToListData.
void DrawGadgetFrame(void *gadget, void *phase);
// The outline and the eight size handles of a gadget; sets the mouse image over a handle when the
// window has the input focus.
void DrawHandles(t_Window *window, t_gadget *gadget, u32 colour);
// One step of a handle resize: the side or corner of `handle` goes to the mouse, and the page is
// modified. Handle 0 does nothing.
void ApplyHandleResize(t_Window *window, t_gadget *gadget, u16 handle);

// Clips drawing to the window's user area.
void ClipToUserArea(t_Window *window);
// A rubber band from (x1, y1) to the mouse, both relative to the user area: the far corner
// (*x2, *y2) follows the mouse, and the band is drawn dotted in the drawn phase `phase`.
void DrawBandToMouse(t_Window *window, i16 x1, i16 y1, i16 *x2, i16 *y2, u16 phase);

// The box of the size handle tried in place `order` (0 to 7) of the hit test, absolute. Returns
// the handle's number and gives its mouse image in `image` when that isn't null.
u16 HandleBox(const t_gadget *gadget, u32 order, T_RPOS *box, u16 *image);
