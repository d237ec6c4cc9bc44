#pragma once

#include "photos/Canvas.h"

#include <cstdint>
#include <QImage>

/// How light becomes a photo: exposure, the lens's dark corners and the film's grain.
struct Film {
    double exposure = 1;
    double vignette = 0.35; ///< how much light the corners lose
    double grain = 0.012;   ///< of the full range
    std::uint32_t seed = 1;

    /// Shape: RGB32 of the canvas's size.
    QImage develop(const Canvas& canvas) const;

    /// A place of linear light in the range of a print, 0 to 1 for each colour.
    static Rgb print(const Rgb& light);
};
