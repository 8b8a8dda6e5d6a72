// The page window suites' fixture: the editor's page of 400 by 300, a watcher that answers the
// close query as a person would while the close waits, and the main window's record.
#pragma once
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "editor/context_menus.h"
#include "editor/editor_fixture.h"
#include "editor/texts.h"
#include "pickett.h"
#include "shell/commands.h"
#include "tenure.h"

// Keys that answer the close query: Enter takes the first button, Tab moves to the next one.
#define ANSWER_YES "\r"
#define ANSWER_NO "\t\r"
#define ANSWER_CANCEL "\x1b"

// What the watcher saw of the close query, and what it did.
typedef struct T_CLOSE_WATCH {
    t_Window *page;
    const char *answer;   // the keys typed into the query box once it shows
    int armed;            // a close is under way
    int query_seen;       // a "Quillform query" box showed, a child of the page, without icons
    std::string buttons;  // its buttons' labels, joined by '|'
    std::string text;     // the question it asked
    int answered;         // the keys were typed
    int answer_handled;   // the page's message function has dealt with the answer
    int wait_ended;       // the page stayed open, and the watcher ended the close's wait
    u32 turns;
    int stuck;  // the close went on waiting with nothing to wait for
} T_CLOSE_WATCH;

#define CLOSE_TURNS_MAX 200

class PageWindowTest : public PageTest
{
  protected:
    static T_CLOSE_WATCH watch;

    void SetUp() override
    {
        PageTest::SetUp();
        watch = T_CLOSE_WATCH{};
    }
    void TearDown() override
    {
        _TenureBase->session_state = SESSION_RUNNING;
        PageTest::TearDown();
    }

    T_WINEDIT_MAIN *Main() { return (T_WINEDIT_MAIN *)harness.main_window->user_data; }

    // The page's message function while a close is watched: notes when the query's answer has
    // been dealt with (a save on the way may turn the loop first).
    static u32 WatchMessage(t_Window *window, u32 item_code, u32 msg, void *data)
    {
        u32 result = PageMessage(window, item_code, msg, data);
        if (item_code == PAGE_ITEM_QUERY &&
            (msg == ACT_REQUESTER_OK || msg == ACT_REQUESTER_ABORT || msg == ACT_REQUESTER_CANCEL))
            watch.answer_handled = 1;
        return result;
    }

    // Each turn, while a close is under way: types the answer into the query box once it shows;
    // when the page is still open after the answer, ends the wait as a minimised window would.
    static void WatchPaint(t_Handler *handler)
    {
        t_Window *page = handler->window;
        if (!watch.armed || page != watch.page)
            return;
        t_Window *box = FindWindowByName(page, TXT_QUERY_TITLE);
        if (box && !watch.answered) {
            watch.query_seen = box->parent == page && box->icon_bank == NULL;
            for (t_gadget *g = FindGadgetHandler(box)->first_gadget; g->next; g = g->next)
                watch.buttons += std::string(watch.buttons.empty() ? "" : "|") + g->name;
            watch.text = _OstrandBase->text_buffer;
            for (const char *key = watch.answer; *key; key++)
                PushEvent(INPUT_KEY_DOWN, 0, 0, 0, (u8)*key);
            watch.answered = 1;
            return;
        }
        watch.stuck = ++watch.turns > CLOSE_TURNS_MAX;
        if ((watch.answer_handled || watch.stuck) && IsWindowLive(page) && page->state == WINDOW_STATE_OPEN) {
            page->state = WINDOW_STATE_MINIMISED;
            watch.wait_ended = 1;
            watch.armed = 0;
        }
    }
    static u32 WatchInput(t_Handler *, u32, void *) { return 0; }

    // Closes `target` as its close gadget does, inside a turn of the loop, and answers the query
    // with `answer`. Returns when the close has finished; a page that stayed open is open again.
    void Close(t_Window *target, const char *answer)
    {
        watch = T_CLOSE_WATCH{};
        watch.page = target;
        watch.answer = answer;
        watch.armed = 1;
        NewHandler(&target->handlers, WatchInput, WatchPaint, "close watch", -20, sizeof(t_Handler), target);
        target->message = WatchMessage;
        PostWindowMessage(target, 0, ACT_TERMINATE, NULL);
        RefreshHandlers(NULL);
        watch.armed = 0;
        EXPECT_FALSE(watch.stuck);
        if (watch.wait_ended) {  // else the page has gone, and the toolkit has freed it
            target->state = WINDOW_STATE_OPEN;
            target->message = PageMessage;
        }
    }

    // The pages among the main window's children.
    int PageCount()
    {
        int n = 0;
        for (t_Window *child = harness.main_window->first_child; child->next; child = child->next)
            n += IsPageWindow(child) && IsWindowLive(child);
        return n;
    }

    std::string Root() const { return harness.root; }

    // A file's whole text, "" when it can't be read.
    static std::string ReadText(const std::string &path)
    {
        std::ifstream in(path, std::ios::binary);
        std::ostringstream text;
        text << in.rdbuf();
        return text.str();
    }
};

inline T_CLOSE_WATCH PageWindowTest::watch;
