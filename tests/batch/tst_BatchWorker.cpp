#include "batch/BatchThread.h"
#include "batch/BatchWorker.h"
#include "support/ImageCompare.h"
#include "support/Photos.h"
#include "support/TestMain.h"

#include <atomic>
#include <functional>
#include <MGraphX/GraphX.h>
#include <QBuffer>
#include <QDir>
#include <QMWidgets/App.h>
#include <QMWidgets/ProtocolLog.h>
#include <QRegularExpression>
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

    QStringList files() const
    {
        return QDir(results.folder()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

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

/// A worker that does in its third round of waiting, and in each one after, what it was told to.
class WaitingWorker : public BatchWorker
{
public:
    std::function<void()> m_inThirdNap;
    int m_naps = 0;

protected:
    void nap(unsigned long) override
    {
        if (++m_naps >= 3) {
            m_inThirdNap();
        }
    }
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

    void whatFailsIsPassedOverWithOneLineInTheLog()
    {
        Photos photos;
        QBuffer whole;
        QVERIFY(noise(QSize(60, 40), 1).save(&whole, "PNG"));
        Job job;
        job.operations = {
            {QStringLiteral("Resize"), QStringLiteral("<P><Mode>0</Mode><Width>50</Width></P>")}};
        job.results.addFolder(QStringLiteral("taken.png"));
        QList<QUrl> urls = {photos.add(QStringLiteral("good one.png")),
                            photos.add(QString::fromUtf8("写真 ż.png")),
                            photos.add(QStringLiteral(".png")),
                            photos.add(QStringLiteral("tall.png"), QSize(2, 20000))};
        QStringList expected;
        const auto addFailing = [&](const QUrl& photo, const char* line) {
            urls += photo;
            expected += QStringLiteral("^\\S+ Warning: %1$").arg(QLatin1String(line));
        };
        const char* const unread = "Can't read the photo \".*\", .*";
        addFailing(photos.addFile(QStringLiteral("bad\n.png"), "no picture"),
                   "Can't read the photo .*bad\\\\n.png\".*");
        addFailing(photos.addFile(QStringLiteral("cut.png"), whole.data().left(20)), unread);
        addFailing(photos.addFile(QStringLiteral("empty.png"), QByteArray()), unread);
        addFailing(QUrl::fromLocalFile(photos.path(QStringLiteral("gone.png"))), unread);
        addFailing(photos.addFolder(QStringLiteral("folder")), unread);
        addFailing(QUrl(QStringLiteral("http://photos.example/remote.png")), unread);
        addFailing(photos.add(QStringLiteral("dot.png"), QSize(1, 1)),
                   "The flow leaves nothing of the photo .*dot.png\".*");
        addFailing(photos.add(QStringLiteral("taken.png")),
                   "Can't write the result .*taken.png\".*");

        BatchWorker worker;
        job.giveTo(worker, urls);
        QSignalSpy info(&worker, &BatchWorker::updateInfo);
        QStringList lines = loggedBy([&] { worker.slotDoWork(); });
        QCOMPARE(info.count(), urls.size());
        QCOMPARE(job.files(), QStringList({".png", "good one.png", "tall.png",
                                           QString::fromUtf8("写真 ż.png")}));
        QCOMPARE(QImage(job.results.path(QStringLiteral("tall.png"))).size(), QSize(1, 20000));

        job.rename = true;
        job.newName = QStringLiteral("../escaped");
        job.giveTo(worker, {urls.first()});
        lines += loggedBy([&] { worker.slotDoWork(); });
        expected += QStringLiteral("Can't write the result .*/\\.\\./escaped0.png");
        QVERIFY(!QFile::exists(job.results.path(QStringLiteral("../escaped0.png"))));
        QCOMPARE(lines.size(), expected.size());
        for (int i = 0; i < lines.size(); ++i) {
            QVERIFY2(lines.at(i).contains(QRegularExpression(expected.at(i))),
                     qPrintable(lines.at(i)));
        }
    }

    void aStopEndsTheRunBetweenPhotos_data()
    {
        QTest::addColumn<bool>("inPause");
        QTest::newRow("at once") << false;
        // The photo that waits behind the pause is still let through.
        QTest::newRow("during a pause") << true;
    }

    void aStopEndsTheRunBetweenPhotos()
    {
        QFETCH(bool, inPause);
        Photos photos;
        Job job;
        WaitingWorker worker;
        job.giveTo(worker,
                   {photos.add(QStringLiteral("a.png")), photos.add(QStringLiteral("b.png")),
                    photos.add(QStringLiteral("c.png"))});
        worker.m_inThirdNap = [&worker] {
            worker.requestStop();
        };
        connect(&worker, &BatchWorker::updateInfo, &worker, [&](const QImage&, int index) {
            worker.setPaused(inPause);
            if (!inPause && index == 1) {
                worker.requestStop();
            }
        });
        QSignalSpy finished(&worker, &BatchWorker::finished);
        worker.slotDoWork();
        QCOMPARE(job.files(), QStringList({"a.png", "b.png"}));
        QCOMPARE(finished.count(), 1);
    }

    void largePicturesAreTakenOneByOne_data()
    {
        QTest::addColumn<int>("side");
        QTest::addColumn<bool>("stopped");
        QTest::addColumn<int>("naps");
        QTest::addColumn<int>("files");
        QTest::newRow("large") << 4200 << false << 4 << 2;
        QTest::newRow("stopped") << 4200 << true << 3 << 1;
        QTest::newRow("small") << 300 << false << 0 << 2;
    }

    void largePicturesAreTakenOneByOne()
    {
        QFETCH(int, side);
        QFETCH(bool, stopped);
        Photos photos;
        Job job;
        job.format = QStringLiteral("JPEG");
        job.operations = {{QStringLiteral("Resize"),
                           QStringLiteral("<P><Mode>2</Mode><Width>%1</Width><Height>%1</Height>"
                                          "</P>")
                               .arg(side)}};
        WaitingWorker worker;
        worker.awaitPictures();
        QImage underWay;
        connect(&worker, &BatchWorker::updateInfo, &worker,
                [&underWay](const QImage& image) { underWay = image; });
        worker.m_inThirdNap = [&] {
            if (stopped) {
                worker.requestStop();
            } else {
                worker.pictureTaken(underWay);
            }
        };
        job.giveTo(worker, {photos.add(QStringLiteral("a.png"), QSize(1, 1)),
                            photos.add(QStringLiteral("b.png"), QSize(1, 1))});
        worker.slotDoWork();
        QTEST(worker.m_naps, "naps");
        QTEST(job.files().size(), "files");
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
