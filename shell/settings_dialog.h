// The settings dialog: the three switches and the backup path, live, with no OK button.
#pragma once
#include "page/records.h"

t_Window *OpenSettingsDialog(t_Window *main_window);
void SetSettingsBoxes(t_Window *dialog);
u32 SettingsDialogMsg(t_Window *window, u32 item_code, u32 msg, void *data);
// After the settings block was replaced (at exit), points the path field of every open settings
// dialog at the new block, so that no field writes into the old one. `old_backup_path` is only
// compared, never read.
void RepointSettingsDialogs(t_Window *main_window, const char *old_backup_path);
