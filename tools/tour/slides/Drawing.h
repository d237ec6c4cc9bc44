#pragma once

#include <QFont>
#include <QImage>
#include <QPixmap>

class QPainter;

/// What the parts of a slide that no window shows are drawn with. Places and sizes are logical.
namespace Drawing
{

/// Of slide pixels to logical ones.
constexpr double kRatio = 2;

QFont font(int pixels, bool bold);
QPixmap blank(const QSize& size);
/// The photo of a file, as large as fits into the size.
QImage thumbnail(const QString& path, const QSize& size);
void drawCentred(QPainter& painter, const QPointF& middle, const QImage& thumbnail);
/// The soft shadow that a window throws on the desk, in so many steps of a pixel each.
void drawShadow(QPainter& painter, const QRectF& window, int steps);

} // namespace Drawing
