#include "flow/nodes/MarkScaling.h"

#include <MGraphX/kernels/MixKernel.h>

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

const uint32_t* rowOf(const QImage& image, int y)
{
    return reinterpret_cast<const uint32_t*>(image.constScanLine(y));
}

} // namespace

bool MarkScaler::canScale(const QImage& mark, const QSize& size)
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
    // A mark that has the size is taken as it is, and not premultiplied.
    return mark.size() != size && qMax(mark.width(), mark.height()) < kSideLimit &&
           mark.width() <= size.width() && mark.height() <= size.height();
}

MarkScaler::MarkScaler(const QImage& mark, const QSize& size, const QRect& part)
    : m_source(mark.convertToFormat(mark.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                           : QImage::Format_RGB32)),
      m_size(size),
      m_part(part),
      // The last column's neighbour is one further, with no weight.
      m_between(size_t(mark.width()) + 1)
{
    for (int x = part.left(); x <= part.right(); ++x) {
        const Place place = placeOf(x, mark.width(), size.width());
        m_places.push_back(place.index);
        m_weights.push_back(place.weight);
    }
}

QImage MarkScaler::rows(int first, int count)
{
    QImage result(m_part.width(), count, m_source.format());
    if (m_source.isNull() || result.isNull()) {
        return QImage();
    }
    for (int y = 0; y < count; ++y) {
        const Place row = placeOf(m_part.top() + first + y, m_source.height(), m_size.height());
        const uint32_t* upper = rowOf(m_source, row.index);
        const uint32_t* lower = rowOf(m_source, qMin(row.index + 1, m_source.height() - 1));
        // Downwards first, as each mixture is cut to whole numbers.
        MGraphX::kernels::mixRow(upper, lower, row.weight, m_between.data(), m_source.width());
        auto* target = reinterpret_cast<uint32_t*>(result.scanLine(y));
        MGraphX::kernels::mixNeighbours(m_between.data(), m_places.data(), m_weights.data(), target,
                                        m_part.width());
    }
    return result;
}
