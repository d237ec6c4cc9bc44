#include "ImageLike.h"

#include <QColorSpace>
#include <utility>

namespace MGraphX
{

void carryAlong(const QImage& source, QImage& image)
{
    image.setColorSpace(source.colorSpace());
    image.setDotsPerMeterX(source.dotsPerMeterX());
    image.setDotsPerMeterY(source.dotsPerMeterY());
    image.setDevicePixelRatio(source.devicePixelRatio());
    image.setOffset(source.offset());
    const QStringList keys = source.textKeys();
    for (const QString& key : keys) {
        image.setText(key, source.text(key));
    }
}

QImage imageLike(const QImage& source, const QSize& size, QImage::Format format)
{
    if (size.isEmpty()) {
        return QImage();
    }
    QImage image(size, format);
    if (!image.isNull()) {
        carryAlong(source, image);
    }
    return image;
}

QImage takenOver(QImage image, const QRect& part, QImage::Format format)
{
    auto* holder = new QImage(std::move(image));
    uchar* first = holder->scanLine(part.top()) + ptrdiff_t(sizeof(QRgb)) * part.left();
    QImage result(
        first, part.width(), part.height(), holder->bytesPerLine(), format,
        [](void* held) { delete static_cast<QImage*>(held); }, holder);
    carryAlong(*holder, result);
    return result;
}

} // namespace MGraphX
