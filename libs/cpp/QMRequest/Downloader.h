#pragma once

#include <QByteArray>
#include <QEventLoop>
#include <QMutex>
#include <QObject>
#include <QUrl>

namespace QMRequest
{

class DownloadManager;

/// Fetches a web address and waits for it, while an event loop of its own keeps the program alive.
/// It tells nobody of failures: they all give an empty body.
///
/// Thread: the one that made it.
class Downloader : public QObject
{
    Q_OBJECT

public:
    explicit Downloader(QObject* parent = nullptr);

    /// The body of `url`, which is asked for over plain HTTP: an address that doesn't begin with
    /// "http://" gets that put in front. No time limit; slotAbort() ends the wait.
    /// Errors: empty on any failure, and for a call while another one waits.
    QByteArray get(const QString& url,
                   QEventLoop::ProcessEventsFlags flags = QEventLoop::AllEvents);

    /// True once get() has come to an end.
    bool isFinished() const { return m_finished; }
    /// True if the last get() was broken off by the end of all event loops, as when the program is
    /// closed: nothing should be begun any more.
    bool isBrokenOff() const { return m_brokenOff; }

signals:
    /// Units: bytes.
    void progress(int received);
    /// Units: percent; negative while nobody knows the size.
    void progressPercent(int percent);

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
    bool m_brokenOff = false;
};

} // namespace QMRequest
