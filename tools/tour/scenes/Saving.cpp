#include "photos/SamplePhotos.h"
#include "Results.h"
#include "scenes/Scenes.h"
#include "scenes/SettingsSteps.h"
#include "ShownText.h"
#include "Stage.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>

namespace
{

constexpr int kStillness = 1500; // milliseconds, in which a paused batch has to stand still

/// Pauses a running batch, looks whether it stands still, and lets it go on.
void pauseAndResume(Stage& stage, QWidget* dialog)
{
    stage.shoot(QStringLiteral("started"), dialog);
    auto* const pause = stage.find<QPushButton>(QStringLiteral("BatchPauseButton"), dialog);
    auto* const progress = stage.find<QProgressBar>(dialog);
    if (!pause || !progress) {
        return;
    }
    // Pictures take their time, so the batch is paused before any is taken.
    stage.waitFor([progress] { return progress->value() > 0; }, QStringLiteral("the batch runs"));
    stage.click(pause);
    stage.check(pause->text() == shownText(pause, QStringLiteral("Resume")),
                QStringLiteral("the button resumes"));

    // The photo in hand still gets through.
    int last = -1;
    stage.waitFor(
        [progress, &last] {
            const int before = std::exchange(last, progress->value());
            return !QTest::qWaitFor([&] { return progress->value() != before; }, kStillness);
        },
        QStringLiteral("the pause holds"));
    stage.check(dialog->isVisible(), QStringLiteral("a paused batch stays open"));
    stage.shoot(QStringLiteral("paused"), dialog);

    const int pausedAt = progress->value();
    stage.click(pause);
    stage.waitFor([progress, pausedAt] { return progress->value() > pausedAt; },
                  QStringLiteral("the batch goes on"));
    stage.shootTogether(QStringLiteral("running"), {stage.page(), dialog});
}

/// Runs a batch and gives the folder of its results; empty if there is none.
QString runBatch(Stage& stage, const Stage::DialogAct& act)
{
    const QStringList before = batchFolders();
    stage.withDialog(stage.find<QPushButton>(QStringLiteral("RunBatchButton")),
                     QStringLiteral("the batch dialog"), act);
    return folderMadeSince(stage, before);
}

QVector<ExpectedResult> expectedResults(const QString& suffix)
{
    QVector<ExpectedResult> expected;
    for (const SamplePhoto& photo : samplePhotos()) {
        expected.append({QFileInfo(photo.fileName).completeBaseName() + suffix, photo.size});
    }
    return expected;
}

} // namespace

void saveResults(Stage& stage)
{
    stage.dropPhotos();
    stage.addOperation(QStringLiteral("Histogram optimizer"));
    stage.addOperation(QStringLiteral("Brightness, Contrast, Saturation"));
    stage.setSlider(QStringLiteral("Contrast:"), 20);
    withSettings(stage, [&stage](QWidget* dialog) {
        stage.chooseItem(boxWith(dialog, QStringLiteral("JPEG")), QStringLiteral("JPEG"));
        setRenaming(stage, dialog, QString());
        stage.clickButton(dialog, QStringLiteral("Ok"));
    });
    stage.shoot(QStringLiteral("flow"));

    const QString folder =
        runBatch(stage, [&stage](QWidget* dialog) { pauseAndResume(stage, dialog); });
    checkResults(stage, folder, expectedResults(QStringLiteral(".jpeg")));
    const QList<QUrl> opened = stage.urls().urls();
    stage.check(!opened.isEmpty() &&
                    QDir::cleanPath(opened.last().toLocalFile()) == QDir::cleanPath(folder),
                QStringLiteral("the folder of results opens"));
    keepResults(stage, folder, QStringLiteral("save"));
}

void saveRenamed(Stage& stage)
{
    stage.dropPhotos();
    stage.addOperation(QStringLiteral("Grayscale"));
    withSettings(stage, [&stage](QWidget* dialog) {
        stage.chooseItem(boxWith(dialog, QStringLiteral("PNG")), QStringLiteral("BMP"));
        setRenaming(stage, dialog, QStringLiteral("Holiday "));
        stage.chooseItem(boxWith(dialog, QStringLiteral("Odd")), QStringLiteral("Odd"));
        stage.clickButton(dialog, QStringLiteral("Ok"));
    });
    const QString folder = runBatch(stage, [](QWidget*) {});
    QVector<ExpectedResult> expected;
    int number = 1;
    for (const SamplePhoto& photo : samplePhotos()) {
        expected.append({QStringLiteral("Holiday %1.bmp").arg(number), photo.size});
        number += 2;
    }
    checkResults(stage, folder, expected);
    keepResults(stage, folder, QStringLiteral("rename"));
}

void saveReadable(Stage& stage)
{
    const QString photo = stage.photos().last();
    const QString text = QFileInfo(photo).absolutePath() + QStringLiteral("/No photo.jpg");
    QFile file(text);
    stage.check(file.open(QIODevice::WriteOnly) && file.write("no photo") > 0,
                QStringLiteral("a file of another kind is there"));
    file.close();
    stage.drop({text, photo, photo + QStringLiteral(".gone")}, stage.dropWindow());
    stage.addOperation(QStringLiteral("Grayscale"));
    stage.shoot(QStringLiteral("page"));
    const QString folder = runBatch(stage, [](QWidget*) {});
    stage.check(!folder.isEmpty() && QDir(folder).entryList(QDir::Files).size() == 1,
                QStringLiteral("only the photo has a result"));
    keepResults(stage, folder, QStringLiteral("unreadable"));
    QFile::remove(text);
}
