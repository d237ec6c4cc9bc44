#include "GraphX.h"

#include "Blur.h"

namespace MGraphX
{

QImage GraphX::blur(const QImage& image, const QRect& rect, int radius, bool alphaOnly)
{
    return blurImage(image, rect, radius, alphaOnly);
}

} // namespace MGraphX
