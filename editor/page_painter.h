// The overlay drawn over a live page at each repaint (rubber band, frames of marked gadgets, the
// size handles of a single selected gadget) and the handle resize that the repaint applies.
#pragma once
#include "page/records.h"

#define HANDLE_COUNT 8
#define HANDLE_MIN_SIZE 16  // the smallest gadget a handle resize leaves

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

// The box of the size handle tried in place `order` (0 to 7) of the hit test, absolute. Returns
// the handle's number and gives its mouse image in `image` when that isn't null.
u16 HandleBox(const t_gadget *gadget, u32 order, T_RPOS *box, u16 *image);
