#pragma once

#include "ImageLike.h"
#include "kernels/Prefetch.h"

#include <algorithm>
#include <cstdint>
#include <QImage>
#include <utility>

namespace MGraphX
{

/// The image itself if its pixels are 32-bit words, else a copy of it that is. Photos arrive with
/// 32 bits a pixel, so this only keeps a caller's fault from reading beyond a row.
inline QImage withWords(QImage image)
{
    if (image.depth() == 32) {
        return image;
    }
    return image.convertToFormat(QImage::Format_ARGB32);
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

/// Whether an operation may write over the pixels of `image`, which was given away to it, and keep
/// their format. Another format needs new pixels: a painter that was on the old ones keeps theirs.
inline bool isFreeFor(const QImage& image, QImage::Format format)
{
    return image.isDetached() && image.format() == format;
}

/// An image of `format` in the memory of `image`, which nobody else holds.
inline QImage inFormat(QImage image, QImage::Format format)
{
    const QRect whole = image.rect();
    return image.format() == format ? std::move(image) : takenOver(std::move(image), whole, format);
}

/// Runs `kernel(const uint32_t* source, uint32_t* target, int count)` on pieces of each row, from
/// `source` into an image of the same size in `format`: into the source itself if it is given away
/// and nobody else holds it, else into a new one. One pass, since copying first and editing the
/// copy goes through memory twice. What is read is asked for ahead: the processor's own guessing
/// stops at each page. Errors: a null image gives a null image.
template <class Kernel> QImage mapRows(QImage source, QImage::Format format, const Kernel& kernel)
{
    constexpr int kPiece = 512;
    const bool inPlace = source.isDetached();
    QImage result =
        inPlace ? inFormat(std::move(source), format) : imageLike(source, source.size(), format);
    uint32_t piece[kPiece]; // kernels needn't mind what they have overwritten
    for (int y = 0; y < result.height(); ++y) {
        uint32_t* to = targetRow(result, y);
        const uint32_t* from = inPlace ? to : sourceRow(source, y);
        for (int x = 0; x < result.width(); x += kPiece) {
            const int count = std::min(kPiece, result.width() - x);
            for (int i = 0; i < kPiece; i += kernels::kLineWords) {
                kernels::prefetch(from + x, kPiece + i);
            }
            if (inPlace) {
                std::copy_n(from + x, count, piece);
            }
            kernel(inPlace ? piece : from + x, to + x, count);
        }
    }
    return result;
}

} // namespace MGraphX
