// String gadgets: a sunken field that edits a text buffer in place, with a cursor and a selection.
//
// The buffer is the gadget's `data`, always read afresh, so that an owner may re-point it; the
// owner's buffer holds max_chars + 1 bytes. Without a buffer (or with PutStringName) the gadget
// makes its own, holding its name, kept in class_data and freed with it. The cursor is `value`,
// the selection's other end `select_from`, the first character shown `scroll`. Keys insert
// printable Latin-1 as single bytes. Enter reports ACT_LMOUSE_UP; so does leaving the field,
// which the field learns at its next paint, and which reaches the window as a posted message.
#include <stdio.h>
#include <string.h>

#include "knobkit/knobkit_internal.h"

#define STRING_DEFAULT_MAX 255
#define STRING_PAD 3  // between the field's inside and the text
#define SECRET_CHAR '*'
#define SHOWN_MAX 1024  // a secret text is shown as up to this many stars

static char *Text(t_gadget *g)
{
    return g->data ? (char *)g->data : (char *)"";
}

static i32 Length(t_gadget *g)
{
    return (i32)strlen(Text(g));
}

// Cursor, anchor and scroll inside the text, which its owner may have changed.
static void Sync(t_gadget *g)
{
    i32 n = Length(g);
    if (g->value > n)
        g->value = n;
    if (g->select_from > n)
        g->select_from = n;
    if (g->value < 0)
        g->value = 0;
    if (g->select_from < 0)
        g->select_from = 0;
    if (g->scroll > n)
        g->scroll = n;
    if (g->scroll < 0)
        g->scroll = 0;
}

// What the field shows: the text, or as many stars under GADGET_FLAGS_SECRET.
static const char *Shown(t_gadget *g, char *stars)
{
    if (!(g->live_flags & GADGET_FLAGS_SECRET))
        return Text(g);
    i32 n = Length(g);
    if (n > SHOWN_MAX)
        n = SHOWN_MAX;
    memset(stars, SECRET_CHAR, (size_t)n);
    stars[n] = 0;
    return stars;
}

static T_RPOS TextArea(t_gadget *g, const T_RPOS *rect)
{
    T_RPOS inner = InsetRect(*rect, (g->live_flags & GADGET_FLAGS_NO_BORDER) ? 0 : 2);
    inner.x += STRING_PAD - 2, inner.w -= 2 * (STRING_PAD - 2);
    return inner;
}

// Width of the shown characters from `scroll` up to `index`.
static i32 WidthTo(t_gadget *g, const char *shown, i32 index)
{
    return index <= g->scroll ? 0 : GetStringWidthN(shown + g->scroll, (u32)(index - g->scroll));
}

// The character place nearest to x; left of the field it is the one before the first shown.
static i32 IndexAt(t_gadget *g, i16 x, const T_RPOS *rect)
{
    char stars[SHOWN_MAX + 1];
    const char *shown = Shown(g, stars);
    i32 px = x - TextArea(g, rect).x, n = (i32)strlen(shown);
    if (px < 0)
        return g->scroll > 0 ? g->scroll - 1 : 0;
    i32 before = 0;
    for (i32 i = g->scroll; i < n; i++) {
        i32 after = WidthTo(g, shown, i + 1);
        if (px < (before + after) / 2)
            return i;
        before = after;
    }
    return n;
}

// Scrolls so that the cursor shows, and no room is left empty while text is scrolled away.
static void KeepCursorVisible(t_gadget *g, const T_RPOS *rect)
{
    char stars[SHOWN_MAX + 1];
    const char *shown = Shown(g, stars);
    i32 room = TextArea(g, rect).w - 1, n = (i32)strlen(shown);
    if (g->value < g->scroll)
        g->scroll = g->value;
    while (g->scroll < g->value && WidthTo(g, shown, g->value) > room)
        g->scroll++;
    while (g->scroll > 0 && GetStringWidthN(shown + g->scroll - 1, (u32)(n - g->scroll + 1)) <= room)
        g->scroll--;
}

static int HasSelection(t_gadget *g)
{
    return g->value != g->select_from;
}

static void DeleteSelection(t_gadget *g)
{
    i32 a = g->value < g->select_from ? g->value : g->select_from;
    i32 b = g->value < g->select_from ? g->select_from : g->value;
    char *t = Text(g);
    memmove(t + a, t + b, strlen(t + b) + 1);
    g->value = g->select_from = a;
}

static void Insert(t_gadget *g, char c)
{
    if (!g->data)
        return;
    if (HasSelection(g))
        DeleteSelection(g);
    char *t = Text(g);
    i32 n = (i32)strlen(t);
    if (n >= g->max_chars)
        return;
    memmove(t + g->value + 1, t + g->value, (size_t)(n - g->value + 1));
    t[g->value++] = c;
    g->select_from = g->value;
}

// Backspace (dir -1) or Delete (+1): the selection, else the character on that side.
static void Erase(t_gadget *g, int dir)
{
    if (!g->data)
        return;
    if (!HasSelection(g)) {
        i32 at = dir < 0 ? g->value - 1 : g->value;
        if (at < 0 || at >= Length(g))
            return;
        g->select_from = at, g->value = at + 1;
    }
    DeleteSelection(g);
}

static int IsWordChar(char c)
{
    return c != ' ' && c != '\t';
}

static void SelectWordAt(t_gadget *g, i32 at)
{
    const char *t = Text(g);
    i32 a = at, b = at, n = (i32)strlen(t);
    while (a > 0 && IsWordChar(t[a - 1]))
        a--;
    while (b < n && IsWordChar(t[b]))
        b++;
    g->select_from = a, g->value = b;
}

int StringInit(t_gadget *g, const T_GADGETOBJECTINIT *init)
{
    g->max_chars = init->max > 0 ? (i16)(init->max < 0x7FFF ? init->max : 0x7FFF) : STRING_DEFAULT_MAX;
    if (!init->data || init->data == (void *)PutStringName) {
        char *own = (char *)AllocMemC((u32)g->max_chars + 1);
        if (!own)
            return 0;
        strncpy(own, g->name ? g->name : "", (size_t)g->max_chars);
        g->data = own;
        g->class_data = (uintptr_t)own;
    }
    g->value = g->select_from = Length(g);
    return 1;
}

void StringFree(t_gadget *g)
{
    if (g->class_data) {
        if (g->data == (void *)g->class_data)
            g->data = NULL;
        FreeMem((void *)g->class_data, (u32)g->max_chars + 1);
        g->class_data = 0;
    }
    // A posted report of leaving the field must not outlive the gadget.
    t_List *posted = &lumora_state.posted;
    for (t_Node *n = posted->first; n->next;) {
        t_Node *next = n->next;
        if (((T_POSTED_MESSAGE *)n)->data == g) {
            SubNode(n);
            FreeMem(n, sizeof(T_POSTED_MESSAGE));
        }
        n = next;
    }
}

static int HasFocus(t_gadget *g)
{
    return g->handler && g->handler->current_gadget == g && FocusWindow() == g->window;
}

// The focus left the field since its last paint: that is reported as ACT_LMOUSE_UP.
void NoteStringFocus(t_gadget *g)
{
    int current = g->handler && g->handler->current_gadget == g;
    if (current) {
        g->gadget_state |= GSTATE_FOCUS;
        return;
    }
    if (!(g->gadget_state & GSTATE_FOCUS))
        return;
    g->gadget_state &= ~(GSTATE_FOCUS | GSTATE_DRAGGING);
    g->select_from = g->value;
    if (!g->action_fn && (g->live_action & ACT_LMOUSE_UP) && g->window)
        PostWindowMessage(g->window, g->live_item_code, ACT_LMOUSE_UP, g);
}

void DrawStringGadget(t_gadget *g, int focused)
{
    (void)focused;  // the cursor shows the focus
    NoteStringFocus(g);
    Sync(g);
    T_DISPLAY_RECORD *rec = DISPLAY_RECORD;
    T_RPOS r = GadgetRect(g);
    u32 flags = g->live_flags;
    int disabled = (flags & GADGET_FLAGS_DISABLED) != 0;
    DrawFieldBackground(g, r);
    T_RPOS area = TextArea(g, &r), saved;
    // Upright, the text may use all but the border line, so that short fields keep descenders.
    i16 border = (flags & GADGET_FLAGS_NO_BORDER) ? 0 : 1;
    area.y = r.y + border, area.h = r.h - 2 * border;
    if (!PushClip(area, &saved))
        return;
    char stars[SHOWN_MAX + 1];
    const char *shown = Shown(g, stars);
    // The ink (capitals down to descenders) is centred, not the line with its leading.
    i16 th = (i16)GetActiveFontHeight(), ascent = (i16)GetActiveFontAscent();
    i16 cap = ascent * 4 / 5, descent = th - ascent;
    i16 ty = r.y + (r.h + cap - descent + 1) / 2 - ascent;
    DrawText(area.x, ty, shown + g->scroll, GadgetTextColour(g));
    if (HasFocus(g) && !disabled) {
        if (HasSelection(g)) {
            i32 a = g->value < g->select_from ? g->value : g->select_from;
            i32 b = g->value < g->select_from ? g->select_from : g->value;
            if (a < g->scroll)
                a = g->scroll;
            if (b > a) {
                i16 xa = (i16)(area.x + WidthTo(g, shown, a)), xb = (i16)(area.x + WidthTo(g, shown, b));
                DrawRectangle(xa, ty, xb - xa, th, rec->select_colour);
                DrawTextN(xa, ty, shown + a, (u32)(b - a), rec->select_text_colour);
            }
        }
        i16 cx = (i16)(area.x + WidthTo(g, shown, g->value));
        DrawLine(cx, ty, cx, ty + th - 1, g->text_colour);
    }
    PopClip(&saved);
}

// Click places the cursor (Shift extends the selection), a drag selects, a double click selects
// the word. Only the press and the double click are reported.
u32 StringMouse(t_gadget *g, const T_MOUSE_MSG *m, const T_RPOS *rect)
{
    Sync(g);
    GadgetTextFont(g);
    u32 report = 0;
    switch (m->mouse_action) {
    case ACT_LMOUSE_DOWN:  // the cursor goes to the point
        g->gadget_state |= GSTATE_DRAGGING | GSTATE_FOCUS;
        g->value = IndexAt(g, m->x, rect);
        if (!(m->keyboard_flags & QUAL_SHIFT))
            g->select_from = g->value;
        report = ACT_LMOUSE_DOWN;
        break;
    case ACT_MOUSE_MOVE:  // a drag selects
        if (g->gadget_state & GSTATE_DRAGGING)
            g->value = IndexAt(g, m->x, rect);
        break;
    case ACT_LMOUSE_UP:
        g->gadget_state &= ~GSTATE_DRAGGING;
        break;
    case ACT_LMOUSE_DBL:  // the word under the cursor
        SelectWordAt(g, g->value);
        report = ACT_LMOUSE_DBL;
        break;
    default:
        report = m->mouse_action & (ACT_RMOUSE_DOWN | ACT_RMOUSE_UP);
        break;
    }
    KeepCursorVisible(g, rect);
    GadgetTextFontEnd();
    return report;
}

static int Printable(u16 key)
{
    return (key >= 32 && key < 127) || (key >= 160 && key <= 255);
}

u32 StringKey(t_gadget *g, u16 key, u16 qualifiers)
{
    Sync(g);
    int shift = (qualifiers & QUAL_SHIFT) != 0;
    i32 n = Length(g);
    u32 result = GADGET_KEY_TAKEN;
    switch (key) {
    case KEY_RETURN:  // the edit is done
        result |= ACT_LMOUSE_UP;
        break;
    case KEY_BACKSPACE:
        Erase(g, -1);
        break;
    case KEY_DELETE:
        Erase(g, +1);
        break;
    case KEY_LEFT:  // without Shift a selection collapses to its start
    case KEY_RIGHT: {
        int left = key == KEY_LEFT;
        if (!shift && HasSelection(g)) {
            i32 a = g->value < g->select_from ? g->value : g->select_from;
            i32 b = g->value + g->select_from - a;
            g->value = left ? a : b;
        } else if (left ? g->value > 0 : g->value < n) {
            g->value += left ? -1 : 1;
        }
        if (!shift)
            g->select_from = g->value;
        break;
    }
    case KEY_HOME:
    case KEY_END:
        g->value = key == KEY_HOME ? 0 : n;
        if (!shift)
            g->select_from = g->value;
        break;
    case KEY_CTRL('A'):  // select all
        g->select_from = 0, g->value = n;
        break;
    default:  // a character; with Control or Alt it is somebody's shortcut
        if (!Printable(key) || (qualifiers & (QUAL_CONTROL | QUAL_ALT)))
            return 0;
        Insert(g, (char)key);
        break;
    }
    g->gadget_state |= GSTATE_FOCUS;
    T_RPOS r = GadgetRect(g);
    GadgetTextFont(g);
    KeepCursorVisible(g, &r);
    GadgetTextFontEnd();
    return result;
}

// For programs: a string gadget's text, and a new text put into its buffer.
const char *GetStringGadgetText(t_gadget *g)
{
    return g && g->type == GADGET_TYPE_STRING ? Text(g) : "";
}

void SetStringGadgetText(t_gadget *g, const char *text)
{
    if (!g || g->type != GADGET_TYPE_STRING || !g->data)
        return;
    snprintf((char *)g->data, (size_t)g->max_chars + 1, "%s", text ? text : "");
    g->value = g->select_from = Length(g);
    g->scroll = 0;
}
