#include "RepeatGate.h"

#include <QKeyEvent>
#include <QPointer>
#include <QWidget>

namespace QMWidgets
{

RepeatGate::RepeatGate(QWidget* widget)
    : QObject(widget)
{
    // It times out once nothing else is left to do: after the painting.
    m_untilShown.setSingleShot(true);
    m_untilShown.setInterval(0);
    widget->installEventFilter(this);
}

void RepeatGate::pass(QKeyEvent* event, const std::function<void()>& handle)
{
    if (isRepeat(*event) && (m_handlersUnderWay > 0 || m_untilShown.isActive())) {
        event->accept();
        return;
    }
    ++m_handlersUnderWay;
    const QPointer<RepeatGate> self(this);
    handle();
    if (self && --m_handlersUnderWay == 0) {
        m_untilShown.start();
    }
}

bool RepeatGate::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyRelease) {
        const auto* const release = static_cast<QKeyEvent*>(event);
        m_releasedKey = release->key();
        m_releaseTime = release->timestamp();
    }
    return QObject::eventFilter(watched, event);
}

bool RepeatGate::isRepeat(const QKeyEvent& event) const
{
    // X11 sends a release and a press at the same time. Qt takes them for a repeat only if both
    // have arrived when it looks.
    return event.isAutoRepeat() || (event.timestamp() != 0 && event.key() == m_releasedKey &&
                                    event.timestamp() == m_releaseTime);
}

} // namespace QMWidgets
