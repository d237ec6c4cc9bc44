#pragma once

#include <cstdint>
#include <QImage>

class QColor;

/// What the toolkit writes into the 32-bit words of an image. Found by letting it write one pixel:
/// the answer depends on the format, and only the toolkit knows it.
namespace MGraphX
{

/// The word that QImage::setPixel stores for what QImage::pixel answers outside an image.
uint32_t outsideWord(QImage::Format format);

/// The word that QImage::fill stores for `color`.
uint32_t filledWord(QImage::Format format, const QColor& color);

} // namespace MGraphX
