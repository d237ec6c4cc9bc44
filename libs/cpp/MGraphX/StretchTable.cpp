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

std::array<unsigned char, 256> stretchTable(const StretchRange& range)
{
    std::array<unsigned char, 256> table;
    table.fill(255);
    std::fill_n(table.begin(), range.low, static_cast<unsigned char>(0));
    const int steps = range.high - range.low;
    const double step = 256.0 / steps;
    for (int k = 0; k < steps; ++k) {
        table[size_t(range.low + k)] = static_cast<unsigned char>(k * step);
    }
    return table;
}

kernels::ByteLine stretchLine(const StretchRange& range)
{
    const int steps = range.high - range.low;
    if (steps <= 0) {
        // All bytes from low up leap to 255 with the first step.
        return {range.low - 1, 255u << 16};
    }
    // 256.0 / steps is rounded, and for a few ranges its multiples fall just short of a whole
    // number that the exact quotient reaches. The least fraction that is not below any entry of the
    // table is not above one either, for each of the 255 numbers of steps.
    const auto table = stretchTable(range);
    uint32_t step = 0;
    for (uint32_t k = 1; k <= uint32_t(steps); ++k) {
        const uint32_t entry = uint32_t(table[size_t(range.low) + k]) << 16;
        step = std::max(step, (entry + k - 1) / k);
    }
    return {range.low, step};
}

} // namespace MGraphX
