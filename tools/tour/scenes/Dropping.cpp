#include "intake/CommonData.h"
#include "intake/CreatorDropArea.h"
#include "scenes/Scenes.h"
#include "Stage.h"

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

    stage.hover(stage.find<CreatorDropArea>());
    stage.shoot(QStringLiteral("under-mouse"));

    // Another drop, on the square of the page, replaces the photos.
    const QStringList last = stage.photos().mid(stage.photos().size() - 2);
    stage.drop(last, stage.find<CreatorDropArea>());
    stage.check(CommonData::instance()->count() == last.size(),
                QStringLiteral("a second drop replaces the photos"));
    stage.restPointer();
    stage.shoot(QStringLiteral("portrait"));
}

void openWithoutPhotos(Stage& stage)
{
    stage.drop({}, stage.dropWindow());
    stage.waitFor([&stage] { return stage.page()->isVisible(); }, QStringLiteral("the page"));
    stage.restPointer();
    stage.shoot(QStringLiteral("page"));
    stage.drop(stage.photos(), stage.find<CreatorDropArea>());
    stage.check(CommonData::instance()->count() == stage.photos().size(),
                QStringLiteral("the empty page takes photos"));
}
