#pragma once

#include <cstdint>

namespace MGraphX::kernels
{

/// What the brightness filter does to each channel X of a pixel with the perceived level L:
/// ((X - L) * saturation + L + brightness) * gain.
struct BrightnessSettings {
    double brightness = 0;
    float gain = 1;
    float saturation = 1;
};

/// Applies `settings` to `count` words of `source` and writes them to `target`, the same row or one
/// that does not overlap. Alpha is carried over.
void brightnessRow(const uint32_t* source, uint32_t* target, int count,
                   const BrightnessSettings& settings);

} // namespace MGraphX::kernels
