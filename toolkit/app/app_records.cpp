// The shared records that generated pages point their gadgets at.
#include "app/quillform_app.h"

static T_RGBA app_rgba = {192, 192, 192, 0};
static T_HSIA app_hsia;

T_COLOUR_DATA cb = {&app_rgba, &app_hsia, 5};
u32 tg[8] = {0, 0, 0, 0, 0, 16, 0, 0};
u32 sg[8];
char PutStringName[STRINGS_MAX_SIZE + 1];
