#pragma once

#include <QDateTime>
#include <QString>

namespace QMWidgets
{

/// Switches the log of the toolkit's messages on: each goes as a line into "protocol.log" in the
/// application's home folder. The program never calls this; a developer does, after the App is
/// built. A message is lost if the file can't be written; a fatal one ends the process.
///
/// Thread: the handler runs on whatever thread raises a message and takes no lock.
void installProtocolHandler();

/// One line of the log with its newline, or an empty text for a level that isn't logged.
QString protocolLine(const QDateTime& time, QtMsgType level, const QString& message,
                     const QString& sourceFile);

} // namespace QMWidgets
