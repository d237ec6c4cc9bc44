#pragma once

#include "kernels/ByteMapKernels.h"
#include "PixelRows.h"

#include <array>
#include <optional>
#include <QImage>

namespace MGraphX
{

using ByteTable = std::array<unsigned char, 256>;

/// The line that starts at `start` and gives for every byte what `table` gives, if there is one.
std::optional<kernels::ByteLine> lineThrough(const ByteTable& table, int start);

/// Maps red, green and blue of `source` through `table` into an image of `format` as mapRows does,
/// along a line from `start` if there is one, which is several times faster. `alpha` holds the bits
/// of alpha that are set in each pixel.
QImage mapBytes(QImage source, QImage::Format format, const ByteTable& table, int start,
                uint32_t alpha);

} // namespace MGraphX
