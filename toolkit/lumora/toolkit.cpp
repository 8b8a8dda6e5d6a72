// Starting and closing the toolkit: the base record, the display's look, the class handlers.
#include <stdio.h>
#include <string.h>

#include "lumora/lumora_internal.h"

static T_LUMORA_BASE lumora_base;
T_LUMORA_BASE *_LumoraBase = &lumora_base;
T_LUMORA_STATE lumora_state;

// The display's look: a calm palette of light neutrals, a blue-grey title, a clear blue for handles.
// Colour words are 0x00BBGGRR.
static const T_DISPLAY_RECORD default_look = {
    .window_colour = 0xF0F0F0,
    .default_area_colour = 0xE8E8E8,
    .dialog_colour = 0xE4E4E4,
    .rubber_box_colour = 0x303030,
    .handle_colour = 0xE66E00,
    .number_back_colour = 0x78E6FF,
    .number_text_colour = 0x000000,
    .system_font = NULL,
    .icon_bank = NULL,
    .border_size = 4,
    .title_height = 0,  // the system font's height + TITLE_MARGIN, at start
    .frame_colour = 0xCDC8C8,
    .frame_light_colour = 0xFFFFFF,
    .frame_dark_colour = 0x786E6E,
    .title_colour = 0x785A46,
    .title_inactive_colour = 0xAFA096,
    .title_text_colour = 0xFFFFFF,
    .gadget_colour = 0xE4E1E1,
    .gadget_text_colour = 0x000000,
    .gadget_light_colour = 0xFFFFFF,
    .gadget_dark_colour = 0x807878,
    .field_colour = 0xFFFFFF,
    .select_colour = 0xC86E32,
    .select_text_colour = 0xFFFFFF,
    .disabled_text_colour = 0x969696,
    .desktop_colour = 0xC0C0C0,
    .hover_back_colour = 0xE1FFFF,
};

#define TITLE_MARGIN 8           // title bar: the system font's height plus this
#define FALLBACK_FONT_HEIGHT 16  // when no font could be read

// The back ends by name.
static const struct {
    const char *name;
    const T_DISPLAY_BACKEND *backend;
    // clang-format off
} backends[] = {
    {"sdl",      &display_sdl},
    {"headless", &display_headless},
};
// clang-format on

// Points the draw surface at the display's framebuffer (again after a resize).
static void AttachScreen(void)
{
    T_SURFACE *s = &lumora_state.screen;
    s->pixels = display->pixels(&s->width, &s->height, &s->pitch);
    SetDrawSurface(s);
    ClipAll();
}

int OpenToolkit(const char *backend, i16 width, i16 height, const char *data_root)
{
    if (_LumoraBase->running) {
        myprintf(0, "OpenToolkit: the toolkit is already open\n");
        return 0;
    }
    if (data_root && !SetDataRoot(data_root))
        myprintf(0, "OpenToolkit: the data root %s can't be used\n", data_root);
    const T_DISPLAY_BACKEND *chosen = NULL;
    for (const auto &row : backends)
        if (backend && strcmp(backend, row.name) == 0)
            chosen = row.backend;
    if (!chosen) {
        myprintf(0, "OpenToolkit: no display back end named %s\n", backend ? backend : "(none)");
        return 0;
    }
    if (!chosen->open(width, height, "Quillform")) {
        myprintf(0, "OpenToolkit: the %s display can't be opened\n", chosen->name);
        return 0;
    }
    display = chosen;

    T_LUMORA_STATE *st = &lumora_state;
    memset(st, 0, sizeof(*st));
    InitList(&st->class_handlers, "class handlers");
    InitList(&st->removed, "removed windows");
    InitList(&st->posted, "posted messages");
    InitList(&st->bitmaps, "bitmaps");
    AttachScreen();

    char font_dir[FILE_PATH_SIZE];
    snprintf(font_dir, sizeof(font_dir), "%s", MakePathFromSystem("System\\Fonts"));
    if (!InitFonts(font_dir))
        myprintf(0, "OpenToolkit: no system font could be read\n");

    st->record = default_look;
    T_DISPLAY_RECORD *rec = &st->record;
    SetActiveFont(NULL);
    rec->system_font = GetActiveFont();
    rec->title_height = (rec->system_font ? GetFontHeight(rec->system_font) : FALLBACK_FONT_HEIGHT) + TITLE_MARGIN;
    st->own_icon_bank = MakeStandardIconBank();
    rec->icon_bank = st->own_icon_bank;

    T_WINDOW_CLASS *wc =
        (T_WINDOW_CLASS *)NewHandler(&st->class_handlers, NULL, NULL, "windows", 0, sizeof(T_WINDOW_CLASS), NULL);
    wc->head.kind = HANDLER_KIND_WINDOW_CLASS;
    InitList(&wc->windows, "windows");
    t_Handler *menus = NewHandler(&st->class_handlers, NULL, NULL, "detached menus", 0, sizeof(t_Handler), NULL);
    menus->kind = HANDLER_KIND_DETACHED_MENU_CLASS;

    memset(_LumoraBase, 0, sizeof(*_LumoraBase));
    T_DISPLAY *d = &_LumoraBase->displays[0];
    d->record = rec;
    d->window_class = wc;
    d->detached_menu_class = menus;
    d->width = (i16)st->screen.width;
    d->height = (i16)st->screen.height;
    _LumoraBase->time_ms = display->ticks();
    _LumoraBase->running = 1;
    st->mouse_x = d->width / 2;
    st->mouse_y = d->height / 2;
    return 1;
}

void CloseToolkit(void)
{
    if (!display || !CURRENT_DISPLAY->record)
        return;
    T_LUMORA_STATE *st = &lumora_state;
    FreeAllWindows();
    CloseMarshalry();
    while (!LIST_EMPTY(&st->posted)) {
        t_Node *n = st->posted.first;
        SubNode(n);
        FreeMem(n, sizeof(T_POSTED_MESSAGE));
    }
    while (!LIST_EMPTY(&st->bitmaps)) {
        T_RESOURCE *b = (T_RESOURCE *)st->bitmaps.first;
        b->use_count = 1;
        ReleaseBitmap(b);
    }
    while (!LIST_EMPTY(&st->class_handlers))
        DelHandler((t_Handler *)st->class_handlers.first);
    if (st->own_icon_bank)
        FreeTextureBank(st->own_icon_bank);
    st->own_icon_bank = NULL;
    CloseFonts();
    if (GetDrawSurface() == &st->screen)
        SetDrawSurface(NULL);
    display->close();
    memset(_LumoraBase, 0, sizeof(*_LumoraBase));
}

void SetInputSource(void (*source)(void))
{
    lumora_state.input_source = source;
}

// Called by routing when the screen changes size: the framebuffer follows.
void ScreenResized(void)
{
    AttachScreen();
    CURRENT_DISPLAY->width = (i16)lumora_state.screen.width;
    CURRENT_DISPLAY->height = (i16)lumora_state.screen.height;
}
