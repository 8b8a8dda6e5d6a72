// The gadget catalogue: the row of each kind, from its toolbar entry to its defaults, and the
// making of a gadget from a row in the steps that every kind shares, the row deciding each one.
#include "page/catalogue.h"

#include <stdio.h>
#include <string.h>

#define TEXT_BUFFER_SIZE 256
#define CREATED_MARK GADGET_MARK_CREATED
#define EDIT_ACTION_MASK (ACT_LMOUSE_UP | ACT_LMOUSE_DOWN | ACT_LMOUSE_DBL | ACT_RMOUSE_UP | ACT_RMOUSE_DOWN)
#define DESIGN_ACTION (ACT_LMOUSE_UP | ACT_LMOUSE_DBL)
#define NAMED_KIND (KIND_TEXT_FROM_FILE | KIND_SIZES_TO_CONTENTS)  // its name is a text that it fits

// The rows in tool order: the toolbar's from the selector to the drop box, then the kinds that
// only come out of a page file.
// clang-format off
const T_CATALOGUE_ROW catalogue_rows[TOOL_COUNT] = {
    {.label = "Selector", .icon = TOOL_ICON_SELECTOR, .item_code = 0xF000},
    {.type = GADGET_TYPE_CHECK_BOX, .label = "Checkbox", .icon = TOOL_ICON_CHECK_BOX, .item_code = 0xF001,
     .object_text = "New Checkbox", .default_text = "New Checkbox",
     .traits = NAMED_KIND, .row_mask = 0x302D30B},
    {.type = GADGET_TYPE_LIST_BOX, .label = "Listbox", .icon = TOOL_ICON_LIST_BOX, .item_code = 0xF002,
     .object_text = "My Listbox", .extra_flags = CREATED_MARK,
     .gadget_icon = 16, .entry_count = 16, .entry_format = "Example List box entry %d", .row_mask = 0x30ACD2B},
    {.type = GADGET_TYPE_RADIOBUTTON, .label = "Radio button", .icon = TOOL_ICON_RADIO_BUTTON, .item_code = 0xF003,
     .object_text = "New Radio button", .default_text = "New Radio button", .extra_flags = CREATED_MARK,
     .traits = NAMED_KIND, .row_mask = 0x306D30B},
    {.type = GADGET_TYPE_SLIDER, .orientation = GADGET_FLAGS_HORIZONTAL,
     .label = "Vertical Slider", .icon = TOOL_ICON_VERTICAL_SLIDER, .item_code = 0xF004,
     .object_text = "My slider", .extra_flags = CREATED_MARK,
     .traits = KIND_RANGE | KIND_FLAGS_AS_GIVEN, .row_mask = 0x3060D2B},
    {.type = GADGET_TYPE_SLIDER, .orientation = GADGET_FLAGS_VERTICAL,
     .label = "Horizontal Slider", .icon = TOOL_ICON_HORIZONTAL_SLIDER, .item_code = 0xF00D,
     .object_text = "My slider", .extra_flags = CREATED_MARK,
     .traits = KIND_RANGE | KIND_FLAGS_AS_GIVEN, .row_mask = 0x3060D2B},
    {.type = GADGET_TYPE_TEXT, .label = "Text", .icon = TOOL_ICON_TEXT, .item_code = 0xF005,
     .object_text = "New Text", .default_text = "New Text", .extra_flags = CREATED_MARK | GADGET_FLAGS_NO_BORDER,
     .traits = NAMED_KIND | KIND_CLICKABLE, .row_mask = 0x30AD30B},
    {.type = GADGET_TYPE_STRING, .label = "String entry", .icon = TOOL_ICON_STRING, .item_code = 0xF006,
     .object_text = "My String", .default_text = "String Gadget", .extra_flags = CREATED_MARK,
     .data = KIND_DATA_STRING_BUFFER, .max = 250, .row_mask = 0x382D32B},
    {.type = GADGET_TYPE_TREE, .label = "Tree", .icon = TOOL_ICON_TREE, .item_code = 0xF007,
     .object_text = "My Tree", .extra_flags = CREATED_MARK,
     .traits = KIND_OWN_FLAGS | KIND_NO_ICON_BANK | KIND_BRANCHES,
     .init_val = 4, .max = 64, .entry_count = 8, .entry_format = "Branch %d", .row_mask = 0x302C12B},
    {.type = GADGET_TYPE_SCROLLBAR, .orientation = GADGET_FLAGS_VERTICAL,
     .label = "Horizontal scrollbar", .icon = TOOL_ICON_HORIZONTAL_SCROLLBAR, .item_code = 0xF008,
     .object_text = "My ScrollBar", .extra_flags = CREATED_MARK,
     .traits = KIND_FLAGS_AS_GIVEN | KIND_NO_ICON_BANK, .max = 64, .mark_width = 4, .row_mask = 0x3020D0B},
    {.type = GADGET_TYPE_SCROLLBAR, .orientation = GADGET_FLAGS_HORIZONTAL,
     .label = "Vertical scrollbar", .icon = TOOL_ICON_VERTICAL_SCROLLBAR, .item_code = 0xF009,
     .object_text = "My ScrollBar", .extra_flags = CREATED_MARK,
     .traits = KIND_FLAGS_AS_GIVEN | KIND_NO_ICON_BANK, .max = 64, .mark_width = 4, .row_mask = 0x3020D0B},
    {.type = GADGET_TYPE_GROUP, .label = "Group", .icon = TOOL_ICON_GROUP, .item_code = 0xF00A,
     .object_text = "New Group", .default_text = "New Group", .extra_flags = CREATED_MARK | GADGET_FLAGS_NO_BORDER,
     .traits = KIND_TEXT_FROM_FILE | KIND_CLICKABLE | KIND_NO_ITEM_CODE, .row_mask = 0x302F10B},
    {.type = GADGET_TYPE_BUTTON, .label = "Button", .icon = TOOL_ICON_BUTTON, .item_code = 0xF00B,
     .object_text = "", .default_text = "New Button", .extra_flags = CREATED_MARK,
     .traits = NAMED_KIND, .row_mask = 0x30FF32B},
    {.type = GADGET_TYPE_DROP_BOX, .label = "Dropbox", .icon = TOOL_ICON_DROP_BOX, .item_code = 0xF00C,
     .object_text = "My DropBox", .extra_flags = CREATED_MARK,
     .entry_count = 10, .entry_format = "Example Drop box entry %d", .row_mask = 0x30AF32B},
    {.type = GADGET_TYPE_COLOUR_FLAT, .object_text = "New Flat Colour", .extra_flags = CREATED_MARK,
     .traits = KIND_TEXT_FROM_FILE | KIND_NO_FONT, .data = KIND_DATA_FLAT_COLOUR, .row_mask = 0x30A010B},
    {.type = GADGET_TYPE_TEXTURE, .object_text = "", .default_text = "New Texture gadget", .extra_flags = CREATED_MARK,
     .traits = KIND_TEXT_FROM_FILE, .data = KIND_DATA_TEXTURE},
    {.type = GADGET_TYPE_SCENE, .object_text = "", .default_text = "New Scene gadget", .extra_flags = CREATED_MARK,
     .traits = KIND_TEXT_FROM_FILE, .data = KIND_DATA_SCENE},
    {.type = GADGET_TYPE_USER, .object_text = "", .default_text = "New User gadget", .extra_flags = CREATED_MARK,
     .traits = KIND_TEXT_FROM_FILE},
};
// clang-format on

// The module-wide colour of new flat colour gadgets: HSI (0, 0, 0), alpha 0, as RGBA.
static T_RGBA flat_rgba;
static T_HSIA flat_hsia;

static T_COLOUR_DATA flat_colour = {&flat_rgba, &flat_hsia, 5};

#define SAMPLE_TEXT_SIZE 64                    // a sample entry's text
#define SAMPLE_LEAF_FORMAT "Leaf %d Entry %d"  // the tree's leaves under each branch

// The texture and scene records: zeroed blocks; the texture's sixth 32-bit word is 16.
#define KIND_RECORD_WORDS 8
static u32 texture_record[KIND_RECORD_WORDS] = {0, 0, 0, 0, 0, 16, 0, 0};
static u32 scene_record[KIND_RECORD_WORDS];

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

const T_CATALOGUE_ROW *CatalogueRowOfType(u16 type)
{
    for (i16 tool = TOOL_FIRST; tool < TOOL_COUNT; tool++)
        if (catalogue_rows[tool].type == type)
            return &catalogue_rows[tool];
    return NULL;
}

int GadgetKindHas(u16 type, u16 trait)
{
    const T_CATALOGUE_ROW *row = CatalogueRowOfType(type);
    return row && (row->traits & trait);
}

i16 ToolOfType(u16 type, u32 flags)
{
    int horizontal = (flags & GADGET_FLAGS_HORIZONTAL) != 0;
    for (i16 tool = TOOL_FIRST; tool < TOOL_COUNT; tool++) {
        const T_CATALOGUE_ROW *row = &catalogue_rows[tool];
        if (row->type == type && (!row->orientation || (row->orientation == GADGET_FLAGS_HORIZONTAL) == horizontal))
            return tool;
    }
    return 0;
}

u32 DesignActionOfType(u16 type)
{
    return GadgetKindHas(type, KIND_NO_ITEM_CODE) ? 0 : DESIGN_ACTION;
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

// Three levels of branches under the tree's entry list, the first level in the row's format.
static void AddSampleBranches(t_List *list, const T_CATALOGUE_ROW *row)
{
    char text[SAMPLE_TEXT_SIZE];
    for (int branch = 0; branch < row->entry_count; branch++) {
        snprintf(text, sizeof(text), row->entry_format, branch);
        T_LIST_ENTRY *b = NewBranch(list, NULL, text, 0);
        for (int leaf = 0; leaf < row->entry_count; leaf++) {
            snprintf(text, sizeof(text), SAMPLE_LEAF_FORMAT, branch, leaf);
            T_LIST_ENTRY *l = NewBranch(&b->children, NULL, text, 0);
            for (int sub = 0; sub < row->entry_count; sub++) {
                snprintf(text, sizeof(text), "Subleaf %d Entry %d", leaf, sub);
                NewBranch(&l->children, NULL, text, 0);
            }
        }
    }
}

// Adds the row's sample entries to the object that holds them: entries of a list or drop box are
// objects made with the holder as their parent gadget.
static void AddSampleEntries(t_Gaget_Handler *handler, T_GADGETOBJECTINIT *init, void *holder,
                             const T_CATALOGUE_ROW *row)
{
    if (row->traits & KIND_BRANCHES) {
        AddSampleBranches(&((T_LIST_DATA *)holder)->entries, row);
        return;
    }
    char text[SAMPLE_TEXT_SIZE];
    init->parent_gadget = holder;
    for (int i = 0; i < row->entry_count; i++) {
        snprintf(text, sizeof(text), row->entry_format, i);
        CreateObject(&handler->head, text, init);
    }
}

// What the kind takes from the caller's record, with its orientation added to the flags.
static void TakeToolArgs(T_GADGET_TOOL_ARGS *args, t_Window *window, const T_GADGETOBJECTINIT *caller,
                         const T_CATALOGUE_ROW *row)
{
    args->window = window;
    args->gadget_handler = FindGadgetHandler(window);
    args->x = caller->x;
    args->y = caller->y;
    args->base_width = caller->base_width;
    args->base_height = caller->base_height;
    args->font = caller->font;
    args->hover_text = caller->hover_text;
    args->flags = caller->flags | row->orientation;
    args->min = caller->min;
    args->max = caller->max;
    args->step = caller->step;
    args->cursor = caller->cursor;
    args->tab[0] = caller->tab[0];
    args->tab[1] = caller->tab[1];
}

// The data that the kind's creation record carries; a string's buffer is made here.
static void *KindData(const T_CATALOGUE_ROW *row)
{
    switch (row->data) {
    case KIND_DATA_STRING_BUFFER:  // filled with the default text once the gadget stands
        return AllocMemC(TEXT_BUFFER_SIZE);
    case KIND_DATA_FLAT_COLOUR:  // the colour record, its RGBA worked out from its HSI
        HSIToRGB(&flat_hsia, &flat_rgba);
        return &flat_colour;
    case KIND_DATA_TEXTURE:
        return texture_record;
    case KIND_DATA_SCENE:
        return scene_record;
    default:
        return NULL;
    }
}

// The creation record of the kind, from the caller's arguments and the row.
static void FillCreationRecord(T_GADGETOBJECTINIT *init, const T_GADGET_TOOL_ARGS *args, const T_CATALOGUE_ROW *row)
{
    memset(init, 0, sizeof(*init));
    init->x = args->x;
    init->y = args->y;
    init->base_width = args->base_width;
    init->base_height = args->base_height;
    if (!(row->traits & KIND_NO_FONT)) {
        init->font = args->font;
        init->cursor = (u8)args->cursor;
    }
    init->hover_text = args->hover_text;
    init->tab[0] = args->tab[0];
    init->tab[1] = args->tab[1];
    init->type = row->type;
    init->item_code = 1;
    init->action = EDIT_ACTION_MASK;
    init->menu_owner = &gadget_context_menu;
    if (!(row->traits & KIND_NO_ICON_BANK))
        init->icon_bank = DISPLAY_RECORD->icon_bank;
    init->flags = (row->traits & KIND_OWN_FLAGS ? 0 : args->flags) | row->extra_flags;
    init->icon = row->gadget_icon;
    init->init_val = row->init_val;
    init->max = row->max;
    init->mark_width = row->mark_width;
    if (row->traits & KIND_RANGE) {  // the caller's range, starting halfway; marks across the slider
        init->min = args->min;
        init->max = args->max;
        init->step = args->step;
        init->init_val = (args->max - args->min) / 2;
        i16 across = args->flags & GADGET_FLAGS_HORIZONTAL ? args->base_height : args->base_width;
        init->mark_width = (i16)(across - 4);
        init->mark_height = (i16)(across - 2);
    }
    init->data = KindData(row);
}

// The text buffer, which the gadget owns and frees.
static void AttachTextBuffer(t_gadget *gadget, const T_CATALOGUE_ROW *row, void *data)
{
    if (row->traits & KIND_TEXT_FROM_FILE) {  // its own buffer is its name
        gadget->user_data = AllocMemType(_OstrandBase->default_memory_type, TEXT_BUFFER_SIZE);
        gadget->free_fn = FreeTextBuffer;
        if (row->default_text)
            snprintf((char *)gadget->user_data, TEXT_BUFFER_SIZE, "%s", row->default_text);
        gadget->name = (char *)gadget->user_data;
    } else if (row->data == KIND_DATA_STRING_BUFFER) {  // the string's buffer; the name stays
        gadget->user_data = data;
        gadget->free_fn = FreeStringBuffers;
        snprintf((char *)data, TEXT_BUFFER_SIZE, "%s", row->default_text);
    }
}

t_gadget *CreateGadgetByTool(t_Window *window, i16 tool, T_GADGETOBJECTINIT *caller)
{
    if (tool < TOOL_FIRST || tool >= TOOL_COUNT)
        return NULL;
    const T_CATALOGUE_ROW *row = &catalogue_rows[tool];
    T_GADGET_TOOL_ARGS args;
    TakeToolArgs(&args, window, caller, row);
    T_GADGETOBJECTINIT init;
    FillCreationRecord(&init, &args, row);

    // The toolkit's object; for a kind with sample entries, the object that holds them.
    void *object = CreateObject(&args.gadget_handler->head, row->object_text, &init);
    t_gadget *gadget = (t_gadget *)object;
    if (row->entry_count) {
        AddSampleEntries(args.gadget_handler, &init, object, row);
        gadget = GetCurrentGadget(window);
    }
    if (!gadget)
        return NULL;
    AttachTextBuffer(gadget, row, init.data);
    gadget->action_fn = editor_hooks.gadget_action;
    if (row->traits & KIND_CLICKABLE)
        gadget->live_flags &= ~GADGET_FLAGS_PASSIVE;

    // The design fields. The new gadget enters the page's set of codes with 0, which
    // counts for no code.
    gadget->item_code = 0;
    AddGadgetItemCode(window, gadget);
    if (!(row->traits & KIND_NO_ITEM_CODE))
        SetGadgetItemCode(window, gadget, NextFreeItemCodeOf(window));
    gadget->action = row->traits & KIND_NO_ITEM_CODE ? 0 : DESIGN_ACTION;
    gadget->flags = row->traits & KIND_FLAGS_AS_GIVEN ? args.flags : gadget->live_flags & ~(u32)CREATED_MARK;
    return gadget;
}
