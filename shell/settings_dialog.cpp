// The settings dialog: each change goes into the settings at once; the close gadget ends it.
#include "shell/settings_dialog.h"

#include <string.h>

#include "properties/dialog_support.h"
#include "shell/texts.h"

#define BACKUP_PATH_ITEM 50
#define ROW_MARGIN 8          // the first row's place in the user area
#define ROW_GAP 2             // between one row and the next
#define PATH_FIELD_WIDTH 300  // the backup path's field
#define PATH_FIELD_HEIGHT 15

static const u32 SETTINGS_FLAGS =
    WF_CLOSE | WF_RESIZE | WF_TITLE | WF_MOVE | WF_BORDER | WF_CHILD | WF_IN_FRONT;  // 0x827C

typedef struct T_SETTINGS_ROW {
    u16 type;
    const char *text;
    u32 item_code;
    u32 flags;
    u32 action;
    const char *hover_text;
    u32 config_bit;  // the bit of the settings' flags that a check box shows
} T_SETTINGS_ROW;

//  type                  text                          code  flags                       action            hover text                                                                  bit
static const T_SETTINGS_ROW settings_rows[] = {
    {GADGET_TYPE_CHECK_BOX, "Optimise source generation", 1, GADGET_FLAGS_AUTOSIZE, ACT_LMOUSE_UP,
     "Checking this will only generate the differences between each gadget.", CONFIG_OPTIMISE},
    {GADGET_TYPE_CHECK_BOX, "Order gadgets by type", 2, GADGET_FLAGS_AUTOSIZE, ACT_LMOUSE_UP,
     "Checking this will save the gadgets ordered by type.", CONFIG_TYPE_ORDER},
    {GADGET_TYPE_CHECK_BOX, "Save backups", 3, GADGET_FLAGS_AUTOSIZE, ACT_LMOUSE_UP,
     "Checking this will save backups when document is saved.", CONFIG_BACKUPS},
    {GADGET_TYPE_TEXT, "Backup path", 0, GADGET_FLAGS_BOLD, ACT_LMOUSE_UP, NULL, 0},
    {GADGET_TYPE_STRING, "string", BACKUP_PATH_ITEM, 0, ACT_LMOUSE_DBL, "enter relative or absolute path", 0},
};

t_Window *OpenSettingsDialog(t_Window *main_window)
{
    static const T_DIALOG_FRAME settings_frame = {
        TXT_SETTINGS_TITLE, 236, 223, 340, 160, SETTINGS_FLAGS, IDCMP_TERMINATE, 0, SettingsDialogMsg};
    t_Window *window = OpenDialogWindow(main_window, &settings_frame, main_window->icon_bank);
    if (!window)
        return NULL;
    t_Gaget_Handler *handler = FindGadgetHandler(window);
    T_GADGETOBJECTINIT init;
    memset(&init, 0, sizeof(init));
    init.x = ROW_MARGIN;
    init.y = ROW_MARGIN;
    for (const T_SETTINGS_ROW &row : settings_rows) {
        init.type = row.type;
        init.item_code = row.item_code;
        init.flags = row.flags;
        init.action = row.action;
        init.hover_text = row.hover_text;
        if (row.type == GADGET_TYPE_STRING) {
            init.base_width = PATH_FIELD_WIDTH;
            init.base_height = PATH_FIELD_HEIGHT;
            init.max = sizeof(editor_config->backup_path) - 1;
            init.data = editor_config->backup_path;
        }
        t_gadget *gadget = (t_gadget *)CreateObject(&handler->head, row.text, &init);
        if (gadget && row.type != GADGET_TYPE_STRING)  // the rows stand one under the other
            init.y = (i16)(init.y + gadget->base_height + ROW_GAP);
    }
    return window;
}

void SetSettingsBoxes(t_Window *dialog)
{
    if (!dialog)
        return;
    for (const T_SETTINGS_ROW &row : settings_rows) {
        if (!row.config_bit)
            continue;
        t_gadget *box = FindGadgetByItemCode(dialog, row.item_code);
        if (box)
            box->class_data = (editor_config->flags & row.config_bit) ? 1 : 0;
    }
}

u32 SettingsDialogMsg(t_Window *window, u32 item_code, u32 msg, void *data)
{
    if (msg == ACT_TERMINATE) {
        RemoveWindow(window);
        return 0;
    }
    t_gadget *gadget = (t_gadget *)data;
    for (const T_SETTINGS_ROW &row : settings_rows) {
        if (row.item_code != item_code || !row.config_bit || !gadget)
            continue;
        // The box's state decides the bit; the record is reached anew each time.
        editor_config->flags &= ~row.config_bit;
        if (gadget->class_data)
            editor_config->flags |= row.config_bit;
    }
    return 0;
}

void RepointSettingsDialogs(t_Window *main_window, const char *old_backup_path)
{
    for (t_Window *child = main_window->first_child; child->next; child = child->next) {
        if (child->message != SettingsDialogMsg || (child->state_flags & WSF_REMOVED))
            continue;
        t_gadget *field = FindGadgetByItemCode(child, BACKUP_PATH_ITEM);
        if (field && field->data == old_backup_path)
            field->data = editor_config->backup_path;
    }
}
