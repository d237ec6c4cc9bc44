#include "support/Photos.h"

#include <QDir>
#include <QFile>
#include <random>

QImage noise(const QSize& size, quint32 seed, QImage::Format format, bool opaque)
{
    std::mt19937 random(seed);
    QImage image(size, format);
    for (int y = 0; y < image.height(); ++y) {
        auto* row = reinterpret_cast<quint32*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            row[x] = quint32(random()) | (opaque ? 0xff000000u : 0u);
        }
    }
    return image;
}

QUrl Photos::add(const QString& name, const QSize& size, quint32 seed)
{
    return add(name, noise(size, seed, QImage::Format_ARGB32, true));
}

QUrl Photos::add(const QString& name, const QImage& picture)
{
    const QString file = path(name);
    if (!picture.save(file)) {
        qFatal("Can't write the test photo %s", qPrintable(file));
    }
    return QUrl::fromLocalFile(file);
}

QUrl Photos::addFile(const QString& name, const QByteArray& content)
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("Can't write the test file %s", qPrintable(file.fileName()));
    }
    return QUrl::fromLocalFile(file.fileName());
}

QUrl Photos::addFolder(const QString& name)
{
    QDir(m_dir.path()).mkpath(name);
    return QUrl::fromLocalFile(path(name));
}
