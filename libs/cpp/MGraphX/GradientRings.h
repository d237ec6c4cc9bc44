#pragma once

#include <cstdint>
#include <vector>

namespace MGraphX
{

/// The rows of a radial gradient that is painted in steps: rings of one word each around the centre
/// of a square. Where a row meets them is computed, instead of the step of each pixel.
///
/// The painter takes for a pixel the step distance / radius * (steps - 1), rounded to the nearest.
/// It adds up the square of the distance along the row, so a pixel at the edge of a ring may be on
/// either side of it for the painter. How far its sum can be off is bounded; rows with a pixel as
/// near to an edge as that are left to the painter.
class GradientRings
{
public:
    /// `words` are those of the steps, the last one also of all that lies beyond. `radius` is above
    /// 0.
    GradientRings(int side, double radius, const std::vector<uint32_t>& words);

    /// Writes the words of the square's columns `columns`, in ascending order, from now on.
    void setColumns(const std::vector<int>& columns);

    /// Writes row `y`, if it is sure what the painter would write. `row` may be changed up to
    /// kSlack words beyond the columns.
    bool fill(int y, uint32_t* row);

    /// Words that are written at once.
    static constexpr int kSlack = 8;

private:
    const int m_side;
    const double m_tolerance;
    /// The rings from the centre outward; the last one has no end.
    std::vector<uint32_t> m_words;
    std::vector<double> m_squares;
    std::vector<int> m_reach;
    /// For each column of the square, and its end, how many of the written columns lie before it.
    std::vector<int> m_before;
};

} // namespace MGraphX
