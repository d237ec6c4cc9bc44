#pragma once

#include "Multiversion.h"

#include <cstddef>
#include <cstdint>
#include <cstring>

/// Turns a block of 8 by 8 words about its diagonal: column c of the source, counted in words,
/// becomes row c of the target. Strides are in words and may be negative.
namespace MGraphX::kernels
{

#ifdef __GNUC__

// Three rounds of pairing registers: 24 shuffles for 64 words, where single words take a load and a
// store each.
typedef uint32_t Words8 __attribute__((vector_size(32)));

MGRAPHX_INLINE void loadWords(Words8& words, const uint32_t* source)
{
    std::memcpy(&words, source, sizeof(words));
}

MGRAPHX_INLINE void storeWords(uint32_t* target, const Words8& words)
{
    std::memcpy(target, &words, sizeof(words));
}

MGRAPHX_INLINE void transpose8(const uint32_t* source, ptrdiff_t sourceStride, uint32_t* target,
                               ptrdiff_t targetStride)
{
    Words8 rows[8];
    Words8 pairs[8];
    Words8 quads[8];
    for (int i = 0; i < 8; ++i) {
        loadWords(rows[i], source + i * sourceStride);
    }
    for (int i = 0; i < 8; i += 2) {
        pairs[i] = __builtin_shufflevector(rows[i], rows[i + 1], 0, 8, 1, 9, 4, 12, 5, 13);
        pairs[i + 1] = __builtin_shufflevector(rows[i], rows[i + 1], 2, 10, 3, 11, 6, 14, 7, 15);
    }
    for (int i = 0; i < 8; i += 4) {
        for (int k = 0; k < 2; ++k) {
            const Words8 upper = pairs[i + k];
            const Words8 lower = pairs[i + k + 2];
            quads[i + 2 * k] = __builtin_shufflevector(upper, lower, 0, 1, 8, 9, 4, 5, 12, 13);
            quads[i + 2 * k + 1] =
                __builtin_shufflevector(upper, lower, 2, 3, 10, 11, 6, 7, 14, 15);
        }
    }
    for (int i = 0; i < 4; ++i) {
        const Words8 upper = quads[i];
        const Words8 lower = quads[i + 4];
        storeWords(target + i * targetStride,
                   __builtin_shufflevector(upper, lower, 0, 1, 2, 3, 8, 9, 10, 11));
        storeWords(target + (i + 4) * targetStride,
                   __builtin_shufflevector(upper, lower, 4, 5, 6, 7, 12, 13, 14, 15));
    }
}

#else

MGRAPHX_INLINE void transpose8(const uint32_t* source, ptrdiff_t sourceStride, uint32_t* target,
                               ptrdiff_t targetStride)
{
    for (int column = 0; column < 8; ++column) {
        for (int row = 0; row < 8; ++row) {
            target[column * targetStride + row] = source[row * sourceStride + column];
        }
    }
}

#endif

} // namespace MGraphX::kernels
