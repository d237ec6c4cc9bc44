#include "UpdateRequest.h"

#include "UpdateAnswer.h"

#include <QCoreApplication>
#include <QMRequest/Downloader.h>
#include <QTimer>

using QMRequest::Downloader;

namespace QMWidgets
{

UpdateRequest::UpdateRequest(const UpdateService& service, QObject* parent)
    : QObject(parent),
      m_service(service),
      m_limit(new QTimer(this))
{
    m_limit->setSingleShot(true);
    m_limit->setInterval(service.timeLimit);
}

void UpdateRequest::start()
{
    askNextHost();
}

void UpdateRequest::askNextHost()
{
    if (m_service.hosts.isEmpty()) {
        emit answered(QString());
        return;
    }
    // A new one for each host: what the former one has sent, such as a cookie, goes to nobody else.
    m_downloader = new Downloader(this);
    connect(m_downloader, &Downloader::done, this, &UpdateRequest::takeBody);
    connect(m_limit, &QTimer::timeout, m_downloader, &Downloader::slotAbort);
    m_limit->start();
    m_downloader->start(m_service.hosts.takeFirst() +
                        QStringLiteral("/apps/appscontrol/updaterequest.php?appname=") +
                        QCoreApplication::applicationName().toLower());
}

void UpdateRequest::takeBody(const QByteArray& body)
{
    m_limit->stop();
    m_downloader->deleteLater();
    const QString answer = updateAnswerText(body);
    if (answer.isEmpty()) {
        askNextHost();
    } else {
        emit answered(answer);
    }
}

} // namespace QMWidgets
