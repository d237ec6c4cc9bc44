#include "DialogParent.h"

#include <QApplication>
#include <QWidget>

namespace QMWidgets
{

QWidget* dialogParent()
{
    QWidget* window = QApplication::activeWindow();
    while (window && !window->isVisible()) {
        window = window->parentWidget();
    }
    return window ? window->window() : nullptr;
}

} // namespace QMWidgets
