#pragma once

#include <cstdint>

/// One mapping of bytes over red, green and blue of a row. `target` is the same row as `source` or
/// does not overlap. Alpha is carried over, with the bits of `alpha` set in it: 0 leaves it as it
/// is, 0xff000000 makes pixels opaque.
namespace MGraphX::kernels
{

/// A straight line through the byte values: value v becomes (v - start) * step / 65536, cut off at
/// 0 and 255. The product of 255 - `start` and `step` fits 32 bits.
struct ByteLine {
    int32_t start = 0;
    uint32_t step = 0;
};

/// Maps along `line`. Vector lanes compute what a table would have to fetch byte by byte.
void mapRow(const uint32_t* source, uint32_t* target, int count, const ByteLine& line,
            uint32_t alpha);

/// Maps through the 256 bytes of `table`.
void mapRow(const uint32_t* source, uint32_t* target, int count, const uint8_t* table,
            uint32_t alpha);

} // namespace MGraphX::kernels
