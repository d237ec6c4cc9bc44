#include "intake/CreatorDropArea.h"
#include "intake/IconWidget.h"
#include "preview/ImagePreview.h"
#include "slides/DraggedPhotos.h"
#include "slides/SlideScenes.h"
#include "Stage.h"

#include <QAbstractItemView>
#include <QPushButton>

void slideOfDropping(SlideSet& set)
{
    set.take(draggedOnto(set.stage.dropWindow(), set.photos));
}

void slideOfPage(SlideSet& set)
{
    // The photo and its result have to differ at a glance.
    openWithFlow(
        set, {{"Grayscale", QString()}, {"Vignetting", QStringLiteral("<Opacity>80</Opacity>")}});
    set.take(Shot({set.stage.page()})
                 .mark(set.stage.find<CreatorDropArea>())
                 .mark(set.stage.find<ImagePreview>()));
}

void slideOfStepping(SlideSet& set)
{
    Stage& stage = set.stage;
    openWithFlow(set, {strongerColours()});
    auto* const modeButton = stage.find<QPushButton>(QStringLiteral("IconViewButton"));
    stage.click(modeButton);
    auto* const strip = stage.find<IconWidget>();
    stage.waitFor([strip] { return strip->isVisible(); }, QStringLiteral("the strip"));
    auto* const list = stage.find<QAbstractItemView>(QStringLiteral("CreatorIconsView"));
    const QRect row = list->visualRect(list->model()->index(2, 0));
    stage.pointer().click(list->viewport(), row.center());

    auto* const preview = stage.find<ImagePreview>();
    auto* const next = stage.find<QPushButton>(QStringLiteral("NextImageButton"), preview);
    auto* const previous = stage.find<QPushButton>(QStringLiteral("PreviousImageButton"), preview);
    stage.hover(preview);
    stage.waitFor([next] { return next->isVisible(); }, QStringLiteral("the arrows"));
    stage.hover(next);
    set.take(Shot({stage.page()})
                 .mark(modeButton)
                 .mark(list->viewport(), row)
                 .mark(previous)
                 .mark(next)
                 .light(strip)
                 .light(preview)
                 .pointAtMiddle(next));
}
