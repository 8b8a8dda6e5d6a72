// What the parts of Marshalry call of each other and no user of the toolkit sees.
#pragma once
#include "toolkit.h"

// True when `window` stands on the current display: found among the top-level windows or their
// children and not removed. Compares pointers only, so a stale pointer is safe to ask about.
int WindowStands(t_Window *window);

// The store file "<data root>/<folder>/<name><extension>" in a static buffer, with separators in
// the name turned into '_'; the folder is made when `make_folder` is set (false if it can't be).
const char *MarshalryStorePath(const char *folder, const char *name, const char *extension,
                               int make_folder);

// Reads a store file of text lines. Null when it is missing (quietly) or unreadable (logged, and
// `store` set in *broken); the block is freed with FreeMem(text, *size).
char *LoadStoreText(const char *path, u32 *size, u16 *broken, u16 store);
// Writes again, whole, each application's stores that couldn't be read at the start, so that an
// orderly end heals them.
void StoreBrokenStores(void);

// Commands (commands.cpp): forgets the application's cached key store; writes its keys.
void ForgetKeyStore(T_APPLICATION *app);
void StoreKeys(T_APPLICATION *app);

// Recent files (recent.cpp): forgets the entries made in menus, which went with the toolkit;
// writes an application's lists.
void ForgetRecentEntries(void);
void StoreRecentFiles(T_APPLICATION *app);
