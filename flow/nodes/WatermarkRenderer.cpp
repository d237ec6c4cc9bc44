#include "flow/nodes/WatermarkRenderer.h"

#include "flow/Direction.h"
#include "flow/nodes/MarkFontSize.h"
#include "flow/nodes/MarkScaling.h"
#include "flow/nodes/WMRParams.h"

#include <limits>
#include <QFontMetrics>
#include <QPainter>
#include <utility>

namespace
{

/// Pixels between a mark and the edge of its box.
constexpr int kMargin = 2;
/// A box that lies farther from the photo's corner than this, or is larger, is left out. Sums of a
/// few such numbers are still whole numbers.
constexpr int kFarthest = 1 << 28;
/// As many pixels of 32 bits as an image can have, and no more than that many on one side.
constexpr qint64 kMostPixels = std::numeric_limits<int>::max() / 4;
constexpr int kLongestSide = 1 << 24;

bool isNear(qint64 coordinate)
{
    return coordinate >= -kFarthest && coordinate <= kFarthest;
}

/// Paints on the photo, in its pixels even if it is marked as one for dense screens.
template <class Paint> QImage painted(QImage photo, int transparency, const Paint& paint)
{
    const double ratio = photo.devicePixelRatio();
    photo.setDevicePixelRatio(1);
    QPainter painter(&photo);
    if (painter.isActive()) {
        painter.setOpacity(1.0 - transparency / 100.0);
        paint(painter);
        painter.end();
    }
    photo.setDevicePixelRatio(ratio);
    return photo;
}

/// Where a mark of `mark` starts in `whole`, in a grid of three: at the near end, in the middle or
/// at the far end.
qint64 startInGrid(int third, qint64 whole, qint64 mark)
{
    switch (third) {
    case 0:
        return 0;
    case 1:
        return (whole - mark) / 2;
    default:
        return whole - mark;
    }
}

/// The box of a mark of that size, with its margin. Errors: a null one if it is too far away.
QRect markBox(const QSize& photo, const QSize& mark, const WMRParams& params)
{
    const bool inGrid = params.position >= TopLeft && params.position <= BottomRight;
    const int cell = inGrid ? params.position : TopLeft;
    // Deliberate: both offsets are parts of the height, so equal ones are equal distances.
    const qint64 xOffset = qint64(params.xOffset) * photo.height() / 100;
    const qint64 yOffset = qint64(params.yOffset) * photo.height() / 100;
    const qint64 left = startInGrid(cell % 3, photo.width(), mark.width()) + xOffset - kMargin;
    const qint64 top = startInGrid(cell / 3, photo.height(), mark.height()) - yOffset - kMargin;
    if (!isNear(left) || !isNear(top) || !isNear(mark.width()) || !isNear(mark.height())) {
        return QRect();
    }
    return QRect(int(left), int(top), mark.width() + 2 * kMargin, mark.height() + 2 * kMargin);
}

QImage drawText(QImage photo, const WMRParams& params)
{
    if (params.text.isEmpty()) {
        return photo;
    }
    QFont font = params.font;
    font.setWeight(params.bold ? QFont::Bold : QFont::Normal);
    font.setItalic(params.italic);
    font.setUnderline(params.underlined);
    const qint64 width = qint64(photo.width()) * params.size / 100;
    const int pixelSize = markFontSize(font, params.text, width);
    if (pixelSize == 0) {
        return photo;
    }
    font.setPixelSize(pixelSize);
    const QFontMetrics metrics(font);
    const QRect box = markBox(
        photo.size(), QSize(metrics.horizontalAdvance(params.text), metrics.height()), params);
    if (box.isNull()) {
        return photo;
    }
    return painted(std::move(photo), params.transparency, [&](QPainter& painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setFont(font);
        if (params.backgroundEnabled) {
            painter.fillRect(box, QBrush(params.background));
        }
        painter.setPen(params.color);
        painter.drawText(box, Qt::AlignCenter, params.text);
    });
}

/// The mark's size in the photo. A size beyond all images comes out as one beyond kFarthest.
QSize sizeInPhoto(const QSize& mark, int photoWidth, int percent)
{
    const double width = double(qint64(photoWidth) * percent) / 100.0;
    const double proportion = double(mark.height()) / mark.width();
    // Deliberate: only the height is reckoned from the width in single precision, which can make
    // it a pixel more or less.
    const double height = proportion * double(static_cast<float>(width));
    const auto pixels = [](double length) {
        return int(qBound(-2.0 * kFarthest, length, 2.0 * kFarthest));
    };
    return QSize(pixels(width), pixels(height));
}

bool canBeAllocated(const QSize& size)
{
    return qMax(size.width(), size.height()) <= kLongestSide &&
           qint64(size.width()) * size.height() <= kMostPixels;
}

/// Draws the part `part` of `box`, which the mark is scaled up to fill.
void drawScaledUp(QPainter& painter, const QImage& mark, const QRect& box, const QRect& part)
{
    constexpr int kBand = 16; // rows that stay in the cache
    MarkScaler scaler(mark, box.size(), part.translated(-box.topLeft()));
    for (int y = 0; y < part.height(); y += kBand) {
        const QImage band = scaler.rows(y, qMin(kBand, part.height() - y));
        // At a point: into a rectangle, the painter rounds an image of one pixel in another way.
        painter.drawImage(part.topLeft() + QPoint(0, y), band);
    }
}

QImage drawImage(QImage photo, const WMRParams& params)
{
    if (params.image.isNull()) {
        return photo;
    }
    if (params.expand) {
        const QRect whole = photo.rect();
        return painted(std::move(photo), params.transparency,
                       [&](QPainter& painter) { painter.drawImage(whole, params.image); });
    }
    const QSize size = sizeInPhoto(params.image.size(), photo.width(), params.size);
    const QRect box = markBox(photo.size(), size, params);
    const QRect visible = box & photo.rect();
    if (visible.isEmpty()) {
        return photo;
    }
    if (MarkScaler::canScale(params.image, box.size())) {
        return painted(std::move(photo), params.transparency, [&](QPainter& painter) {
            drawScaledUp(painter, params.image, box, visible);
        });
    }
    if (!canBeAllocated(box.size())) {
        return photo;
    }
    const QImage mark =
        params.image.scaled(box.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return painted(std::move(photo), params.transparency,
                   [&](QPainter& painter) { painter.drawImage(box, mark); });
}

} // namespace

QImage drawWatermark(QImage photo, const WMRParams& params)
{
    if (photo.isNull()) {
        return photo;
    }
    switch (params.mode) {
    case WMRParams::kTextMode:
        return drawText(std::move(photo), params);
    case WMRParams::kImageMode:
        return drawImage(std::move(photo), params);
    default:
        return photo;
    }
}
