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

    /// So large that a run goes on only after the dialog has taken a photo: however fast the worker
    /// is, it is one photo ahead at most. On the disk they are small.
    static QList<QUrl> addLarge(Photos& photos, int count = 4)
    {
        QImage large(4200, 4200, QImage::Format_Mono);
        large.fill(0);
        QList<QUrl> urls;
        for (int i = 0; i < count; ++i) {
            urls += photos.add(QStringLiteral("p%1.bmp").arg(i), large);
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
        QMWidgets::App::app()->setSettingsValue(QStringLiteral("KeyFormat"),
                                                QStringLiteral("JPEG"));
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
        BatchDialog dialog;
        QCOMPARE(run(dialog, addLarge(photos, 3)), int(QDialog::Accepted));
        QCOMPARE(results(), QStringList({"p0.jpeg", "p1.jpeg", "p2.jpeg"}));
    }

    void pauseHoldsTheRunUntilResume()
    {
        UrlCatcher opened;
        Photos photos;
        BatchDialog dialog;
        const QList<QUrl> many = addLarge(photos);
        int heldAt = many.size();
        const int result = run(dialog, many, [&] {
            button(dialog, "BatchPauseButton")->click();
            // The run has come to its pause when no more results appear; without one it would end.
            int before = -1;
            while (before != results().size()) {
                before = results().size();
                QTest::qWait(1000);
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
            const QList<QUrl> many = addLarge(photos);
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
            QVERIFY(results().contains(QStringLiteral("next.jpeg")));
            QVERIFY(results().size() <= many.size());
        }
    }

    void theDialogMayGoInTheMiddleOfARun()
    {
        Photos photos;
        const QList<QUrl> many = addLarge(photos);
        {
            BatchDialog dialog;
            start(dialog, many);
            dialog.show();
            QTRY_VERIFY_WITH_TIMEOUT(preview(dialog)->text().isEmpty(), 60000);
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
