#include "batch/ResultFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>

bool liesIn(const QString& folder, const QString& file)
{
    const QFileInfo cleaned(QDir::cleanPath(QFileInfo(file).absoluteFilePath()));
    return cleaned.absolutePath() == QDir::cleanPath(QFileInfo(folder).absoluteFilePath());
}

bool saveResult(const QImage& image, const QString& file, const QByteArray& format, int quality)
{
    if (image.isNull()) {
        return false;
    }
    QFile target(file);
    if (!target.open(QIODevice::WriteOnly)) {
        return false;
    }
    // The writer doesn't notice when the last buffered bytes find no room: only the flush tells.
    if (image.save(&target, format.constData(), quality) && target.flush()) {
        return true;
    }
    // Removing the open file would first flush it once more, and give up when that fails.
    target.close();
    QFile::remove(file);
    return false;
}
