// The display back end in use. OpenToolkit chooses one of display_sdl and display_headless.
#include "display.h"

const T_DISPLAY_BACKEND *display;
