#include "Vignette.h"

#include "GradientRows.h"
#include "kernels/SourceOverKernel.h"
#include "kernels/StraightOverKernel.h"
#include "PixelRows.h"
#include "StraightOver.h"

#include <algorithm>
#include <numeric>
#include <QPainter>
#include <utility>
#include <vector>

namespace MGraphX
{
namespace
{

/// Which of the `side` rows or columns of a square the painter takes for each of `length` ones when
/// it squeezes the square into an image of `format`. Found by letting it squeeze a line whose words
/// are their own numbers: along a row it steps in another precision than from row to row, so the
/// line lies as those that are asked for. Fewer than `length` where the image goes on beyond what
/// it paints.
std::vector<int> sampledPlaces(int side, int length, QImage::Format format, Qt::Orientation along)
{
    const auto line = [&](int words) {
        return QImage(along == Qt::Horizontal ? QSize(words, 1) : QSize(1, words), format);
    };
    QImage numbers = line(side);
    QImage sampled = line(length);
    const auto word = [along](QImage& image, int i) -> uint32_t& {
        return along == Qt::Horizontal ? targetRow(image, 0)[i] : *targetRow(image, i);
    };
    for (int i = 0; i < side; ++i) {
        word(numbers, i) = 0xff000000u | uint32_t(i);
    }
    sampled.fill(0);
    QPainter painter(&sampled);
    painter.drawImage(sampled.rect(), numbers);
    painter.end();
    std::vector<int> places;
    for (int i = 0; i < length && word(sampled, i) != 0; ++i) {
        places.push_back(int(word(sampled, i) & 0x00ffffffu));
    }
    return places;
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

/// The numbers of `places`, ordered so that a row and its mirror image follow each other.
std::vector<int> pairedOrder(const std::vector<int>& places, const GradientRows& gradient)
{
    std::vector<int> order(places.size());
    std::iota(order.begin(), order.end(), 0);
    const auto upper = [&](int y) {
        return std::min(places[size_t(y)], gradient.mirrored(places[size_t(y)]));
    };
    std::stable_sort(order.begin(), order.end(),
                     [&upper](int a, int b) { return upper(a) < upper(b); });
    return order;
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
    const int side = std::max(width, source.height());
    const std::vector<int> rows = sampledPlaces(side, source.height(), format, Qt::Vertical);
    const std::vector<int> columns = sampledPlaces(side, width, format, Qt::Horizontal);
    GradientRows gradient(side, format, look);
    gradient.setColumns(columns.front(), columns.back() + 1);
    const bool premultiplied = format == QImage::Format_ARGB32_Premultiplied;
    const int fast = premultiplied ? width : straightOverCount(width);
    QImage rest(width - fast, source.height(), format);
    const bool inPlace = isFreeFor(source, format);
    QImage result = inPlace ? std::move(source) : imageLike(source, source.size(), format);
    if (result.isNull() || (fast < width && rest.isNull())) {
        return QImage();
    }
    std::vector<uint32_t> sampled(size_t(width), 0);
    std::vector<uint32_t> kept(inPlace ? size_t(width) : 0);
    for (const int y : pairedOrder(rows, gradient)) {
        const uint32_t* under = sourceRow(inPlace ? result : source, y);
        for (int x = 0; x < width; x += kernels::kLineWords) {
            kernels::prefetch(under, x);
        }
        if (inPlace) {
            std::copy_n(under, width, kept.begin());
            under = kept.data();
        }
        const uint32_t* over = gradient.row(rows[size_t(y)]);
        if (width < side) {
            std::transform(columns.begin(), columns.end(), sampled.begin(),
                           [over](int place) { return over[place]; });
            over = sampled.data();
        }
        layRow(over, under, targetRow(result, y), width, fast, premultiplied);
        if (!rest.isNull()) {
            std::copy(over + fast, over + width, targetRow(rest, y));
        }
    }
    // What lies beyond the painted rows; in place it is there.
    for (int y = int(rows.size()); !inPlace && y < result.height(); ++y) {
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
