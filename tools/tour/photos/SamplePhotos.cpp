#include "photos/SamplePhotos.h"

#include "photos/AlpineLake.h"
#include "photos/Cutout.h"
#include "photos/Hills.h"
#include "photos/MistyForest.h"
#include "photos/SeaSunset.h"

#include <QDir>
#include <QImageReader>

namespace
{

constexpr int kQuality = 93;
constexpr int kDotsPerMeter = 11811; // 300 to the inch, as cameras write it

bool write(const SamplePhoto& photo, const QString& path)
{
    QImage image = photo.paint(photo.size);
    image.setDotsPerMeterX(kDotsPerMeter);
    image.setDotsPerMeterY(kDotsPerMeter);
    return image.save(path, nullptr, image.hasAlphaChannel() ? -1 : kQuality);
}

} // namespace

const QVector<SamplePhoto>& samplePhotos()
{
    static const QVector<SamplePhoto> photos = {
        {QStringLiteral("Mountain lake.jpg"), {3000, 2000}, paintAlpineLake},
        {QStringLiteral("Evening fields.jpg"), {3000, 2000}, paintHills},
        {QStringLiteral("Sunset at sea.jpg"), {3200, 1800}, paintSeaSunset},
        {QStringLiteral("Misty forest.jpg"), {2000, 3000}, paintMistyForest},
        {QStringLiteral("Apple.png"), {2400, 1800}, paintApple},
    };
    return photos;
}

QStringList writeSamplePhotos(const QString& folder, bool keep)
{
    QStringList paths;
    for (const SamplePhoto& photo : samplePhotos()) {
        const QString path = QDir(folder).filePath(photo.fileName);
        const bool isThere = keep && QImageReader(path).size() == photo.size;
        if (!isThere && !write(photo, path)) {
            return QStringList();
        }
        paths.append(path);
    }
    return paths;
}
