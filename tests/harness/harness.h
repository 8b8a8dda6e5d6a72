// The whole application, headless, in a temporary data root, driven as a person would.
#pragma once
#include "host/tool_icons.h"
#include "host/user_actions.h"
#include "page/records.h"
#include "tests/harness/input.h"

typedef struct T_HARNESS {
    char root[512];  // the data root
    t_Window *main_window;
    T_APPLICATION *application;
    T_TEXTURE_BANK *icon_bank;
    int own_root;  // the root was made here and is removed by HarnessStop
} T_HARNESS;

// Opens the toolkit headless on a screen of width by height with the data root `root` (null: a
// new temporary folder), enters the module and turns the loop once. False when anything failed.
int HarnessStart(T_HARNESS *harness, const char *root, i16 width, i16 height);
// Closes the toolkit. The data root stays when `keep_root` is set, for a second run.
void HarnessStop(T_HARNESS *harness, int keep_root);
// Makes a temporary folder; returns its path in `path`.
int MakeTempRoot(char *path, size_t size);
// Removes a folder and everything below it.
void RemoveTree(const char *path);
// Lines that myprintf printed since the last call (the log is captured while the harness runs).
const char *HarnessLog(void);
void HarnessClearLog(void);
