#include "support/HttpServer.h"
#include "support/ModalDialog.h"
#include "support/TestMain.h"
#include "support/UrlCatcher.h"

#include <memory>
#include <optional>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QMWidgets/App.h>
#include <QMWidgets/MakerSite.h>
#include <QMWidgets/PromoMenuBar.h>
#include <QMWidgets/UpdateService.h>

using QMWidgets::App;

namespace
{

const QString kLastCheck = QStringLiteral("LastUpdateCheck");
const QString kCheckedAtStart = QStringLiteral("checkupdates");

const QByteArray kNewer = HttpServer::ok("!date!;;;9999-12-31");
const QByteArray kLatest = HttpServer::ok("!date!;;;2001-01-01");
const QByteArray kUseless = HttpServer::ok("9999-12-31");

QString day(int fromToday)
{
    return QDate::currentDate().addDays(fromToday).toString(QStringLiteral("yyyy-MM-dd"));
}

/// Lets the program ask `hosts`, with a limit that no test comes to, as if its last check at the
/// start had been on `lastDay`.
void askFrom(const QStringList& hosts, const QString& lastDay)
{
    App::app()->setUpdateService({hosts, 60000});
    App::app()->setSettingsValue(kLastCheck, lastDay);
}

QString lastCheck()
{
    return App::app()->settingsValue(kLastCheck, QStringLiteral("none")).toString();
}

const QString kNewerDialog = QStringLiteral("newer version");
const QString kLatestDialog = QStringLiteral("latest version");
const QString kErrorDialog = QStringLiteral("No internet connection");

/// What tells the dialogs that come out of a call; they are closed at once.
template <class Call> QStringList dialogsOf(const Call& call)
{
    QStringList shown;
    const auto note = [&shown](QDialog* dialog) {
        for (const QLabel* const label : dialog->findChildren<QLabel*>()) {
            for (const QString& news : {kNewerDialog, kLatestDialog, kErrorDialog}) {
                if (label->text().contains(news)) {
                    shown += news;
                }
            }
        }
    };
    withModalDialogs(call, {note, note, note});
    return shown;
}

} // namespace

class TestUpdates : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        App::app()->setUpdateService({});
        App::app()->setSettingsValue(kCheckedAtStart, false);
        QVERIFY(!QApplication::activeModalWidget());
    }

    void theMenuTellsWhateverComesOut()
    {
        const struct {
            QByteArray answer;
            QString dialog;
        } rows[] = {{kNewer, kNewerDialog},
                    {kLatest, kLatestDialog},
                    {kUseless, kErrorDialog},
                    {HttpServer::ok(""), kErrorDialog}};
        const QMWidgets::PromoMenuBar bar;
        const auto* const menu = bar.findChild<QPushButton*>(QStringLiteral("AppButton"))->menu();
        QAction* const entry = menu->actions().at(5);
        for (const auto& row : rows) {
            HttpServer server(row.answer);
            askFrom({server.host(), server.host()}, day(-10));
            QCOMPARE(dialogsOf([entry] { entry->trigger(); }), QStringList(row.dialog));
            QCOMPARE(lastCheck(), day(-10));
        }
    }

    void theStartTellsOfNewsOnly()
    {
        const QByteArray empty = HttpServer::ok("");
        const QString today = day(0);
        const QString longAgo = day(-9);
        const QStringList none;
        const struct {
            const char* name;
            QString last;
            QByteArray answer;
            bool isAsked;
            QString lastAfter;
            QStringList dialogs;
        } rows[] = {{"never before", QString(), kNewer, false, today, none},
                    {"no day", "31.12.2024", kNewer, false, today, none},
                    {"of late", day(-2), kNewer, false, day(-2), none},
                    {"in the future", day(9), kNewer, false, day(9), none},
                    {"newer", longAgo, kNewer, true, today, {kNewerDialog}},
                    {"latest", longAgo, kLatest, true, today, none},
                    {"useless", longAgo, kUseless, true, longAgo, none},
                    {"empty", longAgo, empty, true, longAgo, none}};
        for (const auto& row : rows) {
            HttpServer server(row.answer);
            askFrom({server.host()}, row.last);
            QVERIFY2(dialogsOf([] { App::app()->nop_cuos(); }) == row.dialogs, row.name);
            QVERIFY2(server.requests().count() == (row.isAsked ? 1 : 0), row.name);
            QVERIFY2(lastCheck() == row.lastAfter, row.name);
        }
    }

    void theDialogsBoxSwitchesTheCheckAtOnce()
    {
        HttpServer server(kNewer);
        App* const app = App::app();
        askFrom({server.host()}, day(0));
        app->setupWebLinks();
        const QUrl page(QMWidgets::MakerSite::page(QStringLiteral("/apps/tessarin")));
        UrlCatcher catcher;
        for (const bool isOn : {true, false}) {
            app->setSettingsValue(kCheckedAtStart, isOn);
            withModalDialog([app] { app->slotCheckUpdate(); },
                            [&](QDialog* dialog) {
                                auto* const box = dialog->findChild<QCheckBox*>();
                                QCOMPARE(box->isChecked(), isOn);
                                box->click();
                                QCOMPARE(app->settingsValue(kCheckedAtStart, isOn), !isOn);
                                buttonOf(dialog, isOn ? "No" : "Yes")->click();
                            });
            QCOMPARE(catcher.take(), isOn ? QList<QUrl>() : QList<QUrl>({page}));
        }
    }

    void oneCheckRunsAtATime()
    {
        HttpServer server(kLatest);
        App* const app = App::app();
        askFrom({server.host()}, day(-9));
        connect(&server, &HttpServer::asked, app, [app] {
            app->slotCheckUpdate();
            app->slotCheckUpdate();
        });
        QCOMPARE(dialogsOf([app] { app->slotCheckUpdate(); }), QStringList(kLatestDialog));
        // The user gets an answer also when the check at the start was the first to ask.
        QCOMPARE(dialogsOf([app] { app->nop_cuos(); }), QStringList(kLatestDialog));
        QCOMPARE(server.requests().count(), 2);
        QCOMPARE(lastCheck(), day(0));
        server.disconnect(app);
        app->setSettingsValue(kLastCheck, day(-9));
        QCOMPARE(dialogsOf([app] { app->nop_cuos(); }), QStringList());
    }

    void theStartWaitsForTheUser_data()
    {
        QTest::addColumn<bool>("isAskedBefore"); // than the user opens his list
        QTest::addColumn<bool>("isToldByMenu");
        QTest::newRow("before the request") << false << false;
        QTest::newRow("before the news") << true << false;
        QTest::newRow("who has asked in the meantime") << true << true;
    }

    void theStartWaitsForTheUser()
    {
        QFETCH(bool, isAskedBefore);
        QFETCH(bool, isToldByMenu);
        HttpServer server(kNewer);
        App* const app = App::app();
        askFrom({server.host()}, day(-9));
        QWidget window;
        QComboBox list(&window);
        list.addItem(QStringLiteral("item"));
        QPushButton button(&window);
        connect(&button, &QPushButton::clicked, app, &App::slotCheckUpdate);
        window.show();
        if (isAskedBefore) {
            connect(&server, &HttpServer::asked, &list, &QComboBox::showPopup);
        } else {
            list.showPopup();
        }
        app->nop_cuos();
        QVERIFY(QApplication::activePopupWidget());
        QVERIFY(!QApplication::activeModalWidget());
        QCOMPARE(server.requests().count(), isAskedBefore ? 1 : 0);
        QCOMPARE(lastCheck(), day(-9));
        server.disconnect(&list);
        list.hidePopup();
        const auto isNoted = [] {
            return lastCheck() == day(0);
        };
        const auto wait = [&] {
            if (isToldByMenu) {
                QTest::keyClick(&button, Qt::Key_Space);
            }
            return QTest::qWaitFor(isNoted, 30000);
        };
        QCOMPARE(dialogsOf(wait), QStringList(kNewerDialog)); // once
        QVERIFY(isNoted());
    }

    void nobodyIsFreeInsideAnEventOrUnderADialog()
    {
        QVERIFY(App::isUserFree());
        std::optional<bool> inEvent;
        std::optional<bool> inEventInEvent;
        QTimer::singleShot(0, this, [&] {
            inEvent = App::isUserFree();
            QTimer::singleShot(0, this, [&] { inEventInEvent = App::isUserFree(); });
            while (!inEventInEvent) {
                QCoreApplication::processEvents();
            }
        });
        QTRY_VERIFY(inEventInEvent);
        QCOMPARE(inEvent.value(), true);
        QCOMPARE(inEventInEvent.value(), false);

        QDialog dialog;
        dialog.open();
        QVERIFY(!App::isUserFree());
        dialog.close();
        QVERIFY(App::isUserFree());
    }

    void theProgramEndsInTheMiddleOfACheck()
    {
        const QByteArray silent;
        const struct {
            const char* name;
            void (App::*check)();
            QByteArray answer;
            int boxes; // which the main window owns
        } rows[] = {{"menu, no answer yet", &App::slotCheckUpdate, silent, 0},
                    {"menu, dialog open", &App::slotCheckUpdate, kNewer, 0},
                    {"menu, error shown", &App::slotCheckUpdate, kUseless, 1},
                    {"start, no answer yet", &App::nop_cuos, silent, 0},
                    {"start, dialog open", &App::nop_cuos, kNewer, 0}};
        App* const app = App::app();
        for (const auto& row : rows) {
            HttpServer server(row.answer);
            askFrom({server.host(), server.host()}, day(-9));
            auto mainWindow = std::make_unique<QWidget>();
            app->setMainWidget(mainWindow.get());
            bool hasDialog = false;
            QTimer watch;
            connect(&watch, &QTimer::timeout, app, [&] {
                hasDialog = hasDialog || QApplication::activeModalWidget();
                if (hasDialog || (row.answer.isEmpty() && !server.requests().isEmpty())) {
                    app->quit();
                }
            });
            watch.start(0);
            QTimer::singleShot(0, app, row.check);
            QCOMPARE(App::exec(), 0);
            QVERIFY2(hasDialog == !row.answer.isEmpty(), row.name);
            // Nothing is begun after the end: no second request, no message.
            QVERIFY2(server.requests().count() == 1, row.name);
            QVERIFY2(mainWindow->findChildren<QDialog*>().count() == row.boxes, row.name);
            mainWindow.reset();
            QVERIFY2(!QApplication::activeModalWidget() && App::isUserFree(), row.name);
        }
    }
};

TESSARIN_TEST(TestUpdates);
#include "tst_Updates.moc"
