#include "GraphX.h"

#include "Geometry.h"

// A source that somebody holds isn't free, so each of these makes a new image.

namespace MGraphX
{

QImage GraphX::crop(const QImage& image, int left, int right, int top, int bottom)
{
    return geometry::crop(image, left, right, top, bottom);
}

QImage GraphX::rotate90(const QImage& image)
{
    return geometry::rotate90(image);
}

QImage GraphX::rotate180(const QImage& image)
{
    return geometry::rotate180(image);
}

QImage GraphX::rotate270(const QImage& image)
{
    return geometry::rotate270(image);
}

QImage GraphX::mirror(const QImage& image, bool horizontal, bool vertical)
{
    return geometry::mirror(image, horizontal, vertical);
}

QImage GraphX::frame(const QImage& image, int widthPercent, const QColor& color)
{
    return geometry::frame(image, widthPercent, color);
}

} // namespace MGraphX
