#include "slides/DrawSlides.h"

#include "app/HelpSlides.h"
#include "slides/SlidePainter.h"
#include "slides/SlideScenes.h"
#include "Stage.h"
#include <QMWidgets/TranslationsManager.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace
{

constexpr int kQuality = 84;

constexpr SlideScene kScenes[kSlides] = {slideOfDropping,  slideOfPage,    slideOfStepping,
                                         slideOfAdding,    slideOfTuning,  slideOfOrdering,
                                         slideOfWatermark, slideOfViewing, slideOfFavourites,
                                         slideOfSettings,  slideOfSaving,  slideOfFolder};

/// The photos under names that the language's readers understand.
QStringList renamed(const QStringList& photos, const SlideTexts& texts, const QDir& work)
{
    work.mkpath(texts.language);
    QStringList paths;
    for (int i = 0; i < photos.size(); ++i) {
        const QString name =
            QStringLiteral("%1/%2.%3")
                .arg(texts.language, texts.photoNames.at(i), QFileInfo(photos.at(i)).suffix());
        paths.append(work.filePath(name));
        QFile::copy(photos.at(i), paths.last());
    }
    return paths;
}

void drawLanguage(Stage& stage, const SlideTexts& texts, const QStringList& photos,
                  const QString& folder)
{
    QMWidgets::TranslationsManager::instance()->setLanguage(texts.language);
    SlideSet set{stage, texts, photos};
    const QStringList files = helpSlides(texts.language, folder + QLatin1Char('/'));
    stage.check(files.size() == kSlides, QStringLiteral("there is a scene for each slide"));
    for (int i = 0; i < kSlides; ++i) {
        const QString file = QFileInfo(files.at(i)).fileName();
        stage.open(file);
        int taken = 0;
        set.take = [&](const Shot& shot) {
            ++taken;
            const QImage slide = SlidePainter::draw(shot, texts.captions[i], i + 1, kSlides);
            stage.check(!slide.isNull(), QStringLiteral("the caption of %1 fits").arg(file));
            stage.check(slide.save(files.at(i), "JPEG", kQuality),
                        QStringLiteral("%1 can be written").arg(file));
        };
        kScenes[i](set);
        stage.check(taken == 1, QStringLiteral("%1 is drawn").arg(file));
    }
}

} // namespace

void drawSlides(Stage& stage, const QStringList& photos, const QString& work, const QString& folder)
{
    // A text cursor that blinks is now there and now not.
    QApplication::setCursorFlashTime(0);
    // Menus in one column, however small the screen is.
    qApp->setStyleSheet(qApp->styleSheet() + QStringLiteral("QMenu { menu-scrollable: 1 }"));
    stage.check(QDir().mkpath(folder), QStringLiteral("there is a folder for slides"));
    for (const SlideTexts& texts : slideTexts()) {
        drawLanguage(stage, texts, renamed(photos, texts, QDir(work)), folder);
    }
}
