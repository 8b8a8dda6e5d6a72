// The login example's own code. Quillform rewrites login_page.cpp whole at each save, so what the
// program does lives here: LoginEvents takes the window's messages first, handles the buttons, and
// hands everything else to the page's own LoginMsg.
#include <stdio.h>

#include "quillform_app.h"

// The item codes given to the gadgets in the editor's "Properties for" dialog.
#define LOGIN_USER 1
#define LOGIN_PASSWORD 2
#define LOGIN_REMEMBER 3
#define LOGIN_OK 10
#define LOGIN_CANCEL 11

u32 LoginMsg(T_WINDOW *win, u32 item_code, u32 msg, void *data);  // login_page.cpp

static u32 LoginEvents(T_WINDOW *win, u32 item_code, u32 msg, void *data)
{
    if (msg == ACT_LMOUSE_UP && item_code == LOGIN_OK) {
        T_GADGET *user = FindGadgetByItemCode(win, LOGIN_USER);
        T_GADGET *remember = FindGadgetByItemCode(win, LOGIN_REMEMBER);
        printf("Logged in as %s%s\n", GetStringGadgetText(user),
               remember && remember->class_data ? " (remembered)" : "");
        RemoveWindow(win);
        return 0;
    }
    if (msg == ACT_LMOUSE_UP && item_code == LOGIN_CANCEL) {
        RemoveWindow(win);
        return 0;
    }
    return LoginMsg(win, item_code, msg, data);
}

// The page's strings hold their gadgets' names: the fields start empty. Our function goes before
// the page's.
void StartLogin(T_WINDOW *win)
{
    if (!win)
        return;
    SetStringGadgetText(FindGadgetByItemCode(win, LOGIN_USER), "");
    SetStringGadgetText(FindGadgetByItemCode(win, LOGIN_PASSWORD), "");
    win->message = LoginEvents;
}
