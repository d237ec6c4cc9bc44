#include "slides/DraggedPhotos.h"

#include "slides/Drawing.h"

#include <QPainter>
#include <QWidget>

namespace
{

constexpr QSize kGround(735, 436);
constexpr int kRightMargin = 24;

/// A print with a white border, as the drop window draws photos.
void drawPrint(QPainter& painter, const QPointF& middle, double angle, const QString& path)
{
    const QImage photo = Drawing::thumbnail(path, {132, 100});
    const QSizeF size = QSizeF(photo.size()) / Drawing::kRatio;
    const QRectF paper(-size.width() / 2 - 6, -size.height() / 2 - 6, size.width() + 12,
                       size.height() + 12);
    painter.save();
    painter.translate(middle);
    painter.rotate(angle);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 60));
    painter.drawRoundedRect(paper.translated(3, 4), 3, 3);
    painter.setBrush(QColor(246, 246, 244));
    painter.drawRoundedRect(paper, 2, 2);
    Drawing::drawCentred(painter, QPointF(0, 0), photo);
    painter.restore();
}

} // namespace

Shot draggedOnto(QWidget* window, const QStringList& photos)
{
    QPixmap picture = Drawing::blank(kGround);
    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const QPoint corner(kGround.width() - window->width() - kRightMargin,
                        (kGround.height() - window->height()) / 2);
    Drawing::drawShadow(painter, QRect(corner, window->size()), 12);
    painter.drawPixmap(corner, window->grab());
    drawPrint(painter, {128, 150}, -14, photos.at(0));
    drawPrint(painter, {190, 250}, 9, photos.at(1));
    drawPrint(painter, {298, 190}, -5, photos.at(2));
    painter.end();
    return Shot(picture).standFree().point({312, 200});
}
