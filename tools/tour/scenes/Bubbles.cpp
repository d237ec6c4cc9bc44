#include "flow/NodesTabBar.h"
#include "flow/TabLabel.h"
#include "preview/BubblePreview.h"
#include "scenes/Scenes.h"
#include "Stage.h"

#include <QAbstractAnimation>
#include <QPushButton>

void showBubbles(Stage& stage)
{
    stage.dropPhotos();
    stage.addOperation(QStringLiteral("Binarization"));
    stage.addOperation(QStringLiteral("Vignetting"));
    auto* const tabs = stage.find<NodesTabBar>();
    if (!tabs) {
        return;
    }
    for (int i = 0; i < tabs->count(); ++i) {
        QWidget* const label = tabs->tabButton(i, QTabBar::LeftSide);
        stage.hover(label);
        auto* const button =
            stage.find<QPushButton>(QStringLiteral("ThumbnailPreviewButton"), label);
        auto* const bubble = stage.find<BubblePreview>(label);
        if (!button || !bubble ||
            !stage.check(button->isVisible(), QStringLiteral("a tab shows its preview button"))) {
            return;
        }
        stage.shoot(QStringLiteral("button"));
        stage.click(button);
        stage.waitFor(
            [bubble] {
                const QAbstractAnimation* const flight = bubble->showAnimation();
                return bubble->isVisible() && flight &&
                       flight->state() == QAbstractAnimation::Stopped;
            },
            QStringLiteral("the bubble"));
        stage.shootTogether(QStringLiteral("bubble"), {stage.page(), bubble});
        // A press is enough, wherever it falls: here on the free place of the bar.
        stage.pointer().click(tabs, tabs->rect().center());
        stage.check(!bubble->isVisible(), QStringLiteral("a click closes the bubble"));
    }
}
