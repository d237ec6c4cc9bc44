#include "flow/BaseNode.h"
#include "scenes/Scenes.h"
#include "Stage.h"

void orderOperations(Stage& stage)
{
    stage.dropPhotos();
    stage.addOperation(QStringLiteral("Binarization"));
    stage.addOperation(QStringLiteral("Brightness, Contrast, Saturation"));
    stage.addOperation(QStringLiteral("RGB-Order"));
    const QImage before = stage.result();
    stage.dragOperation(0, 1, [&stage] { stage.shoot(QStringLiteral("drag")); });
    stage.dragOperation(1, 2, [] {});
    stage.check(stage.result() != before, QStringLiteral("the order matters"));
    stage.shoot(QStringLiteral("ordered"));

    stage.selectOperation(2);
    const QImage whole = stage.result();
    stage.switchOperation();
    stage.check(stage.result() != whole, QStringLiteral("an operation that is off does nothing"));
    stage.shoot(QStringLiteral("off"));
    const QImage without = stage.result();
    stage.removeOperation();
    stage.check(stage.result() == without, QStringLiteral("a removed one does nothing either"));
    stage.shoot(QStringLiteral("removed"));
}
