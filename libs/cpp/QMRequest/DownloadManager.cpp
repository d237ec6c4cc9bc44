#include "DownloadManager.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <utility>

namespace QMRequest
{

namespace
{

QNetworkRequest requestFor(const QUrl& url)
{
    QNetworkRequest request(url);
    // The toolkit would name the user's language here.
    request.setRawHeader("Accept-Language", "*");
    // It would unpack a packed body, too, however large that becomes.
    request.setRawHeader("Accept-Encoding", "identity");
    return request;
}

/// The toolkit takes a body that breaks off for a whole one if the connection's end overtakes its
/// reading.
bool isCutOff(const QNetworkReply& reply, const QByteArray& body)
{
    const QVariant length = reply.header(QNetworkRequest::ContentLengthHeader);
    return length.isValid() && body.size() < length.toLongLong();
}

} // namespace

DownloadManager::DownloadManager(QObject* parent)
    : QObject(parent),
      m_manager(new QNetworkAccessManager(this))
{
    connect(m_manager, &QNetworkAccessManager::finished, this, &DownloadManager::slotFinished);
}

void DownloadManager::get(const QUrl& url)
{
    slotAbort();
    QNetworkReply* const reply = m_manager->get(requestFor(url));
    m_reply = reply;
    connect(reply, &QNetworkReply::downloadProgress, this, &DownloadManager::slotDownloadProgress);
    // Bounds what comes in before the check below, however fast the other side is. Twice as much,
    // since a reply may pause shortly before its buffer is full.
    reply->setReadBufferSize(2 * kLargestBody);
    connect(reply, &QNetworkReply::readyRead, this, [this, reply] {
        if (reply == m_reply && reply->bytesAvailable() > kLargestBody) {
            slotAbort();
        }
    });
}

void DownloadManager::slotAbort()
{
    // Out of abort() comes slotFinished(), and whoever hears of the error may ask for more.
    QNetworkReply* const reply = std::exchange(m_reply, nullptr);
    if (reply) {
        reply->abort();
        reply->deleteLater();
    }
}

void DownloadManager::slotFinished(QNetworkReply* reply)
{
    reply->deleteLater();
    if (reply == m_reply) {
        m_reply = nullptr;
    }
    if (reply->error() == QNetworkReply::NoError) {
        const QByteArray body = reply->readAll();
        if (!isCutOff(*reply, body)) {
            emit done(reply->url(), body);
            return;
        }
    }
    emit error();
}

void DownloadManager::slotDownloadProgress(qint64 received, qint64 total)
{
    emit downloadProgress(received, total);
}

} // namespace QMRequest
