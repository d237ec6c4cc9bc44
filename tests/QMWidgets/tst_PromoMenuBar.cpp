#include "support/TestMain.h"

#include <QAction>
#include <QMenu>
#include <QMWidgets/App.h>
#include <QMWidgets/PromoMenuBar.h>
#include <QPushButton>
#include <QTimer>

using QMWidgets::App;
using QMWidgets::PromoMenuBar;

namespace
{

QMenu* menuOf(const PromoMenuBar& bar, const char* button)
{
    return bar.findChild<QPushButton*>(QLatin1String(button))->menu();
}

void openReminder()
{
    App* const app = App::app();
    app->setSettingsValue(QStringLiteral("AutoReminder"), true);
    app->scheduleReminder(1, 2);
    app->slotCallRateReminderInternal();
    app->setSettingsValue(QStringLiteral("AutoReminder"), false);
}

} // namespace

class tst_PromoMenuBar : public QObject
{
    Q_OBJECT

private slots:
    /// With each of the dialogs open: the dialog's own loop ends, and so does the program's.
    void theProgramEndsAroundTheDialogs()
    {
        App* const app = App::app();
        const PromoMenuBar bar;
        const QList<QAction*> entries = menuOf(bar, "AppButton")->actions();
        const auto click = [&bar](const char* name) {
            bar.findChild<QPushButton*>(QLatin1String(name))->click();
        };
        const struct {
            std::function<void()> open;
            const char* title;
        } ways[] = {{[&] { click("IntroButton"); }, "Tessarin Introduction"},
                    {[&] { click("ShareButton"); }, "Share Tessarin"},
                    {[&] { entries.at(0)->trigger(); }, "Share Tessarin"},
                    {[&] { click("JoinButton"); }, "Join us"},
                    {[&] { entries.at(1)->trigger(); }, "Join us"},
                    {[&] { entries.at(6)->trigger(); }, "Tessarin Info"},
                    {[&] { entries.last()->trigger(); }, ""}, // quits
                    {&openReminder, "Share"},
                    {[app] { app->slotShowCssEditor(); }, "CSS Style Editor"}};
        QWidget page;
        app->setMainWidget(&page);
        for (const auto& way : ways) {
            page.show();
            QString shown;
            QTimer looker;
            connect(&looker, &QTimer::timeout, [&] {
                for (QWidget* const window : QApplication::topLevelWidgets()) {
                    if (window != &page && window->isVisible()) {
                        shown = window->windowTitle();
                        window->isModal() ? QCoreApplication::quit() : void(page.close());
                    }
                }
            });
            looker.start(0);
            // Ends the loop with another value if nothing else does.
            QTimer guard;
            connect(&guard, &QTimer::timeout, [] { QCoreApplication::exit(1); });
            guard.start(30000);
            QTimer::singleShot(0, app, way.open);
            QCOMPARE(QCoreApplication::exec(), 0);
            looker.stop();
            QCOMPARE(shown, QLatin1String(way.title));
            page.close();
            // The help is kept to the end, and goes with its parent.
            for (QWidget* const window : QApplication::topLevelWidgets()) {
                if (window->isVisible()) {
                    delete window;
                }
            }
        }
    }
};

TESSARIN_TEST(tst_PromoMenuBar);
#include "tst_PromoMenuBar.moc"
