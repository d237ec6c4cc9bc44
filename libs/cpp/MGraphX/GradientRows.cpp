#include "GradientRows.h"

#include "StoredWord.h"

#include <algorithm>
#include <cmath>
#include <QRadialGradient>
#include <vector>

namespace MGraphX
{
namespace
{

/// The painter computes a gradient by increments from where a span starts, and cuts rows into spans
/// of this length. A row may be painted in parts if they start where its spans do.
constexpr int kSpan = 2048;

const QColor kClear(255, 255, 255, 0);

QRadialGradient gradientOf(int side, const VignetteLook& look)
{
    const QColor& color = look.color;
    const auto lighter = [&color](int by) {
        return QColor(std::min(color.red() + by, 255), std::min(color.green() + by, 255),
                      std::min(color.blue() + by, 255), 0);
    };
    const QPointF centre(side / 2, side / 2);
    QRadialGradient gradient(centre, look.radius, centre);
    gradient.setColorAt(0.0, lighter(200));
    gradient.setColorAt(0.5, lighter(40));
    gradient.setColorAt(1.0, QColor(color.red(), color.green(), color.blue(), 255));
    return gradient;
}

void takeUp(QPainter& painter, int side, const VignetteLook& look)
{
    painter.setOpacity(look.opacity / 100.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(gradientOf(side, look));
}

} // namespace

QImage gradientSquare(int side, QImage::Format format, const VignetteLook& look)
{
    QImage square(side, side, format);
    square.fill(kClear);
    QPainter painter(&square);
    takeUp(painter, side, look);
    const QRect whole = square.rect();
    painter.drawRects(&whole, 1);
    return square;
}

GradientRows::GradientRows(int side, QImage::Format format, const VignetteLook& look)
    : m_side(side),
      m_clearRadius(0.49 * look.radius), // half of it is clear; the rest is for rounding
      m_clear(filledWord(format, kClear)),
      m_strip(side, 1, format),
      m_painter(&m_strip)
{
    takeUp(m_painter, side, look);
    // Should the painter's spans be of another length, the middle row shows it.
    const uint32_t* words = row(side / 2);
    const std::vector<uint32_t> whole(words, words + side);
    m_skipsCentre = true;
    words = row(side / 2);
    m_skipsCentre = std::equal(whole.begin(), whole.end(), words);
}

uint32_t* GradientRows::row(int y)
{
    const double middle = m_side / 2;
    const double distance = y + 0.5 - middle;
    int from = m_side;
    int to = m_side;
    if (m_skipsCentre && std::fabs(distance) < m_clearRadius) {
        const double half = std::sqrt(m_clearRadius * m_clearRadius - distance * distance);
        from = int(std::ceil(std::clamp(middle - half, 0.0, double(m_side))));
        to = int(std::clamp(middle + half, 0.0, double(m_side)));
        if (to < m_side) {
            to = to / kSpan * kSpan;
        }
        if (to <= from) {
            from = m_side;
            to = m_side;
        }
    }
    paint(y, from, to);
    return reinterpret_cast<uint32_t*>(m_strip.bits());
}

/// Paints what lies outside the words from `clearFrom` up to `clearTo`.
void GradientRows::paint(int y, int clearFrom, int clearTo)
{
    std::fill_n(reinterpret_cast<uint32_t*>(m_strip.bits()), m_side, m_clear);
    const QRect parts[] = {QRect(0, y, clearFrom, 1), QRect(clearTo, y, m_side - clearTo, 1)};
    m_painter.setTransform(QTransform::fromTranslate(0, -y));
    for (const QRect& part : parts) {
        if (!part.isEmpty()) {
            m_painter.drawRects(&part, 1);
        }
    }
}

} // namespace MGraphX
