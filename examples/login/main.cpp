// The login example: a program built on a page made in Quillform (login_page.cpp).
#include "quillform_app.h"

// Quillform's file, rewritten whole at each save: no code of ours in it. It needs the toolkit first.
#include "login_page.cpp"

void StartLogin(T_WINDOW *win);  // login_events.cpp: our own code

int main(int argc, char **argv)
{
    if (!OpenAppToolkit(argc, argv))  // the SDL display, or headless with --headless
        return 2;
    T_WINDOW *win = OpenLoginWindow();
    StartLogin(win);
    int status = RunAppWindow(win);  // until the window is gone
    CloseToolkit();
    return status;
}
