#include "Camera.h"

#include <QPainter>
#include <QPixmap>
#include <QWidget>

Camera::Camera(const QString& folder)
    : m_folder(folder)
{
    m_folder.mkpath(QStringLiteral("."));
}

void Camera::startScene(const QString& name)
{
    m_scene = name;
    m_number = 0;
    // Pictures of an earlier tour would pass for new ones.
    const QStringList old = m_folder.entryList({name + QStringLiteral("-*.png")}, QDir::Files);
    for (const QString& file : old) {
        m_folder.remove(file);
    }
}

bool Camera::shoot(const QString& name, QWidget* widget)
{
    return widget && write(name, widget->grab());
}

bool Camera::shootTogether(const QString& name, const QWidgetList& windows)
{
    QRect ground;
    for (const QWidget* const window : windows) {
        if (!window) {
            return false;
        }
        ground |= QRect(window->mapToGlobal(QPoint(0, 0)), window->size());
    }
    if (ground.isEmpty()) {
        return false;
    }
    const double ratio = windows.first()->devicePixelRatioF();
    QPixmap picture((QSizeF(ground.size()) * ratio).toSize());
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    for (QWidget* const window : windows) {
        painter.drawPixmap(window->mapToGlobal(QPoint(0, 0)) - ground.topLeft(), window->grab());
    }
    painter.end();
    return write(name, picture);
}

bool Camera::write(const QString& name, const QPixmap& picture)
{
    ++m_number;
    ++m_count;
    const QString file = QStringLiteral("%1-%2-%3.png").arg(m_scene).arg(m_number).arg(name);
    return !picture.isNull() && picture.save(m_folder.filePath(file));
}
