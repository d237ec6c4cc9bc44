#include "scenes/Scenes.h"
#include "Stage.h"

#include <QMenu>
#include <QPushButton>

namespace
{

/// Presses a social button and looks for the address it opens.
void pressSocial(Stage& stage, const QWidget* dialog, const char* button, const char* address)
{
    auto* const social = stage.find<QPushButton>(QLatin1String(button), dialog);
    stage.hover(social);
    const int before = stage.urls().urls().size();
    stage.click(social);
    const QList<QUrl>& opened = stage.urls().urls();
    stage.check(opened.size() == before + 1 &&
                    opened.last().toString().contains(QLatin1String(address)),
                QLatin1String(button) + QStringLiteral(" opens its address"));
}

void showAbout(Stage& stage, QWidget* dialog)
{
    stage.shoot(QStringLiteral("about"), dialog);
    stage.shootTogether(QStringLiteral("about-page"), {stage.page(), dialog});
    const QSize size = dialog->size();
    stage.clickButton(dialog, QStringLiteral("&Legal Notices"));
    stage.shoot(QStringLiteral("legal"), dialog);
    stage.check(dialog->size() == size, QStringLiteral("the notices change no size"));
    stage.clickButton(dialog, QStringLiteral("&Hide"));
    stage.clickButton(dialog, QStringLiteral("&Ok"));
}

} // namespace

void showAppDialogs(Stage& stage)
{
    stage.dropPhotos();
    stage.withDialog(stage.find<QPushButton>(QStringLiteral("ShareButton")),
                     QStringLiteral("the share dialog"), [&stage](QWidget* dialog) {
                         stage.shoot(QStringLiteral("share"), dialog);
                         pressSocial(stage, dialog, "EmailShareButton", "mailto:");
                         stage.shoot(QStringLiteral("shared"), dialog);
                         stage.clickButton(dialog, QStringLiteral("&Close"));
                     });
    stage.withDialog(stage.find<QPushButton>(QStringLiteral("JoinButton")),
                     QStringLiteral("the join dialog"), [&stage](QWidget* dialog) {
                         stage.shoot(QStringLiteral("join"), dialog);
                         pressSocial(stage, dialog, "TwitterJoinButton", "social=twitter");
                         stage.clickButton(dialog, QStringLiteral("&Close"));
                     });
    stage.withDialogs(
        [&stage] {
            stage.withMenu(
                stage.find<QPushButton>(QStringLiteral("AppButton")),
                [&stage](QMenu* menu) { stage.chooseEntry(menu, QStringLiteral("About")); });
        },
        QStringLiteral("the about box"), {[&stage](QWidget* dialog) {
            showAbout(stage, dialog);
        }});
}
