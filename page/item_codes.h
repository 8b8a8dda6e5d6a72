// The item codes of a page's gadgets as a counted set: how many gadgets hold each code, and the
// smallest positive code that none holds, so that a new gadget's code costs no walk of the page.
#pragma once
#include "toolkit.h"

typedef struct T_CODE_SLOT {
    u32 code;
    u32 count;    // 0: an empty slot
    void *first;  // what the first AddItemCodeOf of the code gave (its first holder), else null
} T_CODE_SLOT;

typedef struct T_ITEM_CODES {
    T_CODE_SLOT *slots;  // open addressing; a power of two long, at most half full
    u32 capacity;
    u32 used;         // slots with a count
    u32 total;        // the counts added up: how many holders there are
    u32 lowest_free;  // no code below it is free but those freed since (it is pulled down then)
} T_ITEM_CODES;

void InitItemCodes(T_ITEM_CODES *codes);
void FreeItemCodes(T_ITEM_CODES *codes);
u32 ItemCodeCount(const T_ITEM_CODES *codes, u32 code);
// One more (or one fewer) gadget holds `code`; false when memory runs out (the set is then
// emptied and must be built again).
int AddItemCode(T_ITEM_CODES *codes, u32 code);
// The same, noting `holder` with the code when it is new; FirstHolder gives it back (null when none
// holds the code).
int AddItemCodeOf(T_ITEM_CODES *codes, u32 code, void *holder);
void *FirstHolder(const T_ITEM_CODES *codes, u32 code);
void RemoveItemCode(T_ITEM_CODES *codes, u32 code);
// The smallest positive code that no gadget holds.
u32 LowestFreeItemCode(T_ITEM_CODES *codes);
