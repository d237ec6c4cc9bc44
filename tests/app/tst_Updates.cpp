#include "app/MainPage.h"
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

/// Titles and texts of the dialogs that come out of a call; each is closed at once.
template <class Call> QStringList dialogsOf(const Call& call)
{
    QStringList shown;
    const auto note = [&shown](QDialog* dialog) {
        shown.append(dialog->windowTitle());
        for (const QLabel* label : dialog->findChildren<QLabel*>()) {
            shown.last() += QLatin1Char('|') + label->text();
        }
    };
    withModalDialogs(call, {note, note, note});
    return shown;
}

const QString kNewerDialog =
    QStringLiteral("Tessarin Updates Notification|<CENTER><H2>The newer version of Tessarin is "
                   "available.<br>Go to the updates web page?</H2></CENTER>|");
const QString kLatestDialog =
    QStringLiteral("Tessarin Updates Notification|<CENTER><H2>You are using the latest version "
                   "available.<br>Go to the updates web page anyway?</H2></CENTER>|");
const QString kErrorDialog = QStringLiteral(
    "Tessarin Updates Check Error|<H3>No internet connection is available,<br>please, check the "
    "firewall settings and make sure that<br>you are not using the the internet connection via the "
    "proxy server.</H3>|");

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

    void theMenuTellsWhateverComesOut_data()
    {
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<QString>("dialog");
        QTest::newRow("newer") << kNewer << kNewerDialog;
        QTest::newRow("latest") << kLatest << kLatestDialog;
        QTest::newRow("useless") << kUseless << kErrorDialog;
        QTest::newRow("empty") << HttpServer::ok("") << kErrorDialog;
    }

    void theMenuTellsWhateverComesOut()
    {
        QFETCH(QByteArray, answer);
        QFETCH(QString, dialog);
        HttpServer server(answer);
        App* const app = App::app();
        askFrom({server.host(), server.host()}, day(-10));
        MainPage page(nullptr);
        app->setMainWidget(&page);
        page.slotFilesDropped({});
        const auto* const menu = page.findChild<QPushButton*>(QStringLiteral("AppButton"))->menu();
        QAction* const entry = menu->actions().at(menu->actions().count() - 4);
        QCOMPARE(entry->text(), QStringLiteral("Check Updates"));
        QCOMPARE(dialogsOf([entry] { entry->trigger(); }), QStringList(dialog));
        QCOMPARE(lastCheck(), day(-10));
    }

    void theStartTellsOfNewsOnly_data()
    {
        QTest::addColumn<QString>("last");
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<bool>("isAsked");
        QTest::addColumn<QString>("lastAfter");
        QTest::addColumn<QStringList>("dialogs");
        const QString today = day(0);
        const QStringList none;
        QTest::newRow("never before") << QString() << kNewer << false << today << none;
        QTest::newRow("no day") << "31.12.2024" << kNewer << false << today << none;
        QTest::newRow("of late") << day(-2) << kNewer << false << day(-2) << none;
        QTest::newRow("in the future") << day(9) << kNewer << false << day(9) << none;
        QTest::newRow("newer") << day(-9) << kNewer << true << today << QStringList(kNewerDialog);
        QTest::newRow("latest") << day(-9) << kLatest << true << today << none;
        QTest::newRow("useless") << day(-9) << kUseless << true << day(-9) << none;
        QTest::newRow("empty") << day(-9) << HttpServer::ok("") << true << day(-9) << none;
    }

    void theStartTellsOfNewsOnly()
    {
        QFETCH(QString, last);
        QFETCH(QByteArray, answer);
        QFETCH(bool, isAsked);
        QFETCH(QString, lastAfter);
        QFETCH(QStringList, dialogs);
        HttpServer server(answer);
        askFrom({server.host()}, last);
        QCOMPARE(dialogsOf([] { App::app()->nop_cuos(); }), dialogs);
        QCOMPARE(server.requests().count(), isAsked ? 1 : 0);
        QCOMPARE(lastCheck(), lastAfter);
    }

    void theDialogsBoxSwitchesTheCheckAtOnce()
    {
        HttpServer server(kNewer);
        App* const app = App::app();
        app->setUpdateService({{server.host()}, 60000});
        app->setSettingsValue(kCheckedAtStart, true);
        app->setupWebLinks();
        UrlCatcher catcher;
        withModalDialog([app] { app->slotCheckUpdate(); },
                        [](QDialog* dialog) {
                            QCOMPARE(dialog->objectName(), QStringLiteral("UpdateDialog"));
                            bool hasPicture = false;
                            for (const QLabel* label : dialog->findChildren<QLabel*>()) {
                                hasPicture = hasPicture || label->pixmap(Qt::ReturnByValue).width();
                            }
                            QVERIFY(hasPicture);
                            auto* const box = dialog->findChild<QCheckBox*>();
                            QVERIFY(box->isChecked());
                            box->click();
                            QCOMPARE(App::app()->settingsValue(kCheckedAtStart, true), false);
                            buttonOf(dialog, QStringLiteral("No"))->click();
                        });
        QVERIFY(catcher.take().isEmpty());
        QCOMPARE(app->settingsValue(kCheckedAtStart, true), false);

        withModalDialog([app] { app->slotCheckUpdate(); },
                        [](QDialog* dialog) {
                            QVERIFY(!dialog->findChild<QCheckBox*>()->isChecked());
                            buttonOf(dialog, QStringLiteral("Yes"))->click();
                        });
        QCOMPARE(catcher.take(),
                 QList<QUrl>({QUrl(QMWidgets::MakerSite::page(QStringLiteral("/apps/tessarin")))}));
    }

    void oneCheckRunsAtATime()
    {
        HttpServer server(kLatest);
        App* const app = App::app();
        app->setUpdateService({{server.host()}, 60000});
        const auto askAgain = [app] {
            app->slotCheckUpdate();
            app->slotCheckUpdate();
        };
        connect(&server, &HttpServer::asked, app, askAgain);
        QCOMPARE(dialogsOf([app] { app->slotCheckUpdate(); }), QStringList(kLatestDialog));
        // The user gets an answer also when the check at the start was the first to ask.
        app->setSettingsValue(kLastCheck, day(-9));
        QCOMPARE(dialogsOf([app] { app->nop_cuos(); }), QStringList(kLatestDialog));
        QCOMPARE(server.requests().count(), 2);
        QCOMPARE(lastCheck(), day(0));
        server.disconnect(app);
        app->setSettingsValue(kLastCheck, day(-9));
        QCOMPARE(dialogsOf([app] { app->nop_cuos(); }), QStringList());
    }

    void theStartWaitsForOtherWindows_data()
    {
        QTest::addColumn<bool>("isAskedBefore");
        QTest::newRow("before the request") << false;
        QTest::newRow("before the news") << true;
    }

    void theStartWaitsForOtherWindows()
    {
        QFETCH(bool, isAskedBefore);
        HttpServer server(kNewer);
        App* const app = App::app();
        askFrom({server.host()}, day(-9));
        QWidget window;
        QComboBox box(&window);
        box.addItem(QStringLiteral("item"));
        window.show();
        const auto openList = [&box] {
            box.showPopup();
        };
        if (isAskedBefore) {
            connect(&server, &HttpServer::asked, &box, openList);
        } else {
            openList();
        }
        app->nop_cuos();
        QVERIFY(QApplication::activePopupWidget());
        QVERIFY(!QApplication::activeModalWidget());
        QCOMPARE(server.requests().count(), isAskedBefore ? 1 : 0);
        QCOMPARE(lastCheck(), day(-9));
        box.hidePopup();
        const auto isTold = [] {
            return lastCheck() == day(0);
        };
        QCOMPARE(dialogsOf([&] { return QTest::qWaitFor(isTold, 30000); }),
                 QStringList(kNewerDialog));
        QVERIFY(isTold());
    }

    void newsThatTheUserHasAskedForComesOnce()
    {
        HttpServer server(kNewer);
        App* const app = App::app();
        askFrom({server.host()}, day(-9));
        QWidget window;
        QComboBox box(&window);
        box.addItem(QStringLiteral("item"));
        QPushButton button(&window);
        connect(&button, &QPushButton::clicked, app, &App::slotCheckUpdate);
        connect(&server, &HttpServer::asked, &box, &QComboBox::showPopup);
        window.show();
        app->nop_cuos();
        QVERIFY(QApplication::activePopupWidget());
        server.disconnect(&box);
        box.hidePopup();
        const auto isNoted = [] {
            return lastCheck() == day(0);
        };
        QCOMPARE(dialogsOf([&] {
                     QTest::keyClick(&button, Qt::Key_Space);
                     return QTest::qWaitFor(isNoted, 30000);
                 }),
                 QStringList(kNewerDialog));
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

    void theProgramEndsInTheMiddleOfACheck_data()
    {
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<bool>("isQuiet");
        for (const bool isQuiet : {false, true}) {
            const char* const who = isQuiet ? "start" : "menu";
            QTest::addRow("%s, no answer yet", who) << QByteArray() << isQuiet;
            QTest::addRow("%s, dialog open", who) << kNewer << isQuiet;
        }
        QTest::newRow("menu, error shown") << kUseless << false;
    }

    void theProgramEndsInTheMiddleOfACheck()
    {
        QFETCH(QByteArray, answer);
        QFETCH(bool, isQuiet);
        HttpServer server(answer);
        App* const app = App::app();
        askFrom({server.host(), server.host()}, day(-9));
        auto mainWindow = std::make_unique<QWidget>();
        app->setMainWidget(mainWindow.get());
        int dialogs = 0;
        QTimer watch;
        connect(&watch, &QTimer::timeout, app, [&] {
            if (QApplication::activeModalWidget()) {
                ++dialogs;
                app->quit();
            } else if (answer.isEmpty() && !server.requests().isEmpty()) {
                app->quit();
            }
        });
        watch.start(0);
        QTimer::singleShot(0, app, isQuiet ? &App::nop_cuos : &App::slotCheckUpdate);
        QCOMPARE(App::exec(), 0);
        QCOMPARE(dialogs > 0, !answer.isEmpty());
        // Nothing is begun after the end: no second request, no message box, which the main window
        // would still own.
        QCOMPARE(server.requests().count(), 1);
        QCOMPARE(mainWindow->findChildren<QDialog*>().count(), answer == kUseless ? 1 : 0);
        mainWindow.reset();
        QVERIFY(!QApplication::activeModalWidget());
        QVERIFY(App::isUserFree());
    }
};

TESSARIN_TEST(TestUpdates);
#include "tst_Updates.moc"
