// Application commands: registration, lookup, the user's keys, running them, their menu entries.
//
// The key store "<data root>/keys/<app name>.keys" holds one line "item_code key" for each command
// whose key the user changed from its default. It is read once per application, at the first
// registration, and written at once, atomically, by each change.
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "marshalry/marshalry_internal.h"
#include "ostrand/ostrand_internal.h"

#define KEY_STORE_FOLDER "keys"
#define KEY_STORE_EXTENSION ".keys"

// The key store of the application that registers commands now.
static struct {
    T_APPLICATION *app;
    u32 count;
    u32 *pairs;  // item code, key; `count` pairs
} key_store;

void ForgetKeyStore(T_APPLICATION *app)
{
    if (key_store.app != app)
        return;
    free(key_store.pairs);
    key_store.pairs = NULL;
    key_store.count = 0;
    key_store.app = NULL;
}

// One line "item_code key"; false for anything else but an empty line.
static int ParseKeyLine(const char *line, u32 *item_code, u32 *key)
{
    char *end;
    const char *at = line;
    while (*at == ' ' || *at == '\t')
        at++;
    if (!*at)
        return -1;
    if (*at < '0' || *at > '9')
        return 0;
    *item_code = (u32)strtoul(at, &end, 10);
    if (*end != ' ' && *end != '\t')
        return 0;
    at = end;
    while (*at == ' ' || *at == '\t')
        at++;
    if (*at < '0' || *at > '9')
        return 0;
    *key = (u32)strtoul(at, &end, 10);
    while (*end == ' ' || *end == '\t')
        end++;
    return *end == 0;
}

// One line of the key store into key_store; a pair that memory can't hold is passed over.
static int TakeKeyLine(const char *line, void *context)
{
    (void)context;
    u32 item_code, key;
    int parsed = ParseKeyLine(line, &item_code, &key);
    if (parsed < 0)
        return 1;
    if (!parsed || key > 0xffff)
        return 0;
    u32 *grown = (u32 *)realloc(key_store.pairs, (key_store.count + 1) * 2 * sizeof(u32));
    if (!grown)
        return 1;
    key_store.pairs = grown;
    key_store.pairs[key_store.count * 2] = item_code;
    key_store.pairs[key_store.count * 2 + 1] = key;
    key_store.count++;
    return 1;
}

// A garbage store gives one log line and no user keys at all: the defaults hold.
static void LoadKeyStore(T_APPLICATION *app)
{
    ForgetKeyStore(key_store.app);
    key_store.app = app;
    const char *path = MarshalryStorePath(KEY_STORE_FOLDER, app->name, KEY_STORE_EXTENSION, 0);
    if (ReadStoreLines(path, &app->broken_stores, STORE_KEYS, "a key binding; the default keys are used", TakeKeyLine,
                       NULL) == STORE_GARBAGE) {
        ForgetKeyStore(app);
        key_store.app = app;
    }
}

static int StoredKey(u32 item_code, u32 *key)
{
    for (u32 i = 0; i < key_store.count; i++)
        if (key_store.pairs[i * 2] == item_code) {
            *key = key_store.pairs[i * 2 + 1];
            return 1;
        }
    return 0;
}

void SetAppCommandGroup(T_APPLICATION *app, const char *group)
{
    if (app)
        app->group = group;
}

// The command's name, description and group are copied into its own block, behind the record.
T_APP_COMMAND *RegisterAppCommand(T_APPLICATION *app, const char *name, const char *description, u32 item_code, u32 key,
                                  u32 flags)
{
    if (!app)
        return NULL;
    if (key_store.app != app)
        LoadKeyStore(app);
    const char *texts[3] = {name ? name : "", description ? description : "", app->group ? app->group : ""};
    u32 lengths[3], extra = 0;
    for (int i = 0; i < 3; i++)
        extra += lengths[i] = (u32)strlen(texts[i]) + 1;
    T_APP_COMMAND *command =
        (T_APP_COMMAND *)AllocMemExtra(_OstrandBase->default_memory_type, sizeof(T_APP_COMMAND), extra);
    if (!command)
        return NULL;
    char *copies[3];
    char *at = (char *)(command + 1);
    for (int i = 0; i < 3; i++) {
        copies[i] = (char *)memcpy(at, texts[i], lengths[i]);
        at += lengths[i];
    }
    command->name = copies[0];
    command->description = copies[1];
    command->group = copies[2];
    command->item_code = item_code;
    command->default_key = key;
    command->key = key;
    command->flags = flags;
    StoredKey(item_code, &command->key);
    AddTail(&app->commands, (t_Node *)command);
    return command;
}

T_APP_COMMAND *FindAppCommandByKey(T_APPLICATION *app, u32 key)
{
    if (!app || !key)
        return NULL;
    return (T_APP_COMMAND *)FindNodeByField(&app->commands, offsetof(T_APP_COMMAND, key), key);
}

T_APP_COMMAND *FindAppCommandByCode(T_APPLICATION *app, u32 item_code)
{
    if (!app)
        return NULL;
    return (T_APP_COMMAND *)FindNodeByField(&app->commands, offsetof(T_APP_COMMAND, item_code), item_code);
}

// Writes the keys that differ from their defaults. A store that can't be written is logged and
// the change holds for this run.
void StoreKeys(T_APPLICATION *app)
{
    u32 count = CountListEntries(&app->commands);
    u32 capacity = count * 24 + 1;
    char *text = (char *)AllocMemC(capacity);
    if (!text)
        return;
    u32 length = 0;
    for (T_APP_COMMAND *c = (T_APP_COMMAND *)app->commands.first; c->next; c = c->next)
        if (c->key != c->default_key)
            length += (u32)snprintf(text + length, capacity - length, "%u %u\n", c->item_code, c->key);
    WriteStoreText(app, KEY_STORE_FOLDER, KEY_STORE_EXTENSION, STORE_KEYS, "keys", text, length, capacity);
    if (key_store.app == app)
        ForgetKeyStore(app);
}

int SetAppCommandKey(T_APPLICATION *app, T_APP_COMMAND *command, u32 key)
{
    if (!app || !command)
        return 0;
    T_APP_COMMAND *holder = FindAppCommandByKey(app, key);
    if (holder && holder != command)
        return 0;
    command->key = key;
    StoreKeys(app);
    return 1;
}

static t_Window *TopLevel(t_Window *window)
{
    while (window && window->parent)
        window = window->parent;
    return window;
}

u32 ExecuteAppCommand(T_APPLICATION *app, t_Window *window, T_KEY_MSG *key)
{
    if (!key)
        return 0;
    T_APP_COMMAND *command = FindAppCommandByKey(app, key->key_code);
    if (!command)
        return 0;
    t_Window *target = window;
    if (!target && WindowStands(app->window))
        target = app->window;
    if (!target && _LumoraBase && CURRENT_DISPLAY->window_class)
        target = TopLevel(CURRENT_DISPLAY->window_class->current_window);
    if (!target)
        return 0;
    SendWindowMessage(target, command->item_code, ACT_MENU_PICK, NULL);
    return 1;
}

// The caller's init record is used for the entry and given back as it was.
t_Menu *AddApplicationCmdMenu(T_APPLICATION *app, T_MENU_HANDLER *handler, T_MENUOBJECTINIT *init, u32 item_code)
{
    T_APP_COMMAND *command = FindAppCommandByCode(app, item_code);
    if (!command || !handler || !init) {
        myprintf(0, "AddApplicationCmdMenu: no command with item code %u", item_code);
        return NULL;
    }
    u16 kind = init->kind;
    u32 code = init->item_code;
    init->kind = MENU_KIND_ENTRY;
    init->item_code = command->item_code;
    t_Menu *entry = (t_Menu *)CreateObject(&handler->head, command->name, init);
    init->kind = kind;
    init->item_code = code;
    if (entry) {
        entry->command_key = command->key;
        entry->application = app;
    }
    return entry;
}
