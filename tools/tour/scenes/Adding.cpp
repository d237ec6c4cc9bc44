#include "flow/Operations.h"
#include "scenes/Scenes.h"
#include "Stage.h"

#include <QMenu>
#include <QPushButton>

void addOperations(Stage& stage)
{
    stage.dropPhotos();
    auto* const addButton = stage.find<QPushButton>(QStringLiteral("PushButtonAdd"));
    stage.withMenu(addButton, [&stage](QMenu* menu) {
        stage.check(menu->actions().size() == operations().size(),
                    QStringLiteral("the menu names each operation"));
        stage.pointer().moveTo(menu, menu->actionGeometry(menu->actions().first()).center());
        stage.shootTogether(QStringLiteral("menu"), {stage.page(), menu});
    });

    stage.addOperation(QStringLiteral("Brightness, Contrast, Saturation"));
    stage.shoot(QStringLiteral("first"));
    const QImage before = stage.result();
    stage.addOperation(QStringLiteral("Grayscale"));
    stage.check(stage.result() != before, QStringLiteral("a second operation changes the result"));
    stage.shoot(QStringLiteral("second"));

    for (const Operation& operation : operations()) {
        stage.addOperation(operation.name);
    }
    stage.shoot(QStringLiteral("many"));
}
