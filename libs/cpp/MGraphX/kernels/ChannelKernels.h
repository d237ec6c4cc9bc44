#pragma once

#include <cstdint>

/// Filters of single pixels on rows of words with alpha, red, green and blue from the high byte
/// down. Each reads `count` words of `source` and writes as many to `target`; the two are the same
/// row or do not overlap. Alpha is carried over.
namespace MGraphX::kernels
{

void swapRedBlueRow(const uint32_t* source, uint32_t* target, int count);
void swapRedGreenRow(const uint32_t* source, uint32_t* target, int count);
void swapGreenBlueRow(const uint32_t* source, uint32_t* target, int count);

/// Each channel by itself: 0 below `threshold`, else 255. `threshold` lies in 0 to 256.
void binarizeRow(const uint32_t* source, uint32_t* target, int count, int threshold);

/// Each channel becomes the mean of the three, rounded down.
void grayscaleRow(const uint32_t* source, uint32_t* target, int count);

void invertRow(const uint32_t* source, uint32_t* target, int count);

} // namespace MGraphX::kernels
