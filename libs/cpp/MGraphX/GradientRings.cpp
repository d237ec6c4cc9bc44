#include "GradientRings.h"

#include "kernels/RingKernel.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace MGraphX
{
namespace
{

/// The largest error of the painter's square of a distance. Units: pixels squared. The painter
/// computes a sum and a difference at the first of each 2048 columns, with a few roundings each,
/// and adds to both at each column. Neither exceeds the square's area. The roundings of the
/// difference count again at each column that follows. The result is twice the sum of all these
/// errors.
double tolerance(int side)
{
    constexpr double kRounding = 1.0 / (1LL << 53);
    constexpr double kColumns = 2048;
    return 2 * kRounding * kColumns * (side + kColumns) * (side + kColumns);
}

/// Writes `word` from `from` on, whole groups up to `to` or beyond it.
void run(uint32_t* row, int from, int to, uint32_t word)
{
    for (uint32_t* group = row + from; group < row + to; group += GradientRings::kSlack) {
        std::fill_n(group, GradientRings::kSlack, word);
    }
}

} // namespace

GradientRings::GradientRings(int side, double radius, const std::vector<uint32_t>& words)
    : m_side(side),
      m_tolerance(tolerance(side)),
      m_before(size_t(side) + 1)
{
    const double steps = double(words.size()) - 1;
    m_words.push_back(words.front());
    for (size_t i = 1; i < words.size(); ++i) {
        const double edge = radius * (double(i) - 0.5) / steps;
        if (words[i] != m_words.back() && edge < side) {
            m_words.push_back(words[i]);
            m_squares.push_back(edge * edge);
        }
    }
    m_reach.resize(m_squares.size());
    std::iota(m_before.begin(), m_before.end(), 0);
}

void GradientRings::setColumns(const std::vector<int>& columns)
{
    for (int x = 0; x <= m_side; ++x) {
        const auto first = std::lower_bound(columns.begin(), columns.end(), x);
        m_before[size_t(x)] = int(first - columns.begin());
    }
}

bool GradientRings::fill(int y, uint32_t* row)
{
    const int middle = m_side / 2;
    const double distance = y + 0.5 - middle;
    const int count = int(m_reach.size());
    if (!kernels::ringReach(m_squares.data(), distance * distance, m_tolerance, m_reach.data(),
                            count)) {
        return false;
    }
    // From left to right, so that each run covers what the one before it wrote too much.
    const auto before = [&](int column) {
        return m_before[size_t(std::clamp(column, 0, m_side))];
    };
    int from = 0;
    for (int i = count; i > 0; --i) {
        const int to = before(middle - m_reach[size_t(i) - 1]);
        run(row, from, to, m_words[size_t(i)]);
        from = to;
    }
    for (int i = 0; i < count; ++i) {
        const int to = before(middle + m_reach[size_t(i)]);
        run(row, from, to, m_words[size_t(i)]);
        from = to;
    }
    run(row, from, m_before.back(), m_words.back());
    return true;
}

} // namespace MGraphX
