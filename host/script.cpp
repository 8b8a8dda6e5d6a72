// Reads scripts of a person's actions and plays them, as input fed to the loop turn by turn, in
// the shapes of the user actions.
#include "host/script.h"

#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

#include "host/user_actions.h"

#define TOOLBAR_WINDOW_NAME "qftoolbar"  // the name the editor gives its toolbar

#define NO_USER_ACTION 0xFFFF  // a step that is no person's action of its own
#define LEFT_BUTTON 1
#define RIGHT_BUTTON 3
#define SCRIPT_LINE_SIZE 1024  // the longest line a script may hold, with its end
#define SCRIPT_FIRST_STEPS 32  // the steps' first block; it doubles as it fills

// What follows a script's word.
enum {
    FOLLOWS_NUMBERS,       // the numbers alone
    FOLLOWS_TEXT,          // the rest of the line
    FOLLOWS_NAME_NUMBERS,  // a quoted name, then the numbers
    FOLLOWS_NAME,          // a quoted name
    FOLLOWS_NAME_TEXT,     // a quoted name, then the rest of the line
};

typedef struct T_SCRIPT_WORD {
    const char *word;
    u16 verb;
    u16 numbers;  // how many numbers follow
    u16 follows;  // FOLLOWS_
    u16 action;   // the user action the step plays, or NO_USER_ACTION
    u16 button;   // the action's button
} T_SCRIPT_WORD;

// clang-format off
//   word                verb                     numbers follows          action             button
static const T_SCRIPT_WORD script_words[] = {
    {"move",             SCRIPT_MOVE,             2, FOLLOWS_NUMBERS,      USER_MOVE,         LEFT_BUTTON},
    {"press",            SCRIPT_PRESS,            2, FOLLOWS_NUMBERS,      USER_PRESS,        LEFT_BUTTON},
    {"release",          SCRIPT_RELEASE,          2, FOLLOWS_NUMBERS,      USER_RELEASE,      LEFT_BUTTON},
    {"click",            SCRIPT_CLICK,            2, FOLLOWS_NUMBERS,      USER_CLICK,        LEFT_BUTTON},
    {"dclick",           SCRIPT_DCLICK,           2, FOLLOWS_NUMBERS,      USER_DOUBLE_CLICK, LEFT_BUTTON},
    {"rclick",           SCRIPT_RCLICK,           2, FOLLOWS_NUMBERS,      USER_CLICK,        RIGHT_BUTTON},
    {"drag",             SCRIPT_DRAG,             4, FOLLOWS_NUMBERS,      USER_DRAG,         LEFT_BUTTON},
    {"key",              SCRIPT_KEY,              0, FOLLOWS_TEXT,         USER_KEY,          LEFT_BUTTON},
    {"type",             SCRIPT_TYPE,             0, FOLLOWS_TEXT,         USER_TYPE,         LEFT_BUTTON},
    {"turns",            SCRIPT_TURNS,            1, FOLLOWS_NUMBERS,      NO_USER_ACTION,    0},
    {"screenshot",       SCRIPT_SCREENSHOT,       0, FOLLOWS_TEXT,         NO_USER_ACTION,    0},
    {"click-gadget",     SCRIPT_CLICK_GADGET,     1, FOLLOWS_NAME_NUMBERS, NO_USER_ACTION,    0},
    {"click-tool",       SCRIPT_CLICK_TOOL,       1, FOLLOWS_NUMBERS,      NO_USER_ACTION,    0},
    {"expect-window",    SCRIPT_EXPECT_WINDOW,    0, FOLLOWS_NAME,         NO_USER_ACTION,    0},
    {"expect-no-window", SCRIPT_EXPECT_NO_WINDOW, 0, FOLLOWS_NAME,         NO_USER_ACTION,    0},
    {"expect-window-at", SCRIPT_EXPECT_WINDOW_AT, 2, FOLLOWS_NAME_NUMBERS, NO_USER_ACTION,    0},
    {"expect-file-has",  SCRIPT_EXPECT_FILE_HAS,  0, FOLLOWS_NAME_TEXT,    NO_USER_ACTION,    0},
};
// clang-format on

// The row of a step's verb.
static const T_SCRIPT_WORD *WordOfVerb(u16 verb)
{
    for (const T_SCRIPT_WORD &w : script_words)
        if (w.verb == verb)
            return &w;
    return NULL;
}

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
        int quoted = w.follows == FOLLOWS_NAME_NUMBERS || w.follows == FOLLOWS_NAME || w.follows == FOLLOWS_NAME_TEXT;
        if (quoted && !ReadQuoted(&at, step->text, sizeof(step->text)))
            return 0;
        for (u16 i = 0; i < w.numbers; i++)
            if (!ReadNumber(&at, &step->numbers[i]))
                return 0;
        if (w.follows == FOLLOWS_NAME_TEXT)
            return ReadRest(at, step->detail, sizeof(step->detail));
        if (w.follows == FOLLOWS_TEXT) {
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

// Drops the steps read so far when a line can't be read; false.
static int DropSteps(T_SCRIPT *script, u32 capacity)
{
    if (script->steps)
        FreeMem(script->steps, capacity * (u32)sizeof(T_SCRIPT_STEP));
    script->steps = NULL;
    script->count = 0;
    return 0;
}

// Makes room for one more step.
static void GrowSteps(T_SCRIPT *script, u32 *capacity)
{
    if (script->count < *capacity)
        return;
    u32 grown = *capacity ? *capacity * 2 : SCRIPT_FIRST_STEPS;
    T_SCRIPT_STEP *steps = (T_SCRIPT_STEP *)AllocMemC(grown * (u32)sizeof(T_SCRIPT_STEP));
    if (script->steps) {
        memcpy(steps, script->steps, script->count * sizeof(T_SCRIPT_STEP));
        FreeMem(script->steps, *capacity * (u32)sizeof(T_SCRIPT_STEP));
    }
    script->steps = steps;
    *capacity = grown;
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
        char line[SCRIPT_LINE_SIZE];
        line_number++;
        if (length >= sizeof(line)) {
            snprintf(script->error, sizeof(script->error), "%.200s:%u: the line is too long", name, line_number);
            return DropSteps(script, capacity);
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
        GrowSteps(script, &capacity);
        T_SCRIPT_STEP *step = &script->steps[script->count];
        memset(step, 0, sizeof(*step));
        step->line = line_number;
        if (!ParseLine(step, start)) {
            snprintf(script->error, sizeof(script->error), "%.200s:%u: cannot read \"%.300s\"", name, line_number,
                     start);
            return DropSteps(script, capacity);
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

// The steps that check what stands: true when it holds, else false with the reason in `error`.
static int CheckStep(const T_SCRIPT_STEP *step, char *error, size_t size)
{
    const i32 *n = step->numbers;
    switch (step->verb) {
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
    default:
        snprintf(error, size, "an unknown step");
        return 0;
    }
}

// --- Playing ---------------------------------------------------------------------------------------
// The player feeds the steps to the loop as input: the loop calls it at the start of each turn
// (SetInputSource), and it queues the next batch of input once the last one has been taken and
// painted. So a step that makes a message function turn the loop inside itself (the close query's
// wait) doesn't stop the script: its next steps answer the query from inside that wait. The same
// batches make the user actions, so a step does what the matching call does.
enum { PLAYER_PLAYING, PLAYER_DONE, PLAYER_FAILED };

typedef struct T_PLAYER {
    T_SCRIPT *script;
    const char *name;
    u32 next;                   // the step to start next
    const T_SCRIPT_STEP *step;  // the step under way; null between steps
    T_USER_BATCHES batches;     // its input
    u32 batch;                  // the next batch to queue
    u32 settle;                 // turns to let pass after a batch has been taken
    u32 advance_ms;             // time to let pass then
    u32 turns;                  // turns still to go of a `turns` step
    int find_gadget;            // click-gadget: the combo has scrolled; the click comes now
    int state;
    int feeding;
    u32 timeout_s;  // a step that takes longer fails the script; 0: no limit
} T_PLAYER;

static T_PLAYER player;
static char timeout_text[700];  // written by the alarm, so made ready at each step's start

static void TimedOut(int)
{
    ssize_t written = write(2, timeout_text, strlen(timeout_text));
    (void)written;
    _exit(1);
}

// Fails the script at its current step with `reason`.
static void Fail(T_PLAYER *p, const char *reason)
{
    u32 line = p->step ? p->step->line : p->next ? p->script->steps[p->next - 1].line : 0;
    snprintf(p->script->error, sizeof(p->script->error), "%.200s:%u: %.380s", p->name, line, reason);
    p->state = PLAYER_FAILED;
}

// Sets up the click of a step on a point.
static void ClickAt(T_PLAYER *p, i16 x, i16 y)
{
    T_USER_ACTION click = UserAction(USER_CLICK, x, y);
    UserActionBatches(&click, &p->batches);
}

// The centre of the step's gadget, scrolled into view first when it sits in a combo (then the
// click waits a turn, as a person waits for the combo to move).
static void FindGadget(T_PLAYER *p)
{
    const T_SCRIPT_STEP *step = p->step;
    t_Window *window = FindLiveWindow(step->text);
    t_gadget *gadget = window ? FindGadgetByItemCode(window, (u32)step->numbers[0]) : NULL;
    if (!gadget) {
        char reason[400];
        snprintf(reason, sizeof(reason), "no gadget %d in a window \"%.300s\"", step->numbers[0], step->text);
        Fail(p, reason);
        return;
    }
    if (gadget->parent_combo && !p->find_gadget) {
        ScrollComboToGadget(gadget);
        p->find_gadget = 1;
        p->turns = 1;
        return;
    }
    p->find_gadget = 0;
    ClickAt(p, (i16)(gadget->screen_x + gadget->base_width / 2), (i16)(gadget->screen_y + gadget->base_height / 2));
}

// Starts the next step: one that acts queues its batches; one that checks or writes a file is done
// at once. False when the script has ended or failed.
static int StartStep(T_PLAYER *p)
{
    if (p->next >= p->script->count) {
        p->state = PLAYER_DONE;
        return 0;
    }
    const T_SCRIPT_STEP *step = p->step = &p->script->steps[p->next++];
    if (SessionEnded()) {
        Fail(p, "the session has ended");
        return 0;
    }
    if (p->timeout_s) {
        snprintf(timeout_text, sizeof(timeout_text),
                 "quillform: %.200s:%u: the step took longer than %u s (--script-timeout)\n", p->name, step->line,
                 p->timeout_s);
        alarm(p->timeout_s);
    }
    p->batches.count = 0;
    p->batch = 0;
    const i32 *n = step->numbers;
    const T_SCRIPT_WORD *word = WordOfVerb(step->verb);
    if (word && word->action != NO_USER_ACTION) {  // a person's action: the table says which
        T_USER_ACTION action = UserAction(word->action, (i16)n[0], (i16)n[1]);
        action.button = word->button;
        action.x2 = (i16)n[2];  // a drag's end
        action.y2 = (i16)n[3];
        action.key = step->key;
        action.qualifiers = step->qualifiers;
        action.text = step->text;
        UserActionBatches(&action, &p->batches);
        return 1;
    }
    char reason[400];
    switch (step->verb) {
    case SCRIPT_TURNS:
        p->turns = (u32)(n[0] > 0 ? n[0] : 0);
        return 1;
    case SCRIPT_SCREENSHOT:
        if (!UserScreenshot(step->text)) {
            snprintf(reason, sizeof(reason), "cannot write the screenshot %.300s", step->text);
            Fail(p, reason);
        }
        return p->state == PLAYER_PLAYING;
    case SCRIPT_CLICK_GADGET:
        FindGadget(p);
        return p->state == PLAYER_PLAYING;
    case SCRIPT_CLICK_TOOL: {
        i16 x, y;
        if (!FindToolCentre(TOOLBAR_WINDOW_NAME, (u16)n[0], &x, &y)) {
            snprintf(reason, sizeof(reason), "no tool %d on the toolbar", n[0]);
            Fail(p, reason);
            return 0;
        }
        ClickAt(p, x, y);
        return 1;
    }
    default:
        if (!CheckStep(step, reason, sizeof(reason)))
            Fail(p, reason);
        return p->state == PLAYER_PLAYING;
    }
}

// What stands in front when the script stops inside a wait: the window with the focus.
static const char *WindowInFront(void)
{
    t_Window *front = CURRENT_DISPLAY->window_class->current_window;
    return front && IsWindowLive(front) && front->name ? front->name : "a window";
}

// The loop's input source: queues the next batch of input when the last has been taken and
// painted, and starts the steps one after another.
static void FeedScript(void)
{
    T_PLAYER *p = &player;
    if (p->feeding)
        return;
    p->feeding = 1;
    while (p->state == PLAYER_PLAYING && !HeadlessPending()) {
        if (p->settle) {  // the turn after the input was taken paints what it did
            p->settle--;
            break;
        }
        if (p->advance_ms) {
            HeadlessAdvance(p->advance_ms);
            p->advance_ms = 0;
        }
        if (p->turns) {  // this turn is one of them
            p->turns--;
            break;
        }
        if (p->step && p->find_gadget) {
            FindGadget(p);
            continue;
        }
        if (p->step && p->batch < p->batches.count) {
            const T_INPUT_BATCH *batch = &p->batches.batches[p->batch++];
            for (u32 e = 0; e < batch->count; e++)
                HeadlessPush(&batch->events[e]);
            p->settle = 1;
            p->advance_ms = batch->advance_ms;
            break;
        }
        p->step = NULL;
        StartStep(p);
    }
    p->feeding = 0;
    // The script stopped while a message function waits inside a turn (the close query): nothing
    // would ever answer it, and nothing can unwind it but the end of the process.
    if (p->state != PLAYER_PLAYING && _LumoraBase->turn_depth > 1) {
        alarm(0);
        if (p->state == PLAYER_DONE)
            snprintf(p->script->error, sizeof(p->script->error),
                     "%.200s:%u: the script ended while \"%.200s\" waits for an answer", p->name,
                     p->script->count ? p->script->steps[p->script->count - 1].line : 0, WindowInFront());
        fprintf(stderr, "quillform: %s\n", p->script->error);
        fflush(stdout);
        fflush(stderr);
        _exit(1);
    }
}

int PlayScript(T_SCRIPT *script, const char *name, u32 timeout_s)
{
    memset(&player, 0, sizeof(player));
    player.script = script;
    player.name = name;
    player.timeout_s = timeout_s;
    player.state = PLAYER_PLAYING;
    script->error[0] = 0;
    struct sigaction action = {};
    action.sa_handler = TimedOut;
    sigaction(SIGALRM, &action, NULL);
    SetInputSource(FeedScript);
    while (player.state == PLAYER_PLAYING)
        RefreshHandlers(NULL);
    alarm(0);
    SetInputSource(NULL);
    return player.state == PLAYER_DONE;
}

void FreeScript(T_SCRIPT *script)
{
    if (script->steps)
        FreeMem(script->steps, script->count * (u32)sizeof(T_SCRIPT_STEP));
    script->steps = NULL;
    script->count = 0;
}
