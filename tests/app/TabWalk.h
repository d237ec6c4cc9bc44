#pragma once

#include <QList>

class QWidget;

/// Where Tab leads in a window that is shown and active: from the first place of the keyboard on,
/// until it comes round. Shift+Tab is pressed as often, and has to lead back the same way.
struct TabWalk {
    explicit TabWalk(QWidget* window);

    QList<QWidget*> forward;
    QList<QWidget*> back; ///< in forward's order, if all is well
};

/// The controls of a window that a user can press, turn or write in, now.
QList<QWidget*> controlsOf(QWidget* window);

/// True if an eye that reads a window line by line, from the leading side, comes from one control
/// to the next: to the side within a line, down to a next line, up to a next column, or to what
/// lies upon the first.
bool isReadingOrder(const QWidget* from, const QWidget* to);

/// Class and name of a widget, for a message.
QString nameForMessage(const QWidget* widget);
