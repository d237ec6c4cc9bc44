#include "RingKernel.h"

#include "Multiversion.h"

#include <cmath>

namespace
{

// A circle that does not touch the row comes out with no pixel, and a quarter from the nearest one.
// The square root need not be exact: a number that it gets wrong is one that isn't sure.
MGRAPHX_MULTIVERSION
bool reachOf(const double* squares, double rowSquare, double tolerance, int* reach, int count)
{
    int unsure = 0;
    for (int i = 0; i < count; ++i) {
        const double difference = squares[i] - rowSquare;
        const double square = difference > 0 ? difference : 0;
        const int inside = int(std::sqrt(square) + 0.5);
        const double last = inside - 0.5;
        const double next = inside + 0.5;
        reach[i] = inside;
        unsure |= int(square - last * std::fabs(last) < tolerance) |
                  int(next * next - square < tolerance);
    }
    return unsure == 0;
}

} // namespace

namespace MGraphX::kernels
{

bool ringReach(const double* squares, double rowSquare, double tolerance, int* reach, int count)
{
    return reachOf(squares, rowSquare, tolerance, reach, count);
}

} // namespace MGraphX::kernels
