#pragma once

#include <functional>
#include <QObject>
#include <QTimer>

class QKeyEvent;
class QWidget;

namespace QMWidgets
{

/// Keeps the repeats of a held key from piling up where each press takes long: a repeat is dropped
/// while a former press is handled or its result isn't on the screen yet. So the key has no effect
/// any more once it is let go. Keys struck one by one all pass.
class RepeatGate : public QObject
{
public:
    /// The widget owns the gate. It hands all its key presses on to pass().
    explicit RepeatGate(QWidget* widget);

    /// Runs the handler, or drops the event. The handler may let events through, and may delete the
    /// widget.
    void pass(QKeyEvent* event, const std::function<void()>& handle);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isRepeat(const QKeyEvent& event) const;

    QTimer m_untilShown;
    int m_handlersUnderWay = 0;
    int m_releasedKey = 0;
    ulong m_releaseTime = 0;
};

} // namespace QMWidgets
