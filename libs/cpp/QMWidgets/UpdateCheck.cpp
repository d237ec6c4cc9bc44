#include "UpdateCheck.h"

#include "App.h"
#include "AppUpdateDialog.h"
#include "MMessageBox.h"
#include "UpdateSettings.h"

#include <QTimer>
#include <utility>

namespace QMWidgets
{

namespace
{

constexpr int kDaysBetweenChecks = 6;
constexpr int kPause = 1000; // milliseconds until it is looked again whether the user is free

/// A window for a dialog to lie upon. Not simply the main window: that is hidden at first, and a
/// dialog that belongs to no visible window can get lost behind the one that it blocks.
QWidget* frontWindow()
{
    if (QWidget* const active = QApplication::activeWindow()) {
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

} // namespace

UpdateCheck::UpdateCheck(QObject* parent)
    : QObject(parent)
{
}

void UpdateCheck::runForUser()
{
    if (m_isAsking) {
        m_userWaits = true;
        return;
    }
    const std::optional<UpdateState> state = ask();
    if (state) {
        tell(*state);
    }
}

void UpdateCheck::runQuietly()
{
    // Inside another event, such as a drop that is being worked on, the wait for the answer would
    // hold that up.
    if (m_isAsking || !App::isUserFree()) {
        QTimer::singleShot(kPause, this, &UpdateCheck::runQuietly);
        return;
    }
    const QDate last = UpdateSettings::lastCheck();
    if (!last.isValid()) {
        UpdateSettings::setLastCheck(QDate::currentDate());
        return;
    }
    if (!isDue(last, QDate::currentDate())) {
        return;
    }
    const std::optional<UpdateState> state = ask();
    if (!state) {
        return;
    }
    if (std::exchange(m_userWaits, false)) {
        tell(*state);
    } else if (*state == UpdateState::Newer) {
        m_newsWaits = true;
        showNews();
        return;
    }
    if (*state != UpdateState::Unknown) {
        UpdateSettings::setLastCheck(QDate::currentDate());
    }
}

bool UpdateCheck::isDue(const QDate& last, const QDate& today)
{
    return last.daysTo(today) >= kDaysBetweenChecks;
}

/// Nothing comes out if the program is being closed.
std::optional<UpdateState> UpdateCheck::ask()
{
    m_isAsking = true;
    m_userWaits = false;
    const std::optional<QString> answer = fetchUpdateAnswer(m_service);
    m_isAsking = false;
    if (!answer) {
        return std::nullopt;
    }
    return readUpdateAnswer(*answer, App::app()->buildDate());
}

void UpdateCheck::tell(UpdateState state)
{
    m_newsWaits = false;
    if (state == UpdateState::Unknown) {
        MMessageBox::critical(
            App::app()->mainWidget(),
            QCoreApplication::applicationName() + tr(" Updates Check Error"),
            tr("<H3>No internet connection is available,<br>please, check the firewall settings "
               "and make sure that<br>you are not using the the internet connection via the proxy "
               "server.</H3>"), // sic
            QMessageBox::Ok);
        return;
    }
    AppUpdateDialog dialog(state == UpdateState::Newer, frontWindow());
    dialog.exec();
}

/// Tells what a quiet check found, as soon as the user is free and unless he has asked and been
/// told in the meantime. Either way the check counts as made.
void UpdateCheck::showNews()
{
    if (!App::isUserFree()) {
        QTimer::singleShot(kPause, this, &UpdateCheck::showNews);
        return;
    }
    if (m_newsWaits) {
        tell(UpdateState::Newer);
    }
    UpdateSettings::setLastCheck(QDate::currentDate());
}

} // namespace QMWidgets
