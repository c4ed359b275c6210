// SPDX-License-Identifier: MIT
#pragma once

#ifdef __GLIBC__
#include <malloc.h>
#endif

// To be called when a run of decoding ends: the library that manages memory keeps what was freed,
// file by file and picture by picture.
inline void GiveMemoryBack()
{
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}
