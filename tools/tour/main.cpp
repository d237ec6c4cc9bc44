#include "app/Startup.h"
#include "ContactSheet.h"
#include "OperationPictures.h"
#include "Options.h"
#include "OwnHome.h"
#include "photos/SamplePhotos.h"
#include "Results.h"
#include "Scene.h"
#include "slides/DrawSlides.h"
#include "Stage.h"
#include <QMWidgets/TranslationsManager.h>

#include <cstdio>
#include <QDir>
#include <QGuiApplication>

namespace
{

const QString kPhotosFolder = QStringLiteral("photos");
const QString kPicturesFolder = QStringLiteral("pictures");

enum ExitCode { AllWell, SomethingFailed, NothingDone };

void say(const QString& text)
{
    std::printf("%s\n", qUtf8Printable(text));
    std::fflush(stdout);
}

void listScenes()
{
    for (const Scene& scene : scenes()) {
        say(QStringLiteral("%1  %2").arg(scene.name, -12).arg(scene.title));
    }
}

QStringList makePhotos(const Options& options)
{
    say(QStringLiteral("Painting the sample photos"));
    const QString folder = QDir(options.out).filePath(kPhotosFolder);
    return QDir().mkpath(folder) ? writeSamplePhotos(folder, options.keepPhotos) : QStringList();
}

/// Screens claim all kinds of density, which would scale the pictures by odd factors. Here only
/// QT_SCALE_FACTOR counts, unless the environment asks for something else.
void evenOutDensity()
{
    if (!qEnvironmentVariableIsSet("QT_FONT_DPI")) {
        qputenv("QT_FONT_DPI", "96");
    }
}

int showOperations(int& argc, char** argv, const QString& folder)
{
    // Text is fitted to the pixels of the screen, and these pictures are to be the same anywhere.
    qunsetenv("QT_SCALE_FACTOR");
    const QGuiApplication app(argc, argv);
    const QString fault = writeOperationPictures(folder);
    say(fault.isEmpty() ? QStringLiteral("Pictures: %1").arg(folder) : fault);
    return fault.isEmpty() ? AllWell : SomethingFailed;
}

int showPictures(int& argc, char** argv, const QString& folder)
{
    const QGuiApplication app(argc, argv);
    const QString fault = writeContactSheet(folder);
    say(fault.isEmpty() ? QStringLiteral("Pictures: %1").arg(folder) : fault);
    return fault.isEmpty() ? AllWell : SomethingFailed;
}

int play(Stage& stage, const Options& options)
{
    for (const Scene& scene : scenesNamed(options.only)) {
        say(QStringLiteral("%1: %2").arg(scene.name, scene.title));
        stage.open(scene.name);
        scene.run(stage);
    }
    const QDir out(options.out);
    say(QStringLiteral("Photos: %1").arg(out.filePath(kPhotosFolder)));
    say(QStringLiteral("Results: %1").arg(resultsFolder()));
    say(QStringLiteral("%1 pictures: %2")
            .arg(stage.camera().count())
            .arg(out.filePath(kPicturesFolder)));
    const int failed = stage.complaints().count();
    say(failed ? QStringLiteral("%1 failures").arg(failed) : QStringLiteral("All went well"));
    return failed ? SomethingFailed : AllWell;
}

int showSlides(Stage& stage, const QStringList& photos, const Options& options)
{
    drawSlides(stage, photos, QDir(options.out).filePath(kPhotosFolder), options.slides);
    const int failed = stage.complaints().count();
    say(failed ? QStringLiteral("%1 failures").arg(failed)
               : QStringLiteral("Slides: %1").arg(options.slides));
    return failed ? SomethingFailed : AllWell;
}

} // namespace

int main(int argc, char** argv)
{
    const Options options = Options::read(argc, argv);
    const QStringList unknown = unknownNames(options.only);
    if (!options.error.isEmpty() || !unknown.isEmpty()) {
        const QString fault =
            options.error.isEmpty()
                ? QStringLiteral("No scene %1").arg(unknown.join(QLatin1Char(',')))
                : options.error;
        std::fprintf(stderr, "%s\n\n%s", qUtf8Printable(fault), qUtf8Printable(Options::usage()));
        return NothingDone;
    }
    if (options.help || options.list) {
        options.help ? say(Options::usage()) : listScenes();
        return AllWell;
    }
    // One word of the command line is enough for the toolkit: the others are the tour's own.
    int words = 1;
    if (!options.operationPictures.isEmpty()) {
        return showOperations(words, argv, options.operationPictures);
    }
    if (!options.contactSheet.isEmpty()) {
        prepareProcess();
        return showPictures(words, argv, options.contactSheet);
    }
    const QDir out(options.out);
    if (!OwnHome::moveInto(out.filePath(QStringLiteral("home")))) {
        std::fprintf(stderr, "No home of its own in %s\n", qUtf8Printable(options.out));
        return NothingDone;
    }
    const QStringList photos = makePhotos(options);
    if (photos.isEmpty()) {
        std::fprintf(stderr, "Can't write photos into %s\n", qUtf8Printable(options.out));
        return NothingDone;
    }
    evenOutDensity();
    if (!options.slides.isEmpty()) {
        // Slides are drawn pixel by pixel from windows of this density.
        qputenv("QT_SCALE_FACTOR", "2");
    }
    Stage stage(words, argv, photos, out.filePath(kPicturesFolder));
    if (!options.language.isEmpty()) {
        QMWidgets::TranslationsManager::instance()->setLanguage(options.language);
    }
    return options.slides.isEmpty() ? play(stage, options) : showSlides(stage, photos, options);
}
