#include "Label.h"

#include "App.h"
#include "DevicePixels.h"

#include <QPainter>

namespace QMWidgets
{

namespace
{

/// The place where the nearest device pixel begins.
QPointF onDevicePixel(const QPointF& place, const QPainter& painter)
{
    const QTransform toDevice = painter.deviceTransform();
    return toDevice.inverted().map(QPointF(toDevice.map(place).toPoint()));
}

} // namespace

Label::Label(QWidget* parent)
    : QLabel(parent)
{
}

void Label::setPixmap(const QPixmap& pixmap)
{
    m_pixmap = pixmap;
    update();
}

void Label::paintEvent(QPaintEvent* event)
{
    QLabel::paintEvent(event);
    const double ratio = App::devicePixelRatio();
    const QSize box(wholeDevicePixels(width()), wholeDevicePixels(height()));
    if (m_pixmap.isNull() || box.isEmpty()) {
        return;
    }
    const Qt::AspectRatioMode mode =
        m_expanding ? Qt::KeepAspectRatioByExpanding : Qt::KeepAspectRatio;
    const QPixmap scaled = m_pixmap.scaled(box, mode, Qt::SmoothTransformation);
    const double scaledWidth = scaled.width() / ratio;
    const double scaledHeight = scaled.height() / ratio;
    QPoint place;
    if (!m_expanding) {
        place = QPoint(int((width() - scaledWidth) * 0.5), int((height() - scaledHeight) * 0.5));
    }
    QPainter painter(this);
    // Not rounded to logical pixels, of which one may be more than a device pixel: squeezed by less
    // than one, the picture would lose a whole row or column.
    const QRectF target(onDevicePixel(place, painter), QSizeF(scaledWidth, scaledHeight));
    painter.drawPixmap(target, scaled, scaled.rect());
}

} // namespace QMWidgets
