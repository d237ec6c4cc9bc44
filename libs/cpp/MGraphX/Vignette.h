#pragma once

#include <QColor>
#include <QImage>

namespace MGraphX
{

/// Lays a radial gradient over the image, clear inside and `color` toward the edge: the gradient of
/// a square as wide as the longer side, squeezed over the image. Half of `radius`, in percent of
/// the longer side, stays clear; from the whole radius on the color is full. `opacity` in percent.
/// The pixels are those that QPainter gives when the square is painted and drawn as an image. For
/// large photos no such image is made: only the rows that show are, one at a time, and memory is
/// bounded by the photo's; if it is given away and nobody else holds it, they are laid over its own
/// pixels.
/// Shape: the size and, if it is Format_ARGB32_Premultiplied, the format of the source, else
/// Format_ARGB32. Errors: a null image gives a null image; radius and opacity may be any number.
QImage vignetteImage(QImage image, int radius, int opacity, const QColor& color);

} // namespace MGraphX
