#pragma once

class QImage;
struct WMRParams;

/// Draws the mark that `params` tell over a copy of the photo.
///
/// Shape: the photo's size, format, resolution, colour space and texts. Errors: none are reported;
/// where there is nothing to draw, or it is too large to be drawn, the photo comes back as it is.
/// Thread: any.
QImage drawWatermark(const QImage& photo, const WMRParams& params);
