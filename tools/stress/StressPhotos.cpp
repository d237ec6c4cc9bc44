#include "StressPhotos.h"

#include "support/Photos.h"

#include <QDir>
#include <QFile>

namespace
{

constexpr int kLargest = 2;
/// As long as a name may be with ".ppm", and one letter too long with ".jpeg".
constexpr int kLongestBase = 251;

QString writeFile(const QString& path, const QByteArray& content, qint64 size)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() ||
        !file.resize(size)) {
        qFatal("Can't write %s", qPrintable(path));
    }
    return path;
}

QString writeImage(const QString& path, const QImage& image)
{
    if (!image.save(path)) {
        qFatal("Can't write %s", qPrintable(path));
    }
    return path;
}

/// All black: a file with a hole takes no room on the disk.
QString writeLargest(const QString& path, const QSize& size)
{
    const QByteArray header =
        QStringLiteral("P6 %1 %2 255\n").arg(size.width()).arg(size.height()).toLatin1();
    return writeFile(path, header, header.size() + 3LL * size.width() * size.height());
}

} // namespace

QList<StressPhoto> makeStressPhotos(const QString& folder, int count, int largestWidth)
{
    QDir(folder).removeRecursively();
    QDir().mkpath(folder);
    QList<StressPhoto> photos;
    const auto add = [&photos](const QString& path, Fate fate) {
        photos.append({QUrl::fromLocalFile(path), fate});
    };
    for (int i = 0; i < count; ++i) {
        const QString base = QStringLiteral("%1/photo%2.").arg(folder).arg(i);
        const QSize size(300 + i % 7, 200 + i % 5);
        const auto seed = quint32(i);
        if (i == kLargest) {
            const QSize largest = largestPhoto(largestWidth);
            add(writeLargest(base + QLatin1String("ppm"), largest), Fate::Saved);
        } else if (i % 10 == 3) {
            add(writeFile(base + QLatin1String("png"), "no picture", 10), Fate::Unreadable);
        } else if (i % 10 == 7) {
            add(writeImage(base + QLatin1String("bmp"), noise(size, seed)), Fate::Vanished);
        } else if (i % 10 == 9) {
            const QString name = QString::number(i).rightJustified(kLongestBase, QLatin1Char('x'));
            add(writeImage(folder + QLatin1Char('/') + name + QLatin1String(".ppm"),
                           noise(size, seed)),
                Fate::Unwritable);
        } else {
            const char* const kind = i % 2 == 0 ? "jpeg" : "png";
            add(writeImage(base + QLatin1String(kind), noise(size, seed)), Fate::Saved);
        }
    }
    return photos;
}
