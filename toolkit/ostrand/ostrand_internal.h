// What the parts of Ostrand and Marshalry call of Ostrand and no user of the toolkit sees.
#pragma once
#include "ostrand.h"

// Memory (memory.cpp): a cleared block whose recorded size is `size` but which holds `extra`
// more cleared bytes behind it, so that FreeMem(block, size) frees the whole. Null when the
// machine has no memory.
void *AllocMemExtra(u32 type, u32 size, u32 extra);

// Lists (lists.cpp): a cleared node of `node_size` bytes (at least a t_Node) with its name copied
// into the same block, behind the node; on no list. Freed with FreeMem(node, NodeBlockSize(size)).
t_Node *NewNamedNode(u32 node_size, const char *name);
u32 NodeBlockSize(u32 node_size);

// Paths (paths.cpp): copies `path` into `dest` (dest_size bytes) with '\\' turned into '/';
// returns false when it had to be cut.
int NormalisePath(char *dest, const char *path, u32 dest_size);
// The data root, made (with all levels) on first use when it was never set.
const char *DataRoot(void);

// Files (files.cpp): writes `size` bytes to the temporary file ".<name>.tmp" beside `path`, syncs
// it and renames it into place. False on failure, with the reason in SaveFileError(); logs only a
// path that is too long. SAVE_KEEP_MODE: a document, which keeps its mode and is not replaced
// when it is write-protected; else a store, which gets the ordinary mode.
#define SAVE_KEEP_MODE 1
int WriteFileAtomic(const char *path, const void *data, u32 size, u32 flags);
// Whether anything at all stands at `path` (a file, a folder, a link).
int PathExists(const char *path);
// Why the last LoadFile gave null ("Permission denied", "a folder stands there", ...).
const char *LoadFileError(void);
// SaveFile for a store of the toolkit: a folder standing where the file goes is moved aside first.
int SaveStoreFile(const char *path, const void *data, u32 size);
// For the tests: called after a save's temporary file is written and before it is renamed.
extern void (*save_pause_hook)(void);
