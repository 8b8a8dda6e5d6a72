// Resources: named, counted blocks on lists, and the persistent store of settings.
// Type 128 (stored settings) lives in the store below the data root, one file per resource; fonts
// and bitmaps are records whose object the drawing library loads on first use.
#include <stdio.h>
#include <string.h>

#include "ostrand_internal.h"

// A store file: a 20-byte head, little-endian, then the data.
//   offset  0  "QFRS"
//   offset  4  format version
//   offset  8  resource type
//   offset 12  data size
//   offset 16  CRC-32 of the data
#define STORE_MAGIC "QFRS"
#define STORE_VERSION 1
#define STORE_HEAD_SIZE 20
#define STORE_FOLDER "store"
#define STORE_EXTENSION ".res"

static u32 crc_table[256];

static u32 Crc32(const u8 *data, u32 size)
{
    if (!crc_table[1])
        for (u32 n = 0; n < 256; n++) {
            u32 c = n;
            for (int k = 0; k < 8; k++)
                c = c & 1 ? 0xedb88320u ^ (c >> 1) : c >> 1;
            crc_table[n] = c;
        }
    u32 crc = 0xffffffffu;
    for (u32 i = 0; i < size; i++)
        crc = crc_table[(crc ^ data[i]) & 0xff] ^ (crc >> 8);
    return crc ^ 0xffffffffu;
}

static void PutU32(u8 *at, u32 value)
{
    for (int i = 0; i < 4; i++)
        at[i] = (u8)(value >> (8 * i));
}

static u32 GetU32(const u8 *at)
{
    return (u32)at[0] | (u32)at[1] << 8 | (u32)at[2] << 16 | (u32)at[3] << 24;
}

// The store file of a resource; separators in the name become '_'.
static const char *StorePath(const char *name)
{
    char relative[RELATIVE_PATH_SIZE];
    snprintf(relative, sizeof(relative), STORE_FOLDER "/%s" STORE_EXTENSION, name);
    for (char *c = relative + sizeof(STORE_FOLDER); *c; c++)
        if (*c == '/' || *c == '\\')
            *c = '_';
    return MakePathFromSystem(relative);
}

static T_RESOURCE *NewResource(t_List *list, const char *name, u32 type)
{
    T_RESOURCE *resource = (T_RESOURCE *)NewNamedNode(sizeof(T_RESOURCE), name);
    if (!resource)
        return NULL;
    resource->type = type;
    resource->use_count = 1;
    AddTail(list, (t_Node *)resource);
    return resource;
}

// Reads a stored resource into a new record on the list. A missing file gives null quietly; a
// broken one (garbage, a folder in its place, no permission) gives null and one log line, and
// stays as it is until the next store writes a good file in its place.
static T_RESOURCE *LoadStoredResource(t_List *list, const char *name, u32 type)
{
    const char *path = StorePath(name);
    if (!PathExists(path))
        return NULL;
    char path_copy[FILE_PATH_SIZE];
    snprintf(path_copy, sizeof(path_copy), "%s", path);
    const u8 *file = (const u8 *)LoadFile(path_copy);
    if (!file) {
        myprintf(0, "Stored resource %s can't be read (%s); it is ignored", path_copy, LoadFileError());
        return NULL;
    }
    u32 file_size = GetLoadFileSize();
    const char *fault = NULL;
    if (file_size < STORE_HEAD_SIZE || memcmp(file, STORE_MAGIC, 4) != 0)
        fault = "no store head";
    else if (GetU32(file + 4) != STORE_VERSION)
        fault = "unknown format version";
    else if (GetU32(file + 8) != type)
        fault = "wrong resource type";
    else if (GetU32(file + 12) != file_size - STORE_HEAD_SIZE)
        fault = "truncated";
    else if (GetU32(file + 16) != Crc32(file + STORE_HEAD_SIZE, file_size - STORE_HEAD_SIZE))
        fault = "checksum mismatch";
    T_RESOURCE *resource = NULL;
    if (fault) {
        myprintf(0, "Stored resource %s is unreadable (%s); it is ignored", path_copy, fault);
    } else {
        u32 data_size = file_size - STORE_HEAD_SIZE;
        void *data = AllocMemType(_OstrandBase->default_memory_type, data_size);
        resource = data ? NewResource(list, name, type) : NULL;
        if (resource) {
            memcpy(data, file + STORE_HEAD_SIZE, data_size);
            resource->data = data;
            resource->data_size = data_size;
        } else {
            FreeMem(data, data_size);
        }
    }
    FreeMem((void *)file, file_size);
    return resource;
}

T_RESOURCE *OpenResource(t_List *list, const char *name, u32 type, u32 flags)
{
    (void)flags;
    if (!list || !name)
        return NULL;
    for (T_RESOURCE *r = (T_RESOURCE *)list->first; r->next; r = r->next)
        if (r->type == type && r->name && strcmp(r->name, name) == 0) {
            r->use_count++;
            return r;
        }
    switch (type) {
    case RESOURCE_TYPE_SETTINGS:  // from the persistent store
        return LoadStoredResource(list, name, type);
    case RESOURCE_TYPE_FONT:  // the object is loaded by the drawing library on first use
    case RESOURCE_TYPE_BITMAP:
        return NewResource(list, name, type);
    default:
        return NULL;
    }
}

T_RESOURCE *CreateResource(t_List *list, const char *name, u32 size, u32 type)
{
    if (!list)
        return NULL;
    void *data = AllocMemType(_OstrandBase->default_memory_type, size);
    if (!data)
        return NULL;
    T_RESOURCE *resource = NewResource(list, name, type);
    if (!resource) {
        FreeMem(data, size);
        return NULL;
    }
    resource->data = data;
    resource->data_size = size;
    return resource;
}

void RemoveResource(T_RESOURCE *resource)
{
    if (!resource || --resource->use_count > 0)
        return;
    SubNode((t_Node *)resource);
    if (resource->free_object && resource->object)
        resource->free_object(resource->object);
    FreeMem(resource->data, resource->data_size);
    FreeMem(resource, NodeBlockSize(sizeof(T_RESOURCE)));
}

static int StoreResource(T_RESOURCE *resource)
{
    u32 size = STORE_HEAD_SIZE + resource->data_size;
    u8 *file = (u8 *)AllocMemC(size);
    if (!file)
        return 0;
    memcpy(file, STORE_MAGIC, 4);
    PutU32(file + 4, STORE_VERSION);
    PutU32(file + 8, resource->type);
    PutU32(file + 12, resource->data_size);
    if (resource->data_size)
        memcpy(file + STORE_HEAD_SIZE, resource->data, resource->data_size);
    PutU32(file + 16, Crc32(file + STORE_HEAD_SIZE, resource->data_size));
    int ok =
        MakeEntireDirectory(MakePathFromSystem(STORE_FOLDER)) && SaveStoreFile(StorePath(resource->name), file, size);
    FreeMem(file, size);
    return ok;
}

u32 StoreResources(t_List *list)
{
    u32 failed = 0;
    if (!list)
        return 0;
    for (T_RESOURCE *r = (T_RESOURCE *)list->first; r->next; r = r->next)
        if (r->type == RESOURCE_TYPE_SETTINGS && r->name && !StoreResource(r))
            failed++;
    return failed;
}
