#include "flow/FavoritesDeleteDlg.h"
#include "scenes/Scenes.h"
#include "Stage.h"
#include <QMWidgets/InputDialog.h>
#include <QMWidgets/MMessageBox.h>

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
    shootOpen(stage, QStringLiteral("delete"), favorites);
}
