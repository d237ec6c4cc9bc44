#pragma once

#include <QColor>
#include <QImage>

/// GraphX's operations on the arrangement of pixels, for an image that may be given away: if nobody
/// else holds its pixels, half a turn, the mirror and a crop that leaves most of it work in its
/// memory, so that a large photo isn't there twice. Else there is a new image, as from GraphX,
/// which says what each of them does.
namespace MGraphX::geometry
{

/// Shape: a crop in the given memory keeps the rows where they are, so they don't follow each other
/// without a gap.
QImage crop(QImage image, int left, int right, int top, int bottom);
QImage rotate90(QImage image);
QImage rotate180(QImage image);
QImage rotate270(QImage image);
QImage mirror(QImage image, bool horizontal, bool vertical);
QImage frame(QImage image, int widthPercent, const QColor& color);

} // namespace MGraphX::geometry
