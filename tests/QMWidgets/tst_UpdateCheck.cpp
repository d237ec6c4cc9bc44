#include "support/HttpServer.h"
#include "support/TestMain.h"

#include <QMWidgets/UpdateAnswer.h>
#include <QMWidgets/UpdateCheck.h>
#include <QMWidgets/UpdateService.h>
#include <QProcess>

using namespace QMWidgets;

Q_DECLARE_METATYPE(QMWidgets::UpdateState)

namespace
{
const QByteArray kAnswer = "!date!;;;2024-05-31";
} // namespace

class tst_UpdateCheck : public QObject
{
    Q_OBJECT

private slots:
    void readsAnswers_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<UpdateState>("state");
        const auto newer = UpdateState::Newer;
        const auto latest = UpdateState::Latest;
        const auto unknown = UpdateState::Unknown;
        QTest::newRow("later") << kAnswer << newer;
        QTest::newRow("same day") << QByteArray("!date!;;;2024-05-30") << latest;
        QTest::newRow("earlier") << QByteArray("!date!;;;2023-12-31") << latest;
        QTest::newRow("more parts") << QByteArray("a;;;;;;b !date! c;;; 2024-05-31\r\n") << newer;
        QTest::newRow("not the last") << QByteArray("!date!;;;2024-05-31;;;") << latest;
        QTest::newRow("no separator") << QByteArray("!date!2024-05-31") << latest;
        QTest::newRow("no such day") << QByteArray("!date!;;;2024-06-31") << latest;
        QTest::newRow("no date") << QByteArray("!date!;;;soon") << latest;
        QTest::newRow("no marker") << QByteArray("2024-05-31") << unknown;
        QTest::newRow("other case") << QByteArray("!Date!;;;2024-05-31") << unknown;
        QTest::newRow("empty") << QByteArray() << unknown;
        QTest::newRow("zero at the end") << kAnswer + QByteArray("\0;;;2020-01-01", 14) << newer;
        QTest::newRow("zero at the start") << '\0' + kAnswer << unknown;
        QTest::newRow("letters of no alphabet") << "\xff\xfe;;;" + kAnswer << newer;
    }

    void readsAnswers()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(UpdateState, state);
        const QString text = updateAnswerText(bytes);
        QCOMPARE(readUpdateAnswer(text, QDate(2024, 5, 30)), state);
    }

    void asksTheSecondHostOnlyWithoutAnAnswer_data()
    {
        QTest::addColumn<QByteArray>("first");
        QTest::addColumn<QByteArray>("second");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<int>("timeLimit");
        const QByteArray good = HttpServer::ok(kAnswer);
        const QByteArray other = HttpServer::ok("other");
        const QByteArray silent;
        const QString none;
        QTest::newRow("first") << good << other << QString::fromLatin1(kAnswer) << 60000;
        QTest::newRow("useless, but an answer")
            << other << good << QStringLiteral("other") << 60000;
        QTest::newRow("empty") << HttpServer::ok("") << other << QStringLiteral("other") << 60000;
        QTest::newRow("begins with zero")
            << HttpServer::ok(QByteArray(3, '\0')) << other << QStringLiteral("other") << 60000;
        QTest::newRow("failure") << HttpServer::withStatus("503 No", "", "later") << other
                                 << QStringLiteral("other") << 60000;
        QTest::newRow("too slow") << silent << other << QStringLiteral("other") << 2000;
        QTest::newRow("both empty") << HttpServer::ok("") << HttpServer::ok("") << none << 60000;
    }

    void asksTheSecondHostOnlyWithoutAnAnswer()
    {
        QFETCH(QByteArray, first);
        QFETCH(QByteArray, second);
        QFETCH(QString, answer);
        QFETCH(int, timeLimit);
        HttpServer firstServer(first);
        HttpServer secondServer(second);
        const UpdateService service{{firstServer.host(), secondServer.host()}, timeLimit};
        QCOMPARE(fetchUpdateAnswer(service), std::optional<QString>(answer));
        const bool isFirstEnough = first.endsWith(answer.toLatin1()) && !answer.isEmpty();
        QCOMPARE(firstServer.requests().count(), 1);
        QCOMPARE(secondServer.requests().count(), isFirstEnough ? 0 : 1);
        QVERIFY(firstServer.requests().first().startsWith(
            "GET /apps/appscontrol/updaterequest.php?appname=tessarin HTTP/1.1\r\n"));
    }

    void hasNoAnswerWithoutHosts()
    {
        QCOMPARE(fetchUpdateAnswer({}), std::optional<QString>(QString()));
        const QString refusing = HttpServer::refusingHost();
        QCOMPARE(fetchUpdateAnswer({{refusing, refusing}}), std::optional<QString>(QString()));
    }

    void theStartAsksIfItIsSwitchedOn()
    {
        HttpServer onServer(HttpServer::ok("!date!;;;2001-01-01"));
        HttpServer offServer(HttpServer::ok("!date!;;;2001-01-01"));
        QProcess on;
        QProcess off;
        on.start(QCoreApplication::applicationFilePath(),
                 {QStringLiteral("--start"), onServer.host(), QStringLiteral("true")});
        off.start(QCoreApplication::applicationFilePath(),
                  {QStringLiteral("--start"), offServer.host(), QStringLiteral("false")});
        const auto haveEnded = [&] {
            return on.state() == QProcess::NotRunning && off.state() == QProcess::NotRunning;
        };
        QTRY_VERIFY_WITH_TIMEOUT(haveEnded(), 60000);
        QCOMPARE(on.exitCode(), 0);
        QCOMPARE(off.exitCode(), 0);
        QCOMPARE(onServer.requests().count(), 1);
        QCOMPARE(offServer.requests().count(), 0);
    }

    void isDueAfterSixDays()
    {
        const QDate today(2024, 3, 3);
        const QList<QPair<int, bool>> rows = {{-400, true}, {-6, true}, {-5, false},
                                              {0, false},   {1, false}, {400, false}};
        for (const auto& row : rows) {
            QCOMPARE(UpdateCheck::isDue(today.addDays(row.first), today), row.second);
        }
    }
};

TESSARIN_TEST(tst_UpdateCheck);
#include "tst_UpdateCheck.moc"
