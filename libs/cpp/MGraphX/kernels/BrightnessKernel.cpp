#include "BrightnessKernel.h"

#include "Multiversion.h"

#include <cmath>

namespace
{

using MGraphX::kernels::BrightnessSettings;

// Pixels go through in blocks, channel by channel: each loop then is plain arithmetic over arrays,
// which the compiler turns into vectors, and the block stays in the first-level cache.
constexpr int kBlock = 64;

struct Planes {
    double level[kBlock];
    double red[kBlock];
    double green[kBlock];
    double blue[kBlock];
};

// The sum is exact in double precision: 24-bit weights times 16-bit squares. So is what comes from
// rounding its root to single precision afterwards.
MGRAPHX_INLINE void split(const uint32_t* source, int count, Planes& planes)
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

// Clamping before the conversion gives what clamping after it would, and converts nothing that is
// out of an integer's range. A value that is no number becomes 0.
MGRAPHX_INLINE double adjusted(double channel, double level, double saturation, double brightness,
                               double gain)
{
    const double value = ((channel - level) * saturation + level + brightness) * gain;
    const double positive = value > 0.0 ? value : 0.0;
    return positive < 255.0 ? positive : 255.0;
}

MGRAPHX_INLINE void merge(const uint32_t* source, uint32_t* target, int count, const Planes& planes,
                          const BrightnessSettings& settings)
{
    const double saturation = double(settings.saturation);
    const double gain = double(settings.gain);
    const double brightness = settings.brightness;
    for (int i = 0; i < count; ++i) {
        const double level = planes.level[i];
        const int b = int(adjusted(planes.blue[i], level, saturation, brightness, gain));
        const int g = int(adjusted(planes.green[i], level, saturation, brightness, gain));
        const int r = int(adjusted(planes.red[i], level, saturation, brightness, gain));
        target[i] =
            (source[i] & 0xff000000u) | (uint32_t(r) << 16) | (uint32_t(g) << 8) | uint32_t(b);
    }
}

MGRAPHX_MULTIVERSION
void brightness(const uint32_t* source, uint32_t* target, int count, BrightnessSettings settings)
{
    Planes planes;
    int done = 0;
    for (; done + kBlock <= count; done += kBlock) {
        split(source + done, kBlock, planes);
        merge(source + done, target + done, kBlock, planes, settings);
    }
    split(source + done, count - done, planes);
    merge(source + done, target + done, count - done, planes, settings);
}

} // namespace

namespace MGraphX::kernels
{

void brightnessRow(const uint32_t* source, uint32_t* target, int count,
                   const BrightnessSettings& settings)
{
    brightness(source, target, count, settings);
}

} // namespace MGraphX::kernels
