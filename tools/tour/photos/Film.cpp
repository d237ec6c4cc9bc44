#include "photos/Film.h"

#include "photos/Noise.h"

namespace
{

/// A print's answer to light: dark parts fall off softly, bright ones are drawn together instead of
/// cut. The sum of constants is a common fit to film stock.
double answer(double light)
{
    const double x = light * 0.6;
    return clamp01((x * (2.51 * x + 0.03)) / (x * (2.43 * x + 0.59) + 0.14));
}

double encode(double linear)
{
    return linear <= 0.0031308 ? linear * 12.92 : 1.055 * std::pow(linear, 1 / 2.4) - 0.055;
}

int toByte(double value)
{
    return int(clamp01(value) * 255.0 + 0.5);
}

} // namespace

Rgb Film::print(const Rgb& light)
{
    return {encode(answer(light.r)), encode(answer(light.g)), encode(answer(light.b))};
}

QImage Film::develop(const Canvas& canvas) const
{
    QImage photo(canvas.size(), QImage::Format_RGB32);
    uchar* const bits = photo.bits();
    const int stride = photo.bytesPerLine();
    const double halfWidth = canvas.width() / 2.0;
    const double halfHeight = canvas.height() / 2.0;
    forEachIndex(canvas.height(), [&](int y) {
        auto* const row = reinterpret_cast<QRgb*>(bits + std::ptrdiff_t(y) * stride);
        for (int x = 0; x < canvas.width(); ++x) {
            const double fromCentreX = (x - halfWidth) / halfWidth;
            const double fromCentreY = (y - halfHeight) / halfHeight;
            const double edge = (fromCentreX * fromCentreX + fromCentreY * fromCentreY) / 2.0;
            const Rgb tone = print(canvas.at(x, y) * (exposure * (1 - vignette * edge * edge)));
            // Grain is coarser than a pixel and strongest in the middle tones.
            const double middle = 1 - std::abs(tone.g - 0.45);
            const double speck = (Noise::cell(x, y, seed) - 0.5 +
                                  Noise::smooth(x * 0.45, y * 0.45, seed + 1) * 0.6) *
                                 grain * middle * 2;
            const double tint = (Noise::cell(x, y, seed + 2) - 0.5) * grain;
            row[x] = qRgb(toByte(tone.r + speck + tint), toByte(tone.g + speck),
                          toByte(tone.b + speck - tint));
        }
    });
    return photo;
}
