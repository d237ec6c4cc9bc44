#pragma once

#include "Multiversion.h"

#include <cstdint>
#include <cstring>

/// Turns 16 rows of four words each into four columns of 16 words each, and back: one way to let
/// rows of pixels go side by side through the lanes of a vector.
namespace MGraphX::kernels
{

constexpr int kTurnedRows = 16;
constexpr int kTurnedWords = 4;

using WordColumn = uint32_t[kTurnedRows];

#ifdef __GNUC__

// Two rounds of pairing registers turn 4 by 4 words. Registers of four words are what every
// instruction set has; wider ones the compiler would take apart word by word where it has none.
typedef uint32_t Quad __attribute__((vector_size(16)));
typedef uint64_t Longs __attribute__((vector_size(16)));

MGRAPHX_INLINE void turnQuads(const Quad (&rows)[4], Quad (&columns)[4])
{
    const auto upper02 = Longs(__builtin_shufflevector(rows[0], rows[1], 0, 4, 1, 5));
    const auto lower02 = Longs(__builtin_shufflevector(rows[0], rows[1], 2, 6, 3, 7));
    const auto upper13 = Longs(__builtin_shufflevector(rows[2], rows[3], 0, 4, 1, 5));
    const auto lower13 = Longs(__builtin_shufflevector(rows[2], rows[3], 2, 6, 3, 7));
    columns[0] = Quad(__builtin_shufflevector(upper02, upper13, 0, 2));
    columns[1] = Quad(__builtin_shufflevector(upper02, upper13, 1, 3));
    columns[2] = Quad(__builtin_shufflevector(lower02, lower13, 0, 2));
    columns[3] = Quad(__builtin_shufflevector(lower02, lower13, 1, 3));
}

MGRAPHX_INLINE void toColumns(uint32_t* const* rows, int at, WordColumn* columns)
{
    for (int top = 0; top < kTurnedRows; top += 4) {
        Quad loaded[4];
        Quad turned[4];
        for (int i = 0; i < 4; ++i) {
            std::memcpy(&loaded[i], rows[top + i] + at, sizeof(Quad));
        }
        turnQuads(loaded, turned);
        for (int i = 0; i < 4; ++i) {
            std::memcpy(columns[i] + top, &turned[i], sizeof(Quad));
        }
    }
}

MGRAPHX_INLINE void toRows(const WordColumn* columns, uint32_t* const* rows, int at)
{
    for (int top = 0; top < kTurnedRows; top += 4) {
        Quad loaded[4];
        Quad turned[4];
        for (int i = 0; i < 4; ++i) {
            std::memcpy(&loaded[i], columns[i] + top, sizeof(Quad));
        }
        turnQuads(loaded, turned);
        for (int i = 0; i < 4; ++i) {
            std::memcpy(rows[top + i] + at, &turned[i], sizeof(Quad));
        }
    }
}

#else

MGRAPHX_INLINE void toColumns(uint32_t* const* rows, int at, WordColumn* columns)
{
    for (int i = 0; i < kTurnedWords; ++i) {
        for (int k = 0; k < kTurnedRows; ++k) {
            columns[i][k] = rows[k][at + i];
        }
    }
}

MGRAPHX_INLINE void toRows(const WordColumn* columns, uint32_t* const* rows, int at)
{
    for (int i = 0; i < kTurnedWords; ++i) {
        for (int k = 0; k < kTurnedRows; ++k) {
            rows[k][at + i] = columns[i][k];
        }
    }
}

#endif

} // namespace MGraphX::kernels
