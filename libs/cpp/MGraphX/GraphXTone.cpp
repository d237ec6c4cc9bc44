#include "GraphX.h"

#include "kernels/BrightnessKernel.h"
#include "kernels/ChannelKernels.h"
#include "kernels/FastBrightnessKernel.h"
#include "kernels/HistogramKernel.h"
#include "PixelRows.h"
#include "StretchTable.h"

namespace MGraphX
{
namespace
{

/// Runs a kernel without settings over the words of `image`.
QImage mapped(const QImage& image, void (*kernel)(const uint32_t*, uint32_t*, int))
{
    const QImage source = withWords(image);
    return mapRows(source, source.format(), kernel);
}

} // namespace

QImage GraphX::brightnessContrastSaturation(const QImage& image, int brightness, int contrast,
                                            float saturation)
{
    kernels::BrightnessSettings settings;
    settings.brightness = brightness;
    // Deliberate: the gain works around 0, not around mid-grey, and after the brightness.
    settings.gain = float((double(contrast) + 127) / 127.0);
    settings.saturation = saturation;
    const QImage source = withWords(image);
    if (saturation == 1.0f) {
        ByteTable table;
        kernels::brightnessTable(settings, table.data());
        return mapBytes(source, source.format(), table, -qBound(-0xffff, brightness, 0xffff), 0);
    }
    const kernels::FastBrightness fast(settings);
    return mapRows(source, source.format(),
                   [&](const uint32_t* words, uint32_t* target, int count) {
                       if (fast.isUsable()) {
                           kernels::fastBrightnessRow(words, target, count, settings, fast);
                       } else {
                           kernels::brightnessRow(words, target, count, settings);
                       }
                   });
}

QImage GraphX::optimizeHistogram(const QImage& image, int left, int right)
{
    const QImage source = withWords(image);
    kernels::ByteCounts counts;
    for (int y = 0; y < source.height(); ++y) {
        counts.addRed(sourceRow(source, y), source.width());
    }
    uint32_t bins[256];
    counts.sum(bins);
    const int64_t pixelCount = int64_t(source.width()) * source.height();
    // Deliberate: measured on red alone, applied to all three channels alike.
    const StretchRange range = stretchRange(bins, pixelCount, left, right);
    return mapBytes(source, QImage::Format_ARGB32, stretchTable(range), stretchStart(range),
                    0xff000000u);
}

QImage GraphX::swapRedBlue(const QImage& image)
{
    return mapped(image, kernels::swapRedBlueRow);
}

QImage GraphX::swapRedGreen(const QImage& image)
{
    return mapped(image, kernels::swapRedGreenRow);
}

QImage GraphX::swapGreenBlue(const QImage& image)
{
    return mapped(image, kernels::swapGreenBlueRow);
}

QImage GraphX::binarize(const QImage& image, int threshold)
{
    const int cut = qBound(0, threshold, 256);
    const QImage source = withWords(image);
    return mapRows(source, source.format(),
                   [cut](const uint32_t* words, uint32_t* target, int count) {
                       kernels::binarizeRow(words, target, count, cut);
                   });
}

QImage GraphX::grayscale(const QImage& image)
{
    return mapped(image, kernels::grayscaleRow);
}

QImage GraphX::invert(const QImage& image)
{
    if (image.format() == QImage::Format_ARGB32 || image.format() == QImage::Format_RGB32) {
        return mapped(image, kernels::invertRow);
    }
    // The toolkit goes by way of plain colours here and back; only it knows how it rounds.
    QImage result = image;
    result.invertPixels(QImage::InvertRgb);
    return result;
}

} // namespace MGraphX
