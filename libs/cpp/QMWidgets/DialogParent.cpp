#include "DialogParent.h"

#include "App.h"

namespace QMWidgets
{

QWidget* dialogParent()
{
    QWidget* window = QApplication::activeWindow();
    if (!window) {
        return nullptr;
    }
    while (window && !window->isVisible()) {
        window = window->parentWidget();
    }
    if (window) {
        return window->window();
    }
    QWidget* const mainWindow = App::app()->mainWidget();
    return mainWindow && mainWindow->isVisible() ? mainWindow : nullptr;
}

} // namespace QMWidgets
