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

/// What becomes of each of the 256 values of a channel at a saturation of 1, where the level
/// cancels out: X - L and the sum with L are exact.
void brightnessTable(const BrightnessSettings& settings, uint8_t* table);

} // namespace MGraphX::kernels
