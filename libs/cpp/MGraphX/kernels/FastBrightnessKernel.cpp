#include "FastBrightnessKernel.h"

#include "BrightnessBlock.h"
#include "Multiversion.h"

namespace
{

using MGraphX::kernels::brightnessBlock;
using MGraphX::kernels::BrightnessSettings;
using MGraphX::kernels::FastBrightness;
using MGraphX::kernels::kBrightnessBlock;

/// With more pixels in doubt than this, a block is done anew as a whole.
constexpr int kMostSingles = 6;

/// Whole numbers on both sides of a value's margin; they differ where the value is in doubt. The
/// value is clamped so that neither end of the margin leaves 0 to 255.
struct Bounds {
    uint32_t low;
    uint32_t high;
};

MGRAPHX_INLINE Bounds boundsOf(float value, float margin)
{
    const float positive = value > margin ? value : margin;
    const float clamped = positive < 255.5f ? positive : 255.5f;
    return {uint32_t(int(clamped - margin)), uint32_t(int(clamped + margin))};
}

MGRAPHX_INLINE void fastPixel(uint32_t p, const FastBrightness& fast, uint32_t& target,
                              uint32_t& doubt)
{
    const float r = float(int((p >> 16) & 0xff));
    const float g = float(int((p >> 8) & 0xff));
    const float b = float(int(p & 0xff));
    const float sum = 0.299f * (r * r) + 0.587f * (g * g) + 0.114f * (b * b);
    const float base = __builtin_sqrtf(sum) * fast.level + fast.bias;
    const Bounds red = boundsOf(r * fast.channel + base, fast.margin);
    const Bounds green = boundsOf(g * fast.channel + base, fast.margin);
    const Bounds blue = boundsOf(b * fast.channel + base, fast.margin);
    target = (p & 0xff000000u) | (red.low << 16) | (green.low << 8) | blue.low;
    doubt = (red.low ^ red.high) | (green.low ^ green.high) | (blue.low ^ blue.high);
}

MGRAPHX_INLINE void redo(const uint32_t* source, uint32_t* target, int count,
                         const BrightnessSettings& settings, const uint32_t* doubts)
{
    int places[kBrightnessBlock];
    int found = 0;
    for (int i = 0; i < count; ++i) {
        places[found] = i;
        found += doubts[i] != 0 ? 1 : 0;
    }
    if (found > kMostSingles) {
        brightnessBlock(source, target, count, settings);
        return;
    }
    for (int i = 0; i < found; ++i) {
        brightnessBlock(source + places[i], target + places[i], 1, settings);
    }
}

MGRAPHX_INLINE void fastBlock(const uint32_t* source, uint32_t* target, int count,
                              const BrightnessSettings& settings, const FastBrightness& fast)
{
    uint32_t doubts[kBrightnessBlock];
    uint32_t any = 0;
    for (int i = 0; i < count; ++i) {
        fastPixel(source[i], fast, target[i], doubts[i]);
        any |= doubts[i];
    }
    if (any != 0) {
        redo(source, target, count, settings, doubts);
    }
}

MGRAPHX_MULTIVERSION
void fastBrightness(const uint32_t* source, uint32_t* target, int count,
                    BrightnessSettings settings, FastBrightness fast)
{
    int done = 0;
    for (; done + kBrightnessBlock <= count; done += kBrightnessBlock) {
        fastBlock(source + done, target + done, kBrightnessBlock, settings, fast);
    }
    fastBlock(source + done, target + done, count - done, settings, fast);
}

} // namespace

namespace MGraphX::kernels
{

FastBrightness::FastBrightness(const BrightnessSettings& settings)
{
    const double gain = double(settings.gain);
    const double saturation = double(settings.saturation);
    channel = float(saturation * gain);
    level = float((1 - saturation) * gain);
    bias = float(settings.brightness * gain);
    const double levels = 255 * std::fabs((1 - saturation) * gain);
    const double most =
        255 * std::fabs(saturation * gain) + levels + std::fabs(settings.brightness * gain);
    margin = float((4 * most + 6 * levels + 512) * 0x1p-24);
}

void fastBrightnessRow(const uint32_t* source, uint32_t* target, int count,
                       const BrightnessSettings& settings, const FastBrightness& fast)
{
    fastBrightness(source, target, count, settings, fast);
}

} // namespace MGraphX::kernels
