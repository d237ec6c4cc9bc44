#pragma once

#include "ByteMap.h"

#include <cstdint>

namespace MGraphX
{

/// The red values between which the histogram optimizer stretches a photo.
struct StretchRange {
    int low = 256; ///< the first value that counts as present from below, 256 if none does
    int high = -1; ///< the first value that counts as present from above, -1 if none does
};

/// Finds the range of `bins[256]`, the red histogram of `pixelCount` pixels. A value is reached
/// once more than a share of the pixels lies behind it: `right` half percents on the dark side,
/// `left` half percents on the bright side. Shares above 100 percent count as 100; any integer will
/// do.
StretchRange stretchRange(const uint32_t* bins, int64_t pixelCount, int left, int right);

/// The table that maps the bytes from `low` up to `high` onto 0 to 255; a range that is empty or
/// turned round maps everything from `low` up to 255.
ByteTable stretchTable(const StretchRange& range);

/// Where the line through the range's table starts. There is one for every range.
int stretchStart(const StretchRange& range);

} // namespace MGraphX
