// SPDX-License-Identifier: MIT
#include "platform/picture/Heap.h"

#ifdef __GLIBC__
#include <malloc.h>
#endif

void KeepOneHeap()
{
#ifdef M_ARENA_MAX
    mallopt(M_ARENA_MAX, 1);
#endif
}

void GiveMemoryBack()
{
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}
