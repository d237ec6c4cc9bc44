#include "OpenInFileManager.h"

#include <QDesktopServices>
#include <QDir>
#include <QUrl>

#ifdef Q_OS_WIN
#include <QFileInfo>
#include <windows.h>

#include <shellapi.h>
#endif

namespace QMWidgets
{

#ifdef Q_OS_WIN

void openInFileManager(const QString& path)
{
    QString folder = path;
    folder.replace(QLatin1String("//"), QLatin1String("/"));
    const QString parameters =
        QStringLiteral("/e,/select,\"%1\"").arg(QDir::toNativeSeparators(folder));
    const HINSTANCE answer =
        ShellExecuteW(GetDesktopWindow(), L"open", L"explorer.exe",
                      reinterpret_cast<LPCWSTR>(parameters.utf16()), nullptr, SW_SHOWNORMAL);
    // The shell's answer is no handle but a number: up to 32 it tells of an error.
    if (reinterpret_cast<INT_PTR>(answer) < 33) {
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
