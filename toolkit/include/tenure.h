// Tenure: the wait for dependent windows and the end of the application's session.
#pragma once
#include "marshalry.h"

#define SESSION_RUNNING 0
#define SESSION_ENDING 3     // the end was asked for and the pages are going
#define SESSION_CANCELLED 5  // a page's query was cancelled during the end
#define SESSION_ENDED 7

typedef struct T_TENURE_BASE {
    u32 session_state;
} T_TENURE_BASE;

extern T_TENURE_BASE *_TenureBase;

// Sends ACT_TERMINATE to each child of `window` that is not WF_DEPENDANT and not the toolbar kind
// it was told to leave, and turns the loop until they have gone or one stays (a cancelled query).
// True when at most `n` windows (the window itself counted) are left.
int WaitForNDependantWindowLeft(t_Window *window, u32 n);
// Stores the tool set-up's places and the settings resources, removes the window and ends the
// session. The host's loop then stops.
void SaveAndCloseSessionApplication(t_Window *window, T_TOOL_SETUP *setup);
int SessionEnded(void);
