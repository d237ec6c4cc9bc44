#pragma once

#include <cstdint>
#include <QColor>
#include <QImage>
#include <QPainter>

namespace MGraphX
{

/// What the vignette's square is painted with: `radius` in pixels, `opacity` in percent.
struct VignetteLook {
    double radius = 0;
    int opacity = 0;
    QColor color;
};

/// The vignette's square, painted as a whole.
QImage gradientSquare(int side, QImage::Format format, const VignetteLook& look);

/// The vignette's square, painted one row at a time into a strip that stays in the cache. The words
/// are those of gradientSquare.
class GradientRows
{
public:
    GradientRows(int side, QImage::Format format, const VignetteLook& look);
    Q_DISABLE_COPY(GradientRows)

    /// Row `y`; `side` words, good until the next call.
    uint32_t* row(int y);

private:
    void paint(int y, int clearFrom, int clearTo);

    const int m_side;
    const double m_clearRadius;
    const uint32_t m_clear;
    bool m_skipsCentre = false;
    QImage m_strip;
    QPainter m_painter;
};

} // namespace MGraphX
