#pragma once

#include <cstdint>

namespace MGraphX::kernels
{

/// Words that the kernel takes together.
constexpr int kStraightGroup = 8;

/// Lays plain words (Format_ARGB32) over plain ones: to premultiplied channels of 16 bits, over
/// each other, and back, with the arithmetic that the toolkit's painter has on processors with
/// AVX2. `count` is a multiple of kStraightGroup. Rows are the same or do not overlap.
void straightOverRow(const uint32_t* over, const uint32_t* under, uint32_t* target, int count);

} // namespace MGraphX::kernels
