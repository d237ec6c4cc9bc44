#pragma once

#include <QColor>
#include <QImage>

namespace reference
{

/// The vignette as two paintings: a radial gradient into a square mask, and the mask over the
/// image. What MGraphX::vignetteImage has to give, bit for bit.
QImage vignette(const QImage& image, int radius, int opacity, const QColor& color);

} // namespace reference
