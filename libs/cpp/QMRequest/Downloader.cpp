#include "Downloader.h"

#include "DownloadManager.h"

#include <limits>
#include <QMutexLocker>
#include <utility>

namespace QMRequest
{

namespace
{

QUrl withScheme(const QString& url)
{
    const QString scheme = QStringLiteral("http://");
    return QUrl(url.startsWith(scheme) ? url : scheme + url);
}

/// Drops the fraction; what an int can't hold becomes the nearest number that it can.
int toInt(double number)
{
    using Limits = std::numeric_limits<int>;
    return int(qBound(double(Limits::min()), number, double(Limits::max())));
}

} // namespace

Downloader::Downloader(QObject* parent)
    : QObject(parent),
      m_manager(new DownloadManager(this))
{
    connect(m_manager, &DownloadManager::downloadProgress, this, &Downloader::slotProgress);
    connect(m_manager, &DownloadManager::done, this, &Downloader::slotFinished);
    connect(m_manager, &DownloadManager::error, this, &Downloader::slotError);
}

QByteArray Downloader::get(const QString& url, QEventLoop::ProcessEventsFlags flags)
{
    if (m_busy) {
        return QByteArray();
    }
    const QMutexLocker locker(&m_mutex);
    start(url);
    m_loop.exec(flags);
    // The end of the program ends all loops before that of the request.
    if (!m_finished) {
        m_manager->slotAbort();
    }
    m_busy = false;
    return std::exchange(m_data, QByteArray());
}

void Downloader::start(const QString& url)
{
    if (m_busy) {
        return;
    }
    m_data.clear();
    m_busy = true;
    m_finished = false;
    m_manager->get(withScheme(url));
}

void Downloader::slotAbort()
{
    m_manager->slotAbort();
}

void Downloader::slotFinished(const QUrl&, const QByteArray& bytes)
{
    end(bytes);
}

void Downloader::slotProgress(qint64 received, qint64 total)
{
    emit progress(toInt(double(received)));
    // An empty body is all there from the start.
    emit progressPercent(total == 0 ? 100 : toInt(double(received) * 100.0 / double(total)));
}

void Downloader::slotError()
{
    end(QByteArray());
}

void Downloader::end(const QByteArray& bytes)
{
    m_data = bytes;
    m_finished = true;
    // Until get() has returned, the object is its caller's.
    m_busy = m_loop.isRunning();
    m_loop.quit();
    emit done(bytes);
}

} // namespace QMRequest
