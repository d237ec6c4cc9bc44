#include "Geometry.h"

#include "kernels/GeometryKernels.h"
#include "PixelRows.h"
#include "StoredWord.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <utility>
#include <vector>

namespace MGraphX::geometry
{
namespace
{

/// A rectangle in the source's pixels that may lie anywhere. Percentages of any size multiply into
/// numbers beyond 32 bits.
struct Window {
    int64_t left = 0;
    int64_t top = 0;
    int64_t width = 0;
    int64_t height = 0;

    bool liesIn(const QImage& image) const
    {
        return left >= 0 && top >= 0 && left + width <= image.width() &&
               top + height <= image.height();
    }
};

/// An image like `source`, but for its size. What needs more than 2 GiB and more than the widest
/// frame adds to the source counts as not to be had, and so does anything above 8 GiB: the system
/// may well promise it, and end the process when it is filled.
QImage newImage(const QImage& source, int64_t width, int64_t height)
{
    constexpr int64_t kMostSide = std::numeric_limits<int>::max();
    constexpr int64_t kMostWords = int64_t(1) << 31;
    constexpr int64_t kAlwaysGranted = int64_t(1) << 29;
    const int64_t framed = 9 * int64_t(source.width()) * source.height();
    const int64_t most = std::clamp(framed, kAlwaysGranted, kMostWords);
    if (width < 1 || height < 1 || width > kMostSide || height > most / width) {
        return QImage();
    }
    return imageLike(source, QSize(int(width), int(height)), source.format());
}

/// An image with the sides of `source` exchanged, and with them the resolutions along the sides.
QImage newTurnedImage(const QImage& source)
{
    QImage result = newImage(source, source.height(), source.width());
    result.setDotsPerMeterX(source.dotsPerMeterY());
    result.setDotsPerMeterY(source.dotsPerMeterX());
    return result;
}

/// The unused byte of RGB32 is 255 in what Qt's setPixel stores, whatever was read.
QImage asStored(QImage image)
{
    if (image.format() == QImage::Format_RGB32) {
        for (int y = 0; y < image.height(); ++y) {
            kernels::opaqueRow(targetRow(image, y), image.width());
        }
    }
    return image;
}

/// What `window` shows of `source`, with `outside` where it reaches beyond.
QImage windowOf(const QImage& source, const Window& window, uint32_t outside)
{
    QImage result = newImage(source, window.width, window.height);
    const int64_t width = result.width();
    const int64_t before = std::clamp<int64_t>(-window.left, 0, width);
    const int64_t behind = std::clamp<int64_t>(source.width() - window.left, before, width);
    for (int y = 0; y < result.height(); ++y) {
        uint32_t* target = targetRow(result, y);
        const int64_t from = window.top + y;
        if (from < 0 || from >= source.height() || behind == before) {
            std::fill_n(target, width, outside);
            continue;
        }
        std::fill_n(target, before, outside);
        std::memcpy(target + before, sourceRow(source, int(from)) + window.left + before,
                    size_t(behind - before) * sizeof(uint32_t));
        std::fill_n(target + behind, width - behind, outside);
    }
    return asStored(result);
}

/// Lets rows of `count` words take each other's place.
class RowExchange
{
public:
    explicit RowExchange(int count)
        : m_count(count),
          m_spare(size_t(count))
    {
    }

    /// Each in reverse order; the two may be one row.
    void reversed(uint32_t* one, uint32_t* other)
    {
        std::copy_n(one, m_count, m_spare.data());
        if (one != other) {
            kernels::reverseRow(other, one, m_count);
        }
        kernels::reverseRow(m_spare.data(), other, m_count);
    }

private:
    const int m_count;
    std::vector<uint32_t> m_spare;
};

QImage mirroredInPlace(QImage image, bool horizontal, bool vertical)
{
    image.setOffset(QPoint()); // as Qt leaves it
    const int width = image.width();
    const int last = image.height() - 1;
    RowExchange exchange(width);
    for (int y = 0; y <= (vertical ? last / 2 : last); ++y) {
        uint32_t* row = targetRow(image, y);
        uint32_t* other = vertical ? targetRow(image, last - y) : row;
        if (horizontal) {
            exchange.reversed(row, other);
        } else {
            std::swap_ranges(row, row + width, other);
        }
    }
    return image;
}

ptrdiff_t wordStride(const QImage& image)
{
    return image.bytesPerLine() / ptrdiff_t(sizeof(uint32_t));
}

} // namespace

QImage crop(QImage image, int left, int right, int top, int bottom)
{
    QImage source = withWords(std::move(image));
    const int64_t width = source.width();
    const int64_t height = source.height();
    Window window;
    window.left = left * width / 100;
    window.top = top * height / 100;
    window.width = width - (width * right / 100 + window.left);
    window.height = height - (height * bottom / 100 + window.top);
    if (window.width < 1 || window.height < 1) {
        return QImage();
    }
    // A small part goes into memory of its own, or it would hold on to all of the photo's.
    const auto isMost = [&] {
        return 2 * window.width * window.height >= width * height;
    };
    if (source.isDetached() && window.liesIn(source) && isMost()) {
        const QRect part(int(window.left), int(window.top), int(window.width), int(window.height));
        const QImage::Format format = source.format();
        return asStored(takenOver(std::move(source), part, format));
    }
    return windowOf(source, window, outsideWord(source.format()));
}

// Deliberate: the indexes into the source run from its size down to 1. One edge of the result is
// read from just outside, and the opposite edge of the source is lost.
QImage rotate90(QImage image)
{
    const QImage source = withWords(std::move(image));
    QImage result = newTurnedImage(source);
    if (result.isNull()) {
        return result;
    }
    const uint32_t outside = outsideWord(source.format());
    for (int y = 0; y < result.height(); ++y) {
        *targetRow(result, y) = outside;
    }
    // Result (x, y) is source (y, height - x): columns of the source read from the bottom up.
    kernels::transpose(sourceRow(source, source.height() - 1), -wordStride(source),
                       targetRow(result, 0) + 1, wordStride(result), source.width(),
                       source.height() - 1);
    return asStored(result);
}

QImage rotate180(QImage image)
{
    QImage source = withWords(std::move(image));
    const bool inPlace = source.isDetached();
    const int width = source.width();
    const int height = source.height();
    QImage result = inPlace ? std::move(source) : newImage(source, width, height);
    if (result.isNull()) {
        return result;
    }
    const uint32_t outside = outsideWord(result.format());
    RowExchange exchange(width - 1);
    std::fill_n(targetRow(result, 0), width, outside);
    for (int y = 1; y < height; ++y) {
        uint32_t* target = targetRow(result, y);
        *target = outside;
        if (!inPlace) {
            kernels::reverseRow(sourceRow(source, height - y) + 1, target + 1, width - 1);
        } else if (y <= height - y) {
            exchange.reversed(target + 1, targetRow(result, height - y) + 1);
        }
    }
    return asStored(result);
}

QImage rotate270(QImage image)
{
    const QImage source = withWords(std::move(image));
    QImage result = newTurnedImage(source);
    if (result.isNull()) {
        return result;
    }
    std::fill_n(targetRow(result, 0), result.width(), outsideWord(source.format()));
    // Result (x, y) is source (width - y, x): the columns from 1 on fill the rows from the last up.
    kernels::transpose(sourceRow(source, 0) + 1, wordStride(source),
                       targetRow(result, result.height() - 1), -wordStride(result),
                       source.width() - 1, source.height());
    return asStored(result);
}

QImage mirror(QImage image, bool horizontal, bool vertical)
{
    const bool onePixel = image.width() <= 1 && image.height() <= 1;
    if (image.depth() != 32 || onePixel || (!horizontal && !vertical)) {
        return image.mirrored(horizontal, vertical);
    }
    if (image.isDetached()) {
        return mirroredInPlace(std::move(image), horizontal, vertical);
    }
    QImage result = newImage(image, image.width(), image.height());
    result.setOffset(QPoint()); // as Qt leaves it
    for (int y = 0; y < result.height(); ++y) {
        const uint32_t* source = sourceRow(image, vertical ? image.height() - 1 - y : y);
        uint32_t* target = targetRow(result, y);
        if (horizontal) {
            kernels::reverseRow(source, target, image.width());
        } else {
            std::memcpy(target, source, size_t(image.width()) * sizeof(uint32_t));
        }
    }
    return result;
}

QImage frame(QImage image, int widthPercent, const QColor& color)
{
    const QImage source = withWords(std::move(image));
    const int64_t border = int64_t(source.width()) * widthPercent / 100;
    const Window window{-border, -border, source.width() + 2 * border,
                        source.height() + 2 * border};
    if (source.isNull()) {
        return QImage();
    }
    return windowOf(source, window, filledWord(source.format(), color));
}

} // namespace MGraphX::geometry
