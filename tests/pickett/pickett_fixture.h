// The selector suites' set-up: the toolkit on the headless display in a temporary data root, a
// parent window that records what it is told, a person's input, and a scratch folder tree.
#pragma once
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "display/display.h"
#include "knobkit/knobkit_internal.h"
#include "pickett/pickett_internal.h"
#include "toolkit.h"

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

class PickettTest : public ::testing::Test {
  protected:
    std::string data_root, scratch;
    t_Window *parent = nullptr;
    u64 blocks_at_start = 0;  // every block the test made is freed by the end

    void SetUp() override;
    void TearDown() override;

    // A parent that takes every requester answer and the close message.
    t_Window *MakeParent(u32 idcmp = IDCMP_TERMINATE | IDCMP_REQUESTER_OK | IDCMP_REQUESTER_CANCEL |
                                     IDCMP_REQUESTER_PREVIEW);
    void MakeFiles(const std::vector<std::string> &paths);  // below `scratch`; "x/" is a folder
    std::vector<u32> MessagesOf(u32 msg) const;             // their item codes

    // A person's input, each followed by a turn of the loop.
    void Turn(u32 turns = 1);
    void Click(i16 x, i16 y);
    void DoubleClick(i16 x, i16 y);
    void Key(u16 key, u16 qualifiers = 0);
    void Type(const char *text);
    void Drag(i16 x1, i16 y1, i16 x2, i16 y2);
    void ClickGadget(t_Window *window, u32 item_code);  // in the middle of the gadget
};

// The texts of a list box's entries.
std::vector<std::string> ListTexts(t_gadget *list);
// The index of the entry with this text, or -1.
int ListIndexOf(t_gadget *list, const char *text);
// The centre of a list box's row `index`, which must be visible.
void ListRowPoint(t_gadget *list, int index, i16 *x, i16 *y);
