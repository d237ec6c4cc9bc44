#include "reference/GeometryReference.h"

#include <MGraphX/ImageLike.h>

namespace
{

/// An image of that size, each pixel taken from the place that `source` gives for its own.
template <class Place> QImage moved(const QImage& image, const QSize& size, const Place& source)
{
    QImage result = MGraphX::imageLike(image, size, image.format());
    for (int y = 0; y < result.height(); ++y) {
        for (int x = 0; x < result.width(); ++x) {
            result.setPixel(x, y, image.pixel(source(x, y)));
        }
    }
    return result;
}

/// The resolutions along the sides are exchanged with the sides.
QImage withTurnedResolution(QImage turned)
{
    const int dotsPerMeterX = turned.dotsPerMeterX();
    turned.setDotsPerMeterX(turned.dotsPerMeterY());
    turned.setDotsPerMeterY(dotsPerMeterX);
    return turned;
}

} // namespace

namespace reference
{

QImage crop(const QImage& image, int left, int right, int top, int bottom)
{
    const int x0 = left * image.width() / 100;
    const int y0 = top * image.height() / 100;
    const int height = image.height() - (image.height() * bottom / 100 + y0);
    const int width = image.width() - (image.width() * right / 100 + x0);
    return moved(image, {width, height}, [=](int x, int y) { return QPoint(x0 + x, y0 + y); });
}

QImage rotate90(const QImage& image)
{
    return withTurnedResolution(moved(image, {image.height(), image.width()},
                                      [&](int x, int y) { return QPoint(y, image.height() - x); }));
}

QImage rotate180(const QImage& image)
{
    return moved(image, image.size(),
                 [&](int x, int y) { return QPoint(image.width() - x, image.height() - y); });
}

QImage rotate270(const QImage& image)
{
    return withTurnedResolution(moved(image, {image.height(), image.width()},
                                      [&](int x, int y) { return QPoint(image.width() - y, x); }));
}

QImage frame(const QImage& image, int widthPercent, const QColor& color)
{
    const int border = image.width() * widthPercent / 100;
    const QSize size(image.width() + 2 * border, image.height() + 2 * border);
    QImage result = MGraphX::imageLike(image, size, image.format());
    if (result.isNull()) {
        return result;
    }
    result.fill(color);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (result.rect().contains(x + border, y + border)) {
                result.setPixel(x + border, y + border, image.pixel(x, y));
            }
        }
    }
    return result;
}

} // namespace reference
