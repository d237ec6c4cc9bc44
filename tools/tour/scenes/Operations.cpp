#include "flow/Operations.h"

#include "FileNameOf.h"
#include "scenes/Scenes.h"
#include "scenes/SettingsSteps.h"
#include "Stage.h"

#include <QPushButton>

namespace
{

/// The one page with two faces: a text's controls were shown first.
void showLogoControls(Stage& stage)
{
    stage.chooseItem(boxWith(stage.page(), QStringLiteral("Image")), QStringLiteral("Image"));
    stage.shoot(QStringLiteral("watermark-image"));
    stage.click(stage.find<QPushButton>(QStringLiteral("WMRShrinkButton")));
    stage.shoot(QStringLiteral("watermark-expanded"));
}

} // namespace

void showEachOperation(Stage& stage)
{
    stage.dropPhotos();
    for (const Operation& operation : operations()) {
        stage.addOperation(operation.name);
        stage.shoot(fileNameOf(operation.name));
        if (operation.name == QLatin1String("Watermark")) {
            showLogoControls(stage);
        }
        stage.removeOperation();
    }
}
