#include "support/HttpServer.h"
#include "support/TestMain.h"

#include <algorithm>
#include <memory>
#include <QMRequest/Downloader.h>
#include <QMRequest/DownloadManager.h>
#include <QNetworkReply>
#include <QSemaphore>
#include <QSignalSpy>
#include <QThread>

using QMRequest::Downloader;
using QMRequest::DownloadManager;

namespace
{

/// A body that came to an end without an error.
class EndedReply : public QNetworkReply
{
public:
    explicit EndedReply(const QByteArray& body)
        : m_rest(body)
    {
        open(QIODevice::ReadOnly);
    }

    void setLength(int length) { setHeader(QNetworkRequest::ContentLengthHeader, length); }
    void abort() override {}
    qint64 bytesAvailable() const override { return m_rest.size() + QIODevice::bytesAvailable(); }

protected:
    qint64 readData(char* data, qint64 size) override
    {
        const int count = int(qMin(size, qint64(m_rest.size())));
        std::copy_n(m_rest.constData(), count, data);
        m_rest.remove(0, count);
        return count;
    }

private:
    QByteArray m_rest;
};

} // namespace

class tst_Downloader : public QObject
{
    Q_OBJECT

private slots:
    void givesTheBodyOrNothing()
    {
        const QByteArray zero("ab\0cd", 5);
        const auto withStatus = &HttpServer::withStatus;
        const struct {
            const char* name;
            QByteArray answer;
            QByteArray body;
        } rows[] = {
            {"body", HttpServer::ok("hello"), "hello"},
            {"empty", HttpServer::ok(""), ""},
            {"zero byte", HttpServer::ok(zero), zero},
            {"missing page", withStatus("404 Not Found", "", "sorry"), ""},
            {"broken server", withStatus("500 Oh", "", "sorry"), ""},
            {"password", withStatus("401 Who", "WWW-Authenticate: Basic realm=\"x\"\r\n", ""), ""},
            {"cut off", "HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\nhello", ""},
            {"no HTTP", "hello\r\n\r\n", ""},
            {"packed", withStatus("200 OK", "Content-Encoding: gzip\r\n", "as it came"),
             "as it came"},
            // Wherever it leads, nobody else is asked.
            {"redirect", withStatus("302 Found", "Location: /there\r\n", "moved"), "moved"}};
        for (const auto& row : rows) {
            HttpServer server(row.answer);
            Downloader downloader;
            QVERIFY(!downloader.isFinished());
            QVERIFY2(downloader.get(server.host() + "/here?a=b") == row.body, row.name);
            QVERIFY2(downloader.isFinished(), row.name);
            QVERIFY2(downloader.get("http://" + server.host()) == row.body, row.name);
            // The same without waiting in the call, one at a time again.
            QSignalSpy bodies(&downloader, &Downloader::done);
            downloader.start(server.host());
            downloader.start(server.host());
            QVERIFY2(!downloader.isFinished() && downloader.get(server.host()).isEmpty(), row.name);
            QVERIFY2(QTest::qWaitFor([&] { return downloader.isFinished(); }, 30000), row.name);
            QCOMPARE(bodies, QList<QVariantList>({{row.body}}));
            QVERIFY(server.requests().first().startsWith("GET /here?a=b HTTP/1.1\r\n"));
            for (const QByteArray& request : server.requests()) {
                QVERIFY(request.startsWith("GET /here?a=b ") || request.startsWith("GET / "));
            }
        }
    }

    void aBodyThatBreaksOffIsAFailure()
    {
        // The toolkit doesn't always notice.
        const QList<QPair<int, bool>> rows = {{-1, true}, {5, true}, {6, false}};
        for (const auto& row : rows) {
            DownloadManager manager;
            QSignalSpy done(&manager, &DownloadManager::done);
            QSignalSpy error(&manager, &DownloadManager::error);
            auto* const reply = new EndedReply("hello");
            if (row.first >= 0) {
                reply->setLength(row.first);
            }
            manager.slotFinished(reply);
            QCOMPARE(done.count(), row.second ? 1 : 0);
            QCOMPARE(error.count(), row.second ? 0 : 1);
        }
    }

    void tellsNothingOfTheUser()
    {
        HttpServer server(HttpServer::ok("hello"));
        Downloader().get(server.host());
        const QString request = QString::fromLatin1(server.requests().value(0).trimmed());
        QStringList lines = request.split(QStringLiteral("\r\n"));
        lines.sort();
        QCOMPARE(lines, QStringList({"Accept-Encoding: identity", "Accept-Language: *",
                                     "Connection: Keep-Alive", "GET / HTTP/1.1",
                                     "Host: " + server.host(), "User-Agent: Mozilla/5.0"}));
    }

    void givesUpWhereNobodyAnswers()
    {
        const QString urls[] = {
            HttpServer::refusingHost(),
            QString(),
            QStringLiteral("http://"),
            QStringLiteral("%%% [::"),
            // Not asked in another way than over plain HTTP, so this is no address.
            QStringLiteral("file:///etc/hostname"),
        };
        HttpServer server(HttpServer::ok("hello"));
        Downloader downloader;
        for (const QString& url : urls) {
            QCOMPARE(downloader.get(url), QByteArray());
            QCOMPARE(downloader.get(server.host()), QByteArray("hello"));
        }
    }

    void servesOneCallerAtATime()
    {
        HttpServer server((QByteArray()));
        Downloader downloader;
        QByteArray second("untouched");
        connect(&server, &HttpServer::asked, &downloader, [&] {
            second = downloader.get(server.host());
            QVERIFY(!downloader.isFinished());
            downloader.slotAbort();
            downloader.slotAbort();
        });
        QCOMPARE(downloader.get(server.host()), QByteArray());
        QVERIFY(second.isEmpty());
        QCOMPARE(server.requests().count(), 1);

        server.setAnswer(HttpServer::ok("hello"));
        server.disconnect(&downloader);
        QCOMPARE(downloader.get(server.host()), QByteArray("hello"));
        downloader.slotAbort();
    }

    void takesNoMoreThanItMay()
    {
        // A server that goes on sending while this thread has no time to look at what comes.
        const qint64 offered = 64 * DownloadManager::kLargestBody;
        qint64 taken = offered;
        QString host;
        QSemaphore isListening;
        const std::unique_ptr<QThread> thread(QThread::create([&] {
            HttpServer server("HTTP/1.1 200 OK\r\n\r\n");
            server.setFlood(offered);
            host = server.host();
            isListening.release();
            QEventLoop().exec();
            taken = server.flooded();
        }));
        thread->start();
        isListening.acquire();
        Downloader downloader;
        connect(&downloader, &Downloader::progress, this, [] { QThread::msleep(300); });
        QCOMPARE(downloader.get(host), QByteArray());
        thread->quit();
        thread->wait();
        // The system's own buffers hold some more.
        QVERIFY2(taken < offered / 4, qPrintable(QString::number(taken)));
        downloader.disconnect(this);

        const QByteArray largest(int(DownloadManager::kLargestBody), 'x');
        HttpServer server(HttpServer::ok(largest));
        QVERIFY(downloader.get(server.host()) == largest);
        server.setAnswer(HttpServer::ok(largest + 'x'));
        QCOMPARE(downloader.get(server.host()), QByteArray());
    }

    void reckonsProgressWithoutOverflow()
    {
        Downloader downloader;
        QSignalSpy bytes(&downloader, &Downloader::progress);
        QSignalSpy percent(&downloader, &Downloader::progressPercent);
        const struct {
            qint64 received, total;
            int bytes, percent;
        } rows[] = {{1, 3, 1, 33},
                    {2, 3, 2, 66},
                    {50, -1, 50, -5000},
                    {0, 0, 0, 100},
                    {Q_INT64_C(1) << 40, -1, INT_MAX, INT_MIN}};
        for (const auto& row : rows) {
            downloader.slotProgress(row.received, row.total);
            QCOMPARE(bytes.last().first().toInt(), row.bytes);
            QCOMPARE(percent.last().first().toInt(), row.percent);
        }
    }
};

TESSARIN_TEST(tst_Downloader);
#include "tst_Downloader.moc"
