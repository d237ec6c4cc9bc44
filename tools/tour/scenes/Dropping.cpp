#include "intake/CommonData.h"
#include "intake/CreatorDropArea.h"
#include "scenes/Scenes.h"
#include "Stage.h"
#include <QMWidgets/DropWidget.h>

#include <QPushButton>

void dropPhotos(Stage& stage)
{
    stage.shoot(QStringLiteral("window"), stage.dropWindow());
    stage.hover(stage.find<QPushButton>(QStringLiteral("PushButton"), stage.dropWindow()));
    stage.shoot(QStringLiteral("open-button"), stage.dropWindow());

    stage.dropPhotos();
    stage.check(CommonData::instance()->count() == stage.photos().size(),
                QStringLiteral("all photos arrive"));
    stage.shoot(QStringLiteral("page"));

    // Another drop, on the square of the page, replaces the photos.
    const QStringList last = stage.photos().mid(stage.photos().size() - 2);
    stage.drop(last, stage.find<CreatorDropArea>());
    stage.check(CommonData::instance()->count() == last.size(),
                QStringLiteral("a second drop replaces the photos"));
    stage.shoot(QStringLiteral("portrait"));
}
