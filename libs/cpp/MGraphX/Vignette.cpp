#include "Vignette.h"

#include "kernels/SourceOverKernel.h"
#include "kernels/StraightOverKernel.h"
#include "PixelRows.h"
#include "StraightOver.h"
#include "VignetteRows.h"

#include <algorithm>
#include <QPainter>
#include <utility>
#include <vector>

namespace MGraphX
{
namespace
{

/// Lays the whole square over a copy of `source`.
QImage withPaintedSquare(const QImage& source, const VignetteLook& look)
{
    const int side = std::max(source.width(), source.height());
    const QImage square = gradientPart(side, QRect(0, 0, side, side), source.format(), look);
    QImage result = source.copy();
    result.setDevicePixelRatio(1);
    QPainter painter(&result);
    painter.drawImage(result.rect(), square);
    painter.end();
    result.setDevicePixelRatio(source.devicePixelRatio());
    return result;
}

/// Lays `over` over `under`. Of straight words only the first `fast` are done, the others stay.
void layRow(const uint32_t* over, const uint32_t* under, uint32_t* target, int width, int fast,
            bool premultiplied)
{
    if (premultiplied) {
        kernels::sourceOverRow(over, under, target, width);
        return;
    }
    kernels::straightOverRow(over, under, target, fast);
    std::copy(under + fast, under + width, target + fast);
}

/// Lays what the painter would sample of the square over `source` if it is free, else over a copy,
/// row by row. The painter itself gets the words that the kernels leave, all at once.
QImage withSampledRows(QImage source, const VignetteLook& look)
{
    const QImage::Format format = source.format();
    const int width = source.width();
    VignetteRows rows(source.size(), format, look);
    const std::vector<int> order = rows.order();
    const bool premultiplied = format == QImage::Format_ARGB32_Premultiplied;
    const int fast = premultiplied ? width : straightOverCount(width);
    QImage rest(width - fast, source.height(), format);
    const bool inPlace = isFreeFor(source, format);
    QImage result = inPlace ? std::move(source) : imageLike(source, source.size(), format);
    if (result.isNull() || (fast < width && rest.isNull())) {
        return QImage();
    }
    std::vector<uint32_t> kept(inPlace ? size_t(width) : 0);
    for (const int y : order) {
        const uint32_t* under = sourceRow(inPlace ? result : source, y);
        for (int x = 0; x < width; x += kernels::kLineWords) {
            kernels::prefetch(under, x);
        }
        if (inPlace) {
            std::copy_n(under, width, kept.begin());
            under = kept.data();
        }
        const uint32_t* over = rows.row(y);
        layRow(over, under, targetRow(result, y), width, fast, premultiplied);
        if (!rest.isNull()) {
            std::copy(over + fast, over + width, targetRow(rest, y));
        }
    }
    // What lies beyond the painted rows; in place it is there.
    for (int y = int(order.size()); !inPlace && y < result.height(); ++y) {
        std::copy_n(sourceRow(source, y), width, targetRow(result, y));
    }
    paintOver(rest, result, fast);
    return result;
}

} // namespace

QImage vignetteImage(QImage image, int radius, int opacity, const QColor& color)
{
    // What is asked of the painter beforehand pays for more pixels than the preview has.
    constexpr int64_t kManyPixels = 1 << 19;
    const bool premultiplied = image.format() == QImage::Format_ARGB32_Premultiplied;
    QImage source = std::move(image);
    if (!premultiplied) {
        source = source.convertToFormat(QImage::Format_ARGB32);
    }
    if (source.isNull()) {
        return source;
    }
    const int64_t side = std::max(source.width(), source.height());
    const VignetteLook look{double(radius * side / 100), opacity, color};
    return side * side < kManyPixels ? withPaintedSquare(source, look)
                                     : withSampledRows(std::move(source), look);
}

} // namespace MGraphX
