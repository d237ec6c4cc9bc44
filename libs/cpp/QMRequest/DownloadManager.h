#pragma once

#include <QByteArray>
#include <QObject>
#include <QUrl>

class QNetworkAccessManager;
class QNetworkReply;

namespace QMRequest
{

/// Fetches one address at a time and tells by signals how that went.
///
/// Redirects are not followed, and nothing goes along with the address: no cookie, no language of
/// the user.
///
/// Thread: the one that made it, which needs an event loop.
class DownloadManager : public QObject
{
    Q_OBJECT

public:
    /// Units: bytes. A body that is larger counts as an error, and no more of it is taken in.
    static constexpr qint64 kLargestBody = 4 * 1024 * 1024;

    explicit DownloadManager(QObject* parent = nullptr);

    /// Starts a request, which ends in done() or error(); both come from the event loop. One that
    /// is still under way ends in error() first. Errors: an address that can't be asked for ends in
    /// error() like any other failure.
    void get(const QUrl& url);

signals:
    /// Units: bytes; the total is -1 while nobody knows it.
    void downloadProgress(qint64 received, qint64 total);
    void done(const QUrl& url, const QByteArray& bytes);
    void error();

public slots:
    /// Ends the request that is under way in error(); without one nothing happens.
    void slotAbort();
    void slotFinished(QNetworkReply* reply);
    void slotDownloadProgress(qint64 received, qint64 total);

private:
    QNetworkAccessManager* m_manager;
    QNetworkReply* m_reply = nullptr;
};

} // namespace QMRequest
