#include "GraphX.h"

#include "Tone.h"

// A source that somebody holds isn't free, so each of these makes a new image.

namespace MGraphX
{

QImage GraphX::brightnessContrastSaturation(const QImage& image, int brightness, int contrast,
                                            float saturation)
{
    return tone::brightnessContrastSaturation(image, brightness, contrast, saturation);
}

QImage GraphX::optimizeHistogram(const QImage& image, int left, int right)
{
    return tone::optimizeHistogram(image, left, right);
}

QImage GraphX::binarize(const QImage& image, int threshold)
{
    return tone::binarize(image, threshold);
}

QImage GraphX::swapRedBlue(const QImage& image)
{
    return tone::swapRedBlue(image);
}

QImage GraphX::swapRedGreen(const QImage& image)
{
    return tone::swapRedGreen(image);
}

QImage GraphX::swapGreenBlue(const QImage& image)
{
    return tone::swapGreenBlue(image);
}

QImage GraphX::grayscale(const QImage& image)
{
    return tone::grayscale(image);
}

QImage GraphX::invert(const QImage& image)
{
    return tone::invert(image);
}

} // namespace MGraphX
