#include "reference/ToneReference.h"

#include <algorithm>
#include <cmath>
#include <MGraphX/ImageProcessT.h>
#include <QColorSpace>

namespace
{

template <class Change> QImage changedCopy(const QImage& image, const Change& change)
{
    QImage result = image;
    for (int y = 0; y < result.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < result.width(); ++x) {
            row[x] = change(row[x]);
        }
    }
    return result;
}

int truncatedByte(double value)
{
    const double whole = std::trunc(value);
    if (whole < 0) {
        return 0;
    }
    return whole > 255 ? 255 : int(whole);
}

} // namespace

namespace reference
{

QImage brightnessContrastSaturation(const QImage& image, int brightness, int contrast,
                                    float saturation)
{
    const float gain = float((double(contrast) + 127) / 127.0);
    return changedCopy(image, [=](QRgb p) {
        const int r = qRed(p);
        const int g = qGreen(p);
        const int b = qBlue(p);
        const float level = float(std::sqrt(double(0.299f) * (r * r) + double(0.587f) * (g * g) +
                                            double(0.114f) * (b * b)));
        const auto adjusted = [=](int x) {
            return truncatedByte(
                ((double(x) - double(level)) * double(saturation) + double(level) + brightness) *
                double(gain));
        };
        const int newBlue = adjusted(b);
        const int newGreen = adjusted(g);
        const int newRed = adjusted(r);
        return qRgba(newRed, newGreen, newBlue, qAlpha(p));
    });
}

QImage optimizeHistogram(const QImage& image, int left, int right)
{
    MGraphX::ImageProcessT<unsigned char> planes;
    planes.loadPlanes(image);
    const double count = double(planes.width()) * planes.height();
    unsigned int bins[256];
    planes.histogram(bins);
    const double lowCut = std::trunc(count * std::min(right * 0.5, 100.0) / 100);
    const double highCut = std::trunc(count * std::min(left * 0.5, 100.0) / 100);
    int low = 0;
    for (double sum = bins[0]; low < 256 && !(sum > lowCut); sum += low < 256 ? bins[low] : 0) {
        ++low;
    }
    int high = 255;
    for (double sum = bins[255]; high >= 0 && !(sum > highCut); sum += high >= 0 ? bins[high] : 0) {
        --high;
    }
    unsigned char table[256];
    for (int i = 0; i < 256; ++i) {
        table[i] = i < low ? 0 : 255;
    }
    if (low < high) {
        const double step = 256.0 / (high - low);
        for (int k = 0; k < high - low; ++k) {
            table[low + k] = static_cast<unsigned char>(k * step);
        }
    }
    planes.applyTable(table);
    QImage rebuilt = image.convertToFormat(QImage::Format_RGB32);
    for (int x = 0; x < planes.width(); ++x) {
        for (int y = 0; y < planes.height(); ++y) {
            rebuilt.setPixel(x, y, planes.pixel(x, y));
        }
    }
    return rebuilt.convertToFormat(QImage::Format_ARGB32);
}

QImage swapRedBlue(const QImage& image)
{
    return changedCopy(image,
                       [](QRgb p) { return qRgba(qBlue(p), qGreen(p), qRed(p), qAlpha(p)); });
}

QImage swapRedGreen(const QImage& image)
{
    return changedCopy(image,
                       [](QRgb p) { return qRgba(qGreen(p), qRed(p), qBlue(p), qAlpha(p)); });
}

QImage swapGreenBlue(const QImage& image)
{
    return changedCopy(image,
                       [](QRgb p) { return qRgba(qRed(p), qBlue(p), qGreen(p), qAlpha(p)); });
}

QImage binarize(const QImage& image, int threshold)
{
    const auto cut = [threshold](int value) {
        return value < threshold ? 0 : 255;
    };
    return changedCopy(image, [cut](QRgb p) {
        return qRgba(cut(qRed(p)), cut(qGreen(p)), cut(qBlue(p)), qAlpha(p));
    });
}

QImage grayscale(const QImage& image)
{
    return changedCopy(image, [](QRgb p) {
        const int gray = (qRed(p) + qGreen(p) + qBlue(p)) / 3;
        return qRgba(gray, gray, gray, qAlpha(p));
    });
}

QImage invert(const QImage& image)
{
    QImage result = image;
    result.invertPixels(QImage::InvertRgb);
    return result;
}

} // namespace reference
