#pragma once

#include <cstdint>

/// Repeatable noise: the same place and seed give the same value on each run.
namespace Noise
{

/// A number from 0 to below 1 that belongs to a cell of the grid.
double cell(int x, int y, std::uint32_t seed);

/// Smooth noise with one bump about each unit of length, from about -1 to 1.
double smooth(double x, double y, std::uint32_t seed);

/// Octaves of smooth noise upon each other, each twice as fine and half as strong: clouds, hills,
/// bark. From about -1 to 1.
double fractal(double x, double y, int octaves, std::uint32_t seed);

/// The same with sharp crests, as of mountains; from about 0 to 1.
double ridged(double x, double y, int octaves, std::uint32_t seed);

} // namespace Noise
