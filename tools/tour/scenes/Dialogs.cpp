#include "flow/FavoritesDeleteDlg.h"
#include "scenes/Scenes.h"
#include "Stage.h"
#include <QMWidgets/InputDialog.h>
#include <QMWidgets/MMessageBox.h>

#include <QFileDialog>

namespace
{

void shootOpen(Stage& stage, const QString& name, QWidget& window)
{
    window.show();
    stage.waitFor([&window] { return window.isActiveWindow(); },
                  QStringLiteral("the window takes the keyboard"));
    stage.shoot(name, &window);
}

} // namespace

void showDialogs(Stage& stage)
{
    QMWidgets::MMessageBox question(
        4, QStringLiteral("Tessarin"),
        QStringLiteral("A flow with this name exists. Do you want to replace it?"),
        QMessageBox::Yes | QMessageBox::No, nullptr);
    shootOpen(stage, QStringLiteral("question"), question);

    QMWidgets::MMessageBox warning(3, QStringLiteral("Warning"),
                                   QStringLiteral("Can not open the image file:logo.png"),
                                   QMessageBox::Ok, nullptr);
    shootOpen(stage, QStringLiteral("warning"), warning);

    QMWidgets::InputDialog input(QStringLiteral("Name of the flow:"), nullptr, nullptr, {}, 1);
    shootOpen(stage, QStringLiteral("input"), input);

    FavoritesDeleteDlg favorites(nullptr);
    favorites.addFlow(QStringLiteral("portrait.flow"));
    favorites.addFlow(QStringLiteral("holiday.flow"));
    shootOpen(stage, QStringLiteral("delete"), favorites);

    // Where the desktop has no file dialog of its own, the toolkit's is dressed too.
    QFileDialog files(nullptr, QString(), stage.photos().value(0).section(QLatin1Char('/'), 0, -2));
    files.setOption(QFileDialog::DontUseNativeDialog);
    shootOpen(stage, QStringLiteral("files"), files);
}
