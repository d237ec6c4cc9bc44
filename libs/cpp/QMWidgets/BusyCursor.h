#pragma once

#include <QPointer>
#include <QWidget>

namespace QMWidgets
{

/// Shows over a window, as long as this lives, that the program waits for something while it can be
/// used. Other windows, such as dialogs that open meanwhile, keep their cursors. The window may be
/// null, may go earlier, and has no cursor of its own.
class BusyCursor
{
public:
    explicit BusyCursor(QWidget* window);
    ~BusyCursor();

private:
    Q_DISABLE_COPY(BusyCursor)

    QPointer<QWidget> m_window;
};

} // namespace QMWidgets
