#include "ProtocolLog.h"

#include "App.h"

#include <cstdlib>
#include <QFile>
#include <QTextStream>

namespace QMWidgets
{

namespace
{

const char* levelWord(QtMsgType level)
{
    switch (level) {
    case QtDebugMsg:
        return " Debug: ";
    case QtWarningMsg:
        return " Warning: ";
    case QtCriticalMsg:
        return " Critical: ";
    case QtFatalMsg:
        return " Fatal: ";
    default:
        return nullptr;
    }
}

void logMessage(QtMsgType level, const QMessageLogContext& context, const QString& message)
{
    QFile file(App::appHomeFolder(true) + QStringLiteral("protocol.log"));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text)) {
        return;
    }
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    stream << protocolLine(QDateTime::currentDateTime(), level, message,
                           QString::fromUtf8(context.file));
    if (level == QtFatalMsg) {
        file.close();
        std::abort();
    }
}

} // namespace

void installProtocolHandler()
{
    qInstallMessageHandler(logMessage);
}

QString protocolLine(const QDateTime& time, QtMsgType level, const QString& message,
                     const QString& sourceFile)
{
    const char* word = levelWord(level);
    if (!word) {
        return QString();
    }
    return time.toString(QStringLiteral("dd.MM.yy-hh:mm")) + QLatin1String(word) + message +
           QLatin1String(", ") + sourceFile + QLatin1Char('\n');
}

} // namespace QMWidgets
