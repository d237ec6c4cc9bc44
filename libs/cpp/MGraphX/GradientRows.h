#pragma once

#include <cstdint>
#include <QColor>
#include <QImage>
#include <QPainter>
#include <vector>

namespace MGraphX
{

/// What the vignette's square is painted with: `radius` in pixels, `opacity` in percent.
struct VignetteLook {
    double radius = 0;
    int opacity = 0;
    QColor color;
};

/// The part `part` of the vignette's square, which has `side` rows and columns.
QImage gradientPart(int side, const QRect& part, QImage::Format format, const VignetteLook& look);

/// The words of the steps in which the painter paints the vignette's gradient, from the centre to
/// the radius.
std::vector<uint32_t> gradientSteps(QImage::Format format, const VignetteLook& look);

/// The vignette's square, painted one row at a time into a strip that stays in the cache. The words
/// are those of gradientPart.
class GradientRows
{
public:
    GradientRows(int side, QImage::Format format, const VignetteLook& look);
    Q_DISABLE_COPY(GradientRows)

    /// Paints only the columns from `from` up to `to` from now on; the others hold anything.
    void setColumns(int from, int to);

    /// Row `y`; `side` words, good until the next call. Asking for a row and then for its mirror
    /// image paints only once.
    const uint32_t* row(int y);

    /// The row as far from the centre as `y`, on the other side.
    int mirrored(int y) const { return m_side / 2 * 2 - 1 - y; }

private:
    const uint32_t* words() const;
    std::vector<uint32_t> wholeRow(int y);
    void paint(int y, int clearFrom, int clearTo);

    const int m_side;
    const double m_clearRadius;
    const uint32_t m_clear;
    int m_from = 0;
    int m_to;
    int m_painted = -1;
    bool m_skipsCentre = false;
    bool m_isEven = false;
    QImage m_strip;
    QPainter m_painter;
};

} // namespace MGraphX
