// Reads scripts of a person's actions and plays them through the user actions.
#include "host/script.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "host/user_actions.h"

#define TOOLBAR_WINDOW_NAME "qftoolbar"  // the name the editor gives its toolbar

typedef struct T_SCRIPT_WORD {
    const char *word;
    u16 verb;
    u16 numbers;  // how many numbers follow
    u16 text;     // 1: a text follows (the rest of the line); 2: a quoted name, then a number;
                  // 3: a quoted name; 4: a quoted name, then a text
} T_SCRIPT_WORD;

//  word               verb                   numbers text
static const T_SCRIPT_WORD script_words[] = {
    {"move", SCRIPT_MOVE, 2, 0},
    {"press", SCRIPT_PRESS, 2, 0},
    {"release", SCRIPT_RELEASE, 2, 0},
    {"click", SCRIPT_CLICK, 2, 0},
    {"dclick", SCRIPT_DCLICK, 2, 0},
    {"rclick", SCRIPT_RCLICK, 2, 0},
    {"drag", SCRIPT_DRAG, 4, 0},
    {"key", SCRIPT_KEY, 0, 1},
    {"type", SCRIPT_TYPE, 0, 1},
    {"turns", SCRIPT_TURNS, 1, 0},
    {"screenshot", SCRIPT_SCREENSHOT, 0, 1},
    {"click-gadget", SCRIPT_CLICK_GADGET, 1, 2},
    {"click-tool", SCRIPT_CLICK_TOOL, 1, 0},
    {"expect-window", SCRIPT_EXPECT_WINDOW, 0, 3},
    {"expect-no-window", SCRIPT_EXPECT_NO_WINDOW, 0, 3},
    {"expect-window-at", SCRIPT_EXPECT_WINDOW_AT, 2, 3},
    {"expect-file-has", SCRIPT_EXPECT_FILE_HAS, 0, 4},
};

// Reads a whole number; false when the text holds none.
static int ReadNumber(const char **at, i32 *value)
{
    while (**at == ' ' || **at == '\t')
        (*at)++;
    char *end;
    long n = strtol(*at, &end, 10);
    if (end == *at)
        return 0;
    *value = (i32)n;
    *at = end;
    return 1;
}

// Reads a name in double quotes into `name`; false when there is none.
static int ReadQuoted(const char **at, char *name, size_t size)
{
    while (**at == ' ' || **at == '\t')
        (*at)++;
    if (**at != '"')
        return 0;
    const char *close = strchr(*at + 1, '"');
    if (!close || (size_t)(close - *at - 1) >= size)
        return 0;
    memcpy(name, *at + 1, (size_t)(close - *at - 1));
    name[close - *at - 1] = '\0';
    *at = close + 1;
    return 1;
}

// Reads the rest of the line, after blanks, into `text`; false when nothing (or too much) is left.
static int ReadRest(const char *at, char *text, size_t size)
{
    while (*at == ' ' || *at == '\t')
        at++;
    if (!*at || strlen(at) >= size)
        return 0;
    snprintf(text, size, "%s", at);
    return 1;
}

static int AtEnd(const char *at)
{
    while (*at == ' ' || *at == '\t')
        at++;
    return *at == '\0';
}

// Reads one line into a step; false when the line can't be read.
static int ParseLine(T_SCRIPT_STEP *step, const char *line)
{
    char word[32];
    const char *at = line;
    size_t length = strcspn(at, " \t");
    if (length == 0 || length >= sizeof(word))
        return 0;
    memcpy(word, at, length);
    word[length] = '\0';
    at += length;
    for (const T_SCRIPT_WORD &w : script_words) {
        if (strcmp(word, w.word) != 0)
            continue;
        step->verb = w.verb;
        if (w.text >= 2) {
            if (!ReadQuoted(&at, step->text, sizeof(step->text)))
                return 0;
        }
        for (u16 i = 0; i < w.numbers; i++)
            if (!ReadNumber(&at, &step->numbers[i]))
                return 0;
        if (w.text == 4)
            return ReadRest(at, step->detail, sizeof(step->detail));
        if (w.text == 1) {
            if (!ReadRest(at, step->text, sizeof(step->text)))
                return 0;
            if (w.verb == SCRIPT_KEY)
                return ParseKeyName(step->text, &step->key, &step->qualifiers);
            return 1;
        }
        return AtEnd(at);
    }
    return 0;
}

int ParseScript(T_SCRIPT *script, const char *name, const char *text)
{
    memset(script, 0, sizeof(*script));
    u32 capacity = 0;
    u32 line_number = 0;
    const char *at = text;
    while (*at) {
        const char *end = strchr(at, '\n');
        size_t length = end ? (size_t)(end - at) : strlen(at);
        char line[1024];
        line_number++;
        if (length >= sizeof(line)) {
            snprintf(script->error, sizeof(script->error), "%.200s:%u: the line is too long", name, line_number);
            if (script->steps)
                FreeMem(script->steps, capacity * (u32)sizeof(T_SCRIPT_STEP));
            script->steps = NULL;
            script->count = 0;
            return 0;
        }
        memcpy(line, at, length);
        line[length] = '\0';
        at += length + (end ? 1 : 0);
        if (length && line[length - 1] == '\r')
            line[--length] = '\0';
        const char *start = line;
        while (*start == ' ' || *start == '\t')
            start++;
        if (*start == '\0' || *start == '#')
            continue;
        if (script->count == capacity) {
            u32 grown = capacity ? capacity * 2 : 32;
            T_SCRIPT_STEP *steps = (T_SCRIPT_STEP *)AllocMemC(grown * (u32)sizeof(T_SCRIPT_STEP));
            if (script->steps) {
                memcpy(steps, script->steps, script->count * sizeof(T_SCRIPT_STEP));
                FreeMem(script->steps, capacity * (u32)sizeof(T_SCRIPT_STEP));
            }
            script->steps = steps;
            capacity = grown;
        }
        T_SCRIPT_STEP *step = &script->steps[script->count];
        memset(step, 0, sizeof(*step));
        step->line = line_number;
        if (!ParseLine(step, start)) {
            snprintf(script->error, sizeof(script->error), "%.200s:%u: cannot read \"%.300s\"", name, line_number, start);
            FreeMem(script->steps, capacity * (u32)sizeof(T_SCRIPT_STEP));
            script->steps = NULL;
            script->count = 0;
            return 0;
        }
        script->count++;
    }
    // Keep the block's size recoverable for FreeScript.
    if (script->steps && capacity != script->count) {
        T_SCRIPT_STEP *steps = (T_SCRIPT_STEP *)AllocMemC(script->count * (u32)sizeof(T_SCRIPT_STEP));
        memcpy(steps, script->steps, script->count * sizeof(T_SCRIPT_STEP));
        FreeMem(script->steps, capacity * (u32)sizeof(T_SCRIPT_STEP));
        script->steps = steps;
    }
    return 1;
}

int LoadScript(T_SCRIPT *script, const char *path)
{
    char *text = (char *)LoadFile(path);
    if (!text) {
        memset(script, 0, sizeof(*script));
        snprintf(script->error, sizeof(script->error), "%.500s: cannot read the script", path);
        return 0;
    }
    u32 size = GetLoadFileSize();
    int ok = ParseScript(script, path, text);
    FreeMem(text, size);
    return ok;
}

// Plays one step; false with the reason in `error`.
static int PlayStep(const T_SCRIPT_STEP *step, char *error, size_t size)
{
    const i32 *n = step->numbers;
    switch (step->verb) {
    case SCRIPT_MOVE:
        UserMove((i16)n[0], (i16)n[1]);
        return 1;
    case SCRIPT_PRESS:
        UserPress((i16)n[0], (i16)n[1], 1);
        return 1;
    case SCRIPT_RELEASE:
        UserRelease((i16)n[0], (i16)n[1], 1);
        return 1;
    case SCRIPT_CLICK:
        UserClick((i16)n[0], (i16)n[1], 1);
        return 1;
    case SCRIPT_DCLICK:
        UserDoubleClick((i16)n[0], (i16)n[1]);
        return 1;
    case SCRIPT_RCLICK:
        UserClick((i16)n[0], (i16)n[1], 3);
        return 1;
    case SCRIPT_DRAG:
        UserDrag((i16)n[0], (i16)n[1], (i16)n[2], (i16)n[3]);
        return 1;
    case SCRIPT_KEY:
        UserKey(step->key, step->qualifiers);
        return 1;
    case SCRIPT_TYPE:
        UserType(step->text);
        return 1;
    case SCRIPT_TURNS:
        UserTurns((u32)(n[0] > 0 ? n[0] : 0));
        return 1;
    case SCRIPT_SCREENSHOT:
        if (UserScreenshot(step->text))
            return 1;
        snprintf(error, size, "cannot write the screenshot %.300s", step->text);
        return 0;
    case SCRIPT_CLICK_GADGET: {
        i16 x, y;
        if (!FindGadgetCentre(step->text, (u32)n[0], &x, &y)) {
            snprintf(error, size, "no gadget %d in a window \"%.300s\"", n[0], step->text);
            return 0;
        }
        UserClick(x, y, 1);
        return 1;
    }
    case SCRIPT_CLICK_TOOL: {
        i16 x, y;
        if (!FindToolCentre(TOOLBAR_WINDOW_NAME, (u16)n[0], &x, &y)) {
            snprintf(error, size, "no tool %d on the toolbar", n[0]);
            return 0;
        }
        UserClick(x, y, 1);
        return 1;
    }
    case SCRIPT_EXPECT_WINDOW:
        if (FindLiveWindow(step->text))
            return 1;
        snprintf(error, size, "no window \"%.300s\"", step->text);
        return 0;
    case SCRIPT_EXPECT_WINDOW_AT: {
        t_Window *window = FindLiveWindow(step->text);
        if (window && window->x == n[0] && window->y == n[1])
            return 1;
        if (window)
            snprintf(error, size, "the window \"%.300s\" stands at %d %d", step->text, window->x, window->y);
        else
            snprintf(error, size, "no window \"%.300s\"", step->text);
        return 0;
    }
    case SCRIPT_EXPECT_NO_WINDOW:
        if (!FindLiveWindow(step->text))
            return 1;
        snprintf(error, size, "a window \"%.300s\" is still open", step->text);
        return 0;
    case SCRIPT_EXPECT_FILE_HAS: {
        char *data = (char *)LoadFile(step->text);
        u32 length = data ? GetLoadFileSize() : 0;
        int found = data && memmem(data, length, step->detail, strlen(step->detail)) != NULL;
        FreeMem(data, length);
        if (found)
            return 1;
        if (data)
            snprintf(error, size, "the file %.150s doesn't hold \"%.150s\"", step->text, step->detail);
        else
            snprintf(error, size, "the file %.200s can't be read", step->text);
        return 0;
    }
    }
    return 0;
}

int PlayScript(T_SCRIPT *script, const char *name)
{
    for (u32 i = 0; i < script->count; i++) {
        char reason[400];
        if (SessionEnded()) {
            snprintf(script->error, sizeof(script->error), "%.200s:%u: the session has ended", name,
                     script->steps[i].line);
            return 0;
        }
        if (!PlayStep(&script->steps[i], reason, sizeof(reason))) {
            snprintf(script->error, sizeof(script->error), "%.200s:%u: %.380s", name, script->steps[i].line, reason);
            return 0;
        }
    }
    return 1;
}

void FreeScript(T_SCRIPT *script)
{
    if (script->steps)
        FreeMem(script->steps, script->count * (u32)sizeof(T_SCRIPT_STEP));
    script->steps = NULL;
    script->count = 0;
}
