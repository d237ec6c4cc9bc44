#include "slides/Shot.h"

#include <QPainter>
#include <QWidget>

namespace
{

QRect globalRect(const QWidget* widget)
{
    return {widget->mapToGlobal(QPoint(0, 0)), widget->size()};
}

} // namespace

Shot::Shot(const QWidgetList& windows)
{
    QRect ground;
    for (const QWidget* const window : windows) {
        ground |= globalRect(window);
    }
    m_corner = ground.topLeft();
    const double ratio = windows.first()->devicePixelRatioF();
    m_picture = QPixmap((QSizeF(ground.size()) * ratio).toSize());
    m_picture.setDevicePixelRatio(ratio);
    m_picture.fill(Qt::transparent);
    QPainter painter(&m_picture);
    for (QWidget* const window : windows) {
        painter.drawPixmap(globalRect(window).topLeft() - m_corner, window->grab());
    }
}

Shot::Shot(const QPixmap& picture)
    : m_picture(picture)
{
}

Shot& Shot::mark(const QWidget* widget)
{
    return widget ? mark(widget, widget->rect()) : *this;
}

Shot& Shot::mark(const QWidget* widget, const QRect& place)
{
    m_marks.append(QRect(toPicture(widget, place.topLeft()), place.size()));
    return *this;
}

Shot& Shot::light(const QWidget* widget)
{
    m_lights.append(QRect(toPicture(widget, QPoint(0, 0)), widget->size()));
    return *this;
}

Shot& Shot::point(const QWidget* widget, const QPoint& place)
{
    return point(toPicture(widget, place));
}

Shot& Shot::point(const QPoint& place)
{
    m_pointer = place;
    m_hasPointer = true;
    return *this;
}

Shot& Shot::pointAtMiddle(const QWidget* widget)
{
    return widget ? point(widget, widget->rect().center()) : *this;
}

Shot& Shot::standFree()
{
    m_free = true;
    return *this;
}

QSizeF Shot::size() const
{
    return QSizeF(m_picture.size()) / m_picture.devicePixelRatioF();
}

QPoint Shot::toPicture(const QWidget* widget, const QPoint& place) const
{
    return widget->mapToGlobal(place) - m_corner;
}
