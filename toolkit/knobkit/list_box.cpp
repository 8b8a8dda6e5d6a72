// List boxes, and trees, which are list boxes whose rows are the open branches (tree.cpp has what
// only trees do). A sunken list of rows of the font's height + 2, scrolled by `top` (the first row
// shown), with a scroll bar at the right when the rows don't fit; the wheel scrolls too.
//
// A press on a row selects it (`selected`) and reports ACT_LMOUSE_DOWN, its release
// ACT_LMOUSE_UP; a drag moves the selection; a double click reports ACT_LMOUSE_DBL (and opens or
// closes a tree's branch). Keys move the selection and report ACT_LMOUSE_UP; Enter reports
// ACT_LMOUSE_DBL. The list is measured at each paint and event, which also answers the editor's
// LIST_RESIZED and TREE_RESIZED.
#include <string.h>

#include "knobkit/knobkit_internal.h"

#define ROW_EXTRA 2     // a row is the font's height plus this
#define WHEEL_ROWS 3    // a wheel notch scrolls this many rows
#define ROW_TEXT_PAD 2  // before the text of a row

static T_LIST_DATA *Data(t_gadget *g)
{
    return (T_LIST_DATA *)g->class_data;
}
static int IsTree(t_gadget *g)
{
    return g->type == GADGET_TYPE_TREE;
}

void ListLayout(t_gadget *g, T_LIST_LAYOUT *l)
{
    T_LIST_DATA *d = Data(g);
    T_RPOS r = GadgetRect(g);
    l->inner = InsetRect(r, (g->live_flags & GADGET_FLAGS_NO_BORDER) ? 1 : 2);
    l->row_h = GadgetFontHeight(g) + ROW_EXTRA;
    l->count = CountRows(d, IsTree(g));
    i32 rows = l->inner.h / l->row_h;
    if (rows < 1)
        rows = 1;
    l->bar = T_RPOS{0, 0, 0, 0};
    if (l->count > rows && l->inner.w > 2 * SCROLL_BAR_SIZE) {
        l->inner.w -= SCROLL_BAR_SIZE;
        l->bar = T_RPOS{(i16)(l->inner.x + l->inner.w), l->inner.y, SCROLL_BAR_SIZE, l->inner.h};
    }
    d->rows = rows;
    i32 last_top = l->count > rows ? l->count - rows : 0;
    if (d->top > last_top)
        d->top = last_top;
    if (d->top < 0)
        d->top = 0;
    if (d->selected >= l->count)
        d->selected = l->count - 1;
    d->resized_flags &= ~(LIST_RESIZED | TREE_RESIZED);
}

i16 ListHeightForWholeRows(t_gadget *g, i16 height)
{
    i16 frame = 2 * ((g->live_flags & GADGET_FLAGS_NO_BORDER) ? 1 : 2);
    i16 row_h = GadgetFontHeight(g) + ROW_EXTRA;
    i16 rows = (height - frame) / row_h;
    return rows < 1 ? height : (i16)(frame + rows * row_h);
}

void ScrollRowIntoView(T_LIST_DATA *d, i32 row)
{
    if (row < 0)
        return;
    if (row < d->top)
        d->top = row;
    if (d->rows > 0 && row >= d->top + d->rows)
        d->top = row - d->rows + 1;
}

static T_ROW_BAR RowBar(t_gadget *g, const T_LIST_LAYOUT *l)
{
    T_LIST_DATA *d = Data(g);
    return T_ROW_BAR{l->bar, l->count, d->rows, &d->top, &g->gadget_state, &g->select_from};
}

void DrawListRow(t_gadget *g, T_RPOS row, const char *text, int selected, int hot)
{
    T_DISPLAY_RECORD *rec = DISPLAY_RECORD;
    u32 colour = GadgetTextColour(g);
    if (selected) {
        DrawRectangle(row.x, row.y, row.w, row.h, rec->select_colour);
        if (!(g->live_flags & GADGET_FLAGS_DISABLED))
            colour = rec->select_text_colour;
    } else if (hot) {
        DrawRectangle(row.x, row.y, row.w, row.h, MixColour(rec->field_colour, rec->select_colour, 64));
    }
    i16 x = row.x + ROW_TEXT_PAD;
    if ((g->live_flags & GADGET_FLAGS_ICON) && g->icon_bank) {
        DrawIconScaled(g->icon_bank, g->icon, x, row.y + 1, row.h - 2, row.h - 2);
        x += row.h;
    }
    // A tab splits a row in two: what follows it stands at the right, as a key does in a menu.
    i16 ty = row.y + (row.h - (i16)GetActiveFontHeight()) / 2;
    const char *tab = strchr(text, '\t');
    if (!tab) {
        DrawText(x, ty, text, colour);
        return;
    }
    DrawTextN(x, ty, text, (u32)(tab - text), colour);
    DrawText((i16)(row.x + row.w - ROW_TEXT_PAD - 2 - GetStringWidth(tab + 1)), ty, tab + 1, colour);
}

static void DrawTreeBox(T_RPOS box, int open, u32 colour)
{
    DrawRectangle(box.x, box.y, box.w, box.h, DISPLAY_RECORD->field_colour);
    DrawOutLineBox(box.x, box.y, box.w, box.h, DISPLAY_RECORD->gadget_dark_colour);
    i16 cx = box.x + box.w / 2, cy = box.y + box.h / 2;
    DrawLine(box.x + 2, cy, box.x + box.w - 3, cy, colour);
    if (!open)
        DrawLine(cx, box.y + 2, cx, box.y + box.h - 3, colour);
}

void DrawListBoxGadget(t_gadget *g, int focused)
{
    T_LIST_DATA *d = Data(g);
    if (!d)
        return;
    DrawFieldBackground(g, GadgetRect(g));
    int disabled = (g->live_flags & GADGET_FLAGS_DISABLED) != 0;
    T_LIST_LAYOUT l;
    ListLayout(g, &l);
    T_RPOS saved;
    if (PushClip(l.inner, &saved)) {
        T_ROW_WALK walk;
        FirstRow(&walk, d, IsTree(g));
        for (i32 i = 0; i < d->top && walk.entry; i++)
            NextRow(&walk);
        for (i32 i = 0; i <= d->rows && walk.entry; i++, NextRow(&walk)) {
            T_RPOS row = {l.inner.x, (i16)(l.inner.y + i * l.row_h), l.inner.w, l.row_h};
            if (IsTree(g)) {  // indented by level, after the branch's +/- box
                T_RPOS box = TreeBoxRect(g, row, walk.level);
                if (HasChildren(walk.entry))
                    DrawTreeBox(box, walk.entry->open, GadgetTextColour(g));
                i16 indent = box.x + box.w + 1 - row.x;
                row.x += indent, row.w -= indent;
            }
            DrawListRow(g, row, walk.entry->name, d->top + i == d->selected, 0);
        }
        PopClip(&saved);
    }
    T_ROW_BAR bar = RowBar(g, &l);
    DrawRowBar(&bar, disabled);
    if (focused)
        DrawGadgetFocus(g);
}

// The row at y from the top row shown; above the rows, the one before the top (-1 at the start).
static i32 RowNear(const T_LIST_DATA *d, const T_LIST_LAYOUT *l, i16 y)
{
    return y < l->inner.y ? d->top - 1 : d->top + (y - l->inner.y) / l->row_h;
}

// The row under y, or -1 off the rows.
static i32 RowAt(const T_LIST_DATA *d, const T_LIST_LAYOUT *l, i16 y)
{
    i32 row = RowNear(d, l, y);
    return row >= 0 && row < l->count ? row : -1;
}

// The list's data with its layout brought up to date; null for a gadget that has none.
static T_LIST_DATA *LaidOut(t_gadget *g, T_LIST_LAYOUT *l)
{
    T_LIST_DATA *d = Data(g);
    if (d)
        ListLayout(g, l);
    return d;
}

u32 ListBoxMouse(t_gadget *g, const T_MOUSE_MSG *m, const T_RPOS *rect)
{
    (void)rect;
    T_LIST_LAYOUT l;
    T_LIST_DATA *d = LaidOut(g, &l);
    if (!d)
        return 0;
    T_ROW_BAR bar = RowBar(g, &l);
    if (RowBarMouse(&bar, m))
        return 0;
    switch (m->mouse_action) {
    case ACT_LMOUSE_DOWN: {  // a tree's +/- box, or a row
        i32 row = RowAt(d, &l, m->y);
        if (row < 0)
            return 0;
        if (IsTree(g)) {
            u16 level;
            RowEntry(d, 1, row, &level);
            T_RPOS box = TreeBoxRect(
                g, T_RPOS{l.inner.x, (i16)(l.inner.y + (row - d->top) * l.row_h), l.inner.w, l.row_h}, level);
            if (PointBoxColl(m->x, m->y, &box) && TreeToggle(g, row))
                return 0;
        }
        d->selected = row;
        g->gadget_state |= GSTATE_DRAGGING;
        return ACT_LMOUSE_DOWN;
    }
    case ACT_MOUSE_MOVE:  // the selection follows; past the ends it scrolls
        if ((g->gadget_state & GSTATE_DRAGGING) && l.count > 0) {
            i32 row = RowNear(d, &l, m->y);
            if (row < 0)
                row = 0;
            if (row >= l.count)
                row = l.count - 1;
            d->selected = row;
            ScrollRowIntoView(d, row);
        }
        return 0;
    case ACT_LMOUSE_UP:
        return EndGadgetPress(g) ? ACT_LMOUSE_UP : 0;
    case ACT_LMOUSE_DBL: {  // on the selected row: reported, and a branch opens or closes
        i32 row = RowAt(d, &l, m->y);
        if (row < 0 || row != d->selected)
            return 0;
        if (IsTree(g))
            TreeToggle(g, row);
        return ACT_LMOUSE_DBL;
    }
    case ACT_MOUSE_WHEEL_UP:
    case ACT_MOUSE_WHEEL_DOWN:
        d->top += m->mouse_action == ACT_MOUSE_WHEEL_UP ? -WHEEL_ROWS : WHEEL_ROWS;
        ListLayout(g, &l);
        return m->mouse_action;
    default:
        return m->mouse_action & (ACT_RMOUSE_DOWN | ACT_RMOUSE_UP);
    }
}

u32 ListBoxKey(t_gadget *g, u16 key, u16 qualifiers)
{
    (void)qualifiers;
    T_LIST_LAYOUT l;
    T_LIST_DATA *d = LaidOut(g, &l);
    if (!d)
        return 0;
    if (l.count == 0)
        return 0;
    i32 row = d->selected;
    switch (key) {
    case KEY_UP:
        row = row > 0 ? row - 1 : 0;
        break;
    case KEY_DOWN:
        row = row + 1;
        break;
    case KEY_PAGE_UP:
        row -= d->rows;
        break;
    case KEY_PAGE_DOWN:
        row = (row < 0 ? 0 : row) + d->rows;
        break;
    case KEY_HOME:
        row = 0;
        break;
    case KEY_END:
        row = l.count - 1;
        break;
    case KEY_RIGHT:  // a tree's branch opens, a list passes the key on
    case KEY_LEFT: {
        if (!IsTree(g) || row < 0)
            return 0;
        T_LIST_ENTRY *e = RowEntry(d, 1, row, NULL);
        if (e && HasChildren(e) && e->open == (key == KEY_LEFT))
            TreeToggle(g, row);
        return GADGET_KEY_TAKEN;
    }
    case KEY_RETURN:
        return row >= 0 ? GADGET_KEY_TAKEN | ACT_LMOUSE_DBL : GADGET_KEY_TAKEN;
    default:
        return 0;
    }
    if (row >= l.count)
        row = l.count - 1;
    if (row < 0)
        row = 0;
    d->selected = row;
    ScrollRowIntoView(d, row);
    return GADGET_KEY_TAKEN | ACT_LMOUSE_UP;
}

int ListBoxInit(t_gadget *g, const T_GADGETOBJECTINIT *init)
{
    (void)init;
    return NewListData(g) != NULL;
}
