#include "OwnHome.h"

#include "app/Startup.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QStandardPaths>

namespace
{

bool liesIn(const QString& path, const QString& folder)
{
    return QDir::cleanPath(path).startsWith(QDir::cleanPath(folder));
}

bool makePart(const char* variable, const QString& path)
{
    return QDir().mkpath(path) && qputenv(variable, QFile::encodeName(path));
}

} // namespace

bool OwnHome::moveInto(const QString& folder)
{
    const QDir home(folder);
    const bool made = makePart("HOME", folder) &&
                      makePart("XDG_CONFIG_HOME", home.filePath(QStringLiteral("config"))) &&
                      makePart("XDG_DATA_HOME", home.filePath(QStringLiteral("data"))) &&
                      makePart("XDG_CACHE_HOME", home.filePath(QStringLiteral("cache"))) &&
                      makePart("XDG_RUNTIME_DIR", home.filePath(QStringLiteral("runtime")));
    if (!made) {
        return false;
    }
    // The toolkit warns about a runtime folder that others may look into.
    QFile::setPermissions(home.filePath(QStringLiteral("runtime")),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const QSettings settings(kOrganizationName, kApplicationName);
    return liesIn(QDir::homePath(), folder) && liesIn(settings.fileName(), folder) &&
           liesIn(QStandardPaths::writableLocation(QStandardPaths::PicturesLocation), folder);
}
