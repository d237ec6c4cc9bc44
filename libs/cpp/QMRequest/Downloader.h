#pragma once

#include <QByteArray>
#include <QEventLoop>
#include <QMutex>
#include <QObject>
#include <QUrl>

namespace QMRequest
{

class DownloadManager;

/// Fetches a web address. A caller can wait for it, while an event loop keeps the program alive, or
/// be called back. All failures give an empty body.
///
/// Thread: the one that made it.
class Downloader : public QObject
{
    Q_OBJECT

public:
    explicit Downloader(QObject* parent = nullptr);

    /// The body of `url`, which is asked for over plain HTTP: an address that doesn't begin with
    /// "http://" gets that put in front. No time limit; slotAbort() ends the wait. It also lasts
    /// until event loops that were started during the wait have ended.
    /// Errors: empty on any failure, and for a call while another one waits.
    QByteArray get(const QString& url,
                   QEventLoop::ProcessEventsFlags flags = QEventLoop::AllEvents);

    /// Asks for `url` as get() does and returns at once; done() brings the body. Errors: nothing
    /// happens while another request is under way.
    void start(const QString& url);

    /// True once a request has come to an end.
    bool isFinished() const { return m_finished; }

signals:
    /// Units: bytes.
    void progress(int received);
    /// Units: percent; negative while nobody knows the size.
    void progressPercent(int percent);
    /// The request has ended; empty on any failure.
    void done(const QByteArray& body);

public slots:
    void slotAbort();
    void slotFinished(const QUrl& url, const QByteArray& bytes);
    void slotProgress(qint64 received, qint64 total);
    void slotError();

private:
    void end(const QByteArray& bytes);

    QMutex m_mutex;
    DownloadManager* m_manager;
    bool m_finished = false;
    bool m_busy = false;
    QEventLoop m_loop;
    QByteArray m_data;
};

} // namespace QMRequest
