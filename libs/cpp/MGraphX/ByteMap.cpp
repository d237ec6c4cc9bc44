#include "ByteMap.h"

#include <algorithm>
#include <utility>

namespace MGraphX
{

std::optional<kernels::ByteLine> lineThrough(const ByteTable& table, int start)
{
    if (start < -0xffff || start > 256) {
        return std::nullopt;
    }
    // Each entry bounds the step from below, and from above unless it is 255, where lines are cut
    // off.
    int64_t least = 0;
    int64_t most = 0xffffffff / std::max(255 - start, 1);
    for (int value = 0; value < 256; ++value) {
        const int64_t entry = table[size_t(value)];
        const int64_t steps = value - start;
        if (steps <= 0) {
            most = entry == 0 ? most : -1;
            continue;
        }
        least = std::max(least, ((entry << 16) + steps - 1) / steps);
        if (entry < 255) {
            most = std::min(most, (((entry + 1) << 16) - 1) / steps);
        }
    }
    if (least > most) {
        return std::nullopt;
    }
    return kernels::ByteLine{start, uint32_t(least)};
}

QImage mapBytes(QImage source, QImage::Format format, const ByteTable& table, int start,
                uint32_t alpha)
{
    const auto line = lineThrough(table, start);
    return mapRows(std::move(source), format,
                   [&](const uint32_t* words, uint32_t* target, int count) {
                       if (line) {
                           kernels::mapRow(words, target, count, *line, alpha);
                       } else {
                           kernels::mapRow(words, target, count, table.data(), alpha);
                       }
                   });
}

} // namespace MGraphX
