#include "VignetteRows.h"

#include "PixelRows.h"

#include <algorithm>
#include <numeric>
#include <QPainter>

namespace MGraphX
{
namespace
{

/// The painter converts words in groups, and what is left at the end of a row one by one.
constexpr int kGroup = 8;
/// It leaves alone what lies beyond so many rows and columns of an image, the square as well.
constexpr int kReach = 32767;

/// Which of the `side` rows or columns of a square the painter takes for each of `length` ones when
/// it squeezes the square into an image of `format`. Found by letting it squeeze a line whose words
/// are their own numbers: along a row it steps in another precision than from row to row, so the
/// line lies as those that are asked for. Fewer than `length` where the image goes on beyond what
/// it paints.
std::vector<int> sampledPlaces(int side, int length, QImage::Format format, Qt::Orientation along)
{
    const auto line = [&](int words) {
        return QImage(along == Qt::Horizontal ? QSize(words, 1) : QSize(1, words), format);
    };
    QImage numbers = line(side);
    QImage sampled = line(length);
    const auto word = [along](QImage& image, int i) -> uint32_t& {
        return along == Qt::Horizontal ? targetRow(image, 0)[i] : *targetRow(image, i);
    };
    for (int i = 0; i < side; ++i) {
        word(numbers, i) = 0xff000000u | uint32_t(i);
    }
    sampled.fill(0);
    QPainter painter(&sampled);
    painter.drawImage(sampled.rect(), numbers);
    painter.end();
    std::vector<int> places;
    for (int i = 0; i < length && word(sampled, i) != 0; ++i) {
        places.push_back(int(word(sampled, i) & 0x00ffffffu));
    }
    return places;
}

/// Whether the painter of this processor paints the rings that are computed.
bool paintsRings(QImage::Format format)
{
    constexpr int kSide = 2100; // more than one of its spans
    const VignetteLook look{0.7 * kSide, 100, QColor(10, 120, 200)};
    GradientRings rings(kSide, look.radius, gradientSteps(format, look));
    std::vector<uint32_t> row(kSide + GradientRings::kSlack);
    for (int y = 0; y < kSide; y += 50) {
        const QImage painted = gradientPart(kSide, QRect(0, y, kSide, 1), format, look);
        const uint32_t* words = sourceRow(painted, 0);
        if (rings.fill(y, row.data()) &&
            !std::equal(words, words + kSide / kGroup * kGroup, row.begin())) {
            return false;
        }
    }
    return true;
}

} // namespace

VignetteRows::VignetteRows(const QSize& photo, QImage::Format format, const VignetteLook& look)
    : m_side(std::max(photo.width(), photo.height())),
      m_places(sampledPlaces(m_side, photo.height(), format, Qt::Vertical)),
      m_columns(sampledPlaces(m_side, photo.width(), format, Qt::Horizontal)),
      m_row(size_t(photo.width()) + GradientRings::kSlack, 0),
      m_gradient(m_side, format, look)
{
    m_gradient.setColumns(m_columns.front(), m_columns.back() + 1);
    // Premultiplied gradients are painted in single precision, which leaves no row sure.
    static const bool hasRings = paintsRings(QImage::Format_ARGB32);
    if (hasRings && format == QImage::Format_ARGB32 && look.radius > 0) {
        findRings(format, look);
    }
}

void VignetteRows::findRings(QImage::Format format, const VignetteLook& look)
{
    const int width = kGroup + m_side % kGroup;
    m_lastColumns = gradientPart(m_side, QRect(m_side - width, 0, width, m_side), format, look);
    m_rings.emplace(m_side, look.radius, gradientSteps(format, look));
    m_rings->setColumns(m_columns);
}

std::vector<int> VignetteRows::order() const
{
    const auto upper = [this](int y) {
        const int place = m_places[size_t(y)];
        return std::min(place, m_gradient.mirrored(place));
    };
    std::vector<int> order(m_places.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(),
                     [&upper](int a, int b) { return upper(a) < upper(b); });
    return order;
}

const uint32_t* VignetteRows::row(int y)
{
    const int place = m_places[size_t(y)];
    if (place >= kReach) {
        m_filled = -1;
        std::fill(m_row.begin(), m_row.end(), 0u);
        return m_row.data();
    }
    return m_rings && fillRings(place) ? m_row.data() : paintedRow(place);
}

bool VignetteRows::fillRings(int place)
{
    if (m_filled >= 0 && (place == m_filled || place == m_gradient.mirrored(m_filled))) {
        return true;
    }
    m_filled = -1;
    if (!m_rings->fill(place, m_row.data())) {
        return false;
    }
    const uint32_t* last = sourceRow(m_lastColumns, place) + m_lastColumns.width();
    for (size_t i = m_columns.size(); i > 0 && m_columns[i - 1] >= m_side - m_side % kGroup; --i) {
        m_row[i - 1] = last[m_columns[i - 1] - m_side];
    }
    // Also the words that were written too much: a photo as wide goes on there.
    const auto reached = std::lower_bound(m_columns.begin(), m_columns.end(), kReach);
    std::fill(m_row.begin() + (reached - m_columns.begin()), m_row.end(), 0u);
    m_filled = place;
    return true;
}

const uint32_t* VignetteRows::paintedRow(int place)
{
    const uint32_t* square = m_gradient.row(place);
    if (int(m_columns.size()) == m_side) {
        return square;
    }
    m_filled = -1;
    std::transform(m_columns.begin(), m_columns.end(), m_row.begin(),
                   [square](int column) { return square[column]; });
    return m_row.data();
}

} // namespace MGraphX
