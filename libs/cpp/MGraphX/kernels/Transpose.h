#pragma once

#include "Multiversion.h"

#include <cstddef>
#include <cstdint>
#include <cstring>

/// Turns rows of words into columns, 4 by 4 words at a time: whole photos, and rows of pixels that
/// are to go side by side through the lanes of a vector.
namespace MGraphX::kernels
{

constexpr int kTurnedRows = 16;
constexpr int kTurnedWords = 4;

using WordColumn = uint32_t[kTurnedRows];

/// Word i of `rows[k]` becomes word k of `columns[i]`.
#ifdef __GNUC__

// Two rounds of pairing registers turn 4 by 4 words. Registers of four words are what every
// instruction set has; wider ones the compiler would take apart word by word where it has none.
typedef uint32_t Quad __attribute__((vector_size(16)));
typedef uint64_t Longs __attribute__((vector_size(16)));

MGRAPHX_INLINE void turnQuads(const uint32_t* const (&rows)[4], uint32_t* const (&columns)[4])
{
    Quad loaded[4];
    for (int i = 0; i < 4; ++i) {
        std::memcpy(&loaded[i], rows[i], sizeof(Quad));
    }
    const auto upper02 = Longs(__builtin_shufflevector(loaded[0], loaded[1], 0, 4, 1, 5));
    const auto lower02 = Longs(__builtin_shufflevector(loaded[0], loaded[1], 2, 6, 3, 7));
    const auto upper13 = Longs(__builtin_shufflevector(loaded[2], loaded[3], 0, 4, 1, 5));
    const auto lower13 = Longs(__builtin_shufflevector(loaded[2], loaded[3], 2, 6, 3, 7));
    const Quad turned[4] = {Quad(__builtin_shufflevector(upper02, upper13, 0, 2)),
                            Quad(__builtin_shufflevector(upper02, upper13, 1, 3)),
                            Quad(__builtin_shufflevector(lower02, lower13, 0, 2)),
                            Quad(__builtin_shufflevector(lower02, lower13, 1, 3))};
    for (int i = 0; i < 4; ++i) {
        std::memcpy(columns[i], &turned[i], sizeof(Quad));
    }
}

#else

MGRAPHX_INLINE void turnQuads(const uint32_t* const (&rows)[4], uint32_t* const (&columns)[4])
{
    for (int i = 0; i < 4; ++i) {
        for (int k = 0; k < 4; ++k) {
            columns[i][k] = rows[k][i];
        }
    }
}

#endif

/// Four words of each of 16 rows, from `at` on, become four columns of 16 words.
MGRAPHX_INLINE void toColumns(uint32_t* const* rows, int at, WordColumn* columns)
{
    for (int top = 0; top < kTurnedRows; top += 4) {
        turnQuads({rows[top] + at, rows[top + 1] + at, rows[top + 2] + at, rows[top + 3] + at},
                  {columns[0] + top, columns[1] + top, columns[2] + top, columns[3] + top});
    }
}

/// And back.
MGRAPHX_INLINE void toRows(WordColumn* columns, uint32_t* const* rows, int at)
{
    for (int top = 0; top < kTurnedRows; top += 4) {
        turnQuads({columns[0] + top, columns[1] + top, columns[2] + top, columns[3] + top},
                  {rows[top] + at, rows[top + 1] + at, rows[top + 2] + at, rows[top + 3] + at});
    }
}

/// Writes the columns of 16 by 16 words at `source` as rows at `target`, one row after the other.
/// Strides are in words.
MGRAPHX_INLINE void turnTile(const uint32_t* source, ptrdiff_t sourceStride, uint32_t* target,
                             ptrdiff_t targetStride)
{
    for (int x = 0; x < kTurnedRows; x += 4) {
        uint32_t* const to = target + x * targetStride;
        for (int y = 0; y < kTurnedRows; y += 4) {
            const uint32_t* const from = source + y * sourceStride + x;
            turnQuads({from, from + sourceStride, from + 2 * sourceStride, from + 3 * sourceStride},
                      {to + y, to + targetStride + y, to + 2 * targetStride + y,
                       to + 3 * targetStride + y});
        }
    }
}

} // namespace MGraphX::kernels
