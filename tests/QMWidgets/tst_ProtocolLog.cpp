#include "support/TestMain.h"

#include <QDir>
#include <QMWidgets/App.h>
#include <QMWidgets/ProtocolLog.h>
#include <QProcess>
#include <QRegularExpression>

namespace
{

QString logPath()
{
    return QMWidgets::App::appHomeFolder(true) + QStringLiteral("protocol.log");
}

/// The log without the times and what the compiler knows of the source files.
QString log()
{
    QFile file(logPath());
    if (!file.open(QIODevice::ReadOnly)) {
        return QStringLiteral("unreadable");
    }
    const QRegularExpression time(QStringLiteral("\\d\\d\\.\\d\\d\\.\\d\\d-\\d\\d:\\d\\d "));
    const QRegularExpression source(QStringLiteral(", [^,]*\n"));
    return QString::fromUtf8(file.readAll())
        .replace(time, QStringLiteral("time "))
        .replace(source, QStringLiteral(", source\n"));
}

} // namespace

class tst_ProtocolLog : public QObject
{
    Q_OBJECT

private slots:
    void init() { QFile::remove(logPath()); }
    void cleanup() { QDir().rmdir(logPath()); }

    void formatsLines()
    {
        const QDateTime time(QDate(2024, 3, 5), QTime(7, 8, 9));
        const auto line = [&](QtMsgType level) {
            return QMWidgets::protocolLine(time, level, QStringLiteral("a %1"),
                                           QStringLiteral("b.cpp"));
        };
        QCOMPARE(line(QtDebugMsg), QStringLiteral("05.03.24-07:08 Debug: a %1, b.cpp\n"));
        QVERIFY(line(QtInfoMsg).isEmpty());
    }

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
        QCOMPARE(log(), QStringLiteral("time Warning: first \u00fc, source\n"
                                       "time Critical: second, source\n"));
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
        QCOMPARE(log(), QStringLiteral("time Fatal: the end, source\n"));
    }
};

TESSARIN_TEST(tst_ProtocolLog);
#include "tst_ProtocolLog.moc"
