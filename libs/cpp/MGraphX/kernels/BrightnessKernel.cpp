#include "BrightnessKernel.h"

#include "BrightnessBlock.h"

namespace
{

using MGraphX::kernels::brightnessBlock;
using MGraphX::kernels::BrightnessSettings;
using MGraphX::kernels::kBrightnessBlock;

MGRAPHX_MULTIVERSION
void brightness(const uint32_t* source, uint32_t* target, int count, BrightnessSettings settings)
{
    int done = 0;
    for (; done + kBrightnessBlock <= count; done += kBrightnessBlock) {
        brightnessBlock(source + done, target + done, kBrightnessBlock, settings);
    }
    brightnessBlock(source + done, target + done, count - done, settings);
}

} // namespace

namespace MGraphX::kernels
{

void brightnessRow(const uint32_t* source, uint32_t* target, int count,
                   const BrightnessSettings& settings)
{
    brightness(source, target, count, settings);
}

void brightnessTable(const BrightnessSettings& settings, uint8_t* table)
{
    for (int value = 0; value < 256; ++value) {
        table[value] =
            uint8_t(adjustedChannel(value, 0, 1, settings.brightness, double(settings.gain)));
    }
}

} // namespace MGraphX::kernels
