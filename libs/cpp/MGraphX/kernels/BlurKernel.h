#pragma once

#include <cstdint>

/// The blur's recursive passes, in place on rows of words. Each byte of a line has an accumulator
/// with 4 fractional bits, which moves toward each byte p by ((p * 16 - acc) * strength) / 16,
/// rounded toward zero, and gives its whole part back. `strength` lies in 1 to 15.
namespace MGraphX::kernels
{

/// Rows that go through a pass along the row together: one row alone would wait for its own last
/// result at every pixel.
constexpr int kBlurRows = 16;

/// Sets the accumulators of all columns to the first row of a pass: four to a word, one to a byte.
void startColumns(const uint32_t* row, uint16_t* accumulators, int count);

/// One row's part of a pass along the columns.
void blurColumns(uint32_t* row, uint16_t* accumulators, int count, int strength);

/// A pass along kBlurRows rows of `count` words, from the first word to the last. `ahead` are as
/// many rows that are worked on next; they are only fetched into the cache.
void blurRowsForward(uint32_t* const* rows, const uint32_t* const* ahead, int count, int strength);

/// The same from the last word to the first.
void blurRowsBackward(uint32_t* const* rows, const uint32_t* const* ahead, int count, int strength);

} // namespace MGraphX::kernels
