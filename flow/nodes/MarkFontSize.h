#pragma once

#include <QFont>
#include <QString>

/// The largest pixel size that is tried for a mark. Twice as much is more than font files are drawn
/// at: their widths come out as anything.
constexpr int kLargestMarkFontSize = 32768;

/// The pixel size that makes the text, on one line, wider than `width` pixels: one step over it,
/// not under it. The power of two, from 2 up, that is the first to do so is found by doubling, and
/// then the first size to do so from half of it on.
///
/// Each size that is measured costs a font of its own: none is measured twice, and of large ones
/// only those that come into question. Errors: 0 if no size up to
/// kLargestMarkFontSize does, as for a text of nothing but invisible characters. Thread: any.
int markFontSize(QFont font, const QString& text, qint64 width);
