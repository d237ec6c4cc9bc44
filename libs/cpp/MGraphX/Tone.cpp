#include "Tone.h"

#include "kernels/BrightnessKernel.h"
#include "kernels/ChannelKernels.h"
#include "kernels/FastBrightnessKernel.h"
#include "kernels/HistogramKernel.h"
#include "PixelRows.h"
#include "StretchTable.h"

#include <utility>

namespace MGraphX::tone
{
namespace
{

/// Runs a kernel without settings over the words of `image`.
QImage mapped(QImage image, void (*kernel)(const uint32_t*, uint32_t*, int))
{
    QImage source = withWords(std::move(image));
    const QImage::Format format = source.format();
    return mapRows(std::move(source), format, kernel);
}

} // namespace

QImage brightnessContrastSaturation(QImage image, int brightness, int contrast, float saturation)
{
    kernels::BrightnessSettings settings;
    settings.brightness = brightness;
    // Deliberate: the gain works around 0, not around mid-grey, and after the brightness.
    settings.gain = float((double(contrast) + 127) / 127.0);
    settings.saturation = saturation;
    QImage source = withWords(std::move(image));
    const QImage::Format format = source.format();
    if (saturation == 1.0f) {
        ByteTable table;
        kernels::brightnessTable(settings, table.data());
        return mapBytes(std::move(source), format, table, -qBound(-0xffff, brightness, 0xffff), 0);
    }
    const kernels::FastBrightness fast(settings);
    return mapRows(std::move(source), format,
                   [&](const uint32_t* words, uint32_t* target, int count) {
                       if (fast.isUsable()) {
                           kernels::fastBrightnessRow(words, target, count, settings, fast);
                       } else {
                           kernels::brightnessRow(words, target, count, settings);
                       }
                   });
}

QImage optimizeHistogram(QImage image, int left, int right)
{
    QImage source = withWords(std::move(image));
    kernels::ByteCounts counts;
    for (int y = 0; y < source.height(); ++y) {
        counts.addRed(sourceRow(source, y), source.width());
    }
    uint32_t bins[256];
    counts.sum(bins);
    const int64_t pixelCount = int64_t(source.width()) * source.height();
    // Deliberate: measured on red alone, applied to all three channels alike.
    const StretchRange range = stretchRange(bins, pixelCount, left, right);
    return mapBytes(std::move(source), QImage::Format_ARGB32, stretchTable(range),
                    stretchStart(range), 0xff000000u);
}

QImage swapRedBlue(QImage image)
{
    return mapped(std::move(image), kernels::swapRedBlueRow);
}

QImage swapRedGreen(QImage image)
{
    return mapped(std::move(image), kernels::swapRedGreenRow);
}

QImage swapGreenBlue(QImage image)
{
    return mapped(std::move(image), kernels::swapGreenBlueRow);
}

QImage binarize(QImage image, int threshold)
{
    const int cut = qBound(0, threshold, 256);
    QImage source = withWords(std::move(image));
    const QImage::Format format = source.format();
    return mapRows(std::move(source), format,
                   [cut](const uint32_t* words, uint32_t* target, int count) {
                       kernels::binarizeRow(words, target, count, cut);
                   });
}

QImage grayscale(QImage image)
{
    return mapped(std::move(image), kernels::grayscaleRow);
}

QImage invert(QImage image)
{
    if (image.format() == QImage::Format_ARGB32 || image.format() == QImage::Format_RGB32) {
        return mapped(std::move(image), kernels::invertRow);
    }
    // Qt inverts what lies between the rows of a crop, too, unless it converts the image.
    if (image.format() != QImage::Format_ARGB32_Premultiplied) {
        image = image.copy();
    }
    // Qt goes by way of plain colours here and back; only it knows how it rounds.
    image.invertPixels(QImage::InvertRgb);
    return image;
}

} // namespace MGraphX::tone
