// Shared types of the toolkit: integer widths, rectangles, list nodes, lists, texts, colours.
#pragma once
#include <stddef.h>
#include <stdint.h>

typedef uint8_t u8;
typedef uint16_t u16;
typedef uint32_t u32;
typedef uint64_t u64;
typedef int8_t i8;
typedef int16_t i16;
typedef int32_t i32;
typedef int64_t i64;

// A rectangle: x, y, width, height.
typedef struct T_RPOS {
    i16 x, y, w, h;
} T_RPOS;

// The first fields of every node; records that live on lists begin with these, in this order, so
// that they can be walked as t_Node.
#define T_NODE_FIELDS(T)                                                                                               \
    T *next;                                                                                                           \
    T *prev;                                                                                                           \
    char *name;                                                                                                        \
    i16 priority;                                                                                                      \
    u16 node_kind

typedef struct t_Node {
    T_NODE_FIELDS(struct t_Node);
} t_Node;

// A list in the form of two overlapping pseudo-nodes: the head (next = first, prev = the null
// word) and the tail mark (next = the null word, prev = last). A walk runs from `first` while
// `next` is not null; the node whose `next` is null is the tail mark, no entry. An empty list has
// `first` pointing at the tail mark. A list must not be copied or moved once initialised.
typedef struct t_List {
    t_Node *first;
    t_Node *null_word;  // always null: the head's prev and the tail mark's next
    t_Node *last;
    const char *list_name;
} t_List;

#define LIST_EMPTY(l) ((l)->first->next == NULL)

// Owned text: the first word is the pointer to the text (null for none), the second its
// allocated size.
typedef struct STRING {
    char *text;
    u32 size;
} STRING;

// Colours. A colour word is 0x00BBGGRR. T_RGBA and T_HSIA hold four floats each, 0 to 255
// for red, green, blue and alpha; hue, saturation and intensity likewise in 0 to 255.
typedef struct T_RGBA {
    float r, g, b, a;
} T_RGBA;

typedef struct T_HSIA {
    float h, s, i, a;
} T_HSIA;

// One row of a name table: a value and its text. A table ends with a row of value 0 and text "".
typedef struct T_VAL2STRING {
    u32 value;
    const char *text;
} T_VAL2STRING;

// A named resource on a resource list: stored settings (type 128), fonts (type 460), bitmaps.
typedef struct T_RESOURCE {
    T_NODE_FIELDS(struct T_RESOURCE);
    u32 type;
    void *data;     // the data block, allocated with AllocMemType and owned by the resource
    u32 data_size;  // its size in bytes
    u32 use_count;  // OpenResource adds one, RemoveResource takes one; freed at 0
    void *object;   // the toolkit's own object behind a font or bitmap resource
    void (*free_object)(void *object);
} T_RESOURCE;

// A resource of type 128 is at the same time the tool set-up of an application.
typedef T_RESOURCE T_TOOL_SETUP;

struct t_Window;
struct t_gadget;
struct t_Gaget_Handler;
struct t_Handler;
struct t_Menu;
struct T_FONT;
struct T_TEXTURE_BANK;
struct T_APPLICATION;
