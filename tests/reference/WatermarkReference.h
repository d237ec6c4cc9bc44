#pragma once

#include "flow/nodes/WMRParams.h"

namespace reference
{

/// The pixel size of a mark's text: doubled from 2 on, and then one by one from the last size that
/// was not wider. Ends only if a size is wider than `width`.
int markFontSize(QFont font, const QString& text, qint64 width);

/// The watermark in plain steps, the image of the logo scaled as a whole. For marks that lie in
/// reach: positions of the grid, and a text that can be drawn.
QImage watermark(const QImage& photo, const WMRParams& params);

} // namespace reference
