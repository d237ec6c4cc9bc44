#pragma once

#include <QImage>
#include <QRect>

namespace MGraphX
{

/// GraphX::blur for an image that may be given away: if nobody else holds its pixels, the blur
/// works in its memory, so that a large photo isn't there twice. Else there is a new image.
QImage blurImage(QImage image, const QRect& rect, int radius, bool alphaOnly);

} // namespace MGraphX
