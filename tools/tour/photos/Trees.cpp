#include "photos/Trees.h"

#include "photos/Noise.h"

#include <algorithm>
#include <cmath>

namespace Trees
{

namespace
{

/// Height of a crown of height 1 at a distance from its trunk, told in radii.
double crown(double away, bool round)
{
    if (away >= 1) {
        return 0;
    }
    return round ? 0.25 + 0.75 * std::sqrt(1 - away * away) : 1 - away;
}

} // namespace

double canopy(double x, double z, const Kind& kind, std::uint32_t seed)
{
    const int column = int(std::floor(x / kind.spacing));
    const int row = int(std::floor(z / kind.spacing));
    double top = 0;
    for (int j = row - 1; j <= row + 1; ++j) {
        for (int i = column - 1; i <= column + 1; ++i) {
            const double treeX = (i + Noise::cell(i, j, seed)) * kind.spacing;
            const double treeZ = (j + Noise::cell(i, j, seed + 1)) * kind.spacing;
            const double size = 0.55 + 0.6 * Noise::cell(i, j, seed + 2);
            const double away = std::hypot(x - treeX, z - treeZ) / (kind.radius * size);
            top = std::max(top, kind.height * size * crown(away, kind.round));
        }
    }
    return top;
}

} // namespace Trees
