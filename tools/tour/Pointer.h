#pragma once

#include <QPoint>

class QWidget;

/// The mouse. Its events enter the program where the system's own do, at the window, so that hover,
/// grabs and popups go their usual way. Places are relative to the widget; without one it is the
/// widget's middle.
class Pointer
{
public:
    void moveTo(QWidget* widget, const QPoint& place);
    void moveTo(QWidget* widget);
    /// A press that opens a menu or a dialog comes back when that has closed.
    void press(QWidget* widget, const QPoint& place);
    void release(QWidget* widget, const QPoint& place);
    void click(QWidget* widget, const QPoint& place);
    void click(QWidget* widget);
    /// Presses and moves in small steps, as a hand does; the button stays down.
    void pull(QWidget* widget, const QPoint& from, const QPoint& to);
    /// Where it is, relative to a widget.
    QPoint placeIn(const QWidget* widget) const;

private:
    QPoint m_place; ///< global; the system's own can't leave the screen
};
