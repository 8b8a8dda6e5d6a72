// Ostrand: memory, lists, texts, objects and handlers, resources, files and paths, the loop's turn.
#pragma once
#include <stdarg.h>

#include "constants.h"
#include "types.h"

// --- Base record ---------------------------------------------------------------------------------
#define OSTRAND_TEXT_BUFFER_SIZE 4096
#define FILE_PATH_SIZE 1024     // a path buffer of the file and path operations: 1023 characters
#define READ_LINE_SIZE 1024     // a line buffer of ReadLine: a longer line is cut there
#define RELATIVE_PATH_SIZE 256  // a stored file's path below the data root
#define FILE_NAME_SIZE 256      // a file name without its folder

typedef struct T_OSTRAND_BASE {
    u32 default_memory_type;                     // the type that AllocMemType gives by default
    char text_buffer[OSTRAND_TEXT_BUFFER_SIZE];  // a shared buffer for formatting one message
    char data_root[FILE_PATH_SIZE];              // where MakePathFromSystem resolves, no trailing '/'
    int log_level;                               // myprintf prints levels up to this one
    u64 blocks_allocated;                        // live blocks, for leak checks in tests
    u64 size_mismatches;                         // FreeMem calls whose size didn't match
} T_OSTRAND_BASE;

extern T_OSTRAND_BASE *_OstrandBase;

// --- Memory --------------------------------------------------------------------------------------
// Blocks are freed with their size. In debug builds a FreeMem whose size differs from the
// allocation is reported on standard error and counted in `size_mismatches`.
void *AllocMemType(u32 type, u32 size);  // cleared; null only when the machine has no memory
void *AllocMemC(u32 size);               // cleared, of the default type
void FreeMem(void *block, u32 size);     // null is ignored
void ZeroMem(void *block, u32 size);

// --- Lists ---------------------------------------------------------------------------------------
void InitList(t_List *list, const char *name);
// Allocates a cleared node of `node_size` bytes named `name` (copied into the node's own block
// when the name is not null), adds it at the end and returns it.
t_Node *NewTail(t_List *list, u32 node_size, const char *name);
// Adds `node` before the first node of lower priority, after those of equal priority.
void AddQueue(t_List *list, t_Node *node);
void AddTail(t_List *list, t_Node *node);
void AddHead(t_List *list, t_Node *node);
void SubNode(t_Node *node);  // unlinks the node from whatever list holds it
// Unlinks and frees every node with FreeMem(node, node_size); a node's name block made by
// NewTail goes with it.
void EmptyList(t_List *list, u32 node_size);
void TransferList(t_List *to, t_List *from);  // moves all nodes of `from` to the end of `to`
u32 CountListEntries(t_List *list);
t_Node *FindFirstNode(t_Node *node);                // from any node (or the tail mark) to the first
t_Node *FindNode(t_Node *first, const char *name);  // by name from `first` on; null if none
t_Node *FindNodeByIndex(t_List *list, u32 index);
// The first node whose u32 field at byte `offset` (offsetof) holds `value`; null if none.
t_Node *FindNodeByField(t_List *list, size_t offset, u32 value);
void ApplyFuncToList(t_Node *first, void (*fn)(void *node));
void ApplyFuncToListData(t_Node *first, void (*fn)(void *node, void *data), void *data);

// --- Texts ---------------------------------------------------------------------------------------
char *AllocString(const char *text, STRING *string);  // replaces the string's text by a copy
void FreeString(STRING *string);
// Removes every space from `text`, in place, and returns it.
char *RemoveSpacesFromString(char *text);
// Turns a symbolic name such as IDCMP_REQUESTER_OK into a label such as "Requester ok", in place.
char *MakeReadable(char *text);
// The unsigned value of the hexadecimal digits at the start of `text`, up to the first
// character that is no hexadecimal digit.
u32 CalcHexNumber(const char *text);
const char *FindV2SByCode(const T_VAL2STRING *table, u32 value);   // exact value; null if none
u32 FindV2SByString(const T_VAL2STRING *table, const char *text);  // whole text; 0 if none

// --- Objects and handlers ------------------------------------------------------------------------
typedef u32 (*T_HANDLER_INPUT)(struct t_Handler *handler, u32 event, void *data);
typedef void (*T_HANDLER_PAINT)(struct t_Handler *handler);

enum {
    HANDLER_KIND_USER = 0,
    HANDLER_KIND_WINDOW_CLASS,
    HANDLER_KIND_DETACHED_MENU_CLASS,
    HANDLER_KIND_GADGET,
    HANDLER_KIND_MENU,
    HANDLER_KIND_BORDER,
    HANDLER_KIND_TITLEBAR,
    HANDLER_KIND_TOOLBAR,
    HANDLER_KIND_SELECTOR,  // a file, font or colour selector's record
};

// The head of every handler. A handler made by NewHandler is a block of `size` bytes that begins
// with this head; the owner's fields follow it.
typedef struct t_Handler {
    T_NODE_FIELDS(struct t_Handler);
    T_HANDLER_INPUT input;
    T_HANDLER_PAINT paint;
    struct t_Window *window;
    u32 size;      // the whole block, head included
    u32 kind;      // HANDLER_KIND_
    t_List *list;  // the list that holds the handler
} t_Handler;

// Makes a handler of `size` bytes (at least the head), named `name`, puts it on `list` by
// priority and returns it.
t_Handler *NewHandler(t_List *list, T_HANDLER_INPUT input, T_HANDLER_PAINT paint, const char *name, i16 priority,
                      u32 size, struct t_Window *window);
void DelHandler(t_Handler *handler);  // unlinks and frees; sends event 1 first
// Creates what the handler makes from `init`: a window (window class handler), a gadget or a list
// entry (gadget handler), a menu entry (menu handler), a detached menu (detached-menu class).
void *CreateObject(t_Handler *handler, const char *name, void *init);
void RemoveObject(t_Handler *handler, void *object);
// One turn of the event loop: input, mouse-move hooks, queued messages, repaint, present.
// Re-entrant: a message function may call it again. `handler` may be null (the display's).
void RefreshHandlers(t_Handler *handler);

// --- Resources -----------------------------------------------------------------------------------
// Finds a resource by name and type on `list`, adds a use and returns it. A type 128 resource that
// is not on the list is looked for in the persistent store below the data root; a font or bitmap
// resource is loaded from its file. Null when absent or unreadable (which is logged once).
T_RESOURCE *OpenResource(t_List *list, const char *name, u32 type, u32 flags);
// Makes a resource with a cleared data block of `size` bytes and puts it on the list.
T_RESOURCE *CreateResource(t_List *list, const char *name, u32 size, u32 type);
void RemoveResource(T_RESOURCE *resource);  // takes one use; frees at the last
// Writes every type 128 resource of `list` to the persistent store, each atomically. Returns the
// number that could not be written.
u32 StoreResources(t_List *list);

// --- Files ---------------------------------------------------------------------------------------
// A path longer than FILE_PATH_SIZE - 1 characters is refused by every operation, with a log line.
// The whole file in one block of GetLoadFileSize() bytes (plus one NUL byte not counted), freed
// with FreeMem(data, GetLoadFileSize()). Null on failure.
void *LoadFile(const char *path);
u32 GetLoadFileSize(void);
// Copies one line without its line end ("\n" or "\r\n") into `line` and closes it with a NUL.
// Returns the bytes consumed, line end included; 0 only at the end of the data.
u32 ReadLine(char *line, const char *position, const char *end);
// Starts a file: the text goes to the temporary file ".<name>.tmp" beside `path` and is moved into
// place when the next InitSaveFile comes, or FinishSaveFile is called; the new file keeps the old
// one's mode. Returns false when it can't be started: the path is too long, the directory isn't
// there or can't be written, or the file is write-protected (no write permission for anyone).
int InitSaveFile(const char *path);
void SavePrint(const char *text);
// Moves the file started by InitSaveFile into place. Returns false, and leaves the old file whole,
// when anything failed; SaveFileError() then tells why.
int FinishSaveFile(void);
const char *SaveFileError(void);
// Atomic, through the same temporary file; the new file gets the ordinary mode whatever the old
// one had. False on failure, with a log line.
int SaveFile(const char *path, const void *data, u32 size);

int FileExists(const char *path);
int DirectoryExists(const char *path);
int MakeEntireDirectory(const char *path);  // all levels; true when it exists afterwards

// --- Paths ---------------------------------------------------------------------------------------
// A '\\' in a name given by the program is taken as a separator. Results are written into the
// caller's buffer, which holds at least FILE_PATH_SIZE bytes, and returned. A result that would
// not fit is refused, not cut: the buffer is left empty, null is returned and a line is logged.
char *XGetPath(char *dest, const char *path);         // the directory of `path`, no separator
char *StripPath(char *dest, const char *path);        // the file name with its extension
char *StripPathAndExt(char *dest, const char *path);  // the file name without its extension
char *AddBackSlashToPath(char *path);                 // adds the separator unless it ends in one
int ExtensionExists(const char *path);                // the file name has a '.'
char *MakeFilename(char *dest, const char *directory, const char *name);
char *MakePathFromSystem(const char *relative);  // below the data root; a static buffer
int IsAbsolutePath(const char *path);            // '/' first, or the drive form "X:\"

// --- Log -----------------------------------------------------------------------------------------
// Level 0 errors, 3 information; printed on standard error when level <= the log level.
void myprintf(int level, const char *format, ...) __attribute__((format(printf, 2, 3)));
#define LOG_LINE_SIZE 1024  // a log line built in place; a longer one takes a block of its own
// True when `condition` holds; else false, with an error line naming the file and line where it
// did not. For what must hold but would otherwise fail silently: a fixed array that is full, a case
// that cannot happen.
#define QF_EXPECT(condition) ((condition) ? 1 : (myprintf(0, "%s:%d: expected %s", __FILE__, __LINE__, #condition), 0))

// Sets the data root, creating it if needed; false when it can't be made or written.
int SetDataRoot(const char *path);
// Takes the data root for this process, by a lock on the file "lock" in it that the system
// releases when the process ends, however it ends. 1: taken (or already held). 0: another process
// holds it; *holder is its process id, 0 when it can't be told. -1: the lock can't be had at all
// (the file can't be made, or the system keeps no locks there), which the caller may pass over.
int LockDataRoot(u32 *holder);
