#pragma once

#include <QCoreApplication>
#include <QPointF>
#include <QString>
#include <QWidget>
#include <QWindow>

// What the toolkit's own test functions are built on: events as they come from the window system.
// They lie in its queue until the event loop, or processEvents, takes them out.
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

/// Puts a mouse event for a place on a widget into the window system's queue.
inline void postMouse(const QWidget* widget, const QPoint& place, QEvent::Type type)
{
    static int timestamp = 0;
    timestamp += 1000; // far enough apart to be no double click
    const bool isMove = type == QEvent::MouseMove;
    qt_handleMouseEvent(widget->window()->windowHandle(), widget->mapTo(widget->window(), place),
                        widget->mapToGlobal(place),
                        type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                        isMove ? Qt::NoButton : Qt::LeftButton, type, Qt::NoModifier, timestamp);
}

inline void postClick(const QWidget* widget)
{
    postMouse(widget, widget->rect().center(), QEvent::MouseButtonPress);
    postMouse(widget, widget->rect().center(), QEvent::MouseButtonRelease);
}

inline void postKey(const QWidget* widget, Qt::Key key)
{
    qt_handleKeyEvent(widget->window()->windowHandle(), QEvent::KeyPress, key, Qt::NoModifier,
                      QString(), false, 1);
}
