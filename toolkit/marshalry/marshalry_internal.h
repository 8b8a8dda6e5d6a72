// What the parts of Marshalry call of each other and no user of the toolkit sees.
#pragma once
#include "toolkit.h"

// True when `window` stands on the current display: found among the top-level windows or their
// children and not removed. Compares pointers only, so a stale pointer is safe to ask about.
int WindowStands(t_Window *window);

// The store file "<data root>/<folder>/<name><extension>" in a static buffer, with separators in
// the name turned into '_'; the folder is made when `make_folder` is set (false if it can't be).
const char *MarshalryStorePath(const char *folder, const char *name, const char *extension, int make_folder);

// Takes one line of a store; false for a line that isn't one of the store's.
typedef int (*T_STORE_LINE_FN)(const char *line, void *context);
// Reads a store file of text lines: `take` gets each line but the empty ones, in order, with
// `context`. A missing store gives nothing, quietly; an unreadable one is logged and sets `store`
// in *broken: STORE_NOT_READ. A line that `take` refuses ends the reading, is logged as
// "<path>:<line>: not <what>" and sets `store` in *broken: STORE_GARBAGE, and the caller drops
// what it took. Else STORE_READ.
enum { STORE_NOT_READ, STORE_GARBAGE, STORE_READ };
int ReadStoreLines(const char *path, u16 *broken, u16 store, const char *what, T_STORE_LINE_FN take, void *context);
// Writes the text of a store of `app` (its `length` bytes), frees it (`capacity` bytes), and clears
// `store` in its broken stores; a store that can't be written is logged as "The <what> of <app>
// could not be stored" and stays broken.
void WriteStoreText(T_APPLICATION *app, const char *folder, const char *extension, u16 store, const char *what,
                    char *text, u32 length, u32 capacity);
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
