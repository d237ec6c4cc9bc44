#include "support/HttpServer.h"
#include "support/ModalDialog.h"
#include "support/TestMain.h"
#include "support/UrlCatcher.h"

#include <memory>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QMWidgets/App.h>
#include <QMWidgets/MakerSite.h>
#include <QMWidgets/PromoMenuBar.h>
#include <QMWidgets/UpdateCheck.h>
#include <QMWidgets/UpdateRequest.h>

using QMWidgets::App;

namespace
{

const QString kLastCheck = QStringLiteral("LastUpdateCheck");
const QString kCheckedAtStart = QStringLiteral("checkupdates");
const QString kNeverHelp = QStringLiteral("NeverShowItAgain");
const QString kReminders = QStringLiteral("AutoReminder");
const QString kReminderCount = QStringLiteral("AutoReminderCount");

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

const QMWidgets::UpdateCheck& check()
{
    return *App::app()->findChild<QMWidgets::UpdateCheck*>();
}

bool isAsking()
{
    return check().findChild<QMWidgets::UpdateRequest*>();
}

/// Makes a call and waits until the check that is then under way has come to its end.
template <class Call> void untilChecked(const Call& call)
{
    call();
    QVERIFY(QTest::qWaitFor([] { return !check().isRunning(); }, 60000));
}

/// The kinds of dialogs that come out of a call and a check; they are closed at once.
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
    withModalDialogs([&call] { untilChecked(call); }, {note, note, note});
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
            withModalDialog([app] { untilChecked([app] { app->slotCheckUpdate(); }); },
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
        // The one at the start comes while the user is waiting for his.
        app->setSettingsValue(kLastCheck, day(-9));
        connect(&server, &HttpServer::asked, app, &App::nop_cuos);
        QCOMPARE(dialogsOf([app] { app->slotCheckUpdate(); }), QStringList(kLatestDialog));
        QCOMPARE(server.requests().count(), 4);
        QCOMPARE(lastCheck(), day(0));
    }

    /// The check holds up no one who is at work below it, and lets all come that is due meanwhile.
    void nothingWaitsForASilentHost()
    {
        HttpServer server((QByteArray()));
        App* const app = App::app();
        askFrom({server.host()}, day(-9));
        QDialog work;
        connect(&server, &HttpServer::asked, &work, &QDialog::accept);
        QTimer::singleShot(0, app, &App::nop_cuos);
        QTimer::singleShot(30000, &work, &QDialog::reject);
        QCOMPARE(work.exec(), int(QDialog::Accepted));

        app->setSettingsValue(kNeverHelp, false);
        app->setSettingsValue(kReminders, true);
        app->setSettingsValue(kReminderCount, 10);
        app->showHelpIfDue();
        QStringList titles;
        const auto note = [&](const QDialog* dialog) {
            titles += dialog->windowTitle();
            app->slotCallJoinReminder();
        };
        withModalDialogs(
            [&] { QVERIFY(QTest::qWaitFor([&] { return titles.size() == 2; }, 30000)); },
            {note, note});
        app->setSettingsValue(kNeverHelp, true);
        app->setSettingsValue(kReminders, false);
        QCOMPARE(titles, QStringList({"Tessarin Introduction", "Join Us"}));
        QVERIFY(check().isRunning());
        QTimer::singleShot(0, app, &QCoreApplication::quit);
        App::exec();
        QVERIFY(!check().isRunning());
    }

    void theAnswerComesOverAnOpenDialog_data()
    {
        QTest::addColumn<bool>("isByMenu");
        QTest::addColumn<QByteArray>("answer");
        QTest::newRow("start") << false << kNewer;
        QTest::newRow("menu") << true << kLatest;
        QTest::newRow("menu, error") << true << kUseless;
    }

    void theAnswerComesOverAnOpenDialog()
    {
        QFETCH(bool, isByMenu);
        QFETCH(QByteArray, answer);
        HttpServer server(answer);
        App* const app = App::app();
        askFrom({server.host()}, day(-9));
        QDialog work;
        QWidget* parent = nullptr;
        QTimer watch;
        connect(&watch, &QTimer::timeout, &work, [&] {
            QWidget* const dialog = QApplication::activeModalWidget();
            if (dialog && dialog != &work && dialog->isVisible()) {
                parent = dialog->parentWidget();
                dialog->close();
            } else if (parent) {
                work.accept();
            }
        });
        watch.start(0);
        // The user opens it while the host is being asked.
        connect(&server, &HttpServer::asked, &work, &QDialog::exec, Qt::QueuedConnection);
        QTimer::singleShot(30000, &work, &QDialog::reject);
        QTimer::singleShot(0, app, isByMenu ? &App::slotCheckUpdate : &App::nop_cuos);
        QVERIFY(QTest::qWaitFor([&] { return parent && !work.isVisible(); }, 60000));
        QCOMPARE(work.result(), int(QDialog::Accepted));
        QCOMPARE(parent, &work);
    }

    void theNewsWaitsForAnOpenList_data()
    {
        QTest::addColumn<bool>("isAskedByMenu");
        QTest::newRow("unasked") << false;
        QTest::newRow("asked for in the meantime") << true;
    }

    void theNewsWaitsForAnOpenList()
    {
        QFETCH(bool, isAskedByMenu);
        HttpServer server(kNewer);
        App* const app = App::app();
        askFrom({server.host()}, day(-9));
        QWidget window;
        QComboBox list(&window);
        list.addItem(QStringLiteral("item"));
        window.show();
        connect(&server, &HttpServer::asked, &list, &QComboBox::showPopup);
        app->nop_cuos();
        QVERIFY(QTest::qWaitFor([] { return !isAsking(); }, 30000));
        QVERIFY(QApplication::activePopupWidget());
        QVERIFY(!QApplication::activeModalWidget());
        QCOMPARE(lastCheck(), day(-9));
        const auto close = [&] {
            list.hidePopup();
            if (isAskedByMenu) {
                app->slotCheckUpdate();
            }
        };
        QCOMPARE(dialogsOf(close), QStringList(kNewerDialog)); // once
        QCOMPARE(lastCheck(), day(0));
        QCOMPARE(server.requests().count(), 1);
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
            const bool isBusy = row.check == &App::slotCheckUpdate && row.answer.isEmpty();
            Qt::CursorShape shape = Qt::BlankCursor;
            bool hasDialog = false;
            QTimer watch;
            connect(&watch, &QTimer::timeout, app, [&] {
                hasDialog = hasDialog || QApplication::activeModalWidget();
                if (hasDialog || (row.answer.isEmpty() && !server.requests().isEmpty())) {
                    shape = mainWindow->cursor().shape();
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
            QCOMPARE(shape, isBusy ? Qt::BusyCursor : Qt::ArrowCursor);
            QCOMPARE(mainWindow->cursor().shape(), Qt::ArrowCursor);
            mainWindow.reset();
            QVERIFY2(!QApplication::activeModalWidget() && !check().isRunning(), row.name);
        }
    }
};

TESSARIN_TEST(TestUpdates);
#include "tst_Updates.moc"
