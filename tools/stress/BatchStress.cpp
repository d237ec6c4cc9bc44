#include "BatchStress.h"

#include "batch/BatchDialog.h"
#include "batch/BatchWorker.h"
#include "flow/Operations.h"
#include "intake/CommonData.h"
#include "intake/ItemsModel.h"
#include "StressPhotos.h"
#include "support/PeakMemory.h"
#include <MGraphX/HeapPolicy.h>
#include <QMWidgets/App.h>

#include <cstdio>
#include <QBuffer>
#include <QCryptographicHash>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QHash>
#include <QVector>

namespace
{

constexpr int kQuality = 90;
/// What the program itself takes, the encoder and the decoder, the picture that the dialog shows,
/// and the heap kept for the smaller photos.
constexpr double kConstantMegabytes = 300;

struct Flow {
    BatchWorker::Operations operations;
    double imagesAtOnce; ///< how much memory it needs, in largest photos
};

/// All of it keeps the shape, so there's never more than the photo.
const Flow kSameShape = {
    {{QStringLiteral("Brightness, Contrast, Saturation"),
      QStringLiteral("<P><Brightness>20</Brightness><Contrast>10</Contrast></P>")},
     {QStringLiteral("Vignetting"), QStringLiteral("<P><Radius>60</Radius></P>")},
     {QStringLiteral("Watermark"), QStringLiteral("<P><Text>Stress</Text><Size>30</Size></P>")},
     {QStringLiteral("Invert"), QString()}},
    1.0};
/// A turn and a frame read one image and write another. At the end there's the photo, 1.5 by 1, and
/// the photo with a frame of 0.05, 1.6 by 1.1.
const Flow kNewShape = {
    {{QStringLiteral("Brightness, Contrast, Saturation"),
      QStringLiteral("<P><Brightness>20</Brightness><Contrast>10</Contrast></P>")},
     {QStringLiteral("Rotate"), QStringLiteral("<P><Angle>90</Angle></P>")},
     {QStringLiteral("Frame"), QStringLiteral("<P><Width>5</Width><Color>#00ff00</Color></P>")}},
    1.0 + 1.6 * 1.1 / 1.5};

QByteArray expectedResult(const QString& photo, const Flow& flow)
{
    QImage image = QImage(photo).convertToFormat(QImage::Format_ARGB32);
    for (const auto& [name, parameters] : flow.operations) {
        image = findOperation(name)->processFromXml(image, parameters);
    }
    QBuffer buffer;
    image.save(&buffer, "JPEG", kQuality);
    return buffer.data();
}

/// The content of a folder's files by their names; as checksums, since it may be much.
QHash<QString, QByteArray> checksums(const QDir& folder)
{
    QHash<QString, QByteArray> all;
    for (const QString& name : folder.entryList(QDir::Files | QDir::Hidden)) {
        QFile file(folder.filePath(name));
        QCryptographicHash hash(QCryptographicHash::Sha1);
        // A file with a hole has nothing to read but zeros.
        if (file.open(QIODevice::ReadOnly) && file.size() < 1 << 30 && hash.addData(&file)) {
            all[name] = hash.result();
        } else {
            all[name] = QByteArray::number(file.size());
        }
    }
    return all;
}

QDir makeEmptyResultsFolder()
{
    QDir folder(QMWidgets::App::defaultOutputFolder(true));
    for (const QString& run : folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QDir(folder.filePath(run)).removeRecursively();
    }
    return folder;
}

void run(const QList<StressPhoto>& photos, const Flow& flow)
{
    QList<QUrl> urls;
    for (const StressPhoto& photo : photos) {
        urls += photo.url;
    }
    CommonData::instance()->model()->setItems(urls);
    for (const StressPhoto& photo : photos) {
        if (photo.fate == Fate::Vanished) {
            QFile::remove(photo.url.toLocalFile());
        }
    }
    QMWidgets::App* const app = QMWidgets::App::app();
    app->setSettingsValue(QStringLiteral("KeyOpenLocation"), false);
    app->setSettingsValue(QStringLiteral("KeyFormat"), QStringLiteral("JPEG"));
    app->setSettingsValue(QStringLiteral("KeyQuality"), kQuality);
    BatchDialog dialog;
    dialog.startBatch(flow.operations);
    std::puts("ready");
    std::fflush(stdout);
    dialog.exec();
}

/// How many of the photos have their result, or -1 if one is wrong or too much.
int countResults(const QList<StressPhoto>& photos, const Flow& flow, const QDir& runs)
{
    const QStringList folders = runs.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    QDir folder(runs.filePath(folders.value(0)));
    QStringList files = folder.entryList(QDir::Files | QDir::Hidden);
    int count = 0;
    for (const StressPhoto& photo : photos) {
        const QString path = photo.url.toLocalFile();
        const QString name = QFileInfo(path).completeBaseName() + QLatin1String(".jpeg");
        if (photo.fate != Fate::Saved || !files.removeOne(name)) {
            continue;
        }
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly) || file.readAll() != expectedResult(path, flow)) {
            std::printf("  not what it should be: %s\n", qPrintable(file.fileName()));
            return -1;
        }
        ++count;
    }
    if (!files.isEmpty()) {
        std::printf("  too much: %s\n", qPrintable(files.first()));
        return -1;
    }
    return count;
}

} // namespace

int stressBatch(int count, int largestWidth, bool sameShape, bool mayMiss)
{
    const Flow& flow = sameShape ? kSameShape : kNewShape;
    const QDir sources(QDir::homePath() + QStringLiteral("/photos"));
    const QList<StressPhoto> photos = makeStressPhotos(sources.path(), count, largestWidth);
    int good = 0;
    QHash<QString, QByteArray> before = checksums(sources);
    for (const StressPhoto& photo : photos) {
        good += photo.fate == Fate::Saved ? 1 : 0;
        if (photo.fate == Fate::Vanished) {
            before.remove(photo.url.fileName());
        }
    }

    const QDir results = makeEmptyResultsFolder();
    MGraphX::releaseHeap();
    resetPeak();
    QElapsedTimer clock;
    clock.start();
    run(photos, flow);
    const double seconds = double(clock.elapsed()) / 1000;
    const double peak = peakMegabytes();
    const QSize size = largestPhoto(largestWidth);
    const double largest = 4.0 * size.width() * size.height() / 1048576;
    const double most = flow.imagesAtOnce * largest + kConstantMegabytes;

    const int saved = countResults(photos, flow, results);
    std::printf("%d photos in %.1f s, peak %.0f MB (largest image %.0f MB), %d of %d results\n",
                int(photos.size()), seconds, peak, largest, saved, good);
    const bool sameSources = checksums(sources) == before;
    if (!sameSources) {
        std::printf("  the sources have changed\n");
    }
    if (peak > most) {
        std::printf("  more memory than %.0f MB\n", most);
    }
    const bool enough = mayMiss ? saved >= 0 && saved < good : saved == good;
    return enough && sameSources && peak <= most ? 0 : 1;
}

int checkResults()
{
    const QDir runs(QMWidgets::App::defaultOutputFolder(true));
    int whole = 0;
    int unfinished = 0;
    for (const QString& run : runs.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QDir folder(runs.filePath(run));
        for (const QString& name : folder.entryList(QDir::Files | QDir::Hidden)) {
            QFile file(folder.filePath(name));
            if (name.endsWith(QLatin1String(".part"))) {
                ++unfinished;
            } else if (file.open(QIODevice::ReadOnly) && file.readAll().endsWith("\xff\xd9")) {
                ++whole;
            } else {
                std::printf("  not whole: %s\n", qPrintable(file.fileName()));
                return 1;
            }
        }
    }
    std::printf("%d results are whole, %d unfinished\n", whole, unfinished);
    return unfinished <= 1 ? 0 : 1;
}
