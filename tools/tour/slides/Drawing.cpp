#include "slides/Drawing.h"

#include <QPainter>

QFont Drawing::font(int pixels, bool bold)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(pixels);
    font.setBold(bold);
    return font;
}

QPixmap Drawing::blank(const QSize& size)
{
    QPixmap picture(size * kRatio);
    picture.setDevicePixelRatio(kRatio);
    picture.fill(Qt::transparent);
    return picture;
}

QImage Drawing::thumbnail(const QString& path, const QSize& size)
{
    return QImage(path).scaled(size * kRatio, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

void Drawing::drawCentred(QPainter& painter, const QPointF& middle, const QImage& thumbnail)
{
    const QSizeF size = QSizeF(thumbnail.size()) / kRatio;
    painter.drawImage(QRectF(middle - QPointF(size.width() / 2, size.height() / 2), size),
                      thumbnail);
}

void Drawing::drawShadow(QPainter& painter, const QRectF& window, int steps)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 14));
    for (int spread = 1; spread <= steps; ++spread) {
        painter.drawRoundedRect(window.adjusted(-spread, -spread / 2.0, spread, spread * 1.25),
                                spread, spread);
    }
}
