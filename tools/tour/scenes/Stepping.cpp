#include "intake/CommonData.h"
#include "intake/Creator.h"
#include "intake/CreatorDropArea.h"
#include "intake/IconWidget.h"
#include "preview/ImagePreview.h"
#include "scenes/Scenes.h"
#include "Stage.h"

#include <QAbstractItemView>
#include <QPushButton>

namespace
{

void expectPhoto(Stage& stage, int index)
{
    stage.check(CommonData::instance()->currentIndex() == index,
                QStringLiteral("photo %1 is shown").arg(index + 1));
}

/// Clicks a step button of a square, which shows it while the mouse is over it.
void stepBy(Stage& stage, QWidget* square, const QString& buttonName)
{
    stage.hover(square);
    auto* const button = stage.find<QPushButton>(buttonName, square);
    if (button && stage.waitFor([button] { return button->isVisible(); },
                                QStringLiteral("the mouse shows ") + buttonName)) {
        stage.click(button);
    }
}

void stepInStrip(Stage& stage)
{
    auto* const modeButton = stage.find<QPushButton>(QStringLiteral("IconViewButton"));
    auto* const strip = stage.find<IconWidget>();
    stage.click(modeButton);
    if (!stage.waitFor([strip] { return strip->isVisible(); }, QStringLiteral("the strip"))) {
        return;
    }
    auto* const list = stage.find<QAbstractItemView>(QStringLiteral("CreatorIconsView"));
    const QModelIndex second = list->model()->index(1, 0);
    stage.pointer().click(list->viewport(), list->visualRect(second).center());
    expectPhoto(stage, 1);
    stage.press(list, Qt::Key_Down);
    expectPhoto(stage, 2);
    stage.shoot(QStringLiteral("strip"));
    stage.click(modeButton);
    stage.check(!strip->isVisible(), QStringLiteral("the strip goes"));
}

} // namespace

void stepThroughPhotos(Stage& stage)
{
    stage.dropPhotos();
    stage.addOperation(QStringLiteral("Brightness, Contrast, Saturation"));
    auto* const source = stage.find<CreatorDropArea>();
    auto* const preview = stage.find<ImagePreview>();

    stepBy(stage, source, QStringLiteral("NextImageButton"));
    expectPhoto(stage, 1);
    stage.shoot(QStringLiteral("source"));
    stepBy(stage, preview, QStringLiteral("NextImageButton"));
    expectPhoto(stage, 2);
    stage.shoot(QStringLiteral("preview"));
    stepBy(stage, preview, QStringLiteral("PreviousImageButton"));
    stepBy(stage, preview, QStringLiteral("PreviousImageButton"));
    stepBy(stage, preview, QStringLiteral("PreviousImageButton"));
    expectPhoto(stage, stage.photos().size() - 1);
    stage.shoot(QStringLiteral("transparent"));
    stepInStrip(stage);
}
