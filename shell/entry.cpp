// The module's entry: finds a running instance, fetches or makes the settings, registers the
// commands, and builds the main window with its menus, handler and toolbar.
#include <string.h>

#include "shell/commands.h"
#include "shell/main_window.h"
#include "shell/menus.h"

// The main window's creation record, less what comes from the host.
static const u32 MAIN_WINDOW_FLAGS = WF_CLOSE | WF_RESIZE | WF_TITLE | WF_MOVE | WF_BORDER | WF_MAXIMISE | WF_MINIMISE |
                                     WF_TASKBAR | WF_ALTF4;  // 0x501FC
static const u32 MAIN_WINDOW_IDCMP = IDCMP_TERMINATE | IDCMP_KEY | IDCMP_MENU_OPEN | IDCMP_RECEIVE_OBJECT |
                                     IDCMP_FIRSTTIME_RUN | IDCMP_REQUESTER_OK;  // 0x4594

// Fills a new settings block with its defaults.
static void SetConfigDefaults(T_EDITOR_CONFIG *config)
{
    strncpy(config->last_path, MakePathFromSystem("Projects\\QfFiles"), sizeof(config->last_path) - 1);
    strcpy(config->backup_path, "Backup");
    config->size = EDITOR_CONFIG_SIZE;
    config->flags = CONFIG_DEFAULT_FLAGS;
    config->open_count = 0;
}

// A stored block shorter than the record, or one whose size word disagrees with the resource, is
// not taken: the caller starts with the defaults.
static int ConfigIsWhole(T_RESOURCE *resource)
{
    if (!resource->data || resource->data_size < EDITOR_CONFIG_SIZE)
        return 0;
    const T_EDITOR_CONFIG *config = (const T_EDITOR_CONFIG *)resource->data;
    return config->size == resource->data_size;
}

extern "C" __attribute__((visibility("default"))) t_Window *Dll_OpenQuillformWindow(T_CREATE_APPLICATION *create)
{
    // A running instance is activated and nothing else happens.
    t_Window *running = FindAppWindow(MAIN_WINDOW_NAME);
    if (running) {
        ISetActiveWindow(running);
        return NULL;
    }

    // The settings resource, found or made with its defaults.
    T_RESOURCE *resource = OpenResource(&_MarshalryBase->resources, SETTINGS_RESOURCE_NAME, RESOURCE_TYPE_SETTINGS, 0);
    if (resource && !ConfigIsWhole(resource)) {
        myprintf(0, "Stored settings \"%s\" are incomplete; starting with the defaults", SETTINGS_RESOURCE_NAME);
        RemoveResource(resource);
        resource = NULL;
    }
    if (!resource) {
        resource = CreateResource(&_MarshalryBase->resources, SETTINGS_RESOURCE_NAME, EDITOR_CONFIG_SIZE,
                                  RESOURCE_TYPE_SETTINGS);
        SetConfigDefaults((T_EDITOR_CONFIG *)resource->data);
    }
    editor_config = (T_EDITOR_CONFIG *)resource->data;
    config_resource = resource;
    editor_config->resource = 0;  // the stored word means nothing; the back pointer is config_resource

    // Recent files, the commands, and what the pages get of the main window.
    T_APPLICATION *application = create->application;
    AddRecentFileType(application, RECENT_FILE_TYPE, 6);
    RegisterCommands(application);
    FillPageHost(&page_host);
    ConnectEditor();

    // The main window.
    T_WINDOWOBJINIT init;
    memset(&init, 0, sizeof(init));
    init.x = create->x;
    init.y = create->y;
    init.w = create->w;
    init.h = create->h;
    init.flags = MAIN_WINDOW_FLAGS;
    init.idcmp = MAIN_WINDOW_IDCMP;
    init.icon_bank = create->icon_bank;
    init.message = MainWindowMsg;
    t_Window *window = (t_Window *)CreateObject(&CURRENT_DISPLAY->window_class->head, MAIN_WINDOW_NAME, &init);
    window->UserAreaColour = DISPLAY_RECORD->window_colour;

    // Tool set-up, menus, the handler and the toolbar.
    T_TOOL_SETUP *setup = resource;
    AddToolSetupObject(setup, window, 0, 0);
    BuildMainMenus(window, application);
    T_WINEDIT_MAIN *record = (T_WINEDIT_MAIN *)NewHandler(&window->handlers, MainHandlerInput, MainHandlerPaint,
                                                          MAIN_HANDLER_NAME, 0, sizeof(T_WINEDIT_MAIN), window);
    record->application = application;
    record->toolbar = CreateGadgetToolBar(window);
    window->user_data = record;
    AddToolSetupObject(setup, record->toolbar, 0, 1);
    record->tool_setup = setup;

    // The places of the last run.
    ReadToolConfig(setup, editor_config);
    ExecuteToolSetup(setup, GenericToolSetupHandler);
    return window;
}
