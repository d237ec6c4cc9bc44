#pragma once

#include "photos/Light.h"

/// The ground of a landscape: how high it is and what it looks like at a place. Units: metres.
class Terrain
{
public:
    virtual ~Terrain() = default;

    /// Fewer octaves leave the fine shapes away, which far places don't need.
    virtual double height(double x, double z, int octaves) const = 0;
    /// The share of each colour that the ground sends back. `normal` has length 1.
    virtual Rgb colour(const Vec3& place, const Vec3& normal) const = 0;
};
