#include "BlurKernel.h"

#include "Multiversion.h"
#include "Prefetch.h"
#include "Transpose.h"

#include <algorithm>

namespace
{

using MGraphX::kernels::kTurnedWords;
using MGraphX::kernels::prefetch;
using MGraphX::kernels::toColumns;
using MGraphX::kernels::toRows;
using MGraphX::kernels::WordColumn;

constexpr int kRows = MGraphX::kernels::kBlurRows;
constexpr int kLanes = kRows * 4;

// Words of each row that are turned at a time: a cache line. The turned words go through memory,
// and a longer chunk gives them time to arrive there before a wider load asks for them.
constexpr int kChunk = 16;
static_assert(kRows == MGraphX::kernels::kTurnedRows);

/// One step of an accumulator. All numbers stay in 16 bits: the accumulator is at most 255 * 16,
/// and its distance to the byte times 16 is below 2^16. Up and down are two distances, one of them
/// 0, so that cutting off each product rounds toward zero as the division does. `factor` is the
/// strength times 2^12, which leaves the quotient in the product's upper half.
MGRAPHX_INLINE uint16_t advanced(uint16_t accumulator, uint8_t byte, uint16_t factor)
{
    const uint16_t goal = uint16_t(byte << 4);
    const uint16_t greater = goal > accumulator ? goal : accumulator;
    const uint16_t up = uint16_t(greater - accumulator);
    const uint16_t down = uint16_t(greater - goal);
    const uint16_t rise = uint16_t((uint32_t(up) * factor) >> 16);
    const uint16_t fall = uint16_t((uint32_t(down) * factor) >> 16);
    return uint16_t(accumulator + rise - fall);
}

MGRAPHX_MULTIVERSION
void columns(uint8_t* bytes, uint16_t* accumulators, int count, uint16_t factor)
{
    for (int i = 0; i < count; ++i) {
        accumulators[i] = advanced(accumulators[i], bytes[i], factor);
        bytes[i] = uint8_t(accumulators[i] >> 4);
    }
}

/// The same word of all rows makes lanes that know nothing of each other.
MGRAPHX_INLINE void start(const WordColumn& words, uint16_t* accumulators)
{
    const auto* bytes = reinterpret_cast<const uint8_t*>(words);
    for (int i = 0; i < kLanes; ++i) {
        accumulators[i] = uint16_t(bytes[i] << 4);
    }
}

MGRAPHX_INLINE void step(WordColumn& words, uint16_t* accumulators, uint16_t factor)
{
    auto* bytes = reinterpret_cast<uint8_t*>(words);
    for (int i = 0; i < kLanes; ++i) {
        accumulators[i] = advanced(accumulators[i], bytes[i], factor);
        bytes[i] = uint8_t(accumulators[i] >> 4);
    }
}

MGRAPHX_INLINE void loadWord(uint32_t* const* rows, int at, WordColumn& words)
{
    for (int k = 0; k < kRows; ++k) {
        words[k] = rows[k][at];
    }
}

MGRAPHX_INLINE void stepWord(uint32_t* const* rows, int at, uint16_t* accumulators, uint16_t factor)
{
    alignas(64) WordColumn words;
    loadWord(rows, at, words);
    step(words, accumulators, factor);
    for (int k = 0; k < kRows; ++k) {
        rows[k][at] = words[k];
    }
}

/// Asks for a chunk of the rows that are worked on next, to be there by then.
MGRAPHX_INLINE void fetch(const uint32_t* const* rows, int at)
{
    for (int k = 0; k < kRows; ++k) {
        prefetch(rows[k], at);
    }
}

MGRAPHX_MULTIVERSION
void forward(uint32_t* const* rows, const uint32_t* const* ahead, int count, uint16_t factor)
{
    alignas(64) WordColumn chunk[kChunk];
    alignas(64) uint16_t accumulators[kLanes];
    loadWord(rows, 0, chunk[0]);
    start(chunk[0], accumulators);
    int at = 0;
    for (; at + kChunk <= count; at += kChunk) {
        fetch(ahead, at);
        for (int i = 0; i < kChunk; i += kTurnedWords) {
            toColumns(rows, at + i, chunk + i);
        }
        for (int i = 0; i < kChunk; ++i) {
            step(chunk[i], accumulators, factor);
        }
        for (int i = 0; i < kChunk; i += kTurnedWords) {
            toRows(chunk + i, rows, at + i);
        }
    }
    for (; at < count; ++at) {
        stepWord(rows, at, accumulators, factor);
    }
}

MGRAPHX_MULTIVERSION
void backward(uint32_t* const* rows, const uint32_t* const* ahead, int count, uint16_t factor)
{
    alignas(64) WordColumn chunk[kChunk];
    alignas(64) uint16_t accumulators[kLanes];
    loadWord(rows, count - 1, chunk[0]);
    start(chunk[0], accumulators);
    int at = count;
    for (; at >= kChunk; at -= kChunk) {
        fetch(ahead, at - kChunk);
        for (int i = 0; i < kChunk; i += kTurnedWords) {
            toColumns(rows, at - kChunk + i, chunk + i);
        }
        for (int i = kChunk - 1; i >= 0; --i) {
            step(chunk[i], accumulators, factor);
        }
        for (int i = 0; i < kChunk; i += kTurnedWords) {
            toRows(chunk + i, rows, at - kChunk + i);
        }
    }
    for (; at > 0; --at) {
        stepWord(rows, at - 1, accumulators, factor);
    }
}

uint16_t factorOf(int strength)
{
    return uint16_t(strength << 12);
}

} // namespace

namespace MGraphX::kernels
{

void startColumns(const uint32_t* row, uint16_t* accumulators, int count)
{
    const auto* bytes = reinterpret_cast<const uint8_t*>(row);
    std::transform(bytes, bytes + 4 * count, accumulators,
                   [](uint8_t byte) { return uint16_t(byte << 4); });
}

void blurColumns(uint32_t* row, uint16_t* accumulators, int count, int strength)
{
    columns(reinterpret_cast<uint8_t*>(row), accumulators, 4 * count, factorOf(strength));
}

void blurRowsForward(uint32_t* const* rows, const uint32_t* const* ahead, int count, int strength)
{
    forward(rows, ahead, count, factorOf(strength));
}

void blurRowsBackward(uint32_t* const* rows, const uint32_t* const* ahead, int count, int strength)
{
    backward(rows, ahead, count, factorOf(strength));
}

} // namespace MGraphX::kernels
