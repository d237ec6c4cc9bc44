#pragma once

#include <QImage>
#include <QString>

class Shot;

/// Draws a slide: the number and the caption, and below them the part of the shot that its marks
/// lie in, with all but the marked places dimmed.
namespace SlidePainter
{

constexpr QSize kSize(1600, 1200);

/// Errors: a null image if the caption doesn't fit. `number` counts from 1 to `count`.
QImage draw(const Shot& shot, const QString& caption, int number, int count);

} // namespace SlidePainter
