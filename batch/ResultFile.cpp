#include "batch/ResultFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>

#include <filesystem>

namespace
{

/// Where a result is written until it is whole. A short name, since the result's may be as long as
/// names can be, and the same one each time: what a sudden end has left is written over. No result
/// ends like this.
QString unfinishedBeside(const QString& file)
{
    return QStringLiteral("%1/unfinished-%2.part")
        .arg(QFileInfo(file).path())
        .arg(QCoreApplication::applicationPid());
}

/// A link or a device is written through, and what may not be written to stays.
bool mayBeReplaced(const QFileInfo& file)
{
    return !file.isSymLink() && (!file.exists() || (file.isFile() && file.isWritable()));
}

std::filesystem::path systemPath(const QString& path)
{
#ifdef Q_OS_WIN
    return path.toStdWString();
#else
    return QFile::encodeName(path).toStdString();
#endif
}

/// Gives the file the other's name in one step, and that one's place if there is one.
bool moveOver(const QString& from, const QString& to)
{
    std::error_code error;
    std::filesystem::rename(systemPath(from), systemPath(to), error);
    return !error;
}

/// Leaves no file if it can't be written whole.
bool writeWhole(const QImage& image, const QString& file, const QByteArray& format, int quality)
{
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

} // namespace

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
    const QString unfinished = unfinishedBeside(file);
    // Where nothing can be made, what is there may still be written to.
    if (!mayBeReplaced(QFileInfo(file)) || !QFile(unfinished).open(QIODevice::WriteOnly)) {
        return writeWhole(image, file, format, quality);
    }
    if (writeWhole(image, unfinished, format, quality) && moveOver(unfinished, file)) {
        return true;
    }
    QFile::remove(unfinished);
    return false;
}
