#include "VignetteReference.h"

#include <QPainter>
#include <QRadialGradient>

namespace reference
{

QImage vignette(const QImage& image, int radius, int opacity, const QColor& color)
{
    const int side = qMax(image.height(), image.width());
    QImage mask(side, side, image.format());
    mask.fill(QColor(255, 255, 255, 0));

    const int red = color.red();
    const int green = color.green();
    const int blue = color.blue();
    const QPointF centre(side / 2, side / 2);
    QRadialGradient gradient(centre, radius * side / 100, centre);
    gradient.setColorAt(
        0.0, QColor(qMin(red + 200, 255), qMin(green + 200, 255), qMin(blue + 200, 255), 0));
    gradient.setColorAt(
        0.5, QColor(qMin(red + 40, 255), qMin(green + 40, 255), qMin(blue + 40, 255), 0));
    gradient.setColorAt(1.0, QColor(red, green, blue, 255));

    const QVector<QRect> whole = {QRect(QPoint(0, 0), QPoint(side - 1, side - 1))};
    QPainter maskPainter(&mask);
    maskPainter.setOpacity(opacity / 100.0);
    maskPainter.setBrush(gradient);
    maskPainter.setPen(Qt::NoPen);
    maskPainter.drawRects(whole);
    maskPainter.end();

    QImage result = image.copy();
    QPainter painter(&result);
    painter.drawImage(QRect(0, 0, image.width(), image.height()), mask);
    painter.end();
    return result;
}

} // namespace reference
