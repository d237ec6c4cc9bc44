#pragma once

#include "Multiversion.h"

#include <cstdint>

namespace MGraphX::kernels
{

/// Words in a cache line.
constexpr int kLineWords = 16;

/// Asks for the cache line that holds the word `distance` behind `words`, to be there when the walk
/// arrives. It may lie beyond the image: asking for memory that is not there does nothing.
MGRAPHX_INLINE void prefetch(const uint32_t* words, int distance)
{
#ifdef __GNUC__
    const auto address =
        reinterpret_cast<uintptr_t>(words) + uintptr_t(distance) * sizeof(uint32_t);
    __builtin_prefetch(reinterpret_cast<const void*>(address));
#else
    (void)words;
    (void)distance;
#endif
}

} // namespace MGraphX::kernels
