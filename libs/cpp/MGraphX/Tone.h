#pragma once

#include <QImage>

/// GraphX's operations on tone and colour, for an image that may be given away: if nobody else
/// holds its pixels and they keep their format, the result takes their place, so that a large photo
/// isn't there twice. Else there is a new image, as from GraphX, which tells what each of them
/// does.
namespace MGraphX::tone
{

QImage brightnessContrastSaturation(QImage image, int brightness, int contrast, float saturation);
QImage optimizeHistogram(QImage image, int left, int right);
QImage swapRedBlue(QImage image);
QImage swapRedGreen(QImage image);
QImage swapGreenBlue(QImage image);
QImage binarize(QImage image, int threshold);
QImage grayscale(QImage image);
QImage invert(QImage image);

} // namespace MGraphX::tone
