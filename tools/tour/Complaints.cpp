#include "Complaints.h"

#include <cstdio>

namespace
{

Complaints* listener = nullptr;

void hear(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    const char* const faults[] = {"QObject::connect", "Could not parse", "Unknown property",
                                  "QPainter::",       "QPixmap::",       "Can't "};
    bool isFault = type == QtCriticalMsg || type == QtFatalMsg;
    for (const char* const fault : faults) {
        isFault = isFault || message.contains(QLatin1String(fault));
    }
    if (isFault && listener) {
        listener->add(message);
    }
}

} // namespace

void Complaints::add(const QString& text)
{
    m_texts.append(m_scene.isEmpty() ? text : m_scene + QStringLiteral(": ") + text);
    std::fprintf(stderr, "FAILED %s\n", qUtf8Printable(m_texts.last()));
}

void Complaints::listenToToolkit()
{
    listener = this;
    qInstallMessageHandler(hear);
}
