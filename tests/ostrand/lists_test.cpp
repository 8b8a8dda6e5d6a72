// Lists: the overlapping head and tail mark, unlinking by the node alone, priority order, walks.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "toolkit.h"

// The names of a list, front to back, by a walk that stops at the tail mark.
static std::string Names(t_List *list)
{
    std::string names;
    for (t_Node *n = list->first; n->next; n = n->next)
        names += n->name ? n->name : "?";
    return names;
}

// The same, back to front by prev, which stops at the head (the node whose prev is null).
static std::string NamesBackwards(t_List *list)
{
    std::string names;
    for (t_Node *n = list->last; n->prev; n = n->prev)
        names.insert(0, n->name ? n->name : "?");
    return names;
}

class ListTest : public ::testing::Test
{
  protected:
    t_List list;
    u64 blocks_before = 0;
    void SetUp() override
    {
        blocks_before = _OstrandBase->blocks_allocated;
        InitList(&list, "test");
    }
    void TearDown() override
    {
        EmptyList(&list, sizeof(t_Node));
        EXPECT_EQ(_OstrandBase->blocks_allocated, blocks_before);
    }
    void Fill(const char *names)
    {
        for (const char *c = names; *c; c++) {
            char name[2] = {*c, 0};
            NewTail(&list, sizeof(t_Node), name);
        }
    }
};

TEST_F(ListTest, EmptyListWalksNothingAndItsFirstIsTheTailMark)
{
    EXPECT_TRUE(LIST_EMPTY(&list));
    EXPECT_EQ(CountListEntries(&list), 0u);
    EXPECT_EQ(list.first->next, nullptr);
    EXPECT_EQ(FindFirstNode(list.first), list.first);
    EXPECT_EQ(FindNode(list.first, "a"), nullptr);
    EXPECT_EQ(FindNodeByIndex(&list, 0), nullptr);
}

TEST_F(ListTest, SubNodeOfFirstLastMiddleAndOnlyKeepsBothDirections)
{
    struct Case {
        const char *fill;
        int remove_index;
        const char *left;
    } cases[] = {
        {"abc", 0, "bc"},
        {"abc", 2, "ab"},
        {"abc", 1, "ac"},
        {"a", 0, ""},
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

TEST_F(ListTest, AddQueueIsStableHighestFirst)
{
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
