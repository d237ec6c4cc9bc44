#pragma once

#include <QColor>
#include <QImage>

/// The filters of geometry as plain loops through QImage::pixel and QImage::setPixel: what each
/// operation of GraphX with the same name has to give, bit for bit. The toolkit warns of each pixel
/// that these read or write outside an image.
namespace reference
{

QImage crop(const QImage& image, int left, int right, int top, int bottom);
QImage rotate90(const QImage& image);
QImage rotate180(const QImage& image);
QImage rotate270(const QImage& image);
QImage frame(const QImage& image, int widthPercent, const QColor& color);

} // namespace reference
