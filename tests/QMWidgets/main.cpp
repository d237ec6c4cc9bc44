#include "support/TestHome.h"
#include "support/TestMain.h"

#include <cstring>
#include <QMWidgets/App.h>
#include <QMWidgets/ProtocolLog.h>
#include <QMWidgets/UpdateService.h>
#include <QSettings>
#include <QTimer>

namespace
{

const QString kOrganization = QStringLiteral("Corvane");
const QString kApplication = QStringLiteral("Tessarin");

/// What the test of the protocol log runs as a process of its own.
int dieWithMessage(int argc, char** argv)
{
    const QMWidgets::App app(argc, argv, kOrganization, kApplication);
    qWarning("this one is dropped");
    QMWidgets::installProtocolHandler();
    qFatal("the end");
}

/// The first seconds of a program whose last check for updates is long ago: until it has made one,
/// or beyond the time at which it would.
int startWithUpdates(int argc, char** argv)
{
    const TestHome home;
    const QString lastCheck = QStringLiteral("Tessarin/LastUpdateCheck");
    const QString longAgo = QStringLiteral("2001-01-01");
    {
        QSettings settings(kOrganization, kApplication);
        settings.setValue(QStringLiteral("Tessarin/checkupdates"), QLatin1String(argv[3]));
        settings.setValue(lastCheck, longAgo);
    }
    QMWidgets::App app(argc, argv, kOrganization, kApplication);
    app.setUpdateService({{QString::fromLatin1(argv[2])}});
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &app, [&] {
        if (app.settingsValue(QStringLiteral("LastUpdateCheck"), longAgo) != longAgo) {
            app.quit();
        }
    });
    watch.start(10);
    const bool isOn = QLatin1String(argv[3]) == QLatin1String("true");
    QTimer::singleShot(isOn ? 30000 : 3000, &app, &QCoreApplication::quit);
    return QMWidgets::App::exec();
}

} // namespace

int main(int argc, char** argv)
{
    if (argc == 2 && std::strcmp(argv[1], "--die") == 0) {
        return dieWithMessage(argc, argv);
    }
    if (argc == 4 && std::strcmp(argv[1], "--start") == 0) {
        return startWithUpdates(argc, argv);
    }
    const TestHome home;
    const QMWidgets::App app(argc, argv, kOrganization, kApplication);
    return runTests(argc, argv);
}
