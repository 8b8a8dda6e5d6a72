// Recent files: the lists per application and type, their store, and their entries in a menu.
// A list is newest first, without duplicates, and holds at most `limit` files.
//
// The store "<data root>/recent/<app name>.txt" holds one line "<type> <path>" for each file, in
// the order of the lists. It is read when a type is registered and written at once by each change.
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "marshalry/marshalry_internal.h"
#include "ostrand/ostrand_internal.h"

#define RECENT_FOLDER "recent"
#define RECENT_EXTENSION ".txt"
#define RECENT_LABEL_MAX 40     // longer paths are shown as ".../dir/name"
#define MENU_CODE_SAVE_ALL 261  // the recent files stand right after this entry when it is there

// A menu entry that AddRecentFilesToMenu made, so that the next call can take it out again.
typedef struct T_RECENT_ENTRY {
    T_NODE_FIELDS(struct T_RECENT_ENTRY);
    t_Menu *menu;  // the menu that holds it
    t_Menu *entry;
} T_RECENT_ENTRY;

static t_List recent_entries;

static T_RECENT_TYPE *FindRecentType(T_APPLICATION *app, u32 type)
{
    if (!app)
        return NULL;
    return (T_RECENT_TYPE *)FindNodeByField(&app->recent_types, offsetof(T_RECENT_TYPE, type), type);
}

// Drops the oldest files beyond the limit; a limit of 0 keeps all.
static void TrimRecentFiles(T_RECENT_TYPE *type)
{
    while (type->limit && CountListEntries(&type->files) > type->limit) {
        t_Node *oldest = type->files.last;
        SubNode(oldest);
        FreeMem(oldest, NodeBlockSize(sizeof(T_RECENT_FILE)));
    }
}

static T_RECENT_FILE *NewRecentFile(u32 type, const char *path)
{
    T_RECENT_FILE *file = (T_RECENT_FILE *)NewNamedNode(sizeof(T_RECENT_FILE), path);
    if (file)
        file->type = type;
    return file;
}

// One line "<type> <path>" of the store: a file of `context`'s type joins its list.
static int TakeRecentLine(const char *line, void *context)
{
    T_RECENT_TYPE *type = (T_RECENT_TYPE *)context;
    char *end;
    u32 line_type = (u32)strtoul(line, &end, 10);
    if (end == line || *end != ' ' || !end[1])
        return 0;
    T_RECENT_FILE *file = line_type == type->type ? NewRecentFile(line_type, end + 1) : NULL;
    if (file)
        AddTail(&type->files, (t_Node *)file);
    return 1;
}

// A line that isn't "<type> <path>" makes the whole store garbage: one log line, an empty list.
static void LoadRecentFiles(T_APPLICATION *app, T_RECENT_TYPE *type)
{
    const char *path = MarshalryStorePath(RECENT_FOLDER, app->name, RECENT_EXTENSION, 0);
    if (ReadStoreLines(path, &app->broken_stores, STORE_RECENT, "a recent file; the recent files are dropped",
                       TakeRecentLine, type) == STORE_GARBAGE)
        EmptyList(&type->files, sizeof(T_RECENT_FILE));
    TrimRecentFiles(type);
}

void StoreRecentFiles(T_APPLICATION *app)
{
    u32 capacity = 1;
    for (T_RECENT_TYPE *t = (T_RECENT_TYPE *)app->recent_types.first; t->next; t = t->next)
        for (T_RECENT_FILE *f = (T_RECENT_FILE *)t->files.first; f->next; f = f->next)
            capacity += (u32)strlen(f->name) + 13;
    char *text = (char *)AllocMemC(capacity);
    if (!text)
        return;
    u32 length = 0;
    for (T_RECENT_TYPE *t = (T_RECENT_TYPE *)app->recent_types.first; t->next; t = t->next)
        for (T_RECENT_FILE *f = (T_RECENT_FILE *)t->files.first; f->next; f = f->next)
            length += (u32)snprintf(text + length, capacity - length, "%u %s\n", t->type, f->name);
    WriteStoreText(app, RECENT_FOLDER, RECENT_EXTENSION, STORE_RECENT, "recent files", text, length, capacity);
}

void AddRecentFileType(T_APPLICATION *app, u32 type, u32 limit)
{
    if (!app)
        return;
    T_RECENT_TYPE *recent = FindRecentType(app, type);
    if (recent) {
        recent->limit = limit;
        TrimRecentFiles(recent);
        return;
    }
    recent = (T_RECENT_TYPE *)NewTail(&app->recent_types, sizeof(T_RECENT_TYPE), NULL);
    if (!recent)
        return;
    recent->type = type;
    recent->limit = limit;
    InitList(&recent->files, "recent files");
    LoadRecentFiles(app, recent);
}

// A path already on the list moves to the front. A path with a line end can't be stored and is
// refused with a log line.
void AddRecentFile(T_APPLICATION *app, const char *path, u32 type)
{
    if (!path || !path[0])
        return;
    T_RECENT_TYPE *recent = FindRecentType(app, type);
    if (!recent || strpbrk(path, "\r\n")) {
        myprintf(0, "AddRecentFile: %s refused (%s)", path, recent ? "line end in the path" : "type not registered");
        return;
    }
    T_RECENT_FILE *file = (T_RECENT_FILE *)FindNode(recent->files.first, path);
    if (file)
        SubNode((t_Node *)file);
    else
        file = NewRecentFile(type, path);
    if (!file)
        return;
    AddHead(&recent->files, (t_Node *)file);
    TrimRecentFiles(recent);
    StoreRecentFiles(app);
}

static const char *RecentLabel(const char *path, char *label, size_t size)
{
    size_t length = strlen(path);
    if (length <= RECENT_LABEL_MAX) {
        snprintf(label, size, "%s", path);
        return label;
    }
    // The last two levels: ".../dir/name.cpp", or the name alone when even that is long.
    const char *name = strrchr(path, '/');
    const char *dir = name;
    while (dir && dir > path && *--dir != '/') {
    }
    const char *tail = dir && dir[0] == '/' && strlen(dir) <= RECENT_LABEL_MAX ? dir : name;
    snprintf(label, size, "...%s", tail ? tail : path + length - RECENT_LABEL_MAX);
    return label;
}

// Takes out the entries that an earlier call put into `menu`; each is looked for among the menu's
// items first, so an entry that the menu code already removed is only forgotten.
static void RemoveRecentEntries(T_MENU_HANDLER *handler, t_Menu *menu)
{
    if (!recent_entries.first)
        InitList(&recent_entries, "recent entries");
    for (T_RECENT_ENTRY *r = (T_RECENT_ENTRY *)recent_entries.first; r->next;) {
        T_RECENT_ENTRY *next = r->next;
        if (r->menu == menu) {
            for (t_Menu *e = (t_Menu *)menu->items.first; e->next; e = e->next)
                if (e == r->entry) {
                    RemoveObject(&handler->head, e);
                    break;
                }
            SubNode((t_Node *)r);
            FreeMem(r, sizeof(T_RECENT_ENTRY));
        }
        r = next;
    }
}

// The menus that held the entries are freed when the toolkit closes; a record kept past that
// could match a new menu at the same address and take out one of its own entries.
void ForgetRecentEntries(void)
{
    if (!recent_entries.first)
        return;
    while (!LIST_EMPTY(&recent_entries)) {
        t_Node *record = recent_entries.first;
        SubNode(record);
        FreeMem(record, sizeof(T_RECENT_ENTRY));
    }
}

void AddRecentFilesToMenu(T_MENU_HANDLER *handler, t_Menu *menu, T_APPLICATION *app, u32 type, u32 item_code)
{
    if (!handler || !menu)
        return;
    RemoveRecentEntries(handler, menu);
    T_RECENT_TYPE *recent = FindRecentType(app, type);
    if (!recent)
        return;
    t_Node *anchor = (t_Node *)menu->items.last;
    for (t_Menu *e = (t_Menu *)menu->items.first; e->next; e = e->next)
        if (e->menu_item_code == MENU_CODE_SAVE_ALL) {
            anchor = (t_Node *)e;
            break;
        }
    // A linked title or sub-menu is given itself, so that its entries know their parent menu.
    T_MENUOBJECTINIT init = {};
    init.parent_list = menu->prev ? (t_List *)menu : &menu->items;
    init.kind = MENU_KIND_ENTRY;
    init.item_code = item_code;
    for (T_RECENT_FILE *f = (T_RECENT_FILE *)recent->files.first; f->next; f = f->next) {
        char label[RECENT_LABEL_MAX + 8];
        t_Menu *entry = (t_Menu *)CreateObject(&handler->head, RecentLabel(f->name, label, sizeof(label)), &init);
        T_RECENT_ENTRY *record = entry ? (T_RECENT_ENTRY *)AllocMemC(sizeof(T_RECENT_ENTRY)) : NULL;
        if (!record) {
            if (entry)
                RemoveObject(&handler->head, entry);
            break;
        }
        SubNode((t_Node *)entry);
        entry->prev = (t_Menu *)anchor;
        entry->next = (t_Menu *)anchor->next;
        anchor->next->prev = (t_Node *)entry;
        anchor->next = (t_Node *)entry;
        anchor = (t_Node *)entry;
        entry->user_data = f;
        record->menu = menu;
        record->entry = entry;
        AddTail(&recent_entries, (t_Node *)record);
    }
}
