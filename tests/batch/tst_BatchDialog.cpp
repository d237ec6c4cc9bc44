#include "batch/BatchDialog.h"
#include "intake/CommonData.h"
#include "intake/ItemsModel.h"
#include "support/Photos.h"
#include "support/TestMain.h"
#include "support/UrlCatcher.h"

#include <QDir>
#include <QMWidgets/App.h>
#include <QMWidgets/Label.h>
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

    void anEndInTheMiddleOfARunDoesNotDisturbTheNext()
    {
        for (const bool byStop : {true, false}) {
            init();
            Photos photos;
            UrlCatcher opened;
            BatchDialog dialog;
            const QList<QUrl> many = addMany(photos, 10, QSize(1200, 900));
            const int ended = run(dialog, many, [&] {
                button(dialog, "BatchPauseButton")->click();
                if (byStop) {
                    button(dialog, "BatchStopButton")->click();
                } else {
                    QTest::keyClick(&dialog, Qt::Key_Escape);
                }
            });
            QCOMPARE(ended, int(byStop ? QDialog::Accepted : QDialog::Rejected));

            start(dialog, {photos.add(QStringLiteral("next.png"))});
            QCOMPARE(opened.take().size(), 1);
            QCOMPARE(dialog.exec(), int(QDialog::Accepted));
            QCOMPARE(opened.take().size(), 1);
            QVERIFY(results().contains(QStringLiteral("next.png")));
            QVERIFY(results().size() <= many.size());
        }
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
