// The selector suites' set-up: the Lumora suite's headless toolkit and input, a parent window that
// records what it is told, and a scratch folder tree.
#pragma once
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "knobkit/knobkit_internal.h"
#include "pickett/pickett_internal.h"
#include "tests/harness/toolkit_fixture.h"

// What the spy parent's message function was given; for a file selector's OK the answer is
// copied, since it lives only as long as the call.
struct SPY_MESSAGE {
    u32 item_code, msg;
    void *data;
    std::string directory, name;
};

extern std::vector<SPY_MESSAGE> spy;
// Called with each message as it is delivered, while the sender's record is still there; reset
// to null by each test's set-up.
extern void (*spy_check)(u32 item_code, u32 msg, void *data);
u32 SpyParentMessage(t_Window *window, u32 item_code, u32 msg, void *data);

class PickettTest : public LumoraTest
{
  protected:
    std::string scratch;
    t_Window *parent = nullptr;

    void SetUp() override;
    void TearDown() override;

    // A parent that takes every requester answer and the close message.
    t_Window *MakeParent(u32 idcmp = IDCMP_TERMINATE | IDCMP_REQUESTER_OK | IDCMP_REQUESTER_CANCEL |
                                     IDCMP_REQUESTER_PREVIEW);
    void MakeFiles(const std::vector<std::string> &paths);  // below `scratch`; "x/" is a folder
    std::vector<u32> MessagesOf(u32 msg) const;             // their item codes
    void ClickGadget(t_Window *window, u32 item_code);      // in the middle of the gadget
};

// The texts of a list box's entries.
std::vector<std::string> ListTexts(t_gadget *list);
// The index of the entry with this text, or -1.
int ListIndexOf(t_gadget *list, const char *text);
// The centre of a list box's row `index`, which must be visible.
void ListRowPoint(t_gadget *list, int index, i16 *x, i16 *y);
