#include "scenes/Scenes.h"
#include "Stage.h"
#include "support/HttpServer.h"

#include <QCheckBox>
#include <QMenu>
#include <QMWidgets/UpdateCheck.h>
#include <QMWidgets/UpdateService.h>
#include <QPushButton>

using QMWidgets::App;

namespace
{

const QString kCheckedAtStart = QStringLiteral("checkupdates");
constexpr int kTimeLimit = 5 * 60000; // milliseconds: a busy machine takes its time

bool isCheckedAtStart()
{
    return App::app()->settingsValue(kCheckedAtStart, true).toBool();
}

/// Waits until the check that is under way has shown its outcome.
void waitForOutcome(Stage& stage)
{
    const auto* const check = App::app()->findChild<QMWidgets::UpdateCheck*>();
    stage.waitFor([check] { return !check->isRunning(); },
                  QStringLiteral("the outcome of the check"));
}

/// Chooses the menu's entry; `act` has to end the dialog that tells the outcome.
void withCheck(Stage& stage, const QString& outcome, const Stage::DialogAct& act)
{
    const auto choose = [&stage] {
        stage.withMenu(stage.find<QPushButton>(QStringLiteral("AppButton")), [&](QMenu* menu) {
            stage.chooseEntry(menu, QStringLiteral("Check Updates"));
        });
        waitForOutcome(stage);
    };
    stage.withDialogs(choose, outcome, {act});
}

/// What the check at the start shows, over the window that is open then.
void showNewsAtStart(Stage& stage)
{
    App::app()->setSettingsValue(QStringLiteral("LastUpdateCheck"), QStringLiteral("2001-01-01"));
    const auto start = [&stage] {
        App::app()->nop_cuos();
        waitForOutcome(stage);
    };
    stage.withDialogs(
        start, QStringLiteral("the news at the start"), {[&stage](QWidget* dialog) {
            stage.shootTogether(QStringLiteral("start"), {stage.dropWindow(), dialog});
            stage.clickButton(dialog, QStringLiteral("No"));
        }});
}

void switchCheckAtStart(Stage& stage, const QWidget* dialog)
{
    auto* const box = stage.find<QCheckBox>(dialog);
    const bool before = isCheckedAtStart();
    stage.press(box, Qt::Key_Space);
    stage.check(isCheckedAtStart() != before, QStringLiteral("the box switches at once"));
    stage.press(box, Qt::Key_Space);
    stage.check(isCheckedAtStart() == before, QStringLiteral("the box switches back"));
}

} // namespace

void checkUpdates(Stage& stage)
{
    // This program on this machine is all that is ever asked.
    HttpServer server(HttpServer::ok("!date!;;;9999-12-31"));
    App::app()->setUpdateService({{server.host()}, kTimeLimit});
    showNewsAtStart(stage);

    stage.dropPhotos();
    const int opened = stage.urls().urls().size();
    withCheck(stage, QStringLiteral("the newer version"), [&stage](QWidget* dialog) {
        stage.shoot(QStringLiteral("newer"), dialog);
        stage.shootTogether(QStringLiteral("page"), {stage.page(), dialog});
        switchCheckAtStart(stage, dialog);
        stage.clickButton(dialog, QStringLiteral("Yes"));
    });
    stage.check(stage.urls().urls().size() == opened + 1,
                QStringLiteral("the updates web page opens"));

    server.setAnswer(HttpServer::ok("!date!;;;2001-01-01"));
    withCheck(stage, QStringLiteral("the latest version"), [&stage](QWidget* dialog) {
        stage.shoot(QStringLiteral("latest"), dialog);
        stage.clickButton(dialog, QStringLiteral("No"));
    });

    App::app()->setUpdateService({{HttpServer::refusingHost()}, kTimeLimit});
    withCheck(stage, QStringLiteral("the error"), [&stage](QWidget* dialog) {
        stage.shoot(QStringLiteral("error"), dialog);
        stage.clickButton(dialog, QStringLiteral("Ok"));
    });
    App::app()->setUpdateService({});
}
