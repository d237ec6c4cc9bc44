#include "support/ModalDialog.h"
#include "support/TestMain.h"

#include <functional>
#include <limits>
#include <QMenu>
#include <QMWidgets/App.h>
#include <QMWidgets/ReminderType.h>

using namespace QMWidgets;

namespace
{

const QString kOn = QStringLiteral("AutoReminder");
const QString kCount = QStringLiteral("AutoReminderCount");

/// Has the reminders at work: every so many occasions, with that many behind them.
void prepare(int period, int type, int count)
{
    App::app()->scheduleReminder(period, type);
    App::app()->setSettingsValue(kOn, true);
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

/// Makes a call, waits for the reminder of count 5, closes it and returns its parent.
template <class Call> QWidget* parentOfReminder(const Call& call)
{
    QWidget* parent = nullptr;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&parent] {
        QWidget* const dialog = QApplication::activeModalWidget();
        if (dialog && dialog->windowTitle() == QLatin1String("Join Us")) {
            parent = dialog->parentWidget();
            dialog->close();
        }
    });
    watch.start(0);
    call();
    return QTest::qWaitFor([] { return count() == 6; }, 30000) ? parent : nullptr;
}

} // namespace

class tst_Reminders : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { App::app()->setSettingsValue(kOn, false); }

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

    void countsOccasions()
    {
        const int largest = std::numeric_limits<int>::max();
        const char* const none = nullptr;
        const struct {
            const char* name;
            int period;
            int type;
            int stored;
            const char* button; // pressed in the dialog; empty closes it; null if none is to come
            bool isOnAfter;
            int storedAfter;
        } rows[] = {{"due", 5, TellReminder, 5, "&Maybe Later", true, 6},
                    {"due, closed", 5, TellReminder, 10, "", true, 11},
                    {"due, never", 5, JoinReminder, 5, "&Never Ask Me Again", false, 6},
                    {"due, rated", 1, RateReminder, 4, "&Rate It Now", false, 5},
                    {"not due", 5, TellReminder, 6, none, true, 7},
                    {"fresh", 5, TellReminder, 1, none, true, 2},
                    {"no period", 0, RateReminder, 4, none, true, 5},
                    {"largest", 5, TellReminder, largest, none, true, 1},
                    {"negative", 5, TellReminder, -3, none, true, 1}};
        App* const app = App::app();
        QWidget window;
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QList<QWidget*> parents;
        for (const auto& row : rows) {
            prepare(row.period, row.type, row.stored);
            const int before = parents.size();
            withModalDialog([app] { app->slotCallRateReminderInternal(); },
                            [&](QDialog* dialog) {
                                parents += dialog->parentWidget();
                                if (!QLatin1String(row.button).isEmpty()) {
                                    buttonOf(dialog, QLatin1String(row.button))->click();
                                }
                            });
            QVERIFY2((parents.size() > before) == (row.button != none), row.name);
            QVERIFY2(isOn() == row.isOnAfter && count() == row.storedAfter, row.name);
        }
        QCOMPARE(parents.first(), &window);
        // Switched off, they don't even count.
        prepare(5, TellReminder, 5);
        app->setSettingsValue(kOn, false);
        app->slotCallRateReminderInternal();
        QCOMPARE(count(), 5);
    }

    void comesOverTheActiveWindow()
    {
        for (const bool isModal : {false, true}) {
            QDialog work;
            work.setModal(isModal);
            work.show();
            QVERIFY(QTest::qWaitForWindowActive(&work));
            prepare(5, JoinReminder, 5);
            QCOMPARE(parentOfReminder([] { App::app()->slotCallRateReminderInternal(); }), &work);
        }
        // One that is closed already belongs to the window below it.
        QWidget page;
        App::app()->setMainWidget(&page);
        QWidget other;
        QDialog ownDialog(&other);
        QDialog freeDialog;
        for (QDialog* const closed : {&ownDialog, &freeDialog}) {
            page.show();
            other.show();
            prepare(5, JoinReminder, 5);
            QApplication::setActiveWindow(closed);
            QWidget* const below = closed == &ownDialog ? &other : &page;
            QCOMPARE(parentOfReminder([] { App::app()->slotCallRateReminderInternal(); }), below);
        }
        App::app()->setMainWidget(nullptr);
    }

    void breaksNothingOff()
    {
        QWidget window;
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QMenu menu;
        menu.addAction(QStringLiteral("entry"));
        QWindow* const handle = window.windowHandle();
        const struct {
            std::function<void()> begin;
            std::function<void()> end;
        } rows[] = {{[&] { menu.popup(QPoint()); },
                     [&] {
                         menu.close();
                     }},
                    {[&] { QTest::mousePress(handle, Qt::RightButton); },
                     [&] {
                         QTest::mouseRelease(handle, Qt::RightButton);
                     }}};
        for (const auto& row : rows) {
            prepare(5, JoinReminder, 5);
            QApplication::setActiveWindow(&window);
            row.begin();
            App::app()->slotCallRateReminderInternal();
            QCoreApplication::processEvents();
            QVERIFY(!QApplication::activeModalWidget());
            QCOMPARE(count(), 5);
            QCOMPARE(parentOfReminder(row.end), &window);
        }
        // An event that lets others through, such as the work on a drop, comes to its end first.
        prepare(5, JoinReminder, 5);
        bool isDue = false;
        const auto work = [&] {
            QTimer::singleShot(0, this, [&] {
                App::app()->slotCallRateReminderInternal();
                isDue = true;
            });
            while (!isDue) {
                QCoreApplication::processEvents();
            }
            QCOMPARE(count(), 5);
        };
        QApplication::setActiveWindow(&window);
        QCOMPARE(parentOfReminder([&] { QTimer::singleShot(0, this, work); }), &window);
        QVERIFY(isDue);
    }
};

TESSARIN_TEST(tst_Reminders);
#include "tst_Reminders.moc"
