#include "Results.h"
#include "scenes/SettingsSteps.h"
#include "slides/FolderPicture.h"
#include "slides/SlideScenes.h"
#include "Stage.h"

#include <QDir>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

namespace
{

/// Where a dialog stands on the page: in its middle, a little below its menu bar.
void place(QWidget* dialog, const QWidget* page, int top)
{
    dialog->move(page->mapToGlobal(QPoint((page->width() - dialog->width()) / 2, top)));
}

} // namespace

void slideOfSettings(SlideSet& set)
{
    Stage& stage = set.stage;
    openWithFlow(set, {strongerColours(), watermark(set)});
    auto* const button = stage.find<QPushButton>(QStringLiteral("SettingsButton"));
    withSettings(stage, [&](QWidget* dialog) {
        setRenaming(stage, dialog, QStringLiteral("x"));
        // The letters of some languages can't be typed by keys of a test.
        if (auto* const edit = qobject_cast<QLineEdit*>(dialog->focusWidget())) {
            edit->setText(set.texts.newName);
        }
        place(dialog, stage.page(), 52);
        set.take(Shot({stage.page(), dialog}).mark(button).mark(dialog));
        stage.press(dialog, Qt::Key_Return);
    });
}

void slideOfSaving(SlideSet& set)
{
    Stage& stage = set.stage;
    openWithFlow(set, {strongerColours(), watermark(set)});
    const QStringList before = batchFolders();
    auto* const button = stage.find<QPushButton>(QStringLiteral("RunBatchButton"));
    QWidget* shown = nullptr;
    stage.withDialog(button, QStringLiteral("the batch dialog"), [&](QWidget* dialog) {
        place(dialog, stage.page(), 100);
        auto* const progress = stage.find<QProgressBar>(dialog);
        QObject::connect(progress, &QProgressBar::valueChanged, dialog, [&, dialog](int percent) {
            if (percent != 40) {
                return;
            }
            // The photo's number is written after the bar has moved.
            QTimer::singleShot(0, dialog, [&, dialog] {
                shown = dialog;
                set.take(
                    Shot({stage.page(), dialog}).mark(button).light(dialog).pointAtMiddle(button));
            });
        });
    });
    stage.check(shown, QStringLiteral("the batch passes two fifths"));
    const QString made = folderMadeSince(stage, before);
    if (!made.isEmpty()) {
        const QDir folder(made);
        for (const QString& name : folder.entryList(QDir::Files, QDir::Name)) {
            set.results.append(folder.filePath(name));
        }
    }
    stage.check(set.results.size() == set.photos.size(), QStringLiteral("all photos are saved"));
}

void slideOfFolder(SlideSet& set)
{
    set.take(Shot(folderPicture(set.results, set.texts.picturesFolder)));
}
