#include "App.h"
#include "DialogGate.h"
#include "DialogParent.h"
#include "JoinReminderDialog.h"
#include "RateReminderDialog.h"
#include "ReminderType.h"
#include "TellReminderDialog.h"

#include <QRandomGenerator>
#include <QTime>
#include <QTimer>

#include <limits>

namespace QMWidgets
{

namespace
{

const QString kAutoReminder = QStringLiteral("AutoReminder");
const QString kAutoReminderCount = QStringLiteral("AutoReminderCount");

ReminderDialog* makeReminder(int type, QWidget* parent)
{
    switch (type) {
    case RateReminder:
        return new RateReminderDialog(parent);
    case TellReminder:
        return new TellReminderDialog(parent);
    default:
        return new JoinReminderDialog(parent);
    }
}

/// Runs a reminder and returns its answer.
int remind(int type, QWidget* parent)
{
    // A parent that goes meanwhile takes the dialog with it.
    const QPointer<ReminderDialog> dialog = makeReminder(type, parent);
    dialog->exec();
    const int answer = dialog ? dialog->answer() : int(ReminderDialog::NoAnswer);
    delete dialog;
    return answer;
}

int countAfter(int count)
{
    return count == std::numeric_limits<int>::max() || count + 1 < 0 ? 1 : count + 1;
}

} // namespace

void App::scheduleReminder(int period, int types)
{
    QRandomGenerator random(quint32(QTime::currentTime().msec()));
    m_reminderType = chooseReminderType(types, random.generate());
    m_reminderPeriod = period;
    startReminderDelay();
}

void App::startReminderDelay()
{
    QTimer::singleShot(m_reminderDelay, this, &App::slotCallRateReminderInternal);
}

void App::slotCallRateReminder()
{
    m_reminderType = RateReminder;
    startReminderDelay();
}

void App::slotCallTellReminder()
{
    m_reminderType = TellReminder;
    startReminderDelay();
}

void App::slotCallJoinReminder()
{
    m_reminderType = JoinReminder;
    startReminderDelay();
}

void App::slotCallRateReminderInternal()
{
    if (!settingsValue(kAutoReminder, true).toBool()) {
        return;
    }
    const int count = settingsValue(kAutoReminderCount, 1).toInt();
    if (m_reminderPeriod > 0 && count % m_reminderPeriod == 0) {
        if (!m_dialogGate->isOpen()) {
            m_dialogGate->whenOpen([this] { slotCallRateReminderInternal(); });
            return;
        }
        const int answer = remind(m_reminderType, dialogParent());
        if (answer == ReminderDialog::Now) {
            slotRateApp();
        }
        if (answer == ReminderDialog::Now || answer == ReminderDialog::NeverAskMeAgain) {
            setSettingsValue(kAutoReminder, false);
        }
    }
    setSettingsValue(kAutoReminderCount, countAfter(count));
}

} // namespace QMWidgets
