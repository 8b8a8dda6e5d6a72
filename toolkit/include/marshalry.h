// Marshalry: the application's commands and keys, recent files, the tool set-up, stored settings.
#pragma once
#include "lumora.h"

typedef struct T_APP_COMMAND {
    T_NODE_FIELDS(struct T_APP_COMMAND);  // name: the command's name
    char *description;
    const char *group;
    u32 item_code;
    u32 key;  // the key in force (the user's, or the default)
    u32 default_key;
    u32 flags;
} T_APP_COMMAND;

typedef struct T_RECENT_FILE {
    T_NODE_FIELDS(struct T_RECENT_FILE);  // name: the path
    u32 type;
} T_RECENT_FILE;

typedef struct T_RECENT_TYPE {
    T_NODE_FIELDS(struct T_RECENT_TYPE);
    u32 type;
    u32 limit;
    t_List files;  // newest first
} T_RECENT_TYPE;

typedef struct T_APPLICATION {
    T_NODE_FIELDS(struct T_APPLICATION);  // name: the application's name, also its store key
    t_List commands;
    const char *group;  // the group of commands registered next
    t_List recent_types;
    t_Window *window;   // the window that commands reach; set by the tool set-up
    u16 broken_stores;  // STORE_ bits: stores that couldn't be read, written whole at the end
} T_APPLICATION;

#define STORE_KEYS 1    // the key store
#define STORE_RECENT 2  // the recent files

typedef struct T_CREATE_APPLICATION {
    struct T_TEXTURE_BANK *icon_bank;
    T_APPLICATION *application;
    i16 x, y, w, h;
} T_CREATE_APPLICATION;

// A window handed to the tool set-up, with the place stored for it.
typedef struct T_TOOL_OBJECT {
    T_NODE_FIELDS(struct T_TOOL_OBJECT);
    t_Window *window;
    u32 a, b;
    T_RPOS stored;
    u16 has_stored;
} T_TOOL_OBJECT;

typedef struct T_MARSHALRY_BASE {
    t_List resources;  // type 128: stored settings
    t_List applications;
    t_List tool_objects;  // T_TOOL_OBJECT
} T_MARSHALRY_BASE;

extern T_MARSHALRY_BASE *_MarshalryBase;

T_APPLICATION *NewApplication(const char *name);
void FreeApplication(T_APPLICATION *application);
t_Window *FindAppWindow(const char *name);  // a live top-level window of that name

void SetAppCommandGroup(T_APPLICATION *app, const char *group);
T_APP_COMMAND *RegisterAppCommand(T_APPLICATION *app, const char *name, const char *description, u32 item_code, u32 key,
                                  u32 flags);
T_APP_COMMAND *FindAppCommandByKey(T_APPLICATION *app, u32 key);
T_APP_COMMAND *FindAppCommandByCode(T_APPLICATION *app, u32 item_code);
// Changes a command's key and stores the keys; false when another command has the key.
int SetAppCommandKey(T_APPLICATION *app, T_APP_COMMAND *command, u32 key);
// Runs the command of a key message: sends ACT_MENU_PICK with its item code to `window`, or with
// null to the top-level window of the window that has the input focus. Nonzero when one ran.
u32 ExecuteAppCommand(T_APPLICATION *app, t_Window *window, T_KEY_MSG *key);
t_Menu *AddApplicationCmdMenu(T_APPLICATION *app, T_MENU_HANDLER *handler, T_MENUOBJECTINIT *init, u32 item_code);
t_Window *OpenApplicationCmdEditWindow(t_Window *parent, T_APPLICATION *app);
#define KEY_NAME_SIZE 16                     // a key name's buffer: the longest name and its end
const char *KeyName(u32 key, char *buffer);  // "Ctrl+O", "F10", "Delete"...; buffer of KEY_NAME_SIZE
// Reads a written key: "ctrl+s", "alt+f4", "escape", "f10", "shift+tab", "a", "delete"... (case and
// spaces do not count); false when unknown.
int ParseKeyName(const char *name, u16 *key, u16 *qualifiers);

void AddRecentFileType(T_APPLICATION *app, u32 type, u32 limit);
void AddRecentFile(T_APPLICATION *app, const char *path, u32 type);
void AddRecentFilesToMenu(T_MENU_HANDLER *handler, t_Menu *menu, T_APPLICATION *app, u32 type, u32 item_code);

void AddToolSetupObject(T_TOOL_SETUP *setup, t_Window *window, u32 a, u32 b);
void ReadToolConfig(T_TOOL_SETUP *setup, void *config);
typedef void (*T_TOOL_SETUP_HANDLER)(T_TOOL_SETUP *setup, T_TOOL_OBJECT *object);
void ExecuteToolSetup(T_TOOL_SETUP *setup, T_TOOL_SETUP_HANDLER handler);
void GenericToolSetupHandler(T_TOOL_SETUP *setup, T_TOOL_OBJECT *object);
void StoreToolSetup(T_TOOL_SETUP *setup);  // the places of its windows, into the data root
// The toolkit tells Marshalry that a window is freed, so that no record keeps its address.
void ForgetToolSetupWindow(t_Window *window);
// Frees every application, tool object and stored-settings resource, and resets the session:
// what CloseToolkit does, so that the toolkit can be opened again in the same process.
void CloseMarshalry(void);
