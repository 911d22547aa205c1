// SPDX-License-Identifier: MIT
#include "Platform/Linux/Walk/HeapMemory.h"

#include <malloc.h>

namespace tessera {

namespace {

constexpr int kLargeBlockBytes = 128 * 1024;

} // namespace

void returnLargeBlocksAtOnce()
{
#ifdef __GLIBC__
    // Left alone, the limit grows with the first large block that is released.
    // NOLINTNEXTLINE(concurrency-mt-unsafe): no other thread is running yet
    ::mallopt(M_MMAP_THRESHOLD, kLargeBlockBytes);
#endif
}

void returnFreeMemory()
{
#ifdef __GLIBC__
    ::malloc_trim(0);
#endif
}

} // namespace tessera
