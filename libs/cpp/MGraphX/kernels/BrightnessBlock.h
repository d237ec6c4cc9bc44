#pragma once

#include "BrightnessKernel.h"
#include "Multiversion.h"

#include <cmath>

/// The brightness filter's arithmetic in double precision, on blocks of pixels. This is what the
/// filter means; whatever is faster has to come to the same.
namespace MGraphX::kernels
{

/// Pixels go through in blocks, channel by channel: each loop then is plain arithmetic over arrays,
/// which the compiler turns into vectors, and the block stays in the first-level cache.
constexpr int kBrightnessBlock = 64;

struct BrightnessPlanes {
    double level[kBrightnessBlock];
    double red[kBrightnessBlock];
    double green[kBrightnessBlock];
    double blue[kBrightnessBlock];
};

/// The sum is exact in double precision: 24-bit weights times 16-bit squares. Its root is rounded
/// to single precision, as the level is defined.
MGRAPHX_INLINE void splitBrightness(const uint32_t* source, int count, BrightnessPlanes& planes)
{
    for (int i = 0; i < count; ++i) {
        const uint32_t p = source[i];
        const int r = int((p >> 16) & 0xff);
        const int g = int((p >> 8) & 0xff);
        const int b = int(p & 0xff);
        planes.red[i] = r;
        planes.green[i] = g;
        planes.blue[i] = b;
        const double sum =
            double(0.299f) * (r * r) + double(0.587f) * (g * g) + double(0.114f) * (b * b);
        planes.level[i] = double(float(std::sqrt(sum)));
    }
}

/// Clamping before the conversion gives what clamping after it would, and converts nothing that is
/// out of an integer's range. A value that is no number becomes 0.
MGRAPHX_INLINE double adjustedChannel(double channel, double level, double saturation,
                                      double brightness, double gain)
{
    const double value = ((channel - level) * saturation + level + brightness) * gain;
    const double positive = value > 0.0 ? value : 0.0;
    return positive < 255.0 ? positive : 255.0;
}

MGRAPHX_INLINE void mergeBrightness(const uint32_t* source, uint32_t* target, int count,
                                    const BrightnessPlanes& planes,
                                    const BrightnessSettings& settings)
{
    const double saturation = double(settings.saturation);
    const double gain = double(settings.gain);
    const double bias = settings.brightness;
    for (int i = 0; i < count; ++i) {
        const double level = planes.level[i];
        const int b = int(adjustedChannel(planes.blue[i], level, saturation, bias, gain));
        const int g = int(adjustedChannel(planes.green[i], level, saturation, bias, gain));
        const int r = int(adjustedChannel(planes.red[i], level, saturation, bias, gain));
        target[i] =
            (source[i] & 0xff000000u) | (uint32_t(r) << 16) | (uint32_t(g) << 8) | uint32_t(b);
    }
}

/// Adjusts up to kBrightnessBlock pixels.
MGRAPHX_INLINE void brightnessBlock(const uint32_t* source, uint32_t* target, int count,
                                    const BrightnessSettings& settings)
{
    BrightnessPlanes planes;
    splitBrightness(source, count, planes);
    mergeBrightness(source, target, count, planes, settings);
}

} // namespace MGraphX::kernels
