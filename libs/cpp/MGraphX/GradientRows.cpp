#include "GradientRows.h"

#include "StoredWord.h"

#include <algorithm>
#include <cmath>
#include <QRadialGradient>

namespace MGraphX
{
namespace
{

/// The painter computes a gradient by increments from where a span starts, and cuts rows into spans
/// of this length. A row may be painted in parts if they start where its spans do.
constexpr int kSpan = 2048;
/// It looks up the colour of a pixel in a table of so many.
constexpr int kSteps = 1024;

const QColor kClear(255, 255, 255, 0);

QRadialGradient gradientOf(const QPointF& centre, double radius, const VignetteLook& look)
{
    const QColor& color = look.color;
    const auto lighter = [&color](int by) {
        return QColor(std::min(color.red() + by, 255), std::min(color.green() + by, 255),
                      std::min(color.blue() + by, 255), 0);
    };
    QRadialGradient gradient(centre, radius, centre);
    gradient.setColorAt(0.0, lighter(200));
    gradient.setColorAt(0.5, lighter(40));
    gradient.setColorAt(1.0, QColor(color.red(), color.green(), color.blue(), 255));
    return gradient;
}

void takeUp(QPainter& painter, const QRadialGradient& gradient, const VignetteLook& look)
{
    painter.setOpacity(look.opacity / 100.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(gradient);
}

QRadialGradient squareGradient(int side, const VignetteLook& look)
{
    return gradientOf(QPointF(side / 2, side / 2), look.radius, look);
}

} // namespace

QImage gradientPart(int side, const QRect& part, QImage::Format format, const VignetteLook& look)
{
    QImage image(part.size(), format);
    image.fill(kClear);
    QPainter painter(&image);
    takeUp(painter, squareGradient(side, look), look);
    painter.translate(-part.topLeft());
    painter.drawRects(&part, 1);
    return image;
}

std::vector<uint32_t> gradientSteps(QImage::Format format, const VignetteLook& look)
{
    QImage steps(kSteps, 1, format);
    steps.fill(kClear);
    QPainter painter(&steps);
    // The centre of each pixel is as many steps from the gradient's as its number.
    takeUp(painter, gradientOf(QPointF(0.5, 0.5), kSteps - 1, look), look);
    const QRect whole = steps.rect();
    painter.drawRects(&whole, 1);
    painter.end();
    const auto* words = reinterpret_cast<const uint32_t*>(steps.constBits());
    return {words, words + kSteps};
}

GradientRows::GradientRows(int side, QImage::Format format, const VignetteLook& look)
    : m_side(side),
      m_clearRadius(0.49 * look.radius), // half of it is clear; the rest is for rounding
      m_clear(filledWord(format, kClear)),
      m_to(side),
      m_strip(side, 1, format),
      m_painter(&m_strip)
{
    takeUp(m_painter, squareGradient(side, look), look);
    // The painter knows a row by the square of its distance alone, and its spans are all of one
    // length. Should either be otherwise, a row shows it.
    const int upper = side / 4;
    const bool isEven = wholeRow(upper) == wholeRow(mirrored(upper));
    const std::vector<uint32_t> whole = wholeRow(side / 2);
    m_skipsCentre = true;
    m_skipsCentre = whole == wholeRow(side / 2);
    m_isEven = isEven;
}

const uint32_t* GradientRows::words() const
{
    return reinterpret_cast<const uint32_t*>(m_strip.constBits());
}

std::vector<uint32_t> GradientRows::wholeRow(int y)
{
    m_painted = -1;
    const uint32_t* first = row(y);
    return {first, first + m_side};
}

void GradientRows::setColumns(int from, int to)
{
    m_from = from / kSpan * kSpan;
    m_to = to;
    m_painted = -1;
}

const uint32_t* GradientRows::row(int y)
{
    if (m_painted >= 0 && (y == m_painted || (m_isEven && y == mirrored(m_painted)))) {
        return words();
    }
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
    m_painted = y;
    return words();
}

/// Paints what lies outside the words from `clearFrom` up to `clearTo`.
void GradientRows::paint(int y, int clearFrom, int clearTo)
{
    auto* words = reinterpret_cast<uint32_t*>(m_strip.bits());
    std::fill(words + m_from, words + m_to, m_clear);
    const int left = std::min(clearFrom, m_to);
    const int right = std::max(clearTo, m_from);
    const QRect parts[] = {QRect(m_from, y, left - m_from, 1), QRect(right, y, m_to - right, 1)};
    m_painter.setTransform(QTransform::fromTranslate(0, -y));
    for (const QRect& part : parts) {
        if (!part.isEmpty()) {
            m_painter.drawRects(&part, 1);
        }
    }
}

} // namespace MGraphX
