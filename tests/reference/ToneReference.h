#pragma once

#include <QImage>

/// The filters of tone and colour as plain loops, pixel by pixel: what each operation of GraphX
/// with the same name has to give, bit for bit.
namespace reference
{

QImage brightnessContrastSaturation(const QImage& image, int brightness, int contrast,
                                    float saturation);
QImage optimizeHistogram(const QImage& image, int left, int right);
QImage swapRedBlue(const QImage& image);
QImage swapRedGreen(const QImage& image);
QImage swapGreenBlue(const QImage& image);
QImage binarize(const QImage& image, int threshold);
QImage grayscale(const QImage& image);
QImage invert(const QImage& image);

} // namespace reference
