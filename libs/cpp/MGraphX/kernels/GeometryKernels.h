#pragma once

#include <cstddef>
#include <cstdint>

/// Rearranging of words. Source and target do not overlap. Strides are in words and may be
/// negative.
namespace MGraphX::kernels
{

/// Writes `count` words of `source` to `target` in reverse order.
void reverseRow(const uint32_t* source, uint32_t* target, int count);

/// Makes alpha 255 in `count` words.
void opaqueRow(uint32_t* pixels, int count);

/// Writes column c of the `width` by `height` words at `source` to row c at `target`.
void transpose(const uint32_t* source, ptrdiff_t sourceStride, uint32_t* target,
               ptrdiff_t targetStride, int width, int height);

} // namespace MGraphX::kernels
