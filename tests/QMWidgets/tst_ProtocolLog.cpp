#include "support/TestMain.h"

#include <QDir>
#include <QMWidgets/App.h>
#include <QMWidgets/ProtocolLog.h>
#include <QProcess>

namespace
{

QString logPath()
{
    return QMWidgets::App::appHomeFolder(true) + QStringLiteral("protocol.log");
}

QString log()
{
    QFile file(logPath());
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll())
                                          : QStringLiteral("unreadable");
}

} // namespace

class tst_ProtocolLog : public QObject
{
    Q_OBJECT

private slots:
    void init() { QFile::remove(logPath()); }
    void cleanup() { QDir().rmdir(logPath()); }

    void appendsMessagesOrLosesThem()
    {
        const auto logMessages = [] {
            const QtMessageHandler before = qInstallMessageHandler(nullptr);
            QMWidgets::installProtocolHandler();
            qWarning("first \xc3\xbc");
            qInfo("not logged");
            qCritical("second");
            qInstallMessageHandler(before);
        };
        logMessages();
        QVERIFY2(log().contains(QStringLiteral(" Warning: first \u00fc")), qPrintable(log()));
        QVERIFY2(log().contains(QStringLiteral(" Critical: second")), qPrintable(log()));
        QVERIFY2(!log().contains(QStringLiteral("not logged")), qPrintable(log()));
        QFile::remove(logPath());
        QVERIFY(QDir().mkdir(logPath()));
        logMessages();
        QVERIFY(QDir(logPath()).isEmpty());
    }

    void fatalMessageIsWrittenBeforeTheEnd()
    {
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--die")});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitStatus(), QProcess::CrashExit);
        QVERIFY(!process.readAllStandardError().contains("dropped"));
        QVERIFY2(log().contains(QStringLiteral(" Fatal: the end")), qPrintable(log()));
    }
};

TESSARIN_TEST(tst_ProtocolLog);
#include "tst_ProtocolLog.moc"
