#include "FuzzSupport.h"

#include "batch/BatchWorker.h"

#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QTemporaryDir>

namespace
{

/// Each of them once more decides on the picture's size or format.
const BatchWorker::Operations kFlow = {
    {QStringLiteral("Rotate"), QStringLiteral("<P><Angle>90</Angle></P>")},
    {QStringLiteral("Histogram optimizer"), QStringLiteral("<P><Left>5</Left></P>")},
    {QStringLiteral("Frame"), QStringLiteral("<P><Width>5</Width><Color>#00ff00</Color></P>")}};

/// A few bytes may tell of a picture of gigabytes: reading one tells nothing new.
bool isLarge(const QString& file)
{
    constexpr qint64 kMostPixels = 1 << 16;
    const QSize size = QImageReader(file).size();
    return qint64(size.width()) * size.height() > kMostPixels;
}

} // namespace

/// An image file of any format, as the batch takes it through a flow into a result.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    fuzzApplication();
    static const QTemporaryDir folder;
    const QString photo = folder.filePath(QStringLiteral("photo"));
    const QString results = folder.filePath(QStringLiteral("results/"));
    QDir().mkpath(results);
    QFile file(photo);
    require(file.open(QIODevice::WriteOnly) &&
                file.write(reinterpret_cast<const char*>(data), qint64(size)) == qint64(size),
            "the photo can be written");
    file.close();
    if (isLarge(photo)) {
        return 0;
    }

    BatchWorker worker;
    bool hasPicture = false;
    QObject::connect(&worker, &BatchWorker::updateInfo, &worker,
                     [&hasPicture](const QImage& image) { hasPicture = !image.isNull(); });
    worker.setJob(QStringLiteral("BMP"), -1, false, QString(), 0, results,
                  {QUrl::fromLocalFile(photo)}, kFlow);
    worker.slotDoWork();
    require(QFile::remove(results + QStringLiteral("photo.bmp")) == hasPicture,
            "there is a result if there is a picture");
    require(file.open(QIODevice::ReadOnly) && file.readAll().size() == int(size),
            "the photo stays as it was");
    return 0;
}
