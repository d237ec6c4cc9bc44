#include "Complaints.h"

#include <cstdio>

namespace
{

Complaints* listener = nullptr;

void hear(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    const char* const faults[] = {"QObject::connect", "Could not parse", "Unknown property",
                                  "QPainter::"};
    bool isFault = type == QtCriticalMsg || type == QtFatalMsg;
    for (const char* const fault : faults) {
        isFault = isFault || message.contains(QLatin1String(fault));
    }
    if (isFault && listener) {
        listener->add(message);
    }
}

} // namespace

Complaints::~Complaints()
{
    if (listener == this) {
        qInstallMessageHandler(nullptr);
        listener = nullptr;
    }
}

void Complaints::add(const QString& text)
{
    const QMutexLocker locker(&m_mutex);
    m_texts.append(m_scene.isEmpty() ? text : m_scene + QStringLiteral(": ") + text);
    std::fprintf(stderr, "FAILED %s\n", qUtf8Printable(m_texts.last()));
}

void Complaints::setScene(const QString& name)
{
    const QMutexLocker locker(&m_mutex);
    m_scene = name;
}

int Complaints::count() const
{
    const QMutexLocker locker(&m_mutex);
    return m_texts.size();
}

void Complaints::listenToToolkit()
{
    listener = this;
    qInstallMessageHandler(hear);
}
