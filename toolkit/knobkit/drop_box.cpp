// Drop boxes: a field showing the selected entry with a down arrow beside it. A press opens the
// entries as a list in a popup below the box (above it when the screen ends); picking an entry
// (a click on it, or a release on it after the opening press, or Enter) sets `selected`, closes
// the list and reports ACT_LMOUSE_UP. A press outside, or Escape, closes it unpicked. One list is
// open at a time. The arrow keys change the selection without opening; Space or Enter opens.
#include "knobkit/knobkit_internal.h"

#define DROP_ROWS 8  // the open list shows at most this many rows, and scrolls for more
#define ROW_EXTRA 2
#define WHEEL_ROWS 3

typedef struct T_DROP_LIST {
    t_Handler head;    // of the popup window
    t_gadget *gadget;  // null once the drop box is gone
    i32 top;           // the first row shown
    i32 hot;           // the row under the pointer or the keys, -1 none
    u16 bar_state;     // GSTATE_ON_BAR, GSTATE_ON_MARK of its scroll bar
    i32 grab;
} T_DROP_LIST;

static T_DROP_LIST *open_list;

static T_LIST_DATA *Data(t_gadget *g)
{
    return (T_LIST_DATA *)g->class_data;
}

typedef struct T_DROP_LAYOUT {
    T_RPOS inner, bar;
    i16 row_h;
    i32 count, rows;
} T_DROP_LAYOUT;

static void DropLayout(T_DROP_LIST *dl, T_DROP_LAYOUT *l)
{
    t_Window *w = dl->head.window;
    l->row_h = GadgetFontHeight(dl->gadget) + ROW_EXTRA;
    l->count = (i32)CountListEntries(&Data(dl->gadget)->entries);
    l->rows = l->count < DROP_ROWS ? l->count : DROP_ROWS;
    l->inner = InsetRect(T_RPOS{w->x, w->y, w->w, w->h}, 1);
    l->bar = T_RPOS{0, 0, 0, 0};
    if (l->count > l->rows) {
        l->inner.w -= SCROLL_BAR_SIZE;
        l->bar = T_RPOS{(i16)(l->inner.x + l->inner.w), l->inner.y, SCROLL_BAR_SIZE, l->inner.h};
    }
    i32 last_top = l->count - l->rows;
    if (dl->top > last_top)
        dl->top = last_top;
    if (dl->top < 0)
        dl->top = 0;
}

static T_ROW_BAR DropBar(T_DROP_LIST *dl, const T_DROP_LAYOUT *l)
{
    return T_ROW_BAR{l->bar, l->count, l->rows, &dl->top, &dl->bar_state, &dl->grab};
}

static i32 DropRowAt(T_DROP_LIST *dl, const T_DROP_LAYOUT *l, i16 x, i16 y)
{
    T_RPOS inner = l->inner;
    if (!PointBoxColl(x, y, &inner))
        return -1;
    i32 row = dl->top + (y - inner.y) / l->row_h;
    return row < l->count ? row : -1;
}

static void KeepHotVisible(T_DROP_LIST *dl, i32 rows)
{
    if (dl->hot < 0)
        return;
    if (dl->hot < dl->top)
        dl->top = dl->hot;
    if (dl->hot >= dl->top + rows)
        dl->top = dl->hot - rows + 1;
}

static void CloseDropList(void)
{
    T_DROP_LIST *dl = open_list;
    if (!dl)
        return;
    open_list = NULL;
    if (dl->gadget)
        dl->gadget->gadget_state &= ~GSTATE_OPEN;
    RemoveWindow(dl->head.window);
}

// The list closes first, so that the report finds things as they will stay.
static void Pick(T_DROP_LIST *dl, i32 row)
{
    t_gadget *g = dl->gadget;
    CloseDropList();
    if (!g || row < 0)
        return;
    Data(g)->selected = row;
    if (!g->action_fn && (g->live_action & ACT_LMOUSE_UP))
        SendWindowMessage(g->window, g->live_item_code, ACT_LMOUSE_UP, g);
}

static u32 DropListMouse(T_DROP_LIST *dl, const T_MOUSE_MSG *m)
{
    T_DROP_LAYOUT l;
    DropLayout(dl, &l);
    T_ROW_BAR bar = DropBar(dl, &l);
    if (RowBarMouse(&bar, m))
        return 1;
    i32 row = DropRowAt(dl, &l, m->x, m->y);
    switch (m->mouse_action) {
    case ACT_LMOUSE_DOWN:  // a row, to be picked at the release
    case ACT_MOUSE_MOVE:
    case 0:  // a move with no button: the highlight follows
        if (row >= 0)
            dl->hot = row;
        return 1;
    case ACT_LMOUSE_UP:
        if (row >= 0)
            Pick(dl, row);
        return 1;
    case ACT_MOUSE_WHEEL_UP:
    case ACT_MOUSE_WHEEL_DOWN:
        dl->top += m->mouse_action == ACT_MOUSE_WHEEL_UP ? -WHEEL_ROWS : WHEEL_ROWS;
        DropLayout(dl, &l);
        return 1;
    default:
        return 1;
    }
}

static u32 DropListKey(T_DROP_LIST *dl, const T_KEY_MSG *k)
{
    T_DROP_LAYOUT l;
    DropLayout(dl, &l);
    switch (k->key_code) {
    case KEY_UP:
        dl->hot = dl->hot > 0 ? dl->hot - 1 : 0;
        break;
    case KEY_DOWN:
        dl->hot = dl->hot + 1 < l.count ? dl->hot + 1 : l.count - 1;
        break;
    case KEY_RETURN:
    case ' ':
        Pick(dl, dl->hot);
        return 1;
    case KEY_ESCAPE:
        CloseDropList();
        return 1;
    default:
        return 0;
    }
    KeepHotVisible(dl, l.rows);
    return 1;
}

static u32 DropListInput(t_Handler *head, u32 event, void *data)
{
    T_DROP_LIST *dl = (T_DROP_LIST *)head;
    switch (event) {
    case HANDLER_EVENT_END:  // the popup is freed
        if (open_list == dl) {
            open_list = NULL;
            if (dl->gadget)
                dl->gadget->gadget_state &= ~GSTATE_OPEN;
        }
        return 0;
    case HANDLER_EVENT_MOUSE:
        return dl->gadget && open_list == dl ? DropListMouse(dl, (T_MOUSE_MSG *)data) : 0;
    case HANDLER_EVENT_KEY:
        return dl->gadget && open_list == dl ? DropListKey(dl, (T_KEY_MSG *)data) : 0;
    case HANDLER_EVENT_OUTSIDE: {  // closes; a press on the box itself goes no further
        T_MOUSE_MSG *m = (T_MOUSE_MSG *)data;
        t_gadget *g = dl->gadget;
        CloseDropList();
        if (!g)
            return 0;
        T_RPOS r = GadgetRect(g);
        return PointBoxColl(m->x, m->y, &r);
    }
    default:
        return 0;
    }
}

static void DropListPaint(t_Handler *head)
{
    T_DROP_LIST *dl = (T_DROP_LIST *)head;
    t_gadget *g = dl->gadget;
    if (!g || !g->class_data)
        return;
    T_DISPLAY_RECORD *rec = DISPLAY_RECORD;
    t_Window *w = head->window;
    DrawRectangle(w->x, w->y, w->w, w->h, rec->field_colour);
    DrawOutLineBox(w->x, w->y, w->w, w->h, rec->frame_dark_colour);
    GadgetTextFont(g);
    T_DROP_LAYOUT l;
    DropLayout(dl, &l);
    T_RPOS saved;
    if (PushClip(l.inner, &saved)) {
        T_LIST_ENTRY *e = (T_LIST_ENTRY *)FindNodeByIndex(&Data(g)->entries, (u32)dl->top);
        for (i32 i = 0; e && e->next && i < l.rows; i++, e = e->next) {
            T_RPOS row = {l.inner.x, (i16)(l.inner.y + i * l.row_h), l.inner.w, l.row_h};
            DrawListRow(g, row, e->name, dl->top + i == dl->hot, dl->top + i == Data(g)->selected);
        }
        PopClip(&saved);
    }
    T_ROW_BAR bar = DropBar(dl, &l);
    DrawRowBar(&bar, 0);
    GadgetTextFontEnd();
}

// Below the box, or above it when the screen ends there; false when it has no entries or the
// popup can't be made (logged).
static int OpenDropList(t_gadget *g)
{
    CloseDropList();
    i32 count = (i32)CountListEntries(&Data(g)->entries);
    if (count == 0)
        return 0;
    i16 row_h = GadgetFontHeight(g) + ROW_EXTRA;
    i16 h = (i16)((count < DROP_ROWS ? count : DROP_ROWS) * row_h + 2);
    i16 x = g->screen_x, y = g->screen_y + g->base_height;
    if (y + h > CURRENT_DISPLAY->height && g->screen_y - h >= 0)
        y = g->screen_y - h;
    t_Window *popup = CreatePopupWindow(x, y, g->base_width, h, NULL);
    if (!popup)
        return 0;
    popup->flags |= WF_NO_BACK;
    T_DROP_LIST *dl = (T_DROP_LIST *)NewHandler(&popup->handlers, DropListInput, DropListPaint, "drop list", 0,
                                                sizeof(T_DROP_LIST), popup);
    if (!dl) {
        myprintf(0, "The list of the drop box %s could not be opened\n", g->name);
        RemoveWindow(popup);
        return 0;
    }
    dl->gadget = g;
    dl->hot = Data(g)->selected;
    KeepHotVisible(dl, DROP_ROWS);
    open_list = dl;
    g->gadget_state |= GSTATE_OPEN;
    return 1;
}

int DropBoxInit(t_gadget *g, const T_GADGETOBJECTINIT *init)
{
    T_LIST_DATA *d = NewListData(g);
    if (!d)
        return 0;
    d->selected = init->init_val;
    return 1;
}

void DropBoxFree(t_gadget *g)
{
    if (open_list && open_list->gadget == g) {
        open_list->gadget = NULL;
        CloseDropList();
    }
    FreeListData(g);
}

static T_LIST_ENTRY *SelectedEntry(t_gadget *g)
{
    T_LIST_DATA *d = Data(g);
    if (d->selected < 0)
        return NULL;
    T_LIST_ENTRY *e = (T_LIST_ENTRY *)FindNodeByIndex(&d->entries, (u32)d->selected);
    return e && e->next ? e : NULL;
}

static T_RPOS ArrowRect(const T_RPOS &r)
{
    i16 side = r.h < r.w / 2 ? r.h : r.w / 2;
    return T_RPOS{(i16)(r.x + r.w - side), r.y, side, r.h};
}

void DrawDropBoxGadget(t_gadget *g, int focused)
{
    if (!g->class_data)
        return;
    T_DISPLAY_RECORD *rec = DISPLAY_RECORD;
    T_RPOS r = GadgetRect(g), arrow = ArrowRect(r);
    T_RPOS field = {r.x, r.y, (i16)(r.w - arrow.w), r.h};
    u32 flags = g->live_flags;
    int disabled = (flags & GADGET_FLAGS_DISABLED) != 0, border = !(flags & GADGET_FLAGS_NO_BORDER);
    u32 back = disabled ? rec->gadget_colour : (flags & GADGET_FLAGS_SOLID) ? g->back_colour : rec->field_colour;
    if ((flags & GADGET_FLAGS_HILIGHT) && !disabled)
        back = MixColour(back, rec->select_colour, 64);
    DrawRectangle(field.x, field.y, field.w, field.h, back);
    if (border)
        DrawBevelBox(field.x, field.y, field.w, field.h, rec->gadget_dark_colour, rec->gadget_light_colour);
    DrawRectangle(arrow.x, arrow.y, arrow.w, arrow.h, rec->gadget_colour);
    if (border)
        DrawGadgetBevel(arrow, (g->gadget_state & GSTATE_OPEN) != 0);
    DrawArrow(arrow, ARROW_DOWN, GadgetTextColour(g));
    T_RPOS text = InsetRect(field, 2), saved;
    if (PushClip(text, &saved)) {
        if ((flags & GADGET_FLAGS_ICON) && g->icon_bank) {
            DrawIconScaled(g->icon_bank, g->icon, text.x, text.y, text.h, text.h);
            text.x += text.h + 2, text.w -= text.h + 2;
        }
        if (T_LIST_ENTRY *e = SelectedEntry(g)) {
            // Left-aligned, as a desktop drop box shows it: a long entry is cut at the arrow only.
            i16 th = (i16)GetActiveFontHeight();
            DrawText(text.x + 2, r.y + (r.h - th) / 2, e->name, GadgetTextColour(g));
        }
        PopClip(&saved);
    }
    if (focused)
        DrawGadgetFocus(g);
}

// The entry of g's open list under the pointer; -1 off its entries, or when g's list is not open.
static i32 OpenRowAt(t_gadget *g, const T_MOUSE_MSG *m)
{
    if (!open_list || open_list->gadget != g)
        return -1;
    T_DROP_LAYOUT l;
    DropLayout(open_list, &l);
    return DropRowAt(open_list, &l, m->x, m->y);
}

u32 DropBoxMouse(t_gadget *g, const T_MOUSE_MSG *m, const T_RPOS *rect)
{
    (void)rect;
    if (!g->class_data)
        return 0;
    switch (m->mouse_action) {
    case ACT_LMOUSE_DOWN:  // opens the list; the release may pick from it
        if (!OpenDropList(g))
            return ACT_LMOUSE_DOWN;
        g->gadget_state |= GSTATE_DRAGGING;
        return ACT_LMOUSE_DOWN;
    case ACT_MOUSE_MOVE: {  // the opening press dragged over the list
        i32 row = (g->gadget_state & GSTATE_DRAGGING) ? OpenRowAt(g, m) : -1;
        if (row >= 0)
            open_list->hot = row;
        return 0;
    }
    case ACT_LMOUSE_UP: {  // released on an entry: picked
        i32 row = EndGadgetPress(g) ? OpenRowAt(g, m) : -1;
        if (row >= 0)
            Pick(open_list, row);
        return 0;
    }
    default:
        return m->mouse_action & GADGET_PASSED_ON;
    }
}

// Up and Down step through the entries without opening; Space or Enter opens the list.
u32 DropBoxKey(t_gadget *g, u16 key, u16 qualifiers)
{
    (void)qualifiers;
    T_LIST_DATA *d = Data(g);
    if (!d)
        return 0;
    i32 count = (i32)CountListEntries(&d->entries);
    switch (key) {
    case KEY_UP:
    case KEY_DOWN: {
        i32 row = d->selected + (key == KEY_UP ? -1 : 1);
        if (row < 0 || row >= count)
            return GADGET_KEY_TAKEN;
        d->selected = row;
        return GADGET_KEY_TAKEN | ACT_LMOUSE_UP;
    }
    case ' ':
    case KEY_RETURN:
        OpenDropList(g);
        return GADGET_KEY_TAKEN;
    default:
        return 0;
    }
}
