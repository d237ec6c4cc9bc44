#include "batch/BatchThread.h"
#include "batch/BatchWorker.h"
#include "support/ImageCompare.h"
#include "support/Photos.h"
#include "support/TestMain.h"

#include <atomic>
#include <MGraphX/GraphX.h>
#include <QBuffer>
#include <QDir>
#include <QMWidgets/App.h>
#include <QMWidgets/ProtocolLog.h>
#include <QRegularExpression>
#include <QSet>
#include <QSignalSpy>

using MGraphX::GraphX;

namespace
{

/// A job of the worker with a folder for its results.
struct Job {
    QString format = QStringLiteral("PNG");
    bool rename = false;
    QString newName = QStringLiteral("out");
    int numbers = 0;
    BatchWorker::Operations operations;

    void giveTo(BatchWorker& worker, const QList<QUrl>& photos) const
    {
        worker.setJob(format, -1, rename, newName, numbers, results.folder() + '/', photos,
                      operations);
    }

    QStringList files() const { return QDir(results.folder()).entryList(QDir::Files, QDir::Name); }

    Photos results;
};

/// What the call leaves in a developer's log, but for what the toolkit tells there.
template <class Call> QStringList loggedBy(const Call& call)
{
    QFile log(QMWidgets::App::appHomeFolder(true) + QStringLiteral("protocol.log"));
    log.remove();
    const QtMessageHandler before = qInstallMessageHandler(nullptr);
    QMWidgets::installProtocolHandler();
    call();
    qInstallMessageHandler(before);
    QStringList lines;
    if (log.open(QIODevice::ReadOnly)) {
        lines = QString::fromUtf8(log.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }
    return lines.filter(QRegularExpression(QStringLiteral("photo|result")));
}

/// A worker that is stopped in its third round of waiting.
class StoppedInPause : public BatchWorker
{
protected:
    void nap() override
    {
        if (++m_naps == 3) {
            requestStop();
        }
    }

private:
    int m_naps = 0;
};

} // namespace

class TestBatchWorker : public QObject
{
    Q_OBJECT

private slots:
    void appliesTheOperationsInOrder()
    {
        Photos photos;
        const QUrl photo = photos.add(QStringLiteral("a.png"), QSize(33, 21), 4);
        Job job;
        job.operations = {
            {QStringLiteral("Grayscale"), QString()},
            {QStringLiteral("Sharpen"), QStringLiteral("<P/>")},
            {QStringLiteral("Binarization"), QStringLiteral("<P><Threshold>90</Threshold></P>")}};
        BatchWorker worker;
        job.giveTo(worker, {photo});
        QSignalSpy info(&worker, &BatchWorker::updateInfo);
        worker.slotDoWork();

        const QImage source = QImage(photo.toLocalFile()).convertToFormat(QImage::Format_ARGB32);
        const QImage expected = GraphX::binarize(GraphX::grayscale(source), 90);
        COMPARE_IMAGES(info.first().first().value<QImage>(), expected);
        QCOMPARE(QImage(job.results.path(QStringLiteral("a.png"))), expected);
    }

    void numbersTheFiles_data()
    {
        QTest::addColumn<int>("numbers");
        QTest::addColumn<QStringList>("files");
        QTest::newRow("all") << 0 << QStringList({"out0.bmp", "out1.bmp", "out3.bmp"});
        QTest::newRow("odd") << 1 << QStringList({"out1.bmp", "out3.bmp", "out7.bmp"});
        QTest::newRow("even") << 2 << QStringList({"out2.bmp", "out4.bmp", "out8.bmp"});
        QTest::newRow("unknown") << 3 << QStringList({"a.bmp", "b.c.bmp", "d.bmp"});
    }

    void numbersTheFiles()
    {
        QFETCH(int, numbers);
        Photos photos;
        Job job;
        job.format = QStringLiteral("BMP");
        job.rename = true;
        job.numbers = numbers;
        const QList<QUrl> urls = {photos.add(QStringLiteral("a.png")),
                                  photos.add(QStringLiteral("b.c.png")),
                                  photos.addFile(QStringLiteral("bad.png"), "no picture"),
                                  photos.add(QStringLiteral("d.png"))};
        BatchWorker worker;
        for (int run = 0; run < 2; ++run) {
            job.giveTo(worker, urls);
            worker.slotDoWork();
            QTEST(job.files(), "files");
        }
    }

    void whatCannotBeReadOrWrittenIsPassedOver()
    {
        Photos photos;
        const QUrl deleted = photos.add(QStringLiteral("deleted.png"));
        QVERIFY(QFile::remove(deleted.toLocalFile()));
        const QList<QUrl> urls = {photos.add(QStringLiteral("good one.png")),
                                  deleted,
                                  photos.addFile(QStringLiteral("empty.png"), QByteArray()),
                                  photos.addFolder(QStringLiteral("folder")),
                                  QUrl(QStringLiteral("http://photos.example/remote.png")),
                                  photos.add(QString::fromUtf8("写真 ż.png")),
                                  photos.add(QStringLiteral(".png"), QSize(1, 1)),
                                  photos.add(QStringLiteral("tall.png"), QSize(1, 20000))};
        Job job;
        BatchWorker worker;
        job.giveTo(worker, urls);
        QSignalSpy info(&worker, &BatchWorker::updateInfo);
        QSignalSpy finished(&worker, &BatchWorker::finished);
        worker.slotDoWork();
        QCOMPARE(info.count(), urls.size());
        QCOMPARE(info.last().at(1).toInt(), urls.size() - 1);
        QCOMPARE(finished.count(), 1);
        const QStringList results =
            QDir(job.results.folder()).entryList(QDir::Files | QDir::Hidden, QDir::Unsorted);
        QCOMPARE(QSet<QString>(results.begin(), results.end()),
                 QSet<QString>({QStringLiteral("good one.png"), QString::fromUtf8("写真 ż.png"),
                                QStringLiteral(".png"), QStringLiteral("tall.png")}));
        QCOMPARE(QImage(job.results.path(QStringLiteral("tall.png"))).size(), QSize(1, 20000));
    }

    void eachFailureLeavesOneLineInTheLog()
    {
        Photos photos;
        const QImage whole = noise(QSize(60, 40), 1);
        QBuffer cut;
        QVERIFY(whole.save(&cut, "PNG"));
        const QUrl good = photos.add(QStringLiteral("good.png"));
        const QList<QUrl> urls = {
            good,
            photos.addFile(QStringLiteral("bad\n.png"), "no picture"),
            photos.addFile(QStringLiteral("cut.png"), cut.data().left(20)),
            QUrl::fromLocalFile(photos.path(QStringLiteral("gone.png"))),
            photos.add(QStringLiteral("dot.png"), QSize(1, 1)),
            photos.add(QStringLiteral("taken.png")),
            good,
        };
        Job job;
        job.operations = {
            {QStringLiteral("Resize"), QStringLiteral("<P><Mode>0</Mode><Width>50</Width></P>")}};
        job.results.addFolder(QStringLiteral("taken.png"));
        BatchWorker worker;
        job.giveTo(worker, urls);
        QSignalSpy info(&worker, &BatchWorker::updateInfo);
        const QStringList lines = loggedBy([&] { worker.slotDoWork(); });
        QCOMPARE(info.count(), urls.size());
        const QStringList expected = {
            "Can't read the photo .*bad\\\\n.png", "Can't read the photo .*cut.png",
            "Can't read the photo .*gone.png",     "The flow leaves nothing of the photo .*dot.png",
            "Can't write the result .*taken.png",
        };
        QCOMPARE(lines.size(), expected.size());
        for (int i = 0; i < lines.size(); ++i) {
            const QRegularExpression line(QStringLiteral("^\\S+ Warning: ") + expected.at(i));
            QVERIFY2(line.match(lines.at(i)).hasMatch(), qPrintable(lines.at(i)));
        }

        job.rename = true;
        job.newName = QStringLiteral("../escaped");
        job.giveTo(worker, {good});
        const QStringList escaped = loggedBy([&] { worker.slotDoWork(); });
        QCOMPARE(escaped.size(), 1);
        QVERIFY(escaped.first().contains(QStringLiteral("Can't write the result")));
        QVERIFY(!QFile::exists(job.results.path(QStringLiteral("../escaped0.png"))));
    }

    void aStopEndsTheRunBetweenPhotos()
    {
        Photos photos;
        Job job;
        BatchWorker worker;
        job.giveTo(worker,
                   {photos.add(QStringLiteral("a.png")), photos.add(QStringLiteral("b.png")),
                    photos.add(QStringLiteral("c.png"))});
        connect(&worker, &BatchWorker::updateInfo, &worker, [&worker](const QImage&, int index) {
            if (index == 1) {
                worker.requestStop();
            }
        });
        QSignalSpy finished(&worker, &BatchWorker::finished);
        worker.slotDoWork();
        QCOMPARE(job.files(), QStringList({"a.png", "b.png"}));
        QCOMPARE(finished.count(), 1);
    }

    void aStopDuringAPauseLetsThePhotoInHandThrough()
    {
        Photos photos;
        Job job;
        StoppedInPause worker;
        job.giveTo(worker,
                   {photos.add(QStringLiteral("a.png")), photos.add(QStringLiteral("b.png")),
                    photos.add(QStringLiteral("c.png"))});
        connect(&worker, &BatchWorker::updateInfo, &worker, [&worker] { worker.setPaused(true); });
        worker.slotDoWork();
        QCOMPARE(job.files(), QStringList({"a.png", "b.png"}));
    }

    void aThreadLeftBeforeTheWorkEndsTheRunAllTheSame()
    {
        Photos photos;
        Job job;
        BatchThread thread;
        job.giveTo(*thread.worker(), {photos.add(QStringLiteral("a.png"))});
        std::atomic<int> finished{0};
        connect(
            thread.worker(), &BatchWorker::finished, thread.worker(), [&finished] { ++finished; },
            Qt::DirectConnection);
        thread.start();
        thread.quit();
        thread.waitUntilLeft();
        QCOMPARE(finished.load(), 1);
        QCOMPARE(job.files(), QStringList());
    }
};

TESSARIN_TEST(TestBatchWorker);
#include "tst_BatchWorker.moc"
