#include "App.h"

#include "WholeFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace QMWidgets
{

namespace
{

QString folder(const QString& path, bool create)
{
    if (create && !QDir(path).exists()) {
        // A folder that can't be made stays absent: who writes into it will notice.
        static_cast<void>(QDir().mkpath(path));
    }
    return path;
}

QString location(QStandardPaths::StandardLocation type)
{
    return QStandardPaths::standardLocations(type).value(0);
}

/// The place of the application's own files under one of the user's folders.
QString under(QStandardPaths::StandardLocation type)
{
    return QStringLiteral("%1/%2/%3/")
        .arg(location(type), QCoreApplication::organizationName(),
             QCoreApplication::applicationName());
}

} // namespace

QString App::appHomeFolder(bool create)
{
    return folder(QDir::homePath() + QLatin1Char('/') + applicationName() + QLatin1Char('/'),
                  create);
}

QString App::appDataFolder(bool create)
{
    return folder(location(QStandardPaths::AppLocalDataLocation), create);
}

QString App::appCacheFolder(bool create)
{
    return folder(location(QStandardPaths::CacheLocation), create);
}

QString App::appDocumentsFolder(bool create)
{
    return folder(under(QStandardPaths::DocumentsLocation), create);
}

QString App::defaultOutputFolder(bool create)
{
    return folder(under(QStandardPaths::PicturesLocation), create);
}

QString App::appMusicFolder(bool create)
{
    return folder(under(QStandardPaths::MusicLocation), create);
}

QString App::appMoviesFolder(bool create)
{
    return folder(under(QStandardPaths::MoviesLocation), create);
}

bool App::hasNoFolders()
{
    using Folder = QString (*)(bool);
    const Folder folders[] = {appHomeFolder,  appDocumentsFolder,  appCacheFolder,
                              appDataFolder,  defaultOutputFolder, appMusicFolder,
                              appMoviesFolder};
    for (const Folder path : folders) {
        if (QFileInfo::exists(path(false))) {
            return false;
        }
    }
    return true;
}

bool App::copyFileToFolder(const QString& source, const QString& folderPath, const QString& newName)
{
    folder(folderPath, true);
    const QString name = newName.isEmpty() ? QFileInfo(source).fileName() : newName;
    const QString target = folderPath + QLatin1Char('/') + name;
    if (QFileInfo::exists(target)) {
        return true;
    }
    QFile input(source);
    if (!input.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray content = input.readAll();
    if (input.error() != QFileDevice::NoError) {
        return false;
    }
    return writeWholeFile(target, content);
}

} // namespace QMWidgets
