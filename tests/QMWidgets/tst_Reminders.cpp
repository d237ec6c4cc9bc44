#include "support/ModalDialog.h"
#include "support/TestMain.h"
#include "support/UrlCatcher.h"

#include <limits>
#include <QMWidgets/App.h>
#include <QMWidgets/JoinReminderDialog.h>
#include <QMWidgets/RateReminderDialog.h>
#include <QMWidgets/ReminderType.h>
#include <QMWidgets/TellReminderDialog.h>

using namespace QMWidgets;

namespace
{

const QString kOn = QStringLiteral("AutoReminder");
const QString kCount = QStringLiteral("AutoReminderCount");

void store(bool on, int count)
{
    App::app()->setSettingsValue(kOn, on);
    App::app()->setSettingsValue(kCount, count);
}

bool isOn()
{
    return App::app()->settingsValue(kOn, true).toBool();
}

int count()
{
    return App::app()->settingsValue(kCount, 1).toInt();
}

/// The texts of the buttons that are not hidden, without those of the social pages.
QStringList buttonTexts(const QDialog& dialog)
{
    QStringList texts;
    for (const QPushButton* button : dialog.findChildren<QPushButton*>("PushButton")) {
        if (!button->isHidden()) {
            texts.append(button->text());
        }
    }
    return texts;
}

} // namespace

class tst_Reminders : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { store(false, 1); }

    void choosesAmongTheTypesAskedFor()
    {
        const struct {
            int types;
            int chosen[6]; // for the numbers 0 to 5
        } rows[] = {{7, {1, 2, 4, 1, 2, 4}}, {3, {1, 2, 1, 2, 1, 2}}, {5, {1, 4, 1, 4, 1, 4}},
                    {6, {4, 2, 4, 2, 4, 2}}, {1, {1, 1, 1, 1, 1, 1}}, {4, {4, 4, 4, 4, 4, 4}},
                    {0, {0, 0, 0, 0, 0, 0}}, {10, {2, 2, 2, 2, 2, 2}}};
        for (const auto& row : rows) {
            for (quint32 random = 0; random < 6; ++random) {
                QCOMPARE(chooseReminderType(row.types, random), row.chosen[random]);
            }
        }
    }

    void occasions_data()
    {
        QTest::addColumn<bool>("on");
        QTest::addColumn<int>("stored");
        QTest::addColumn<QString>(
            "button"); ///< pressed in the dialog, or "-" if none is to come; empty for closing it
        QTest::addColumn<bool>("onAfter");
        QTest::addColumn<int>("storedAfter");
        const QString none = QStringLiteral("-");
        const QString later = QStringLiteral("&Maybe Later");
        const QString never = QStringLiteral("&Never Ask Me Again");
        const int largest = std::numeric_limits<int>::max();
        QTest::newRow("due") << true << 5 << later << true << 6;
        QTest::newRow("due, closed") << true << 10 << QString() << true << 11;
        QTest::newRow("due, never") << true << 5 << never << false << 6;
        QTest::newRow("not due") << true << 6 << none << true << 7;
        QTest::newRow("fresh") << true << 1 << none << true << 2;
        QTest::newRow("off") << false << 5 << none << false << 5;
        QTest::newRow("largest") << true << largest << none << true << 1;
        QTest::newRow("negative") << true << -3 << none << true << 1;
    }
    void occasions()
    {
        QFETCH(bool, on);
        QFETCH(int, stored);
        QFETCH(QString, button);
        QFETCH(bool, onAfter);
        QFETCH(int, storedAfter);
        App* const app = App::app();
        app->scheduleReminder(5, TellReminder);
        store(on, stored);
        QString title = QStringLiteral("-");
        withModalDialog([app] { app->slotCallRateReminderInternal(); },
                        [&](QDialog* dialog) {
                            title = dialog->windowTitle();
                            if (!button.isEmpty()) {
                                buttonOf(dialog, button)->click();
                            }
                        });
        QCOMPARE(title, button == QLatin1String("-") ? button : QStringLiteral("Share"));
        QCOMPARE(isOn(), onAfter);
        QCOMPARE(count(), storedAfter);
        QVERIFY(!QApplication::activeModalWidget());
    }

    void formsShowTheirButtons()
    {
        const RateReminderDialog rate(nullptr);
        const TellReminderDialog tell(nullptr);
        const JoinReminderDialog join(nullptr);
        const QStringList two = {"&Maybe Later", "&Never Ask Me Again"};
        QCOMPARE(buttonTexts(rate),
                 QStringList({"&Rate It Now", "&Maybe Later", "&Never Ask Me Again"}));
        QCOMPARE(buttonTexts(tell), two);
        QCOMPARE(buttonTexts(join), two);
        QCOMPARE(rate.windowTitle(), QStringLiteral("Help Spread the Word about \"Tessarin\""));
        QCOMPARE(tell.windowTitle(), QStringLiteral("Share"));
        QCOMPARE(join.windowTitle(), QStringLiteral("Join Us"));
    }

    void enterAnswersHarmlessly()
    {
        RateReminderDialog rate(nullptr);
        TellReminderDialog tell(nullptr);
        JoinReminderDialog join(nullptr);
        const QPair<ReminderDialog*, int> forms[] = {{&rate, ReminderDialog::Now},
                                                     {&tell, ReminderDialog::MaybeLater},
                                                     {&join, ReminderDialog::MaybeLater}};
        UrlCatcher catcher;
        for (const auto& form : forms) {
            form.first->show();
            QTest::keyClick(form.first, Qt::Key_Return);
            QCOMPARE(form.first->answer(), form.second);
        }
        QVERIFY(catcher.take().isEmpty());
    }

    void ratingEndsTheReminders()
    {
        App* const app = App::app();
        app->scheduleReminder(1, RateReminder);
        store(true, 4);
        QWidget window;
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        const QWidget* parent = nullptr;
        withModalDialog([app] { app->slotCallRateReminderInternal(); },
                        [&](QDialog* dialog) {
                            parent = dialog->parentWidget();
                            buttonOf(dialog, QStringLiteral("&Rate It Now"))->click();
                        });
        QCOMPARE(parent, &window);
        QVERIFY(!isOn());
        QCOMPARE(count(), 5);
    }

    void aPeriodOfNothingShowsNothing()
    {
        App* const app = App::app();
        app->scheduleReminder(0, RateReminder);
        store(true, 4);
        app->slotCallRateReminderInternal();
        QCOMPARE(count(), 5);
    }

    /// As in a flow that lets events through between two operations.
    void waitsForWorkInHand()
    {
        App* const app = App::app();
        app->scheduleReminder(5, JoinReminder);
        store(true, 5);
        bool occasion = false;
        const auto work = [&] {
            QTimer::singleShot(0, app, [&] {
                app->slotCallRateReminderInternal();
                occasion = true;
            });
            QVERIFY(QTest::qWaitFor([&] { return occasion; }));
        };
        QTimer::singleShot(0, app, work);
        withModalDialog([&] { QVERIFY(QTest::qWaitFor([&] { return occasion; })); },
                        [](QDialog*) { QFAIL("a dialog stops the work"); });
        QCOMPARE(count(), 5);
    }

    /// The user's own dialog stays on top, and the reminder comes after it.
    void waitsForTheUser()
    {
        App* const app = App::app();
        app->scheduleReminder(5, JoinReminder);
        store(true, 5);
        QDialog work;
        withModalDialog([&work] { work.exec(); },
                        [&](QDialog*) {
                            app->slotCallRateReminderInternal();
                            QCOMPARE(QApplication::activeModalWidget(), &work);
                            QCOMPARE(count(), 5);
                        });
        QString title;
        withModalDialog([&] { QVERIFY(QTest::qWaitFor([] { return count() > 5; }, 30000)); },
                        [&title](QDialog* dialog) { title = dialog->windowTitle(); });
        QCOMPARE(title, QStringLiteral("Join Us"));
    }
};

TESSARIN_TEST(tst_Reminders);
#include "tst_Reminders.moc"
