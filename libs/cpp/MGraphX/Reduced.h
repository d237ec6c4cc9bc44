#pragma once

#include <QImage>

namespace MGraphX
{

/// Smooth scaling to 1/`factor` of each side, rounded down but at least 1. Needs no memory but the
/// result's, where QImage::scaled may convert all of the image first.
/// Shape: Format_ARGB32_Premultiplied. Errors: a null image, or a factor below 1, gives a null
/// image.
QImage reduced(const QImage& image, int factor);

} // namespace MGraphX
