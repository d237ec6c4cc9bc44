#pragma once

#include "GradientRings.h"
#include "GradientRows.h"

#include <cstdint>
#include <optional>
#include <QImage>
#include <vector>

namespace MGraphX
{

/// The vignette's square as the painter samples it when it squeezes the square over a photo, row by
/// row.
class VignetteRows
{
public:
    VignetteRows(const QSize& photo, QImage::Format format, const VignetteLook& look);
    Q_DISABLE_COPY(VignetteRows)

    /// The numbers of the rows that the painter paints, ordered so that rows which are cheap to get
    /// after each other follow each other. The photo may have some more rows at its end.
    std::vector<int> order() const;

    /// Row `y`, one word for each column of the photo; good until the next call.
    const uint32_t* row(int y);

private:
    void findRings(QImage::Format format, const VignetteLook& look);
    bool fillRings(int place);
    const uint32_t* paintedRow(int place);

    const int m_side;
    std::vector<int> m_places; ///< for each row of the photo the square's
    std::vector<int> m_columns;
    std::vector<uint32_t> m_row;
    GradientRows m_gradient;
    std::optional<GradientRings> m_rings;
    int m_filled = -1;
    QImage m_lastColumns;
};

} // namespace MGraphX
