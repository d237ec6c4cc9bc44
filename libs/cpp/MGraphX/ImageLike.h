#pragma once

#include <QImage>

namespace MGraphX
{

/// Gives `image` what `source` knows besides its pixels.
void carryAlong(const QImage& source, QImage& image);

/// Makes an image of `size` and `format` that carries on what `source` knows besides its pixels:
/// colour space, resolution, texts, device pixel ratio and offset. Its pixels are not initialised.
/// Errors: a null image if a side of `size` is below 1 or the memory isn't to be had.
QImage imageLike(const QImage& source, const QSize& size, QImage::Format format);

/// Makes an image of `format` of the `part` of an image of 32-bit words, in that image's own
/// memory, and carries on what it knows. For an image that nobody else holds; a painter that has
/// worked on it would go on in its format. `part` lies inside.
QImage takenOver(QImage image, const QRect& part, QImage::Format format);

} // namespace MGraphX
