// Memory blocks, freed with their size, and the base record of Ostrand.
// Each block has a small head that records its size, so that FreeMem can check the caller's.
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "ostrand_internal.h"

// The base record is constant-initialised, so it is valid before any code of the toolkit runs.
static T_OSTRAND_BASE ostrand_base = {0, "", "", 3, 0, 0};
T_OSTRAND_BASE *_OstrandBase = &ostrand_base;

// The size check is cheap, so it stays on in every build unless it is switched off explicitly.
#ifdef QF_NO_MEMORY_CHECK
static const int memory_check = 0;
#else
static const int memory_check = 1;
#endif

#define BLOCK_MAGIC_LIVE 0x4b4c4251u  // "QBLK"
#define BLOCK_MAGIC_FREED 0x44454552u

// The head in front of every block; 16 bytes, so the block keeps malloc's alignment.
typedef struct T_BLOCK_HEAD {
    u32 magic;
    u32 size;   // the size the owner asked for and frees with
    u32 type;   // the memory type asked for; kept for inspection only
    u32 extra;  // cleared bytes behind `size` that belong to the block
} T_BLOCK_HEAD;

void *AllocMemExtra(u32 type, u32 size, u32 extra)
{
    T_BLOCK_HEAD *head = (T_BLOCK_HEAD *)calloc(1, sizeof(T_BLOCK_HEAD) + (size_t)size + extra);
    if (!head) {
        fprintf(stderr, "AllocMem: no memory for %u bytes\n", size);
        return NULL;
    }
    head->magic = BLOCK_MAGIC_LIVE;
    head->size = size;
    head->type = type;
    head->extra = extra;
    _OstrandBase->blocks_allocated++;
    return head + 1;
}

void *AllocMemType(u32 type, u32 size)
{
    return AllocMemExtra(type, size, 0);
}

void *AllocMemC(u32 size)
{
    return AllocMemExtra(_OstrandBase->default_memory_type, size, 0);
}

// A block that isn't live (freed twice, or never ours) is reported and left alone.
void FreeMem(void *block, u32 size)
{
    if (!block)
        return;
    T_BLOCK_HEAD *head = (T_BLOCK_HEAD *)block - 1;
    if (head->magic != BLOCK_MAGIC_LIVE) {
        fprintf(stderr, "FreeMem: %p is no live block (freed twice?)\n", block);
        return;
    }
    if (memory_check && head->size != size) {
        fprintf(stderr, "FreeMem: block %p of %u bytes freed with size %u\n", block, head->size, size);
        _OstrandBase->size_mismatches++;
    }
    head->magic = BLOCK_MAGIC_FREED;
    _OstrandBase->blocks_allocated--;
    free(head);
}

void ZeroMem(void *block, u32 size)
{
    if (block)
        memset(block, 0, size);
}
