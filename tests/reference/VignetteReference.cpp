#include "reference/VignetteReference.h"

#include <QPainter>
#include <QRadialGradient>

namespace reference
{

QImage vignette(const QImage& image, int radius, int opacity, const QColor& color)
{
    const int side = qMax(image.height(), image.width());
    QImage mask(side, side, image.format());
    if (mask.isNull()) {
        return image;
    }
    mask.fill(QColor(255, 255, 255, 0));
    const int r = color.red();
    const int g = color.green();
    const int b = color.blue();
    const QPointF centre(side / 2, side / 2);
    QRadialGradient gradient(centre, int(qint64(radius) * side / 100), centre);
    gradient.setColorAt(0.0, QColor(qMin(r + 200, 255), qMin(g + 200, 255), qMin(b + 200, 255), 0));
    gradient.setColorAt(0.5, QColor(qMin(r + 40, 255), qMin(g + 40, 255), qMin(b + 40, 255), 0));
    gradient.setColorAt(1.0, QColor(r, g, b, 255));
    QPainter maskPainter(&mask);
    maskPainter.setOpacity(opacity / 100.0);
    maskPainter.setBrush(gradient);
    maskPainter.setPen(Qt::NoPen);
    const QRect whole(0, 0, side, side);
    maskPainter.drawRects(&whole, 1);
    maskPainter.end();
    QImage result = image;
    QPainter painter(&result);
    painter.drawImage(QRect(0, 0, image.width(), image.height()), mask);
    painter.end();
    return result;
}

} // namespace reference
