#include "Vignette.h"

#include "GradientRows.h"
#include "kernels/SourceOverKernel.h"
#include "OpaqueTones.h"
#include "PixelRows.h"

#include <algorithm>
#include <QPainter>
#include <vector>

namespace MGraphX
{
namespace
{

/// Which of the `side` rows of a square the painter takes for each of `length` rows when it
/// squeezes the square into an image of `format`; for columns it takes the same. Found by letting
/// it squeeze a column whose words are their own numbers.
std::vector<int> sampledPlaces(int side, int length, QImage::Format format)
{
    QImage numbers(1, side, format);
    QImage sampled(1, length, format);
    for (int i = 0; i < side; ++i) {
        *targetRow(numbers, i) = 0xff000000u | uint32_t(i);
    }
    sampled.fill(0);
    QPainter painter(&sampled);
    painter.drawImage(QRect(0, 0, 1, length), numbers);
    painter.end();
    std::vector<int> places;
    for (int i = 0; i < length; ++i) {
        places.push_back(int(*sourceRow(sampled, i) & 0x00ffffffu));
    }
    return places;
}

/// Lays the words `over` over as many of `target` with the toolkit's painter.
void paintOver(const uint32_t* over, uint32_t* target, int width, QImage::Format format)
{
    const int bytes = width * int(sizeof(uint32_t));
    const QImage mask(reinterpret_cast<const uchar*>(over), width, 1, bytes, format);
    QImage row(reinterpret_cast<uchar*>(target), width, 1, bytes, format);
    QPainter painter(&row);
    painter.drawImage(row.rect(), mask);
}

/// Lays the whole square over a copy of `source`.
QImage withPaintedSquare(const QImage& source, const VignetteLook& look)
{
    const int side = std::max(source.width(), source.height());
    const QImage square = gradientSquare(side, source.format(), look);
    QImage result = source.copy();
    result.setDevicePixelRatio(1);
    QPainter painter(&result);
    painter.drawImage(result.rect(), square);
    painter.end();
    result.setDevicePixelRatio(source.devicePixelRatio());
    return result;
}

/// Lays the square's rows over the image's rows one by one.
QImage withPaintedRows(const QImage& source, const VignetteLook& look)
{
    const int width = source.width();
    const int side = std::max(width, source.height());
    QImage result = imageLike(source, source.size(), source.format());
    const std::vector<int> rows = sampledPlaces(side, result.height(), source.format());
    const std::vector<int> columns = sampledPlaces(side, width, source.format());
    GradientRows gradient(side, source.format(), look);
    OpaqueTones tones;
    for (int y = 0; y < result.height(); ++y) {
        const uint32_t* under = sourceRow(source, y);
        for (int x = 0; x < width; x += kernels::kLineWords) {
            kernels::prefetch(under, x);
        }
        uint32_t* over = gradient.row(rows[size_t(y)]);
        if (width < side) {
            // No place lies left of its column: words can move within the row.
            std::transform(columns.begin(), columns.end(), over,
                           [over](int place) { return over[place]; });
        }
        uint32_t* target = targetRow(result, y);
        if (source.format() == QImage::Format_ARGB32_Premultiplied) {
            kernels::sourceOverRow(over, under, target, width);
        } else if (kernels::isOpaqueRow(under, width)) {
            tones.layRow(over, under, target, width);
        } else {
            // Translucent words below: only the toolkit knows how it rounds there and back.
            std::copy_n(under, width, target);
            paintOver(over, target, width, source.format());
        }
    }
    return result;
}

} // namespace

QImage vignetteImage(const QImage& image, int radius, int opacity, const QColor& color)
{
    // What is asked of the painter beforehand pays for more pixels than the preview has. It also
    // has a way of its own with single pixels, which rows of them must not take.
    constexpr int64_t kManyPixels = 1 << 19;
    constexpr int kLeastWidth = 8;
    const bool premultiplied = image.format() == QImage::Format_ARGB32_Premultiplied;
    const QImage source = premultiplied ? image : image.convertToFormat(QImage::Format_ARGB32);
    if (source.isNull()) {
        return source;
    }
    const int64_t side = std::max(source.width(), source.height());
    const VignetteLook look{double(radius * side / 100), opacity, color};
    return side * side < kManyPixels || source.width() < kLeastWidth
               ? withPaintedSquare(source, look)
               : withPaintedRows(source, look);
}

} // namespace MGraphX
