// Scripts of a person's actions, one action a line, played on the headless display.
#pragma once
#include "toolkit.h"

typedef enum {
    SCRIPT_MOVE,
    SCRIPT_PRESS,
    SCRIPT_RELEASE,
    SCRIPT_CLICK,
    SCRIPT_DCLICK,
    SCRIPT_RCLICK,
    SCRIPT_DRAG,
    SCRIPT_KEY,
    SCRIPT_TYPE,
    SCRIPT_TURNS,
    SCRIPT_SCREENSHOT,
    SCRIPT_CLICK_GADGET,
    SCRIPT_CLICK_TOOL,
    SCRIPT_EXPECT_WINDOW,
    SCRIPT_EXPECT_NO_WINDOW,
    SCRIPT_EXPECT_WINDOW_AT,
    SCRIPT_EXPECT_FILE_HAS,
} T_SCRIPT_VERB;

typedef struct T_SCRIPT_STEP {
    u16 verb;
    u32 line;
    i32 numbers[4];
    u16 key, qualifiers;
    char text[512];    // typed text, a file name, or a window's name
    char detail[512];  // what follows a quoted file name: the text it must hold
} T_SCRIPT_STEP;

typedef struct T_SCRIPT {
    T_SCRIPT_STEP *steps;
    u32 count;
    char error[600];  // "FILE:LINE: ..." when reading or playing failed
} T_SCRIPT;

// Reads a script from text; false with `error` set at the first line that can't be read.
int ParseScript(T_SCRIPT *script, const char *name, const char *text);
// Reads a script file; false with `error` set when it can't be read.
int LoadScript(T_SCRIPT *script, const char *path);
// Plays the steps in order, each as a person's input that the loop takes turn by turn, so that the
// script goes on while a message function turns the loop inside itself (its next steps answer the
// close query). True at its end; false with `error` set at the first step that failed (a screenshot
// that can't be written, a window or gadget that isn't there, a check that doesn't hold, a step
// after the session's end). A step that fails, or the end of the script, while a query waits
// inside a turn can't return: the line is printed and the process exits with 1. So does a step
// that takes longer than `timeout_s` seconds of real time (0: no limit).
int PlayScript(T_SCRIPT *script, const char *name, u32 timeout_s);
void FreeScript(T_SCRIPT *script);
