#include "WholeFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <filesystem>
#ifdef Q_OS_WIN
#include <io.h>
#else
#include <unistd.h>
#endif

namespace QMWidgets
{

namespace
{

constexpr int kMostLinks = 100; // in a row; links may lead round

/// Where a file lies to which a link may lead, be it there or not.
QFileInfo behindLinks(const QString& path)
{
    QFileInfo file(path);
    for (int i = 0; i < kMostLinks && file.isSymLink(); ++i) {
        file.setFile(file.symLinkTarget());
    }
    return file;
}

bool mayBeReplaced(const QFileInfo& file)
{
    return !file.exists() || (file.isFile() && file.isWritable());
}

/// Where a file is written until it is whole. A short name, since the file's may be as long as
/// names can be, and the same one each time: what a sudden end has left is written over.
QString unfinishedBeside(const QFileInfo& file)
{
    return QStringLiteral("%1/unfinished-%2.part")
        .arg(file.path())
        .arg(QCoreApplication::applicationPid());
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

/// Waits until the disk has the file. Not every file system can do that, so failing is no error.
void syncToDisk(const QFileDevice& file)
{
#ifdef Q_OS_WIN
    static_cast<void>(_commit(file.handle()));
#else
    static_cast<void>(fsync(file.handle()));
#endif
}

} // namespace

bool writeWholeFile(const QString& path, const FileWriter& write)
{
    const QFileInfo former = behindLinks(path);
    const QString unfinished = unfinishedBeside(former);
    if (!mayBeReplaced(former) || !writeOrRemove(unfinished, write)) {
        return false;
    }
    if (former.exists()) {
        // A file system without permissions is no reason to lose the file.
        static_cast<void>(QFile::setPermissions(unfinished, former.permissions()));
    }
    if (moveOver(unfinished, former.filePath())) {
        return true;
    }
    QFile::remove(unfinished);
    return false;
}

bool writeWholeFile(const QString& path, const QByteArray& content)
{
    return writeWholeFile(path, [&content](QFileDevice& file) {
        const bool isWritten = file.write(content) == content.size() && file.flush();
        syncToDisk(file);
        return isWritten;
    });
}

bool writeOrRemove(const QString& path, const FileWriter& write)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    // A writer may not notice that the last buffered bytes find no room; the flush fails then.
    if (write(file) && file.flush()) {
        return true;
    }
    // Removing the open file would first flush it once more, and give up when that fails.
    file.close();
    QFile::remove(path);
    return false;
}

} // namespace QMWidgets
