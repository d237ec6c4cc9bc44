#pragma once

#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QList>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

/// Drags mime data over a widget and drops it there, as the window system does. True if the widget
/// accepted the drag; without that nothing is dropped.
inline bool dropOn(QWidget* widget, const QMimeData& data)
{
    const QPoint centre = widget->rect().center();
    QDragEnterEvent enter(centre, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(widget, &enter);
    if (!enter.isAccepted()) {
        return false;
    }
    QDropEvent drop(centre, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &drop);
    return true;
}

inline bool dropUrls(QWidget* widget, const QList<QUrl>& urls)
{
    QMimeData data;
    data.setUrls(urls);
    return dropOn(widget, data);
}
