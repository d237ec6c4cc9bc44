#include "support/TestMain.h"

#include <QDir>
#include <QFile>
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

/// The log's lines without what the compiler knows of the source file.
QStringList logLines()
{
    QFile file(logPath());
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QString text = QString::fromUtf8(file.readAll());
    return text.endsWith(QLatin1Char('\n')) ? text.chopped(1).split(QLatin1Char('\n'))
                                            : QStringList(QStringLiteral("no newline at the end"));
}

bool matches(const QString& line, const QString& levelAndMessage)
{
    return QRegularExpression(QStringLiteral("^\\d\\d\\.\\d\\d\\.\\d\\d-\\d\\d:\\d\\d%1, [^,]*$")
                                  .arg(levelAndMessage))
        .match(line)
        .hasMatch();
}

} // namespace

class tst_ProtocolLog : public QObject
{
    Q_OBJECT

private slots:
    void init() { QFile::remove(logPath()); }

    void cleanup()
    {
        QFile::remove(logPath());
        QDir().rmdir(logPath());
    }

    void formatsLines()
    {
        const QDateTime time(QDate(2024, 3, 5), QTime(7, 8, 9));
        const auto line = [&](QtMsgType level) {
            return QMWidgets::protocolLine(time, level, QStringLiteral("a %1"),
                                           QStringLiteral("b.cpp"));
        };
        QCOMPARE(line(QtDebugMsg), QStringLiteral("05.03.24-07:08 Debug: a %1, b.cpp\n"));
        QCOMPARE(line(QtWarningMsg), QStringLiteral("05.03.24-07:08 Warning: a %1, b.cpp\n"));
        QCOMPARE(line(QtCriticalMsg), QStringLiteral("05.03.24-07:08 Critical: a %1, b.cpp\n"));
        QCOMPARE(line(QtFatalMsg), QStringLiteral("05.03.24-07:08 Fatal: a %1, b.cpp\n"));
        QVERIFY(line(QtInfoMsg).isEmpty());
    }

    void appendsMessages()
    {
        const QtMessageHandler before = qInstallMessageHandler(nullptr);
        QMWidgets::installProtocolHandler();
        qWarning("first \xc3\xbc");
        qInfo("not logged");
        qCritical("second");
        qInstallMessageHandler(before);
        const QStringList lines = logLines();
        QCOMPARE(lines.count(), 2);
        QVERIFY2(matches(lines.at(0), QStringLiteral(" Warning: first \u00fc")),
                 qPrintable(lines.at(0)));
        QVERIFY2(matches(lines.at(1), QStringLiteral(" Critical: second")),
                 qPrintable(lines.at(1)));
    }

    void losesMessagesWithoutAFile()
    {
        QVERIFY(QDir().mkdir(logPath()));
        const QtMessageHandler before = qInstallMessageHandler(nullptr);
        QMWidgets::installProtocolHandler();
        qWarning("lost");
        qInstallMessageHandler(before);
        QVERIFY(QDir(logPath()).isEmpty());
    }

    void fatalMessageIsWrittenBeforeTheEnd()
    {
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--die")});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitStatus(), QProcess::CrashExit);
        QVERIFY(!process.readAllStandardError().contains("dropped"));
        const QStringList lines = logLines();
        QCOMPARE(lines.count(), 1);
        QVERIFY2(matches(lines.at(0), QStringLiteral(" Fatal: the end")), qPrintable(lines.at(0)));
    }
};

TESSARIN_TEST(tst_ProtocolLog);
#include "tst_ProtocolLog.moc"
