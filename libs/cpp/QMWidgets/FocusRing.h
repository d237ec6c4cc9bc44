#pragma once

class QWidget;

namespace QMWidgets
{

/// Draws the ring around a widget that paints itself, above all else, if the keyboard is there and
/// has led the user to it or anywhere else in the window: a click leaves the picture as it is. Its
/// colour is the outline that the style sheet sets for the focused widget. Call it from paintEvent,
/// of the widget or of another one that lies on it: the canvas.
void drawFocusRing(QWidget* widget, QWidget* canvas);
inline void drawFocusRing(QWidget* widget)
{
    drawFocusRing(widget, widget);
}

} // namespace QMWidgets
