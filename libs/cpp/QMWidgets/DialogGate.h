#pragma once

#include <functional>
#include <QList>
#include <QObject>

namespace QMWidgets
{

/// Holds back the dialogs that open by themselves. The gate is shut while a mouse button is down or
/// a menu, a list or a palette is open, since a dialog would break that off, and while an event
/// lets others through in the middle of its work, since the dialog's event loop would hold that
/// up. Open windows and dialogs don't shut it.
///
/// Thread: the interface thread.
class DialogGate : public QObject
{
    Q_OBJECT

public:
    explicit DialogGate(QObject* parent = nullptr);

    bool isOpen() const;
    /// Calls `openDialog` from the event loop as soon as the gate is open. Several calls go through
    /// one after the other in their order, also while the dialog of an earlier one is open. The
    /// end of the program drops those that still wait.
    void whenOpen(const std::function<void()>& openDialog);
    /// App::notify() reports the end of each event: whatever shuts the gate ends in one.
    void eventEnded();

private:
    void letThrough();

    QList<std::function<void()>> m_waiting;
    bool m_isLettingThrough = false; // a call of letThrough() is in the event queue
};

} // namespace QMWidgets
