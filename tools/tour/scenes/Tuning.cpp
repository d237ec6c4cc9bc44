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

    stage.addOperation(QStringLiteral("Histogram optimizer"));
    stage.addOperation(QStringLiteral("Crop"));
    stage.setSlider(QStringLiteral("Top:"), 8);
    stage.setSlider(QStringLiteral("Buttom:"), 12);
    stage.addOperation(QStringLiteral("Vignetting"));
    stage.setSlider(QStringLiteral("Opacity:"), 45);
    // A closing menu left the second tab lit under the mouse: a click takes that light along.
    stage.selectOperation(1);
    stage.selectOperation(0);
    stage.restPointer();
    stage.shoot(QStringLiteral("in-a-flow"));

    stage.setSlider(QStringLiteral("Saturation:"), 0);
    stage.setSlider(QStringLiteral("Brightness:"), -127);
    stage.shoot(QStringLiteral("extremes"));
}
