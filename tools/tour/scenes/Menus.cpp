#include "scenes/Scenes.h"
#include "Stage.h"

#include <QMenu>
#include <QPushButton>

namespace
{

struct MenuButton {
    const char* name;
    const char* picture;
};

void shootMenu(Stage& stage, QPushButton* button, const QString& picture)
{
    stage.withMenu(button, [&](QMenu* menu) {
        stage.press(menu, Qt::Key_Down);
        stage.shootTogether(picture, {stage.page(), menu});
        stage.shoot(picture + QStringLiteral("-alone"), menu);
    });
}

} // namespace

void showMenus(Stage& stage)
{
    stage.dropPhotos();
    const MenuButton buttons[] = {
        {"MoreButton", "more"}, {"AppButton", "app"}, {"PushButtonAdd", "add"}};
    for (const MenuButton& button : buttons) {
        shootMenu(stage, stage.find<QPushButton>(QLatin1String(button.name)),
                  QLatin1String(button.picture));
    }
    // The flows' button shares its object name with others; its menu has one of its own.
    auto* const flows = stage.find<QMenu>(QStringLiteral("FavoritesMenu"));
    if (flows) {
        shootMenu(stage, qobject_cast<QPushButton*>(flows->parentWidget()),
                  QStringLiteral("flows"));
    }

    stage.withMenu(stage.find<QPushButton>(QStringLiteral("AppButton")), [&stage](QMenu* menu) {
        stage.chooseEntry(menu, QStringLiteral("Support Page"));
    });
    stage.check(!stage.urls().urls().isEmpty(), QStringLiteral("the support page opens"));
}
