#include "scenes/Scenes.h"
#include "Stage.h"

#include <QTimer>

namespace
{

const QString kOn = QStringLiteral("AutoReminder");
const QString kCount = QStringLiteral("AutoReminderCount");
constexpr int kDueCount = 10;      // for the program's own period and for the one of the page
constexpr int kBeyondDelay = 5000; // milliseconds; reminders come after about 4000

struct Form {
    const char* picture;
    void (QMWidgets::App::*start)();
    const char* answer;
};

void showForm(Stage& stage, const Form& form)
{
    QMWidgets::App* const app = QMWidgets::App::app();
    app->setSettingsValue(kOn, true);
    app->setSettingsValue(kCount, kDueCount);
    bool closed = false;
    stage.withDialogs(
        [&] {
            (app->*form.start)();
            stage.waitFor([&closed] { return closed; }, QLatin1String(form.picture));
        },
        QLatin1String(form.picture), {[&](QWidget* dialog) {
            stage.shoot(QLatin1String(form.picture), dialog);
            stage.shootTogether(form.picture + QStringLiteral("-page"), {stage.page(), dialog});
            stage.clickButton(dialog, QLatin1String(form.answer));
            closed = true;
        }});
}

/// Photos have an occasion of their own some seconds after they are dropped, here and in the scene
/// before. It would open a second reminder. Timers come in the order in which they are due, so
/// after this one all have passed, on a busy machine too, and none had an effect.
void passOccasionsOfPhotos(Stage& stage)
{
    bool havePassed = false;
    QTimer timer;
    timer.setSingleShot(true);
    QObject::connect(&timer, &QTimer::timeout, [&havePassed] { havePassed = true; });
    timer.start(kBeyondDelay);
    stage.waitFor([&havePassed] { return havePassed; }, QStringLiteral("the photos' occasion"));
}

} // namespace

void showReminders(Stage& stage)
{
    stage.dropPhotos();
    passOccasionsOfPhotos(stage);
    const Form forms[] = {{"rate", &QMWidgets::App::slotCallRateReminder, "&Maybe Later"},
                          {"tell", &QMWidgets::App::slotCallTellReminder, "&Maybe Later"},
                          {"join", &QMWidgets::App::slotCallJoinReminder, "&Never Ask Me Again"}};
    for (const Form& form : forms) {
        showForm(stage, form);
    }
    stage.check(!QMWidgets::App::app()->settingsValue(kOn, true).toBool(),
                QStringLiteral("the reminders end for good"));
}
