#include "photos/Noise.h"

#include <algorithm>
#include <cmath>

namespace Noise
{

namespace
{

std::uint32_t hash(int x, int y, std::uint32_t seed)
{
    std::uint32_t h = seed * 0x9e3779b9u;
    h ^= std::uint32_t(x) * 0x85ebca6bu;
    h = (h << 13) | (h >> 19);
    h ^= std::uint32_t(y) * 0xc2b2ae35u;
    h *= 0x27d4eb2fu;
    h ^= h >> 15;
    h *= 0x85ebca6bu;
    return h ^ (h >> 13);
}

/// The slope of a grid corner, in one of sixteen directions, applied to the way from that corner.
double slope(std::uint32_t h, double dx, double dy)
{
    static const double kX[16] = {1,  .92388,  .70711,  .38268,  0, -.38268, -.70711, -.92388,
                                  -1, -.92388, -.70711, -.38268, 0, .38268,  .70711,  .92388};
    return kX[h & 15] * dx + kX[(h + 12) & 15] * dy;
}

double ease(double t)
{
    return t * t * t * (t * (t * 6 - 15) + 10);
}

// Each octave is turned against the one before, so that their grids never line up.
void turnFiner(double& x, double& y)
{
    const double turned = 1.6 * x + 1.2 * y + 17.3;
    y = -1.2 * x + 1.6 * y + 9.1;
    x = turned;
}

} // namespace

double cell(int x, int y, std::uint32_t seed)
{
    return (hash(x, y, seed) >> 8) * (1.0 / 16777216.0);
}

double smooth(double x, double y, std::uint32_t seed)
{
    const double floorX = std::floor(x);
    const double floorY = std::floor(y);
    const int ix = int(floorX);
    const int iy = int(floorY);
    const double dx = x - floorX;
    const double dy = y - floorY;
    const double u = ease(dx);
    const double v = ease(dy);
    const double topLeft = slope(hash(ix, iy, seed), dx, dy);
    const double topRight = slope(hash(ix + 1, iy, seed), dx - 1, dy);
    const double bottomLeft = slope(hash(ix, iy + 1, seed), dx, dy - 1);
    const double bottomRight = slope(hash(ix + 1, iy + 1, seed), dx - 1, dy - 1);
    const double top = topLeft + (topRight - topLeft) * u;
    const double bottom = bottomLeft + (bottomRight - bottomLeft) * u;
    return (top + (bottom - top) * v) * 1.4;
}

double fractal(double x, double y, int octaves, std::uint32_t seed)
{
    double sum = 0;
    double strength = 0.5;
    for (int i = 0; i < octaves; ++i) {
        sum += smooth(x, y, seed + std::uint32_t(i)) * strength;
        strength *= 0.5;
        turnFiner(x, y);
    }
    return sum;
}

double ridged(double x, double y, int octaves, std::uint32_t seed)
{
    double sum = 0;
    double strength = 0.5;
    double weight = 1;
    for (int i = 0; i < octaves; ++i) {
        double crest = 1 - std::abs(smooth(x, y, seed + std::uint32_t(i)));
        crest *= crest;
        sum += crest * strength * weight;
        // Rough on the crests, smooth in the valleys, as rain leaves it.
        weight = std::clamp(crest * 1.6, 0.0, 1.0);
        strength *= 0.5;
        turnFiner(x, y);
    }
    return sum;
}

} // namespace Noise
