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

} // namespace MGraphX::kernels
