// The page commands that act on the marked gadgets as a group: delete, centre, size to contents,
// align, same size and font, and the gadget context menu's form of the size and alignment items,
// which also puts geometry records on the undo list; each of these ends with no gadget marked.
// Flipping and nudging put geometry records too and keep the marks; renumbering item codes.
#include "editor/page_commands.h"

#include <stdio.h>

#include <unordered_map>

#include "editor/context_menus.h"
#include "editor/mouse_editing.h"
#include "editor/undo_records.h"
#include "page/catalogue.h"
#include "properties/gadget_properties.h"

#define TEXT_WIDTH_EXTRA 3   // room beside a gadget's text
#define TEXT_HEIGHT_EXTRA 2  // and above and below it
#define STYLE_SHIFT 14       // GADGET_FLAGS_BOLD and GADGET_FLAGS_ITALICS as the font style's bits
#define STYLE_MASK 3
#define GEOMETRY_FLAG_SIZE 0   // the flag of AddGeometryUndo for "Size to contents"
#define GEOMETRY_FLAG_ALIGN 1  // and for the alignment and equal-size items
#define MATCH_SIZE 2           // beside ALIGN_LEFT_EDGES and ALIGN_TOP_EDGES: the current gadget's size

static void ClearMarks(t_Window *window)
{
    t_gadget *first = FirstPageGadget(window);
    if (first)
        ClearAllMarkedGadgets(first);
}

// Clears the marks and notes the change after an operation on `count` marked gadgets; -1 (no
// current gadget to take from) changed nothing, the marks neither.
static void FinishMarkedOperation(t_Window *window, i32 count)
{
    if (count < 0)
        return;
    ClearMarks(window);
    RecalcUserSize(window);
    if (count > 0)
        window->state_flags |= WSF_MODIFIED;
}

void MarkCurrentIfNothingMarked(t_Window *window)
{
    t_Gaget_Handler *handler = FindGadgetHandler(window);
    t_gadget *current = handler ? handler->current_gadget : NULL;
    if (current && NothingMarked(current))
        current->live_flags |= GADGET_MARK_SELECTED;
}

t_Window *FindGadgetPropertyWindow(t_Window *window, t_gadget *gadget)
{
    for (t_Window *child = window->first_child; child->next; child = child->next)
        if (child->user_data && *(t_gadget **)child->user_data == gadget)
            return child;
    return NULL;
}

void CloseGadgetDialogs(t_Window *window, t_gadget *gadget)
{
    while (t_Window *dialog = FindGadgetPropertyWindow(window, gadget))
        RemoveWindow(dialog);
}

void DeleteMarkedGadgets(t_Window *window)
{
    MarkCurrentIfNothingMarked(window);
    t_Gaget_Handler *handler = FindGadgetHandler(window);
    T_WINEDIT_HANDLER *record = PageRecordOf(window);
    if (handler) {
        for (t_gadget *g = handler->first_gadget; g->next;) {
            t_gadget *next = g->next;
            if (IsGadgetMarked(g)) {
                CloseGadgetDialogs(window, g);
                ForgetGadgetItemCode(window, g);
                if (record)
                    ForgetGadgetInHistory(record, g);
                RemoveObject(&handler->head, g);
            }
            g = next;
        }
    }
    ClearMarks(window);
    RecalcUserSize(window);
    window->state_flags |= WSF_MODIFIED;  // also when nothing was deleted
}

void CentreMarkedGadgets(t_Window *window, u32 direction)
{
    MarkCurrentIfNothingMarked(window);
    u32 count = 0;
    for (t_gadget *g = FirstPageGadget(window); g && g->next; g = g->next) {
        if (!IsGadgetMarked(g))
            continue;
        count++;
        if (direction == CENTRE_HORIZONTAL)
            g->pos_x = (i16)(window->user_w / 2 - g->base_width / 2);
        else
            g->pos_y = (i16)(window->user_h / 2 - g->base_height / 2);
    }
    FinishMarkedOperation(window, (i32)count);
}

void SizeGadgetToContents(t_Window *window, t_gadget *gadget)
{
    T_FONT *before = GetActiveFont();
    T_FONT *font = gadget->font ? FontOfResource(gadget->font) : NULL;
    SetActiveFont(font ? font : DISPLAY_RECORD->system_font);
    i32 plain_height = GetActiveFontHeight();  // before the style is set
    SetFontStyle((u16)((gadget->live_flags >> STYLE_SHIFT) & STYLE_MASK));
    i32 width = GetStringWidth(gadget->name ? gadget->name : "") + TEXT_WIDTH_EXTRA;
    i32 height = GetActiveFontHeight() + TEXT_HEIGHT_EXTRA;
    gadget->base_height = (i16)height;
    if (gadget->type == GADGET_TYPE_CHECK_BOX || gadget->type == GADGET_TYPE_RADIOBUTTON)
        width += plain_height;  // the box or the circle
    if (gadget->live_flags & GADGET_FLAGS_ICON)
        width += height;
    gadget->base_width = (i16)width;
    RecalcUserSize(window);
    SetFontStyle(0);
    SetActiveFont(before);
}

// Sizes the marked gadgets of the kinds that have a text to fit, and unmarks the others, so that
// the marks are left on exactly the gadgets sized. Returns their number.
static u32 SizeMarkedOnly(t_Window *window)
{
    u32 sized = 0;
    for (t_gadget *g = FirstPageGadget(window); g && g->next; g = g->next) {
        if (!IsGadgetMarked(g))
            continue;
        if (GadgetKindHas(g->type, KIND_SIZES_TO_CONTENTS)) {
            SizeGadgetToContents(window, g);
            sized++;
        } else {  // other kinds keep their size
            g->live_flags &= ~GADGET_MARK_SELECTED;
        }
    }
    return sized;
}

void SizeMarkedToContents(t_Window *window)
{
    MarkCurrentIfNothingMarked(window);
    FinishMarkedOperation(window, (i32)SizeMarkedOnly(window));
}

// The marked gadgets take the current gadget's left edge (ALIGN_LEFT_EDGES), top edge
// (ALIGN_TOP_EDGES) or size (MATCH_SIZE); the marks stay. Returns the number of marked gadgets, or
// -1 without a current gadget.
static i32 MatchCurrentGadget(t_Window *window, u32 what)
{
    t_Gaget_Handler *handler = FindGadgetHandler(window);
    t_gadget *current = handler ? handler->current_gadget : NULL;
    if (!current)
        return -1;
    const T_RPOS model = {current->pos_x, current->pos_y, current->pos_width, current->pos_height};
    i32 count = 0;
    for (t_gadget *g = handler->first_gadget; g->next; g = g->next) {
        if (!IsGadgetMarked(g))
            continue;
        count++;
        if (what == ALIGN_LEFT_EDGES) {
            g->pos_x = model.x;
        } else if (what == ALIGN_TOP_EDGES) {
            g->pos_y = model.y;
        } else if (what == MATCH_SIZE) {
            g->pos_width = g->base_width = model.w;
            g->pos_height = g->base_height = model.h;
        }
    }
    return count;
}

void AlignMarkedGadgets(t_Window *window, u32 edge)
{
    FinishMarkedOperation(window, MatchCurrentGadget(window, edge));
}

void SameSizeMarkedGadgets(t_Window *window)
{
    FinishMarkedOperation(window, MatchCurrentGadget(window, MATCH_SIZE));
}

void ApplyFontToMarked(t_Window *window, t_Window *selector)
{
    MarkCurrentIfNothingMarked(window);
    // The font is the same for every gadget: it is loaded once, and its name kept apart, since
    // removing a gadget's old resource may free a font of the same name.
    T_FONT *font = LoadFontFromSelector(selector, 0);
    char name[FONT_NAME_SIZE];
    snprintf(name, sizeof(name), "%s", font && font->name ? font->name : "");
    if (font)
        FreeFont(font);  // the gadgets hold the font through their resources
    for (t_gadget *g = FirstPageGadget(window); g && g->next; g = g->next) {
        if (!IsGadgetMarked(g) || !name[0])
            continue;  // no font picked: the gadget keeps its own
        if (g->font)
            RemoveResource(g->font);
        g->font = OpenResource(&_FontBase->fonts, name, RESOURCE_TYPE_FONT, 0);
    }
    ClearMarks(window);
}

void ApplyGadgetMenuCommand(t_Window *window, u32 item_code)
{
    T_WINEDIT_HANDLER *record = PageRecordOf(window);
    t_gadget *first = FirstPageGadget(window);
    if (!record || !first)
        return;
    // The current gadget (GetCurrentGadget) is the reference of the operations below.
    if (item_code == GADGET_MENU_SIZE_TO_CONTENTS)
        MarkCurrentIfNothingMarked(window);
    if (first->next)
        ApplyFuncToList((t_Node *)first, SnapshotGeometry);
    i32 changed;
    u32 flag = GEOMETRY_FLAG_ALIGN;
    switch (item_code) {
    case GADGET_MENU_SIZE_TO_CONTENTS:  // the marks stay on the gadgets sized
        changed = (i32)SizeMarkedOnly(window);
        flag = GEOMETRY_FLAG_SIZE;
        break;
    case GADGET_MENU_ALIGN_LEFT:
        changed = MatchCurrentGadget(window, ALIGN_LEFT_EDGES);
        break;
    case GADGET_MENU_ALIGN_TOP:
        changed = MatchCurrentGadget(window, ALIGN_TOP_EDGES);
        break;
    case GADGET_MENU_SAME_SIZE:
        changed = MatchCurrentGadget(window, MATCH_SIZE);
        break;
    default:
        return;
    }
    if (changed > 0) {
        RecalcUserSize(window);
        AddGeometryUndo(record, first, flag);
    }
    FinishMarkedOperation(window, changed);
    TellMainWindow(window, 0);
}

// --- Flip and nudge ------------------------------------------------------------------------------

// A gadget's left edge in the user area, wherever it is placed from.
static i16 LeftInUserArea(t_Window *window, const t_gadget *g)
{
    return (i16)(g->screen_x - window->user_x);
}

// The records of a change of the marked gadgets' places, made after it: the geometry was noted
// before it (SnapshotGeometry).
static void NoteMoves(t_Window *window, t_gadget *first)
{
    RecalcUserSize(window);
    if (T_WINEDIT_HANDLER *record = PageRecordOf(window))
        AddGeometryUndo(record, first, GEOMETRY_FLAG_SIZE);
    window->state_flags |= WSF_MODIFIED;
}

void FlipMarkedGadgets(t_Window *window)
{
    t_gadget *first = FirstPageGadget(window);
    if (!first || !first->next || !CountMarkedGadgets(first))
        return;
    i32 left = INT16_MAX, right = INT16_MIN;
    for (t_gadget *g = first; g->next; g = g->next) {
        if (!IsGadgetMarked(g))
            continue;
        i32 x = LeftInUserArea(window, g);
        if (x < left)
            left = x;
        if (x + g->base_width > right)
            right = x + g->base_width;
    }
    ApplyFuncToList((t_Node *)first, SnapshotGeometry);
    for (t_gadget *g = first; g->next; g = g->next) {
        if (!IsGadgetMarked(g))
            continue;
        i32 mirrored = left + right - (LeftInUserArea(window, g) + g->base_width);
        g->pos_x =
            (i16)((g->live_flags & GADGET_FLAGS_FROM_RIGHT) ? window->user_w - mirrored - g->base_width : mirrored);
    }
    NoteMoves(window, first);
}

int NudgeMarkedGadgets(t_Window *window, i16 dx, i16 dy)
{
    t_gadget *first = FirstPageGadget(window);
    if (!first || !first->next || !CountMarkedGadgets(first))
        return 0;
    ApplyFuncToList((t_Node *)first, SnapshotGeometry);
    for (t_gadget *g = first; g->next; g = g->next) {
        if (!IsGadgetMarked(g))
            continue;
        g->pos_x = (i16)(g->live_flags & GADGET_FLAGS_FROM_RIGHT ? g->pos_x - dx : g->pos_x + dx);
        g->pos_y = (i16)(g->live_flags & GADGET_FLAGS_FROM_BOTTOM ? g->pos_y - dy : g->pos_y + dy);
    }
    NoteMoves(window, first);
    return 1;
}

// --- Item codes ----------------------------------------------------------------------------------

// A tab link to the gadget that held `code` now holds the gadget's new code; a link that named no
// gadget stays as it was.
static u32 RelinkedTab(const std::unordered_map<u32, u32> &renumbered, u32 link)
{
    std::unordered_map<u32, u32>::const_iterator found = renumbered.find(link & ~TAB_LINK_FIRST);
    return found == renumbered.end() ? link : found->second | (link & TAB_LINK_FIRST);
}

void ReorderItemCodes(t_Window *window)
{
    t_Gaget_Handler *handler = FindGadgetHandler(window);
    if (!handler)
        return;
    // Old code to new, as the links find a code: the first gadget in list order that holds it.
    std::unordered_map<u32, u32> renumbered;
    u32 counter = 1;
    for (t_gadget *g = handler->first_gadget; g->next; g = g->next) {
        if (g->item_code == 0) {
            g->live_item_code = 0;
            continue;
        }
        renumbered.emplace(g->item_code, counter);
        SetGadgetItemCode(window, g, counter);
        g->live_item_code = counter++;
    }
    for (t_gadget *g = handler->first_gadget; g->next; g = g->next) {
        g->tab[0] = RelinkedTab(renumbered, g->tab[0]);
        g->tab[1] = RelinkedTab(renumbered, g->tab[1]);
    }
    ShowNewItemCodes(window);
    window->state_flags |= WSF_MODIFIED;
}
