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

    static void setPhotos(const QList<QUrl>& urls)
    {
        CommonData::instance()->model()->setItems(urls);
    }

    /// So many that a run is still under way some time after its first photo.
    static int setManyPhotos(Photos& photos)
    {
        QList<QUrl> urls;
        for (int i = 0; i < 30; ++i) {
            urls += photos.add(QStringLiteral("p%1.png").arg(i), QSize(700, 500));
        }
        setPhotos(urls);
        return urls.size();
    }

    /// Calls act when the run has come to its first photo, with the dialog open.
    template <class Act> static void atTheFirstPhoto(BatchDialog& dialog, Act act)
    {
        auto* const once = new QTimer(&dialog);
        QObject::connect(once, &QTimer::timeout, &dialog, [&dialog, once, act] {
            if (dialog.findChild<QMWidgets::Label*>()->text().isEmpty()) {
                once->deleteLater();
                once->stop();
                act();
            }
        });
        once->start(0);
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
        setPhotos({photos.add(QStringLiteral("a.png")), photos.add(QStringLiteral("b.png"))});
        BatchDialog dialog;
        dialog.startBatch({});
        QStringList texts;
        atTheFirstPhoto(dialog, [&] {
            for (QLabel* label : dialog.findChildren<QLabel*>()) {
                texts += label->text();
            }
        });
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
        QVERIFY(texts.contains(QStringLiteral("<CENTER><H2>1 of 2</H2></CENTER>")) ||
                texts.contains(QStringLiteral("<CENTER><H2>2 of 2</H2></CENTER>")));
        QCOMPARE(dialog.findChild<QProgressBar*>()->value(), 50);
        QCOMPARE(results(), QStringList({"a.png", "b.png"}));

        const QStringList runs = QDir(outputFolder()).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        QCOMPARE(runs.size(), 1);
        QVERIFY(
            QDateTime::fromString(runs.first(), QStringLiteral("yyyy-MM-dd_hh-mm-ss")).isValid());
        const QList<QUrl> urls = opened.take();
        QCOMPARE(urls.size(), 1);
        QCOMPARE(QDir(urls.first().toLocalFile()), QDir(outputFolder() + runs.first()));
    }

    void aRunWithoutPhotosEndsAtOnce()
    {
        UrlCatcher opened;
        setPhotos({});
        BatchDialog dialog;
        dialog.startBatch({});
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
        QCOMPARE(results(), QStringList());
        QCOMPARE(opened.take().size(), 1);
        QMWidgets::App::app()->setSettingsValue(QStringLiteral("KeyOpenLocation"), false);
        dialog.startBatch({});
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
        QCOMPARE(opened.take().size(), 0);
    }

    void stopLeavesTheRestAndTheNextRunIsWhole()
    {
        Photos photos;
        UrlCatcher opened;
        const int total = setManyPhotos(photos);
        BatchDialog dialog;
        dialog.startBatch({});
        atTheFirstPhoto(dialog, [&] {
            button(dialog, "BatchPauseButton")->click();
            QCOMPARE(button(dialog, "BatchPauseButton")->text(), QStringLiteral("Resume"));
            button(dialog, "BatchStopButton")->click();
        });
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
        QVERIFY(!results().isEmpty());
        QVERIFY(results().size() < total);

        setPhotos({photos.add(QStringLiteral("next.png"))});
        dialog.startBatch({});
        atTheFirstPhoto(dialog, [&] {
            QCOMPARE(button(dialog, "BatchPauseButton")->text(), QStringLiteral("Pause"));
            QVERIFY(!button(dialog, "BatchPauseButton")->isChecked());
        });
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
        QVERIFY(results().contains(QStringLiteral("next.png")));
    }

    void stopBeforeTheWorkBeganClosesTheDialog()
    {
        Photos photos;
        UrlCatcher opened;
        setPhotos({photos.add(QStringLiteral("a.png"))});
        BatchDialog dialog;
        dialog.startBatch({});
        QTimer::singleShot(0, &dialog, [&] { button(dialog, "BatchStopButton")->click(); });
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    }

    void pauseHoldsTheRunUntilResume()
    {
        UrlCatcher opened;
        Photos photos;
        const int total = setManyPhotos(photos);
        BatchDialog dialog;
        dialog.startBatch({});
        int heldAt = total;
        atTheFirstPhoto(dialog, [&] {
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
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
        QVERIFY(heldAt < total);
        QCOMPARE(results().size(), total);
    }

    void closingInTheMiddleOfARunDoesNotDisturbTheNext()
    {
        Photos photos;
        UrlCatcher opened;
        QList<QUrl> urls;
        for (int i = 0; i < 10; ++i) {
            urls += photos.add(QStringLiteral("p%1.png").arg(i), QSize(1200, 900));
        }
        setPhotos(urls);
        BatchDialog dialog;
        dialog.startBatch({});
        atTheFirstPhoto(dialog, [&] { QTest::keyClick(&dialog, Qt::Key_Escape); });
        QCOMPARE(dialog.exec(), int(QDialog::Rejected));

        const QList<QUrl> next = {photos.add(QStringLiteral("next1.png")),
                                  photos.add(QStringLiteral("next2.png"))};
        setPhotos(next);
        dialog.startBatch({});
        QCOMPARE(opened.take().size(), 1);
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
        QCOMPARE(opened.take().size(), 1);
        QVERIFY(results().contains(QStringLiteral("next1.png")));
        QVERIFY(results().contains(QStringLiteral("next2.png")));
        QVERIFY(results().size() < urls.size() + next.size());
    }

    void theDialogMayGoInTheMiddleOfARun()
    {
        Photos photos;
        const int total = setManyPhotos(photos);
        {
            BatchDialog dialog;
            dialog.startBatch({});
            dialog.show();
            QTRY_VERIFY(dialog.findChild<QMWidgets::Label*>()->text().isEmpty());
        }
        QVERIFY(!results().isEmpty());
        QVERIFY(results().size() < total);
    }

    void anOutputFolderThatCannotBeMadeEndsInSilence()
    {
        Photos photos;
        UrlCatcher opened;
        const QString parent = QDir(outputFolder() + QStringLiteral("..")).absolutePath();
        QVERIFY(QDir().mkpath(parent));
        QFile blocker(QDir::cleanPath(outputFolder()));
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        setPhotos({photos.add(QStringLiteral("a.png"))});
        BatchDialog dialog;
        dialog.startBatch({});
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
        QVERIFY(blocker.remove());
        QCOMPARE(results(), QStringList());
    }
};

TESSARIN_TEST(TestBatchDialog);
#include "tst_BatchDialog.moc"
