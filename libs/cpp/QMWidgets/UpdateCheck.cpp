#include "UpdateCheck.h"

#include "App.h"
#include "AppUpdateDialog.h"
#include "DialogGate.h"
#include "DialogParent.h"
#include "MMessageBox.h"
#include "UpdateRequest.h"
#include "UpdateSettings.h"

#include <QPointer>
#include <utility>

namespace QMWidgets
{

namespace
{

constexpr int kDaysBetweenChecks = 6;

/// A window for a dialog to lie upon. Not simply the main window: that is hidden at first, and a
/// dialog that belongs to no visible window can get lost behind the one that it blocks.
QWidget* frontWindow()
{
    if (QWidget* const active = dialogParent()) {
        return active;
    }
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* const window : windows) {
        const bool isPlain =
            window->windowType() == Qt::Window || window->windowType() == Qt::Dialog;
        if (isPlain && window->isVisible()) {
            return window;
        }
    }
    return nullptr;
}

void showDialog(UpdateState state)
{
    // A parent that goes meanwhile takes the dialog with it.
    const QPointer<AppUpdateDialog> dialog =
        new AppUpdateDialog(state == UpdateState::Newer, frontWindow());
    dialog->exec();
    delete dialog;
}

void showError()
{
    QWidget* const active = dialogParent();
    MMessageBox::critical(
        active ? active : App::app()->mainWidget(),
        QCoreApplication::applicationName() + UpdateCheck::tr(" Updates Check Error"),
        UpdateCheck::tr(
            "<H3>No internet connection is available,<br>please, check the firewall settings "
            "and make sure that<br>you are not using the the internet connection via the proxy "
            "server.</H3>"), // sic
        QMessageBox::Ok);
}

} // namespace

UpdateCheck::UpdateCheck(DialogGate* gate, QObject* parent)
    : QObject(parent),
      m_gate(gate)
{
    connect(qApp, &QCoreApplication::aboutToQuit, this, &UpdateCheck::breakOff);
}

void UpdateCheck::runForUser()
{
    m_isForUser = true;
    if (!m_outcome) {
        m_busyCursor.emplace(App::app()->mainWidget());
        ask();
    }
}

void UpdateCheck::runQuietly()
{
    const QDate last = UpdateSettings::lastCheck();
    if (!last.isValid()) {
        UpdateSettings::setLastCheck(QDate::currentDate());
    } else if (isDue(last, QDate::currentDate())) {
        m_isForStart = true;
        ask();
    }
}

bool UpdateCheck::isDue(const QDate& last, const QDate& today)
{
    return last.daysTo(today) >= kDaysBetweenChecks;
}

void UpdateCheck::ask()
{
    if (isRunning()) {
        return;
    }
    m_request = new UpdateRequest(m_service, this);
    connect(m_request, &UpdateRequest::answered, this, &UpdateCheck::takeAnswer);
    m_request->start();
}

void UpdateCheck::takeAnswer(const QString& answer)
{
    std::exchange(m_request, nullptr)->deleteLater();
    m_busyCursor.reset();
    const UpdateState state = readUpdateAnswer(answer, App::app()->buildDate());
    if (m_isForUser || state == UpdateState::Newer) {
        m_outcome = state;
        m_gate->whenOpen([this] { showOutcome(); });
    } else {
        end(state);
    }
}

void UpdateCheck::showOutcome()
{
    const UpdateState state = *m_outcome;
    if (state == UpdateState::Unknown) {
        showError();
    } else {
        showDialog(state);
    }
    m_outcome.reset();
    end(state);
}

void UpdateCheck::end(UpdateState state)
{
    m_isForUser = false;
    if (std::exchange(m_isForStart, false) && state != UpdateState::Unknown) {
        UpdateSettings::setLastCheck(QDate::currentDate());
    }
}

void UpdateCheck::breakOff()
{
    delete std::exchange(m_request, nullptr);
    m_busyCursor.reset();
    m_outcome.reset();
    end(UpdateState::Unknown);
}

} // namespace QMWidgets
