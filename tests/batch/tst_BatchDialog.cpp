#include "batch/BatchDialog.h"
#include "intake/CommonData.h"
#include "intake/ItemsModel.h"
#include "support/Photos.h"
#include "support/TestMain.h"
#include "support/UrlCatcher.h"

#include <QDateTime>
#include <QDir>
#include <QLabel>
#include <QMWidgets/App.h>
#include <QMWidgets/Label.h>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

class TestBatchDialog : public QObject
{
    Q_OBJECT

private:
    static QString outputFolder() { return QMWidgets::App::defaultOutputFolder(false); }

    /// All results of all runs, by file name.
    static QStringList results()
    {
        QStringList files;
        const QDir root(outputFolder());
        for (const QString& run : root.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            files += QDir(root.filePath(run)).entryList(QDir::Files);
        }
        files.sort();
        return files;
    }

    static QPushButton* button(const BatchDialog& dialog, const char* name)
    {
        return dialog.findChild<QPushButton*>(QLatin1String(name));
    }

    static QMWidgets::Label* preview(const BatchDialog& dialog)
    {
        return dialog.findChild<QMWidgets::Label*>();
    }

    /// So many, or so large, that a run is still under way some time after its first photo.
    static QList<QUrl> addMany(Photos& photos, int count = 20, const QSize& size = QSize(700, 500))
    {
        QList<QUrl> urls;
        for (int i = 0; i < count; ++i) {
            urls += photos.add(QStringLiteral("p%1.bmp").arg(i), size);
        }
        return urls;
    }

    static void start(BatchDialog& dialog, const QList<QUrl>& photos)
    {
        CommonData::instance()->model()->setItems(photos);
        dialog.startBatch({});
    }

    static int run(BatchDialog& dialog, const QList<QUrl>& photos)
    {
        start(dialog, photos);
        return dialog.exec();
    }

    /// Calls act when the run has come to its first photo, with the dialog open.
    template <class Act> static int run(BatchDialog& dialog, const QList<QUrl>& photos, Act act)
    {
        QTimer once;
        QObject::connect(&once, &QTimer::timeout, &dialog, [&] {
            if (preview(dialog)->text().isEmpty()) {
                once.stop();
                act();
            }
        });
        once.start(0);
        return run(dialog, photos);
    }

private slots:
    void init()
    {
        QDir(outputFolder()).removeRecursively();
        QMWidgets::App::app()->setSettingsValue(QStringLiteral("KeyFormat"), QStringLiteral("PNG"));
        QMWidgets::App::app()->setSettingsValue(QStringLiteral("KeyOpenLocation"), true);
    }

    void aRunShowsItsProgressAndOpensTheFolder()
    {
        Photos photos;
        UrlCatcher opened;
        BatchDialog dialog;
        QStringList texts;
        const QList<QUrl> urls = {photos.add(QStringLiteral("a.png")),
                                  photos.add(QStringLiteral("b.png"))};
        const int result = run(dialog, urls, [&] {
            for (QLabel* label : dialog.findChildren<QLabel*>()) {
                texts += label->text();
            }
        });
        QCOMPARE(result, int(QDialog::Accepted));
        QVERIFY(texts.contains(QStringLiteral("<CENTER><H2>1 of 2</H2></CENTER>")) ||
                texts.contains(QStringLiteral("<CENTER><H2>2 of 2</H2></CENTER>")));
        QCOMPARE(dialog.findChild<QProgressBar*>()->value(), 50);
        QCOMPARE(results(), QStringList({"a.png", "b.png"}));

        const QStringList runs = QDir(outputFolder()).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        QCOMPARE(runs.size(), 1);
        QVERIFY(
            QDateTime::fromString(runs.first(), QStringLiteral("yyyy-MM-dd_hh-mm-ss")).isValid());
        const QList<QUrl> folders = opened.take();
        QCOMPARE(folders.size(), 1);
        QCOMPARE(QDir(folders.first().toLocalFile()), QDir(outputFolder() + runs.first()));
    }

    void aRunWithNothingToDoEndsAtOnce()
    {
        UrlCatcher opened;
        BatchDialog dialog;
        QCOMPARE(run(dialog, {}), int(QDialog::Accepted));
        QCOMPARE(results(), QStringList());
        QCOMPARE(opened.take().size(), 1);
        QMWidgets::App::app()->setSettingsValue(QStringLiteral("KeyOpenLocation"), false);
        // Nor is a run waited for that is stopped before its work began.
        Photos photos;
        QTimer::singleShot(0, &dialog, [&] { button(dialog, "BatchStopButton")->click(); });
        QCOMPARE(run(dialog, {photos.add(QStringLiteral("a.png"))}), int(QDialog::Accepted));
        QCOMPARE(opened.take().size(), 0);
    }

    void aPictureLargerThanScreensIsShownReduced()
    {
        BatchDialog dialog;
        for (const auto& [size, shown] : {std::pair(QSize(4000, 3000), QSize(4000, 3000)),
                                          std::pair(QSize(6000, 4000), QSize(3000, 2000))}) {
            QImage image(size, QImage::Format_ARGB32);
            image.fill(qRgb(10, 200, 30));
            dialog.slotUpdateInfo(image, 0, 1);
            const QImage picture = preview(dialog)->pixmap().toImage();
            QCOMPARE(picture.size(), shown);
            QCOMPARE(picture.pixelColor(shown.width() - 1, 5), QColor(10, 200, 30));
        }
        dialog.slotUpdateInfo(QImage(), 0, 1);
        QVERIFY(preview(dialog)->pixmap().isNull());
    }

    void aRunOfLargePicturesIsNotHeldUp()
    {
        Photos photos;
        UrlCatcher opened;
        QMWidgets::App::app()->setSettingsValue(QStringLiteral("KeyFormat"), QStringLiteral("BMP"));
        QImage large(4200, 4200, QImage::Format_RGB32);
        large.fill(Qt::gray);
        QVERIFY(large.save(photos.path(QStringLiteral("a.bmp"))));
        const QUrl url = QUrl::fromLocalFile(photos.path(QStringLiteral("a.bmp")));
        BatchDialog dialog;
        QCOMPARE(run(dialog, {url, url, url}), int(QDialog::Accepted));
        QCOMPARE(results(), QStringList({"a.bmp"}));
    }

    void stopLeavesTheRestAndTheNextRunIsWhole()
    {
        Photos photos;
        UrlCatcher opened;
        BatchDialog dialog;
        QPushButton* const pause = button(dialog, "BatchPauseButton");
        const QList<QUrl> many = addMany(photos);
        const int stopped = run(dialog, many, [&] {
            pause->click();
            QCOMPARE(pause->text(), QStringLiteral("Resume"));
            button(dialog, "BatchStopButton")->click();
        });
        QCOMPARE(stopped, int(QDialog::Accepted));
        QVERIFY(!results().isEmpty());
        QVERIFY(results().size() < many.size());

        const int next = run(dialog, {photos.add(QStringLiteral("next.png"))}, [&] {
            QCOMPARE(pause->text(), QStringLiteral("Pause"));
            QVERIFY(!pause->isChecked());
        });
        QCOMPARE(next, int(QDialog::Accepted));
        QVERIFY(results().contains(QStringLiteral("next.png")));
    }

    void pauseHoldsTheRunUntilResume()
    {
        UrlCatcher opened;
        Photos photos;
        BatchDialog dialog;
        const QList<QUrl> many = addMany(photos);
        int heldAt = many.size();
        const int result = run(dialog, many, [&] {
            button(dialog, "BatchPauseButton")->click();
            // The run has come to its pause when no more results appear; without one it would end.
            int before = -1;
            while (before != results().size()) {
                before = results().size();
                QTest::qWait(600);
            }
            heldAt = before;
            button(dialog, "BatchPauseButton")->click();
        });
        QCOMPARE(result, int(QDialog::Accepted));
        QVERIFY(heldAt < many.size());
        QCOMPARE(results().size(), many.size());
    }

    void closingInTheMiddleOfARunDoesNotDisturbTheNext()
    {
        Photos photos;
        UrlCatcher opened;
        BatchDialog dialog;
        const QList<QUrl> many = addMany(photos, 10, QSize(1200, 900));
        QCOMPARE(run(dialog, many, [&] { QTest::keyClick(&dialog, Qt::Key_Escape); }),
                 int(QDialog::Rejected));

        start(dialog, {photos.add(QStringLiteral("next.png"))});
        QCOMPARE(opened.take().size(), 1);
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
        QCOMPARE(opened.take().size(), 1);
        QVERIFY(results().contains(QStringLiteral("next.png")));
        QVERIFY(results().size() <= many.size());
    }

    void theDialogMayGoInTheMiddleOfARun()
    {
        Photos photos;
        const QList<QUrl> many = addMany(photos);
        {
            BatchDialog dialog;
            start(dialog, many);
            dialog.show();
            QTRY_VERIFY(preview(dialog)->text().isEmpty());
        }
        QVERIFY(!results().isEmpty());
        QVERIFY(results().size() < many.size());
    }

    void anOutputFolderThatCannotBeMadeEndsInSilence()
    {
        Photos photos;
        UrlCatcher opened;
        const QString parent = QDir(outputFolder() + QStringLiteral("..")).absolutePath();
        QVERIFY(QDir().mkpath(parent));
        QFile blocker(QDir::cleanPath(outputFolder()));
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        BatchDialog dialog;
        QCOMPARE(run(dialog, {photos.add(QStringLiteral("a.png"))}), int(QDialog::Accepted));
        QVERIFY(blocker.remove());
        QCOMPARE(results(), QStringList());
    }
};

TESSARIN_TEST(TestBatchDialog);
#include "tst_BatchDialog.moc"
