#include "flow/Operations.h"

#include "scenes/Scenes.h"
#include "Stage.h"

namespace
{

/// "RGB-Order" becomes "rgb-order", "Brightness, Contrast, Saturation" loses its commas too.
QString fileNameOf(const QString& operationName)
{
    QString name;
    for (const QChar letter : operationName.toLower()) {
        name += letter.isLetterOrNumber() ? letter : QLatin1Char('-');
    }
    return name.replace(QLatin1String("--"), QLatin1String("-"));
}

} // namespace

void showEachOperation(Stage& stage)
{
    stage.dropPhotos();
    for (const Operation& operation : operations()) {
        stage.addOperation(operation.name);
        stage.shoot(fileNameOf(operation.name));
        stage.removeOperation();
    }
}
