#include "photos/Skies.h"

// Each in Sky's own order: sun; zenith, horizon, sunlight; glow, disc, cover and scale of the
// clouds; the clouds' light and shade; seed.
namespace Skies
{

Sky alpineMorning()
{
    return {normalized({-0.72, 0.50, -0.20}),
            {0.085, 0.21, 0.52},
            {0.50, 0.64, 0.80},
            {2.55, 2.25, 1.85},
            0.12,
            0,
            0.02,
            0.75,
            {1.45, 1.42, 1.38},
            {0.60, 0.66, 0.78},
            404};
}

Sky summerEvening()
{
    return {normalized({0.80, 0.36, 0.05}),
            {0.12, 0.26, 0.58},
            {0.68, 0.72, 0.76},
            {2.9, 2.2, 1.35},
            0.20,
            0,
            0.22,
            0.62,
            {2.3, 2.15, 1.95},
            {0.50, 0.55, 0.66},
            77};
}

Sky seaDusk()
{
    return {normalized({-0.085, 0.050, 1.0}),
            {0.05, 0.10, 0.30},
            {0.98, 0.40, 0.15},
            {3.3, 1.45, 0.48},
            0.36,
            34,
            0.36,
            0.9,
            {1.15, 0.46, 0.24},
            {0.17, 0.125, 0.19},
            91};
}

Sky forestDawn()
{
    return {normalized({0.16, 0.30, 1.0}),
            {0.24, 0.36, 0.54},
            {0.86, 0.74, 0.58},
            {2.6, 1.7, 0.85},
            0.5,
            5,
            -0.12,
            1,
            {1.2, 1.0, 0.85},
            {0.62, 0.60, 0.62},
            131};
}

} // namespace Skies
