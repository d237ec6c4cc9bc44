#include "OpenInFileManager.h"

#include <QDesktopServices>
#include <QDir>
#include <QUrl>

#ifdef Q_OS_WIN
#include "platform/ExplorerWindows.h"

#include <QFileInfo>
#endif

namespace QMWidgets
{

#ifdef Q_OS_WIN

void openInFileManager(const QString& path)
{
    QString folder = path;
    folder.replace(QLatin1String("//"), QLatin1String("/"));
    if (!platform::showInExplorer(QDir::toNativeSeparators(folder).toStdWString())) {
        QDesktopServices::openUrl(
            QUrl(QLatin1String("file://") + QFileInfo(path).absoluteDir().absolutePath()));
    }
}

#else

void openInFileManager(const QString& path)
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(QDir::cleanPath(path)));
}

#endif

} // namespace QMWidgets
