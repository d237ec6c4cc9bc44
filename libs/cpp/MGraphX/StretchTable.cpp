#include "StretchTable.h"

#include <algorithm>
#include <cmath>

namespace MGraphX
{
namespace
{

double cutOf(int64_t pixelCount, int halfPercents)
{
    return std::trunc(double(pixelCount) * std::min(halfPercents * 0.5, 100.0) / 100);
}

} // namespace

StretchRange stretchRange(const uint32_t* bins, int64_t pixelCount, int left, int right)
{
    StretchRange range;
    // Deliberate: right cuts the dark end and left the bright end.
    const double lowCut = cutOf(pixelCount, right);
    const double highCut = cutOf(pixelCount, left);
    int64_t sum = 0;
    for (int i = 0; i < 256; ++i) {
        sum += bins[i];
        if (double(sum) > lowCut) {
            range.low = i;
            break;
        }
    }
    sum = 0;
    for (int i = 255; i >= 0; --i) {
        sum += bins[i];
        if (double(sum) > highCut) {
            range.high = i;
            break;
        }
    }
    return range;
}

ByteTable stretchTable(const StretchRange& range)
{
    ByteTable table;
    table.fill(255);
    std::fill_n(table.begin(), range.low, static_cast<unsigned char>(0));
    const int steps = range.high - range.low;
    const double step = 256.0 / steps;
    for (int k = 0; k < steps; ++k) {
        table[size_t(range.low + k)] = static_cast<unsigned char>(k * step);
    }
    return table;
}

int stretchStart(const StretchRange& range)
{
    // All bytes from low up leap to 255 with the first step if there is nothing to stretch.
    return range.low < range.high ? range.low : range.low - 1;
}

} // namespace MGraphX
