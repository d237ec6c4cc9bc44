#include "ImageLike.h"

#include <QColorSpace>

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

} // namespace MGraphX
