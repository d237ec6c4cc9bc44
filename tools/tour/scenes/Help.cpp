#include "scenes/Scenes.h"
#include "Stage.h"

#include <QMWidgets/HelpViewArea.h>
#include <QPushButton>

namespace
{

const QString kNever = QStringLiteral("NeverShowItAgain");

bool isNever()
{
    return QMWidgets::App::app()->settingsValue(kNever, false).toBool();
}

QPushButton* numberOf(Stage& stage, const QWidget* dialog, int place)
{
    const auto numbers = dialog->findChildren<QPushButton*>(QStringLiteral("HelpSlideButton"));
    return stage.check(numbers.size() == 12, QStringLiteral("the help has twelve slides"))
               ? numbers.at(place)
               : nullptr;
}

} // namespace

void showHelp(Stage& stage)
{
    QMWidgets::App::app()->setSettingsValue(kNever, false);
    bool closed = false;
    stage.withDialogs(
        [&] {
            stage.dropPhotos();
            stage.waitFor([&closed] { return closed; }, QStringLiteral("the help opens by itself"));
        },
        QStringLiteral("the help"), {[&](QWidget* dialog) {
            stage.shoot(QStringLiteral("by-itself"), dialog);
            stage.shootTogether(QStringLiteral("page"), {stage.page(), dialog});
            QPushButton* const fifth = numberOf(stage, dialog, 4);
            stage.click(fifth);
            stage.check(fifth && fifth->isChecked(), QStringLiteral("a number shows its slide"));
            stage.shoot(QStringLiteral("chosen"), dialog);
            stage.clickButton(dialog, QStringLiteral("&Never show on start"));
            closed = true;
        }});
    stage.check(isNever(), QStringLiteral("the help stays away from now on"));

    stage.withDialog(stage.find<QPushButton>(QStringLiteral("IntroButton")),
                     QStringLiteral("the help by hand"), [&stage](QWidget* dialog) {
                         const QPushButton* const fifth = numberOf(stage, dialog, 4);
                         stage.check(fifth && fifth->isChecked(),
                                     QStringLiteral("the help goes on from the last slide"));
                         stage.shoot(QStringLiteral("by-hand"), dialog);
                         stage.clickButton(dialog, QStringLiteral("&Close"));
                     });
}
