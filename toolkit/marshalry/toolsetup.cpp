// The tool set-up: an application's windows and their places, kept from one run to the next.
// The windows (main window, toolbar) are recorded under the name of the settings resource.
//
// The places store "<data root>/places/<setup name>.txt" holds one line "index x y w h" for each
// window, the index counting the set-up's windows in the order they were handed over.
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "marshalry/marshalry_internal.h"
#include "ostrand/ostrand_internal.h"

#define PLACES_FOLDER "places"
#define PLACES_EXTENSION ".txt"

static int OfSetup(T_TOOL_OBJECT *object, T_TOOL_SETUP *setup)
{
    return setup && setup->name && object->name && strcmp(object->name, setup->name) == 0;
}

// A new run begins with the application's top-level window (b == 0, no parent): the objects of
// earlier runs go then, and so do objects whose window no longer stands, so that the indexes
// count this run's windows only. (Stale window pointers are only compared, never followed; a
// freed window's address may come back for a new one, hence the drop at the new run.) That
// top-level window becomes the command window of the applications that have none standing.
void AddToolSetupObject(T_TOOL_SETUP *setup, t_Window *window, u32 a, u32 b)
{
    if (!setup || !window)
        return;
    int new_run = b == 0 && !window->parent;
    t_List *objects = &_MarshalryBase->tool_objects;
    for (T_TOOL_OBJECT *o = (T_TOOL_OBJECT *)objects->first; o->next;) {
        T_TOOL_OBJECT *next = o->next;
        if (OfSetup(o, setup) && (new_run || o->window == window || !WindowStands(o->window))) {
            SubNode((t_Node *)o);
            FreeMem(o, NodeBlockSize(sizeof(T_TOOL_OBJECT)));
        }
        o = next;
    }
    T_TOOL_OBJECT *object = (T_TOOL_OBJECT *)NewTail(objects, sizeof(T_TOOL_OBJECT), setup->name);
    if (!object)
        return;
    object->window = window;
    object->a = a;
    object->b = b;
    if (new_run)
        for (T_APPLICATION *app = (T_APPLICATION *)_MarshalryBase->applications.first; app->next; app = app->next)
            if (!WindowStands(app->window))
                app->window = window;
}

enum { MAX_PLACES = 64 };  // the windows of one tool set-up whose places are stored

// The places read from a tool set-up's store, by the window's index in the set-up.
typedef struct T_STORED_PLACES {
    T_RPOS places[MAX_PLACES];
    u16 known[MAX_PLACES];
} T_STORED_PLACES;

// One line "<index> <x> <y> <w> <h>" of the store.
static int TakePlaceLine(const char *line, void *context)
{
    T_STORED_PLACES *stored = (T_STORED_PLACES *)context;
    int index, x, y, w, h, consumed = 0;
    if (sscanf(line, "%d %d %d %d %d %n", &index, &x, &y, &w, &h, &consumed) != 5 || line[consumed] || index < 0 ||
        index >= MAX_PLACES || w <= 0 || h <= 0 || w > 32767 || h > 32767 || x < -32768 || x > 32767 || y < -32768 ||
        y > 32767)
        return 0;
    stored->places[index] = {(i16)x, (i16)y, (i16)w, (i16)h};
    stored->known[index] = 1;
    return 1;
}

// A line that isn't five numbers makes the whole store garbage: one log line, no places.
void ReadToolConfig(T_TOOL_SETUP *setup, void *config)
{
    (void)config;
    if (!setup || !setup->name)
        return;
    const char *path = MarshalryStorePath(PLACES_FOLDER, setup->name, PLACES_EXTENSION, 0);
    T_STORED_PLACES stored = {};
    u16 broken = 0;  // the places are written whole at every orderly end anyway
    if (ReadStoreLines(path, &broken, 0, "a window place; the stored places are ignored", TakePlaceLine, &stored) !=
        STORE_READ)
        return;
    int index = 0;
    for (T_TOOL_OBJECT *o = (T_TOOL_OBJECT *)_MarshalryBase->tool_objects.first; o->next; o = o->next)
        if (OfSetup(o, setup)) {
            o->has_stored = index < MAX_PLACES && stored.known[index];
            if (o->has_stored)
                o->stored = stored.places[index];
            index++;
        }
}

void ExecuteToolSetup(T_TOOL_SETUP *setup, T_TOOL_SETUP_HANDLER handler)
{
    if (!setup || !handler)
        return;
    for (T_TOOL_OBJECT *o = (T_TOOL_OBJECT *)_MarshalryBase->tool_objects.first; o->next;) {
        T_TOOL_OBJECT *next = o->next;
        if (OfSetup(o, setup))
            handler(setup, o);
        o = next;
    }
}

// Keeps `start`..`start + size` inside `low`..`low + range`, the size cut to the range first.
static void Clamp(i16 *start, i16 *size, i16 low, i16 range)
{
    if (*size > range)
        *size = range;
    if (*start + *size > low + range)
        *start = (i16)(low + range - *size);
    if (*start < low)
        *start = low;
}

// A stored place is clamped onto the screen, so a window never comes back out of sight.
void GenericToolSetupHandler(T_TOOL_SETUP *setup, T_TOOL_OBJECT *object)
{
    (void)setup;
    if (!object || !object->has_stored || !WindowStands(object->window))
        return;
    T_RPOS place = object->stored, screen;
    GetPhysicalScreenRes(&screen);
    if (screen.w > 0 && screen.h > 0) {
        Clamp(&place.x, &place.w, screen.x, screen.w);
        Clamp(&place.y, &place.h, screen.y, screen.h);
    }
    ResizeWindow(object->window, &place);
}

void StoreToolSetup(T_TOOL_SETUP *setup)
{
    if (!setup || !setup->name)
        return;
    char text[64 * 48];
    u32 length = 0;
    int index = 0;
    for (T_TOOL_OBJECT *o = (T_TOOL_OBJECT *)_MarshalryBase->tool_objects.first; o->next; o = o->next) {
        if (!OfSetup(o, setup))
            continue;
        if (WindowStands(o->window) && length + 48 < sizeof(text)) {
            // A maximised window is stored at the place it goes back to.
            t_Window *w = o->window;
            T_RPOS place = {w->x, w->y, w->w, w->h};
            if (w->state_flags & WSF_MAXIMISED)
                place = w->restore_rect;
            if (place.w > 0 && place.h > 0)
                length += (u32)snprintf(text + length, sizeof(text) - length, "%d %d %d %d %d\n", index, place.x,
                                        place.y, place.w, place.h);
        }
        index++;
    }
    const char *path = MarshalryStorePath(PLACES_FOLDER, setup->name, PLACES_EXTENSION, 1);
    if (!path || !SaveStoreFile(path, text, length))
        myprintf(0, "The window places of %s could not be stored", setup->name);
}
