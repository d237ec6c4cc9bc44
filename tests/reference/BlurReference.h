#pragma once

#include <QImage>
#include <QRect>

namespace reference
{

/// The blur as four plain passes over the image, line by line and channel by channel: what
/// GraphX::blur has to give, bit for bit.
QImage blur(const QImage& image, const QRect& rect, int radius, bool alphaOnly);

} // namespace reference
