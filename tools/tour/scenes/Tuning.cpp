#include "flow/BaseNode.h"
#include "scenes/Scenes.h"
#include "Stage.h"

void tuneOperation(Stage& stage)
{
    stage.dropPhotos();
    stage.addOperation(QStringLiteral("Brightness, Contrast, Saturation"));
    const QImage before = stage.result();
    stage.setSlider(QStringLiteral("Saturation:"), 65);
    stage.setSlider(QStringLiteral("Contrast:"), 24);
    stage.setSlider(QStringLiteral("Brightness:"), 12);
    stage.check(stage.result() != before, QStringLiteral("sliders change the result"));
    stage.shoot(QStringLiteral("sliders"));

    stage.setSlider(QStringLiteral("Saturation:"), 0);
    stage.setSlider(QStringLiteral("Brightness:"), -127);
    stage.shoot(QStringLiteral("extremes"));
}
