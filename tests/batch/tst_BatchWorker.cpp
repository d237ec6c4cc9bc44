#include "batch/BatchThread.h"
#include "batch/BatchWorker.h"
#include "flow/Operations.h"
#include "support/ImageCompare.h"
#include "support/Photos.h"
#include "support/TestMain.h"
#include <MGraphX/GraphX.h>

#include <atomic>
#include <functional>
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
    void numbersTheFiles()
    {
        const QStringList expected[] = {{"out0.bmp", "out1.bmp", "out3.bmp"},
                                        {"out1.bmp", "out3.bmp", "out7.bmp"},
                                        {"out2.bmp", "out4.bmp", "out8.bmp"},
                                        {"a.bmp", "b.c.bmp", "d.bmp"}}; // no such numbers
        Photos photos;
        const QList<QUrl> urls = {photos.add(QStringLiteral("a.png")),
                                  photos.add(QStringLiteral("b.c.png")),
                                  photos.addFile(QStringLiteral("bad.png"), "no picture"),
                                  photos.add(QStringLiteral("d.png"))};
        BatchWorker worker;
        for (int numbers = 0; numbers < 4; ++numbers) {
            Job job;
            job.format = QStringLiteral("BMP");
            job.rename = true;
            job.numbers = numbers;
            job.giveTo(worker, urls);
            worker.slotDoWork();
            QCOMPARE(job.files(), expected[numbers]);
        }
    }

    void whatFailsIsPassedOverWithOneLineInTheLog()
    {
        Photos photos;
        QBuffer whole;
        QVERIFY(noise(QSize(60, 40), 1).save(&whole, "PNG"));
        Job job;
        job.operations = {
            {QStringLiteral("Sharpen"), QString()}, // there is none
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

    void eachRunDrawsItsOwnLogosOnAllPhotos()
    {
        Photos photos;
        const QList<QUrl> urls = {photos.add(QStringLiteral("a.png")),
                                  photos.add(QStringLiteral("b.png"), QSize(50, 70), 2)};
        const auto mark = [](quint32 seed, const char* position) {
            const QString logo =
                GraphX::imageToDataUrl(noise(QSize(9, 7), seed), QStringLiteral("PNG"), -1);
            return qMakePair(
                QStringLiteral("Watermark"),
                QStringLiteral("<P><Mode>1</Mode><Size>40</Size><Position>%1</Position>"
                               "<Transparency>0</Transparency><ImageData>%2</ImageData>"
                               "</P>")
                    .arg(QLatin1String(position), logo));
        };
        BatchWorker worker;
        for (const quint32 seed : {5u, 6u}) {
            Job job;
            job.operations = {mark(seed, "TopLeft"), mark(7, "BottomRight")};
            job.giveTo(worker, urls);
            worker.slotDoWork();
            for (const QString& name : {QStringLiteral("a.png"), QStringLiteral("b.png")}) {
                QImage expected = QImage(photos.path(name)).convertToFormat(QImage::Format_ARGB32);
                for (const auto& [operation, parameters] : job.operations) {
                    expected = findOperation(operation)->processFromXml(expected, parameters);
                }
                COMPARE_IMAGES(QImage(job.results.path(name)), expected);
            }
        }
    }

    void aStopEndsTheRunBetweenPhotos()
    {
        for (const bool inPause : {false, true}) {
            Photos photos;
            Job job;
            WaitingWorker worker;
            job.giveTo(worker,
                       {photos.add(QStringLiteral("a.png")), photos.add(QStringLiteral("b.png")),
                        photos.add(QStringLiteral("c.png"))});
            // The photo that waits behind the pause is still let through.
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
    }

    void largePicturesAreTakenOneByOne()
    {
        const struct {
            int side;
            bool stopped;
            int naps;
            int files;
        } rows[] = {{4200, false, 4, 2}, {4200, true, 3, 1}, {300, false, 0, 2}};
        for (const auto& row : rows) {
            Photos photos;
            Job job;
            job.format = QStringLiteral("JPEG");
            job.operations = {
                {QStringLiteral("Resize"), QStringLiteral("<P><Mode>2</Mode><Width>%1</Width>"
                                                          "<Height>%1</Height></P>")
                                               .arg(row.side)}};
            WaitingWorker worker;
            worker.awaitPictures();
            QImage underWay;
            connect(&worker, &BatchWorker::updateInfo, &worker,
                    [&underWay](const QImage& image) { underWay = image; });
            worker.m_inThirdNap = [&] {
                if (row.stopped) {
                    worker.requestStop();
                } else {
                    worker.pictureTaken(underWay);
                }
            };
            job.giveTo(worker, {photos.add(QStringLiteral("a.png"), QSize(1, 1)),
                                photos.add(QStringLiteral("b.png"), QSize(1, 1))});
            worker.slotDoWork();
            QCOMPARE(worker.m_naps, row.naps);
            QCOMPARE(job.files().size(), row.files);
        }
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
        thread.leave();
        QCOMPARE(finished.load(), 1);
        QCOMPARE(job.files(), QStringList());
    }
};

TESSARIN_TEST(TestBatchWorker);
#include "tst_BatchWorker.moc"
