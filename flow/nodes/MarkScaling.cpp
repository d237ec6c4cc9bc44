#include "flow/nodes/MarkScaling.h"

#include <vector>

namespace
{

/// Sides from here on are more than Qt's own positions hold.
constexpr int kSideLimit = 1 << 16;

/// Where a pixel lies between two neighbours: `weight` 256ths of the way to the next one.
struct Place {
    int index;
    quint32 weight;
};

/// Qt steps over the source in 65536ths of a pixel, from the middle of the first one, with a step
/// that is cut. The places of the far end thus lag behind the true ones.
Place placeOf(int pixel, int source, int target)
{
    const qint64 start = 0x8000LL * source / target - 0x8000;
    const qint64 step = (qint64(source) << 16) / target;
    const qint64 position = start + pixel * step;
    if (position < 0) {
        return {0, 0};
    }
    const int index = int(position >> 16);
    if (index >= source - 1) {
        return {source - 1, 0};
    }
    return {index, quint32(position >> 8) & 0xff};
}

/// The mixture of two pixels, each channel cut. Two channels go in one word.
QRgb mixed(QRgb from, QRgb to, quint32 weight)
{
    constexpr quint32 kPair = 0x00ff00ff;
    const quint32 low = (from & kPair) * (256 - weight) + (to & kPair) * weight;
    const quint32 high = ((from >> 8) & kPair) * (256 - weight) + ((to >> 8) & kPair) * weight;
    return ((low >> 8) & kPair) | (high & ~kPair);
}

const QRgb* rowOf(const QImage& image, int y)
{
    return reinterpret_cast<const QRgb*>(image.constScanLine(y));
}

} // namespace

bool canScalePart(const QImage& mark, const QSize& size)
{
    switch (mark.format()) {
    case QImage::Format_Mono:
    case QImage::Format_MonoLSB:
    case QImage::Format_Indexed8:
    case QImage::Format_Grayscale8:
    case QImage::Format_RGB888:
    case QImage::Format_RGB32:
    case QImage::Format_ARGB32:
    case QImage::Format_ARGB32_Premultiplied:
        break;
    default:
        return false;
    }
    return qMax(mark.width(), mark.height()) < kSideLimit && mark.width() <= size.width() &&
           mark.height() <= size.height();
}

QImage scaledPart(const QImage& mark, const QSize& size, const QRect& part)
{
    if (!canScalePart(mark, size)) {
        return QImage();
    }
    const QImage source = mark.convertToFormat(
        mark.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    QImage result(part.size(), source.format());
    if (source.isNull() || result.isNull()) {
        return QImage();
    }
    std::vector<Place> columns;
    for (int x = part.left(); x <= part.right(); ++x) {
        columns.push_back(placeOf(x, source.width(), size.width()));
    }
    // The columns' last neighbour is one further, with no weight.
    std::vector<QRgb> between(size_t(source.width()) + 1);
    for (int y = 0; y < part.height(); ++y) {
        const Place row = placeOf(part.top() + y, source.height(), size.height());
        const QRgb* upper = rowOf(source, row.index);
        const QRgb* lower = rowOf(source, qMin(row.index + 1, source.height() - 1));
        // Downwards first, as each mixture is cut to whole numbers.
        for (int x = 0; x < source.width(); ++x) {
            between[size_t(x)] = mixed(upper[x], lower[x], row.weight);
        }
        auto* target = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (const Place& place : columns) {
            const QRgb* pair = &between[size_t(place.index)];
            *target++ = mixed(pair[0], pair[1], place.weight);
        }
    }
    return result;
}
