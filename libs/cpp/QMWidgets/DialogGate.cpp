#include "DialogGate.h"

#include "EventNesting.h"

#include <QApplication>

namespace QMWidgets
{

DialogGate::DialogGate(QObject* parent)
    : QObject(parent)
{
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] { m_waiting.clear(); });
}

bool DialogGate::isOpen() const
{
    // The one event is that of the caller.
    return EventNesting::depth() <= 1 && QApplication::mouseButtons() == Qt::NoButton &&
           !QApplication::activePopupWidget();
}

void DialogGate::whenOpen(const std::function<void()>& openDialog)
{
    m_waiting.append(openDialog);
    eventEnded();
}

void DialogGate::eventEnded()
{
    if (!m_waiting.isEmpty() && !m_isLettingThrough && isOpen()) {
        m_isLettingThrough = true;
        QMetaObject::invokeMethod(this, &DialogGate::letThrough, Qt::QueuedConnection);
    }
}

void DialogGate::letThrough()
{
    m_isLettingThrough = false;
    if (!m_waiting.isEmpty() && isOpen()) {
        m_waiting.takeFirst()();
    }
}

} // namespace QMWidgets
