// The gadget catalogue: one creator per tool, each a variation of the button's steps, with the
// defaults and sample contents that make a new gadget look like its kind.
#include "page/catalogue.h"

#include <stdio.h>
#include <string.h>

#include "editor/mouse_editing.h"

#define TEXT_BUFFER_SIZE 256
#define CREATED_MARK GADGET_MARK_CREATED
#define EDIT_ACTION_MASK 0x73  // left up, down, double; right up, down: what GadgetEditAction needs
#define DESIGN_ACTION 0x50     // ACT_LMOUSE_UP, ACT_LMOUSE_DBL

// How a creator differs from the button.
enum {
    ENTRIES_NONE,
    ENTRIES_LIST,   // 16 sample entries
    ENTRIES_DROP,   // 10 sample entries
    ENTRIES_TREE,   // three levels of 8
};

enum {
    BUFFER_TEXT,     // a 256-byte buffer with the default text, which becomes the name
    BUFFER_NONE,     // the fixed name; no user_data, no free_fn
    BUFFER_STRING,   // the buffer goes in as data before creation; the name stays
    BUFFER_EMPTY,    // the buffer becomes the name with no text in it (filled by the reader)
};

typedef struct T_TOOL_ROW {
    u16 type;
    u32 orientation;    // added to the caller's flags
    u32 extra_flags;    // added in step 4 besides the caller's flags
    u8 keep_flags;      // 0: the caller's flags are ignored (the tree)
    const char *object_text;   // the text given to CreateObject
    const char *default_text;  // the text put into the buffer
    u8 buffer;
    u8 entries;
    u8 passive_out;     // GADGET_FLAGS_PASSIVE taken out of live_flags after creation
    u8 no_item_code;    // a group takes no item code and reports nothing
} T_TOOL_ROW;

//  type                         orientation          extra flags  keep  object text           default text            buffer         entries       passive  no code
static const T_TOOL_ROW tool_rows[TOOL_LAST + 1] = {
    {0, 0, 0, 0, NULL, NULL, 0, 0, 0, 0},
    {GADGET_TYPE_CHECK_BOX, 0, 0, 1, "New Checkbox", "New Checkbox", BUFFER_TEXT, ENTRIES_NONE, 0, 0},
    {GADGET_TYPE_LIST_BOX, 0, CREATED_MARK, 1, "My Listbox", NULL, BUFFER_NONE, ENTRIES_LIST, 0, 0},
    {GADGET_TYPE_RADIOBUTTON, 0, CREATED_MARK, 1, "New Radio button", "New Radio button", BUFFER_TEXT, ENTRIES_NONE, 0, 0},
    {GADGET_TYPE_SLIDER, GADGET_FLAGS_HORIZONTAL, CREATED_MARK, 1, "My slider", NULL, BUFFER_NONE, ENTRIES_NONE, 0, 0},
    {GADGET_TYPE_SLIDER, GADGET_FLAGS_VERTICAL, CREATED_MARK, 1, "My slider", NULL, BUFFER_NONE, ENTRIES_NONE, 0, 0},
    {GADGET_TYPE_TEXT, 0, CREATED_MARK | GADGET_FLAGS_NO_BORDER, 1, "New Text", "New Text", BUFFER_TEXT, ENTRIES_NONE, 1, 0},
    {GADGET_TYPE_STRING, 0, CREATED_MARK, 1, "My String", "String Gadget", BUFFER_STRING, ENTRIES_NONE, 0, 0},
    {GADGET_TYPE_TREE, 0, CREATED_MARK, 0, "My Tree", NULL, BUFFER_NONE, ENTRIES_TREE, 0, 0},
    {GADGET_TYPE_SCROLLBAR, GADGET_FLAGS_VERTICAL, CREATED_MARK, 1, "My ScrollBar", NULL, BUFFER_NONE, ENTRIES_NONE, 0, 0},
    {GADGET_TYPE_SCROLLBAR, GADGET_FLAGS_HORIZONTAL, CREATED_MARK, 1, "My ScrollBar", NULL, BUFFER_NONE, ENTRIES_NONE, 0, 0},
    {GADGET_TYPE_GROUP, 0, CREATED_MARK | GADGET_FLAGS_NO_BORDER, 1, "New Group", "New Group", BUFFER_TEXT, ENTRIES_NONE, 1, 1},
    {GADGET_TYPE_BUTTON, 0, CREATED_MARK, 1, "", "New Button", BUFFER_TEXT, ENTRIES_NONE, 0, 0},
    {GADGET_TYPE_DROP_BOX, 0, CREATED_MARK, 1, "My DropBox", NULL, BUFFER_NONE, ENTRIES_DROP, 0, 0},
    {GADGET_TYPE_COLOUR_FLAT, 0, CREATED_MARK, 1, "New Flat Colour", NULL, BUFFER_EMPTY, ENTRIES_NONE, 0, 0},
    {GADGET_TYPE_TEXTURE, 0, CREATED_MARK, 1, "", "New Texture gadget", BUFFER_TEXT, ENTRIES_NONE, 0, 0},
    {GADGET_TYPE_SCENE, 0, CREATED_MARK, 1, "", "New Scene gadget", BUFFER_TEXT, ENTRIES_NONE, 0, 0},
    {GADGET_TYPE_USER, 0, CREATED_MARK, 1, "", "New User gadget", BUFFER_TEXT, ENTRIES_NONE, 0, 0},
};

// The module-wide colour of new flat colour gadgets: HSI (0, 0, 0), alpha 0, as RGBA.
static T_RGBA flat_rgba;
static T_HSIA flat_hsia;

static T_COLOUR_DATA flat_colour = {&flat_rgba, &flat_hsia, 5};

// The texture and scene records: zeroed blocks; the texture's sixth 32-bit word is 16.
static u32 texture_record[8] = {0, 0, 0, 0, 0, 16, 0, 0};
static u32 scene_record[8];

static void FreeTextBuffer(void *any, t_gadget *gadget)
{
    (void)any;
    FreeMem(gadget->user_data, TEXT_BUFFER_SIZE);
    gadget->user_data = NULL;
}

static void FreeStringBuffers(void *any, t_gadget *gadget)
{
    (void)any;
    // The string's buffer is both its class data and its user data: one block, freed once.
    if (gadget->user_data)
        FreeMem(gadget->user_data, TEXT_BUFFER_SIZE);
    if (gadget->class_data == (uintptr_t)gadget->user_data)
        gadget->class_data = 0;
    gadget->user_data = NULL;
}

u32 DesignActionOfType(u16 type)
{
    for (const T_TOOL_ROW &row : tool_rows)
        if (row.type == type && row.object_text)
            return row.no_item_code ? 0 : DESIGN_ACTION;
    return DESIGN_ACTION;
}

u32 NextFreeItemCode(t_gadget *first)
{
    // The codes in use below the count of gadgets + 1 decide; one pass marks them.
    u32 count = 0;
    for (t_gadget *g = first; g && g->next; g = g->next)
        count++;
    if (count == 0)
        return 1;
    u32 need = count + 2;  // codes 1 to count + 1
    u8 small[256];
    u8 *used = need <= sizeof(small) ? small : (u8 *)AllocMemC(need);
    if (used == small)
        memset(small, 0, need);
    for (t_gadget *g = first; g->next; g = g->next)
        if (g->item_code >= 1 && g->item_code <= count + 1)
            used[g->item_code] = 1;
    u32 code = 1;
    while (used[code])
        code++;
    if (used != small)
        FreeMem(used, need);
    return code;
}

// Adds the sample entries of a list box, drop box or tree to the object that holds them.
static void AddSampleEntries(t_Gaget_Handler *handler, T_GADGETOBJECTINIT *init, void *holder, u8 entries)
{
    char text[64];
    switch (entries) {
    case ENTRIES_LIST:
    case ENTRIES_DROP: {
        init->parent_gadget = holder;
        u32 count = entries == ENTRIES_LIST ? 16 : 10;
        const char *format = entries == ENTRIES_LIST ? "Example List box entry %d" : "Example Drop box entry %d";
        for (u32 i = 0; i < count; i++) {
            snprintf(text, sizeof(text), format, (int)i);
            CreateObject(&handler->head, text, init);
        }
        break;
    }
    case ENTRIES_TREE: {
        t_List *list = &((T_LIST_DATA *)holder)->entries;
        for (int branch = 0; branch < 8; branch++) {
            snprintf(text, sizeof(text), "Branch %d", branch);
            T_LIST_ENTRY *b = NewBranch(list, NULL, text, 0);
            for (int leaf = 0; leaf < 8; leaf++) {
                snprintf(text, sizeof(text), "Leaf %d Entry %d", branch, leaf);
                T_LIST_ENTRY *l = NewBranch(&b->children, NULL, text, 0);
                for (int sub = 0; sub < 8; sub++) {
                    snprintf(text, sizeof(text), "Subleaf %d Entry %d", leaf, sub);
                    NewBranch(&l->children, NULL, text, 0);
                }
            }
        }
        break;
    }
    }
}

t_gadget *CreateGadgetByTool(t_Window *window, i16 tool, T_GADGETOBJECTINIT *caller)
{
    if (tool < TOOL_FIRST || tool > TOOL_LAST)
        return NULL;
    const T_TOOL_ROW *row = &tool_rows[tool];
    T_GADGET_TOOL_ARGS args;
    args.window = window;
    args.gadget_handler = FindGadgetHandler(window);
    args.x = caller->x;
    args.y = caller->y;
    args.base_width = caller->base_width;
    args.base_height = caller->base_height;
    args.font = caller->font;
    args.hover_text = caller->hover_text;
    args.flags = caller->flags | row->orientation;
    args.min = caller->min;
    args.max = caller->max;
    args.step = caller->step;
    args.cursor = caller->cursor;
    args.tab[0] = caller->tab[0];
    args.tab[1] = caller->tab[1];

    // Steps 1-4: the creator's own record.
    T_GADGETOBJECTINIT init;
    memset(&init, 0, sizeof(init));
    init.x = args.x;
    init.y = args.y;
    init.base_width = args.base_width;
    init.base_height = args.base_height;
    if (row->type != GADGET_TYPE_COLOUR_FLAT) {
        init.font = args.font;
        init.cursor = (u8)args.cursor;
    }
    init.hover_text = args.hover_text;
    init.tab[0] = args.tab[0];
    init.tab[1] = args.tab[1];
    init.type = row->type;
    init.item_code = 1;
    init.action = EDIT_ACTION_MASK;
    init.menu_owner = &gadget_context_menu;
    init.icon_bank = DISPLAY_RECORD->icon_bank;
    init.flags = (row->keep_flags ? args.flags : 0) | row->extra_flags;

    void *buffer = NULL;
    switch (row->type) {
    case GADGET_TYPE_LIST_BOX:
        init.icon = 16;
        break;
    case GADGET_TYPE_SLIDER:
        init.min = args.min;
        init.max = args.max;
        init.step = args.step;
        init.init_val = (args.max - args.min) / 2;
        if (args.flags & GADGET_FLAGS_HORIZONTAL) {
            init.mark_width = (i16)(args.base_height - 4);
            init.mark_height = (i16)(args.base_height - 2);
        } else {
            init.mark_width = (i16)(args.base_width - 4);
            init.mark_height = (i16)(args.base_width - 2);
        }
        break;
    case GADGET_TYPE_STRING:
        init.max = 250;
        buffer = AllocMemC(TEXT_BUFFER_SIZE);
        init.data = buffer;
        break;
    case GADGET_TYPE_TREE:
        init.init_val = 4;
        init.max = 64;
        init.icon_bank = NULL;
        break;
    case GADGET_TYPE_SCROLLBAR:
        init.max = 64;
        init.mark_width = 4;
        init.icon_bank = NULL;
        break;
    case GADGET_TYPE_COLOUR_FLAT:
        HSIToRGB(&flat_hsia, &flat_rgba);
        init.data = &flat_colour;
        break;
    case GADGET_TYPE_TEXTURE:
        init.data = texture_record;
        break;
    case GADGET_TYPE_SCENE:
        init.data = scene_record;
        break;
    }

    // Step 5: the toolkit's object; for lists, drop boxes and trees, what holds the entries.
    void *object = CreateObject(&args.gadget_handler->head, row->object_text, &init);
    t_gadget *gadget;
    if (row->entries != ENTRIES_NONE) {
        AddSampleEntries(args.gadget_handler, &init, object, row->entries);
        gadget = GetCurrentGadget(window);
    } else {
        gadget = (t_gadget *)object;
    }
    if (!gadget)
        return NULL;

    // Steps 6-8: the text buffer.
    switch (row->buffer) {
    case BUFFER_TEXT:
    case BUFFER_EMPTY:
        gadget->user_data = AllocMemType(_OstrandBase->default_memory_type, TEXT_BUFFER_SIZE);
        gadget->free_fn = FreeTextBuffer;
        if (row->default_text)
            snprintf((char *)gadget->user_data, TEXT_BUFFER_SIZE, "%s", row->default_text);
        gadget->name = (char *)gadget->user_data;
        break;
    case BUFFER_STRING:
        gadget->user_data = buffer;
        gadget->free_fn = FreeStringBuffers;
        snprintf((char *)buffer, TEXT_BUFFER_SIZE, "%s", row->default_text);
        break;
    case BUFFER_NONE:
        break;
    }
    gadget->action_fn = GadgetEditAction;
    if (row->passive_out)
        gadget->live_flags &= ~GADGET_FLAGS_PASSIVE;

    // Step 9: the design fields.
    // The new gadget enters the page's set of codes with 0, which counts for no code.
    gadget->item_code = 0;
    AddGadgetItemCode(window, gadget);
    if (!row->no_item_code)
        SetGadgetItemCode(window, gadget, NextFreeItemCodeOf(window));
    gadget->action = row->no_item_code ? 0 : DESIGN_ACTION;
    switch (row->type) {
    case GADGET_TYPE_SLIDER:
    case GADGET_TYPE_SCROLLBAR:
        gadget->flags = args.flags;
        break;
    default:
        gadget->flags = gadget->live_flags & ~(u32)CREATED_MARK;
        break;
    }
    return gadget;
}
