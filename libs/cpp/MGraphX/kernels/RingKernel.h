#pragma once

namespace MGraphX::kernels
{

/// How far circles reach into a row: the number of pixel centres, which lie 0.5, 1.5, ... from the
/// column of the centre, that are inside each circle. `squares` are the squares of the radii,
/// `rowSquare` that of the row's distance from the centre. Returns whether all numbers are sure:
/// false if the square of a pixel's distance is nearer to a circle's than `tolerance`, which is
/// below 1/4.
bool ringReach(const double* squares, double rowSquare, double tolerance, int* reach, int count);

} // namespace MGraphX::kernels
