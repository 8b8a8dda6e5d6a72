// Window background bitmaps: PNG files below the data root's "Bitmaps" folder, shared by name.
#include <stdio.h>
#include <string.h>

#include "lumora/lumora_internal.h"

// What a bitmap resource's `object` holds.
typedef struct T_BITMAP {
    i32 width, height;
    u32 *pixels;  // 0xAABBGGRR, the resource's data block
} T_BITMAP;

static void FreeBitmapObject(void *object)
{
    FreeMem(object, sizeof(T_BITMAP));
}

void ReleaseBitmap(T_RESOURCE *bitmap)
{
    if (!bitmap || --bitmap->use_count > 0)
        return;
    SubNode((t_Node *)bitmap);
    FreeMem(bitmap->data, bitmap->data_size);
    if (bitmap->free_object)
        bitmap->free_object(bitmap->object);
    FreeMem(bitmap->name, (u32)strlen(bitmap->name) + 1);
    FreeMem(bitmap, sizeof(T_RESOURCE));
}

// The bitmap named `file` (a file name), loaded once and shared; null (logged) when absent.
static T_RESOURCE *OpenBitmap(const char *name)
{
    char file[FILE_PATH_SIZE];
    StripPath(file, name);
    for (t_Node *n = lumora_state.bitmaps.first; n->next; n = n->next)
        if (strcmp(n->name, file) == 0) {
            ((T_RESOURCE *)n)->use_count++;
            return (T_RESOURCE *)n;
        }
    char path[FILE_PATH_SIZE];
    if (IsAbsolutePath(name))
        snprintf(path, sizeof(path), "%s", name);
    else
        MakeFilename(path, MakePathFromSystem("Bitmaps"), name);
    i32 w = 0, h = 0;
    u32 *pixels = ReadPNG(path, &w, &h);
    if (!pixels) {
        myprintf(0, "SetWindowBitmap: the bitmap %s can't be read\n", path);
        return NULL;
    }
    T_RESOURCE *r = (T_RESOURCE *)AllocMemC(sizeof(T_RESOURCE));
    u32 name_size = (u32)strlen(file) + 1;
    r->name = (char *)AllocMemC(name_size);
    memcpy(r->name, file, name_size);
    r->type = RESOURCE_TYPE_BITMAP;
    r->data = pixels;
    r->data_size = (u32)(w * h * 4);
    r->use_count = 1;
    T_BITMAP *b = (T_BITMAP *)AllocMemC(sizeof(T_BITMAP));
    b->width = w, b->height = h, b->pixels = pixels;
    r->object = b;
    r->free_object = FreeBitmapObject;
    AddTail(&lumora_state.bitmaps, (t_Node *)r);
    return r;
}

void SetWindowBitmap(t_Window *window, const char *name)
{
    if (!window)
        return;
    T_RESOURCE *old = window->bitmap;
    window->bitmap = (name && name[0]) ? OpenBitmap(name) : NULL;
    ReleaseBitmap(old);
}

// Draws the window's bitmap at the top left of its user area (the caller has clipped to it).
void PaintWindowBitmap(t_Window *window)
{
    T_BITMAP *b = (T_BITMAP *)window->bitmap->object;
    DrawImage(b->pixels, b->width, b->height, window->user_x, window->user_y);
}
