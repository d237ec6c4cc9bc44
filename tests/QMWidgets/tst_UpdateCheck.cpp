#include "support/HttpServer.h"
#include "support/TestMain.h"

#include <QMWidgets/UpdateAnswer.h>
#include <QMWidgets/UpdateCheck.h>
#include <QMWidgets/UpdateRequest.h>
#include <QProcess>
#include <QSignalSpy>

using namespace QMWidgets;

namespace
{
const QByteArray kAnswer = "!date!;;;2024-05-31";

/// The one answer that a service gives, or "none".
QString answerOf(const UpdateService& service)
{
    UpdateRequest request(service);
    QSignalSpy answers(&request, &UpdateRequest::answered);
    request.start();
    const bool isAnswered = QTest::qWaitFor([&] { return !answers.isEmpty(); }, 90000);
    return isAnswered ? answers.takeFirst().first().toString() : QStringLiteral("none");
}
} // namespace

class tst_UpdateCheck : public QObject
{
    Q_OBJECT

private slots:
    void readsAnswers()
    {
        const auto newer = UpdateState::Newer;
        const auto latest = UpdateState::Latest;
        const auto unknown = UpdateState::Unknown;
        const struct {
            const char* name;
            QByteArray bytes;
            UpdateState state;
        } rows[] = {{"later", kAnswer, newer},
                    {"same day", "!date!;;;2024-05-30", latest},
                    {"earlier", "!date!;;;2023-12-31", latest},
                    {"more parts", "a;;;;;;b !date! c;;; 2024-05-31\r\n", newer},
                    {"not the last", "!date!;;;2024-05-31;;;", latest},
                    {"no separator", "!date!2024-05-31", latest},
                    {"no such day", "!date!;;;2024-06-31", latest},
                    {"no date", "!date!;;;soon", latest},
                    {"no marker", "2024-05-31", unknown},
                    {"other case", "!Date!;;;2024-05-31", unknown},
                    {"empty", "", unknown},
                    {"zero at the end", kAnswer + QByteArray("\0;;;2020-01-01", 14), newer},
                    {"zero at the start", '\0' + kAnswer, unknown},
                    {"letters of no alphabet", "\xff\xfe;;;" + kAnswer, newer}};
        for (const auto& row : rows) {
            const QString text = updateAnswerText(row.bytes);
            QVERIFY2(readUpdateAnswer(text, QDate(2024, 5, 30)) == row.state, row.name);
        }
    }

    void asksTheSecondHostOnlyWithoutAnAnswer()
    {
        const QByteArray good = HttpServer::ok(kAnswer);
        const QByteArray other = HttpServer::ok("other");
        const QByteArray empty = HttpServer::ok("");
        const QByteArray zero = HttpServer::ok(QByteArray(3, '\0'));
        const QByteArray failure = HttpServer::withStatus("503 No", "", "later");
        const QByteArray silent;
        const struct {
            const char* name;
            QByteArray first;
            QByteArray second;
            QByteArray answer;
            bool isFirstEnough;
            int timeLimit = 60000;
        } rows[] = {{"first", good, other, kAnswer, true},
                    {"useless, but an answer", other, good, "other", true},
                    {"empty", empty, other, "other", false},
                    {"begins with zero", zero, other, "other", false},
                    {"failure", failure, other, "other", false},
                    {"too slow", silent, other, "other", false, 2000},
                    {"both empty", empty, empty, "", false}};
        for (const auto& row : rows) {
            HttpServer first(row.first);
            HttpServer second(row.second);
            const auto answer = answerOf({{first.host(), second.host()}, row.timeLimit});
            QVERIFY2(answer == QString::fromLatin1(row.answer), row.name);
            QVERIFY2(first.requests().count() == 1, row.name);
            QVERIFY2(second.requests().count() == (row.isFirstEnough ? 0 : 1), row.name);
            QVERIFY(first.requests().first().startsWith(
                "GET /apps/appscontrol/updaterequest.php?appname=tessarin HTTP/1.1\r\n"));
        }
    }

    void hasNoAnswerWithoutHosts()
    {
        QCOMPARE(answerOf({}), QString());
        const QString refusing = HttpServer::refusingHost();
        QCOMPARE(answerOf({{refusing, refusing}}), QString());
    }

    void theStartAsksIfItIsSwitchedOn()
    {
        HttpServer onServer(HttpServer::ok("!date!;;;2001-01-01"));
        HttpServer offServer(HttpServer::ok("!date!;;;2001-01-01"));
        QProcess on;
        QProcess off;
        const QString program = QCoreApplication::applicationFilePath();
        on.start(program, {QStringLiteral("--start"), onServer.host(), QStringLiteral("true")});
        off.start(program, {QStringLiteral("--start"), offServer.host(), QStringLiteral("false")});
        for (QProcess* const process : {&on, &off}) {
            QTRY_COMPARE_WITH_TIMEOUT(process->state(), QProcess::NotRunning, 60000);
            QCOMPARE(process->exitCode(), 0);
        }
        QCOMPARE(onServer.requests().count(), 1);
        QCOMPARE(offServer.requests().count(), 0);
    }

    void isDueAfterSixDays()
    {
        const QDate today(2024, 3, 3);
        for (const int days : {-400, -6}) {
            QVERIFY(UpdateCheck::isDue(today.addDays(days), today));
        }
        for (const int days : {-5, 0, 1, 400}) {
            QVERIFY(!UpdateCheck::isDue(today.addDays(days), today));
        }
    }
};

TESSARIN_TEST(tst_UpdateCheck);
#include "tst_UpdateCheck.moc"
