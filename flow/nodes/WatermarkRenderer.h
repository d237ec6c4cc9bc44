#pragma once

#include <QImage>

struct WMRParams;

/// Draws the mark that `params` tell over the photo, or over a copy while others hold its pixels.
///
/// Shape: the photo's size, format, resolution, colour space and texts. Errors: none are reported;
/// where there is nothing to draw, or it is too large to be drawn, the photo comes back as it is.
/// Thread: any.
QImage drawWatermark(QImage photo, const WMRParams& params);
