#pragma once

#include <QCoreApplication>
#include <QPointF>
#include <QString>
#include <QWidget>
#include <QWindow>

// What Qt's own test functions are built on. They deliver an event before they return.
Q_GUI_EXPORT void qt_handleMouseEvent(QWindow* window, const QPointF& local, const QPointF& global,
                                      Qt::MouseButtons state, Qt::MouseButton button,
                                      QEvent::Type type, Qt::KeyboardModifiers modifiers,
                                      int timestamp);
Q_GUI_EXPORT void qt_handleKeyEvent(QWindow* window, QEvent::Type type, int key,
                                    Qt::KeyboardModifiers modifiers, const QString& text,
                                    bool autorepeat, ushort count);

/// Sends an event without contents, as one that tells that the mouse came or left.
inline void sendEvent(QWidget* widget, QEvent::Type type)
{
    QEvent event(type);
    QCoreApplication::sendEvent(widget, &event);
}

/// Queues a mouse event for a place on a widget: it arrives, as from the window system, when the
/// event loop or processEvents has its next turn.
inline void postMouse(const QWidget* widget, const QPoint& place, QEvent::Type type)
{
    static int timestamp = 0;
    timestamp += 1000; // far enough apart to be no double click
    QWindow* const window = widget->window()->windowHandle();
    const QPoint local = widget->mapTo(widget->window(), place);
    const QPoint global = widget->mapToGlobal(place);
    const Qt::MouseButtons state =
        type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const auto deliver = [=, at = timestamp] {
        qt_handleMouseEvent(window, local, global, state, button, type, Qt::NoModifier, at);
    };
    QMetaObject::invokeMethod(window, deliver, Qt::QueuedConnection);
}

inline void postClick(const QWidget* widget)
{
    postMouse(widget, widget->rect().center(), QEvent::MouseButtonPress);
    postMouse(widget, widget->rect().center(), QEvent::MouseButtonRelease);
}

/// Queues the press of a key.
inline void postKey(const QWidget* widget, Qt::Key key)
{
    QWindow* const window = widget->window()->windowHandle();
    const auto deliver = [window, key] {
        qt_handleKeyEvent(window, QEvent::KeyPress, key, Qt::NoModifier, QString(), false, 1);
    };
    QMetaObject::invokeMethod(window, deliver, Qt::QueuedConnection);
}
