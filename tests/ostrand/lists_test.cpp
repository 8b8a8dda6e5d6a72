// Lists: the overlapping head and tail mark, unlinking by the node alone, priority order, walks.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "toolkit.h"

// The names of a list, front to back, by a walk that stops at the tail mark.
static std::string Names(t_List *list) {
    std::string names;
    for (t_Node *n = list->first; n->next; n = n->next)
        names += n->name ? n->name : "?";
    return names;
}

// The same, back to front by prev, which stops at the head (the node whose prev is null).
static std::string NamesBackwards(t_List *list) {
    std::string names;
    for (t_Node *n = list->last; n->prev; n = n->prev)
        names.insert(0, n->name ? n->name : "?");
    return names;
}

class ListTest : public ::testing::Test {
  protected:
    t_List list;
    u64 blocks_before = 0;
    void SetUp() override {
        blocks_before = _OstrandBase->blocks_allocated;
        InitList(&list, "test");
    }
    void TearDown() override {
        EmptyList(&list, sizeof(t_Node));
        EXPECT_EQ(_OstrandBase->blocks_allocated, blocks_before);
    }
    void Fill(const char *names) {
        for (const char *c = names; *c; c++) {
            char name[2] = {*c, 0};
            NewTail(&list, sizeof(t_Node), name);
        }
    }
};

TEST_F(ListTest, EmptyListWalksNothingAndItsFirstIsTheTailMark) {
    EXPECT_TRUE(LIST_EMPTY(&list));
    EXPECT_EQ(CountListEntries(&list), 0u);
    EXPECT_EQ(list.first->next, nullptr);
    EXPECT_EQ(FindFirstNode(list.first), list.first);
    EXPECT_EQ(FindNode(list.first, "a"), nullptr);
    EXPECT_EQ(FindNodeByIndex(&list, 0), nullptr);
}

TEST_F(ListTest, SubNodeOfFirstLastMiddleAndOnlyKeepsBothDirections) {
    struct Case {
        const char *fill;
        int remove_index;
        const char *left;
    } cases[] = {
        {"abc", 0, "bc"}, {"abc", 2, "ab"}, {"abc", 1, "ac"}, {"a", 0, ""},
    };
    for (const Case &c : cases) {
        EmptyList(&list, sizeof(t_Node));
        Fill(c.fill);
        t_Node *node = FindNodeByIndex(&list, (u32)c.remove_index);
        SubNode(node);
        FreeMem(node, sizeof(t_Node));
        EXPECT_EQ(Names(&list), c.left) << c.fill << " without " << c.remove_index;
        EXPECT_EQ(NamesBackwards(&list), c.left) << c.fill << " without " << c.remove_index;
        EXPECT_EQ(LIST_EMPTY(&list), c.left[0] == 0);
    }
}

TEST_F(ListTest, SubNodeTwiceOrOfTheTailMarkChangesNothing) {
    Fill("ab");
    t_Node *a = list.first;
    SubNode(a);
    SubNode(a);
    SubNode(list.first->next);  // the tail mark
    EXPECT_EQ(Names(&list), "b");
    AddHead(&list, a);
    EXPECT_EQ(Names(&list), "ab");
}

TEST_F(ListTest, FindFirstNodeFromAnyNodeAndFromTheTailMark) {
    Fill("abcd");
    t_Node *tail_mark = list.last->next;
    ASSERT_EQ(tail_mark->next, nullptr);
    for (t_Node *from : {list.first, list.first->next->next, list.last, tail_mark})
        EXPECT_EQ(FindFirstNode(from), list.first);
}

TEST_F(ListTest, AddQueueIsStableHighestFirst) {
    struct Entry {
        const char *name;
        i16 priority;
    } entries[] = {{"a", 0}, {"b", 5}, {"c", 0}, {"d", 5}, {"e", -3}, {"f", 10}, {"g", 0}};
    for (const Entry &e : entries) {
        t_Node *node = (t_Node *)AllocMemC(sizeof(t_Node));
        node->name = (char *)e.name;
        node->priority = e.priority;
        AddQueue(&list, node);
    }
    EXPECT_EQ(Names(&list), "fbdacge");
    EXPECT_EQ(NamesBackwards(&list), "fbdacge");
    while (!LIST_EMPTY(&list)) {  // these names aren't the nodes' own: free the nodes alone
        t_Node *node = list.first;
        SubNode(node);
        FreeMem(node, sizeof(t_Node));
    }
}

TEST_F(ListTest, AddHeadAddTailTransferAndCount) {
    Fill("bc");
    t_Node *a = (t_Node *)AllocMemC(sizeof(t_Node));
    a->name = (char *)"a";
    AddHead(&list, a);
    t_List other;
    InitList(&other, "other");
    NewTail(&other, sizeof(t_Node), "d");
    NewTail(&other, sizeof(t_Node), "e");
    TransferList(&list, &other);
    EXPECT_TRUE(LIST_EMPTY(&other));
    EXPECT_EQ(Names(&list), "abcde");
    EXPECT_EQ(NamesBackwards(&list), "abcde");
    EXPECT_EQ(CountListEntries(&list), 5u);
    TransferList(&list, &other);  // an empty source moves nothing
    EXPECT_EQ(CountListEntries(&list), 5u);
    SubNode(a);
    FreeMem(a, sizeof(t_Node));
}

TEST_F(ListTest, FindNodeIsNullSafeAndStartsWhereItIsGiven) {
    Fill("abca");
    t_Node *unnamed = NewTail(&list, sizeof(t_Node), nullptr);
    EXPECT_EQ(unnamed->name, nullptr);
    EXPECT_EQ(FindNode(list.first, "a"), list.first);
    EXPECT_EQ(FindNode(list.first->next, "a"), FindNodeByIndex(&list, 3));
    EXPECT_EQ(FindNode(list.first, nullptr), nullptr);
    EXPECT_EQ(FindNode(nullptr, "a"), nullptr);
    EXPECT_EQ(FindNode(list.first, "z"), nullptr);
    EXPECT_EQ(FindNodeByIndex(&list, 4), unnamed);
    EXPECT_EQ(FindNodeByIndex(&list, 5), nullptr);
}

TEST_F(ListTest, NewTailCopiesTheNameIntoTheNodesBlock) {
    char name[] = "gadget";
    t_Node *node = NewTail(&list, 64, name);
    name[0] = 'X';
    EXPECT_STREQ(node->name, "gadget");
    SubNode(node);
    u64 mismatches = _OstrandBase->size_mismatches;
    FreeMem(node, 64);  // the name goes with the node's block
    EXPECT_EQ(_OstrandBase->size_mismatches, mismatches);
}

TEST_F(ListTest, NodeSizesBelowANodeStillHoldOne) {
    NewTail(&list, 16, "*.fnt");
    NewTail(&list, 16, "*.*");
    EXPECT_EQ(Names(&list), "*.fnt*.*");
    u64 mismatches = _OstrandBase->size_mismatches;
    EmptyList(&list, 16);
    EXPECT_EQ(_OstrandBase->size_mismatches, mismatches);
}

static void UnlinkAndFree(void *node) {
    SubNode((t_Node *)node);
    FreeMem(node, sizeof(t_Node));
}

static void CollectIfData(void *node, void *data) {
    auto *names = (std::vector<std::string> *)data;
    names->push_back(((t_Node *)node)->name);
    if (names->size() % 2)
        UnlinkAndFree(node);
}

TEST_F(ListTest, ApplyFunctionsMayUnlinkTheirNode) {
    Fill("abcde");
    std::vector<std::string> seen;
    ApplyFuncToListData(list.first, CollectIfData, &seen);
    EXPECT_EQ(seen, (std::vector<std::string>{"a", "b", "c", "d", "e"}));
    EXPECT_EQ(Names(&list), "bd");
    ApplyFuncToList(list.first, UnlinkAndFree);
    EXPECT_TRUE(LIST_EMPTY(&list));
}
