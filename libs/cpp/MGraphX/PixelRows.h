#pragma once

#include "ImageLike.h"
#include "kernels/Prefetch.h"

#include <algorithm>
#include <cstdint>
#include <QImage>

namespace MGraphX
{

/// The image itself if its pixels are 32-bit words, else a copy of it that is. Photos arrive with
/// 32 bits a pixel, so this only keeps a caller's fault from reading beyond a row.
inline QImage withWords(const QImage& image)
{
    return image.depth() == 32 ? image : image.convertToFormat(QImage::Format_ARGB32);
}

inline const uint32_t* sourceRow(const QImage& image, int y)
{
    return reinterpret_cast<const uint32_t*>(image.constScanLine(y));
}

/// A row to write to. `image` must be the only holder of its pixels, as each new image is.
inline uint32_t* targetRow(QImage& image, int y)
{
    return reinterpret_cast<uint32_t*>(image.scanLine(y));
}

/// Runs `kernel(const uint32_t* source, uint32_t* target, int count)` on pieces of each row, from
/// `source` into a new image of the same size in `format`. One pass, since copying first and
/// editing the copy goes through memory twice. What is read is asked for ahead: the processor's own
/// guessing stops at each page. Errors: a null image gives a null image.
template <class Kernel>
QImage mapRows(const QImage& source, QImage::Format format, const Kernel& kernel)
{
    constexpr int kPiece = 512;
    QImage result = imageLike(source, source.size(), format);
    for (int y = 0; y < result.height(); ++y) {
        const uint32_t* from = sourceRow(source, y);
        uint32_t* to = targetRow(result, y);
        for (int x = 0; x < result.width(); x += kPiece) {
            for (int i = 0; i < kPiece; i += kernels::kLineWords) {
                kernels::prefetch(from + x, kPiece + i);
            }
            kernel(from + x, to + x, std::min(kPiece, result.width() - x));
        }
    }
    return result;
}

} // namespace MGraphX
