#include "support/TestHome.h"

#include <QDir>
#include <QSettings>

TestHome::TestHome()
{
    if (!m_dir.isValid()) {
        qFatal("No temporary home: %s", qPrintable(m_dir.errorString()));
    }
    const struct {
        const char* variable;
        const char* folder;
    } folders[] = {{"XDG_CONFIG_HOME", "config"},
                   {"XDG_DATA_HOME", "data"},
                   {"XDG_CACHE_HOME", "cache"},
                   {"XDG_RUNTIME_DIR", "runtime"}};
    for (const auto& entry : folders) {
        const QString path = m_dir.filePath(QLatin1String(entry.folder));
        QDir().mkpath(path);
        qputenv(entry.variable, path.toLocal8Bit());
    }
    QFile::setPermissions(m_dir.filePath(QStringLiteral("runtime")),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv("HOME", m_dir.path().toLocal8Bit());
    // The check for updates would break into the test that runs two seconds after the start.
    QSettings(QStringLiteral("Corvane"), QStringLiteral("Tessarin"))
        .setValue(QStringLiteral("Tessarin/checkupdates"), false);
}
