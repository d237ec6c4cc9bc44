#include "support/HttpServer.h"
#include "support/TestMain.h"

#include <memory>
#include <QCoreApplication>
#include <QMRequest/Downloader.h>
#include <QMRequest/DownloadManager.h>
#include <QSemaphore>
#include <QSignalSpy>
#include <QThread>
#include <QTimer>

using QMRequest::Downloader;
using QMRequest::DownloadManager;

class tst_Downloader : public QObject
{
    Q_OBJECT

private slots:
    void givesTheBodyOrNothing_data()
    {
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<QByteArray>("body");
        const QByteArray zero("ab\0cd", 5);
        QTest::newRow("body") << HttpServer::ok("hello") << QByteArray("hello");
        QTest::newRow("empty") << HttpServer::ok("") << QByteArray();
        QTest::newRow("zero byte") << HttpServer::ok(zero) << zero;
        QTest::newRow("no length")
            << HttpServer::withStatus("200 OK", "", "hello") << QByteArray("hello");
        QTest::newRow("missing page")
            << HttpServer::withStatus("404 Not Found", "", "sorry") << QByteArray();
        QTest::newRow("broken server")
            << HttpServer::withStatus("500 Oh", "", "sorry") << QByteArray();
        QTest::newRow("password") << HttpServer::withStatus(
                                         "401 Who", "WWW-Authenticate: Basic realm=\"x\"\r\n", "")
                                  << QByteArray();
        QTest::newRow("cut off") << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\nhello")
                                 << QByteArray();
        QTest::newRow("no HTTP") << QByteArray("hello\r\n\r\n") << QByteArray();
        QTest::newRow("packed") << HttpServer::withStatus("200 OK", "Content-Encoding: gzip\r\n",
                                                          "as it came")
                                << QByteArray("as it came");
        // Wherever it leads, nobody else is asked.
        QTest::newRow("redirect") << HttpServer::withStatus("302 Found", "Location: /there\r\n",
                                                            "moved")
                                  << QByteArray("moved");
    }

    void givesTheBodyOrNothing()
    {
        QFETCH(QByteArray, answer);
        QFETCH(QByteArray, body);
        HttpServer server(answer);
        Downloader downloader;
        QVERIFY(!downloader.isFinished());
        QCOMPARE(downloader.get(server.host() + QStringLiteral("/here?a=b")), body);
        QVERIFY(downloader.isFinished());
        QVERIFY(!downloader.isBrokenOff());
        QCOMPARE(downloader.get(QStringLiteral("http://") + server.host()), body);
        QVERIFY(server.requests().first().startsWith("GET /here?a=b HTTP/1.1\r\n"));
        for (const QByteArray& request : server.requests()) {
            QVERIFY(request.startsWith("GET /here?a=b ") || request.startsWith("GET / "));
        }
    }

    void tellsNothingOfTheUser()
    {
        HttpServer server(HttpServer::ok("hello"));
        Downloader().get(server.host());
        QStringList lines =
            QString::fromLatin1(server.requests().value(0).trimmed()).split(QStringLiteral("\r\n"));
        lines.sort();
        QCOMPARE(lines, QStringList({QStringLiteral("Accept-Encoding: identity"),
                                     QStringLiteral("Accept-Language: *"),
                                     QStringLiteral("Connection: Keep-Alive"),
                                     QStringLiteral("GET / HTTP/1.1"),
                                     QStringLiteral("Host: ") + server.host(),
                                     QStringLiteral("User-Agent: Mozilla/5.0")}));
    }

    void givesUpWhereNobodyAnswers_data()
    {
        QTest::addColumn<QString>("url");
        QTest::newRow("refused") << HttpServer::refusingHost();
        QTest::newRow("nothing") << QString();
        QTest::newRow("only a scheme") << QStringLiteral("http://");
        QTest::newRow("no address") << QStringLiteral("%%% [::");
        // Not asked in another way than over plain HTTP, so this is no address.
        QTest::newRow("other scheme") << QStringLiteral("file:///etc/hostname");
    }

    void givesUpWhereNobodyAnswers()
    {
        QFETCH(QString, url);
        HttpServer server(HttpServer::ok("hello"));
        Downloader downloader;
        QCOMPARE(downloader.get(url), QByteArray());
        QCOMPARE(downloader.get(server.host()), QByteArray("hello"));
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

    void tellsOfProgress()
    {
        HttpServer server(HttpServer::ok("hello"));
        Downloader downloader;
        QSignalSpy bytes(&downloader, &Downloader::progress);
        QSignalSpy percent(&downloader, &Downloader::progressPercent);
        downloader.get(server.host());
        QCOMPARE(bytes.last().first().toInt(), 5);
        QCOMPARE(percent.last().first().toInt(), 100);

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

    void endsWithTheProgram()
    {
        HttpServer server((QByteArray()));
        connect(&server, &HttpServer::asked, QCoreApplication::instance(), &QCoreApplication::quit);
        bool brokenOff = false;
        QTimer::singleShot(0, &server, [&] {
            Downloader downloader;
            downloader.get(server.host());
            brokenOff = downloader.isBrokenOff();
        });
        QCOMPARE(QCoreApplication::exec(), 0);
        QVERIFY(brokenOff);
    }
};

TESSARIN_TEST(tst_Downloader);
#include "tst_Downloader.moc"
