#pragma once

#include "BrightnessKernel.h"

#include <cstdint>

namespace MGraphX::kernels
{

/// The brightness filter in single precision, for twice the pixels in a vector. A channel becomes
/// X * channel + L * level + bias, and that is wrong by less than `margin`. Cutting off to a whole
/// number gives what exact arithmetic gives unless a whole number lies within the margin; pixels
/// with such a channel are computed anew in double precision.
///
/// The margin, with u = 2^-24 for the relative error of one rounding, and
/// M = 255 |channel| + 255 |level| + |bias|, which bounds the value and each of its parts:
///   rounding the three factors                                       M u
///   L: three roundings on the way to the sum, halved by the root,
///   one for the root, one for L being a rounded number itself        255 |level| 3.5 u
///   two products and two sums                                        less than 2 M u + 255 |level|
///   u adding and subtracting the margin                                256 u
/// which is less than (3 M + 255 |level| 4.5 + 256) u. What is used is greater by a third and more;
/// the errors of double precision are far below that reserve.
struct FastBrightness {
    explicit FastBrightness(const BrightnessSettings& settings);

    /// Whether the margin is small enough to tell whole numbers apart, and few pixels are done
    /// anew.
    bool isUsable() const { return margin < 1.0f / 64; }

    float channel = 0;
    float level = 0;
    float bias = 0;
    float margin = 0;
};

/// Does what brightnessRow does with `settings`, bit for bit. `fast` is made of the same settings
/// and usable. Source and target do not overlap: pixels in doubt are read twice.
void fastBrightnessRow(const uint32_t* source, uint32_t* target, int count,
                       const BrightnessSettings& settings, const FastBrightness& fast);

} // namespace MGraphX::kernels
