// Undo lists: the order of undo and redo, the ends, the redo half dropped by a new record, labels.
#include <gtest/gtest.h>
#include <string.h>

#include <string>
#include <vector>

#include "toolkit.h"

static std::string undo_log;

static void UndoStep(void *data)
{
    undo_log += "u" + std::to_string(*(u32 *)data);
}

static void RedoStep(void *data)
{
    undo_log += "r" + std::to_string(*(u32 *)data);
}

enum { OP_ADD, OP_UNDO, OP_REDO };

static std::string Label(T_UNDO_NODE *node)
{
    return node ? node->name : "-";
}

TEST(UndoList, UndoAndRedoWalkTheHistoryAndANewRecordDropsTheRedoHalf)
{
    //  operation  record  calls  can undo  can redo  next undo  next redo  records
    const struct {
        u8 op;
        u32 number;
        const char *calls;
        int can_undo, can_redo;
        const char *undo_label, *redo_label;
        u32 records;
    } steps[] = {
        {OP_UNDO, 0, "", 0, 0, "-", "-", 0},  // nothing to take back
        {OP_ADD, 1, "", 1, 0, "Step 1", "-", 1},
        {OP_ADD, 2, "", 1, 0, "Step 2", "-", 2},
        {OP_UNDO, 0, "u2", 1, 1, "Step 1", "Step 2", 2},
        {OP_UNDO, 0, "u1", 0, 1, "-", "Step 1", 2},
        {OP_UNDO, 0, "", 0, 1, "-", "Step 1", 2},  // at the start
        {OP_REDO, 0, "r1", 1, 1, "Step 1", "Step 2", 2},
        {OP_REDO, 0, "r2", 1, 0, "Step 2", "-", 2},
        {OP_REDO, 0, "", 1, 0, "Step 2", "-", 2},  // at the end
        {OP_UNDO, 0, "u2", 1, 1, "Step 1", "Step 2", 2},
        {OP_ADD, 3, "", 1, 0, "Step 3", "-", 2},  // Step 2 is dropped
        {OP_UNDO, 0, "u3", 1, 1, "Step 1", "Step 3", 2},
        {OP_UNDO, 0, "u1", 0, 1, "-", "Step 1", 2},
        {OP_ADD, 4, "", 1, 0, "Step 4", "-", 1},  // everything undone is dropped
    };
    u64 blocks = _OstrandBase->blocks_allocated;
    T_UNDO_LIST list;
    InitUndoList(&list, "page");
    for (const auto &step : steps) {
        undo_log.clear();
        switch (step.op) {
        case OP_ADD: {
            std::string label = "Step " + std::to_string(step.number);
            T_UNDO_NODE *node = AddUndoNode(&list, RedoStep, UndoStep, NULL, sizeof(u32), label.c_str());
            *(u32 *)node->data = step.number;
            break;
        }
        case OP_UNDO:
            Undo(&list);
            break;
        case OP_REDO:
            Redo(&list);
            break;
        }
        SCOPED_TRACE(testing::Message() << "step " << (&step - steps));
        EXPECT_EQ(undo_log, step.calls);
        EXPECT_EQ(CanUndo(&list), step.can_undo);
        EXPECT_EQ(CanRedo(&list), step.can_redo);
        EXPECT_EQ(Label(GetCurrentUndoNode(&list)), step.undo_label);
        EXPECT_EQ(Label(GetCurrentRedoNode(&list)), step.redo_label);
        EXPECT_EQ(CountListEntries(&list.nodes), step.records);
    }
    EmptyUndoList(&list);
    EXPECT_FALSE(CanUndo(&list));
    EXPECT_FALSE(CanRedo(&list));
    EXPECT_EQ(_OstrandBase->blocks_allocated, blocks);
    EXPECT_EQ(_OstrandBase->size_mismatches, 0u);
}
