#include "HeapPolicy.h"

#include <cstdlib>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace MGraphX
{

void keepHeap()
{
#ifdef __GLIBC__
    // Above this, time goes elsewhere, and what no later image fits into would be memory lost.
    constexpr int kLargestKept = 1 << 28;
    // One arena: the batch, the preview's pool thread and the interface then share what is kept.
    mallopt(M_ARENA_MAX, 1);
    mallopt(M_MMAP_THRESHOLD, kLargestKept);
    mallopt(M_TRIM_THRESHOLD, kLargestKept);
#endif
}

void releaseHeap()
{
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

} // namespace MGraphX
