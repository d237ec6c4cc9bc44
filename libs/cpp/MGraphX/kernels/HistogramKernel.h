#pragma once

#include <cstdint>

namespace MGraphX::kernels
{

/// Counts of the 256 values of a byte.
struct ByteCounts {
    /// Adds the red bytes of `count` words.
    void addRed(const uint32_t* source, int count);

    /// The counts of everything added so far, in `bins[256]`.
    void sum(uint32_t* bins) const;

private:
    // Equal neighbours are frequent in photos, and adding to a counter that was just written waits
    // for that write. Four tables taken in turn let four additions go on at once.
    uint32_t m_tables[4][256] = {};
};

/// A straight line through the byte values: value v becomes (v - start) * step / 65536, cut off at
/// 0 and 255. `start` lies in -1 to 256; the product of 256 and `step` fits 32 bits.
struct ByteLine {
    int32_t start = 0;
    uint32_t step = 0;
};

/// Puts red, green and blue of `count` words through `line` and makes alpha 255. `target` is the
/// same row or does not overlap.
void stretchRow(const uint32_t* source, uint32_t* target, int count, const ByteLine& line);

} // namespace MGraphX::kernels
