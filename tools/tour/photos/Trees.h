#pragma once

#include <cstdint>

/// Trees that stand one in each cell of a grid, somewhere in it.
namespace Trees
{

struct Kind {
    double spacing; ///< metres from tree to tree
    double height;
    double radius; ///< of the crown
    bool round;    ///< as broad-leaved trees are; else a cone, as firs are
};

/// How high the crowns reach above the ground at a place.
double canopy(double x, double z, const Kind& kind, std::uint32_t seed);

} // namespace Trees
