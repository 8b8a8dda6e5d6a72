// Applications: the base record of Marshalry, application records and the helpers its stores share.
#include <stdio.h>
#include <string.h>

#include "marshalry/marshalry_internal.h"
#include "ostrand/ostrand_internal.h"

static T_MARSHALRY_BASE marshalry_base;

// The lists point into the record itself, so they are set up when the library loads.
static T_MARSHALRY_BASE *InitMarshalryBase(void)
{
    InitList(&marshalry_base.resources, "resources");
    InitList(&marshalry_base.applications, "applications");
    InitList(&marshalry_base.tool_objects, "tool objects");
    return &marshalry_base;
}

T_MARSHALRY_BASE *_MarshalryBase = InitMarshalryBase();

T_APPLICATION *NewApplication(const char *name)
{
    T_APPLICATION *app = (T_APPLICATION *)NewNamedNode(sizeof(T_APPLICATION), name ? name : "");
    if (!app)
        return NULL;
    InitList(&app->commands, "commands");
    InitList(&app->recent_types, "recent types");
    AddTail(&_MarshalryBase->applications, (t_Node *)app);
    return app;
}

void FreeApplication(T_APPLICATION *app)
{
    if (!app)
        return;
    ForgetKeyStore(app);
    EmptyList(&app->commands, sizeof(T_APP_COMMAND));
    for (T_RECENT_TYPE *type = (T_RECENT_TYPE *)app->recent_types.first; type->next; type = type->next)
        EmptyList(&type->files, sizeof(T_RECENT_FILE));
    EmptyList(&app->recent_types, sizeof(T_RECENT_TYPE));
    SubNode((t_Node *)app);
    FreeMem(app, NodeBlockSize(sizeof(T_APPLICATION)));
}

static T_WINDOW_CLASS *CurrentWindowClass(void)
{
    return _LumoraBase ? CURRENT_DISPLAY->window_class : NULL;
}

t_Window *FindAppWindow(const char *name)
{
    T_WINDOW_CLASS *wc = CurrentWindowClass();
    if (!wc || !name)
        return NULL;
    for (t_Window *w = (t_Window *)wc->windows.first; w->next; w = w->next)
        if (IsWindowLive(w) && w->name && strcmp(w->name, name) == 0)
            return w;
    return NULL;
}

static int FoundAmong(t_List *windows, t_Window *window)
{
    for (t_Window *w = (t_Window *)windows->first; w->next; w = w->next)
        if ((w == window && IsWindowLive(w)) || FoundAmong(&w->children, window))
            return 1;
    return 0;
}

int WindowStands(t_Window *window)
{
    T_WINDOW_CLASS *wc = CurrentWindowClass();
    return window && wc && FoundAmong(&wc->windows, window);
}

const char *MarshalryStorePath(const char *folder, const char *name, const char *extension, int make_folder)
{
    if (make_folder && !MakeEntireDirectory(MakePathFromSystem(folder)))
        return NULL;
    char relative[RELATIVE_PATH_SIZE];
    int prefix = snprintf(relative, sizeof(relative), "%s/", folder);
    snprintf(relative + prefix, sizeof(relative) - (size_t)prefix, "%s%s", name ? name : "", extension);
    for (char *c = relative + prefix; *c; c++)
        if (*c == '/' || *c == '\\')
            *c = '_';
    return MakePathFromSystem(relative);
}

// The store's text, freed with FreeMem(text, *size); null when it is missing (quietly) or
// unreadable (logged, and `store` set in *broken).
static char *LoadStoreText(const char *path, u32 *size, u16 *broken, u16 store)
{
    *size = 0;
    if (!path || !PathExists(path))
        return NULL;
    char *text = (char *)LoadFile(path);
    if (!text) {
        myprintf(0, "The store %s can't be read (%s); it is ignored", path, LoadFileError());
        *broken |= store;
        return NULL;
    }
    *size = GetLoadFileSize();
    return text;
}

int ReadStoreLines(const char *path, u16 *broken, u16 store, const char *what, T_STORE_LINE_FN take, void *context)
{
    u32 size;
    char *text = LoadStoreText(path, &size, broken, store);
    if (!text)
        return STORE_NOT_READ;
    char line[READ_LINE_SIZE];
    u32 used, line_number = 0;
    int result = STORE_READ;
    for (const char *at = text; result == STORE_READ && (used = ReadLine(line, at, text + size)) > 0; at += used) {
        line_number++;
        if (line[0] && !take(line, context)) {
            myprintf(0, "%s:%u: not %s", path, line_number, what);
            *broken |= store;
            result = STORE_GARBAGE;
        }
    }
    FreeMem(text, size);
    return result;
}

void WriteStoreText(T_APPLICATION *app, const char *folder, const char *extension, u16 store, const char *what,
                    char *text, u32 length, u32 capacity)
{
    const char *path = MarshalryStorePath(folder, app->name, extension, 1);
    if (!path || !SaveStoreFile(path, text, length))
        myprintf(0, "The %s of %s could not be stored", what, app->name);
    else
        app->broken_stores &= ~store;
    FreeMem(text, capacity);
}

void StoreBrokenStores(void)
{
    for (T_APPLICATION *app = (T_APPLICATION *)_MarshalryBase->applications.first; app->next; app = app->next) {
        if (app->broken_stores & STORE_KEYS)
            StoreKeys(app);
        if (app->broken_stores & STORE_RECENT)
            StoreRecentFiles(app);
    }
}

void ForgetToolSetupWindow(t_Window *window)
{
    for (T_TOOL_OBJECT *o = (T_TOOL_OBJECT *)_MarshalryBase->tool_objects.first; o->next; o = o->next)
        if (o->window == window)
            o->window = NULL;
    for (T_APPLICATION *app = (T_APPLICATION *)_MarshalryBase->applications.first; app->next; app = app->next)
        if (app->window == window)
            app->window = NULL;
}

void CloseMarshalry(void)
{
    while (!LIST_EMPTY(&_MarshalryBase->applications))
        FreeApplication((T_APPLICATION *)_MarshalryBase->applications.first);
    EmptyList(&_MarshalryBase->tool_objects, NodeBlockSize(sizeof(T_TOOL_OBJECT)));
    while (!LIST_EMPTY(&_MarshalryBase->resources)) {
        T_RESOURCE *resource = (T_RESOURCE *)_MarshalryBase->resources.first;
        resource->use_count = 1;
        RemoveResource(resource);
    }
    ForgetRecentEntries();
    _TenureBase->session_state = SESSION_RUNNING;
}
