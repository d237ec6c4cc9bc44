#include "BusyCursor.h"

namespace QMWidgets
{

BusyCursor::BusyCursor(QWidget* window)
    : m_window(window)
{
    if (m_window) {
        m_window->setCursor(Qt::BusyCursor);
    }
}

BusyCursor::~BusyCursor()
{
    if (m_window) {
        m_window->unsetCursor();
    }
}

} // namespace QMWidgets
