// SPDX-License-Identifier: MIT
#pragma once

// Pictures are many megabytes, and most of them are held for seconds. The library that manages
// memory keeps what was freed, unless it is told not to.

// To be called before the first thread decodes. Threads that have ended leave heaps of their own,
// whose memory is never given back; decoders allocate so seldom that one heap is as fast.
void KeepOneHeap();

// Gives all free memory back to the system. Takes some milliseconds.
void GiveMemoryBack();
