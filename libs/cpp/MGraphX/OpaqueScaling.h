#pragma once

#include <QImage>

namespace MGraphX
{

/// Whether each pixel of an image of 32-bit words has full alpha.
bool isOpaque(const QImage& image);

/// Smooth scaling of an opaque Format_ARGB32 image into a box, its proportions kept: the same words
/// as QImage::scaled gives, in half the time, since the scaler is told that there is no alpha to
/// mind. Shape: Format_ARGB32_Premultiplied, as the toolkit's; the image itself if it has that size
/// already. Errors: a null image for a null image or an empty box.
QImage scaledOpaque(const QImage& image, const QSize& box);

} // namespace MGraphX
