#pragma once

#include <QColor>
#include <QImage>

namespace reference
{

/// The vignette as the toolkit's painter draws it, through a square with a gradient: what the
/// node's filter has to give, bit for bit.
QImage vignette(const QImage& image, int radius, int opacity, const QColor& color);

} // namespace reference
