// What the selectors of Pickett share and no user of the toolkit sees: the head of a selector's
// record and how it answers, reading a folder for a selector's list, wildcard patterns, and the
// path steps of the file selector.
#pragma once
#include "lumora/lumora_internal.h"
#include "toolkit.h"

#define PICKETT_PATH_SIZE 1024  // the paths the selectors keep and build

// One entry of a folder as a selector lists it.
typedef struct T_FOLDER_ENTRY {
    T_NODE_FIELDS(struct T_FOLDER_ENTRY);  // name: the file or folder name; ".." is the way up
    u16 is_folder;
    u16 from;  // which folder it was read from, when a list gathers several (the font selector)
} T_FOLDER_ENTRY;

#define FOLDER_FILES_ONLY 0x1  // ReadFolder: no folders and no way up

// True when `name` matches `pattern`: '*' any run of characters, '?' one character, letters
// compared without case; ';' separates alternatives ("*.fnt;*.*"). "*.*" and an empty or null
// pattern match every name.
int MatchPattern(const char *pattern, const char *name);

// Appends the entries of `folder` to `entries` (which the caller has initialised): first ".."
// unless the folder is "/", then the folders, then the files that match `pattern`, each group
// sorted by name without case; "." never shows. Entries get `from`. Returns false when the
// folder can't be read: that is logged and nothing is added.
int ReadFolder(t_List *entries, const char *folder, const char *pattern, u32 flags, u16 from);
void FreeFolderEntries(t_List *entries);
T_FOLDER_ENTRY *FindFolderEntry(t_List *entries, const char *name, u16 from);

// The nearest existing folder at or above `path` (relative paths count from the working folder),
// without a trailing '/', into `dest` of `size` bytes; "/" at worst.
char *NearestFolder(char *dest, u32 size, const char *path);
// The folder above `folder` ("/" stays "/").
char *ParentFolder(char *dest, u32 size, const char *folder);
// `folder` joined with `name`, without doubling the '/'.
char *JoinPath(char *dest, u32 size, const char *folder, const char *name);

// Splits a typed name into the answer: a name with a full path ("/a/b/c.cpp") gives that folder
// and name, a name with a relative path is taken from `folder`. False for an empty name, one
// that ends in '/' or one too long for the answer's name (logged); the answer is then left as it
// was.
int SplitTypedName(T_FILE_REQUESTER_ANSWER *answer, const char *folder, const char *typed);

// --- What every selector is (selector.cpp) ------------------------------------------------------
// The head of each selector's record, which is the block of its dialog's handler: where its
// answers go, what they carry, and the Cancel button, on which Enter cancels.
typedef struct T_SELECTOR {
    t_Handler head;     // keys first, and the end of the window
    t_Window *parent;   // the parent that was live at the opening, or null
    u32 item_code;      // the init record's, with every answer
    void *answer_data;  // what OK and a preview carry
    void *cancel_data;  // what Cancel carries
    t_gadget *cancel;
    u16 answered;          // OK or Cancel went out: a nested loop must not answer twice
    T_MESSAGE_FN message;  // the selector's own message function, after the close gadget
} T_SELECTOR;

// What sets one selector apart from the others: a row for each kind.
typedef struct T_SELECTOR_KIND {
    i16 user_w, user_h;
    u32 flags, idcmp;
    T_MESSAGE_FN message;  // every message but the close gadget's
    T_HANDLER_INPUT input;
    T_HANDLER_PAINT paint;
    const char *handler_name;
    u32 record_size;          // the handler block, which begins with a T_SELECTOR
    size_t user_data_offset;  // the window's user_data is the block plus this
} T_SELECTOR_KIND;

// Opens a selector of `kind` as a dialog titled `title`, centred on its parent and kept on the
// screen (`user_h` 0: the kind's height), and sets its parent and item code. The close gadget
// cancels every selector alike; each other message goes to kind->message. Null, with nothing open,
// when it can't.
T_SELECTOR *OpenSelector(const T_SELECTOR_KIND *kind, const char *title, t_Window *parent, i16 user_h, u32 item_code);
// Tells the parent `msg` with the answer's data, through the parent's message mask: message
// 0x1000 + n reaches it only when bit n of the mask given at its creation is set.
void TellParent(T_SELECTOR *selector, u32 msg);
// Answers the parent once with ACT_REQUESTER_OK or ACT_REQUESTER_CANCEL, and closes the selector.
void FinishSelector(T_SELECTOR *selector, u32 answer);
// The answer a key gives in a selector: Escape, or Enter on the Cancel button, cancels; Enter
// elsewhere is OK; any other key gives 0.
u32 SelectorKeyAnswer(T_SELECTOR *selector, u16 key);
// A key before the gadgets, where Enter can only mean OK: the answer given and the selector
// closed. False for a key that is no answer.
int SelectorKey(T_SELECTOR *selector, u16 key);
// The end of an opening whose gadgets could not all be made: logged for `who`, the window
// removed. Null.
t_Window *DropSelector(T_SELECTOR *selector, const char *who);

// The font selector's list: the files of `folder` that match `patterns` (from 0), then the
// machine's fonts (from 1, FONT_MACHINE_FOLDER, "*.ttf"), leaving out a machine font whose name
// the folder already has, since a font is found again by its name in the folder first. A missing
// folder adds nothing; one that can't be read adds nothing and is logged.
#define FONT_MACHINE_FOLDER "/usr/share/fonts/truetype/dejavu"
void ReadFontList(t_List *entries, const char *folder, const char *patterns);

// --- The gadgets the selectors are built of (gadgets.cpp) ----------------------------------------
#define SELECTOR_PAD 8
#define SELECTOR_GAP 6
#define SELECTOR_BUTTON_W 80
#define SELECTOR_FIELD_SIZE 256  // a string field's buffer, its terminator included

i16 SelectorRowHeight(void);  // a field's or button's height, from the system font
t_gadget *MakeSelectorGadget(t_Gaget_Handler *handler, u16 type, const char *name, u32 item_code, u32 action,
                             void *data);
// A string field that edits `buffer` (SELECTOR_FIELD_SIZE bytes) in place.
t_gadget *MakeSelectorField(t_Gaget_Handler *handler, char *buffer, u32 item_code);
// Puts new text into a field's buffer and its cursor at the end.
void SetSelectorField(t_gadget *field, char *buffer, const char *text);
// A list box; its entries object is in *list.
t_gadget *MakeSelectorList(t_Gaget_Handler *handler, u32 item_code, T_LIST_DATA **list);
// Replaces the list box's entries by the texts of `entries` (folders with a trailing '/').
void FillSelectorList(t_gadget *gadget, T_LIST_DATA *list, t_List *entries);
void ClearSelectorList(T_LIST_DATA *list);
// The list box's highlighted row as a node of `entries`, or null.
t_Node *SelectedNode(T_LIST_DATA *list, t_List *entries);
// Places a gadget in its window's user area and re-measures it.
void PlaceGadget(t_gadget *gadget, i16 x, i16 y, i16 w, i16 h);
