// The session: the wait for an application's windows to go, and its orderly end.
// The end stores the settings, the window places, the stores that couldn't be read at the start
// and any pending file, once: an end asked for again (from a wait still on the stack) does nothing.
#include <stdlib.h>

#include "marshalry/marshalry_internal.h"
#include "toolkit.h"

static T_TENURE_BASE tenure_base = {SESSION_RUNNING};
T_TENURE_BASE *_TenureBase = &tenure_base;

// A WF_DEPENDANT child goes with its parent, and a toolbar (a window with a toolbar handler)
// stays to the end: neither is asked to end nor counted.
static int LeftAlone(t_Window *child)
{
    if (child->flags & WF_DEPENDANT)
        return 1;
    for (t_Handler *h = (t_Handler *)child->handlers.first; h->next; h = h->next)
        if (h->kind == HANDLER_KIND_TOOLBAR)
            return 1;
    return 0;
}

static int Asked(t_Window **asked, u32 count, t_Window *child)
{
    for (u32 i = 0; i < count; i++)
        if (asked[i] == child)
            return 1;
    return 0;
}

// Each child's ACT_TERMINATE may turn the loop (a page's query), which may remove or free other
// children; so the walk starts again from the first child after each message and remembers by
// address whom it has asked, never keeping a pointer into the list across a call.
int WaitForNDependantWindowLeft(t_Window *window, u32 n)
{
    if (!window || _TenureBase->session_state == SESSION_ENDED)
        return 0;
    _TenureBase->session_state = SESSION_ENDING;
    t_Window **asked = NULL;
    u32 asked_count = 0, asked_capacity = 0;
    for (;;) {
        t_Window *child = (t_Window *)window->children.first;
        while (child->next && (!IsWindowLive(child) || LeftAlone(child) || Asked(asked, asked_count, child)))
            child = child->next;
        if (!child->next)
            break;
        if (asked_count == asked_capacity) {
            asked_capacity = asked_capacity ? asked_capacity * 2 : 16;
            t_Window **grown = (t_Window **)realloc(asked, asked_capacity * sizeof(t_Window *));
            if (!grown)
                break;
            asked = grown;
        }
        asked[asked_count++] = child;
        SendWindowMessage(child, 0, ACT_TERMINATE, NULL);
        if (_TenureBase->session_state == SESSION_ENDED) {  // ended meanwhile, by a nested end
            free(asked);
            return 0;
        }
        if (_TenureBase->session_state == SESSION_CANCELLED) {
            free(asked);
            _TenureBase->session_state = SESSION_RUNNING;
            return 0;
        }
    }
    free(asked);
    u32 left = 1;  // the window itself
    for (t_Window *child = (t_Window *)window->children.first; child->next; child = child->next)
        if (IsWindowLive(child) && !LeftAlone(child))
            left++;
    if (left > n) {
        _TenureBase->session_state = SESSION_RUNNING;
        return 0;
    }
    return 1;
}

void SaveAndCloseSessionApplication(t_Window *window, T_TOOL_SETUP *setup)
{
    if (_TenureBase->session_state == SESSION_ENDED) {
        myprintf(3, "The session has ended already; nothing is stored again");
        return;
    }
    StoreToolSetup(setup);
    StoreBrokenStores();
    u32 failed = StoreResources(&_MarshalryBase->resources);
    if (failed)
        myprintf(0, "%u stored settings could not be written at the end of the session", failed);
    FinishSaveFile();
    if (window)
        RemoveWindow(window);
    if (_LumoraBase)
        _LumoraBase->running = 0;
    _TenureBase->session_state = SESSION_ENDED;
}

int SessionEnded(void)
{
    return _TenureBase->session_state == SESSION_ENDED;
}
