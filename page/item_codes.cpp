// The counted set of a page's item codes: a hash table of code and count with linear probing, and
// a cursor on the lowest free code that only moves up past codes in use, and down when a code below
// it is freed. Each change costs constant time on average; so does asking for the lowest free code
// while gadgets are only made.
#include "page/item_codes.h"

#define FIRST_CAPACITY 64

static u32 Slot(u32 code, u32 capacity)
{
    return (code * 2654435761u) & (capacity - 1);  // Knuth's multiplicative hash
}

void InitItemCodes(T_ITEM_CODES *codes)
{
    codes->slots = NULL;
    codes->capacity = 0;
    codes->used = 0;
    codes->total = 0;
    codes->lowest_free = 1;
}

void FreeItemCodes(T_ITEM_CODES *codes)
{
    FreeMem(codes->slots, codes->capacity * (u32)sizeof(T_CODE_SLOT));
    InitItemCodes(codes);
}

static T_CODE_SLOT *Find(const T_ITEM_CODES *codes, u32 code)
{
    if (!codes->capacity)
        return NULL;
    for (u32 i = Slot(code, codes->capacity);; i = (i + 1) & (codes->capacity - 1)) {
        T_CODE_SLOT *slot = &codes->slots[i];
        if (!slot->count || slot->code == code)
            return slot;
    }
}

u32 ItemCodeCount(const T_ITEM_CODES *codes, u32 code)
{
    T_CODE_SLOT *slot = Find(codes, code);
    return slot && slot->count && slot->code == code ? slot->count : 0;
}

// Twice the room, every code placed again.
static int Grow(T_ITEM_CODES *codes)
{
    u32 capacity = codes->capacity ? codes->capacity * 2 : FIRST_CAPACITY;
    T_CODE_SLOT *slots = (T_CODE_SLOT *)AllocMemC(capacity * (u32)sizeof(T_CODE_SLOT));
    if (!slots)
        return 0;
    T_ITEM_CODES bigger = {slots, capacity, codes->used, codes->total, codes->lowest_free};
    for (u32 i = 0; i < codes->capacity; i++)
        if (codes->slots[i].count)
            *Find(&bigger, codes->slots[i].code) = codes->slots[i];
    FreeMem(codes->slots, codes->capacity * (u32)sizeof(T_CODE_SLOT));
    *codes = bigger;
    return 1;
}

int AddItemCode(T_ITEM_CODES *codes, u32 code)
{
    return AddItemCodeOf(codes, code, NULL);
}

void *FirstHolder(const T_ITEM_CODES *codes, u32 code)
{
    T_CODE_SLOT *slot = Find(codes, code);
    return slot && slot->count && slot->code == code ? slot->first : NULL;
}

int AddItemCodeOf(T_ITEM_CODES *codes, u32 code, void *holder)
{
    if ((codes->used + 1) * 2 > codes->capacity && !Grow(codes)) {
        myprintf(0, "No memory for the item codes of a page\n");
        FreeItemCodes(codes);
        return 0;
    }
    T_CODE_SLOT *slot = Find(codes, code);
    if (!slot->count) {
        slot->code = code;
        slot->first = holder;
        codes->used++;
    }
    slot->count++;
    codes->total++;
    return 1;
}

// Takes the slot out and places again the run of slots behind it, so that no probe stops short.
static void DropSlot(T_ITEM_CODES *codes, T_CODE_SLOT *slot)
{
    u32 mask = codes->capacity - 1;
    u32 hole = (u32)(slot - codes->slots);
    slot->count = 0;
    codes->used--;
    for (u32 i = (hole + 1) & mask; codes->slots[i].count; i = (i + 1) & mask) {
        T_CODE_SLOT moved = codes->slots[i];
        codes->slots[i].count = 0;
        *Find(codes, moved.code) = moved;
    }
}

void RemoveItemCode(T_ITEM_CODES *codes, u32 code)
{
    T_CODE_SLOT *slot = Find(codes, code);
    if (!slot || !slot->count || slot->code != code)
        return;
    codes->total--;
    if (--slot->count)
        return;
    DropSlot(codes, slot);
    if (code && code < codes->lowest_free)
        codes->lowest_free = code;
}

u32 LowestFreeItemCode(T_ITEM_CODES *codes)
{
    while (ItemCodeCount(codes, codes->lowest_free))
        codes->lowest_free++;
    return codes->lowest_free;
}
