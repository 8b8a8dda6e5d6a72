// The gadget handler: a window's gadgets, their creation and freeing, placing, marks, lookup, the
// dispatch of mouse events and keys to a gadget's action_fn or its type's behaviour.
//
// A gadget's x, y are kept equal to pos_x, pos_y (the saved form) and pos_width, pos_height to
// base_width, base_height; screen_x, screen_y follow from the user area. ClearAllMarkedGadgets
// clears the selection mark only: the drag mark is its owner's to clear. MarkGadgetsInArea keeps
// the marks that stood when the band began (GSTATE_MARKED_BEFORE) and adds those in the band.
// A gadget with an action_fn gets its events whatever its flags (an editor must reach a disabled
// gadget); GADGET_FLAGS_DISABLED stops the type's own behaviour only.
#include <string.h>

#include "lumora/lumora_internal.h"

#define GADGET_HANDLER_PRIORITY 50
#define AUTOSIZE_MARGIN 12   // a button's width beyond its text
#define TEXT_HEIGHT_EXTRA 4  // a text-bearing gadget's height beyond its font's

static u32 GadgetHandlerInput(t_Handler *handler, u32 event, void *data)
{
    (void)handler, (void)event, (void)data;
    return 0;  // gadgets are routed by the toolkit itself
}

t_Gaget_Handler *NewGadgetHandler(t_Window *window)
{
    if (!window)
        return NULL;
    t_Gaget_Handler *gh = FindGadgetHandler(window);
    if (gh)
        return gh;
    gh = (t_Gaget_Handler *)NewHandler(&window->handlers, GadgetHandlerInput, NULL, "gadgets", GADGET_HANDLER_PRIORITY,
                                       sizeof(t_Gaget_Handler), window);
    if (!gh)
        return NULL;
    gh->head.kind = HANDLER_KIND_GADGET;
    InitList(&gh->gadget_list, "gadgets");
    gh->list_in_use = &gh->gadget_list;
    return gh;
}

t_Gaget_Handler *FindGadgetHandler(t_Window *window)
{
    return window ? (t_Gaget_Handler *)FindHandlerOfKind(window, HANDLER_KIND_GADGET) : NULL;
}

t_gadget *GetCurrentGadget(t_Window *window)
{
    t_Gaget_Handler *gh = FindGadgetHandler(window);
    return gh ? gh->current_gadget : NULL;
}

void SetCurrentGadget(t_Window *window, t_gadget *gadget)
{
    t_Gaget_Handler *gh = FindGadgetHandler(window);
    if (gh)
        gh->current_gadget = gadget;
}

int TextBearingType(u16 type)
{
    switch (type) {
    case GADGET_TYPE_BUTTON:
    case GADGET_TYPE_CHECK_BOX:
    case GADGET_TYPE_TEXT:
    case GADGET_TYPE_STRING:
    case GADGET_TYPE_RADIOBUTTON:
    case GADGET_TYPE_DROP_BOX:
        return 1;
    default:
        return 0;
    }
}

void GadgetTextFont(t_gadget *gadget)
{
    SetActiveFont(gadget->font ? FontOfResource(gadget->font) : NULL);
    SetFontStyle((u16)((gadget->live_flags >> 14) & 3));
}

void GadgetTextFontEnd(void)
{
    SetFontStyle(0);
    SetActiveFont(NULL);
}

static char *CopyText(const char *text)
{
    u32 size = (u32)strlen(text) + 1;
    char *copy = (char *)AllocMemC(size);
    memcpy(copy, text, size);
    return copy;
}

static void FreeText(char *text)
{
    if (text)
        FreeMem(text, (u32)strlen(text) + 1);
}

// Sizes a gadget to its text: at creation with GADGET_FLAGS_AUTOSIZE, a zero width of a gadget
// that shows its text as a label (else nothing of it would show), and a zero height of a
// text-bearing type.
static void SizeNewGadget(t_gadget *g)
{
    GadgetTextFont(g);
    i16 font_h = (i16)GetActiveFontHeight();
    int label = g->type == GADGET_TYPE_TEXT || g->type == GADGET_TYPE_BUTTON || g->type == GADGET_TYPE_CHECK_BOX ||
                g->type == GADGET_TYPE_RADIOBUTTON;
    if ((g->live_flags & GADGET_FLAGS_AUTOSIZE) || (label && !g->base_width)) {
        i16 w = (i16)GetStringWidth(g->name);
        if (g->type == GADGET_TYPE_CHECK_BOX || g->type == GADGET_TYPE_RADIOBUTTON)
            w += CheckBoxSize() + 8;
        else if (g->type == GADGET_TYPE_TEXT)
            w += 4;
        else
            w += AUTOSIZE_MARGIN;
        g->base_width = w;
        if (!g->base_height)
            g->base_height = font_h + TEXT_HEIGHT_EXTRA;
    }
    if (!g->base_height && TextBearingType(g->type))
        g->base_height = font_h + TEXT_HEIGHT_EXTRA;
    GadgetTextFontEnd();
}

t_gadget *CreateGadgetObject(t_Gaget_Handler *gh, const char *name, T_GADGETOBJECTINIT *init)
{
    t_gadget *g = (t_gadget *)AllocMemC(sizeof(t_gadget));
    if (!g) {
        myprintf(0, "CreateObject: no memory for the gadget %s\n", name ? name : "");
        return NULL;
    }
    T_DISPLAY_RECORD *rec = DISPLAY_RECORD;
    g->own_name = CopyText(name ? name : "");
    g->name = g->own_name;
    g->x = g->pos_x = init->x;
    g->y = g->pos_y = init->y;
    g->base_width = g->pos_width = init->base_width;
    g->base_height = g->pos_height = init->base_height;
    g->type = init->type;
    g->item_code = g->live_item_code = init->item_code;
    g->flags = g->live_flags = init->flags;
    g->action = g->live_action = init->action;
    g->icon = init->icon;
    g->icon_bank = init->icon_bank;
    g->cursor = init->cursor;
    g->tab[0] = init->tab[0], g->tab[1] = init->tab[1];
    g->menu_owner = init->menu_owner;
    if (init->hover_text)
        g->hover_text = CopyText(init->hover_text);  // "" stays an empty text
    if (init->font && init->font[0])
        g->font = OpenResource(&_FontBase->fonts, init->font, RESOURCE_TYPE_FONT, 0);
    g->data = init->data;
    g->back_colour = rec->gadget_colour;
    g->text_colour = rec->gadget_text_colour;
    if (g->type == GADGET_TYPE_CHECK_BOX || g->type == GADGET_TYPE_RADIOBUTTON)
        g->class_data = init->init_val != 0;
    g->handler = gh;
    g->window = gh->head.window;
    if (gh->list_in_use != &gh->gadget_list)
        g->parent_combo = ((T_LIST_DATA *)gh->list_in_use)->gadget;
    const T_GADGET_CLASS *cls = GadgetClass(g->type);
    if (cls->init && !cls->init(g, init)) {
        myprintf(0, "CreateObject: no memory for the %s %s\n", cls->name, g->name);
        FreeGadget(g);
        return NULL;
    }
    SizeNewGadget(g);
    AddTail(gh->list_in_use, (t_Node *)g);
    gh->current_gadget = g;
    if (g->window)
        RecalcGadgetPosition(g->window, g, 0, 0, 0);
    return g;
}

void SetGadgetColours(t_gadget *gadget, u32 back_colour, u32 text_colour)
{
    if (!gadget)
        return;
    gadget->back_colour = back_colour;
    gadget->text_colour = text_colour;
}

void SetGadgetHover(t_gadget *gadget, const char *text)
{
    if (!gadget)
        return;
    FreeText(gadget->hover_text);
    gadget->hover_text = text ? CopyText(text) : NULL;
}

void RemoveGadget(t_gadget *gadget, t_Gaget_Handler *handler)
{
    if (!gadget)
        return;
    if (!handler)
        handler = gadget->handler;
    if (handler) {
        if (handler->current_gadget == gadget)
            handler->current_gadget = NULL;
        if (handler->pressed_gadget == gadget)
            handler->pressed_gadget = NULL;
        if (handler->hover_gadget == gadget)
            handler->hover_gadget = NULL;
    }
    T_LUMORA_STATE *st = &lumora_state;
    if (st->capture.gadget == gadget) {
        st->broken_buttons |= st->buttons;
        st->capture = T_CAPTURE{};
    }
    if (gadget->free_fn) {
        T_FREE_FN fn = gadget->free_fn;
        gadget->free_fn = NULL;
        fn(NULL, gadget);
    }
}

void FreeGadget(t_gadget *gadget)
{
    if (!gadget)
        return;
    if (gadget->free_fn) {
        T_FREE_FN fn = gadget->free_fn;
        gadget->free_fn = NULL;
        fn(NULL, gadget);
    }
    const T_GADGET_CLASS *cls = GadgetClass(gadget->type);
    if (cls->free)
        cls->free(gadget);
    FreeText(gadget->hover_text);
    FreeText(gadget->own_name);
    if (gadget->font)
        RemoveResource(gadget->font);
    FreeMem(gadget, sizeof(t_gadget));
}

void FreeGadgetsOf(t_Gaget_Handler *gh)
{
    gh->list_in_use = &gh->gadget_list;
    while (!LIST_EMPTY(&gh->gadget_list)) {
        t_gadget *g = gh->first_gadget;
        RemoveGadget(g, gh);
        SubNode((t_Node *)g);
        FreeGadget(g);
    }
}

// `flags` is reserved (pass 0); the gadget's own FROM_RIGHT, FROM_BOTTOM bits decide.
void RecalcGadgetPosition(t_Window *window, t_gadget *g, u32 flags, i16 dx, i16 dy)
{
    (void)flags;
    if (!window || !g)
        return;
    g->pos_x += dx, g->pos_y += dy;
    g->x = g->pos_x, g->y = g->pos_y;
    g->pos_width = g->base_width, g->pos_height = g->base_height;
    if (g->live_flags & GADGET_FLAGS_FROM_RIGHT)
        g->screen_x = window->user_x + window->user_w - g->pos_x - g->base_width;
    else
        g->screen_x = window->user_x + g->pos_x;
    if (g->live_flags & GADGET_FLAGS_FROM_BOTTOM)
        g->screen_y = window->user_y + window->user_h - g->pos_y - g->base_height;
    else
        g->screen_y = window->user_y + g->pos_y;
    if (g->parent_combo || g->type == GADGET_TYPE_COMBO)
        PlaceComboGadget(g);
}

void DrawFieldBackground(t_gadget *g, const T_RPOS &r)
{
    T_DISPLAY_RECORD *rec = DISPLAY_RECORD;
    u32 flags = g->live_flags;
    int disabled = (flags & GADGET_FLAGS_DISABLED) != 0;
    u32 back = disabled ? rec->gadget_colour : (flags & GADGET_FLAGS_SOLID) ? g->back_colour : rec->field_colour;
    DrawRectangle(r.x, r.y, r.w, r.h, back);
    if (!(flags & GADGET_FLAGS_NO_BORDER))
        DrawBevelBox(r.x, r.y, r.w, r.h, rec->gadget_dark_colour, rec->gadget_light_colour);
}

T_RPOS GadgetRect(t_gadget *g)
{
    return T_RPOS{g->screen_x, g->screen_y, g->base_width, g->base_height};
}

// --- Marks ---------------------------------------------------------------------------------------

u32 CountMarkedGadgets(t_gadget *any)
{
    if (!any)
        return 0;
    u32 n = 0;
    for (t_gadget *g = (t_gadget *)FindFirstNode((t_Node *)any); g->next; g = g->next)
        n += (g->live_flags & GADGET_MARK_SELECTED) != 0;
    return n;
}

void ClearAllMarkedGadgets(t_gadget *any)
{
    if (!any)
        return;
    for (t_gadget *g = (t_gadget *)FindFirstNode((t_Node *)any); g->next; g = g->next)
        g->live_flags &= ~GADGET_MARK_SELECTED;
}

// A gadget is in the band when their rectangles overlap; a band of no width or height counts as
// a line, so a click without a drag still catches the gadget under it.
static int InBand(t_gadget *g, const T_RPOS *a)
{
    i16 aw = a->w > 0 ? a->w : 1, ah = a->h > 0 ? a->h : 1;
    return g->screen_x < a->x + aw && a->x < g->screen_x + g->base_width && g->screen_y < a->y + ah &&
           a->y < g->screen_y + g->base_height;
}

void MarkGadgetsInArea(t_gadget *first, T_RPOS *area, u32 first_time)
{
    if (!first || !area)
        return;
    for (t_gadget *g = first; g->next; g = g->next) {
        if (first_time) {
            if (g->live_flags & GADGET_MARK_SELECTED)
                g->gadget_state |= GSTATE_MARKED_BEFORE;
            else
                g->gadget_state &= ~GSTATE_MARKED_BEFORE;
        }
        if (InBand(g, area) || (g->gadget_state & GSTATE_MARKED_BEFORE))
            g->live_flags |= GADGET_MARK_SELECTED;
        else
            g->live_flags &= ~GADGET_MARK_SELECTED;
    }
}

// --- Lookup --------------------------------------------------------------------------------------

static t_gadget *FindInList(t_List *list, u32 item_code)
{
    for (t_gadget *g = (t_gadget *)list->first; g->next; g = g->next) {
        if (g->live_item_code == item_code)
            return g;
        if (g->type == GADGET_TYPE_COMBO && g->class_data) {
            t_gadget *inner = FindInList(&((T_LIST_DATA *)g->class_data)->entries, item_code);
            if (inner)
                return inner;
        }
    }
    return NULL;
}

t_gadget *FindGadgetByItemCode(t_Window *window, u32 item_code)
{
    t_Gaget_Handler *gh = FindGadgetHandler(window);
    if (!gh)
        return NULL;
    t_gadget *g = FindInList(gh->list_in_use, item_code);
    if (!g && gh->list_in_use != &gh->gadget_list)
        g = FindInList(&gh->gadget_list, item_code);
    return g;
}

t_gadget *GadgetAtPoint(t_Window *window, i16 x, i16 y)
{
    t_Gaget_Handler *gh = FindGadgetHandler(window);
    if (!gh)
        return NULL;
    T_RPOS user = UserArea(window);
    if (!PointBoxColl(x, y, &user))
        return NULL;
    // A group that catches the mouse (an editor's) takes it only where no other gadget stands, so
    // that the gadgets framed by a group drawn after them stay within reach.
    t_gadget *group = NULL;
    for (t_Node *n = gh->gadget_list.last; n->prev; n = n->prev) {
        t_gadget *g = HitGadget((t_gadget *)n, x, y);
        if (g && g->type != GADGET_TYPE_GROUP)
            return g;
        if (g && !group)
            group = g;
    }
    return group;
}

// --- Events --------------------------------------------------------------------------------------

void GadgetMouseEvent(t_Window *window, t_gadget *g, T_MOUSE_MSG *m)
{
    g = WheelTarget(g, m);
    t_Menu *menu = m->mouse_action == ACT_RMOUSE_UP ? g->menu_owner : NULL;
    if (g->action_fn) {  // the owner's function alone: nothing else happens with the event
        if (g->live_action & m->mouse_action)
            g->action_fn(window, g, m);
    } else if (!(g->live_flags & GADGET_FLAGS_DISABLED)) {
        const T_GADGET_CLASS *cls = GadgetClass(g->type);
        T_RPOS r = GadgetRect(g);
        u32 report = cls->mouse ? cls->mouse(g, m, &r) : 0;
        if (report & g->live_action)
            SendWindowMessage(window, g->live_item_code, report, g);
    }
    if (menu && IsWindowLive(window))
        OpenDetachedMenu(window, menu, m->x, m->y);
}

int GadgetKeyEvent(t_Window *window, t_gadget *g, u16 key, u16 qualifiers)
{
    if (g->action_fn) {
        T_MOUSE_MSG m = {window->mouse_x, window->mouse_y, (u16)(qualifiers | QUAL_GADGET_KEY), key};
        return g->action_fn(window, g, &m) != 0;
    }
    if (g->live_flags & (GADGET_FLAGS_DISABLED | GADGET_FLAGS_NO_DISPLAY))
        return 0;
    const T_GADGET_CLASS *cls = GadgetClass(g->type);
    u32 r = cls->key ? cls->key(g, key, qualifiers) : 0;
    u32 report = r & 0xFFFF;
    if (report & g->live_action)
        SendWindowMessage(window, g->live_item_code, report, g);
    return r != 0;
}

int DialogWindow(t_Window *window)
{
    t_Gaget_Handler *gh = FindGadgetHandler(window);
    if (!gh)
        return 0;
    for (t_gadget *g = gh->first_gadget; g->next; g = g->next)
        if (g->action_fn)
            return 0;
    return 1;
}

// --- Painting ------------------------------------------------------------------------------------

void PaintGadgets(t_Window *window)
{
    t_Gaget_Handler *gh = FindGadgetHandler(window);
    if (!gh)
        return;
    int dialog = FocusWindow() == window && DialogWindow(window);
    T_RPOS user = UserArea(window);
    for (t_gadget *g = gh->first_gadget; g->next; g = g->next) {
        if (g->live_flags & GADGET_FLAGS_NO_DISPLAY)
            continue;
        T_RPOS r = GadgetRect(g);
        if (!RectIntersect(&r, &user))
            continue;
        GadgetTextFont(g);
        GadgetClass(g->type)->draw(g, dialog && gh->current_gadget == g);
    }
    GadgetTextFontEnd();
}
