#pragma once

#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QList>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

/// Drags mime data onto a widget, as the window system does with Shift pressed, which proposes to
/// move it. True if the widget accepted the drag.
inline bool dragOnto(QWidget* widget, const QMimeData& data,
                     Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction)
{
    QDragEnterEvent enter(widget->rect().center(), actions, &data, Qt::LeftButton,
                          Qt::ShiftModifier);
    enter.ignore();
    QCoreApplication::sendEvent(widget, &enter);
    return enter.isAccepted();
}

/// Drags mime data onto a widget and drops it there, if the widget accepted the drag. Gives what
/// the source is notified of.
inline Qt::DropAction dropOn(QWidget* widget, const QMimeData& data,
                             Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction)
{
    if (!dragOnto(widget, data, actions)) {
        return Qt::IgnoreAction;
    }
    QDropEvent drop(widget->rect().center(), actions, &data, Qt::LeftButton, Qt::ShiftModifier);
    drop.ignore();
    QCoreApplication::sendEvent(widget, &drop);
    return drop.isAccepted() ? drop.dropAction() : Qt::IgnoreAction;
}

inline Qt::DropAction dropUrls(QWidget* widget, const QList<QUrl>& urls)
{
    QMimeData data;
    data.setUrls(urls);
    return dropOn(widget, data);
}
